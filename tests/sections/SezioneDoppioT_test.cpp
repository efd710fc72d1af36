#include "sections/SezioneDoppioT.h"

#include <array>
#include <cmath>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "SezioniDiProva.h"
#include "frame/GeneraleSagomi.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;
using prove::Ipe200;
using prove::TrePiatti;

namespace {

class SezioneDoppioTTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
    prove::Registratore registratore;
};

struct SchermoFinto : MostraVplRd {
    std::vector<bool> chiamate;
    void lblVplRd(bool visibile) override { chiamate.push_back(visibile); }
};

TEST_F(SezioneDoppioTTest, FreshObjectIsAllZero) {
    const SezioneDoppioT s;
    EXPECT_EQ(s.Mysd, 0);
    EXPECT_EQ(s.Mzsd, 0);
    EXPECT_EQ(s.k, 0);
    EXPECT_EQ(s.ClasseCompressione, 0);
    EXPECT_EQ(s.NplRd, 0);
    EXPECT_FALSE(s.Saldata);
    EXPECT_FALSE(s.SaldataAsimm);
    EXPECT_FALSE(s.ErroreDatiDatabase);
    EXPECT_TRUE(s.Designation.empty());
    EXPECT_FALSE(s.SezioneGenericaCorrente);
}

TEST_F(SezioneDoppioTTest, WidthsAreThoseOfTheFiles) {
    static_assert(std::is_same_v<decltype(SezioneDoppioT::fy), Singolo>);
    static_assert(std::is_same_v<decltype(SezioneDoppioT::Riservato1), double>);
    static_assert(std::is_same_v<decltype(SezioneDoppioT::Riservato2), Singolo>);
    static_assert(std::is_same_v<decltype(SezioneDoppioT::Ntrascurabile), double>);
    static_assert(std::is_same_v<decltype(SezioneDoppioT::c), double>);
    static_assert(std::is_same_v<decltype(SezioneDoppioT::c2), Singolo>);
    static_assert(std::is_same_v<decltype(SezioneDoppioT::ClasseWebC), std::int16_t>);
}

// EN 10365 and hand calculation: 2848 235 / 1.05; 5.6 235 159 / 1.05 / 2; Av = 1399.6 mm2.
TEST_F(SezioneDoppioTTest, Ipe200UnderNtc) {
    SezioneDoppioT s = Ipe200();
    s.InizializzaSezione();
    EXPECT_NEAR(s.d, 159, 1e-9);
    EXPECT_NEAR(s.c, 35.2, 1e-6);
    EXPECT_NEAR(s.NplRd / 1000, 637.4, 0.05);
    EXPECT_NEAR(s.Ntrascurabile / 1000, 99.6, 0.05);
    EXPECT_NEAR(s.VplyRd / 1000, 180.9, 0.05);
    EXPECT_NEAR(s.VplzRd / 1000, 219.7, 0.05); // 1700 235 / 1.7321 / 1.05
    EXPECT_NEAR(s.McyRd / 1e6, 49.37, 0.005);  // 220600 235 / 1.05
    EXPECT_NEAR(s.MczRd / 1e6, 9.984, 0.0005); // 44610 235 / 1.05
    EXPECT_NEAR(s.MelyRd / 1e6, 43.49, 0.005); // 194300 235 / 1.05
    EXPECT_NEAR(s.MelzRd / 1e6, 6.372, 0.0005);
    EXPECT_EQ(s.yG, 100);
    EXPECT_NEAR(s.xG, 0, 1e-9);
    EXPECT_EQ(s.ClasseCompressione, 1);
    EXPECT_EQ(s.eNy, 0);
    EXPECT_EQ(s.eNz, 0);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(SezioneDoppioTTest, Ipe200TorsionConstants) {
    SezioneDoppioT s = Ipe200();
    EXPECT_NEAR(s.JotaT() / 1e4, 6.98, 0.005); // EN 10365
    EXPECT_NEAR(s.JotaOmega() / 1e6, 12990, 0.01 * 12990);
    s.InizializzaSezione();
    const double daJz = s.SezioneGenericaCorrente->JotaYG / 4 * (200 - 8.5) * (200 - 8.5);
    EXPECT_NEAR(s.JotaOmega(), daJz, 1e-7 * daJz);
}

TEST_F(SezioneDoppioTTest, PlatesOfRolledWeldedAndUnequalSections) {
    SezioneDoppioT s;
    s.h = 500;
    s.b = 200;
    s.tw = 10;
    s.tf = 20;
    s.r1 = 15;
    s.r = 6;
    s.InizializzaSezione();
    EXPECT_EQ(s.d, 430); // 500 - 40 - 30
    EXPECT_EQ(s.c, 80);  // 100 - 5 - 15
    EXPECT_EQ(s.cAlaInf, 80);
    EXPECT_EQ(s.bAlaInf, 200);
    EXPECT_EQ(s.tAlaInf, 20);

    s.Saldata = true;
    s.InizializzaSezione();
    EXPECT_EQ(s.d, 448); // 500 - 40 - 12
    EXPECT_EQ(s.c, 89);  // 100 - 5 - 6

    s.SaldataAsimm = true;
    s.bAlaInf = 300;
    s.tAlaInf = 30;
    s.InizializzaSezione();
    EXPECT_EQ(s.d, 438); // 500 - 20 - 30 - 12
    EXPECT_EQ(s.c, 89);
    EXPECT_EQ(s.cAlaInf, 139); // 150 - 5 - 6
    EXPECT_EQ(s.bAlaInf, 300);
}

TEST_F(SezioneDoppioTTest, WeldedTorsionConstantIsThatOfThreePlates) {
    SezioneDoppioT s = TrePiatti(500, 200, 10, 20);
    EXPECT_EQ(s.JotaT(), 1220000); // (2 8000 200 + 1000 460) / 3
    s.SaldataAsimm = true;
    s.bAlaInf = 300;
    s.tAlaInf = 30;
    EXPECT_EQ(s.JotaT(), 3383333.25); // (8000 200 + 27000 300 + 1000 450) / 3, to 32 bits
}

TEST_F(SezioneDoppioTTest, UnequalWarpingConstantTakesTheStoredJz) {
    SezioneDoppioT s = TrePiatti(500, 200, 10, 20);
    s.SaldataAsimm = true;
    s.bAlaInf = 200;
    s.tAlaInf = 60; // I2 = 3 I1: p (1 - p) = 3/16
    s.Jz = 1600;
    EXPECT_NEAR(s.JotaOmega(), 300.0 * 420 * 420, 10);
    EXPECT_FALSE(s.SezioneGenericaCorrente);
}

// Altro with different factors: flanges and web by the numbers of the class.
TEST_F(SezioneDoppioTTest, OnlyClass4BendingIsDividedByGammaM1) {
    GammaM0 = 1.25;
    GammaM1 = 2;
    SezioneDoppioT s = TrePiatti(300, 200, 10, 20); // class 1
    s.InizializzaSezione();
    EXPECT_EQ(s.ClasseFlessioneY, 1);
    EXPECT_DOUBLE_EQ(s.McyRd, s.Wply * 235 / 1.25);
    EXPECT_DOUBLE_EQ(s.MczRd, s.Wplz * 235 / 1.25);

    s = TrePiatti(1020, 300, 10, 12); // web 99.6, flange 12.1: class 3
    s.InizializzaSezione();
    EXPECT_EQ(s.ClasseFlessioneY, 3);
    EXPECT_EQ(s.ClasseFlessioneZ, 3);
    EXPECT_DOUBLE_EQ(s.McyRd, s.Wely * 235 / 1.25);
    EXPECT_DOUBLE_EQ(s.MczRd, s.Welz * 235 / 1.25);

    s = TrePiatti(1020, 500, 5, 10); // web 200, flange 24.8
    s.InizializzaSezione();
    EXPECT_EQ(s.ClasseFlessioneY, 4);
    EXPECT_EQ(s.ClasseFlessioneZ, 4);
    EXPECT_DOUBLE_EQ(s.McyRd, s.WyEff * 235 / 2);
    EXPECT_DOUBLE_EQ(s.MczRd, s.WzEff * 235 / 2);
    EXPECT_GT(s.eNy, 0); // the compressed half loses area: the centroid goes down
    EXPECT_GT(s.eNz, 0);
    EXPECT_LT(s.WyEff, s.Wely);
}

TEST_F(SezioneDoppioTTest, ZeroRadiusOfGyrationIsFlaggedAndStopsThere) {
    for (const double L0 : {3000.0, 0.0}) { // x/0 and 0/0
        SezioneDoppioT s = Ipe200();
        s.iY = 0;
        s.L0y = L0;
        s.NbzRd = 1;
        s.VplyRd = 2;
        s.VplzRd = 3;
        s.InizializzaSezione();
        EXPECT_TRUE(s.ErroreDatiDatabase);
        EXPECT_EQ(s.LamdaY(), 0);
        EXPECT_EQ(s.NbzRd, 1);
        EXPECT_EQ(s.VplyRd, 2);
        EXPECT_EQ(s.VplzRd, 3);
        EXPECT_GT(s.NplRd, 0);

        s.iY = 82.6;
        s.InizializzaSezione();
        EXPECT_FALSE(s.ErroreDatiDatabase);
        EXPECT_GT(s.NbzRd, 3);
    }
}

TEST_F(SezioneDoppioTTest, TheFlagIsLookedAtOnceAfterTheFirstAxis) {
    SezioneDoppioT s = Ipe200();
    s.iZ = 0;
    s.InizializzaSezione();
    EXPECT_TRUE(s.ErroreDatiDatabase);
    EXPECT_NEAR(s.VplyRd / 1000, 180.9, 0.05);
    EXPECT_GT(s.NbzRd, 0);
}

TEST_F(SezioneDoppioTTest, ZeroAreaOfClass4IsFlagged) {
    SezioneDoppioT s = TrePiatti(1020, 500, 5, 10);
    s.Area = 0;
    s.InizializzaSezione();
    EXPECT_EQ(s.ClasseCompressione, 4);
    EXPECT_TRUE(s.ErroreDatiDatabase);
    EXPECT_EQ(s.betaA(), 0);
    EXPECT_EQ(s.NbyRd, 0);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(SezioneDoppioTTest, NplRdUsesTheEffectiveAreaThatTheObjectAlreadyHas) {
    GammaM0 = 1;
    SezioneDoppioT s = TrePiatti(1020, 500, 5, 10);
    s.InizializzaSezione();
    EXPECT_DOUBLE_EQ(s.NplRd, s.Area * 235);
    s.InizializzaSezione();
    EXPECT_LT(s.SezioneComp4->Area, 0.7 * s.Area);
    EXPECT_NEAR(s.NplRd, s.SezioneComp4->Area * 235, 1e-6);
}

/// Outline vertices and area, to be held against later.
struct Impronta {
    std::vector<double> x, y;
    double area = 0;
    bool operator==(const Impronta&) const = default;
};

Impronta ImprontaDi(const std::shared_ptr<SezioneGenerica>& s) {
    return s ? Impronta{s->Poligono->CoordX(), s->Poligono->CoordY(), s->Area} : Impronta{};
}

std::array<Impronta, 4> ImprontaDi(const SezioneDoppioT& s) {
    return {ImprontaDi(s.SezioneGenericaCorrente), ImprontaDi(s.SezioneComp4), ImprontaDi(s.SezioneWy4),
            ImprontaDi(s.SezioneWz4)};
}

TEST_F(SezioneDoppioTTest, ACopyComputedAnewLeavesTheOriginalAlone) {
    SezioneDoppioT laminata = Ipe200();
    laminata.InizializzaSezione();
    SezioneDoppioT saldata = TrePiatti(1020, 500, 5, 10); // class 4 in all three ways
    saldata.InizializzaSezione();
    SezioneDoppioT diversa;
    diversa.fy = 355;
    diversa.InizializzaSezioneUtente(nullptr, 1000, 400, 6, 8, 5, 500, 9);
    for (const SezioneDoppioT& originale : {laminata, saldata, diversa}) {
        const auto prima = ImprontaDi(originale);
        SezioneDoppioT copia = originale;
        EXPECT_EQ(ImprontaDi(copia), prima);
        copia.InizializzaSezioneUtente(nullptr, 1200, 600, 6, 9, 4);
        EXPECT_EQ(ImprontaDi(originale), prima);
        EXPECT_NE(ImprontaDi(copia), prima);
        const auto dopo = ImprontaDi(copia);
        SezioneDoppioT rifatta = originale; // and the other way round
        rifatta.InizializzaSezione();
        EXPECT_EQ(ImprontaDi(copia), dopo);
    }
}

TEST_F(SezioneDoppioTTest, AnOutlineThatADrawingHoldsStaysAsItIs) {
    SezioneDoppioT s = Ipe200();
    s.InizializzaSezione();
    const auto tenuto = s.SezioneGenericaCorrente;
    s.h = 300;
    s.InizializzaSezione();
    EXPECT_NEAR(tenuto->yG, 100, 1e-9);
    EXPECT_NEAR(s.SezioneGenericaCorrente->yG, 150, 1e-9);
}

TEST_F(SezioneDoppioTTest, AnAreaThatIsTooSmallIsToldOnceARun) {
    SezioneDoppioT s = TrePiatti(1020, 500, 5, 10);
    s.Area = 1000;
    for (std::size_t run = 1; run <= 3; ++run) {
        s.InizializzaSezione();
        EXPECT_EQ(registratore.testi.size(), run);
    }
    const SezioneDoppioT& mostrata = s;
    EXPECT_GT(mostrata.betaA(), 1);
    EXPECT_GT(mostrata.LamdaSegnatoY() + 1, 0);
    EXPECT_EQ(registratore.testi.size(), 3U); // showing tells nothing
}

TEST_F(SezioneDoppioTTest, ASectionOfEqualFlangesForgetsTheLowerOne) {
    SezioneDoppioT s;
    s.fy = 355;
    s.InizializzaSezioneUtente(nullptr, 600, 200, 10, 20, 5, 700, 10); // lower outstand 43 epsilon
    EXPECT_EQ(s.ClasseAlaInfF, 4);
    EXPECT_EQ(s.ClasseFlessioneZ, 4);
    s.InizializzaSezioneUtente(nullptr, 600, 200, 10, 20, 5);
    EXPECT_EQ(s.ClasseAlaInfF, 0);
    EXPECT_EQ(s.ClasseFlessioneZ, 1);
}

TEST_F(SezioneDoppioTTest, WeldedShearTakesTheHeightBetweenFlangesWhateverTheFillet) {
    GammaM0 = 1;
    SezioneDoppioT s = TrePiatti(300, 200, 10, 20);
    s.InizializzaSezione();
    const double senza = s.VplyRd;
    EXPECT_NEAR(senza, 2600 * 235 / std::sqrt(3.0), 1e-6);
    s.r = 8;
    s.InizializzaSezione();
    EXPECT_EQ(s.VplyRd, senza);
}

TEST_F(SezioneDoppioTTest, ShearMarkShowsAbove69Epsilon) {
    SchermoFinto schermo;
    SezioneDoppioT s = TrePiatti(710, 200, 10, 10); // d/tw = 69
    s.InizializzaSezione(&schermo);
    EXPECT_EQ(schermo.chiamate, (std::vector<bool>{false}));
    schermo.chiamate.clear();
    s.h = 710.5;
    s.InizializzaSezione(&schermo);
    EXPECT_EQ(schermo.chiamate, (std::vector<bool>{false, true}));
    schermo.chiamate.clear();
    s.fy = 200; // epsilon 1.084
    s.InizializzaSezione(&schermo);
    EXPECT_EQ(schermo.chiamate, (std::vector<bool>{false}));
}

TEST_F(SezioneDoppioTTest, StrengthAloneChangesTheClass) {
    SezioneDoppioT s = Ipe200();
    s.InizializzaSezione();
    EXPECT_EQ(s.ClasseCompressione, 1); // web 28.4
    s.fy = 355;
    s.InizializzaSezione();
    EXPECT_EQ(s.ClasseCompressione, 2); // 28.4 / 0.8136 = 34.9
    EXPECT_EQ(s.Limite0WebC, "33");
}

TEST_F(SezioneDoppioTTest, NothingEnteredComputesWithoutAStop) {
    SchermoFinto schermo;
    SezioneDoppioT s;
    s.InizializzaSezione(&schermo);
    EXPECT_TRUE(s.ErroreDatiDatabase);
    s.InizializzaSezione();
    s.Saldata = true;
    s.InizializzaSezione();
    s.SaldataAsimm = true;
    s.InizializzaSezione();
    s.r2 = 3;
    s.Saldata = false;
    s.InizializzaSezione();
    s.fy = -235;
    s.h = 100;
    s.InizializzaSezione();
    EXPECT_FALSE(std::isfinite(s.JotaT()));
    s.JotaOmega();
    s.McrFunz();
    s.MbRdSub();
    double a = 0;
    double b = 0;
    EXPECT_FALSE(std::isfinite(s.InterazioneMNInstab(a, b)));
    EXPECT_FALSE(std::isfinite(s.InterazioneMNResistenza()));
    EXPECT_FALSE(std::isfinite(s.InterazioneFlessoTorsionale()));
}

} // namespace
