#include "sections/AreaEfficace.h"

#include <gtest/gtest.h>

#include "frame/GeneraleSagomi.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;

namespace {

/// IPE 500 of EN 10365, N 900 kN.
SezioneDoppioT Ipe500(double fy) {
    SezioneDoppioT s;
    s.fy = fy;
    s.h = 500;
    s.b = 200;
    s.tw = 10.2;
    s.tf = 16;
    s.r1 = 21;
    s.Area = 11552;
    s.iY = 204.3;
    s.iZ = 43.1;
    s.Wely = 1928e3;
    s.Wply = 2194e3;
    s.Welz = 214.2e3;
    s.Wplz = 335.9e3;
    s.NSd = 900e3;
    return s;
}

class AreaEfficaceTest : public testing::Test {
protected:
    void SetUp() override {
        GammaM0 = 1;
        GammaM1 = 1;
    }
    void TearDown() override { ImpostaGamma(); }
};

// d/tw 41.76, epsilon 0.81362: 51.33, lamda_p 51.33 / 56.8 = 0.9037, rho (0.9037 - 0.22) / 0.9037^2 = 0.8372;
// Aeff 11552 - 0.1628 · 426 · 10.2 = 10844.6 mm2 of the catalogue's area, times 355.
TEST_F(AreaEfficaceTest, FirstInitialisationAlreadyRestsOnTheOwnArea) {
    SezioneDoppioT s = Ipe500(355);
    InizializzaConAreaEfficace(s);
    ASSERT_EQ(s.ClasseCompressione, 4);
    EXPECT_NEAR(s.NplRd, 3850e3, 4e3) << "not 4101 of the whole area";
}

TEST_F(AreaEfficaceTest, AreaOfAnotherSteelIsForgotten) {
    SezioneDoppioT s = Ipe500(355);
    InizializzaConAreaEfficace(s);
    s.fy = 275;
    InizializzaConAreaEfficace(s);
    SezioneDoppioT nuova = Ipe500(275);
    InizializzaConAreaEfficace(nuova);
    EXPECT_EQ(s.NplRd, nuova.NplRd);
    s.fy = 235; // d/tw 41.76: class 3, nothing lost
    InizializzaConAreaEfficace(s);
    ASSERT_EQ(s.ClasseCompressione, 3);
    EXPECT_EQ(s.NplRd, double(s.Area) * 235 / GammaM0);
}

} // namespace
