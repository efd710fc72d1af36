#include "catalogue/ScritturaRighe.h"

#include <chrono>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fogli.h"
#include "Guasti.h"
#include "catalogue/Lettore.h"
#include "catalogue/LettoreXls.h"
#include "catalogue/ScrittoreXls.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using testing::HasSubstr;

namespace {

using S = std::string;

/// A workbook with two sheets, the second one with something beyond the table.
class ScritturaRigheTest : public testing::Test {
protected:
    ScritturaRigheTest() {
        Foglio note = prove::FoglioDi("Appunti", {{S("da fare"), 12.5}, {{}, S("perché €")}});
        note.righe[0][1].genere = GenereNumero::Data;
        ScriveXls(
            {{note, prove::FoglioDi("Due parole",
                                    {{S("nome"), S("h")}, {S("a"), 1.0}, {}, {S("b"), 2.0, S("nota mia")}})}},
            file);
    }

    EsitoScrittura Scrive(const std::vector<RigaScritta>& righe) const {
        return ScriveRighe(file, ImprontaDi(file), "'Due parole'$", righe);
    }

    [[nodiscard]] Foglio Secondo() const { return LeggeXls(file).fogli.at(1); }

    prove::CartellaDiProva dir;
    std::filesystem::path file = dir.percorso / "u.xls";
};

TEST_F(ScritturaRigheTest, ARowIsRewrittenWhereItLies) {
    EXPECT_THAT(Scrive({{3, {S("c"), 3.0}}}).righe, testing::ElementsAre(3U));
    const Foglio f = Secondo();
    EXPECT_EQ(f.Legge(3, 0), Valore(S("c")));
    EXPECT_EQ(f.Legge(3, 1), Valore(3.0));
    EXPECT_EQ(f.Legge(3, 2), Valore(S("nota mia"))) << "what lies beyond the fields stays";
    EXPECT_EQ(f.Legge(1, 0), Valore(S("a")));
}

// A row is written whole: the user's own columns beyond those of the program with it.
TEST_F(ScritturaRigheTest, ACellThatKeepsItsValueKeepsItsFormat) {
    CartellaDati cartella = LeggeXls(file);
    Foglio& sheet = cartella.fogli.at(1);
    sheet.Scrive(3, 3, 45000.0);
    sheet.righe[3][3].genere = GenereNumero::Data;
    ScriveXls(cartella, file);
    Scrive({{3, {S("b"), 9.0, S("nota mia"), 45000.0}}});
    EXPECT_EQ(Secondo().Legge(3, 1), Valore(9.0));
    EXPECT_EQ(Secondo().righe[3][3].genere, GenereNumero::Data);
    EXPECT_EQ(Secondo().Legge(3, 3), Valore(45000.0));
}

TEST_F(ScritturaRigheTest, NewRowsGoBehindTheLastWithAValue) {
    EXPECT_THAT(Scrive({{{}, {S("d"), 4.0}}, {{}, {S("d"), 5.0}}}).righe, testing::ElementsAre(4U, 5U));
    EXPECT_EQ(Secondo().Legge(5, 1), Valore(5.0));
    EXPECT_EQ(Secondo().righe.size(), 6U);
}

TEST_F(ScritturaRigheTest, OtherSheetsStay) {
    const CartellaDati prima = LeggeXls(file);
    Scrive({{{}, {S("d")}}});
    const Foglio note = LeggeXls(file).fogli.at(0);
    EXPECT_EQ(note.nome, "Appunti");
    EXPECT_EQ(note.Legge(0, 1), Valore(12.5));
    EXPECT_EQ(note.righe[0][1].genere, GenereNumero::Data);
    EXPECT_EQ(note.Legge(1, 1), Valore(S("perché €")));
    EXPECT_EQ(dir.Voci(), 1);
}

TEST_F(ScritturaRigheTest, AWorkbookChangedByOthersIsLeftAlone) {
    const ImprontaFile letta = ImprontaDi(file);
    Scrive({{{}, {S("altrui")}}});
    const S prima = prove::LeggeByte(file);
    EXPECT_THROW(ScriveRighe(file, letta, "'Due parole'$", {{{}, {S("mia")}}}), CartellaCambiata);
    EXPECT_EQ(prove::LeggeByte(file), prima);
    EXPECT_EQ(dir.Voci(), 1) << "no temporary file";
}

TEST_F(ScritturaRigheTest, TheStateAfterwardsServesTheNextWriting) {
    const EsitoScrittura prima = Scrive({{{}, {S("d")}}});
    EXPECT_NO_THROW(ScriveRighe(file, prima.impronta, "'due PAROLE'$", {{{}, {S("e")}}}));
    EXPECT_EQ(Secondo().Legge(5, 0), Valore(S("e")));
}

TEST_F(ScritturaRigheTest, WhatCannotBeWrittenSaysWhy) {
    const auto causa = [this](std::string_view tabella, std::size_t riga) -> S {
        try {
            ScriveRighe(file, ImprontaDi(file), tabella, {{riga, {S("x")}}});
            return "";
        } catch (const ErroreCatalogo& e) {
            return e.what();
        }
    };
    EXPECT_THAT(causa("manca$", 1), HasSubstr("manca il foglio manca$."));
    EXPECT_THAT(causa("'Due parole'$", 65536), HasSubstr("il foglio \"Due parole\" è pieno."));
    prove::ScriveByte(dir.percorso / ".~lock.u.xls#", ",utente;");
    EXPECT_THAT(causa("'Due parole'$", 1), HasSubstr("è aperto in un altro programma"));
    std::filesystem::remove(dir.percorso / ".~lock.u.xls#");
    std::filesystem::remove(file);
    EXPECT_THAT(causa("'Due parole'$", 1), HasSubstr("u.xls\""));
}

TEST_F(ScritturaRigheTest, AFullDiskLosesNoRow) {
    const S before = prove::LeggeByte(file);
    {
        const prove::DiscoPieno full(1000);
        EXPECT_THROW(Scrive({{{}, {S("c"), 3.0}}}), ErroreCatalogo);
    }
    EXPECT_EQ(prove::LeggeByte(file), before);
    EXPECT_EQ(dir.Voci(), 1);
    Scrive({{{}, {S("c"), 3.0}}});
    EXPECT_EQ(Secondo().Legge(4, 0), Valore(S("c")));
}

// What another program, or a hand, has put in the workbook's place since it was read.
TEST_F(ScritturaRigheTest, AFolderOrAPipeInItsPlaceIsTold) {
    const ImprontaFile read = ImprontaDi(file);
    for (const prove::AlPosto what : prove::ogniAlPosto) {
        std::filesystem::remove(file);
        prove::Mette(what, file);
        EXPECT_THROW(ScriveRighe(file, read, "'Due parole'$", {{1, {S("x")}}}), ErroreCatalogo);
        EXPECT_THROW(ScriveRighe(file, ImprontaDi(file), "'Due parole'$", {{1, {S("x")}}}), ErroreCatalogo);
    }
}

/// A reader on the second sheet.
class LettoreCheScrive : public ScritturaRigheTest {
protected:
    LettoreCheScrive() {
        lettore.DatabaseName(file);
        lettore.TabellaModificabile("'Due parole'$");
        Legge("SELECT * FROM ['Due parole'$]");
    }
    void Legge(const S& query) {
        lettore.RecordSource(query);
        lettore.Refresh();
    }
    Lettore lettore;
};

TEST_F(LettoreCheScrive, KnowsTheFieldsAndThePlacesOfItsRows) {
    EXPECT_EQ(lettore.Campi(), 3);
    EXPECT_EQ(lettore.Righe(), 2);
    EXPECT_EQ(lettore.RigaDelFoglio(0), 1U);
    EXPECT_EQ(lettore.RigaDelFoglio(1), 3U) << "an empty row lies between";
    Legge("SELECT * FROM ['Due parole'$] ORDER BY [h] DESC");
    EXPECT_EQ(lettore.RigaDelFoglio(0), 3U);
    EXPECT_EQ(lettore.RecordSource(), "SELECT * FROM ['Due parole'$] ORDER BY [h] DESC");
}

TEST_F(LettoreCheScrive, ANewRowIsTheLastWhateverTheOrder) {
    Legge("SELECT * FROM ['Due parole'$] ORDER BY [h] DESC");
    int annunci = 0;
    lettore.rigaCambiata = [&annunci] { ++annunci; };
    lettore.AddNew();
    lettore.Campo(0, S("z"));
    lettore.Campo(1, 9.0);
    lettore.Update();
    EXPECT_EQ(annunci, 0);
    EXPECT_EQ(lettore.RigaCorrente(), 0);
    lettore.MoveLast();
    EXPECT_EQ(lettore.Testo(0), "z");
    EXPECT_EQ(lettore.RigaDelFoglio(2), 4U);
    EXPECT_EQ(Secondo().Legge(4, 1), Valore(9.0));
    lettore.Edit(); // the new row can be changed at once
    lettore.Campo(1, 8.0);
    lettore.Update();
    EXPECT_EQ(Secondo().Legge(4, 1), Valore(8.0));
    EXPECT_EQ(lettore.Numero(1), 8);
}

TEST_F(LettoreCheScrive, AChangedRowStaysInHand) {
    lettore.MoveLast();
    lettore.Edit();
    lettore.Campo(0, S("a")); // as the first row
    lettore.Update();
    EXPECT_EQ(lettore.RigaCorrente(), 1);
    EXPECT_EQ(Secondo().Legge(3, 0), Valore(S("a")));
    EXPECT_EQ(Secondo().Legge(3, 2), Valore(S("nota mia")));
}

TEST_F(LettoreCheScrive, AFailureChangesNothing) {
    Scrive({{1, {S("altrui")}}});
    lettore.Edit();
    lettore.Campo(0, S("mia"));
    EXPECT_THROW(lettore.Update(), CartellaCambiata);
    EXPECT_EQ(lettore.Testo(0), "a");
    EXPECT_THROW(lettore.Update(), ErroreCatalogo) << "nothing is being written any more";
    EXPECT_THROW(lettore.Campo(0, S("x")), std::out_of_range);
    lettore.Refresh();
    EXPECT_EQ(lettore.Testo(0), "altrui");
}

TEST_F(LettoreCheScrive, RowsThatCanOnlyBeReadRefuse) {
    lettore.TabellaModificabile({});
    lettore.Refresh();
    EXPECT_THROW(lettore.Edit(), ErroreCatalogo);
    EXPECT_THROW(lettore.AddNew(), ErroreCatalogo);
    lettore.TabellaModificabile("'Due parole'$");
    lettore.RecordSource("SELECT [h] FROM ['Due parole'$]");
    EXPECT_THROW(lettore.Refresh(), ErroreCatalogo);
}

} // namespace
