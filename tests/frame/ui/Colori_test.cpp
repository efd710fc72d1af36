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

// On white 238 is the last that reaches 4.5: ((238/255 + 0.055)/1.055)^2.4 is 0.855, 1.05/(0.2126 x 0.855 +
// 0.05) is 4.53; of 239 it is 4.49.
TEST(ColoriTest, RedIsPaintedSoDarkThatItCanBeRead) {
    EXPECT_EQ(Leggibile(QColor(255, 0, 0), Qt::white), QColor(238, 0, 0));
    for (const int grey : {0xf0, 0xef, 0xdc}) {
        const QColor ground(grey, grey, grey);
        const QColor red = Leggibile(RossoSu(ground), ground);
        EXPECT_GE(Contrasto(red, ground), 4.5) << grey;
        EXPECT_GT(red.red(), 180) << "still a red";
        EXPECT_EQ(red.green() + red.blue(), 0);
    }
    EXPECT_EQ(Leggibile(Qt::black, Qt::white), QColor(Qt::black));
    const QColor pale = RossoSu(Qt::black);
    EXPECT_EQ(Leggibile(pale, Qt::black), pale) << "chosen for its ground";
}

TEST(ColoriTest, AVeilLiesBetweenItsColours) {
    EXPECT_EQ(Velo(Qt::white, Qt::black, 0), QColor(Qt::white));
    EXPECT_EQ(Velo(Qt::white, Qt::black, 1), QColor(Qt::black));
}

} // namespace
