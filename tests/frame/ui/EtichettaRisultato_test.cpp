#include "frame/ui/EtichettaRisultato.h"

#include <QLocale>
#include <gtest/gtest.h>

using namespace sagomi;

namespace {

TEST(EtichettaRisultato, IsAsWideAsItsFiguresAskWhateverItShows) {
    EtichettaRisultato label;
    label.ImpostaCaratteri(9);
    const int empty = label.sizeHint().width();
    EXPECT_GE(empty, 9 * label.fontMetrics().horizontalAdvance(u'0'));
    label.setText(QStringLiteral("1234.567"));
    EXPECT_EQ(label.sizeHint().width(), empty);
    label.setText(QStringLiteral("Effettivo  1,234,567"));
    EXPECT_GT(label.sizeHint().width(), empty) << "never clipped";
}

TEST(EtichettaRisultato, CanBeCopiedFromAndStaysOutOfTheTabOrder) {
    const EtichettaRisultato label;
    EXPECT_TRUE(label.textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_FALSE(label.focusPolicy() & Qt::TabFocus);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

// 12.5 lacks two of three places, 12 all of them and the separator, which is the locale's.
TEST(EtichettaRisultato, DecimalsLineUpInAColumn) {
    EtichettaRisultato label;
    label.ImpostaDecimali(3);
    const int figure = label.fontMetrics().horizontalAdvance(u'0');
    const QString point = QLocale::system().decimalPoint();
    const auto shown = [&](const char* text) {
        label.setText(QString::fromUtf8(text).replace(u'.', point));
        label.grab();
        return label.indent();
    };
    EXPECT_EQ(shown("12.125"), 0);
    EXPECT_EQ(shown("12.5"), 2 * figure);
    EXPECT_EQ(shown("12"), 3 * figure + label.fontMetrics().horizontalAdvance(point));
    EXPECT_EQ(shown("b"), 0) << "no number";
    EXPECT_EQ(shown("¥"), 0);
    label.ImpostaDecimali(-1);
    EXPECT_EQ(shown("12.5"), 0);
    label.ImpostaCaratteri(4);
    label.ImpostaDecimali(3);
    label.setText(QStringLiteral("1234.5").replace(u'.', point));
    EXPECT_GE(label.sizeHint().width(), label.fontMetrics().horizontalAdvance("1234.500"));
}

} // namespace
