#include "catalogue/TestaXls.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CartellaAMano.h"
#include "catalogue/LetturaBiff.h"

using namespace sagomi;
using prove::CartellaAMano;
using testing::ElementsAre;

namespace {

using S = std::string;

TestaXls Testa(const CartellaAMano& cartella) { return LeggeTesta(cartella.Flusso()); }

/// A head with these bytes as its table of strings, in as many records as there are.
TestaXls ConTabella(const std::vector<Ottetti>& parti) {
    CartellaAMano c;
    for (std::size_t i = 0; i < parti.size(); ++i)
        c.Testa(i == 0 ? Biff::Sst : Biff::Continue, parti[i]);
    return Testa(c);
}

std::vector<S> Testi(const std::vector<Ottetti>& parti) {
    const TestaXls t = ConTabella(parti);
    std::vector<S> testi;
    for (std::size_t i = 0; i < t.testi->size(); ++i)
        testi.emplace_back((*t.testi)[i]);
    return testi;
}

Ottetti Inizio(std::uint32_t n) { return Ottetti().U32(n).U32(n); }

TEST(LeggeTesta, StringsWholeAndSplit) {
    EXPECT_THAT(Testi({Inizio(0)}), ElementsAre());
    EXPECT_THAT(Testi({Inizio(1).U16(2).U8(0).U8('a').U8('b')}), ElementsAre("ab"));
    // characters go on behind their width, here in another one
    EXPECT_THAT(Testi({Inizio(1).U16(3).U8(0).U8('a'), Ottetti().U8(1).U16(0x20AC).U16('z')}),
                ElementsAre("a\u20ACz"));
    // a string that begins with the next record
    EXPECT_THAT(Testi({Inizio(2).U16(1).U8(0).U8('a'), Ottetti().U16(1).U8(0).U8('b')}),
                ElementsAre("a", "b"));
    // formatted runs (1) and a reading aid (3 bytes) behind the characters, these also across records
    EXPECT_THAT(Testi({Inizio(2).U16(1).U8(0x0C).U16(1).U32(3).U8('a').U16(0),
                       Ottetti().U16(0).U8(1).U8(2).U8(3).U16(1).U8(0).U8('b')}),
                ElementsAre("a", "b"));
    // over two borders and more
    EXPECT_THAT(Testi({Inizio(1).U16(3).U8(0).U8('a'), Ottetti().U8(0).U8('b'), Ottetti().U8(0).U8('c')}),
                ElementsAre("abc"));
}

TEST(LeggeTesta, StringsThatEndTooSoon) {
    for (const Ottetti& o :
         {Ottetti().U32(1), Inizio(1), Inizio(1).U16(2), Inizio(1).U16(2).U8(0).U8('a'),
          Inizio(1).U16(2).U8(1).U8('a'), Inizio(2).U16(1).U8(0).U8('a'),
          Inizio(1).U16(1).U8(8).U16(9).U8('a'), Inizio(1).U16(1).U8(4).U32(0xFFFFFFFFU).U8('a'),
          Inizio(0xFFFFFFFFU).U16(0).U8(0), Inizio(3'000'000U).U16(0).U8(0)})
        EXPECT_THROW(ConTabella({o}), DannoBiff);
    CartellaAMano due;
    due.Testa(Biff::Sst, Inizio(1).U16(0).U8(0)).Testa(Biff::Sst, Inizio(1).U16(0).U8(0));
    EXPECT_THROW(Testa(due), DannoBiff);
}

TEST(LeggeTesta, ListOfSheetsWithoutChartsAndMacros) {
    const TestaXls t = Testa(CartellaAMano().Foglio(u"IPE").Foglio(u"Grafico", 2).Foglio(u"L \u20AC"));
    ASSERT_EQ(t.fogli.size(), 2U);
    EXPECT_EQ(t.fogli[0].nome, "IPE");
    EXPECT_EQ(t.fogli[1].nome, "L \u20AC");
    EXPECT_LT(t.fogli[0].posizione, t.fogli[1].posizione);
}

TEST(LeggeTesta, NamesOfSheetsMustFit) {
    const auto voce = [](unsigned n) {
        return CartellaAMano().Testa(Biff::BoundSheet, Ottetti().U32(0).U16(0).U8(n).U8(0).U8('a').U8('b'));
    };
    EXPECT_EQ(Testa(voce(2)).fogli.at(0).nome, "ab");
    EXPECT_THROW(Testa(voce(3)), DannoBiff);
    EXPECT_THROW(Testa(CartellaAMano().Testa(Biff::BoundSheet, Ottetti().U32(0))), DannoBiff);
}

TEST(LeggeTesta, StylesTellDates) {
    CartellaAMano c;
    c.Testa(Biff::Format, Ottetti().U16(170).U16(5).U8(0).Testo(u"yy-mm", 0, 5, true));
    c.Testa(Biff::Xf, Ottetti().U16(0).U16(170)).Testa(Biff::Xf, Ottetti().U16(0).U16(22));
    const TestaXls t = Testa(c);
    const std::size_t primo = t.generi.size() - 2; // behind those of the writer
    EXPECT_EQ(t.Genere(primo), GenereNumero::Data);
    EXPECT_EQ(t.Genere(primo + 1), GenereNumero::DataOra);
    EXPECT_EQ(t.Genere(15), GenereNumero::Semplice);
    EXPECT_EQ(t.Genere(static_cast<std::size_t>(StileXls::Data)), GenereNumero::Data);
    EXPECT_EQ(t.Genere(99999), GenereNumero::Semplice);
}

TEST(LeggeTesta, TextOfAFormatMustFit) {
    EXPECT_THROW(Testa(CartellaAMano().Testa(Biff::Format, Ottetti().U16(170).U16(60000).U8(0).U8('0'))),
                 DannoBiff);
    EXPECT_THROW(Testa(CartellaAMano().Testa(Biff::Format, Ottetti().U16(170))), DannoBiff);
}

TEST(LeggeTesta, DaysFrom1904) {
    EXPECT_FALSE(Testa(CartellaAMano()).dal1904);
    EXPECT_TRUE(Testa(CartellaAMano().Testa(Biff::DateMode, Ottetti().U16(1))).dal1904);
}

TEST(LeggeTesta, BeginsAndEndsInOrderAndInAKnownVersion) {
    FlussoBiff f;
    EXPECT_THROW(LeggeTesta(f.dati()), DannoBiff);
    f.Record(Biff::Bof, Ottetti().U16(0x0600).U16(5));
    EXPECT_THROW(LeggeTesta(f.dati()), DannoBiff); // no end
    f.Record(Biff::Eof);
    EXPECT_TRUE(LeggeTesta(f.dati()).fogli.empty());
    FlussoBiff senza;
    senza.Record(Biff::CodePage, Ottetti().U16(1));
    EXPECT_THROW(LeggeTesta(senza.dati()), DannoBiff);
    FlussoBiff vecchio;
    vecchio.Record(Biff::Bof, Ottetti().U16(0x0400).U16(5));
    EXPECT_THROW(LeggeTesta(vecchio.dati()), std::runtime_error);
}

TEST(LeggeTesta, PasswordAndTooManySheets) {
    using testing::HasSubstr;
    using testing::ThrowsMessage;
    EXPECT_THAT([] { Testa(CartellaAMano().Testa(Biff::FilePass, Ottetti().U16(1))); },
                ThrowsMessage<std::runtime_error>(HasSubstr("protetto da una parola d'ordine")));
    const auto molti = [] {
        CartellaAMano c;
        for (int i = 0; i < 4097; ++i)
            c.Testa(Biff::BoundSheet, Ottetti().U32(0).U16(0).U8(0).U8(0));
        Testa(c);
    };
    EXPECT_THAT(molti, ThrowsMessage<std::runtime_error>("la cartella di lavoro ha troppi fogli"));
}

TEST(LeggeTesta, WorkbooksBeforeExcel97HaveTextsWithoutOptions) {
    CartellaAMano c(CartellaAMano::biff5);
    c.Foglio(u"per\u00E8").Testa(Biff::Format, Ottetti().U16(170).U8(2).U8('y').U8('y'));
    c.Testa(Biff::Xf, Ottetti().U16(0).U16(170));
    const TestaXls t = Testa(c);
    EXPECT_FALSE(t.biff8);
    EXPECT_EQ(t.fogli.at(0).nome, "per\u00E8");
    EXPECT_EQ(t.Genere(0), GenereNumero::Data);
}

} // namespace
