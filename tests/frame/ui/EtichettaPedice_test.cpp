#include "frame/ui/EtichettaPedice.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

/// Where a small text stands on its label.
QRect Posto(const EtichettaPedice& label, const QString& text) {
    for (const auto* small : label.findChildren<QLabel*>())
        if (small->text() == text)
            return small->geometry();
    return {};
}

TEST(EtichettaPedice, SubscriptStandsInTheFirstGap) {
    EtichettaPedice label;
    label.setText(QStringLiteral("N         [kN]"));
    label.ImpostaPedice(QStringLiteral("b,Rd"));
    label.resize(label.sizeHint());
    label.show();
    const QRect at = Posto(label, QStringLiteral("b,Rd"));
    EXPECT_GE(at.left(), label.fontMetrics().horizontalAdvance(u'N'));
    EXPECT_LE(at.right(), label.fontMetrics().horizontalAdvance(QStringLiteral("N         ")));
    EXPECT_EQ(label.text(), "N         [kN]");
}

TEST(EtichettaPedice, SubscriptWithoutAGapStandsBehindTheTextAndHasRoom) {
    EtichettaPedice label;
    label.setText(QStringLiteral("M"));
    const int bare = label.sizeHint().width();
    label.ImpostaPedice(QStringLiteral("el,y,Rd"));
    EXPECT_GT(label.sizeHint().width(), bare);
    label.resize(label.sizeHint());
    label.show();
    const QRect at = Posto(label, QStringLiteral("el,y,Rd"));
    EXPECT_LE(at.right(), label.width());
    EXPECT_LE(at.bottom(), label.height());
}

TEST(EtichettaPedice, SuperscriptStandsHighInTheLastGap) {
    EtichettaPedice label;
    label.setText(QStringLiteral("W [mm  ]"));
    label.ImpostaApice(QStringLiteral("3"));
    label.resize(label.sizeHint());
    label.show();
    const QRect at = Posto(label, QStringLiteral("3"));
    EXPECT_GE(at.left(), label.fontMetrics().horizontalAdvance(QStringLiteral("W [mm")));
    EXPECT_LT(at.center().y(), label.height() / 2);
}

TEST(EtichettaPedice, SmallTextsFollowTheAlignmentAndTheFont) {
    EtichettaPedice label;
    label.setText(QStringLiteral("N     [kN]"));
    label.ImpostaPedice(QStringLiteral("Sd"));
    label.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label.resize(label.sizeHint());
    label.show();
    const int start = Posto(label, QStringLiteral("Sd")).left();
    label.resize(label.width() + 40, label.height());
    EXPECT_EQ(Posto(label, QStringLiteral("Sd")).left(), start + 40);
    const int small = Posto(label, QStringLiteral("Sd")).height();
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * 2);
    label.setFont(font);
    EXPECT_GT(Posto(label, QStringLiteral("Sd")).height(), small);
}

} // namespace
