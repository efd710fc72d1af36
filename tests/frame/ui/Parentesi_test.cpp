#include "frame/ui/Parentesi.h"

#include <QPixmap>

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

QImage Disegno(bool right) {
    Parentesi bracket;
    bracket.ImpostaDestra(right);
    bracket.resize(8, 60);
    return bracket.grab().toImage();
}

TEST(Parentesi, ClosingOneMirrorsTheOpeningOne) {
    const QImage left = Disegno(false);
    EXPECT_NE(left, Disegno(true));
    const QImage mirrored = Disegno(true).mirrored(true, false);
    int different = 0;
    for (int x = 0; x < left.width(); ++x)
        for (int y = 0; y < left.height(); ++y)
            different += qAbs(qGray(left.pixel(x, y)) - qGray(mirrored.pixel(x, y))) > 24 ? 1 : 0;
    EXPECT_EQ(different, 0);
}

TEST(Parentesi, ReachesOverItsWholeHeight) {
    const QImage left = Disegno(false);
    const QRgb ground = left.pixel(left.width() - 1, left.height() / 2);
    for (const int y : {3, 30, 56}) {
        bool ink = false;
        for (int x = 0; x < left.width(); ++x)
            ink = ink || left.pixel(x, y) != ground;
        EXPECT_TRUE(ink) << y;
    }
}

} // namespace
