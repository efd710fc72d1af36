#include "geometry/LineeGeometria.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "Registratore.h"

using namespace sagomi;

namespace {

constexpr double pi = std::numbers::pi;

struct CasoAngolo {
    const char* nome;
    double dy, dx, gradi;
};
void PrintTo(const CasoAngolo& c, std::ostream* os) { *os << c.nome; }

class AngoloTest : public testing::TestWithParam<CasoAngolo> {};

TEST_P(AngoloTest, Tabella) {
    EXPECT_NEAR(Angolo(GetParam().dy, GetParam().dx), GetParam().gradi * pi / 180, 1e-12);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Quadranti, AngoloTest, testing::Values(
    CasoAngolo{"right",        0,  5,   0},
    CasoAngolo{"first",        2,  2,   45},
    CasoAngolo{"up",           3,  0,   90},
    CasoAngolo{"second",       1,  -1,  135},
    CasoAngolo{"left",         0,  -7,  180},
    CasoAngolo{"third",        -std::numbers::sqrt3, -1, 240},
    CasoAngolo{"down",         -4, 0,   270},
    CasoAngolo{"fourth",       -2, 2,   315},
    CasoAngolo{"none",         0,  0,   90},
    CasoAngolo{"overflow",     1e300, 1e-300, 90},
    CasoAngolo{"overflow_low", -1e300, 1e-300, 270}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(Misure, Distanza) {
    EXPECT_EQ(Distanza(1, 2, 4, 6), 5);
    EXPECT_EQ(Distanza(7, 7, 7, 7), 0);
}

TEST(Misure, AreaConSegno) {
    double A = 0;
    EXPECT_TRUE(AreaConSegno(4, std::vector<double>{0, 3, 3, 0}, std::vector<double>{0, 0, 2, 2}, A));
    EXPECT_EQ(A, 6);
    EXPECT_FALSE(AreaConSegno(4, std::vector<double>{0, 3, 3, 0}, std::vector<double>{2, 2, 0, 0}, A));
    EXPECT_EQ(A, -6);
    EXPECT_TRUE(AreaConSegno(3, std::vector<double>{0, 1, 2}, std::vector<double>{0, 1, 2}, A));
    EXPECT_EQ(A, 0);
    EXPECT_TRUE(AreaConSegno(0, {}, {}, A));
    EXPECT_EQ(A, 0);
}

TEST(Misure, ZeroDimensione) {
    EXPECT_EQ(ZeroDimensione(std::vector<double>{0, 10, 500}, std::vector<double>{-20, 30, 0}, 2, 100), 0.5);
    EXPECT_EQ(ZeroDimensione(std::vector<double>{0, 10, 500}, std::vector<double>{-20, 30, 0}, 3, 100), 5);
    EXPECT_EQ(ZeroDimensione({}, {}, 0, 100), 0);
}

TEST(Misure, NumeroUguale) {
    EXPECT_TRUE(NumeroUguale(1, 1.25, 0.25));
    EXPECT_FALSE(NumeroUguale(1, 1.25, 0.2));
    EXPECT_TRUE(NumeroUguale(-1, -1, 0));
}

TEST(PuntiCoincidenti, BothCoordinatesWithinTheTolerance) {
    EXPECT_TRUE(PuntiCoincidenti({1, 1.05}, {2, 1.95}, {1, 1}, 0.1));
    EXPECT_FALSE(PuntiCoincidenti({1, 1.05}, {2, 1.85}, {1, 1}, 0.1));
    EXPECT_FALSE(PuntiCoincidenti({1, 1.15}, {2, 2}, {1, 1}, 0.1));
    EXPECT_TRUE(PuntiCoincidenti({1, 2}, {3, 6}, {1, 2}, 0.1)); // (1, 3) twice
}

TEST(PuntiCoincidenti, WeightsThatVanishAreComparedThemselves) {
    EXPECT_FALSE(PuntiCoincidenti({1, 1}, {2, 2}, {1, 0}, 0.1));
    EXPECT_TRUE(PuntiCoincidenti({1, 0}, {0, 1}, {0, 0}, 0.1));
}

TEST(PuntiCoincidenti, AZeroToleranceIsReportedAndGoesOn) {
    prove::Registratore r;
    ZeroModulo = 0;
    EXPECT_TRUE(PuntiCoincidenti({1, 1}, {2, 2}, {1, 1}));
    EXPECT_FALSE(PuntiCoincidenti({1, 1.001}, {2, 2}, {1, 1}, 0.0));
    EXPECT_EQ(r.testi,
              (std::vector<std::string>{"zero=0 in PuntiCoincidenti", "zero=0 in PuntiCoincidenti"}));
    ZeroModulo = 0.01;
    EXPECT_TRUE(PuntiCoincidenti({1, 1.001}, {2, 2}, {1, 1}));
    EXPECT_EQ(r.testi.size(), 2U);
    ZeroModulo = 0;
}

TEST(PuntiCoincidenti, PlainPoints) {
    prove::Registratore r;
    ZeroMaxDimen = 0;
    EXPECT_TRUE(PuntiCoincidentiXY(1, 2, 1, 2));
    EXPECT_EQ(r.testi, std::vector<std::string>{"zero=0 in PuntiCoincidentiXY"});
    EXPECT_TRUE(PuntiCoincidentiXY(1, 2, 1.5, 1.5, 0.5));
    EXPECT_FALSE(PuntiCoincidentiXY(1, 2, 1.5, 1.4, 0.5));
    EXPECT_EQ(r.testi.size(), 1U);
}

TEST(Rette, PerDuePunti) {
    double a = 0;
    double b = 0;
    double c = 0;
    ASSERT_TRUE(RettaPerDuePunti({1, 5}, {2, 10}, {1, 1}, a, b, c, 1e-9));
    EXPECT_EQ(a, 8);
    EXPECT_EQ(b, -4);
    EXPECT_EQ(c, 0);
    // Weights: (2, 4)/2 is (1, 2), (10, 20)/2 is (5, 10): the same line.
    ASSERT_TRUE(RettaPerDuePunti({2, 10}, {4, 20}, {2, 2}, a, b, c, 1e-9));
    EXPECT_NEAR(a * 3 + b * 6 + c, 0, 1e-9);
    // Different weights: (2, 4)/2 is (1, 2), (15, 5)/5 is (3, 1); both lie on X + 2Y = 5.
    ASSERT_TRUE(RettaPerDuePunti({2, 15}, {4, 5}, {2, 5}, a, b, c, 1e-9));
    EXPECT_EQ(a, -10);
    EXPECT_EQ(b, -20);
    EXPECT_EQ(c, 50);
    a = 77;
    EXPECT_FALSE(RettaPerDuePunti({1, 1}, {2, 2}, {1, 1}, a, b, c, 1e-9));
    EXPECT_EQ(a, 77);
}

TEST(Rette, Intersezione) {
    double x = 0;
    double y = 0;
    ASSERT_TRUE(IntersezioneRette(1, 1, -10, 1, -1, -2, x, y)); // x + y = 10, x - y = 2
    EXPECT_DOUBLE_EQ(x, 6);
    EXPECT_DOUBLE_EQ(y, 4);
    x = 99;
    EXPECT_FALSE(IntersezioneRette(1, 1, -10, 2, 2, 5, x, y));
    EXPECT_FALSE(IntersezioneRette(0, 0, 1, 2, 2, 5, x, y));
    EXPECT_EQ(x, 99);
}

TEST(Rette, ParallelWhateverTheScaleOfTheCoefficients) {
    double x = 0;
    double y = 0;
    for (const double k : {1e-9, 1.0, 1e9}) {
        EXPECT_FALSE(IntersezioneRette(0, k, -k, 5e-7, 1, 0, x, y)) << k;
        EXPECT_TRUE(IntersezioneRette(0, k, -k, 5e-6, 1, 0, x, y)) << k;
    }
    EXPECT_FALSE(IntersezioneRette(0, 1, 0, 0.1, 1, 0, x, y, 0.2));
}

TEST(Riferimento, DirectAndInverse) {
    const double alfa = 0.7;
    const Trasformazione M = RiferimentoDiretto(3, -4, alfa);
    double x = 3 + 2 * std::cos(alfa);
    double y = -4 + 2 * std::sin(alfa);
    Trasforma(M, x, y);
    EXPECT_NEAR(x, 2, 1e-12);
    EXPECT_NEAR(y, 0, 1e-12);
    Trasforma(RiferimentoInverso(3, -4, alfa), x, y);
    EXPECT_NEAR(x, 3 + 2 * std::cos(alfa), 1e-12);
    EXPECT_NEAR(y, -4 + 2 * std::sin(alfa), 1e-12);
}

TEST(AttraversamentiLivello, EvenAtVertices) {
    const std::vector<double> x{30, 60, 30, 0};
    const std::vector<double> y{0, 50, 100, 50};
    std::vector<double> xI;
    std::vector<std::int16_t> lati;
    AttraversamentiLivello(x, y, 4, 50, xI, lati);
    EXPECT_EQ(xI, (std::vector<double>{60, 0}));
    AttraversamentiLivello(x, y, 4, 0, xI, lati);
    EXPECT_EQ(lati, (std::vector<std::int16_t>{1, 4}));
    AttraversamentiLivello(x, y, 4, 100, xI, lati);
    EXPECT_TRUE(xI.empty());
    AttraversamentiLivello(x, y, 4, 25, xI, lati);
    EXPECT_EQ(xI, (std::vector<double>{45, 15}));
    EXPECT_EQ(lati, (std::vector<std::int16_t>{1, 4}));
}

TEST(TogliePuntiIniziali, TakesPointsOff) {
    std::vector<double> x{1, 2, 3, 4};
    std::vector<double> y{5, 6, 7, 8};
    std::int16_t n = 4;
    TogliePuntiInizialiDaPoligonale(x, y, n, 1);
    EXPECT_EQ(n, 3);
    EXPECT_EQ(x, (std::vector<double>{2, 3, 4}));
    TogliePuntiInizialiDaPoligonale(x, y, n, 9);
    EXPECT_EQ(n, 0);
    EXPECT_TRUE(y.empty());
}

TEST(TogliePuntiIniziali, ACountBelowOneIsReported) {
    prove::Registratore r;
    std::vector<double> x{1, 2};
    std::vector<double> y{5, 6};
    std::int16_t n = 2;
    TogliePuntiInizialiDaPoligonale(x, y, n, 0);
    TogliePuntiInizialiDaPoligonale(x, y, n, -3);
    EXPECT_EQ(r.testi, (std::vector<std::string>{"Errore in TogliePuntiInizialiDaPoligonale: nPunti=0 <1",
                                                 "Errore in TogliePuntiInizialiDaPoligonale: nPunti=-3 <1"}));
    EXPECT_EQ(n, 2);
    EXPECT_EQ(x.size(), 2U);
}

// Homogeneous coordinates: (2, 6, 2) and (3, 9, 3) are the place (1, 3), (2, 6, 1) is not.
TEST(PuntiCoincidenti, EachIsDividedByItsWeight) {
    EXPECT_TRUE(PuntiCoincidenti({2, 3}, {6, 9}, {2, 3}, 1e-9));
    EXPECT_TRUE(PuntiCoincidenti({3, 2}, {9, 6}, {3, 2}, 1e-9));
    EXPECT_FALSE(PuntiCoincidenti({2, 2}, {6, 6}, {1, 2}, 1e-9));
    EXPECT_FALSE(PuntiCoincidenti({2, 3}, {6, 6}, {2, 3}, 1e-9)) << "1 and 1, but 3 and 2";
}

} // namespace
