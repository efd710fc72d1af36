#include "frame/ui/Colori.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

// WCAG 2.1: white on black 21; #767676 is the darkest grey that does not reach 4.54 on white; red 4.00.
TEST(ColoriTest, ContrastIsTheOneOfTheWebGuidelines) {
    EXPECT_DOUBLE_EQ(Contrasto(Qt::white, Qt::black), 21);
    EXPECT_DOUBLE_EQ(Contrasto(Qt::black, Qt::white), 21);
    EXPECT_NEAR(Contrasto(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 5e-3);
    EXPECT_NEAR(Contrasto(QColor(255, 0, 0), Qt::white), 4.00, 5e-3);
}

TEST(ColoriTest, RedIsPlainOnALightGroundAndReadableOnADarkOne) {
    EXPECT_EQ(RossoSu(Qt::white), QColor(255, 0, 0));
    EXPECT_EQ(RossoSu(QColor(0xef, 0xef, 0xef)), QColor(255, 0, 0));
    for (const int grey : {0, 35, 53, 70}) {
        const QColor ground(grey, grey, grey);
        const QColor red = RossoSu(ground);
        EXPECT_GE(Contrasto(red, ground), 4.5) << grey;
        EXPECT_EQ(red.red(), 255);
        EXPECT_LT(red.green(), 200) << "still a red";
    }
}

TEST(ColoriTest, AVeilLiesBetweenItsColours) {
    EXPECT_EQ(Velo(Qt::white, Qt::black, 0), QColor(Qt::white));
    EXPECT_EQ(Velo(Qt::white, Qt::black, 1), QColor(Qt::black));
}

} // namespace
