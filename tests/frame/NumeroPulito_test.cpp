#include "frame/NumeroPulito.h"

#include <gtest/gtest.h>

#include "Ambiente.h"
#include "frame/Numeri.h"

using namespace sagomi;
using prove::ConSeparatori;

namespace {

constexpr char16_t spazioStretto = u'\u202F';

struct CasoPulito {
    const char* nome;
    char16_t decimale, migliaia;
    const char* testo;
    bool pulito;
};
void PrintTo(const CasoPulito& c, std::ostream* os) { *os << c.nome; }

class NumeroPulitoTest : public testing::TestWithParam<CasoPulito> {};

TEST_P(NumeroPulitoTest, Tabella) {
    const CasoPulito& c = GetParam();
    const ConSeparatori separatori(c.decimale, c.migliaia);
    EXPECT_EQ(NumeroPulito(c.testo), c.pulito) << c.testo;
}

// By hand: what a reader of that locale takes for one number.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Testi, NumeroPulitoTest, testing::Values(
    CasoPulito{"Empty",            '.', ',', "",            true},
    CasoPulito{"Blank",            '.', ',', "  ",          true},
    CasoPulito{"Integer",          '.', ',', "42",          true},
    CasoPulito{"Fraction",         '.', ',', "0.972",       true},
    CasoPulito{"NoInteger",        '.', ',', ".5",          true},
    CasoPulito{"NoFraction",       '.', ',', "5.",          true},
    CasoPulito{"BlanksAround",     '.', ',', " 7.5 ",       true},
    CasoPulito{"Signs",            '.', ',', "-7.5",        true},
    CasoPulito{"Plus",             '.', ',', "+7",          true},
    CasoPulito{"Exponent",         '.', ',', "1.5E-3",      true},
    CasoPulito{"Grouped",          '.', ',', "1,234,567.8", true},
    CasoPulito{"GroupOfThree",     '.', ',', "123,456",     true},
    CasoPulito{"ItalianGrouped",   ',', '.', "2.500",       true},
    CasoPulito{"ItalianFraction",  ',', '.', "2,5",         true},
    CasoPulito{"BlankGroups",      ',', ' ', "1 234,5",     true},
    CasoPulito{"NarrowGroups",     ',', spazioStretto, "1\u202F234", true},
    CasoPulito{"NoGroupMark",      '.', 0,   "1234.5",      true},
    CasoPulito{"ItalianPoint",     ',', '.', "2.5",         false}, // read as 25
    CasoPulito{"ItalianTwoDigits", ',', '.', "2.50",        false},
    CasoPulito{"ItalianSmall",     ',', '.', "0.125",       false}, // read as 125
    CasoPulito{"ItalianLong",      ',', '.', "1234.567",    false},
    CasoPulito{"FourInAGroup",     '.', ',', "1,2345",      false},
    CasoPulito{"GroupsAfterPoint", '.', ',', "1.234,567",   false},
    CasoPulito{"GroupFirst",       '.', ',', ",123",        false},
    CasoPulito{"GroupLast",        '.', ',', "123,",        false},
    CasoPulito{"TwoPoints",        '.', ',', "1.2.3",       false},
    CasoPulito{"Letters",          '.', ',', "12kN",        false},
    CasoPulito{"LettersAlone",     '.', ',', "abc",         false},
    CasoPulito{"TwoSigns",         '.', ',', "--1",         false},
    CasoPulito{"SignInside",       '.', ',', "1-2",         false},
    CasoPulito{"SignAlone",        '.', ',', "-",           false},
    CasoPulito{"SignThenBlank",    '.', ',', "- 3",         false},
    CasoPulito{"BlankInside",      '.', ',', "1 000",       false},
    CasoPulito{"PointAlone",       '.', ',', ".",           false},
    CasoPulito{"ExponentBare",     '.', ',', "1E",          false}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(NumeroRipulito, UnderstandsWhatWordProcessorsWrite) {
    const ConSeparatori italiano(',', '.');
    EXPECT_EQ(NumeroRipulito("\u221212,5"), "-12,5");
    EXPECT_EQ(NumeroRipulito("\u201312,5"), "-12,5");
    EXPECT_EQ(NumeroRipulito("\u22121,5E\u22123"), "-1,5E-3");
    EXPECT_EQ(NumeroRipulito("1\u00A0234,5\u202F"), "1234,5");
    EXPECT_EQ(NumeroRipulito("1 234"), "1 234") << "a plain blank stays, and is told";
}

TEST(NumeroRipulito, KeepsTheBlankThatGroups) {
    const ConSeparatori francese(',', spazioStretto);
    EXPECT_EQ(NumeroRipulito("1\u202F234"), "1\u202F234");
    EXPECT_EQ(NumeroRipulito("1\u00A0234"), "1\u202F234");
}

} // namespace
