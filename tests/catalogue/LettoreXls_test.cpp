// Workbooks as spreadsheet programs save them, with the records that the writer itself never uses, put
// together by hand after the published description of the format.

#include "catalogue/LettoreXls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fogli.h"
#include "catalogue/ContenitoreOle.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/ScrittoreXls.h"
#include "catalogue/StiliXls.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using testing::HasSubstr;

namespace {

using S = std::string;

// Records of cells that other programs write.
constexpr auto testoInCella = static_cast<Biff>(0x0204);
constexpr auto cellaVuota = static_cast<Biff>(0x0201);
constexpr auto celleVuote = static_cast<Biff>(0x00BE);
constexpr auto piuRk = static_cast<Biff>(0x00BD);
constexpr auto parolaOrdine = static_cast<Biff>(0x002F);
constexpr unsigned stile = 15;

/// A workbook of one sheet whose cell records are given.
class CartellaAMano {
public:
    CartellaAMano() {
        flusso_.Record(Biff::Bof, Ottetti().U16(0x0600).U16(0x0005).U16(0x0DBB).U16(0x07CC).U32(0x41).U32(6));
        flusso_.Record(Biff::CodePage, Ottetti().U16(0x04B0));
        ScriviStili(flusso_);
        const auto voce =
            flusso_.Record(Biff::BoundSheet, Ottetti().U32(0).U16(0).U8(3).U8(0).Testo(u"IPE", 0, 3, true));
        flusso_.Record(Biff::Eof);
        flusso_.Correggi(voce + 4, flusso_.Posizione());
        flusso_.Record(Biff::Bof, Ottetti().U16(0x0600).U16(0x0010).U16(0x0DBB).U16(0x07CC).U32(0x41).U32(6));
        flusso_.Record(Biff::Dimensions, Ottetti().U32(0).U32(10).U16(0).U16(10).U16(0));
    }

    CartellaAMano& Cella(Biff genere, unsigned riga, unsigned colonna, const Ottetti& resto) {
        Ottetti o;
        o.U16(riga).U16(colonna);
        if (genere != celleVuote && genere != piuRk)
            o.U16(stile);
        for (const std::uint8_t b : resto.dati())
            o.U8(b);
        flusso_.Record(genere, o);
        return *this;
    }

    CartellaAMano& Sciolto(Biff genere, const Ottetti& corpo) {
        flusso_.Record(genere, corpo);
        return *this;
    }

    Foglio Legge() {
        flusso_.Record(Biff::Eof);
        flusso_.AllungaA(4096);
        const prove::CartellaDiProva dir;
        prove::ScriveByte(dir.percorso / "a.xls", ContenitoreOle("Workbook", flusso_.dati()));
        return LeggiXls(dir.percorso / "a.xls").fogli.at(0);
    }

private:
    FlussoBiff flusso_;
};

/// What stands behind the value of a formula: flags, and the formula 1+1.
Ottetti& Espressione(Ottetti& o) { return o.U16(0).U32(0).U16(7).U8(0x1E).U16(1).U8(0x1E).U16(1).U8(0x03); }

TEST(LeggiXls, IntegersRealsAndRunsOfNumbers) {
    Ottetti run;
    run.U16(stile)
        .U32((1234321U << 2U) | 2U)
        .U16(stile)
        .U32((12345U << 2U) | 3U)
        .U16(stile)
        .U32(0x3FF80000U)
        .U16(4);
    const Foglio f = CartellaAMano()
                         .Cella(Biff::Rk, 0, 0, Ottetti().U32((80U << 2U) | 2U))
                         .Cella(Biff::Number, 0, 1, Ottetti().F64(3.691))
                         .Cella(piuRk, 1, 2, run)
                         .Legge();
    EXPECT_EQ(f.Leggi(0, 0), Valore(80.0));
    EXPECT_EQ(f.Leggi(0, 1), Valore(3.691));
    EXPECT_EQ(f.Leggi(1, 2), Valore(1234321.0));
    EXPECT_EQ(f.Leggi(1, 3), Valore(123.45));
    EXPECT_EQ(f.Leggi(1, 4), Valore(1.5));
}

TEST(LeggiXls, FormulasGiveTheValueLastComputed) {
    Ottetti numero, testo, vuoto;
    numero.F64(1943.5);
    testo.U8(0).U8(0).U16(0).U16(0).U16(0xFFFF);
    vuoto.U8(3).U8(0).U16(0).U16(0).U16(0xFFFF);
    const Foglio f = CartellaAMano()
                         .Cella(Biff::Formula, 0, 0, Espressione(numero))
                         .Cella(Biff::Formula, 1, 0, Espressione(testo))
                         .Sciolto(Biff::String, Ottetti().U16(7).U8(0).Testo(u"IPE 200", 0, 7, true))
                         .Cella(Biff::Formula, 2, 0, Espressione(vuoto))
                         .Cella(Biff::Rk, 3, 0, Ottetti().U32(6))
                         .Legge();
    EXPECT_EQ(f.Leggi(0, 0), Valore(1943.5));
    EXPECT_EQ(f.Leggi(1, 0), Valore(S("IPE 200")));
    EXPECT_TRUE(Vuoto(f.Leggi(2, 0)));
    EXPECT_EQ(f.Leggi(3, 0), Valore(1.0));
}

TEST(LeggiXls, EmptyCellsLogicalValuesErrorsAndTextsInPlace) {
    const Foglio f = CartellaAMano()
                         .Cella(cellaVuota, 0, 0, {})
                         .Cella(celleVuote, 0, 1, Ottetti().U16(stile).U16(stile).U16(2))
                         .Cella(Biff::BoolErr, 1, 0, Ottetti().U8(1).U8(0))
                         .Cella(Biff::BoolErr, 1, 1, Ottetti().U8(0x2A).U8(1)) // #N/A
                         .Cella(testoInCella, 2, 0, Ottetti().U16(3).U8(0).Testo(u"HEA", 0, 3, true))
                         .Cella(testoInCella, 2, 1, Ottetti().U16(1).U8(1).Testo(u"\u20AC", 0, 1, false))
                         .Legge();
    for (const std::size_t c : {0U, 1U, 2U})
        EXPECT_TRUE(Vuoto(f.Leggi(0, c)));
    EXPECT_EQ(f.Leggi(1, 0), Valore(1.0));
    EXPECT_TRUE(Vuoto(f.Leggi(1, 1)));
    EXPECT_EQ(f.Leggi(2, 0), Valore(S("HEA")));
    EXPECT_EQ(f.Leggi(2, 1), Valore(S("\u20AC")));
}

/// What LeggiXls says of a file with these bytes.
S ErroreDi(const S& byte) {
    const prove::CartellaDiProva dir;
    const auto file = dir.percorso / "Sagomi.xls";
    prove::ScriveByte(file, byte);
    try {
        LeggiXls(file);
    } catch (const ErroreCatalogo& e) {
        const S inizio = "Errore nella lettura di \"" + file.string() + "\": ";
        EXPECT_THAT(e.what(), testing::StartsWith(inizio));
        return S(e.what()).substr(inizio.size());
    }
    return "nessun errore";
}

S CartellaBuona() {
    const prove::CartellaDiProva dir;
    CartellaDati c;
    Foglio f{"IPE", {}};
    for (std::size_t r = 0; r < 300; ++r)
        for (std::size_t k = 0; k < 5; ++k)
            f.Scrivi(r, k,
                     k == 0 ? Valore("IPE " + std::to_string(r)) : Valore(static_cast<double>(r) + 0.333));
    c.fogli.push_back(f);
    ScriviXls(c, dir.percorso / "a.xls");
    return prove::LeggeByte(dir.percorso / "a.xls");
}

TEST(LeggiXls, TellsWhatIsWrongWithAFile) {
    EXPECT_EQ(ErroreDi(CartellaBuona()), "nessun errore");
    EXPECT_EQ(ErroreDi(""), "il file non è una cartella di lavoro .xls.");
    EXPECT_EQ(ErroreDi("designation,g (Kg/m)\nIPE 80,6\n"), "il file non è una cartella di lavoro .xls.");
    EXPECT_EQ(ErroreDi(ContenitoreOle("Altro", std::vector<std::uint8_t>(5000, 1))),
              "il file non contiene una cartella di lavoro.");
    S danno = CartellaBuona();
    danno[512 + 22] = 99; // the second record of the stream runs over its end
    danno[512 + 23] = 99;
    EXPECT_THAT(ErroreDi(danno), HasSubstr("danneggiata"));
}

TEST(LeggiXls, MissingFileAndFolder) {
    const prove::CartellaDiProva dir;
    for (const auto& file : {dir.percorso / "Sagomi.xls", dir.percorso}) {
        try {
            LeggiXls(file);
            FAIL();
        } catch (const ErroreCatalogo& e) {
            EXPECT_EQ(S(e.what()), "Errore nella lettura di \"" + file.string() + "\": il file non esiste.");
        }
    }
}

TEST(LeggiXls, PasswordIsTold) {
    const auto prova = [] { CartellaAMano().Sciolto(parolaOrdine, Ottetti().U16(1)).Legge(); };
    EXPECT_THAT(prova, testing::ThrowsMessage<ErroreCatalogo>(HasSubstr("protetto da una parola d'ordine")));
}

TEST(LeggiXls, DamageAnywhereIsAnErrorOrSomeValuesButNeverACrash) {
    const S buona = CartellaBuona();
    std::uint32_t caso = 12345;
    const auto sorte = [&caso](std::size_t n) {
        caso = caso * 1664525U + 1013904223U;
        return static_cast<std::size_t>(caso >> 8U) % n;
    };
    int rifiutate = 0;
    for (int i = 0; i < 400; ++i) {
        S danno = buona;
        if (i % 3 == 0)
            danno.resize(sorte(danno.size()));
        for (int k = 0; k < 12 && i % 3 != 0; ++k)
            danno[sorte(i % 3 == 1 ? danno.size() : 3000)] = static_cast<char>(sorte(256));
        rifiutate += ErroreDi(danno) != "nessun errore" ? 1 : 0;
    }
    EXPECT_GT(rifiutate, 200);
}

} // namespace
