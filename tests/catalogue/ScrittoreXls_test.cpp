#include "catalogue/ScrittoreXls.h"

#include <cmath>
#include <limits>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

#include "DiscoVolatile.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "DiscoVolatile.h"
#include "Fogli.h"
#include "Guasti.h"
#include "catalogue/CartellaXls.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/LettoreXls.h"
#include "catalogue/SagomoUtente.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using prove::FoglioDi;
using testing::HasSubstr;

namespace {

using S = std::string;
constexpr double nonNumero = std::numeric_limits<double>::quiet_NaN();

void AspettaUguali(const CartellaDati& letta, const CartellaDati& scritta) {
    ASSERT_EQ(letta.fogli.size(), scritta.fogli.size());
    for (std::size_t f = 0; f < scritta.fogli.size(); ++f) {
        const Foglio& a = letta.fogli[f];
        const Foglio& b = scritta.fogli[f];
        EXPECT_EQ(a.nome, b.nome);
        const std::size_t righe = std::max(a.righe.size(), b.righe.size());
        for (std::size_t r = 0; r < righe; ++r)
            for (std::size_t c = 0; c < 256; ++c)
                ASSERT_EQ(a.Legge(r, c), b.Legge(r, c)) << b.nome << " riga " << r << " colonna " << c;
    }
}

CartellaDati Rilegge(const CartellaDati& cartella, const std::filesystem::path& file) {
    ScriveXls(cartella, file);
    return LeggeXls(file);
}

TEST(ScriveXls, EveryKindOfCellComesBack) {
    const prove::CartellaDiProva dir;
    CartellaDati c;
    c.fogli.push_back(FoglioDi("DoppioT Simmetrico", {{S("designation"), S("h (mm)"), S("note")},
                                                      {S("A 1"), 300.0, S("perch\u00E9 no")},
                                                      {S("A 2"), -97.5, {}},
                                                      {},
                                                      {S("\u20AC \u03BB \U0001F529"), 3.691, S("12,5")}}));
    c.fogli.push_back(FoglioDi("\u03A3 acciaio", {{1.0, 0.1, 1e-300, 1.7976931348623157e308, -0.0, 1e15}}));
    c.fogli.push_back(Foglio{"Vuoto", {}});
    AspettaUguali(Rilegge(c, dir.percorso / "u.xls"), c);
}

TEST(ScriveXls, WidthAndLengthOfASheet) {
    const prove::CartellaDiProva dir;
    CartellaDati c;
    Foglio f{"x", {}};
    f.Scrive(0, 255, S("IV1"));
    f.Scrive(65535, 0, 65536.0);
    f.Scrive(40000, 17, S("in mezzo"));
    c.fogli.push_back(f);
    const CartellaDati letta = Rilegge(c, dir.percorso / "u.xls");
    EXPECT_EQ(letta.fogli[0].Legge(0, 255), Valore(S("IV1")));
    EXPECT_EQ(letta.fogli[0].Legge(65535, 0), Valore(65536.0));
    EXPECT_EQ(letta.fogli[0].Legge(40000, 17), Valore(S("in mezzo")));
}

TEST(ScriveXls, ManyLongTextsOverManyRecords) {
    const prove::CartellaDiProva dir;
    CartellaDati c;
    Foglio f{"testi", {}};
    for (std::size_t r = 0; r < 600; ++r) {
        S t = std::to_string(r);
        for (std::size_t i = 0; i < r * 13 % 997; ++i)
            t += r % 4 == 0 ? "\u20AC" : (r % 4 == 1 ? "\u00E8" : (r % 4 == 2 ? "x" : "\U0001F529"));
        f.Scrive(r, r % 5, t);
    }
    S lungo;
    for (int i = 0; i < 32767; ++i)
        lungo += "\u20AC";
    f.Scrive(600, 0, lungo);
    c.fogli.push_back(f);
    AspettaUguali(Rilegge(c, dir.percorso / "u.xls"), c);
}

TEST(ScriveXls, ManyNumbersComeBackToTheBit) {
    const prove::CartellaDiProva dir;
    CartellaDati c;
    Foglio f{"numeri", {}};
    for (std::size_t r = 0; r < 2000; ++r) {
        const auto i = static_cast<double>(r);
        f.Scrive(r, 0, i / 10);
        f.Scrive(r, 1, i / 100);
        f.Scrive(r, 2, i / 1000);
        f.Scrive(r, 3, i * 1e5);
        f.Scrive(r, 4, std::exp(i / 40 - 20));
        f.Scrive(r, 5, -i / 7);
    }
    c.fogli.push_back(f);
    AspettaUguali(Rilegge(c, dir.percorso / "u.xls"), c);
}

TEST(ScriveXls, WhatIsNoNumberOrNoTextLeavesTheCellEmpty) {
    const prove::CartellaDiProva dir;
    CartellaDati c;
    c.fogli.push_back(FoglioDi("x", {{1.0, nonNumero, std::numeric_limits<double>::infinity(), S(), 2.0}}));
    const CartellaDati letta = Rilegge(c, dir.percorso / "u.xls");
    EXPECT_EQ(letta.fogli[0].Legge(0, 0), Valore(1.0));
    for (const std::size_t colonna : {1U, 2U, 3U})
        EXPECT_TRUE(Vuoto(letta.fogli[0].Legge(0, colonna)));
    EXPECT_EQ(letta.fogli[0].Legge(0, 4), Valore(2.0));
}

TEST(ScriveXls, DatesStayDates) {
    const prove::CartellaDiProva dir;
    CartellaDati c;
    // 45000 is 15 March 2023; spreadsheets count a 29 February 1900 as 60
    c.fogli.push_back(FoglioDi("x", {{1.0, 59.0, 60.0, 61.0, 45000.0, 45000.75, 0.5}}));
    for (Cella& cella : c.fogli[0].righe[0])
        cella.genere = GenereNumero::Data;
    c.fogli[0].righe[0][5].genere = GenereNumero::DataOra;
    c.fogli[0].righe[0][6].genere = GenereNumero::Ora;
    const CartellaDati letta = Rilegge(c, dir.percorso / "u.xls");
    AspettaUguali(letta, c);
    const auto& riga = letta.fogli[0].righe[0];
    EXPECT_EQ(riga[4].genere, GenereNumero::Data);
    EXPECT_EQ(riga[5].genere, GenereNumero::DataOra);
    EXPECT_EQ(riga[6].genere, GenereNumero::Ora);
}

TEST(ScriveXls, RewritingKeepsEverySheetAndCell) {
    const prove::CartellaDiProva dir;
    const auto file = dir.percorso / "SagomiUtente.xls";
    CartellaDati c;
    c.fogli.push_back(FoglioDi("DoppioT Simmetrico", {{S("designation"), S("h (mm)")}, {S("A"), 300.0}}));
    c.fogli.push_back(FoglioDi("DoppioT Asimmetrico", {{S("designation"), S("h (mm)")}}));
    c.fogli.push_back(FoglioDi("Appunti miei", {{}, {{}, S("non toccare"), 3.25}}));
    CartellaDati letta = Rilegge(c, file);
    letta.fogli[0].Scrive(2, 0, S("B"));
    letta.fogli[0].Scrive(2, 1, 412.5);
    c.fogli[0].Scrive(2, 0, S("B"));
    c.fogli[0].Scrive(2, 1, 412.5);
    AspettaUguali(Rilegge(letta, file), c);
}

TEST(ScriveXls, SmallestWorkbookIsReadToo) {
    const prove::CartellaDiProva dir;
    CartellaDati c;
    c.fogli.push_back(FoglioDi("a", {{1.0}}));
    AspettaUguali(Rilegge(c, dir.percorso / "u.xls"), c);
    EXPECT_GE(ComponeBiff(c).size(), 4096U);
}

TEST(ScriveXls, SameContentsSameBytes) {
    const prove::CartellaDiProva dir;
    CartellaDati c;
    c.fogli.push_back(FoglioDi("a", {{S("designation")}, {S("IPE 80")}}));
    ScriveXls(c, dir.percorso / "1.xls");
    ScriveXls(c, dir.percorso / "2.xls");
    EXPECT_EQ(prove::LeggeByte(dir.percorso / "1.xls"), prove::LeggeByte(dir.percorso / "2.xls"));
    EXPECT_EQ(dir.Voci(), 2); // nothing left beside them
}

struct CasoRifiutato {
    const char* nome;
    CartellaDati cartella;
    const char* testo;
};
void PrintTo(const CasoRifiutato& c, std::ostream* os) { *os << c.nome; }

class RifiutaTest : public testing::TestWithParam<CasoRifiutato> {};

TEST_P(RifiutaTest, TellsWhatTheFormatCannotHoldAndLeavesTheOldFile) {
    const prove::CartellaDiProva dir;
    const auto file = dir.percorso / "u.xls";
    prove::ScriveByte(file, "vecchio");
    try {
        ScriveXls(GetParam().cartella, file);
        FAIL() << "nessun errore";
    } catch (const ErroreCatalogo& e) {
        EXPECT_THAT(e.what(), HasSubstr("u.xls"));
        EXPECT_THAT(e.what(), HasSubstr(GetParam().testo));
    }
    EXPECT_EQ(prove::LeggeByte(file), "vecchio");
    EXPECT_EQ(dir.Voci(), 1);
}

CartellaDati ConFogli(std::vector<S> nomi) {
    CartellaDati c;
    for (S& nome : nomi)
        c.fogli.push_back(Foglio{std::move(nome), {}});
    return c;
}

CartellaDati ConCella(std::size_t riga, std::size_t colonna, Valore v) {
    CartellaDati c = ConFogli({"x"});
    c.fogli[0].Scrive(riga, colonna, std::move(v));
    return c;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Limiti, RifiutaTest, testing::Values(
    CasoRifiutato{"nessunFoglio",  {},                            "non ha fogli"},
    CasoRifiutato{"nomeVuoto",     ConFogli({""}),                "non ha da 1 a 31 caratteri"},
    CasoRifiutato{"nomeLungo",     ConFogli({S(32, 'a')}),        "non ha da 1 a 31 caratteri"},
    CasoRifiutato{"nomeVietato",   ConFogli({"a[b"}),             "caratteri non ammessi"},
    CasoRifiutato{"apostrofo",     ConFogli({"'a"}),              "caratteri non ammessi"},
    CasoRifiutato{"nomeDoppio",    ConFogli({"IPE", "ipe"}),      "compare due volte"},
    CasoRifiutato{"troppeRighe",   ConCella(65536, 0, 1.0),       "più di 65536 righe"},
    CasoRifiutato{"troppeColonne", ConCella(0, 256, 1.0),         "più di 256 colonne"},
    CasoRifiutato{"testoLungo",    ConCella(0, 0, S(32768, 'x')),  "testo di 32768 caratteri"}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(ScriveXls, NameOf31CharactersIsFine) {
    const prove::CartellaDiProva dir;
    const CartellaDati c = ConFogli({S(29, 'a') + "\u00E8\u20AC"});
    EXPECT_EQ(Rilegge(c, dir.percorso / "u.xls").fogli[0].nome, c.fogli[0].nome);
}

TEST(ScriveXls, TellsWhyAFileCannotBeWritten) {
    const prove::CartellaDiProva dir;
    const CartellaDati c = ConFogli({"x"});
    const auto testo = [&](const std::filesystem::path& file) {
        try {
            ScriveXls(c, file);
        } catch (const ErroreCatalogo& e) {
            return S(e.what());
        }
        return S("nessun errore");
    };
    EXPECT_EQ(testo(dir.percorso / "manca" / "u.xls"), "Errore nella scrittura di \"" +
                                                           (dir.percorso / "manca" / "u.xls").string() +
                                                           "\": la cartella non esiste.");
    std::filesystem::create_directory(dir.percorso / "u.xls");
    EXPECT_THAT(testo(dir.percorso / "u.xls"), HasSubstr("al suo posto c'è una cartella"));
    const auto gia = dir.percorso / "gia.xls";
    ScriveXls(c, gia);
    {
        const prove::DiscoPieno disco(100); // also where a file is there already
        EXPECT_THAT(testo(dir.percorso / "v.xls"), HasSubstr("il disco non accetta i dati"));
        EXPECT_THAT(testo(gia), HasSubstr("il disco non accetta i dati"));
    }
    EXPECT_EQ(Rilegge(c, gia).fogli.size(), 1U);
    const prove::CartellaChiusa chiusa(dir.percorso);
    EXPECT_THAT(testo(dir.percorso / "v.xls"), HasSubstr("accesso negato"));
}

TEST(ComponeBiff, PassesItsOwnCheck) {
    CartellaDati c;
    c.fogli.push_back(FoglioDi("a", {{S("designation"), S("h (mm)")}, {S("IPE 80"), 80.0}}));
    const auto flusso = ComponeBiff(c);
    EXPECT_EQ(CartellaXls(flusso).Legge(0).Celle(), 4U);
}

TEST(ComponeBiff, ListOfSheetsPointsAtThem) {
    CartellaDati c = ConFogli({"uno", "due", "tre"});
    c.fogli[1].Scrive(0, 0, S("designation"));
    const auto record = prove::LeggeRecord(ComponeBiff(c));
    int voci = 0;
    for (const auto& r : record)
        if (r.E(Biff::BoundSheet)) {
            const std::uint32_t posto = r.U32(0);
            EXPECT_TRUE(std::any_of(record.begin(), record.end(), [posto](const prove::RecordProva& b) {
                return b.posizione == posto && b.E(Biff::Bof) && b.U16(2) == 0x0010;
            }));
            ++voci;
        }
    EXPECT_EQ(voci, 3);
}

// Flushed before it takes the old one's place, the folder flushed behind it.
TEST(ScrittoreXls, SavesStepByStep) {
    prove::DiscoVolatile disco;
    ScriveXls(CartellaUtenteVuota(), "/cartella/che/manca/x.xls");
    std::vector<prove::DiscoVolatile::Passo> passi;
    for (const auto& voce : disco.Diario())
        if (voce.passo != prove::DiscoVolatile::Passo::Scrive)
            passi.push_back(voce.passo);
    using enum prove::DiscoVolatile::Passo;
    EXPECT_EQ(passi, (std::vector{Crea, Svuota, Chiude, Rinomina, SvuotaCartella}));
}

} // namespace
