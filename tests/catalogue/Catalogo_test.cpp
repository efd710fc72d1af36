#include "catalogue/Catalogo.h"

#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fogli.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/ScrittoreXls.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using prove::FoglioDi;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using S = std::string;

class CatalogoTest : public testing::Test {
protected:
    std::shared_ptr<Catalogo> Con(std::vector<Foglio> fogli) {
        ScriviXls({std::move(fogli)}, file);
        return Catalogo::Apri(file);
    }
    static S Errore(const Catalogo& c, const char* query) {
        try {
            static_cast<void>(c.Esegui(query));
        } catch (const ErroreCatalogo& e) {
            return e.what();
        }
        return "";
    }
    prove::CartellaDiProva dir;
    std::filesystem::path file = dir.percorso / "Sagomi.xls";
};

TEST_F(CatalogoTest, SheetsAreTablesUnderTheirQueryNames) {
    const auto c = Con({FoglioDi("IPE", {{S("designation"), S("Wy (cm3)")}, {S("IPE 80"), 20.0}}),
                        FoglioDi("L Uguali", {{S("designation"), S("g (kg/m)")}, {S("L 20x20x3"), 0.882}})});
    const EsitoQuery ipe = c->Esegui("SELECT * FROM [IPE$] ORDER BY [Wy (cm3)]");
    EXPECT_THAT(ipe.campi, ElementsAre("designation", "Wy (cm3)"));
    EXPECT_THAT(ipe.righe, ElementsAre(ElementsAre(Valore(S("IPE 80")), Valore(20.0))));
    const EsitoQuery angoli = c->Esegui("SELECT * FROM ['L Uguali'$] ORDER BY [g (Kg/m)]");
    EXPECT_THAT(angoli.campi, ElementsAre("designation", "g (kg/m)")); // as the sheet writes it
    EXPECT_EQ(angoli.righe.at(0).at(1), Valore(0.882));
    EXPECT_EQ(c->Esegui("SELECT * FROM [ipe$]").righe.size(), 1U);
}

TEST_F(CatalogoTest, ValuesKeepTheirKind) {
    const auto c =
        Con({FoglioDi("x", {{S("a"), S("b"), S("c")}, {1.0, S("12"), {}}, {S("1"), 2.5, S("\u20AC")}})});
    const EsitoQuery e = c->Esegui("SELECT *, typeof(a), typeof(b), typeof(c) FROM [x$]");
    EXPECT_THAT(e.righe, ElementsAre(ElementsAre(Valore(1.0), Valore(S("12")), Valore(), Valore(S("real")),
                                                 Valore(S("text")), Valore(S("null"))),
                                     ElementsAre(Valore(S("1")), Valore(2.5), Valore(S("\u20AC")),
                                                 Valore(S("text")), Valore(S("real")), Valore(S("text")))));
}

TEST_F(CatalogoTest, EmptyRowsArePassedOverAndTheRowOfTheSheetIsKept) {
    const auto c = Con({FoglioDi("x", {{S("a")}, {1.0}, {}, {{}}, {2.0}, {}})});
    const EsitoQuery e = c->Esegui("SELECT _rowid_, a FROM [x$]");
    EXPECT_THAT(e.righe,
                ElementsAre(ElementsAre(Valore(2.0), Valore(1.0)), ElementsAre(Valore(5.0), Valore(2.0))));
}

TEST_F(CatalogoTest, HeadingsMissingDoubledNumbersAndBlanks) {
    const auto c = Con({FoglioDi(
        "x", {{S(" g (Kg/m) "), {}, S("G (kg/M)"), 7.5, S("due \"a\"")}, {1.0, 2.0, 3.0, 4.0, 5.0, 6.0}})});
    EXPECT_THAT(c->Esegui("SELECT * FROM [x$]").campi,
                ElementsAre("g (Kg/m)", "F2", "G (kg/M)1", "7.5", "due \"a\"", "F6"));
}

TEST_F(CatalogoTest, SheetWithoutRowsOrWithoutAnything) {
    const auto c = Con({FoglioDi("x", {{S("a"), S("b")}}), Foglio{"vuoto", {}}});
    EXPECT_THAT(c->Esegui("SELECT * FROM [x$]").campi, ElementsAre("a", "b"));
    EXPECT_TRUE(c->Esegui("SELECT * FROM [x$]").righe.empty());
    EXPECT_THAT(c->Esegui("SELECT * FROM [vuoto$]").campi, ElementsAre("F1"));
}

TEST_F(CatalogoTest, UnionIsOneListSortedAcrossBoth) {
    const auto c = Con(
        {FoglioDi("HEA", {{S("designation"), S("Wy (cm3)")}, {S("HEA 100"), 72.76}, {S("HEA 120"), 106.3}}),
         FoglioDi("IPE", {{S("designation"), S("Wy (cm3)")}, {S("IPE 160"), 108.7}, {S("IPE 140"), 77.32}})});
    const EsitoQuery e = c->Esegui("SELECT * FROM [HEA$] UNION SELECT * FROM [IPE$] ORDER BY [Wy (cm3)] ASC");
    std::vector<Valore> nomi;
    for (const auto& riga : e.righe)
        nomi.push_back(riga[0]);
    EXPECT_THAT(nomi, ElementsAre(Valore(S("HEA 100")), Valore(S("IPE 140")), Valore(S("HEA 120")),
                                  Valore(S("IPE 160"))));
}

TEST_F(CatalogoTest, FailingQueriesNameTheFileAndWhatIsMissing) {
    const auto c =
        Con({FoglioDi("IPE", {{S("designation"), S("Wy (cm3)")}}), FoglioDi("HSD", {{S("Designation")}})});
    const S inizio = "Errore nella lettura di \"" + file.string() + "\": ";
    EXPECT_EQ(Errore(*c, "SELECT * FROM [HEB$]"), inizio + "manca il foglio \"HEB\".");
    EXPECT_EQ(Errore(*c, "SELECT * FROM ['L Uguali'$]"), inizio + "manca il foglio \"L Uguali\".");
    EXPECT_EQ(Errore(*c, "SELECT * FROM [IPE$] ORDER BY [Iy (cm4)]"),
              inizio + "manca la colonna \"Iy (cm4)\".");
    EXPECT_EQ(Errore(*c, "SELECT * FROM [IPE$] UNION SELECT * FROM [HSD$]"),
              inizio + "i fogli scelti non hanno le stesse colonne.");
    EXPECT_EQ(Errore(*c, "SELECT * FROM [IPE$] UNION SELECT * FROM [IPE$] ORDER BY [Iy (cm4)]"),
              inizio + "i fogli non hanno la colonna secondo cui ordinare.");
    EXPECT_THAT(Errore(*c, "SELEKT"), HasSubstr("l'interrogazione non riesce ("));
}

TEST_F(CatalogoTest, OnlyReads) {
    const auto c = Con({FoglioDi("IPE", {{S("designation")}, {S("IPE 80")}})});
    for (const char* query : {"", "DROP TABLE [IPE$]", "DELETE FROM [IPE$]", "SELECT 1; DROP TABLE [IPE$]"})
        EXPECT_THAT(Errore(*c, query), HasSubstr("non è un SELECT")) << query;
    EXPECT_EQ(c->Esegui("SELECT * FROM [IPE$];").righe.size(), 1U);
}

TEST_F(CatalogoTest, ReadOnceWhileHeldAndAgainWhenTheFileChanges) {
    const auto primo = Con({FoglioDi("IPE", {{S("designation")}, {S("IPE 80")}})});
    EXPECT_EQ(Catalogo::Apri(file), primo);
    const auto secondo = Con({FoglioDi("IPE", {{S("designation")}, {S("IPE 80")}, {S("IPE 100")}})});
    EXPECT_NE(secondo, primo);
    EXPECT_EQ(secondo->Esegui("SELECT * FROM [IPE$]").righe.size(), 2U);
    EXPECT_EQ(primo->Esegui("SELECT * FROM [IPE$]").righe.size(), 1U); // who holds the old one keeps it
    std::filesystem::remove(file);
    EXPECT_THROW(Catalogo::Apri(file), ErroreCatalogo);
}

TEST_F(CatalogoTest, MissingOrDamagedWorkbook) {
    EXPECT_THAT([&] { Catalogo::Apri(file); },
                testing::ThrowsMessage<ErroreCatalogo>(HasSubstr("il file non esiste")));
    prove::ScriveByte(file, "non sono una cartella");
    EXPECT_THAT([&] { Catalogo::Apri(file); },
                testing::ThrowsMessage<ErroreCatalogo>(HasSubstr("non è una cartella di lavoro .xls")));
}

TEST(FileAccanto, WhateverTheCapitals) {
    const prove::CartellaDiProva dir;
    EXPECT_EQ(FileAccanto(dir.percorso, "Sagomi.xls"),
              dir.percorso / "Sagomi.xls"); // not there: as asked for
    prove::ScriveByte(dir.percorso / "SAGOMI.XLS", "");
    EXPECT_EQ(FileAccanto(dir.percorso, "Sagomi.xls"), dir.percorso / "SAGOMI.XLS");
    prove::ScriveByte(dir.percorso / "Sagomi.xls", "");
    EXPECT_EQ(FileAccanto(dir.percorso, "Sagomi.xls"), dir.percorso / "Sagomi.xls"); // the exact one first
    EXPECT_EQ(FileAccanto(dir.percorso / "manca", "Sagomi.xls"), dir.percorso / "manca" / "Sagomi.xls");
}

TEST(RendiSolaLettura, TakesTheRightToWriteAndNeverFails) {
    const prove::CartellaDiProva dir;
    const auto file = dir.percorso / "Sagomi.xls";
    prove::ScriveByte(file, "");
    std::filesystem::permissions(file, std::filesystem::perms(0664));
    RendiSolaLettura(file);
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0444));
    RendiSolaLettura(dir.percorso / "manca.xls");
}

} // namespace
