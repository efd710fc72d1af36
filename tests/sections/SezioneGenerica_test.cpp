#include "sections/SezioneGenerica.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace sagomi;

namespace {

const std::vector<double> xL{0, 80, 80, 10, 10, 0};
const std::vector<double> yL{0, 0, 10, 10, 100, 100};

TEST(SezioneGenerica, CopiesTheStaticValues) {
    SezioneGenerica s;
    s.CoordinateSezione(xL, yL, 6);
    s.CaratteristicheStaticheSezione();
    s.Wplastici();
    // Two plates, 80x10 and 10x90: by hand as in the polygon case of the same outline.
    EXPECT_NEAR(s.Area, 1700, 1e-9);
    EXPECT_NEAR(s.xG, 21.470588235294116, 1e-9);
    EXPECT_NEAR(s.yG, 31.470588235294116, 1e-9);
    EXPECT_NEAR(s.JotaXG, 1672990.1960784313, 1e-3);
    EXPECT_NEAR(s.JotaYG, 952990.1960784313, 1e-3);
    EXPECT_NEAR(s.WxSuperiore, s.JotaXG / (100 - s.yG), 1e-6);
    EXPECT_NEAR(s.WxInferiore, s.JotaXG / s.yG, 1e-6);
    EXPECT_NEAR(s.WyDestra, s.JotaYG / (80 - s.xG), 1e-6);
    EXPECT_NEAR(s.WySinistra, s.JotaYG / s.xG, 1e-6);
    // Mohr's circle: centre 1312990.196, radius sqrt(360000^2 + 741176.4706^2).
    EXPECT_NEAR(s.JotaIG, 1312990.196 + 823979.709, 0.1);
    EXPECT_NEAR(s.JotaIIG, 1312990.196 - 823979.709, 0.1);
    EXPECT_NEAR(s.Rho1, std::sqrt(s.JotaIG / 1700), 1e-9);
    EXPECT_NEAR(s.Rho2, std::sqrt(s.JotaIIG / 1700), 1e-9);
    EXPECT_EQ(s.Alfa1, s.Poligono->Alfa1);
    // Area is halved at 15 mm up the leg: 850 above in the leg of 10.
    EXPECT_NEAR(s.WplX, 850 * (57.5 - (800 * 5 + 50 * 12.5) / 850), 5);
    EXPECT_EQ(s.WplY, s.Poligono->WplY);
    EXPECT_GT(s.WplY, 0);
}

TEST(SezioneGenerica, AFreshSectionIsZero) {
    SezioneGenerica s;
    s.CaratteristicheStaticheSezione();
    s.Wplastici();
    EXPECT_EQ(s.Area, 0);
    EXPECT_EQ(s.WplX, 0);
    EXPECT_EQ(s.WplY, 0);
    ASSERT_TRUE(s.Poligono);
    EXPECT_EQ(s.Poligono->nVertici(), 0);
}

// Who holds an outline keeps it when the section takes another one.
TEST(SezioneGenerica, AnOutlineThatIsHeldElsewhereStays) {
    SezioneGenerica s;
    s.CoordinateSezione(xL, yL, 6);
    const auto held = s.Poligono;
    const SezioneGenerica copy = s;
    s.CoordinateSezione({0, 5, 5, 0}, {0, 0, 7, 7}, 4);
    EXPECT_EQ(held->nVertici(), 6);
    EXPECT_EQ(copy.Poligono->nVertici(), 6);
    EXPECT_EQ(s.Poligono->nVertici(), 4);
    SezioneGenerica two;
    two.CoordinateSezione(xL, yL, 6);
    const auto alone = two.Poligono; // one other holder
    two.CoordinateSezione({0, 5, 5, 0}, {0, 0, 7, 7}, 4);
    EXPECT_EQ(alone->nVertici(), 6);
}

TEST(SezioneGenerica, PlasticModuliNeedTheStaticValuesFirst) {
    SezioneGenerica s;
    s.CoordinateSezione(xL, yL, 6);
    s.Wplastici();
    EXPECT_EQ(s.WplX, 0);
}

TEST(SezioneGenerica, AnOutlineTakenAwayIsCreatedAnew) {
    SezioneGenerica s;
    s.Poligono.reset();
    s.CoordinateSezione(xL, yL, 6);
    s.CaratteristicheStaticheSezione();
    EXPECT_NEAR(s.Area, 1700, 1e-9);
}

} // namespace
