#include "sections/SezioneDoppioT.h"

#include <cmath>
#include <numbers>
#include <tuple>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "SezioniDiProva.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

class SezioneDoppioTSvergolamento : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
    prove::Registratore registratore;

    static SezioneDoppioT Ipe200Trave(double LLT) {
        SezioneDoppioT s = prove::Ipe200();
        s.k = 1;
        s.Kw = 1;
        s.C1 = 1;
        s.LLT = LLT;
        s.InizializzaSezione();
        return s;
    }
};

// Uniform moment: pi / L root(E Iz G It) root(1 + pi^2 E Iw / (L^2 G It)), the form of the textbooks.
TEST_F(SezioneDoppioTSvergolamento, CriticalMomentUnderUniformBending) {
    for (const double L : {1.0, 1000.0, 4000.0, 12000.0}) {
        SezioneDoppioT s = Ipe200Trave(L);
        const double EIz = 210000 * 142.4e4;
        const double GIt = 80769 * 6.98e4;
        const double EIw = 210000 * 12990e6;
        const double atteso = std::numbers::pi / L * std::sqrt(EIz * GIt) *
                              std::sqrt(1 + std::numbers::pi * std::numbers::pi * EIw / (L * L * GIt));
        EXPECT_NEAR(s.McrFunz(), atteso, 1e-6 * atteso);
        EXPECT_EQ(s.McrFunz(), s.Mcr);
    }
}

TEST_F(SezioneDoppioTSvergolamento, LoadAboveTheShearCentreLowersTheCriticalMoment) {
    SezioneDoppioT s = Ipe200Trave(4000);
    s.c2 = 0.459;
    const double amezzo = s.McrFunz();
    s.za = 100;
    const double sopra = s.McrFunz();
    s.za = -100;
    const double sotto = s.McrFunz();
    EXPECT_LT(sopra, amezzo);
    EXPECT_GT(sotto, amezzo);
    // D = +-45.9: the two roots multiply to T, as does the one without D with itself
    EXPECT_NEAR(sopra * sotto, amezzo * amezzo, 1e-6 * amezzo * amezzo);
}

TEST_F(SezioneDoppioTSvergolamento, ShearCentreOfEqualFlangesIsAtHalfHeight) {
    SezioneDoppioT s = Ipe200Trave(4000);
    EXPECT_EQ(s.zCentroTaglio(), 100);
    s = prove::TrePiatti(352.8, 211.3, 7.1, 11.9);
    s.InizializzaSezione();
    EXPECT_NEAR(s.zCentroTaglio(), double(s.h) / 2, 1e-9);
}

TEST_F(SezioneDoppioTSvergolamento, ShearCentreOfUnequalFlangesDividesByTheRadiusOfGyration) {
    SezioneDoppioT s;
    s.h = 500;
    s.b = 120;
    s.tf = 10; // I1 = 1440000
    s.bAlaInf = 60;
    s.tAlaInf = 10; // I2 = 180000
    s.yG = 300;
    s.iZ = 1000;
    EXPECT_NEAR(s.zCentroTaglio(), (200 * 1440000.0 - 300 * 180000.0) / 1000 + 300, 1e-6);
}

// Turned round, the asymmetry moves Mcr by 2 zj times Euler's force, 210000 N at L = 1000 pi with Jz 10^6.
// Flanges 120 and 110: I = 1728 and 1331 of 3059, 397/3059·490/2 = 31.7963; the wider one compressed, 0.8 of
// it.
TEST_F(SezioneDoppioTSvergolamento, AsymmetryCountsFourFifthsWhereTheUpperFlangeIsTheStiffer) {
    for (const auto& [sopra, sotto, zj] : {std::tuple{120, 110, 25.4370}, std::tuple{110, 120, -31.7963}}) {
        SezioneDoppioT s;
        s.h = 500;
        s.b = sopra;
        s.bAlaInf = sotto;
        s.tf = s.tAlaInf = 10;
        s.Jz = 1e6;
        s.JT = 1e6;
        s.iZ = 30;
        s.k = s.Kw = s.C1 = 1;
        s.LLT = 1000 * std::numbers::pi;
        s.c3 = 1;
        const double con = s.McrFunz();
        s.c3 = -1;
        EXPECT_NEAR((con - s.McrFunz()) / 2 / 210000, zj, 1e-3);
    }
}

TEST_F(SezioneDoppioTSvergolamento, NoLengthLeavesTheCriticalMomentAndTheResistance) {
    GammaM0 = 1.25;
    GammaM1 = 2;
    SezioneDoppioT s = Ipe200Trave(0);
    s.Mcr = 123;
    s.LamdaLT = 9;
    EXPECT_EQ(s.McrFunz(), 123);
    EXPECT_EQ(s.Mcr, 123);
    s.MbRdSub();
    EXPECT_EQ(s.LamdaLT, 0);
    EXPECT_EQ(s.ChiLT, 1);
    EXPECT_NEAR(s.MbRd, s.McyRd * 1.25 / 2, 1e-6 * s.MbRd);
}

TEST_F(SezioneDoppioTSvergolamento, NoReductionUpToFourTenths) {
    GammaM0 = 1;
    SezioneDoppioT s;
    s.LLT = 1;
    s.McyRd = 0.16;
    s.Mcr = 1; // relative slenderness 0.4 in single precision
    EXPECT_EQ(s.ChiLTfunz(), 1);
    EXPECT_EQ(s.LamdaLT.Stretto(), 0.4F);
    s.McyRd = 0.161;
    EXPECT_LT(s.ChiLTfunz(), 0.96);
}

TEST_F(SezioneDoppioTSvergolamento, CurvesOfRolledAndWeldedSections) {
    GammaM0 = 1;
    SezioneDoppioT s;
    s.LLT = 1;
    s.McyRd = 5;
    s.Mcr = 5; // relative slenderness 1: curves a and c of ENV 1993-1-1 table 5.5.2
    EXPECT_NEAR(s.ChiLTfunz(), 0.6656, 5e-5);
    s.Saldata = true;
    EXPECT_NEAR(s.ChiLTfunz(), 0.5399, 5e-5);
}

TEST_F(SezioneDoppioTSvergolamento, RelativeSlendernessTakesGammaM0) {
    GammaM0 = 1.25;
    SezioneDoppioT s;
    s.LLT = 1;
    s.McyRd = 80;
    s.Mcr = 400;
    EXPECT_DOUBLE_EQ(s.LamdaLTfunz(), 0.5);
}

TEST_F(SezioneDoppioTSvergolamento, AMomentThatIsNoNumberGivesNoResistance) {
    SezioneDoppioT s = Ipe200Trave(4000);
    s.Mcr = -1;
    EXPECT_TRUE(std::isnan(s.ChiLTfunz()));
    s.Mcr = 0; // never computed: as slender as can be
    EXPECT_EQ(s.ChiLTfunz(), 0);
}

// A restraint factor of 0 divides by nothing: no moment, no resistance, and never one without reduction.
TEST_F(SezioneDoppioTSvergolamento, RestraintFactorOfZeroGivesNoResistance) {
    SezioneDoppioT s = Ipe200Trave(3000);
    s.Kw = 0;
    s.McrFunz();
    s.MbRdSub();
    EXPECT_TRUE(std::isnan(double(s.Mcr)));
    EXPECT_TRUE(std::isnan(double(s.MbRd)));
    s.Kw = 1;
    s.k = 0;
    s.c2 = 1;
    s.za = -100;
    s.McrFunz();
    s.MbRdSub();
    EXPECT_TRUE(std::isnan(double(s.MbRd)));
}

TEST_F(SezioneDoppioTSvergolamento, FactorsOfTheInteractionAreLimited) {
    GammaM1 = 1;
    SezioneDoppioT s;
    s.fy = 235;
    s.iZ = 1;
    s.L0z = 93.9; // relative slenderness 1
    s.NbzRd = 1000;
    s.NSd = 400;
    s.BetaMLT = 2.5;
    EXPECT_NEAR(s.muLT(), 0.225, 1e-6); // 0.375 - 0.15
    EXPECT_NEAR(s.kLT(), 0.91, 1e-6);
    s.L0z = 0;
    EXPECT_NEAR(s.muLT(), -0.15, 1e-12);
    EXPECT_EQ(s.kLT(), 1);
    s.L0z = 939;
    EXPECT_EQ(s.muLT(), 0.9);
    EXPECT_NEAR(s.kLT(), 0.64, 1e-12);
}

TEST_F(SezioneDoppioTSvergolamento, Interaction) {
    GammaM0 = 1;
    GammaM1 = 1.25;
    SezioneDoppioT s;
    s.fy = 235;
    s.iZ = 1;
    s.NbzRd = 1000;
    s.NSd = 400;
    s.Mysd = 40;
    s.Mzsd = 20;
    s.eNy = 0.025;
    s.eNz = 0.01;
    s.MbRd = 100;
    s.MczRd = 60;
    s.ClassePressoFlessione = 3; // mu 0, kZ 1; kLT 1
    EXPECT_NEAR(s.InterazioneFlessoTorsionale(), 0.4 + 50.0 / 100 + 24.0 / 48, 1e-6);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(SezioneDoppioTSvergolamento, ZeroResistanceIsToldAndTheWorkGoesOn) {
    SezioneDoppioT s = Ipe200Trave(4000);
    s.Mysd = 1e6;
    s.MbRd = 0;
    EXPECT_FALSE(std::isfinite(s.InterazioneFlessoTorsionale()));
    EXPECT_EQ(registratore.testi, (std::vector<std::string>{"MbRd = 0"}));
}

} // namespace
