#include "catalogue/RecordBiff.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <span>

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

using Byte = std::vector<std::uint8_t>;

struct CasoUtf16 {
    const char* nome;
    std::string utf8;
    std::u16string utf16;
};
void PrintTo(const CasoUtf16& c, std::ostream* os) { *os << c.nome; }

class Utf16Test : public testing::TestWithParam<CasoUtf16> {};
TEST_P(Utf16Test, Tabella) { EXPECT_EQ(Utf16DaUtf8(GetParam().utf8), GetParam().utf16); }

// Byte sequences from the definition of UTF-8 (RFC 3629).
// clang-format off
INSTANTIATE_TEST_SUITE_P(Testi, Utf16Test, testing::Values(
    CasoUtf16{"vuoto",            "",                     u""},
    CasoUtf16{"ascii",            "IPE 80",               u"IPE 80"},
    CasoUtf16{"accento",          "\xC3\xA8",             u"\u00E8"},
    CasoUtf16{"euro",             "\xE2\x82\xAC",         u"\u20AC"},
    CasoUtf16{"oltreFFFF",        "\xF0\x9F\x94\xA9",     u"\U0001F529"},
    CasoUtf16{"seguitoSolo",      "a\x80z",               u"a\uFFFDz"},
    CasoUtf16{"seguitoInTesta",   "\x81\x90\x80\x80",     u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    CasoUtf16{"formaLungaDue",    "\xC1\x90\x80\x80",     u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    CasoUtf16{"formaLungaQuattro","\xF0\x8F\xBF\xBF",     u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    CasoUtf16{"oltreF4",          "\xF9\x90\x80\x80",     u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    CasoUtf16{"troncato",         "a\xC3",                u"a\uFFFD"},
    CasoUtf16{"seguitoSbagliato", "\xC3z",                u"\uFFFDz"},
    CasoUtf16{"formaLunga",       "\xC0\xAF",             u"\uFFFD\uFFFD"},
    CasoUtf16{"formaLungaTre",    "\xE0\x80\xAF",         u"\uFFFD\uFFFD\uFFFD"},
    CasoUtf16{"surrogato",        "\xED\xA0\x80",         u"\uFFFD\uFFFD\uFFFD"},
    CasoUtf16{"oltreUnicode",     "\xF4\x90\x80\x80",     u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    CasoUtf16{"testaImpossibile", "\xFF",                 u"\uFFFD"}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(Utf8DaUtf16, BackAndForth) {
    for (const char* s : {"", "IPE 80", "\u00E8\u07FF", "\u0800\u20AC\uFFFD", "a\U0001F529z\U0010FFFF"})
        EXPECT_EQ(Utf8DaUtf16(Utf16DaUtf8(s)), s);
    EXPECT_EQ(Utf8DaUtf16(std::u16string{u'a', char16_t(0xD800), u'b'}), "a\uFFFDb");
    EXPECT_EQ(Utf8DaUtf16(std::u16string{char16_t(0xDC00), char16_t(0xD800)}), "\uFFFD\uFFFD");
}

TEST(FlussoBiff, CellsAsTheirRecordsByteForByte) {
    FlussoBiff celle, record;
    celle.Cella(Biff::Rk, {65535, 255, 17}, 0x12345678U);
    celle.Cella(Biff::Number, {1, 2, 3}, -0.1);
    record.Record(Biff::Rk, Ottetti().U16(65535).U16(255).U16(17).U32(0x12345678));
    record.Record(Biff::Number, Ottetti().U16(1).U16(2).U16(3).F64(-0.1));
    EXPECT_EQ(celle.dati(), record.dati());
    const Byte rk{0x7E, 0x02, 10, 0, 0xFF, 0xFF, 255, 0, 17, 0, 0x78, 0x56, 0x34, 0x12};
    EXPECT_TRUE(std::ranges::equal(std::span(celle.dati()).first(rk.size()), rk));
}

TEST(EntraInUnByte, UpToLatin1) {
    EXPECT_TRUE(EntraInUnByte(u""));
    EXPECT_TRUE(EntraInUnByte(u"perch\u00E9 \u00FF"));
    EXPECT_FALSE(EntraInUnByte(u"\u0100"));
}

struct CasoRk {
    const char* nome;
    double valore;
    std::optional<std::uint32_t> rk;
};
void PrintTo(const CasoRk& c, std::ostream* os) { *os << c.nome; }

class RkTest : public testing::TestWithParam<CasoRk> {};
TEST_P(RkTest, Tabella) { EXPECT_EQ(CodificaRk(GetParam().valore), GetParam().rk); }

// 1234321 and 12343.21 are the worked examples of the published descriptions of the format (0x004B5646 and
// 0x004B5647). The others by hand: integers are shifted by two bits, 2 marks an integer, 1 the hundredfold; a
// real keeps the upper half of its IEEE form (1.5 is 0x3FF8000000000000).
// clang-format off
INSTANTIATE_TEST_SUITE_P(Numeri, RkTest, testing::Values(
    CasoRk{"esempioIntero",    1234321,        0x004B5646U},
    CasoRk{"esempioCentesimi", 12343.21,       0x004B5647U},
    CasoRk{"zero",             0,              2U},
    CasoRk{"uno",              1,              6U},
    CasoRk{"menoUno",          -1,             0xFFFFFFFEU},
    CasoRk{"massimoIntero",    536870911,      0x7FFFFFFEU},
    CasoRk{"minimoIntero",     -536870912,     0x80000002U},
    CasoRk{"oltreIlMassimo",   536870912,      0x41C00000U},
    CasoRk{"unoEMezzo",        1.5,            0x3FF80000U},
    CasoRk{"centesimi",        1.23,           (123U << 2U) | 3U},
    CasoRk{"decimo",           97.6,           (9760U << 2U) | 3U},
    CasoRk{"menoZero",         -0.0,           0x80000000U},
    CasoRk{"millesimi",        3.691,          std::nullopt},
    CasoRk{"terzo",            1.0 / 3,        std::nullopt},
    CasoRk{"infinito",         std::numeric_limits<double>::infinity(),  std::nullopt},
    CasoRk{"nonNumero",        std::numeric_limits<double>::quiet_NaN(), std::nullopt}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

/// The number of an RK record by the words of the format.
double DecodificaRk(std::uint32_t rk) {
    double v = 0;
    if ((rk & 2U) != 0)
        v = static_cast<std::int32_t>(rk) >> 2;
    else
        v = std::bit_cast<double>(static_cast<std::uint64_t>(rk & 0xFFFFFFFCU) << 32U);
    return (rk & 1U) != 0 ? v / 100 : v;
}

TEST(CodificaRk, WhatItTakesComesBackExactly) {
    int presi = 0;
    for (int i = -200000; i <= 200000; ++i)
        for (const double v : {i * 1.0, i / 10.0, i / 100.0, i / 64.0, i * 100000.0})
            if (const auto rk = CodificaRk(v)) {
                ++presi;
                ASSERT_EQ(DecodificaRk(*rk), v) << v;
            }
    EXPECT_GT(presi, 4 * 400000); // integers, tenths and hundredths all fit
}

TEST(Ottetti, LowByteFirst) {
    const Ottetti o = Ottetti().U8(0x1FE).U16(0x1234).U32(0x89ABCDEF).F64(1.5).Testo(u"a\u20AC", 0, 2, false);
    EXPECT_EQ(o.dati(), (Byte{0xFE, 0x34, 0x12, 0xEF, 0xCD, 0xAB, 0x89, 0, 0, 0, 0, 0, 0, 0xF8, 0x3F, 'a', 0,
                              0xAC, 0x20}));
    EXPECT_EQ(Ottetti().Testo(u"abc", 1, 2, true).dati(), (Byte{'b', 'c'}));
}

TEST(FlussoBiff, HeadThenBodyAndPositions) {
    FlussoBiff f;
    EXPECT_EQ(f.Record(Biff::CodePage, Ottetti().U16(0x04B0)), 0U);
    EXPECT_EQ(f.Record(Biff::Eof), 6U);
    f.Corregge(2, 0x01020304);
    EXPECT_EQ(f.dati(), (Byte{0x42, 0, 4, 3, 2, 1, 0x0A, 0, 0, 0}));
    f.AllungaA(12);
    EXPECT_EQ(f.dati().size(), 12U);
    f.AllungaA(3);
    EXPECT_EQ(f.Posizione(), 12U);
}

TEST(FlussoBiff, RefusesWhatARecordCannotHold) {
    Ottetti o;
    for (std::size_t i = 0; i < massimoRecord; ++i)
        o.U8(0);
    FlussoBiff f;
    EXPECT_NO_THROW(f.Record(Biff::Sst, o));
    EXPECT_THROW(f.Record(Biff::Sst, o.U8(0)), std::length_error);
}

// The first and the last character of each length, and those beside the halves of pairs (RFC 3629, chapter
// 3).
TEST(Utf8DaUtf16, FirstAndLastOfEachLength) {
    const std::pair<char32_t, std::string> casi[] = {{0x00, std::string(1, '\0')},
                                                     {0x7F, "\x7F"},
                                                     {0x80, "\xC2\x80"},
                                                     {0x7FF, "\xDF\xBF"},
                                                     {0x800, "\xE0\xA0\x80"},
                                                     {0xFFF, "\xE0\xBF\xBF"},
                                                     {0xD7FF, "\xED\x9F\xBF"},
                                                     {0xE000, "\xEE\x80\x80"},
                                                     {0xFFFF, "\xEF\xBF\xBF"},
                                                     {0x10000, "\xF0\x90\x80\x80"},
                                                     {0x3FFFF, "\xF0\xBF\xBF\xBF"},
                                                     {0x10FFFF, "\xF4\x8F\xBF\xBF"}};
    for (const auto& [c, utf8] : casi) {
        std::u16string utf16(1, static_cast<char16_t>(c));
        if (c > 0xFFFF)
            utf16 = {static_cast<char16_t>(0xD800 + (c - 0x10000) / 0x400),
                     static_cast<char16_t>(0xDC00 + (c - 0x10000) % 0x400)};
        EXPECT_EQ(Utf8DaUtf16(utf16), utf8) << std::hex << std::uint32_t(c);
        EXPECT_EQ(Utf16DaUtf8(utf8), utf16) << std::hex << std::uint32_t(c);
        EXPECT_EQ(Utf16DaUtf8("a" + utf8 + "z"), u"a" + utf16 + u"z");
    }
    const std::u16string coppia{char16_t(0xD800), char16_t(0xDC00)};
    EXPECT_EQ(Utf8DaUtf16(std::u16string_view(coppia).substr(0, 1)), "\uFFFD")
        << "nothing beyond the end is read";
    for (const char16_t mezza : {char16_t(0xD800), char16_t(0xDBFF), char16_t(0xDC00), char16_t(0xDFFF)})
        EXPECT_EQ(Utf8DaUtf16(std::u16string(1, mezza)), "\uFFFD");
}

} // namespace
