#include "catalogue/LetturaFoglio.h"

#include <limits>
#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CartellaAMano.h"
#include "catalogue/LetturaBiff.h"

using namespace sagomi;
using prove::CartellaAMano;
using testing::ThrowsMessage;

namespace {

using S = std::string;

FoglioLetto Legge(const CartellaAMano& cartella, MisuraCelle resta = massimaMisura, std::size_t indice = 0) {
    const auto flusso = cartella.Flusso();
    return LeggeFoglio(flusso, LeggeTesta(flusso), indice, resta);
}

Foglio Letto(const CartellaAMano& cartella) { return FoglioDa(Legge(cartella)); }

CartellaAMano Ipe(unsigned versione = CartellaAMano::biff8) { return CartellaAMano(versione).Foglio(u"IPE"); }

// The words of the RK record are worked out by hand.
TEST(LeggeFoglio, IntegersRealsAndRunsOfNumbers) {
    const Foglio f = Letto(Ipe()
                               .Cella(Biff::Rk, 0, 0, Ottetti().U32((80U << 2U) | 2U))
                               .Numero(0, 1, 3.691)
                               .Sciolto(Biff::MulRk, Ottetti()
                                                         .U16(1)
                                                         .U16(2)
                                                         .U16(15)
                                                         .U32((1234321U << 2U) | 2U)
                                                         .U16(15)
                                                         .U32((12345U << 2U) | 3U)
                                                         .U16(15)
                                                         .U32(0x3FF80000U)
                                                         .U16(4)));
    EXPECT_EQ(f.nome, "IPE");
    EXPECT_EQ(f.Legge(0, 0), Valore(80.0));
    EXPECT_EQ(f.Legge(0, 1), Valore(3.691));
    EXPECT_EQ(f.Legge(1, 2), Valore(1234321.0));
    EXPECT_EQ(f.Legge(1, 3), Valore(123.45));
    EXPECT_EQ(f.Legge(1, 4), Valore(1.5));
}

TEST(LeggeFoglio, RunsOfNumbersMustBeAsLongAsTheySay) {
    for (const unsigned ultima : {0U, 1U, 3U, 255U}) {
        const auto c =
            Ipe().Sciolto(Biff::MulRk, Ottetti().U16(0).U16(1).U16(15).U32(2).U16(15).U32(2).U16(ultima));
        EXPECT_THROW(Legge(c), DannoBiff) << ultima;
    }
    EXPECT_THROW(Legge(Ipe().Sciolto(Biff::MulRk, Ottetti().U16(0).U16(1).U16(15).U32(2).U8(1).U16(1))),
                 DannoBiff);
    EXPECT_THROW(Legge(Ipe().Sciolto(Biff::MulRk, Ottetti().U16(0))), DannoBiff);
    const FoglioLetto nessuno = Legge(Ipe().Sciolto(Biff::MulRk, Ottetti().U16(0).U16(1).U16(0)));
    EXPECT_EQ(nessuno.Celle(), 0U);
}

TEST(LeggeFoglio, FormulasGiveTheValueLastComputed) {
    constexpr auto comune = static_cast<Biff>(0x04BC); // may stand between a formula and its text
    const Foglio f = Letto(Ipe()
                               .Formula(1, 2, 0, 0x3FF80000U)                          // 1.5
                               .Formula(3, 4, 1U | 1U << 16U, CartellaAMano::marca)    // true
                               .Formula(5, 6, 2U | 0x2AU << 16U, CartellaAMano::marca) // #N/A
                               .Formula(7, 8, 3, CartellaAMano::marca)                 // an empty text
                               .Formula(9, 0, 0, CartellaAMano::marca)
                               .Sciolto(comune, Ottetti().U32(0))
                               .Sciolto(Biff::String, Ottetti().U16(4).U8(0).U8('I').U8('P'))
                               .Sciolto(Biff::Continue, Ottetti().U8(1).U16('E').U16(0x20AC))
                               .Sciolto(Biff::String, Ottetti().U16(1).U8(0).U8('x'))); // of nobody
    EXPECT_EQ(f.Legge(1, 2), Valore(1.5));
    EXPECT_EQ(f.Legge(3, 4), Valore(1.0));
    EXPECT_TRUE(Vuoto(f.Legge(5, 6)));
    EXPECT_TRUE(Vuoto(f.Legge(7, 8)));
    EXPECT_EQ(f.Legge(9, 0), Valore(S("IPE\u20AC")));
    EXPECT_EQ(f.righe.size(), 10U);
}

TEST(LeggeFoglio, TextBehindAFormulaThatGaveANumberBelongsToNobody) {
    const Foglio f = Letto(Ipe()
                               .Formula(0, 0, 0, CartellaAMano::marca)
                               .Formula(1, 0, 0, 0x3FF80000U)
                               .Sciolto(Biff::String, Ottetti().U16(1).U8(0).U8('x')));
    EXPECT_TRUE(Vuoto(f.Legge(0, 0)));
    EXPECT_EQ(f.Legge(1, 0), Valore(1.5));
}

TEST(LeggeFoglio, LogicalValuesErrorsTextsInPlaceAndNoNumbers) {
    const Foglio f =
        Letto(Ipe()
                  .Cella(Biff::BoolErr, 1, 0, Ottetti().U8(1).U8(0))
                  .Cella(Biff::BoolErr, 1, 1, Ottetti().U8(0x2A).U8(1)) // #N/A
                  .Testo(2, 0, u"HEA \u20AC")
                  .Cella(Biff::RString, 2, 1, Ottetti().U16(2).U8(0).U8('a').U8('b').U16(1).U16(0).U16(1))
                  .Testo(2, 2, u"")
                  .Numero(3, 0, std::numeric_limits<double>::infinity())
                  .Numero(3, 1, std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(f.Legge(1, 0), Valore(1.0));
    EXPECT_TRUE(Vuoto(f.Legge(1, 1)));
    EXPECT_EQ(f.Legge(2, 0), Valore(S("HEA \u20AC")));
    EXPECT_EQ(f.Legge(2, 1), Valore(S("ab")));
    EXPECT_EQ(f.righe.size(), 3U);
    EXPECT_EQ(f.righe[2].size(), 2U);
}

TEST(LeggeFoglio, SharedTextsByTheirNumber) {
    const auto con = [](std::uint32_t i) {
        return CartellaAMano()
            .Testa(Biff::Sst, Ottetti().U32(2).U32(2).U16(1).U8(0).U8('a').U16(1).U8(0).U8('b'))
            .Foglio(u"x")
            .Cella(Biff::LabelSst, 0, 0, Ottetti().U32(i));
    };
    EXPECT_EQ(Letto(con(1)).Legge(0, 0), Valore(S("b")));
    EXPECT_THROW(Legge(con(2)), DannoBiff);
    EXPECT_THROW(Legge(con(0xFFFFFFFFU)), DannoBiff);
    EXPECT_THROW(Legge(Ipe().Cella(Biff::LabelSst, 0, 0, Ottetti().U32(0))), DannoBiff); // no table at all
}

TEST(LeggeFoglio, CellsTooShortForTheirValue) {
    for (const Biff genere : {Biff::Number, Biff::Rk, Biff::LabelSst, Biff::Formula, Biff::BoolErr,
                              Biff::Label, Biff::RString, Biff::MulRk}) {
        EXPECT_THROW(Legge(Ipe().Sciolto(genere, Ottetti().U16(0).U16(0).U16(15))), DannoBiff)
            << static_cast<unsigned>(genere);
        EXPECT_THROW(Legge(Ipe().Sciolto(genere)), DannoBiff) << static_cast<unsigned>(genere);
    }
    EXPECT_THROW(Legge(Ipe().Cella(Biff::Label, 0, 0, Ottetti().U16(3).U8(0).U8('a').U8('b'))), DannoBiff);
    EXPECT_THROW(Legge(Ipe()
                           .Formula(0, 0, 0, CartellaAMano::marca)
                           .Sciolto(Biff::String, Ottetti().U16(40000).U8(1).U16('a'))),
                 DannoBiff);
}

TEST(LeggeFoglio, ColumnsOfTheFormatAndNoOthers) {
    const Foglio f = Letto(Ipe().Numero(65535, 255, 1));
    EXPECT_EQ(f.Legge(65535, 255), Valore(1.0));
    for (const unsigned colonna : {256U, 3000U, 65535U})
        EXPECT_THROW(Legge(Ipe().Numero(0, colonna, 1)), DannoBiff);
    EXPECT_THROW(
        Legge(Ipe().Sciolto(Biff::MulRk, Ottetti().U16(0).U16(255).U16(15).U32(2).U16(15).U32(2).U16(256))),
        DannoBiff);
}

TEST(LeggeFoglio, AnnouncedSizesAreNotLookedAt) {
    const auto misure = Ottetti().U32(0).U32(0xFFFFFFFFU).U16(0).U16(0xFFFF).U16(0);
    const FoglioLetto f =
        Legge(Ipe().Sciolto(Biff::Dimensions, misure).Sciolto(Biff::Dimensions, misure).Numero(0, 0, 1));
    EXPECT_EQ(f.Celle(), 1U);
}

TEST(LeggeFoglio, NoMoreCellsAndTextsThanItMay) {
    auto c = Ipe().Numero(0, 0, 1).Testo(0, 1, u"abcd");
    EXPECT_EQ(Legge(c, {2, 4}).Celle(), 2U);
    const auto celle = [&] { Legge(c, {1, 4}); };
    EXPECT_THAT(celle,
                ThrowsMessage<std::runtime_error>("la cartella di lavoro ha più di 4 milioni di celle"));
    const auto testi = [&] { Legge(c, {2, 3}); };
    EXPECT_THAT(testi, ThrowsMessage<std::runtime_error>("i testi della cartella di lavoro superano 64 MB"));
}

TEST(LeggeFoglio, TakesOffWhatItHas) {
    const auto flusso = Ipe().Numero(0, 0, 1).Testo(0, 1, u"abcd").Flusso();
    MisuraCelle resta{10, 10};
    LeggeFoglio(flusso, LeggeTesta(flusso), 0, resta);
    EXPECT_EQ(resta.celle, 8U);
    EXPECT_EQ(resta.testo, 6U);
}

TEST(LeggeFoglio, EachSheetByItsPlaceChartsInsideLeftOut) {
    const auto c = CartellaAMano()
                       .Foglio(u"uno")
                       .Sciolto(Biff::Bof, Ottetti().U16(0x0600).U16(0x20))
                       .Numero(0, 0, 7)
                       .Sciolto(Biff::Eof)
                       .Numero(1, 0, 1)
                       .Foglio(u"due")
                       .Numero(2, 0, 2);
    const FoglioLetto uno = Legge(c);
    EXPECT_EQ(uno.Celle(), 1U);
    EXPECT_EQ(uno.NumeroRiga(0), 1U);
    const FoglioLetto due = Legge(c, massimaMisura, 1);
    EXPECT_EQ(due.nome, "due");
    EXPECT_EQ(due.NumeroRiga(0), 2U);
}

TEST(LeggeFoglio, MustBeginAndEnd) {
    EXPECT_THROW(Legge(Ipe().Numero(0, 0, 1).SenzaFine()), DannoBiff);
    for (const std::uint32_t posizione : {1U, 0xFFFFFFFFU, 4096U, 0x7FFFFFFFU})
        EXPECT_THROW(Legge(CartellaAMano().Testa(Biff::BoundSheet,
                                                 Ottetti().U32(posizione).U16(0).U8(1).U8(0).U8('x'))),
                     DannoBiff);
    const FoglioLetto testa = // the head itself has no cells
        Legge(CartellaAMano().Testa(Biff::BoundSheet, Ottetti().U32(0).U16(0).U8(1).U8(0).U8('x')));
    EXPECT_EQ(testa.Celle(), 0U);
}

TEST(LeggeFoglio, DaysFrom1904AreCountedFrom1900) {
    const auto data = static_cast<unsigned>(StileXls::Data);
    const Foglio f = Letto(CartellaAMano()
                               .Testa(Biff::DateMode, Ottetti().U16(1))
                               .Foglio(u"x")
                               .Numero(0, 0, 43538, data) // 15 March 2023
                               .Numero(0, 1, 43538)
                               .Numero(0, 2, 0.5, static_cast<unsigned>(StileXls::Ora)));
    EXPECT_EQ(f.Legge(0, 0), Valore(45000.0));
    EXPECT_EQ(f.righe[0][0].genere, GenereNumero::Data);
    EXPECT_EQ(f.Legge(0, 1), Valore(43538.0));
    EXPECT_EQ(f.Legge(0, 2), Valore(0.5));
}

// Each record that holds a number, in each style: 2.5 as the upper half of a double, 1 as an integer of RK.
TEST(LeggeFoglio, EveryNumberHasTheKindOfItsStyle) {
    for (const auto& [conStile, genere] : {std::pair{StileXls::Generale, GenereNumero::Semplice},
                                           {StileXls::Data, GenereNumero::Data},
                                           {StileXls::DataOra, GenereNumero::DataOra},
                                           {StileXls::Ora, GenereNumero::Ora}}) {
        const auto xf = static_cast<unsigned>(conStile);
        const Foglio f = Letto(
            Ipe()
                .Numero(0, 0, 2.5, xf)
                .Cella(Biff::Rk, 0, 1, Ottetti().U32(0x40040000U), xf)
                .Cella(Biff::Formula, 0, 2,
                       Ottetti().F64(2.5).U16(0).U32(0).U16(7).U8(0x1E).U16(1).U8(0x1E).U16(1).U8(3), xf)
                .Sciolto(Biff::MulRk, Ottetti()
                                          .U16(0)
                                          .U16(3)
                                          .U16(xf)
                                          .U32(0x40040000U)
                                          .U16(15)
                                          .U32(6)
                                          .U16(xf)
                                          .U32(0x40040000U)
                                          .U16(5)));
        for (const std::size_t c : {0U, 1U, 2U, 3U, 5U}) {
            EXPECT_EQ(f.Legge(0, c), Valore(2.5)) << c;
            EXPECT_EQ(f.righe[0][c].genere, genere) << c;
        }
        EXPECT_EQ(f.Legge(0, 4), Valore(1.0));
        EXPECT_EQ(f.righe[0][4].genere, GenereNumero::Semplice);
    }
}

// A text of one character is one, of none is an empty cell: in the sheet and among those that the sheets
// share.
TEST(LeggeFoglio, ShortestTexts) {
    const Foglio f = Letto(CartellaAMano()
                               .Testa(Biff::Sst, Ottetti().U32(2).U32(2).U16(0).U8(0).U16(1).U8(0).U8('b'))
                               .Foglio(u"x")
                               .Testo(0, 0, u"a")
                               .Testo(0, 1, u"")
                               .Cella(Biff::LabelSst, 0, 2, Ottetti().U32(0))
                               .Cella(Biff::LabelSst, 0, 3, Ottetti().U32(1)));
    EXPECT_EQ(f.Legge(0, 0), Valore(S("a")));
    EXPECT_EQ(f.Legge(0, 1), Valore());
    EXPECT_EQ(f.Legge(0, 2), Valore());
    EXPECT_EQ(f.Legge(0, 3), Valore(S("b")));
}

TEST(LeggeFoglio, WorkbooksBeforeExcel97) {
    const Foglio f = Letto(Ipe(CartellaAMano::biff5)
                               .Numero(0, 0, 2.5)
                               .Cella(Biff::Label, 0, 1, Ottetti().U16(2).U8('a').U8(0x80))
                               .Formula(1, 0, 0, CartellaAMano::marca)
                               .Sciolto(Biff::String, Ottetti().U16(3).U8('H').U8('E').U8('A')));
    EXPECT_EQ(f.Legge(0, 0), Valore(2.5));
    EXPECT_EQ(f.Legge(0, 1), Valore(S("a\u20AC")));
    EXPECT_EQ(f.Legge(1, 0), Valore(S("HEA")));
}

} // namespace
