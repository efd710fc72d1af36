#include "catalogue/Lettore.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fogli.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/ScrittoreXls.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using prove::FoglioDi;

namespace {

using S = std::string;

/// Three rows of which the second and the third have the same name; an empty sheet beside them.
class LettoreTest : public testing::Test {
protected:
    void SetUp() override {
        ScriveXls({{FoglioDi("IPE", {{S("designation"), S("h (mm)"), S("nota")},
                                     {S("IPE 80"), 80.0, S("1.234,5 x")},
                                     {S("IPE 100"), 100.0, {}},
                                     {S("IPE 100"), 97.5, S("altro")}}),
                    FoglioDi("Vuoto", {{S("designation"), S("h (mm)"), S("nota")}})}},
                  file);
        lettore.DatabaseName(file);
        lettore.RecordSource("SELECT * FROM [IPE$]");
        lettore.rigaCambiata = [this] {
            ++annunci;
            riga = lettore.RigaCorrente();
        };
        lettore.Refresh();
    }
    prove::CartellaDiProva dir;
    std::filesystem::path file = dir.percorso / "Sagomi.xls";
    Lettore lettore;
    int annunci = 0;
    int riga = -1;
};

TEST_F(LettoreTest, RefreshGoesToTheFirstRowAndTellsOnce) {
    EXPECT_EQ(annunci, 1);
    EXPECT_EQ(riga, 0);
    EXPECT_EQ(lettore.Righe(), 3);
    EXPECT_EQ(lettore.Campi(), 3);
    EXPECT_EQ(lettore.NomeCampo(1), "h (mm)");
    EXPECT_FALSE(lettore.BOF());
    EXPECT_FALSE(lettore.EOF_());
    lettore.MoveLast();
    lettore.Refresh();
    EXPECT_EQ(lettore.RigaCorrente(), 0);
    EXPECT_EQ(annunci, 3);
}

TEST_F(LettoreTest, FieldsByPosition) {
    EXPECT_EQ(lettore.Campo(0), Valore(S("IPE 80")));
    EXPECT_EQ(lettore.Numero(1), 80);
    EXPECT_EQ(lettore.Testo(1), "80");
    EXPECT_EQ(lettore.Testo(0), "IPE 80");
    EXPECT_EQ(lettore.Numero(0), 0); // a text that begins with no number
    EXPECT_EQ(lettore.Cella(2, 1), Valore(97.5));
    lettore.MoveNext();
    EXPECT_EQ(lettore.Numero(2), 0); // empty
    EXPECT_EQ(lettore.Testo(2), "");
}

TEST_F(LettoreTest, NumbersFollowTheSystemsSeparators) {
    const prove::ConSeparatori italiani(u',', u'.');
    EXPECT_EQ(lettore.Numero(2), 1234.5); // the text 1.234,5
    lettore.MoveLast();
    EXPECT_EQ(lettore.Testo(1), "97,5");
    EXPECT_EQ(lettore.Numero(1), 97.5); // a number is one whatever the separators
}

TEST_F(LettoreTest, WhatIsNotThereThrows) {
    EXPECT_THROW(static_cast<void>(lettore.Campo(3)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(lettore.Campo(-1)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(lettore.NomeCampo(3)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(lettore.NomeCampo(-1)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(lettore.Cella(3, 0)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(lettore.Cella(-1, 0)), std::out_of_range);
    EXPECT_EQ(lettore.Riga(2).size(), 3U);
    EXPECT_THROW(static_cast<void>(lettore.Riga(3)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(lettore.Riga(-1)), std::out_of_range);
    EXPECT_THROW(lettore.MoveTo(3), std::out_of_range);
    EXPECT_THROW(lettore.MoveTo(-1), std::out_of_range);
    EXPECT_EQ(lettore.RigaCorrente(), 0);
}

TEST_F(LettoreTest, MovesTellOnceEachAlsoBetweenRowsOfOneName) {
    lettore.MoveNext();
    lettore.MoveNext();
    EXPECT_EQ(annunci, 3);
    EXPECT_EQ(lettore.RigaCorrente(), 2);
    lettore.MovePrevious();
    lettore.MoveFirst();
    lettore.MoveLast();
    lettore.MoveTo(1);
    EXPECT_EQ(annunci, 7);
    EXPECT_EQ(riga, 1);
}

TEST_F(LettoreTest, BehindTheLastRow) {
    lettore.MoveLast();
    annunci = 0;
    lettore.MoveNext();
    EXPECT_TRUE(lettore.EOF_());
    EXPECT_FALSE(lettore.BOF());
    EXPECT_EQ(annunci, 0);
    EXPECT_TRUE(Vuoto(lettore.Campo(0)));
    lettore.MoveNext();
    EXPECT_EQ(lettore.RigaCorrente(), 3);
    lettore.MovePrevious();
    EXPECT_EQ(lettore.RigaCorrente(), 2);
    EXPECT_EQ(annunci, 1);
}

TEST_F(LettoreTest, BeforeTheFirstRow) {
    annunci = 0;
    lettore.MovePrevious();
    EXPECT_TRUE(lettore.BOF());
    EXPECT_FALSE(lettore.EOF_());
    EXPECT_EQ(annunci, 0);
    EXPECT_EQ(lettore.Numero(1), 0);
    lettore.MovePrevious();
    EXPECT_EQ(lettore.RigaCorrente(), -1);
    lettore.MoveNext();
    EXPECT_EQ(lettore.RigaCorrente(), 0);
    EXPECT_EQ(annunci, 1);
}

TEST_F(LettoreTest, EmptyResult) {
    lettore.RecordSource("SELECT * FROM [Vuoto$]");
    annunci = 0;
    lettore.Refresh();
    EXPECT_TRUE(lettore.BOF());
    EXPECT_TRUE(lettore.EOF_());
    EXPECT_EQ(lettore.Campi(), 3);
    lettore.MoveFirst();
    lettore.MoveNext();
    lettore.MovePrevious();
    lettore.MoveLast();
    MuoviRecord(lettore, true);
    MuoviRecord(lettore, false);
    EXPECT_FALSE(lettore.CercaRecord("IPE 80"));
    EXPECT_TRUE(lettore.BOF());
    EXPECT_TRUE(lettore.EOF_());
    EXPECT_EQ(annunci, 0);
    EXPECT_TRUE(Vuoto(lettore.Campo(0)));
}

TEST_F(LettoreTest, NewReaderHasNoRow) {
    const Lettore nuovo;
    EXPECT_TRUE(nuovo.BOF());
    EXPECT_TRUE(nuovo.EOF_());
    EXPECT_EQ(nuovo.Righe(), 0);
    EXPECT_EQ(nuovo.Testo(0), "");
}

TEST_F(LettoreTest, FailingQueryLeavesEverythingAsItWas) {
    lettore.MoveTo(1);
    annunci = 0;
    lettore.RecordSource("SELECT * FROM [HEB$]");
    EXPECT_THROW(lettore.Refresh(), ErroreCatalogo);
    EXPECT_EQ(annunci, 0);
    EXPECT_EQ(lettore.RecordSource(), "SELECT * FROM [IPE$]");
    EXPECT_EQ(lettore.RigaCorrente(), 1);
    EXPECT_EQ(lettore.Numero(1), 100);
}

TEST_F(LettoreTest, FailingWorkbookLeavesEverythingAsItWas) {
    lettore.MoveTo(2);
    lettore.DatabaseName(dir.percorso / "SagomiUtente.xls");
    EXPECT_THROW(lettore.Refresh(), ErroreCatalogo);
    EXPECT_EQ(lettore.DatabaseName(), file);
    EXPECT_EQ(lettore.RigaCorrente(), 2);
    prove::ScriveByte(file, "rovinato");
    EXPECT_THROW(lettore.Refresh(), ErroreCatalogo);
    EXPECT_EQ(lettore.Righe(), 3);
}

TEST_F(LettoreTest, FirstRefreshThatFailsKeepsWhatWasAskedFor) {
    Lettore nuovo;
    nuovo.DatabaseName(dir.percorso / "manca.xls");
    nuovo.RecordSource("SELECT * FROM [IPE$]");
    EXPECT_THROW(nuovo.Refresh(), ErroreCatalogo);
    std::filesystem::copy_file(file, dir.percorso / "manca.xls");
    nuovo.Refresh(); // the workbook has come: no need to name it again
    EXPECT_EQ(nuovo.Righe(), 3);
}

TEST_F(LettoreTest, CercaRecordFindsTheFirstOfTheName) {
    lettore.MoveLast();
    annunci = 0;
    EXPECT_TRUE(lettore.CercaRecord("IPE 100"));
    EXPECT_EQ(lettore.RigaCorrente(), 1);
    EXPECT_EQ(annunci, 1);
    EXPECT_FALSE(lettore.CercaRecord("ipe 80"));
    EXPECT_EQ(lettore.RigaCorrente(), 2); // none: the last row
    EXPECT_EQ(annunci, 2);
}

TEST_F(LettoreTest, MuoviRecordStopsAtBothEnds) {
    annunci = 0;
    MuoviRecord(lettore, true);
    EXPECT_EQ(lettore.RigaCorrente(), 1);
    EXPECT_EQ(annunci, 1);
    MuoviRecord(lettore, true);
    MuoviRecord(lettore, true);
    EXPECT_EQ(lettore.RigaCorrente(), 2);
    EXPECT_FALSE(lettore.EOF_());
    EXPECT_EQ(annunci, 3);
    for (int i = 0; i < 4; ++i)
        MuoviRecord(lettore, false);
    EXPECT_EQ(lettore.RigaCorrente(), 0);
    EXPECT_FALSE(lettore.BOF());
}

TEST_F(LettoreTest, ReceiverMayMoveAndReplaceItself) {
    lettore.rigaCambiata = [this] {
        lettore.rigaCambiata = [this] { ++annunci; };
        lettore.MoveLast();
    };
    annunci = 0;
    lettore.MoveNext();
    EXPECT_EQ(lettore.RigaCorrente(), 2);
    EXPECT_EQ(annunci, 1);
}

TEST_F(LettoreTest, TheFirstRowIsFoundAndGoneTo) {
    lettore.MoveLast();
    EXPECT_TRUE(lettore.CercaRecord("IPE 80"));
    EXPECT_EQ(lettore.RigaCorrente(), 0);
    lettore.MoveLast();
    lettore.MoveTo(0);
    EXPECT_EQ(lettore.RigaCorrente(), 0);
}

TEST_F(LettoreTest, WhatIsNotThereIsToldWithItsBounds) {
    const auto detto = [](const auto& chiede) {
        try {
            chiede();
        } catch (const std::out_of_range& e) {
            return S(e.what());
        }
        return S();
    };
    EXPECT_EQ(detto([&] { lettore.MoveTo(3); }), "riga 3 fuori da 0..2");
    EXPECT_EQ(detto([&] { static_cast<void>(lettore.NomeCampo(-1)); }), "campo -1 fuori da 0..2");
    EXPECT_EQ(detto([&] { static_cast<void>(lettore.Cella(1, 5)); }), "campo 5 fuori da 0..2");
    EXPECT_EQ(detto([&] { lettore.Campo(1, 1.0); }), "campo 1 fuori da 0..-1") << "nothing is being written";
}

TEST_F(LettoreTest, RowsAreFoundByANumberToo) {
    ScriveXls({{FoglioDi("N", {{S("n"), S("m")}, {100.0, 1.0}, {97.5, 2.0}, {100.0, 3.0}})}}, file);
    lettore.RecordSource("SELECT * FROM [N$]");
    lettore.Refresh();
    EXPECT_TRUE(lettore.CercaRecord("97.5"));
    EXPECT_EQ(lettore.RigaCorrente(), 1);
    EXPECT_TRUE(lettore.CercaRecord("100"));
    EXPECT_EQ(lettore.RigaCorrente(), 0);
    EXPECT_FALSE(lettore.CercaRecord("97"));
}

// A text in quotation marks that is no column orders nothing: the rows stay as they stand.
TEST_F(LettoreTest, AnOrderByNoColumnLeavesTheRows) {
    ScriveXls({{FoglioDi("N", {{S("n"), S("m")}, {3.0, 1.0}, {1.0, 2.0}, {2.0, 3.0}})}}, file);
    for (const char* ordine : {"'niente'", "[_rowid_]"}) {
        lettore.RecordSource(S("SELECT * FROM [N$] ORDER BY ") + ordine);
        lettore.Refresh();
        ASSERT_EQ(lettore.Righe(), 3);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(lettore.Cella(i, 1), Valore(i + 1.0)) << ordine;
    }
}

/// The same rows as before, but to be changed.
TEST_F(LettoreTest, RowsInHandBecomeOnesThatCanBeChanged) {
    lettore.RecordSource("SELECT * FROM [IPE$] ORDER BY [h (mm)]");
    lettore.Refresh();
    EXPECT_THROW(lettore.Edit(), ErroreCatalogo);
    EXPECT_THROW(lettore.AddNew(), ErroreCatalogo);
    EXPECT_THROW(lettore.Update(), ErroreCatalogo);
    lettore.TabellaModificabile("IPE$");
    lettore.Refresh();
    EXPECT_EQ(lettore.RigaDelFoglio(0), 1U); // IPE 80 stands behind the headings
    EXPECT_EQ(lettore.RigaDelFoglio(1), 3U); // 97.5 before 100
    EXPECT_THROW(static_cast<void>(lettore.RigaDelFoglio(3)), ErroreCatalogo);
    EXPECT_THROW(static_cast<void>(lettore.RigaDelFoglio(-1)), ErroreCatalogo);
}

TEST_F(LettoreTest, AChangeStaysInItsPlace) {
    lettore.TabellaModificabile("IPE$");
    lettore.Refresh();
    for (const int i : {0, 1, 2}) {
        lettore.MoveTo(i);
        EXPECT_THROW(lettore.Campo(1, 1.0), std::out_of_range) << "nothing is being written";
        lettore.Edit();
        lettore.Campo(1, 200.0 + i);
        lettore.Campo(0, S("x"));
        for (const int fuori : {-1, 3, 4})
            EXPECT_THROW(lettore.Campo(fuori, 1.0), std::out_of_range) << fuori;
        const int lettura = lettore.Lettura();
        lettore.Update();
        EXPECT_NE(lettore.Lettura(), lettura);
        EXPECT_EQ(lettore.RigaCorrente(), i);
        EXPECT_EQ(lettore.Righe(), 3);
        EXPECT_EQ(lettore.Numero(1), 200 + i);
    }
    lettore.Refresh();
    for (const int i : {0, 1, 2})
        EXPECT_EQ(lettore.Cella(i, 1), Valore(200.0 + i));
}

TEST_F(LettoreTest, ANewRowComesBehindTheLastAndTheRowInHandStays) {
    lettore.TabellaModificabile("IPE$");
    lettore.Refresh();
    const auto nuova = [this](const char* nome) {
        lettore.AddNew();
        lettore.Campo(0, S(nome));
        lettore.Update();
        EXPECT_EQ(lettore.Cella(lettore.Righe() - 1, 0), Valore(S(nome)));
        EXPECT_TRUE(Vuoto(lettore.Cella(lettore.Righe() - 1, 2)));
    };
    nuova("a");
    EXPECT_EQ(lettore.RigaCorrente(), 0);
    lettore.MoveTo(1);
    nuova("b");
    EXPECT_EQ(lettore.RigaCorrente(), 1);
    lettore.MoveFirst();
    lettore.MovePrevious();
    nuova("c");
    EXPECT_TRUE(lettore.BOF());
    lettore.MoveLast();
    lettore.MoveNext();
    nuova("d");
    EXPECT_TRUE(lettore.EOF_());
    EXPECT_EQ(lettore.RigaDelFoglio(6), 7U);
    lettore.TabellaModificabile("Vuoto$");
    lettore.RecordSource("SELECT * FROM [Vuoto$]");
    lettore.Refresh();
    nuova("e");
    EXPECT_EQ(lettore.RigaCorrente(), 0) << "the only row is in hand";
    EXPECT_FALSE(lettore.EOF_());
}

/// Values of every kind, with many that are equal; what SQLite gives is the measure.
class OrdineRigheTest : public LettoreTest {
protected:
    static Foglio Misto(const S& nome, std::size_t passo) {
        Foglio f = FoglioDi(nome, {{S("a"), S("b"), S("n")}});
        const std::vector<Valore> valori = {3.0,  S("b"),  {},  -1.5, S("B"), -1E300,     S(""),
                                            1E-9, S("bb"), 0.0, -0.0, {},     S("\u00E8")};
        for (std::size_t i = 0; i < 60; ++i) {
            f.Scrive(i + 1, 0, valori[i * passo % valori.size()]);
            f.Scrive(i + 1, 1, valori[i * 5 % 11]);
            f.Scrive(i + 1, 2, double(i / 2)); // no row without a value
        }
        return f;
    }

    void SetUp() override {
        LettoreTest::SetUp();
        ScriveXls({{Misto("x", 7), Misto("y", 4)}}, file);
    }

    void Chiede(const S& query) {
        lettore.RecordSource(query);
        lettore.Refresh();
    }

    [[nodiscard]] std::vector<std::vector<Valore>> Righe() const {
        std::vector<std::vector<Valore>> righe;
        for (int i = 0; i < lettore.Righe(); ++i)
            righe.push_back(lettore.Riga(i));
        return righe;
    }
};

TEST_F(OrdineRigheTest, RowsInHandAreSortedAsSqliteSortsThem) {
    for (const char* fogli : {"SELECT * FROM [x$]", "SELECT * FROM [y$] UNION SELECT * FROM [x$]"}) {
        Chiede(S(fogli) + " ORDER BY [b]");
        const int lettura = lettore.Lettura();
        for (const char* colonna : {"a", "B", "n", "b"}) {
            const S query = S(fogli) + " ORDER BY [" + colonna + "] ASC";
            Chiede(query);
            EXPECT_EQ(Righe(), Catalogo::Apre(file)->Esegue(query).righe) << query;
            EXPECT_EQ(lettore.Lettura(), lettura) << "has been read again for " << query;
            EXPECT_EQ(lettore.RigaCorrente(), 0);
        }
    }
}

TEST_F(OrdineRigheTest, OtherRowsAndAChangedFileAreReadAgain) {
    Chiede("SELECT * FROM [x$] ORDER BY [a]");
    const int lettura = lettore.Lettura();
    Chiede("SELECT * FROM [y$] ORDER BY [a]");
    EXPECT_NE(lettore.Lettura(), lettura);
    ScriveXls({{FoglioDi("y", {{S("a"), S("b")}, {2.0, 1.0}, {1.0, 2.0}})}}, file);
    Chiede("SELECT * FROM [y$] ORDER BY [b]");
    EXPECT_EQ(lettore.Righe(), 2);
    EXPECT_EQ(lettore.Numero(0), 2);
    Chiede("SELECT * FROM [y$] ORDER BY [a]");
    EXPECT_EQ(lettore.Numero(0), 1);
}

TEST_F(OrdineRigheTest, AColumnThatIsNotThereFailsAndTheOrderStays) {
    Chiede("SELECT * FROM [x$] ORDER BY [n]");
    lettore.MoveTo(7);
    const auto righe = Righe();
    lettore.RecordSource("SELECT * FROM [x$] ORDER BY [manca]");
    EXPECT_THROW(lettore.Refresh(), ErroreCatalogo);
    EXPECT_EQ(lettore.RecordSource(), "SELECT * FROM [x$] ORDER BY [n]");
    EXPECT_EQ(lettore.RigaCorrente(), 7);
    EXPECT_EQ(Righe(), righe);
}

TEST_F(OrdineRigheTest, RowsThatCanBeChangedKeepTheirPlaces) {
    lettore.TabellaModificabile("y$");
    for (const char* colonna : {"a", "b", "n"}) {
        Chiede(S("SELECT * FROM [y$] ORDER BY [") + colonna + "]");
        const EsitoQuery posti =
            Catalogo::Apre(file)->Esegue(S("SELECT _rowid_ FROM [y$] ORDER BY [") + colonna + "]");
        for (int i = 0; i < lettore.Righe(); ++i)
            EXPECT_EQ(double(lettore.RigaDelFoglio(i)) + 1, NumeroDi(posti.righe[std::size_t(i)][0])) << i;
    }
    lettore.MoveTo(5);
    lettore.Edit();
    lettore.Campo(2, 1000.0);
    lettore.Update();
    EXPECT_EQ(lettore.Numero(2), 1000);
    Chiede("SELECT * FROM [y$] ORDER BY [n]");
    lettore.MoveLast();
    EXPECT_EQ(lettore.Numero(2), 1000);
}

} // namespace
