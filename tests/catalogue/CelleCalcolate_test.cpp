#include "catalogue/CelleCalcolate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace sagomi;

namespace {

using S = std::string;

/// Streams with a head that lists the sheets and then the sheets' own parts.
class Flusso {
public:
    explicit Flusso(unsigned versione = 0x0600) : versione_(versione) { Bof(5); }

    Flusso& Elenca(std::u16string_view nome) {
        Ottetti o;
        o.U32(0).U16(0).U8(static_cast<unsigned>(nome.size()));
        if (versione_ == 0x0600)
            o.U8(0);
        voci_.push_back(f_.Record(Biff::BoundSheet, o.Testo(nome, 0, nome.size(), true)) + 4);
        return *this;
    }
    Flusso& Foglio() {
        f_.Record(Biff::Eof);
        f_.Correggi(voci_.at(foglio_++), f_.Posizione());
        Bof(0x10);
        return *this;
    }
    Flusso& Bof(unsigned genere) {
        f_.Record(Biff::Bof, Ottetti().U16(versione_).U16(genere));
        return *this;
    }
    Flusso& Record(Biff genere, const Ottetti& o = {}) {
        f_.Record(genere, o);
        return *this;
    }
    Flusso& Formula(unsigned riga, unsigned colonna, std::uint32_t basso, std::uint32_t alto) {
        return Record(Biff::Formula,
                      Ottetti().U16(riga).U16(colonna).U16(15).U32(basso).U32(alto).U16(0).U32(0).U16(0));
    }
    std::vector<CellaCalcolata> Celle() {
        f_.Record(Biff::Eof);
        return CelleCalcolate(LeggiRecord(f_.dati()));
    }

private:
    unsigned versione_;
    FlussoBiff f_;
    std::vector<std::uint32_t> voci_;
    std::size_t foglio_ = 0;
};

constexpr std::uint32_t marca = 0xFFFF0000U; ///< upper half of a value that is no number

TEST(CelleCalcolate, NumbersLogicalValuesErrorsAndEmptyTexts) {
    const auto celle = Flusso()
                           .Elenca(u"IPE")
                           .Foglio()
                           .Formula(1, 2, 0, 0x3FF80000U)           // 1.5
                           .Formula(3, 4, 1U | 1U << 16U, marca)    // true
                           .Formula(5, 6, 2U | 0x2AU << 16U, marca) // #N/A
                           .Formula(7, 8, 3, marca)                 // an empty text
                           .Celle();
    ASSERT_EQ(celle.size(), 4U);
    EXPECT_EQ(celle[0].foglio, "IPE");
    EXPECT_EQ(celle[0].riga, 1U);
    EXPECT_EQ(celle[0].colonna, 2U);
    EXPECT_EQ(celle[0].valore, Valore(1.5));
    EXPECT_EQ(celle[1].valore, Valore(1.0));
    EXPECT_TRUE(Vuoto(celle[2].valore));
    EXPECT_TRUE(Vuoto(celle[3].valore));
}

TEST(CelleCalcolate, TextComesInTheRecordBehindAlsoContinued) {
    constexpr auto formulaComune = static_cast<Biff>(0x04BC); // stands between a formula and its text
    const auto celle = Flusso()
                           .Elenca(u"IPE")
                           .Foglio()
                           .Formula(1, 0, 0, marca)
                           .Record(formulaComune, Ottetti().U32(0))
                           .Record(Biff::String, Ottetti().U16(4).U8(0).U8('I').U8('P'))
                           .Record(Biff::Continue, Ottetti().U8(1).U16('E').U16(0x20AC))
                           .Record(Biff::String, Ottetti().U16(1).U8(0).U8('x')) // of nobody
                           .Celle();
    ASSERT_EQ(celle.size(), 1U);
    EXPECT_EQ(celle[0].valore, Valore(S("IPE\u20AC")));
}

TEST(CelleCalcolate, ErrorsTypedInAreEmptyLogicalValuesAreLeft) {
    const auto celle = Flusso()
                           .Elenca(u"IPE")
                           .Foglio()
                           .Record(Biff::BoolErr, Ottetti().U16(2).U16(3).U16(15).U8(0x2A).U8(1))
                           .Record(Biff::BoolErr, Ottetti().U16(2).U16(4).U16(15).U8(1).U8(0))
                           .Celle();
    ASSERT_EQ(celle.size(), 1U);
    EXPECT_EQ(celle[0].colonna, 3U);
    EXPECT_TRUE(Vuoto(celle[0].valore));
}

TEST(CelleCalcolate, EachSheetByItsNameChartsInsideLeftOut) {
    const auto celle = Flusso()
                           .Elenca(u"uno")
                           .Elenca(u"due")
                           .Foglio()
                           .Bof(0x20)
                           .Formula(0, 0, 0, 0x3FF00000U)
                           .Record(Biff::Eof)
                           .Formula(1, 0, 0, 0x3FF00000U)
                           .Foglio()
                           .Formula(2, 0, 0, 0x40000000U)
                           .Celle();
    ASSERT_EQ(celle.size(), 2U);
    EXPECT_EQ(celle[0].foglio, "uno");
    EXPECT_EQ(celle[0].riga, 1U);
    EXPECT_EQ(celle[1].foglio, "due");
    EXPECT_EQ(celle[1].valore, Valore(2.0));
}

TEST(CelleCalcolate, WorkbooksBeforeExcel97HaveTextsWithoutOptions) {
    const auto celle = Flusso(0x0500)
                           .Elenca(u"IPE")
                           .Foglio()
                           .Formula(1, 0, 0, marca)
                           .Record(Biff::String, Ottetti().U16(3).U8('H').U8('E').U8('A'))
                           .Celle();
    ASSERT_EQ(celle.size(), 1U);
    EXPECT_EQ(celle[0].foglio, "IPE");
    EXPECT_EQ(celle[0].valore, Valore(S("HEA")));
}

} // namespace
