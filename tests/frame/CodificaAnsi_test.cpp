#include "frame/CodificaAnsi.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

TEST(CodificaAnsi, TurnsItalianTextBothWays) {
    EXPECT_EQ(AnsiDaUtf8("Città è perché"), "Citt\xE0 \xE8 perch\xE9");
    EXPECT_EQ(Utf8DaAnsi("Citt\xE0 \xE8 perch\xE9"), "Città è perché");
    EXPECT_EQ(AnsiDaUtf8(""), "");
}

// The 27 characters of the page that Latin-1 has not, in the order of their bytes (code page tables of the
// Unicode consortium, CP1252.TXT).
TEST(CodificaAnsi, KnowsTheTwentySevenExtras) {
    const std::string utf8 = "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ";
    const std::string ansi = "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"
                             "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F";
    ASSERT_EQ(ansi.size(), 27U);
    EXPECT_EQ(AnsiDaUtf8(utf8), ansi);
    EXPECT_EQ(Utf8DaAnsi(ansi), utf8);
}

TEST(CodificaAnsi, EveryByteComesBack) {
    std::string tutti;
    for (int b = 0; b < 256; ++b)
        tutti += static_cast<char>(b);
    EXPECT_EQ(AnsiDaUtf8(Utf8DaAnsi(tutti)), tutti);
}

TEST(CodificaAnsi, WhatDoesNotExistBecomesAQuestionMark) {
    EXPECT_EQ(AnsiDaUtf8("λ = 1 ≤ ∞"), "? = 1 ? ?");
    EXPECT_EQ(AnsiDaUtf8("\U0001F600!"), "?!");
    EXPECT_EQ(AnsiDaUtf8("\u0080"), "?"); // a control code whose byte is the euro
}

TEST(CodificaAnsi, WhatIsNoUtf8BecomesAQuestionMark) {
    EXPECT_EQ(AnsiDaUtf8("a\xE0z"), "a?z");            // Latin-1 taken for UTF-8
    EXPECT_EQ(AnsiDaUtf8("a\xC3"), "a?");              // cut short
    EXPECT_EQ(AnsiDaUtf8("\xC0\x80"), "??");           // zero in two bytes
    EXPECT_EQ(AnsiDaUtf8("\xE0\x80\x80"), "???");      // zero in three bytes
    EXPECT_EQ(AnsiDaUtf8("\xF5\x80\x80\x80"), "????"); // beyond the last character
    EXPECT_EQ(AnsiDaUtf8("\x80"), "?");
}

TEST(CodificaAnsi, ATextEndsWhereItSaysItDoes) {
    EXPECT_EQ(AnsiDaUtf8(std::string_view("à").substr(0, 1)), "?");
    EXPECT_EQ(AnsiDaUtf8(std::string_view("€").substr(0, 2)), "??");
}

// The first character of each length: U+0080, U+0800, U+10000; of the page only what Latin-1 has.
TEST(CodificaAnsi, EachCharacterIsTakenWhole) {
    EXPECT_EQ(AnsiDaUtf8("°x"), "\xB0x");
    EXPECT_EQ(AnsiDaUtf8("\u0800x"), "?x");
    EXPECT_EQ(AnsiDaUtf8("\U00010000x"), "?x");
}

} // namespace
