#include "frame/LetturaNumero.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

using namespace sagomi;

namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();

struct CasoLettura {
    const char* nome;
    std::string testo;
    double valore;
    std::size_t fine;
};
void PrintTo(const CasoLettura& c, std::ostream* os) { *os << c.nome; }

class LetturaNumeroTest : public testing::TestWithParam<CasoLettura> {};

TEST_P(LetturaNumeroTest, Tabella) {
    const CasoLettura& c = GetParam();
    const NumeroLetto<double> letto = LeggeNumero<double>(c.testo);
    EXPECT_EQ(letto.valore, c.valore);
    EXPECT_EQ(letto.fine, c.fine);
    EXPECT_EQ(letto.troppoGrande, c.valore == infinito || c.valore == -infinito);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Testi, LetturaNumeroTest, testing::Values(
    CasoLettura{"Empty",           "",          0,       0},
    CasoLettura{"Blanks",          "   ",       0,       0},
    CasoLettura{"Letters",         "abc",       0,       0},
    CasoLettura{"Inf",             "inf",       0,       0},
    CasoLettura{"Nan",             "nan",       0,       0},
    CasoLettura{"Hex",             "0x1F",      0,       1},
    CasoLettura{"Integer",         "42",        42,      2},
    CasoLettura{"Blank",           "  42 ",     42,      4},
    CasoLettura{"Plus",            "+1.5",      1.5,     4},
    CasoLettura{"Minus",           " -1.5x",    -1.5,    5},
    CasoLettura{"MinusAlone",      "-",         0,       0},
    CasoLettura{"TwoSigns",        "--1",       0,       0},
    CasoLettura{"PointFirst",      ".5",        0.5,     2},
    CasoLettura{"PointLast",       "5.",        5,       2},
    CasoLettura{"PointAlone",      ".",         0,       0},
    CasoLettura{"PointAndLetter",  ".E5",       0,       0},
    CasoLettura{"SecondPoint",     "1.2.3",     1.2,     3},
    CasoLettura{"Exponent",        "1.5E3",     1500,    5},
    CasoLettura{"ExponentSmall",   "2e-2",      0.02,    4},
    CasoLettura{"ExponentPlus",    "1E+05",     1e5,     5},
    CasoLettura{"ExponentBare",    "7E",        7,       1},
    CasoLettura{"ExponentSign",    "7E+",       7,       1},
    CasoLettura{"Overflow",        "1E999",     infinito, 5},
    CasoLettura{"OverflowNegative", "-1E400",   -infinito, 6},
    CasoLettura{"OverflowLong",    std::string(400, '9'), infinito, 400},
    CasoLettura{"OverflowAgainstExponent", "1" + std::string(400, '0') + "E-5", infinito, 404},
    CasoLettura{"OverflowPlus",    "1E+999",    infinito, 6},
    CasoLettura{"Underflow",       "1E-999",    0,       6},
    CasoLettura{"UnderflowAgainstExponent", "0." + std::string(400, '0') + "1E5", 0, 405},
    CasoLettura{"UnderflowAgainstPlus", "0." + std::string(400, '0') + "1E+5", 0, 406},
    CasoLettura{"UnderflowLong",   "0." + std::string(400, '0') + "1", 0, 403},
    CasoLettura{"ExponentBeyondAll", "1E99999999999999999999", infinito, 22},
    CasoLettura{"ExponentBelowAll",  "1E-99999999999999999999", 0, 23},
    CasoLettura{"ExponentOfAllBits", "461E9223372036854775807", infinito, 23},
    CasoLettura{"ExponentOfAllBitsBelow", "0.00461E-9223372036854775808", 0, 28},
    CasoLettura{"ExponentZerosInFront", "461E0000000000000000000000000000000009223372036854775807", infinito, 56}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(LetturaNumero, SinglesRoundOnce) {
    EXPECT_EQ(LeggeNumero<float>("0.1").valore, 0.1F);
    EXPECT_EQ(LeggeNumero<float>("3.4028235E+38").valore, std::numeric_limits<float>::max());
    EXPECT_TRUE(LeggeNumero<float>("1E39").troppoGrande);
    EXPECT_EQ(LeggeNumero<float>("1E-60").valore, 0.F);
    EXPECT_FALSE(LeggeNumero<float>("1E-60").troppoGrande);
}

TEST(LetturaNumero, EndsWhereItsTextEnds) {
    constexpr std::string_view tutto = "123.45E67";
    EXPECT_EQ(LeggeNumero<double>(tutto.substr(0, 2)).valore, 12);
    EXPECT_EQ(LeggeNumero<double>(tutto.substr(0, 2)).fine, 2U);
    EXPECT_EQ(LeggeNumero<double>(tutto.substr(0, 5)).valore, 123.4);
    EXPECT_EQ(LeggeNumero<double>(tutto.substr(0, 8)).valore, 123.45e6);
    // An exponent of 5, not of 599: tiny.
    const std::string minuscolo = "0." + std::string(400, '0') + "1E599";
    EXPECT_FALSE(
        LeggeNumero<double>(std::string_view(minuscolo).substr(0, minuscolo.size() - 2)).troppoGrande);
}

} // namespace
