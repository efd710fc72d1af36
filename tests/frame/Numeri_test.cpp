#include "frame/Numeri.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "Ambiente.h"
#include "Registratore.h"
#include "frame/Errori.h"

using namespace sagomi;
using prove::ConSeparatori;

namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();
constexpr char16_t spazioStretto = u'\u202F'; // what the French locale groups with

// ---- reading

struct CasoLettura {
    const char* nome;
    char16_t decimale, migliaia;
    const char* testo;
    double valore;
};
void PrintTo(const CasoLettura& c, std::ostream* os) { *os << c.nome; }

class ValoreNumericoTest : public testing::TestWithParam<CasoLettura> {};

TEST_P(ValoreNumericoTest, Tabella) {
    const CasoLettura& c = GetParam();
    const ConSeparatori separatori(c.decimale, c.migliaia);
    EXPECT_EQ(ValoreNumerico(c.testo), c.valore);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Testi, ValoreNumericoTest, testing::Values(
    CasoLettura{"Empty",              '.', ',', "",               0},
    CasoLettura{"Letters",            '.', ',', "abc",            0},
    CasoLettura{"LettersBehind",      '.', ',', "12abc",          12},
    CasoLettura{"Grouped",            '.', ',', "1,234,567.8",    1234567.8},
    CasoLettura{"GroupingAnywhere",   '.', ',', ",1,,2,3,.5,",    123.5},
    CasoLettura{"SecondDecimalEnds",  '.', ',', "1.2.3",          1.2},
    CasoLettura{"Blanks",             '.', ',', "  7.5",          7.5},
    CasoLettura{"BlankInside",        '.', ',', "1 000",          1},
    CasoLettura{"Negative",           '.', ',', " -0.25",         -0.25},
    CasoLettura{"SignThenBlank",      '.', ',', "- 3",            -3},
    CasoLettura{"Exponent",           '.', ',', "1.5E3",          1500},
    CasoLettura{"ExponentSmall",      '.', ',', "1.5e-3",         0.0015},
    CasoLettura{"TooLarge",           '.', ',', "1E999",          infinito},
    CasoLettura{"Nan",                '.', ',', "nan",            0},
    CasoLettura{"Infinity",           '.', ',', "infinity",       0},
    CasoLettura{"ItalianGrouped",     ',', '.', "1.234,5",        1234.5},
    CasoLettura{"ItalianFraction",    ',', '.', "0,125",          0.125},
    CasoLettura{"ItalianCommaTwice",  ',', '.', "1,2,3",          1.2},
    CasoLettura{"ItalianPointGoes",   ',', '.', "1.5",            15},
    CasoLettura{"ItalianNoDigit",     ',', '.', ",",              0},
    CasoLettura{"BlankGroups",        ',', ' ', "1 234 567,25",   1234567.25},
    CasoLettura{"BlankPointStays",    ',', ' ', "1.5",            1.5},
    CasoLettura{"NarrowBlankGroups",  ',', spazioStretto, "1\u202F234,5", 1234.5},
    CasoLettura{"NoGrouping",         '.', 0,   "1,234",          1},
    CasoLettura{"ArabicDecimal",      u'\u066B', u'\u066C', "1\u066C234\u066B5", 1234.5}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

// ---- result boxes

struct CasoFormato {
    const char* nome;
    int n;
    NumeroMostrato valore;
    const char* testo;
};
void PrintTo(const CasoFormato& c, std::ostream* os) { *os << c.nome; }
const auto nomeCaso = [](const auto& i) { return std::string(i.param.nome); };

class FormatoCifreTest : public testing::TestWithParam<CasoFormato> {};

TEST_P(FormatoCifreTest, Tabella) {
    const CasoFormato& c = GetParam();
    EXPECT_EQ(FormatoCifre(c.n, c.valore), c.testo);
}

// By hand from the digits of each number: figures count from the first integer digit, below 1 from the point.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Numeri, FormatoCifreTest, testing::Values(
    CasoFormato{"TwoIntegers",       4, 12.3456,     " 12.35"},
    CasoFormato{"FourIntegers",      4, 1234.5,      " 1,235"},
    CasoFormato{"Fraction",          4, 0.123456,    " 0.1235"},
    CasoFormato{"SmallFraction",     4, 0.00123,     " 0.0012"},
    CasoFormato{"Short",             4, 1.5,         " 1.5"},
    CasoFormato{"Zero",              4, 0.0,         " 0"},
    CasoFormato{"NegativeZero",      4, -0.0,        " 0"},
    CasoFormato{"Negative",          4, -12.3456,    "-12.35"},
    CasoFormato{"NegativeInteger",   4, -3,          "-3"},
    CasoFormato{"NegativeRounded",   4, -0.00001234, "-0.0000"},
    CasoFormato{"ShortInteger",      4, 123.0,       " 123"},
    CasoFormato{"LongInteger",       4, 1234567,     " 1,234,567"},
    CasoFormato{"ExactlyFour",       4, 1.234,       " 1.234"},
    CasoFormato{"ThreeBehindPoint",  4, 0.125,       " 0.125"},
    CasoFormato{"FourBehindPoint",   4, 0.1234,      " 0.1234"},
    CasoFormato{"CarryToTen",        4, 9.9996,      " 10.000"},
    CasoFormato{"CarryToThousands",  4, 999.96,      " 1,000.0"},
    CasoFormato{"CarryToOne",        4, 0.99996,     " 1.0000"},
    CasoFormato{"HalfAwayFromZero",  4, 12.345,      " 12.35"},
    CasoFormato{"HalfNegative",      4, -12.345,     "-12.35"},
    CasoFormato{"TwoFigures",        2, 0.625,       " 0.63"},
    CasoFormato{"OneFigure",         1, 2.5,         " 3"},
    CasoFormato{"NoFigure",          0, 0.4,         " 0"},
    CasoFormato{"BinaryNoise",       4, 12.300000000000001, " 12.3"},
    CasoFormato{"SumNoise",          4, 0.1 + 0.2,   " 0.3"},
    CasoFormato{"ProductHalf",       4, 0.29 * 34.5, " 10.01"}, // 10.005, in binary 10.004999999999999
    CasoFormato{"ProductHalfBelow",  4, 0.35 * 28.9, " 10.12"}, // 10.115, in binary 10.114999999999998
    CasoFormato{"OneThird",          4, 1.0 / 3,     " 0.3333"},
    CasoFormato{"Single07",          4, 0.7F,        " 0.7"},
    CasoFormato{"Single07Stored",    4, Singolo(0.7), " 0.7"},
    CasoFormato{"Single07Widened",   4, double(0.7F), " 0.7000"},
    CasoFormato{"SingleHalf",        4, Singolo(12.345), " 12.35"},
    CasoFormato{"SingleLong",        4, Singolo(1.0 / 3), " 0.3333"},
    CasoFormato{"TenThousandth",     4, 0.0001,      " 0.0001"},
    CasoFormato{"PowerOfTenText",    4, 0.00001,     " 0"},        // "1E-05": five characters, no separator
    CasoFormato{"PowerOfTenDigits",  4, 0.000015,    " 0.0000"},   // "1.5E-05": separator in second place
    CasoFormato{"PowerOfTenKept",    6, 0.000015,    " 1.5E-05"},  // five figures counted, fewer than six
    CasoFormato{"Large",             4, 123456789012345.0, " 123,456,789,012,345"},
    CasoFormato{"LastPositional",    17, 999999999999999., " 999999999999999"},
    CasoFormato{"FirstPowerOfTen",   17, 1e15,       " 1E+15"},
    CasoFormato{"PowerOfTenLarge",   4, 1e15,        " 1,000,000,000,000,000"},
    CasoFormato{"Null",              4, std::nullopt, ""},
    CasoFormato{"NullOptional",      4, std::optional<double>(), ""},
    CasoFormato{"FullOptional",      4, std::optional<double>(2.5), " 2.5"},
    CasoFormato{"Infinity",          4, infinito,    ""},
    CasoFormato{"NotANumber",        4, std::nan(""), ""},
    CasoFormato{"SixteenBit",        4, std::int16_t(-12), "-12"}),
    nomeCaso);
// clang-format on

TEST(FormatoCifre, FollowsTheSeparators) {
    {
        const ConSeparatori italiano(',', '.');
        EXPECT_EQ(FormatoCifre(4, 12.3456), " 12,35");
        EXPECT_EQ(FormatoCifre(4, 1234567.8), " 1.234.568");
        EXPECT_EQ(FormatoCifre(4, -0.5), "-0,5");
    }
    const ConSeparatori stretto(',', spazioStretto);
    EXPECT_EQ(FormatoCifre(4, 1234.5), " 1\u202F235");
    EXPECT_EQ(FormatoCifre(6, 1234.5), " 1234,5"); // short numbers stay plain
}

// A separator of several bytes counts as one character.
TEST(FormatoCifre, CountsCharactersNotBytes) {
    const ConSeparatori arabo(u'\u066B', u'\u066C');
    EXPECT_EQ(FormatoCifre(4, 1.25), " 1\u066B25");
    EXPECT_EQ(FormatoCifre(4, 12.3456), " 12\u066B35");
}

class FormatoCifreEspTest : public testing::TestWithParam<CasoFormato> {};

TEST_P(FormatoCifreEspTest, Tabella) {
    const CasoFormato& c = GetParam();
    EXPECT_EQ(FormatoCifreEsp(c.n, c.valore), c.testo);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Numeri, FormatoCifreEspTest, testing::Values(
    CasoFormato{"Short",           4, 0.5,         " 0.5"},
    CasoFormato{"Below1",          4, 0.0012345,   " 1.235E-03"},
    CasoFormato{"Below1Negative",  4, -0.123456,   "-1.235E-01"},
    CasoFormato{"CarryToNextPower", 4, 0.099996,   " 1.000E-01"},
    CasoFormato{"CarryToOne",      4, 0.999996,    " 1.000E+00"},
    CasoFormato{"ProductHalf",     4, 0.29 * 34.5, " 10.01"},
    CasoFormato{"TinyPower",       4, 0.00001,     " 1.000E-05"},
    CasoFormato{"ThreeDigitPower", 4, 1.5e-120,    " 1.500E-120"},
    CasoFormato{"Above1",          4, 12.3456,     " 12.35"},
    CasoFormato{"Integer",         4, 12345,       " 12,345"},
    CasoFormato{"OneToAFigure",    1, 1,           " 1"},
    CasoFormato{"Zero",            4, 0,           " 0"},
    CasoFormato{"Single",          4, Singolo(0.7), " 0.7"},
    CasoFormato{"Null",            4, std::nullopt, ""},
    CasoFormato{"Infinity",        4, -infinito,   ""}),
    nomeCaso);
// clang-format on

class FormatoDecimaliTest : public testing::TestWithParam<CasoFormato> {};

TEST_P(FormatoDecimaliTest, Tabella) {
    const CasoFormato& c = GetParam();
    EXPECT_EQ(FormatoDecimali(c.n, c.valore), c.testo);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Numeri, FormatoDecimaliTest, testing::Values(
    CasoFormato{"Grouped",        2, 1234567.891, " 1,234,567.89"},
    CasoFormato{"Negative",       2, -1234.5,     "-1,234.50"},
    CasoFormato{"NoDecimals",     0, 1234.5,      " 1,235"},
    CasoFormato{"Padded",         3, 2,           " 2.000"},
    CasoFormato{"Zero",           2, 0,           " 0"},
    CasoFormato{"RoundsToZero",   2, 0.004,       " 0"},
    CasoFormato{"NegativeToZero", 2, -0.004,      " 0"},
    CasoFormato{"HalfCent",       2, 0.005,       " 0.01"},
    CasoFormato{"HalfCentNegative", 2, -1.005,    "-1.01"},
    CasoFormato{"ProductHalf",    2, 0.29 * 34.5, " 10.01"},
    CasoFormato{"SingleHalf",     2, Singolo(2.675), " 2.68"},
    CasoFormato{"Null",           2, std::nullopt, ""},
    CasoFormato{"NotANumber",     2, std::nan(""), ""}),
    nomeCaso);
// clang-format on

TEST(FormatoEsponenziale, FillsItsWidth) {
    EXPECT_EQ(FormatoEsponenziale(9, 12345.6), " 1.235E+04");
    EXPECT_EQ(FormatoEsponenziale(9, -0.00012345), "-1.235E-04");
    EXPECT_EQ(FormatoEsponenziale(9, 0.29 * 34.5), " 1.001E+01"); // 1.0005E+01 to 15 figures
    EXPECT_EQ(FormatoEsponenziale(9, 0), " 0.000E+00");
    EXPECT_EQ(FormatoEsponenziale(7, 9.96), " 1.0E+01");
    EXPECT_EQ(FormatoEsponenziale(6, 5), " 5.E+00");
    EXPECT_EQ(FormatoEsponenziale(9, infinito), "");
    EXPECT_EQ(FormatoEsponenziale(9, std::nullopt), "");
    const ConSeparatori italiano(',', '.');
    EXPECT_EQ(FormatoEsponenziale(9, 12345.6), " 1,235E+04");
}

TEST(FormatoEsponenziale, TellsTheLeastWidth) {
    const prove::Registratore r;
    EXPECT_EQ(FormatoEsponenziale(5, 1.5), "");
    EXPECT_EQ(r.testi, std::vector<std::string>{"n. caratteri minimo = 6"});
}

// ---- pictures

struct CasoFigura {
    const char* figura;
    NumeroMostrato valore;
    const char* testo;
};
void PrintTo(const CasoFigura& c, std::ostream* os) { *os << c.figura << " -> " << c.testo; }

class FormatoTest : public testing::TestWithParam<CasoFigura> {};

TEST_P(FormatoTest, Tabella) {
    const CasoFigura& c = GetParam();
    EXPECT_EQ(Formato(c.figura, c.valore), c.testo);
}

// By hand.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Figure, FormatoTest, testing::Values(
    CasoFigura{"0",        2.5,         "3"},
    CasoFigura{"0",        0.4,         "0"},
    CasoFigura{"0",        -0.4,        "0"},
    CasoFigura{"0",        -0.5,        "-1"},
    CasoFigura{"0",        1234567,     "1234567"},
    CasoFigura{"0.0",      15.85,       "15.9"},
    CasoFigura{"0.0",      15.849056,   "15.8"},
    CasoFigura{"0.0",      3,           "3.0"},
    CasoFigura{"0.0",      0.05,        "0.1"},
    CasoFigura{"0.0",      -0.04,       "0.0"},
    CasoFigura{"0.00",     2.675,       "2.68"},
    CasoFigura{"0.00",     1.005,       "1.01"},
    CasoFigura{"0.00",     -1.005,      "-1.01"},
    CasoFigura{"0.00",     Singolo(2.675), "2.68"},
    CasoFigura{"0.00",     double(2.675F), "2.67"},   // 2.6749999523162842 in 64 bits
    CasoFigura{"0.0#",     5,           "5.0"},
    CasoFigura{"0.0#",     5.25,        "5.25"},
    CasoFigura{"0.0#",     5.255,       "5.26"},
    CasoFigura{"0.0#",     5.999,       "6.0"},
    CasoFigura{"0.00#",    0.8136,      "0.814"},
    CasoFigura{"0.00#",    1,           "1.00"},
    CasoFigura{"0.0##",    0.6656,      "0.666"},
    CasoFigura{"0.0##",    0.5,         "0.5"},
    CasoFigura{"0.0###",   0.21,        "0.21"},
    CasoFigura{"0.0###",   1.00005,     "1.0001"},
    CasoFigura{"#,#",      1234,        "1,234"},
    CasoFigura{"#,#",      0,           ""},
    CasoFigura{"#,#.#",    1234567.8,   "1,234,567.8"},
    CasoFigura{"#,#.#",    5,           "5."},
    CasoFigura{"#,#.#",    0.25,        ".3"},
    CasoFigura{"#,##0",    97.5,        "98"},
    CasoFigura{"#,##0",    123,         "123"},
    CasoFigura{"#,##0",    -1000,       "-1,000"},
    CasoFigura{"#,##0.0",  10.25,       "10.3"},
    CasoFigura{"#,##0.00", 28480,       "28,480.00"},
    CasoFigura{"#,##0.00", 0,           "0.00"},
    CasoFigura{"00.0",     3.14,        "03.1"},
    CasoFigura{"#.000E+00", 0.00123,    "1.230E-03"},
    CasoFigura{"#.000E+00", 123456,     "1.235E+05"},
    CasoFigura{"#.000E+00", 0,          ".000E+00"},
    CasoFigura{"#.000E+00", -9.9996,    "-1.000E+01"},
    CasoFigura{" 0.000E+00", 12.5,      " 1.250E+01"},
    CasoFigura{"0.000E+00", 0,          "0.000E+00"},
    CasoFigura{"00.0E+00", 12345,       "12.3E+03"},
    CasoFigura{".00E+00",  12345,       ".12E+05"},
    CasoFigura{"0.0 kN",   1.25,        "1.3 kN"},
    CasoFigura{"L = 0.0",  -1.25,       "-L = 1.3"},
    CasoFigura{"kN",       1.25,        "kN"},
    CasoFigura{"0.0",      std::nullopt, ""},
    CasoFigura{"0.0",      infinito,    ""},
    CasoFigura{"0.0",      std::nan(""), ""}));
// clang-format on

TEST(Formato, SwapsTheSeparators) {
    const ConSeparatori italiano(',', '.');
    EXPECT_EQ(Formato("#,##0.00", 1234567.891), "1.234.567,89");
    EXPECT_EQ(Formato("0.0##", 0.6656), "0,666");
    EXPECT_EQ(Formato("#.000E+00", 0.00123), "1,230E-03");
}

// A second road to the same text: the 15 figures of the C library, then schoolbook addition of half a unit in
// a long decimal, cut behind the last place.
std::string FormatoLento(double valore, int nDec) {
    char scientifico[64];
    std::snprintf(scientifico, sizeof scientifico, "%.14e", std::abs(valore));
    constexpr int unita = 40; // place of the units in the long decimal
    std::string lungo(100, '0');
    const int esponente = std::atoi(std::strchr(scientifico, 'e') + 1);
    for (int i = unita - esponente, j = 0; scientifico[j] != 'e'; ++j)
        if (std::isdigit(static_cast<unsigned char>(scientifico[j])) != 0) // not the separator of the locale
            lungo.at(static_cast<std::size_t>(i++)) = scientifico[j];
    int resto = 5;
    for (int i = unita + nDec + 1; i >= 0 && resto > 0; --i) {
        char& cifra = lungo[static_cast<std::size_t>(i)];
        const int somma = cifra - '0' + resto;
        cifra = static_cast<char>('0' + somma % 10);
        resto = somma / 10;
    }
    std::string testo = lungo.substr(0, unita + 1);
    testo.erase(0, std::min(testo.find_first_not_of('0'), std::size_t{unita}));
    if (nDec > 0)
        testo += "." + lungo.substr(unita + 1, static_cast<std::size_t>(nDec));
    const bool zero = testo.find_first_of("123456789") == std::string::npos;
    return valore < 0 && !zero ? "-" + testo : testo;
}

TEST(Formato, AgreesWithLongArithmetic) {
    std::mt19937_64 caso(20240229);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> potenza(
        -12, 8); // no exact half in figure 16, where the C library rounds to even
    std::uniform_int_distribution<int> decimali(0, 6);
    std::uniform_int_distribution<int> intero(-2'000'000, 2'000'000);
    for (int i = 0; i < 20000; ++i) {
        // every other value has few decimals, so that halves come up
        const double v = i % 2 == 0 ? mantissa(caso) * std::pow(10.0, potenza(caso))
                                    : intero(caso) / std::pow(10.0, i % 7);
        const int n = decimali(caso);
        const std::string figura = n == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(n), '0');
        ASSERT_EQ(Formato(figura, v), FormatoLento(v, n)) << "valore " << v << " figura " << figura;
    }
}

// ---- products of decimals, in whole numbers: hundredths times tenths are thousandths

/// A whole number of hundredths, 1000 to 9999, as "10.12".
std::string Centesimi(int n) {
    const std::string digits = std::to_string(n);
    return digits.substr(0, 2) + "." + digits.substr(2);
}

TEST(Prodotti, RoundByTheirDecimalsHoweverBinaryHoldsThem) {
    int halves = 0;
    for (int i = 1; i < 100; ++i)
        for (int j = 101; j < 1000; ++j) {
            const int thousandths = i * j;
            if (thousandths < 10'000 || thousandths % 10 == 0 || thousandths >= 99'995)
                continue; // four figures or more, two of them before the separator
            const double product = (i / 100.0) * (j / 10.0);
            const int hundredths = (thousandths + 5) / 10; // half away from zero
            const std::string text = " " + Centesimi(hundredths);
            ASSERT_EQ(FormatoCifre(4, product), text) << i << " hundredths of " << j << " tenths";
            ASSERT_EQ(FormatoCifreEsp(4, product), text);
            ASSERT_EQ(FormatoDecimali(2, product), text);
            const std::string digits = std::to_string(hundredths);
            ASSERT_EQ(FormatoEsponenziale(9, product),
                      " " + digits.substr(0, 1) + "." + digits.substr(1) + "E+01");
            halves += thousandths % 10 == 5 ? 1 : 0;
        }
    EXPECT_GT(halves, 4000);
}

// ---- plain text

struct CasoPiano {
    const char* nome;
    NumeroMostrato valore;
    const char* testo;
};
void PrintTo(const CasoPiano& c, std::ostream* os) { *os << c.nome; }

class TestoPianoTest : public testing::TestWithParam<CasoPiano> {};

TEST_P(TestoPianoTest, Tabella) { EXPECT_EQ(TestoPiano(GetParam().valore), GetParam().testo); }

// clang-format off
INSTANTIATE_TEST_SUITE_P(Numeri, TestoPianoTest, testing::Values(
    CasoPiano{"Integer",       235,             "235"},
    CasoPiano{"NoGrouping",    1234567.25,      "1234567.25"},
    CasoPiano{"LeadingZero",   0.5,             "0.5"},
    CasoPiano{"Negative",      -0.5,            "-0.5"},
    CasoPiano{"Zero",          0.0,             "0"},
    CasoPiano{"NegativeZero",  -0.0,            "0"},
    CasoPiano{"Gamma",         Singolo(1.05),   "1.05"},
    CasoPiano{"GammaWidened",  double(1.05F),   "1.04999995231628"},
    CasoPiano{"SevenFigures",  Singolo(123456789), "123456800"},
    CasoPiano{"FifteenFigures", 1.0 / 3,        "0.333333333333333"},
    CasoPiano{"HalfInSixteenth", 2.0 / 3,       "0.666666666666667"},
    CasoPiano{"Noise",         0.1 + 0.2,       "0.3"},
    CasoPiano{"Tiny",          1.5e-7,          "0.00000015"},
    CasoPiano{"Huge",          1.5e17,          "150000000000000000"},
    CasoPiano{"Null",          std::nullopt,    ""},
    CasoPiano{"Infinity",      infinito,        ""}),
    nomeCaso);
// clang-format on

TEST(TestoPiano, IsReadBackInEveryLocale) {
    std::mt19937_64 caso(7);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> potenza(-20, 20);
    for (const auto& [decimale, migliaia] :
         {std::pair{u'.', u','}, std::pair{u',', u'.'}, std::pair{u',', u' '}}) {
        const ConSeparatori separatori(decimale, migliaia);
        for (int i = 0; i < 2000; ++i) {
            const double v = mantissa(caso) * std::pow(10.0, potenza(caso));
            ASSERT_NEAR(ValoreNumerico(TestoPiano(v)), v, std::abs(v) * 5e-15); // half a unit in figure 15
            const Singolo s = v;
            ASSERT_NEAR(ValoreNumerico(TestoPiano(s)), s, std::abs(v) * 6e-7); // figure 7, and the narrowing
        }
    }
}

// ---- conversions

TEST(Interi, RoundHalfToEven) {
    EXPECT_EQ(A16Bit(2.5), 2);
    EXPECT_EQ(A16Bit(3.5), 4);
    EXPECT_EQ(A16Bit(-2.5), -2);
    EXPECT_EQ(A16Bit(-3.5), -4);
    EXPECT_EQ(A16Bit(2.500001), 3);
    EXPECT_EQ(A16Bit(-0.5), 0);
    EXPECT_EQ(A32Bit(70000.49), 70000);
}

TEST(Interi, StopAtTheirRange) {
    EXPECT_EQ(A16Bit(32767.4), 32767);
    EXPECT_EQ(A16Bit(-32768.5), -32768);
    EXPECT_THROW(A16Bit(32767.5), ErroreAritmetico);
    EXPECT_THROW(A16Bit(-32768.6), ErroreAritmetico);
    EXPECT_THROW(A16Bit(std::nan("")), ErroreAritmetico);
    EXPECT_THROW(A16Bit(infinito), ErroreAritmetico);
    EXPECT_EQ(A32Bit(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW(A32Bit(2147483648.0), ErroreAritmetico);
}

TEST(Codice, BecomesUtf8) {
    EXPECT_EQ(Utf8DaCodice('.'), ".");
    EXPECT_EQ(Utf8DaCodice(u'\u00A0'), "\u00A0");
    EXPECT_EQ(Utf8DaCodice(u'\u2019'), "\u2019");
    EXPECT_EQ(Utf8DaCodice(0), "");
}

// 3 · 32.4 in a single is 97.2000046: seven figures of it are 97.2, though its fewest digits, 97.200005,
// would round to 97.20001; 1.5 · 65.3 is 97.9500046.
TEST(TestoPiano, RoundsASingleOnce) {
    EXPECT_EQ(TestoPiano(Singolo(3.0 * Singolo(32.4))), "97.2");
    EXPECT_EQ(TestoPiano(Singolo(1.5 * Singolo(65.3))), "97.95");
    EXPECT_EQ(TestoPiano(1234566.5F), "1234567") << "half away from zero";
    EXPECT_EQ(TestoPiano(0.7F), "0.7");
    EXPECT_EQ(TestoPiano(0.1 + 0.2), "0.3");
    EXPECT_EQ(TestoPiano(0.0), "0");
}

} // namespace
