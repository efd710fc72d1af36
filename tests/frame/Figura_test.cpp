#include "frame/Figura.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

TEST(Figura, CountsItsMarks) {
    const Figura f("kN #,##0.00## [x]");
    EXPECT_EQ(f.prefisso, "kN ");
    EXPECT_EQ(f.suffisso, " [x]");
    EXPECT_EQ(f.interi, 4);
    EXPECT_EQ(f.interiMinimi, 1);
    EXPECT_EQ(f.decimali, 4);
    EXPECT_EQ(f.decimaliMinimi, 2);
    EXPECT_EQ(f.cifreEsponente, 0);
    EXPECT_TRUE(f.gruppi);
    EXPECT_TRUE(f.separatore);
    EXPECT_FALSE(f.vuota);
}

TEST(Figura, KnowsPowersOfTen) {
    EXPECT_EQ(Figura("#.000E+00").cifreEsponente, 2);
    EXPECT_EQ(Figura("0E+000").cifreEsponente, 3);
    EXPECT_EQ(Figura("0.0E").suffisso, "E");
    EXPECT_EQ(Figura("0.0E+").suffisso, "E+");
    EXPECT_EQ(Figura(".00").interi, 0);
    EXPECT_TRUE(Figura("...").vuota);
    EXPECT_TRUE(Figura("").vuota);
}

TEST(Figura, DrawsWithTheSeparatorsGiven) {
    const Decimale d = CifreMinime(1234567.891);
    EXPECT_EQ(Disegna(Figura("#,##0.00"), d, ",", "\xE2\x80\xAF"), "1\xE2\x80\xAF"
                                                                   "234\xE2\x80\xAF"
                                                                   "567,89");
    EXPECT_EQ(Disegna(Figura("#,##0.00"), d, ".", ""), "1234567.89");
    EXPECT_EQ(Disegna(Figura("nulla"), d, ".", ","), "nulla");
}

TEST(Figura, BeginsAtASeparatorOnlyBeforeADigitMark) {
    EXPECT_EQ(Figura(".0").prefisso, "");
    EXPECT_EQ(Figura(".0").decimali, 1);
    EXPECT_EQ(Figura(".x0").prefisso, ".x");
    EXPECT_EQ(Figura(".x0").interi, 1);
}

TEST(Figura, TextMayFollowAPowerOfTen) {
    const Figura f("0.0E+00 kN");
    EXPECT_EQ(f.cifreEsponente, 2);
    EXPECT_EQ(f.suffisso, " kN");
}

TEST(Figura, EndsWhereItsTextEnds) {
    constexpr std::string_view tutta = "00.00E+00";
    EXPECT_TRUE(Figura(tutta.substr(2, 1)).vuota) << "a separator alone";
    EXPECT_EQ(Figura(tutta.substr(0, 1)).interi, 1);
    EXPECT_FALSE(Figura(tutta.substr(0, 2)).separatore);
    EXPECT_EQ(Figura(tutta.substr(0, 4)).decimali, 1);
    EXPECT_EQ(Figura(tutta.substr(0, 8)).cifreEsponente, 1);
}

} // namespace
