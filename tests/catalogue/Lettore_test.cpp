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

} // namespace
