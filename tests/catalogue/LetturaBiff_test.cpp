#include "catalogue/LetturaBiff.h"

#include <stdexcept>

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

TEST(LeggiRecord, OneBehindTheOtherUpToTheFilling) {
    FlussoBiff f;
    f.Record(Biff::CodePage, Ottetti().U16(0x04B0));
    f.Record(Biff::Number, Ottetti().U16(1).U16(2).U16(15).F64(3.691));
    f.Record(Biff::Eof);
    f.AllungaA(100);
    const auto record = LeggiRecord(f.dati());
    ASSERT_EQ(record.size(), 3U);
    EXPECT_TRUE(record[0].E(Biff::CodePage));
    EXPECT_EQ(record[0].posizione, 0U);
    EXPECT_EQ(record[1].posizione, 6U);
    EXPECT_EQ(record[1].Lunghezza(), 14U);
    EXPECT_EQ(record[1].U16(2), 2U);
    EXPECT_EQ(record[1].F64(6), 3.691);
    EXPECT_TRUE(record[2].E(Biff::Eof));
}

TEST(LeggiRecord, ContinuationsBelongToTheirRecord) {
    FlussoBiff f;
    f.Record(Biff::Sst, Ottetti().U32(7));
    f.Record(Biff::Continue, Ottetti().U8(1));
    f.Record(Biff::Continue, Ottetti().U16(2));
    f.Record(Biff::ExtSst);
    const auto record = LeggiRecord(f.dati());
    ASSERT_EQ(record.size(), 2U);
    ASSERT_EQ(record[0].parti.size(), 3U);
    EXPECT_EQ(record[0].U32(0), 7U);
    EXPECT_EQ(record[0].parti[2].size(), 2U);
    EXPECT_EQ(record[0].U8(4), 0U); // beyond its own bytes
}

TEST(LeggiRecord, LengthsMustFillTheStream) {
    FlussoBiff f;
    f.Record(Biff::CodePage, Ottetti().U16(0x04B0));
    f.Record(Biff::Eof);
    auto corto = f.dati();
    corto[8] = 1;
    EXPECT_THROW(LeggiRecord(corto), std::runtime_error);
    corto = f.dati();
    corto.resize(8); // half a head: nothing more to read
    EXPECT_EQ(LeggiRecord(corto).size(), 1U);
    EXPECT_TRUE(LeggiRecord({}).empty());
}

std::vector<std::uint8_t> StringaInDueParti() {
    FlussoBiff f;
    f.Record(Biff::Sst, Ottetti().U8(9).U8('a').U8('b'));
    f.Record(Biff::Continue, Ottetti().U8(1).U16(0x20AC).U16('z').U32(0x04030201));
    return f.dati();
}

TEST(LettoreStringhe, CharactersGoOnInTheNextRecordInAnotherWidth) {
    const auto flusso = StringaInDueParti();
    const auto record = LeggiRecord(flusso);
    LettoreStringhe l(record[0], 1);
    EXPECT_EQ(l.Caratteri(4, 0), u"ab\u20ACz");
    EXPECT_EQ(l.Parte(), 1U);
    l.Salta(3);
    EXPECT_EQ(l.Prendi(1)[0], 4);
    EXPECT_THROW(l.Prendi(1), std::runtime_error);
}

TEST(LettoreStringhe, TooFewBytes) {
    const auto flusso = StringaInDueParti();
    const auto record = LeggiRecord(flusso);
    EXPECT_THROW(LettoreStringhe(record[0], 1).Caratteri(7, 0), std::runtime_error); // 2 narrow, 4 wide
    EXPECT_EQ(LettoreStringhe(record[0], 1).Caratteri(6, 0).size(), 6U);
    EXPECT_THROW(LettoreStringhe(record[0], 2).Caratteri(1, 1), std::runtime_error); // half a character
    EXPECT_THROW(LettoreStringhe(record[0], 1).Prendi(3), std::runtime_error);       // not in one record
    EXPECT_THROW(LettoreStringhe(record[0], 0).Salta(100), std::runtime_error);
    EXPECT_EQ(LettoreStringhe(record[0], 99).Prendi(1)[0], 1); // beyond the first: the second begins
}

} // namespace
