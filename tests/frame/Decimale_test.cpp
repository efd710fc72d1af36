#include "frame/Decimale.h"

#include <gtest/gtest.h>
#include <limits>

using namespace sagomi;

namespace {

TEST(Decimale, HoldsTheFewestDigitsOfEachWidth) {
    // 0.1 in 32 bits is 0.100000001490116...; its shortest text is still 0.1
    EXPECT_EQ(TestoPosizionale(CifreMinime(0.1F), "."), "0.1");
    EXPECT_EQ(TestoPosizionale(CifreMinime(double(0.1F)), "."), "0.10000000149011612");
    EXPECT_EQ(TestoPosizionale(CifreMinime(0.1 + 0.2), "."), "0.30000000000000004");
    EXPECT_EQ(TestoPosizionale(CifreMinime(16777216.F), "."), "16777216");
    EXPECT_EQ(TestoPosizionale(CifreMinime(-1200.), ","), "-1200");
    EXPECT_EQ(TestoPosizionale(CifreMinime(-12.5), ","), "-12,5");
    EXPECT_EQ(TestoPosizionale(CifreMinime(0.), "."), "0");
    EXPECT_EQ(TestoPosizionale(CifreMinime(-0.), "."), "0");
    EXPECT_EQ(CifreMinime(0.).punto, 0);
}

TEST(Decimale, WritesPowersOfTen) {
    EXPECT_EQ(TestoEsponente(CifreMinime(0.00001), "."), "1E-05");
    EXPECT_EQ(TestoEsponente(CifreMinime(-1.5e20), ","), "-1,5E+20");
    EXPECT_EQ(TestoEsponente(CifreMinime(1e300), "."), "1E+300");
    EXPECT_EQ(TestoEsponente(CifreMinime(std::numeric_limits<double>::denorm_min()), "."), "5E-324");
    EXPECT_EQ(TestoEsponente(CifreMinime(std::numeric_limits<double>::max()), "."),
              "1.7976931348623157E+308");
    EXPECT_EQ(TestoEsponente(CifreMinime(0.), "."), "0E+00");
}

struct CasoArrotonda {
    const char* nome;
    double valore;
    int nDec;
    const char* testo;
};
void PrintTo(const CasoArrotonda& c, std::ostream* os) { *os << c.nome; }

class ArrotondaTest : public testing::TestWithParam<CasoArrotonda> {};

TEST_P(ArrotondaTest, Decimali) {
    const CasoArrotonda& c = GetParam();
    EXPECT_EQ(TestoPosizionale(ArrotondaDecimali(CifreMinime(c.valore), c.nDec), "."), c.testo);
}

// By hand, on the digits as they are written here.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Decimale, ArrotondaTest, testing::Values(
    CasoArrotonda{"HalfUp",            2.675,   2, "2.68"},
    CasoArrotonda{"HalfUpNegative",   -2.675,   2, "-2.68"},
    CasoArrotonda{"Below",             2.6749,  2, "2.67"},
    CasoArrotonda{"CarryIntoUnits",    9.996,   2, "10"},
    CasoArrotonda{"CarryAll",          999.5,   0, "1000"},
    CasoArrotonda{"HalfToOne",         0.5,     0, "1"},
    CasoArrotonda{"JustBelowHalf",     0.49999, 0, "0"},
    CasoArrotonda{"FarBelow",          0.00049, 2, "0"},
    CasoArrotonda{"NegativeToZero",   -0.004,   2, "0"},
    CasoArrotonda{"FirstDigitRounds",  0.006,   2, "0.01"},
    CasoArrotonda{"NothingToDo",       1.5,     9, "1.5"},
    CasoArrotonda{"TensOfAnInteger",   1250,   -2, "1300"}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(Decimale, RoundsToSignificantDigits) {
    EXPECT_EQ(TestoPosizionale(ArrotondaSignificative(CifreMinime(12.300000000000001), 15), "."), "12.3");
    EXPECT_EQ(TestoPosizionale(ArrotondaSignificative(CifreMinime(123456789.), 7), "."), "123456800");
    EXPECT_EQ(TestoPosizionale(ArrotondaSignificative(CifreMinime(0.00099995), 4), "."), "0.001");
    EXPECT_EQ(TestoPosizionale(ArrotondaSignificative(CifreMinime(7.), 0), "."), "10");
    EXPECT_EQ(TestoPosizionale(ArrotondaSignificative(CifreMinime(0.), 4), "."), "0");
}

TEST(Decimale, SplitsAtTheSeparator) {
    EXPECT_EQ(CifreIntere(CifreMinime(1250.25)), "1250");
    EXPECT_EQ(CifreDecimali(CifreMinime(1250.25)), "25");
    EXPECT_EQ(CifreIntere(CifreMinime(0.25)), "");
    EXPECT_EQ(CifreDecimali(CifreMinime(0.0025)), "0025");
    EXPECT_EQ(CifreDecimali(CifreMinime(12000.)), "");
    EXPECT_EQ(EsponenteConSegno(7, 2), "+07");
    EXPECT_EQ(EsponenteConSegno(-123, 2), "-123");
}

} // namespace
