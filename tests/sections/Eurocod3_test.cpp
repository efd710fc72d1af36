#include "sections/Eurocod3.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "SezioniDiProva.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

class Eurocod3 : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
};

TEST_F(Eurocod3, EpsilonOfTheGradesIsThatOfTheTables) {
    EXPECT_DOUBLE_EQ(Epsilon(235), 1);
    EXPECT_NEAR(Epsilon(275), 0.92, 5e-3); // table 5.3.1 prints 0.92 and 0.81
    EXPECT_NEAR(Epsilon(355), 0.81, 5e-3);
}

TEST_F(Eurocod3, EpsilonOfZeroStrengthIsGuarded) { EXPECT_NEAR(Epsilon(0), 4847.680, 1e-3); } // root of 235e5

TEST_F(Eurocod3, RelativeSlendernessAndItsInverse) {
    EXPECT_NEAR(Lamda1(1), 93.9, 1e-12);
    EXPECT_NEAR(LamdaRelativa(93.9, 235, 1), 1, 1e-12);
    EXPECT_NEAR(LamdaRelativa(93.9, 940, 1), 2, 1e-12); // epsilon 0.5
    EXPECT_NEAR(LamdaRelativa(93.9, 235, 0.25), 0.5, 1e-12);
    EXPECT_NEAR(LamdaDaRelativa(LamdaRelativa(120, 355, 0.8), 355, 0.8), 120, 1e-10);
}

struct CasoChi {
    const char* nome;
    const char* curva;
    double lamda, chi;
};
void PrintTo(const CasoChi& c, std::ostream* os) { *os << c.nome; }

class ChiTest : public testing::TestWithParam<CasoChi> {};

TEST_P(ChiTest, Tabella) {
    EXPECT_NEAR(Chi(AlfaCurva(GetParam().curva), GetParam().lamda), GetParam().chi, 5.1e-5);
}

// ENV 1993-1-1 table 5.5.2; curve a0 from the same formula in the tables of EN 1993-1-1.
// clang-format off
INSTANTIATE_TEST_SUITE_P(CurveEuropee, ChiTest, testing::Values(
    CasoChi{"pianerottolo_a", "a",  0.2, 1.0000},
    CasoChi{"pianerottolo_d", "d",  0.2, 1.0000},
    CasoChi{"sotto",          "c",  0.1, 1.0000},
    CasoChi{"nulla",          "d",  0.0, 1.0000},
    CasoChi{"a0_1",           "a0", 1.0, 0.7253},
    CasoChi{"a_05",           "a",  0.5, 0.9243},
    CasoChi{"a_1",            "a",  1.0, 0.6656},
    CasoChi{"a_2",            "a",  2.0, 0.2229},
    CasoChi{"b_05",           "b",  0.5, 0.8842},
    CasoChi{"b_1",            "b",  1.0, 0.5970},
    CasoChi{"b_2",            "b",  2.0, 0.2095},
    CasoChi{"c_05",           "c",  0.5, 0.8430},
    CasoChi{"c_1",            "c",  1.0, 0.5399},
    CasoChi{"c_2",            "c",  2.0, 0.1962},
    CasoChi{"d_05",           "d",  0.5, 0.7793},
    CasoChi{"d_1",            "d",  1.0, 0.4671},
    CasoChi{"d_2",            "d",  2.0, 0.1766}), [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST_F(Eurocod3, ChiStaysANumberWhereTheSlendernessLeavesNoRoom) {
    EXPECT_NEAR(Fi(0.21, 1), 1.084, 1e-12);
    EXPECT_EQ(Chi(0.34, std::numeric_limits<double>::infinity()), 0);
    EXPECT_EQ(Chi(0.34, 1e200), 0);
    EXPECT_NEAR(Chi(0.34, 1e6) * 1e12, 1, 1e-5); // Euler
    EXPECT_TRUE(std::isnan(Chi(0.34, std::nan(""))));
}

TEST_F(Eurocod3, ChiFyM1TakesGammaM1) {
    GammaM1 = 1.25;
    EXPECT_NEAR(ChiFyM1(93.9, 235, 1, "a"), 0.6656 * 188, 0.01); // 235 / 1.25 = 188
}

TEST_F(Eurocod3, CurveFactors) {
    const char* nomi[] = {"a0", "a", "b", "c", "d"};
    const double alfa[] = {0.13, 0.21, 0.34, 0.49, 0.76};
    const double beta[] = {0.23, 0.23, 0.15, 0.11, 0.08};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(AlfaCurva(nomi[i]), alfa[i]);
        EXPECT_EQ(BetaCurva(nomi[i]), beta[i]);
    }
    EXPECT_THROW(AlfaCurva("e"), std::out_of_range);
    EXPECT_THROW(BetaCurva(""), std::out_of_range);
}

TEST_F(Eurocod3, MuByClassAndAtMostNineTenths) {
    // m = 0.5 (2 1.8 - 4) = -0.2; plastic surplus 0.15
    EXPECT_NEAR(Mu(0.5, 1.8, 100, 115, 1), -0.05, 1e-12);
    EXPECT_NEAR(Mu(0.5, 1.8, 100, 115, 2), -0.05, 1e-12);
    EXPECT_NEAR(Mu(0.5, 1.8, 100, 115, 3), -0.2, 1e-12);
    EXPECT_NEAR(Mu(0.5, 1.8, 100, 115, 4), -0.2, 1e-12);
    EXPECT_EQ(Mu(2, 2.5, 100, 115, 3), 0.9);
    EXPECT_TRUE(std::isnan(Mu(2, 2.5, 0, 0, 1)));
}

TEST_F(Eurocod3, RhoIsOneUpToItsLimit) {
    // with k 4 and fy 235: lamda = (b/t) / 56.8
    EXPECT_EQ(Rho(0.673 * 56.8, 1, 235, 4), 1);
    EXPECT_EQ(Rho(10, 1, 235, 4), 1);
    EXPECT_NEAR(Rho(56.8, 1, 235, 4), 0.78, 1e-12);   // lamda 1: 1 - 0.22
    EXPECT_NEAR(Rho(113.6, 1, 235, 4), 0.445, 1e-12); // lamda 2: 1.78 / 4
    EXPECT_LT(Rho(0.674 * 56.8, 1, 235, 4), 1);
}

TEST_F(Eurocod3, RhoIsZeroWhereNothingHolds) {
    EXPECT_EQ(Rho(100, 1, 235, 0), 0);
    EXPECT_EQ(Rho(100, 0, 235, 4), 0);
    EXPECT_EQ(Rho(0, 0, 235, 4), 1);
}

TEST_F(Eurocod3, Psi2) {
    prove::Registratore registratore;
    EXPECT_NEAR(Psi2(1), 1.1, 1e-12);
    EXPECT_NEAR(Psi2(0), 1.8, 1e-12);
    EXPECT_NEAR(Psi2(-1), 2.5, 1e-12);
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_NEAR(Psi2(2), 0.4, 1e-12);
    EXPECT_NEAR(Psi2(-1.5), 2.85, 1e-12);
    EXPECT_EQ(registratore.testi,
              (std::vector<std::string>{"Valore di psi non ammesso", "Valore di psi non ammesso"}));
}

TEST_F(Eurocod3, FrecciaIniziale) {
    SezioneDoppioT s;
    s.Saldata = true; // curves b and c
    s.fy = 235;
    s.tf = 10;
    s.iY = 100;
    s.iZ = 50;
    s.Area = 1000;
    s.Wely = 2e5;
    s.Welz = 1e5;
    s.L0y = 18780; // relative slenderness 2
    s.L0z = 4695;  // relative slenderness 1
    // yy: k = 2 0.15 2 + 0.85 = 1.45; 1.8 0.34 1.45 200 = 177.48
    EXPECT_NEAR(FrecciaIniziale(s, "yy"), 177.48, 1e-9);
    // zz: k = 2 0.11 + 0.89 = 1.11; 0.8 0.49 1.11 100 = 43.512
    EXPECT_NEAR(FrecciaIniziale(s, "zz"), 43.512, 1e-9);
    // below a relative slenderness of 0.5 the factor k would fall under 1: 0.2 0.49 100 = 9.8
    s.L0z = 1878;
    EXPECT_NEAR(FrecciaIniziale(s, "zz"), 9.8, 1e-6);
    s.L0z = 0;
    EXPECT_EQ(FrecciaIniziale(s, "zz"), 2);
}

} // namespace
