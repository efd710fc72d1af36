#include "sections/SezioneSagomoL.h"

#include <cmath>

#include <gtest/gtest.h>

#include "frame/GeneraleSagomi.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;

namespace {

SezioneSagomoL Angolare(double h, double b, double t) {
    SezioneSagomoL s;
    s.fy = 235;
    s.h = h;
    s.b = b;
    s.t = t;
    s.r1 = t;
    s.r2 = t / 2;
    s.Area = (h + b - t) * t;
    s.iY = 0.3 * h;
    s.Iz = 0.3 * b;
    s.iV = 0.19 * b;
    return s;
}

class SezioneSagomoLTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
};

struct CasoClasse {
    double h, b, t;
    int classe;
    const char* larghezza;
    const char* da;
    const char* a;
};

// Slendernesses by hand: epsilon is 1.
TEST_F(SezioneSagomoLTest, ClassGoesByTheLongerLegThenByTheMean) {
    const std::string infinito(limiteInfinito);
    const CasoClasse casi[] = {{90, 90, 10, 1, "h", "0", "9"},
                               {100, 100, 10, 2, "h", "9", "10"},
                               {115, 115, 10, 3, "h", "10", "11.5"},
                               {116, 116, 10, 4, "h", "11.5", infinito.c_str()},
                               {100, 60, 10, 2, "h", "9", "10"},
                               {120, 100, 10, 3, "(b+h)/2", "", ""},
                               {150, 80, 10, 3, "(b+h)/2", "", ""},
                               {160, 60, 10, 4, "(b+h)/2", "", infinito.c_str()},
                               {130, 110, 10, 4, "(b+h)/2", "", infinito.c_str()}};
    for (const CasoClasse& c : casi) {
        auto s = Angolare(c.h, c.b, c.t);
        EXPECT_EQ(s.ClasseCompressioneFunz(), c.classe) << c.h << 'x' << c.b;
        EXPECT_EQ(s.Classe4LarghezzaGovernante, c.larghezza);
        EXPECT_EQ(s.Limite0Ala, c.da);
        EXPECT_EQ(s.Limite1Ala, c.a);
    }
}

TEST_F(SezioneSagomoLTest, LimitsOfUnequalLegsStayAsTheyWere) {
    auto s = Angolare(100, 100, 10);
    s.ClasseCompressioneFunz();
    s.h = 120;
    EXPECT_EQ(s.ClasseCompressioneFunz(), 3);
    EXPECT_EQ(s.Limite0Ala, "9");
    EXPECT_EQ(s.Limite1Ala, "10");
    s.h = 160;
    s.b = 60;
    EXPECT_EQ(s.ClasseCompressioneFunz(), 4);
    EXPECT_EQ(s.Limite0Ala, "9");
    EXPECT_EQ(s.Limite1Ala, limiteInfinito);
}

TEST_F(SezioneSagomoLTest, OutlineHasTheCornerOfTheLegsAtTheOrigin) {
    std::vector<double> x;
    std::vector<double> y;
    std::int16_t n = 0;
    Angolare(150, 100, 10).Coordinate(x, y, n);
    EXPECT_EQ(n, 30);
    EXPECT_EQ(x[0], 100);
    EXPECT_EQ(y[0], 0);
    EXPECT_EQ(x[28], 0);
    EXPECT_EQ(y[28], 150);
    EXPECT_EQ(x[29], 0);
    EXPECT_EQ(y[29], 0);
}

// Two rectangles, each leg cut to rho of its whole width: lamda = b/t / (28.4 sqrt 0.43).
TEST_F(SezioneSagomoLTest, EachLegOfClass4IsReducedOnItsWholeLength) {
    auto s = Angolare(200, 160, 10);
    s.r1 = s.r2 = 0;
    s.InizializzaSezione();
    ASSERT_EQ(s.ClasseCompressione, 4);
    const auto utile = [](double lato) {
        const double lamda = lato / 10 / (28.4 * std::sqrt(0.43));
        return (lamda - 0.22) / (lamda * lamda) * lato;
    };
    const double Aeff = 10 * (utile(200) + utile(160) - 10);
    EXPECT_NEAR(s.SezioneComp4->Area, Aeff, 1e-6 * Aeff);
    EXPECT_NEAR(s.betaA(), Aeff / 3500, 1e-7);
    s.Doppi = true;
    s.Area = 7000;
    s.InizializzaSezione();
    EXPECT_NEAR(s.betaA(), Aeff / 3500, 1e-7) << "the effective area of a pair is that of two angles";
}

// ENV 1993-1-1 5.5.1 by hand, curve b, alfa 0.34.
TEST_F(SezioneSagomoLTest, BucklesAboutThreeAxesByCurveB) {
    GammaM1 = 1;
    auto s = Angolare(100, 100, 10);
    s.L0y = 3000;
    s.L0z = 1500;
    s.L0v = 0;
    s.InizializzaSezione();
    const double lamda = 100 / 93.9;
    const double fi = 0.5 * (1 + 0.34 * (lamda - 0.2) + lamda * lamda);
    const double chi = 1 / (fi + std::sqrt(fi * fi - lamda * lamda));
    EXPECT_NEAR(s.NbyRd, chi * s.Area * 235, 1e-5 * s.NbyRd);
    EXPECT_GT(s.NbzRd, s.NbyRd);
    EXPECT_DOUBLE_EQ(s.NbvRd, s.Area * 235) << "without a length nothing is taken off";
    for (const char* asse : {"yy", "zz", "vv"})
        EXPECT_EQ(SezioneSagomoL::CurvaInstabilita(asse), "b");
}

TEST_F(SezioneSagomoLTest, ACopyComputedAnewLeavesTheOriginalAlone) {
    auto s = Angolare(160, 160, 10); // class 4: both outlines
    s.InizializzaSezione();
    ASSERT_TRUE(s.SezioneComp4);
    const auto intera = s.SezioneGenericaCorrente->Poligono->CoordX();
    const auto efficace = s.SezioneComp4->Poligono->CoordY();
    const double area = s.SezioneComp4->Area;
    const double NbyRd = s.NbyRd;
    SezioneSagomoL copia = s;
    copia.h = 200;
    copia.b = 180;
    copia.fy = 355;
    copia.InizializzaSezione();
    EXPECT_EQ(s.SezioneGenericaCorrente->Poligono->CoordX(), intera);
    EXPECT_EQ(s.SezioneComp4->Poligono->CoordY(), efficace);
    EXPECT_EQ(s.SezioneComp4->Area, area);
    EXPECT_EQ(s.NbyRd, NbyRd);
    EXPECT_NE(copia.SezioneGenericaCorrente->Poligono->CoordX(), intera);
    const double areaCopia = copia.SezioneComp4->Area;
    s.fy = 460; // and the other way round
    s.InizializzaSezione();
    EXPECT_EQ(copia.SezioneComp4->Area, areaCopia);
}

TEST_F(SezioneSagomoLTest, DataThatDoNotDivideGiveNoNumber) {
    auto s = Angolare(100, 100, 10);
    s.iV = 0;
    s.L0v = 1000;
    s.InizializzaSezione();
    EXPECT_TRUE(std::isnan(s.NbvRd));
    EXPECT_FALSE(std::isnan(s.NbyRd));
    SezioneSagomoL vuota;
    vuota.fy = 235;
    vuota.InizializzaSezione();
    EXPECT_EQ(vuota.ClasseCompressione, 4) << "a slenderness that is no number passes all limits";
    EXPECT_TRUE(std::isnan(vuota.NbyRd));
}

} // namespace
