#include "catalogue/VerificaXls.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace sagomi;
using testing::HasSubstr;

namespace {

Ottetti Inizio() { return Ottetti().U16(0x0600).U16(0x0005); }

/// A stream with these bytes as its table of strings, in as many records as there are.
std::vector<std::uint8_t> ConTabella(const std::vector<Ottetti>& parti) {
    FlussoBiff f;
    f.Record(Biff::Bof, Inizio());
    for (std::size_t i = 0; i < parti.size(); ++i)
        f.Record(i == 0 ? Biff::Sst : Biff::Continue, parti[i]);
    f.Record(Biff::Eof);
    f.AllungaA(400);
    return f.dati();
}

std::string Errore(const std::vector<std::uint8_t>& flusso) {
    try {
        VerificaXls(LeggiRecord(flusso));
    } catch (const std::runtime_error& e) {
        return e.what();
    }
    return "";
}

constexpr const char* testiDanneggiati = "la cartella di lavoro è danneggiata (testi)";

TEST(VerificaXls, StringsWholeAndSplit) {
    const auto testa = [](std::uint32_t n) { return Ottetti().U32(n).U32(n); };
    EXPECT_EQ(Errore(ConTabella({testa(0)})), "");
    EXPECT_EQ(Errore(ConTabella({testa(1).U16(2).U8(0).U8('a').U8('b')})), "");
    // characters go on behind their width, here in another one
    EXPECT_EQ(Errore(ConTabella({testa(1).U16(3).U8(0).U8('a'), Ottetti().U8(1).U16(0x20AC).U16('z')})), "");
    // a string that begins with the next record
    EXPECT_EQ(Errore(ConTabella({testa(2).U16(1).U8(0).U8('a'), Ottetti().U16(1).U8(0).U8('b')})), "");
    // formatted runs (1) and a reading aid (3 bytes) behind the characters, these also across records
    EXPECT_EQ(Errore(ConTabella({testa(1).U16(1).U8(0x0C).U16(1).U32(3).U8('a').U16(0),
                                 Ottetti().U16(0).U8(1).U8(2).U8(3)})),
              "");
}

TEST(VerificaXls, StringsThatEndTooSoon) {
    const auto testa = [](std::uint32_t n) { return Ottetti().U32(n).U32(n); };
    EXPECT_EQ(Errore(ConTabella({Ottetti().U32(1)})), testiDanneggiati);
    EXPECT_EQ(Errore(ConTabella({testa(1)})), testiDanneggiati);
    EXPECT_EQ(Errore(ConTabella({testa(1).U16(2)})), testiDanneggiati);
    EXPECT_EQ(Errore(ConTabella({testa(1).U16(2).U8(0).U8('a')})), testiDanneggiati);
    EXPECT_EQ(Errore(ConTabella({testa(1).U16(2).U8(1).U8('a')})), testiDanneggiati);
    EXPECT_EQ(Errore(ConTabella({testa(2).U16(1).U8(0).U8('a')})), testiDanneggiati);
    EXPECT_EQ(Errore(ConTabella({testa(1).U16(1).U8(8).U16(9).U8('a')})), testiDanneggiati);
    EXPECT_EQ(Errore(ConTabella({testa(0xFFFFFFFFU).U16(0).U8(0)})), testiDanneggiati);
}

TEST(VerificaXls, StringOverTwoBordersIsTooLong) {
    const Ottetti testa = Ottetti().U32(1).U32(1).U16(3).U8(0).U8('a');
    EXPECT_EQ(Errore(ConTabella({testa, Ottetti().U8(0).U8('b').U8('c')})), "");
    EXPECT_EQ(Errore(ConTabella({testa, Ottetti().U8(0).U8('b'), Ottetti().U8(0).U8('c')})),
              "un testo è troppo lungo per essere letto");
}

TEST(VerificaXls, PartsBeginAndEnd) {
    FlussoBiff f;
    f.Record(Biff::Bof, Inizio());
    f.Record(Biff::Eof);
    EXPECT_EQ(Errore(f.dati()), "");
    FlussoBiff aperto;
    aperto.Record(Biff::Bof, Inizio());
    EXPECT_THAT(Errore(aperto.dati()), HasSubstr("danneggiata (la fine manca)"));
    FlussoBiff fuori;
    fuori.Record(Biff::CodePage, Ottetti().U16(1));
    EXPECT_THAT(Errore(fuori.dati()), HasSubstr("danneggiata (record fuori posto)"));
}

TEST(VerificaXls, PasswordIsTold) {
    FlussoBiff f;
    f.Record(Biff::Bof, Inizio());
    f.Record(static_cast<Biff>(0x002F), Ottetti().U16(1));
    EXPECT_EQ(Errore(f.dati()), "il file è protetto da una parola d'ordine");
}

TEST(VerificaXls, OneUsedRangeForASheetAndOneForAChartInIt) {
    const Ottetti misure = Ottetti().U32(0).U32(1).U16(0).U16(1).U16(0);
    FlussoBiff f;
    f.Record(Biff::Bof, Inizio());
    f.Record(Biff::Dimensions, misure);
    f.Record(Biff::Bof, Inizio());
    f.Record(Biff::Dimensions, misure);
    f.Record(Biff::Eof);
    FlussoBiff doppio = f;
    f.Record(Biff::Eof);
    EXPECT_EQ(Errore(f.dati()), "");
    doppio.Record(Biff::Dimensions, misure);
    doppio.Record(Biff::Eof);
    EXPECT_THAT(Errore(doppio.dati()), HasSubstr("danneggiata (misure di un foglio)"));
}

TEST(VerificaXls, CellsTooShortForTheirValue) {
    for (const Biff genere : {Biff::Number, Biff::Rk, Biff::LabelSst, Biff::Row, Biff::Dimensions,
                              Biff::Formula, Biff::BoolErr, Biff::BoundSheet}) {
        FlussoBiff f;
        f.Record(Biff::Bof, Inizio());
        f.Record(genere, Ottetti().U16(0).U16(0));
        f.Record(Biff::Eof);
        EXPECT_THAT(Errore(f.dati()), HasSubstr("danneggiata (celle)")) << unsigned(genere);
    }
}

} // namespace
