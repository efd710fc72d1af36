#include "sections/SezioneSagomoU.h"

#include <cmath>

#include <gtest/gtest.h>

#include "frame/GeneraleSagomi.h"
#include "sections/AreaEfficace.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;

namespace {

/// A channel with the constants of three rectangles that meet at corners, S235.
SezioneSagomoU Canale(double h, double b, double tw, double tf, double r1, double pendenza) {
    SezioneSagomoU s;
    s.fy = 235;
    s.h = h;
    s.b = b;
    s.tw = tw;
    s.tf = tf;
    s.r1 = r1;
    s.pendenza = pendenza;
    s.Area = 2 * b * tf + (h - 2 * tf) * tw;
    s.iY = 0.39 * h;
    s.Iz = 0.3 * b;
    s.Wely = s.Area * h / 3;
    s.Wply = 1.2 * s.Wely;
    s.Welz = s.Area * b / 8;
    s.Wplz = 1.8 * s.Welz;
    return s;
}

struct SchermoFinto : MostraVplRd {
    int cambi = 0;
    bool visibile = true;
    void lblVplRd(bool v) override {
        visibile = v;
        ++cambi;
    }
};

class SezioneSagomoUTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
};

TEST_F(SezioneSagomoUTest, ParallelFlangesHaveOneThickness) {
    const auto s = Canale(200, 75, 8, 11.5, 11.5, 0);
    EXPECT_EQ(s.pf(), 0);
    EXPECT_EQ(s.tf1(), 11.5);
    EXPECT_EQ(s.tf2(), 11.5);
    EXPECT_DOUBLE_EQ(s.dFunz(), 200 - 2 * (11.5 + 11.5));
}

// By hand: tf - u pf with u = b/2, above 300 mm u = (b - tf)/2.
TEST_F(SezioneSagomoUTest, SlopeGoesByTheDepthAlone) {
    for (const double pendenza : {0.5, 8.0}) {
        const auto bassa = Canale(300, 100, 10, 16, 16, pendenza);
        EXPECT_EQ(bassa.pf(), 0.08);
        EXPECT_DOUBLE_EQ(bassa.tf1(), 16 - 50 * 0.08);
        const auto alta = Canale(320, 100, 14, 17.5, 17.5, pendenza);
        EXPECT_EQ(alta.pf(), 0.05);
        EXPECT_DOUBLE_EQ(alta.tf1(), 17.5 - 41.25 * 0.05);
    }
}

TEST_F(SezioneSagomoUTest, OutlineRunsFromTheTipAlongTheWebToTheBack) {
    std::vector<double> x;
    std::vector<double> y;
    std::int16_t n = 0;
    Canale(200, 75, 8, 11.5, 11.5, 0).Coordinate(x, y, n);
    EXPECT_EQ(n, 24);
    EXPECT_EQ(x[0], 75);
    EXPECT_EQ(y[0], 0);
    EXPECT_EQ(y[1], 11.5);
    EXPECT_EQ(x[22], 0);
    EXPECT_EQ(y[22], 200);
    EXPECT_EQ(x[23], 0);
    EXPECT_EQ(y[23], 0);
    Canale(200, 75, 8, 11.5, 11.5, 6).Coordinate(x, y, n, -20);
    EXPECT_EQ(n, 40);
    EXPECT_EQ(x[0], 55);
    EXPECT_EQ(x[39], -20);
}

// Flange: c = 100 - 8 - 10 = 82; tf 82/15 = 5.467 gives a slenderness of 15.
TEST_F(SezioneSagomoUTest, FlangeBetween14And15_85IsOfClass4InCompressionAnd3AboutZ) {
    auto s = Canale(200, 100, 8, 82.0 / 15, 10, 0);
    s.InizializzaSezione();
    EXPECT_NEAR(s.SnellAla(), 15, 1e-6);
    EXPECT_EQ(s.ClasseCompressione, 4);
    EXPECT_EQ(s.ClasseFlessioneY, 4) << "the compressed flange is that of compression";
    EXPECT_EQ(s.ClasseFlessioneZ, 3);
    EXPECT_EQ(s.Limite0AlaC, "14");
    EXPECT_EQ(s.Limite1AlaC, limiteInfinito);
    EXPECT_EQ(s.Limite0AlaF, "10");
    EXPECT_EQ(s.Limite1AlaF, "15.9") << "21 times the root of 0.57";
    EXPECT_EQ(s.Limite0WebF, "0");
    EXPECT_EQ(s.Limite1WebF, "72");
    EXPECT_EQ(s.SnellAlaInf(), 0);
}

TEST_F(SezioneSagomoUTest, EveryLimitBelongsToTheBetterClass) {
    const struct {
        double d;
        std::int16_t compressione, flessione;
    } anime[] = {{33, 1, 1}, {33.01, 2, 1}, {38, 2, 1}, {38.01, 3, 1}, {42, 3, 1},  {42.01, 4, 1},
                 {72, 4, 1}, {72.01, 4, 2}, {83, 4, 2}, {83.01, 4, 3}, {124, 4, 3}, {124.01, 4, 4}};
    for (const auto& a : anime) {
        auto s = Canale(300, 60, 1, 20, 0, 0);
        s.d = a.d;
        s.c = 1;
        EXPECT_EQ(s.ClasseCompressioneFunz(), a.compressione) << a.d;
        EXPECT_EQ(s.ClasseFlessioneYfunz(), a.flessione) << a.d;
    }
    const struct {
        double c;
        std::int16_t compressione, flessione;
    } ali[] = {{9, 1, 1}, {9.01, 2, 2}, {10, 2, 2}, {10.01, 3, 3}, {14, 3, 3}, {14.01, 4, 3}, {15.86, 4, 4}};
    for (const auto& a : ali) {
        auto s = Canale(300, 60, 10, 1, 0, 0);
        s.c = a.c;
        s.d = 1;
        EXPECT_EQ(s.ClasseCompressioneFunz(), a.compressione) << a.c;
        EXPECT_EQ(s.ClasseFlessioneZfunz(), a.flessione) << a.c;
    }
}

TEST_F(SezioneSagomoUTest, AxialForceCountsFromTheNegligibleOneOn) {
    auto s = Canale(300, 100, 5, 16, 16, 0); // web of class 4 in compression: d/tw = 47.2
    s.InizializzaSezione();
    ASSERT_EQ(s.ClasseCompressione, 4);
    ASSERT_EQ(s.ClasseFlessioneY, 1);
    EXPECT_EQ(s.ClassePressoFlessione, 1);
    s.NSd = s.Ntrascurabile;
    s.ClassePressoFlessioneCalcola();
    EXPECT_EQ(s.ClassePressoFlessione, 4);
    s.NSd = std::nextafter(s.NSd.Stretto(), 0.F);
    s.ClassePressoFlessioneCalcola();
    EXPECT_EQ(s.ClassePressoFlessione, 1);
}

TEST_F(SezioneSagomoUTest, CurveIsAlwaysC) {
    for (const char* asse : {"yy", "zz", "vv"})
        EXPECT_EQ(SezioneSagomoU::CurvaInstabilita(asse), "c");
}

TEST_F(SezioneSagomoUTest, MarkOfASlenderWebShowsStrictlyAbove69Epsilon) {
    SchermoFinto schermo;
    auto s = Canale(69 * 4 + 40, 80, 4, 20, 0, 0); // d/tw = 69
    s.InizializzaSezione(&schermo);
    EXPECT_FALSE(schermo.visibile);
    EXPECT_EQ(s.MiaForm, &schermo);
    s.h += 0.01;
    s.InizializzaSezione(&schermo);
    EXPECT_TRUE(schermo.visibile);
    s.InizializzaSezione();
    EXPECT_EQ(s.MiaForm, nullptr);
}

// Av = A - 2 b tf + (tw + r1) tf of each channel: the root counts once.
TEST_F(SezioneSagomoUTest, APairCarriesTwiceTheShear) {
    auto s = Canale(200, 75, 8.5, 11.5, 11.5, 6);
    s.Area = 3220;
    s.InizializzaSezione();
    const double Av = 3220 - 2 * 75 * 11.5 + (8.5 + 11.5) * 11.5;
    EXPECT_NEAR(s.VplzRd, Av * 235 / std::sqrt(3.0) / GammaM0, 1e-6 * s.VplzRd);
    EXPECT_NEAR(s.VplyRd, 2 * 75 * 11.5 * 235 / std::sqrt(3.0) / GammaM0, 1e-6 * s.VplyRd);
    SezioneSagomoU due = s;
    due.Area = 6440;
    due.Doppi = true;
    due.InizializzaSezione();
    EXPECT_DOUBLE_EQ(due.VplzRd, 2 * s.VplzRd);
    EXPECT_DOUBLE_EQ(due.VplyRd, 2 * s.VplyRd);
}

TEST_F(SezioneSagomoUTest, ACopyKeepsItsOutlines) {
    auto s = Canale(200, 100, 8, 82.0 / 15, 10, 0);
    s.InizializzaSezione();
    const auto copia = s;
    const double area = copia.SezioneComp4->Area;
    s.fy = 460;
    InizializzaConAreaEfficace(s);
    EXPECT_EQ(copia.SezioneComp4->Area, area);
    EXPECT_LT(s.SezioneComp4->Area, area);
}

// Class 4 bending is divided by the factor of buckling, the others by that of sections.
TEST_F(SezioneSagomoUTest, Class4BendingIsDividedByGammaM1) {
    GammaM0 = 1;
    GammaM1 = 1.25;
    auto s = Canale(200, 100, 8, 5, 10, 0);
    s.InizializzaSezione();
    ASSERT_EQ(s.ClasseFlessioneY, 4);
    ASSERT_EQ(s.ClasseFlessioneZ, 4);
    EXPECT_DOUBLE_EQ(s.McyRd, s.WyEff * 235 / 1.25);
    EXPECT_DOUBLE_EQ(s.MczRd, s.WzEff * 235 / 1.25);
    EXPECT_GT(s.eNy, 0) << "the upper flange is shorter: the centroid sinks";
    EXPECT_GT(s.eNz, 0) << "the tips are gone: the centroid moves to the web";
    auto z3 = Canale(200, 100, 8, 82.0 / 15, 10, 0);
    z3.InizializzaSezione();
    EXPECT_DOUBLE_EQ(z3.MczRd, z3.Welz * 235);
    EXPECT_EQ(z3.eNz, 0);
}

TEST_F(SezioneSagomoUTest, DataThatDoNotDivideGiveNoNumber) {
    SezioneSagomoU vuota;
    vuota.fy = 235;
    vuota.InizializzaSezione();
    EXPECT_TRUE(std::isnan(vuota.NbyRd));
    EXPECT_TRUE(std::isnan(vuota.JotaOmega()));
    auto s = Canale(200, 75, 8.5, 11.5, 11.5, 6);
    s.L0y = 3000;
    s.iY = 0;
    s.InizializzaSezione();
    EXPECT_TRUE(std::isnan(s.LamdaY()));
    EXPECT_TRUE(std::isnan(s.NbyRd));
    EXPECT_FALSE(std::isnan(s.NbzRd));
}

} // namespace
