#include "sections/PassiSezione.h"

#include <cmath>

#include <gtest/gtest.h>

#include "Registratore.h"

using namespace sagomi;

namespace {

/// A section of its own, as a channel will be: the steps ask for these names and nothing else.
struct Piccola {
    Singolo fy = 200, h = 100, Wply = 30, Wely = 20, Wplz = 15, Welz = 10;
    std::int16_t ClasseFlessioneY = 0, ClasseFlessioneZ = 0;
    double McyRd = 0, MczRd = 0, WyEff = 0, WzEff = 0, eNy = 7, eNz = 7;
    std::shared_ptr<SezioneGenerica> SezioneWy4, SezioneWz4;
    void CoordinateWy4() {
        SezioneWy4 = std::make_shared<SezioneGenerica>();
        SezioneWy4->WxSuperiore = 8;
        SezioneWy4->yG = 45;
    }
    void CoordinateWz4() {
        SezioneWz4 = std::make_shared<SezioneGenerica>();
        SezioneWz4->WyDestra = 4;
        SezioneWz4->xG = -3;
    }
};

class PassiSezione : public testing::Test {
protected:
    void SetUp() override {
        GammaM0 = 2;
        GammaM1 = 4;
    }
    void TearDown() override { RipristinaGenerale(); }
    prove::Registratore registratore;
};

TEST_F(PassiSezione, MomentsByClass) {
    Piccola s;
    for (const auto& [classe, y, z] : {std::tuple{1, 3000., 1500.}, {2, 3000., 1500.}, {3, 2000., 1000.}}) {
        s.ClasseFlessioneY = s.ClasseFlessioneZ = static_cast<std::int16_t>(classe);
        FlessioneY(s);
        FlessioneZ(s);
        EXPECT_EQ(s.McyRd, y); // 30 or 20 times 200 / 2
        EXPECT_EQ(s.MczRd, z);
        EXPECT_EQ(s.eNy, 0);
        EXPECT_EQ(s.eNz, 0);
    }
    s.ClasseFlessioneY = s.ClasseFlessioneZ = 4;
    FlessioneY(s);
    FlessioneZ(s);
    EXPECT_EQ(s.McyRd, 400); // 8 200 / 4
    EXPECT_EQ(s.MczRd, 200);
    EXPECT_EQ(s.eNy, 5); // 50 - 45
    EXPECT_EQ(s.eNz, 3);
}

TEST_F(PassiSezione, NegligibleAxialForceIsTheSmallerShare) {
    EXPECT_EQ(AssialeTrascurabile(5, 100, 200, 1e9), 25000); // 5 100 200 / 2 / 2
    EXPECT_EQ(AssialeTrascurabile(5, 100, 200, 60000), 15000);
    EXPECT_EQ(ClasseConAssiale(15000, 15000, 3, 1), 3);
    EXPECT_EQ(ClasseConAssiale(14999, 15000, 3, 1), 1);
}

TEST_F(PassiSezione, RatioOfAreas) {
    SezioneGenerica efficace;
    efficace.Area = 750;
    EXPECT_EQ(RapportoAree(3, &efficace, 1000), 1);
    EXPECT_EQ(RapportoAree(4, &efficace, 1000), 0.75);
    EXPECT_EQ(RapportoAree(4, nullptr, 1000), 0);
    EXPECT_FALSE(std::isfinite(RapportoAree(4, &efficace, 0)));
    SegnalaRapportoAree(1);
    EXPECT_TRUE(registratore.testi.empty());
    SegnalaRapportoAree(1.25);
    EXPECT_EQ(registratore.testi.size(), 1U);
}

TEST_F(PassiSezione, ShearResistance) { EXPECT_NEAR(ResistenzaTaglio(1000, 300), 86602.5, 0.1); }

// A channel has one outstand at each junction: half the junctions' share of a double-T.
TEST_F(PassiSezione, TorsionConstantHalvesTheJunctions) {
    const double due = TorsioneLaminata(200, 100, 6, 8, 12, 2);
    const double uno = TorsioneLaminata(200, 100, 6, 8, 12, 1);
    const double piatti = 216.0 * 184 / 3 + 512 * (100 - 5.04) * 2 / 3;
    EXPECT_NEAR(due - piatti, 2 * (uno - piatti), 1e-9);
}

} // namespace
