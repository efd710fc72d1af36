#include "catalogue/Catalogo.h"

#include <chrono>
#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CartellaAMano.h"
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
        ScriveXls({std::move(fogli)}, file);
        return Catalogo::Apre(file);
    }
    static S Errore(const Catalogo& c, const char* query) {
        try {
            static_cast<void>(c.Esegue(query));
        } catch (const ErroreCatalogo& e) {
            EXPECT_EQ(e.Numero(), 0) << "the code of a library says nothing to the user";
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
    const EsitoQuery ipe = c->Esegue("SELECT * FROM [IPE$] ORDER BY [Wy (cm3)]");
    EXPECT_THAT(ipe.campi, ElementsAre("designation", "Wy (cm3)"));
    EXPECT_THAT(ipe.righe, ElementsAre(ElementsAre(Valore(S("IPE 80")), Valore(20.0))));
    const EsitoQuery angoli = c->Esegue("SELECT * FROM ['L Uguali'$] ORDER BY [g (Kg/m)]");
    EXPECT_THAT(angoli.campi, ElementsAre("designation", "g (kg/m)")); // as the sheet writes it
    EXPECT_EQ(angoli.righe.at(0).at(1), Valore(0.882));
    EXPECT_EQ(c->Esegue("SELECT * FROM [ipe$]").righe.size(), 1U);
}

TEST_F(CatalogoTest, ValuesKeepTheirKind) {
    const auto c =
        Con({FoglioDi("x", {{S("a"), S("b"), S("c")}, {1.0, S("12"), {}}, {S("1"), 2.5, S("\u20AC")}})});
    const EsitoQuery e = c->Esegue("SELECT *, typeof(a), typeof(b), typeof(c) FROM [x$]");
    EXPECT_THAT(e.righe, ElementsAre(ElementsAre(Valore(1.0), Valore(S("12")), Valore(), Valore(S("real")),
                                                 Valore(S("text")), Valore(S("null"))),
                                     ElementsAre(Valore(S("1")), Valore(2.5), Valore(S("\u20AC")),
                                                 Valore(S("text")), Valore(S("real")), Valore(S("text")))));
}

TEST_F(CatalogoTest, EmptyRowsArePassedOverAndTheRowOfTheSheetIsKept) {
    const auto c = Con({FoglioDi("x", {{S("a")}, {1.0}, {}, {{}}, {2.0}, {}})});
    const EsitoQuery e = c->Esegue("SELECT _rowid_, a FROM [x$]");
    EXPECT_THAT(e.righe,
                ElementsAre(ElementsAre(Valore(2.0), Valore(1.0)), ElementsAre(Valore(5.0), Valore(2.0))));
}

TEST_F(CatalogoTest, HeadingsMissingDoubledNumbersAndBlanks) {
    const auto c = Con({FoglioDi(
        "x", {{S(" g (Kg/m) "), {}, S("G (kg/M)"), 7.5, S("due \"a\"")}, {1.0, 2.0, 3.0, 4.0, 5.0, 6.0}})});
    EXPECT_THAT(c->Esegue("SELECT * FROM [x$]").campi,
                ElementsAre("g (Kg/m)", "F2", "G (kg/M)1", "7.5", "due \"a\"", "F6"));
}

TEST_F(CatalogoTest, SheetWithoutRowsOrWithoutAnything) {
    const auto c = Con({FoglioDi("x", {{S("a"), S("b")}}), Foglio{"vuoto", {}}});
    EXPECT_THAT(c->Esegue("SELECT * FROM [x$]").campi, ElementsAre("a", "b"));
    EXPECT_TRUE(c->Esegue("SELECT * FROM [x$]").righe.empty());
    EXPECT_THAT(c->Esegue("SELECT * FROM [vuoto$]").campi, ElementsAre("F1"));
}

TEST_F(CatalogoTest, UnionIsOneListSortedAcrossBoth) {
    const auto c = Con(
        {FoglioDi("HEA", {{S("designation"), S("Wy (cm3)")}, {S("HEA 100"), 72.76}, {S("HEA 120"), 106.3}}),
         FoglioDi("IPE", {{S("designation"), S("Wy (cm3)")}, {S("IPE 160"), 108.7}, {S("IPE 140"), 77.32}})});
    const EsitoQuery e = c->Esegue("SELECT * FROM [HEA$] UNION SELECT * FROM [IPE$] ORDER BY [Wy (cm3)] ASC");
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
    EXPECT_EQ(c->Esegue("SELECT * FROM [IPE$];").righe.size(), 1U);
}

TEST_F(CatalogoTest, ReadOnceWhileHeldAndAgainWhenTheFileChanges) {
    const auto primo = Con({FoglioDi("IPE", {{S("designation")}, {S("IPE 80")}})});
    EXPECT_EQ(Catalogo::Apre(file), primo);
    const auto secondo = Con({FoglioDi("IPE", {{S("designation")}, {S("IPE 80")}, {S("IPE 100")}})});
    EXPECT_NE(secondo, primo);
    EXPECT_EQ(secondo->Esegue("SELECT * FROM [IPE$]").righe.size(), 2U);
    EXPECT_EQ(primo->Esegue("SELECT * FROM [IPE$]").righe.size(), 1U); // who holds the old one keeps it
    std::filesystem::remove(file);
    EXPECT_THROW(Catalogo::Apre(file), ErroreCatalogo);
}

TEST_F(CatalogoTest, ASheetThatCannotBeReadHindersNoOtherQuery) {
    prove::ScriveByte(
        file, prove::CartellaAMano().Foglio(u"guasto").Numero(0, 300, 1).Foglio(u"x").Numero(1, 0, 7).File());
    const Catalogo c(file);
    EXPECT_EQ(c.Esegue("SELECT * FROM [x$]").righe.at(0).at(0), Valore(7.0));
    for (int volta = 0; volta < 2; ++volta)
        EXPECT_EQ(Errore(c, "SELECT * FROM [x$] UNION SELECT * FROM [guasto$]"),
                  "Errore nella lettura di \"" + file.string() +
                      "\": il foglio \"guasto\" è danneggiato (celle oltre la colonna 256).");
    EXPECT_EQ(c.Esegue("SELECT * FROM [x$]").righe.size(), 1U);
    EXPECT_THAT(Errore(c, "SELECT * FROM [manca$]"), HasSubstr("manca il foglio \"manca\""));
}

/// A plus before a column keeps SQLite from asking the table for the order: then it sorts by itself.
TEST_F(CatalogoTest, RowsComeInTheOrderThatSqliteWouldGive) {
    Foglio f = FoglioDi("x", {{S("a"), S("b")}});
    const std::vector<Valore> valori = {3.0,   S("b"),  {},  -1.5, S("B"), 3.0,
                                        S(""), S("bb"), 0.0, -0.0, {},     S("\u00E8")};
    for (std::size_t i = 0; i < 60; ++i) {
        f.Scrive(i + 1, 0, valori[i * 7 % valori.size()]);
        f.Scrive(i + 1, 1, valori[i * 5 % 11]);
    }
    const auto c = Con({f});
    const std::pair<const char*, const char*> casi[] = {
        {"ORDER BY a", "ORDER BY +a, _rowid_"},
        {"ORDER BY a DESC", "ORDER BY +a DESC, _rowid_"},
        {"ORDER BY b, a DESC", "ORDER BY +b, +a DESC, _rowid_"},
        {"ORDER BY b DESC, _rowid_ DESC", "ORDER BY +b DESC, +_rowid_ DESC"}};
    for (const auto& [nostro, suo] : casi)
        EXPECT_EQ(c->Esegue(S("SELECT _rowid_, * FROM [x$] ") + nostro).righe,
                  c->Esegue(S("SELECT _rowid_, * FROM [x$] ") + suo).righe)
            << nostro;
    EXPECT_EQ(c->Esegue("SELECT * FROM [x$] UNION SELECT * FROM [x$] ORDER BY a").righe,
              c->Esegue("SELECT DISTINCT a, b FROM [x$] ORDER BY +a, +b").righe);
    EXPECT_EQ(c->Esegue("SELECT * FROM [x$] ORDER BY a COLLATE NOCASE, _rowid_").righe,
              c->Esegue("SELECT * FROM [x$] ORDER BY +a COLLATE NOCASE, +_rowid_").righe);
}

/// Whole sheets do not go through SQLite. With a condition that always holds the same query does.
TEST_F(CatalogoTest, WholeSheetsComeAsSqliteGivesThem) {
    const std::vector<Valore> valori = {3.0, S("b"), {}, -1.5, S("B"), S("bb"), 0.0, -0.0, S("\u00E8")};
    std::vector<Foglio> fogli;
    for (std::size_t f = 0; f < 3; ++f) {
        Foglio& foglio = fogli.emplace_back(
            FoglioDi("foglio " + std::to_string(f), {{S("a"), S(f == 0 ? "b" : "B "), {}}}));
        for (std::size_t i = 0; i < 80; ++i) // some rows are empty, some equal, also to those of other sheets
            for (std::size_t c = 0; c < 3; ++c)
                foglio.Scrive(i + 1 + i / 20, c, valori[(i * (7 - c) / (c + 1) + f * c) % valori.size()]);
    }
    fogli.push_back(FoglioDi("largo", {{S("a"), S("b"), S("c"), S("d")}, {1.0, 2.0, 3.0, 4.0}}));
    const auto c = Con(fogli);
    const S uno = "SELECT * FROM ['foglio 0'$]";
    const S tre = uno + " UNION SELECT * FROM ['foglio 2'$] UNION SELECT * FROM ['foglio 1'$]";
    for (const S& query :
         {uno, uno + " ORDER BY [b]", uno + " ORDER BY [F3] ASC", tre + " ORDER BY [a]",
          tre + " ORDER BY [b] ASC", tre + " ORDER BY [F3]", tre, uno + " UNION " + uno + " ORDER BY [a]"}) {
        S suo = query; // "WHERE 1" behind each sheet
        for (std::size_t i = suo.find("$]"); i != S::npos; i = suo.find("$]", i + 2))
            suo.insert(i + 2, " WHERE 1");
        const EsitoQuery nostro = c->Esegue(query);
        const EsitoQuery atteso = c->Esegue(suo);
        EXPECT_EQ(nostro.campi, atteso.campi) << query;
        EXPECT_EQ(nostro.righe, atteso.righe) << query;
        EXPECT_GT(nostro.righe.size(), 20U) << query;
    }
    EXPECT_THAT(Errore(*c, (uno + " ORDER BY [manca]").c_str()), HasSubstr("manca la colonna \"manca\""));
    EXPECT_THAT(Errore(*c, (uno + " UNION SELECT * FROM [largo$] ORDER BY [a]").c_str()),
                HasSubstr("non hanno le stesse colonne"));
}

TEST_F(CatalogoTest, ConditionsAndJoins) {
    const auto c = Con({FoglioDi("x", {{S("a"), S("b")}, {1.0, S("u")}, {2.0, S("v")}, {3.0, {}}}),
                        FoglioDi("y", {{S("a"), S("c")}, {3.0, 30.0}, {1.0, 10.0}})});
    EXPECT_THAT(c->Esegue("SELECT b FROM [x$] WHERE a > 1 ORDER BY a DESC").righe,
                ElementsAre(ElementsAre(Valore()), ElementsAre(Valore(S("v")))));
    EXPECT_THAT(c->Esegue("SELECT x.a, y.c FROM [x$] x JOIN [y$] y ON x.a = y.a ORDER BY y.c").righe,
                ElementsAre(ElementsAre(Valore(1.0), Valore(10.0)), ElementsAre(Valore(3.0), Valore(30.0))));
    EXPECT_EQ(c->Esegue("SELECT count(*) FROM [x$]").righe.at(0).at(0), Valore(3.0));
}

TEST_F(CatalogoTest, HeldAlthoughNobodyElseDoesAndOnlyTheLastFew) {
    const std::weak_ptr<Catalogo> primo = Con({FoglioDi("IPE", {{S("designation")}})});
    EXPECT_FALSE(primo.expired());
    EXPECT_EQ(Catalogo::Apre(file), primo.lock());
    for (int i = 0; i < 4; ++i) {
        const auto altro = dir.percorso / (std::to_string(i) + ".xls");
        std::filesystem::copy_file(file, altro);
        Catalogo::Apre(altro);
    }
    EXPECT_TRUE(primo.expired());
}

TEST_F(CatalogoTest, HeldOneIsReadAgainWhenTheFileIsChangedInPlace) {
    const auto primo = Con({FoglioDi("IPE", {{S("designation")}, {S("IPE 80")}})});
    S byte = prove::LeggeByte(file);
    const auto ora = std::filesystem::last_write_time(file);
    prove::ScriveByte(file, byte);
    std::filesystem::last_write_time(file, ora); // the same to the last digit: not read again
    EXPECT_EQ(Catalogo::Apre(file), primo);
    std::filesystem::last_write_time(file, ora + std::chrono::milliseconds(1));
    EXPECT_NE(Catalogo::Apre(file), primo);
}

TEST_F(CatalogoTest, TheLongestTextsComeBack) {
    const S lungo(32767, 'x');
    const auto c = Con({FoglioDi("x", {{S("a")}, {lungo}})});
    EXPECT_EQ(c->Esegue("SELECT a FROM [x$]").righe.at(0).at(0), Valore(lungo));
}

TEST_F(CatalogoTest, MissingOrDamagedWorkbook) {
    EXPECT_THAT([&] { Catalogo::Apre(file); },
                testing::ThrowsMessage<ErroreCatalogo>(HasSubstr("il file non esiste")));
    prove::ScriveByte(file, "non sono una cartella");
    EXPECT_THAT([&] { Catalogo::Apre(file); },
                testing::ThrowsMessage<ErroreCatalogo>(HasSubstr("non è una cartella di lavoro .xls")));
}

// 300 rows by themselves are 90,000 pairs: some hundred thousand steps are no long query.
TEST_F(CatalogoTest, AQueryOfManyStepsIsAnswered) {
    Foglio f = FoglioDi("x", {{S("a")}});
    for (std::size_t i = 0; i < 300; ++i)
        f.Scrive(i + 1, 0, double(i));
    const auto c = Con({f});
    EXPECT_EQ(c->Esegue("SELECT count(*) FROM [x$] p, [x$] q WHERE p.a + q.a < 1000").righe.at(0).at(0),
              Valore(90000.0));
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

TEST(RendeSolaLettura, TakesTheRightToWriteAndNeverFails) {
    const prove::CartellaDiProva dir;
    const auto file = dir.percorso / "Sagomi.xls";
    prove::ScriveByte(file, "");
    std::filesystem::permissions(file, std::filesystem::perms(0664));
    RendeSolaLettura(file);
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0444));
    RendeSolaLettura(dir.percorso / "manca.xls");
}

TEST(RendeSolaLettura, NeverReachesThroughALink) {
    const prove::CartellaDiProva dir;
    prove::ScriveByte(dir.percorso / "altrui.xls", "");
    std::filesystem::permissions(dir.percorso / "altrui.xls", std::filesystem::perms(0664));
    std::filesystem::create_symlink("altrui.xls", dir.percorso / "Sagomi.xls");
    RendeSolaLettura(dir.percorso / "Sagomi.xls");
    EXPECT_EQ(std::filesystem::status(dir.percorso / "altrui.xls").permissions(),
              std::filesystem::perms(0664));
}

} // namespace
