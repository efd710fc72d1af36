#include "catalogue/LetturaBiff.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

TEST(CursoreBiff, OneRecordBehindTheOtherUpToTheFilling) {
    FlussoBiff f;
    f.Record(Biff::CodePage, Ottetti().U16(0x04B0));
    f.Record(Biff::Number, Ottetti().U16(1).U16(2).U16(15).F64(3.691));
    f.Record(Biff::Eof);
    f.AllungaA(100);
    CursoreBiff c(f.dati());
    ASSERT_TRUE(c.Avanza());
    EXPECT_TRUE(c.E(Biff::CodePage));
    ASSERT_TRUE(c.Avanza());
    EXPECT_EQ(c.Lunghezza(), 14U);
    EXPECT_EQ(c.U16(2), 2U);
    EXPECT_EQ(c.U64(6), 0x400D872B020C49BAU); // 3.691
    ASSERT_TRUE(c.Avanza());
    EXPECT_TRUE(c.E(Biff::Eof));
    EXPECT_FALSE(c.Avanza());
}

TEST(CursoreBiff, BeginsWhereItIsTold) {
    FlussoBiff f;
    f.Record(Biff::CodePage, Ottetti().U16(0x04B0));
    f.Record(Biff::Eof);
    CursoreBiff c(f.dati(), 6);
    ASSERT_TRUE(c.Avanza());
    EXPECT_TRUE(c.E(Biff::Eof));
    EXPECT_FALSE(CursoreBiff(f.dati(), 10).Avanza());
    EXPECT_FALSE(CursoreBiff(f.dati(), 0xFFFFFFFFU).Avanza());
    EXPECT_FALSE(CursoreBiff(f.dati(), 0xFFFFFFFFU).AvanzaSeContinua());
}

TEST(CursoreBiff, ContinuationsAreTakenWhenAskedFor) {
    FlussoBiff f;
    f.Record(Biff::Sst, Ottetti().U32(7));
    f.Record(Biff::Continue, Ottetti().U8(1));
    f.Record(Biff::ExtSst);
    CursoreBiff c(f.dati());
    ASSERT_TRUE(c.Avanza());
    EXPECT_TRUE(c.AvanzaSeContinua());
    EXPECT_EQ(c.Lunghezza(), 1U);
    EXPECT_FALSE(c.AvanzaSeContinua());
    ASSERT_TRUE(c.Avanza());
    EXPECT_TRUE(c.E(Biff::ExtSst));
}

TEST(CursoreBiff, LengthsMustLieInTheStreamAndNumbersInTheRecord) {
    FlussoBiff f;
    f.Record(Biff::CodePage, Ottetti().U16(0x04B0));
    f.Record(Biff::Eof);
    auto corto = f.dati();
    corto[8] = 1;
    CursoreBiff c(corto);
    ASSERT_TRUE(c.Avanza());
    EXPECT_EQ(c.U16(0), 0x04B0U);
    EXPECT_THROW(static_cast<void>(c.U16(1)), DannoBiff);
    EXPECT_THROW(static_cast<void>(c.U8(2)), DannoBiff);
    EXPECT_THROW(static_cast<void>(c.U32(0xFFFFFFFFU)), DannoBiff);
    EXPECT_THROW(static_cast<void>(c.U64(0)), DannoBiff);
    EXPECT_THROW(c.Avanza(), DannoBiff);
    corto.resize(8); // half a head: nothing more to read
    CursoreBiff meta(corto);
    EXPECT_TRUE(meta.Avanza());
    EXPECT_FALSE(meta.Avanza());
}

/// A string in two records: a, b narrow, then the euro and z wide, then four bytes.
std::vector<std::uint8_t> StringaInDueParti() {
    FlussoBiff f;
    f.Record(Biff::Sst, Ottetti().U8(9).U8('a').U8('b'));
    f.Record(Biff::Continue, Ottetti().U8(1).U16(0x20AC).U16('z').U32(0x04030201));
    return f.dati();
}

std::string Letti(std::size_t da, std::size_t n, unsigned opzioni) {
    const auto flusso = StringaInDueParti();
    CursoreBiff c(flusso);
    c.Avanza();
    std::string testo;
    LettoreStringhe(c, da).Caratteri(n, opzioni, testo);
    return testo;
}

TEST(LettoreStringhe, CharactersGoOnInTheNextRecordInAnotherWidth) {
    const auto flusso = StringaInDueParti();
    CursoreBiff c(flusso);
    ASSERT_TRUE(c.Avanza());
    LettoreStringhe l(c, 1);
    std::string testo = "> ";
    l.Caratteri(4, 0, testo);
    EXPECT_EQ(testo, "> ab\u20ACz");
    l.Salta(3);
    EXPECT_EQ(l.U8(), 4U);
    EXPECT_THROW(l.U8(), DannoBiff);
}

// One byte at a time or all at once, over the border of the record too.
TEST(LettoreStringhe, SkipsEachByte) {
    const auto flusso = StringaInDueParti();
    CursoreBiff uno(flusso), tutti(flusso);
    ASSERT_TRUE(uno.Avanza() && tutti.Avanza());
    LettoreStringhe a(uno, 0), b(tutti, 0);
    for (int i = 0; i < 5; ++i)
        a.Salta(1);
    a.Salta(0);
    b.Salta(5);
    EXPECT_EQ(a.U8(), b.U8());
}

TEST(LettoreStringhe, TooFewBytes) {
    EXPECT_NO_THROW(Letti(1, 6, 0)); // 2 narrow, 4 wide
    EXPECT_THROW(Letti(1, 7, 0), DannoBiff);
    EXPECT_THROW(Letti(2, 1, 1), DannoBiff); // half a character
    const auto flusso = StringaInDueParti();
    CursoreBiff c(flusso);
    c.Avanza();
    EXPECT_THROW(LettoreStringhe(c, 1).U32(), DannoBiff); // not in one record
    EXPECT_THROW(LettoreStringhe(c, 0).Salta(100), DannoBiff);
}

TEST(LettoreStringhe, BeyondTheFirstRecordTheSecondBegins) {
    const auto flusso = StringaInDueParti();
    CursoreBiff c(flusso);
    c.Avanza();
    EXPECT_EQ(LettoreStringhe(c, 99).U8(), 1U);
}

TEST(LettoreStringhe, TwoHalvesOfACharacterOverABorder) {
    FlussoBiff f; // U+1F529
    f.Record(Biff::Sst, Ottetti().U16(0xD83D));
    f.Record(Biff::Continue, Ottetti().U8(1).U16(0xDD29));
    CursoreBiff c(f.dati());
    c.Avanza();
    std::string testo;
    LettoreStringhe(c, 0).Caratteri(2, 1, testo);
    EXPECT_EQ(testo, "\U0001F529");
}

TEST(LettoreStringhe, NarrowCharactersAreTheFirst256AndAnsiIsWindows1252) {
    FlussoBiff f;
    f.Record(Biff::Label, Ottetti().U8(0xE8).U8(0x80).U8('x'));
    CursoreBiff c(f.dati());
    c.Avanza();
    std::string unicode, ansi;
    LettoreStringhe(c, 0).Caratteri(3, 0, unicode);
    EXPECT_EQ(unicode, "\u00E8\u0080x");
    LettoreStringhe(c, 0).CaratteriAnsi(3, ansi);
    EXPECT_EQ(ansi, "\u00E8\u20ACx");
    EXPECT_THROW(LettoreStringhe(c, 0).CaratteriAnsi(4, ansi), DannoBiff);
}

// The four forms, worked out by hand: an integer in the upper 30 bits, the upper 30 bits of a double, each
// also of the hundredfold.
TEST(DecodificaRk, TheFourForms) {
    EXPECT_EQ(DecodificaRk((1234321U << 2U) | 2U), 1234321.0);
    EXPECT_EQ(DecodificaRk((12345U << 2U) | 3U), 123.45);
    EXPECT_EQ(DecodificaRk(0x3FF80000U), 1.5);
    EXPECT_EQ(DecodificaRk(0x3FF80001U), 0.015);
    EXPECT_EQ(DecodificaRk(0xFFFFFFFEU), -1.0);
}

TEST(DecodificaRk, UndoesTheWriters) {
    for (const double v : {0.0, 1.0, -97.5, 0.01, 12.34, 536870911.0, -536870912.0, 1e300 * 0})
        if (const auto rk = CodificaRk(v)) {
            EXPECT_EQ(DecodificaRk(*rk), v);
        }
}

} // namespace
