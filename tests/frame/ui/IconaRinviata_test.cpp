#include "frame/ui/IconaRinviata.h"

#include <QImage>
#include <QMenuBar>
#include <QPainter>
#include <QPixmap>
#include <gtest/gtest.h>

#include "frame/ui/StileMinuto.h"

using namespace sagomi;

namespace {

QIcon Rossa() {
    QPixmap red(16, 16);
    red.fill(Qt::red);
    return QIcon(red);
}

TEST(IconaRinviataTest, IsMadeOnceAndWhenLookedAt) {
    int made = 0;
    const QIcon icon = IconaRinviata([&made] { return ++made, Rossa(); });
    const QIcon copy = icon;
    EXPECT_EQ(made, 0);
    EXPECT_EQ(icon.pixmap(16).toImage(), Rossa().pixmap(16).toImage());
    EXPECT_EQ(copy.availableSizes(), QList<QSize>{QSize(16, 16)});
    EXPECT_EQ(copy.actualSize(QSize(40, 40)), QSize(16, 16));
    EXPECT_EQ(made, 1);
}

TEST(IconaRinviataTest, PaintsWhatTheMadeOnePaints) {
    const auto painted = [](const QIcon& icon) {
        QImage picture(24, 20, QImage::Format_ARGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        icon.paint(&painter, picture.rect());
        return picture;
    };
    EXPECT_EQ(painted(IconaRinviata(Rossa)), painted(Rossa()));
}

TEST(IconaRinviataTest, IsNullWhereNoneIsMade) {
    EXPECT_TRUE(IconaRinviata([] { return QIcon(); }).isNull());
}

TEST(IconaRinviataTest, MarkOfAMenuBarIsTheOneOfTheStyleBelow) {
    StileMinuto style;
    const auto mark = QStyle::SP_ToolBarHorizontalExtensionButton;
    const QImage usual = style.baseStyle()->standardIcon(mark).pixmap(24).toImage();
    ASSERT_FALSE(usual.isNull());
    EXPECT_EQ(style.standardIcon(mark, nullptr, nullptr).pixmap(24).toImage(), usual);
}

} // namespace
