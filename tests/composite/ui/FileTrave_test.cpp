// The files of the composite screen, and what is asked before a beam is lost.

#include <QFile>

#include <cmath>

#include "AmbienteTravi.h"
#include "composite/AcciaioCls.h"
#include "frame/ui/ChiudiProgramma.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

const char* const domanda = "AcciaioCls: le modifiche non sono salvate.\nContinuare e perderle?";

class FileTraveTest : public AmbienteTravi {
protected:
    /// A saved beam on a deck with parallel ribs.
    void Salva() {
        Apre();
        Grecata(2);
        Sceglie("OpTipoVerifica", 3);
        Scrive({{"Txt_M", "-123.4567"}, {"txtTitolo", "Trave \"A\""}});
        RispondeFile(InCartella("uno"));
        Menu("mnuFileItem_2");
    }
    [[nodiscard]] QByteArray Letto(const char* nome) const {
        QFile file(InCartella(nome));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
};

TEST_F(FileTraveTest, SavesTheShortRecordAndSevenLinesUnderItsName) {
    Salva();
    EXPECT_EQ(f->windowTitle(), "AcciaioCls/Flessione - File: uno.sco");
    const QByteArrayList lines = Letto("uno.sco").split('\n');
    ASSERT_EQ(lines.size(), 3 + 7 + 1);
    EXPECT_EQ(lines[0], "\"IPE 300\",\"S235 (Fe360)\",235\r");
    EXPECT_EQ(lines[3], "\"Trave ''A''\"\r");
    EXPECT_EQ(lines[4], "2,3\r");
    EXPECT_EQ(lines[5], "120,1200,1000,30,15,25,430\r");
    EXPECT_EQ(lines[6], "55,60,90,200,80\r");
}

TEST_F(FileTraveTest, WhatIsWrittenIsRead) {
    Salva();
    const float Msd = f->Trave().Msd.Stretto();
    const QByteArray bytes = Letto("uno.sco");
    Menu("mnuFileNuovo");
    EXPECT_EQ(f->windowTitle(), "AcciaioCls/Flessione - File: ");
    EXPECT_EQ(Legge("txtDati_1"), "");
    EXPECT_TRUE(Trova<QRadioButton>(f, "OptTipoSoletta_0")->isChecked());
    RispondeFile(InCartella("uno.sco"));
    Menu("mnuFileItem_1");
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_TRUE(Trova<QRadioButton>(f, "OptTipoSoletta_2")->isChecked());
    EXPECT_TRUE(Trova<QRadioButton>(f, "OpTipoVerifica_3")->isChecked());
    EXPECT_TRUE(Trova<QWidget>(f, "FrameLamiera")->isVisible());
    EXPECT_TRUE(Trova<QWidget>(f, "frMetodoN")->isVisible());
    EXPECT_EQ(Legge("txtTitolo"), "Trave ''A''");
    EXPECT_NEAR(Valore("Txt_M"), -123.4567, 1e-6);
    EXPECT_EQ(f->Trave().Msd.Stretto(), Msd);
    EXPECT_EQ(Valore("TxtLam_4"), 80);
    EXPECT_EQ(SezioneInUso<SezioneDoppioT>(), f->Trave().Sezione.get());
    EXPECT_EQ(f->windowTitle(), "AcciaioCls/Flessione - File: uno.sco");
    Menu("mnuFileSubito");
    EXPECT_EQ(Letto("uno.sco"), bytes);
}

TEST_F(FileTraveTest, FileThatIsNotWholeLeavesTheBeam) {
    Salva();
    QFile broken(InCartella("rotto.sco"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write(Letto("uno.sco").left(160));
    broken.close();
    Scrive({{"txtDati_1", "140"}, {"Txt_fck", "30"}});
    RispondeFile(InCartella("rotto.sco"));
    const Registratore yes(true);
    Menu("mnuFileItem_1");
    ASSERT_EQ(yes.testi.size(), 3U);
    EXPECT_EQ(yes.testi[0], "uno.sco: le modifiche non sono salvate.\nContinuare e perderle?");
    EXPECT_EQ(yes.testi[1], "Lettura incompleta del file");
    EXPECT_EQ(Valore("txtDati_1"), 140);
    EXPECT_EQ(fck, 30);
    EXPECT_EQ(f->windowTitle(), "AcciaioCls/Flessione - File: uno.sco");
}

TEST_F(FileTraveTest, SavingLeavesNoImpossibleMaterialInForce) {
    Apre();
    Piena();
    Scrive({{"Txt_fck", "6000"}});
    RispondeFile(InCartella("sei"));
    Menu("mnuFileItem_2");
    EXPECT_EQ(fck, 25);
    EXPECT_EQ(Valore("Txt_fck"), 6000);
}

TEST_F(FileTraveTest, AsksBeforeNewOpenAndClose) {
    Apre();
    f->close(); // nothing has been entered
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_TRUE(partenza->isVisible());
    Trova<QAction>(partenza, "mnuAcciaioCls")->trigger();
    Piena();
    Menu("mnuFileNuovo");
    Menu("mnuFileItem_1");
    f->close();
    EXPECT_FALSE(ChiudiProgramma());
    EXPECT_EQ(registratore.testi, std::vector<std::string>(4, domanda));
    EXPECT_TRUE(f->isVisible());
    EXPECT_EQ(Valore("txtDati_1"), 120);
    Menu("mnuFileItem_3"); // going back loses nothing and asks nothing
    EXPECT_EQ(registratore.testi.size(), 4U);
    Trova<QAction>(partenza, "mnuAcciaioCls")->trigger();
    EXPECT_EQ(Valore("txtDati_1"), 120);
    const Registratore yes(true);
    f->close();
    EXPECT_EQ(yes.testi, std::vector<std::string>{domanda});
    EXPECT_TRUE(partenza->isVisible());
    Trova<QAction>(partenza, "mnuAcciaioCls")->trigger();
    EXPECT_EQ(Legge("txtDati_1"), "") << "closing drops the beam";
}

TEST_F(FileTraveTest, AnotherSteelForABeamOfAFileIsAChange) {
    Salva();
    f->Calcola();
    Menu("mnuFileItem_3");
    VaA(*partenza, "IPE 400");
    Trova<QAction>(partenza, "mnuAcciaioCls")->trigger();
    EXPECT_EQ(Legge("Txt_Prof_0"), "IPE 400");
    EXPECT_EQ(Legge("Txt_Jid"), "") << "the results were those of the other steel";
    EXPECT_FALSE(ChiudiProgramma());
    EXPECT_EQ(registratore.testi.size(), 1U);
}

TEST_F(FileTraveTest, ClosingTheBeamTakesTheStudsAlong) {
    Apre();
    Piena();
    Preme(f, "cmdConnessioni");
    Schermo& studs = Aperto("frmConnettori");
    const Registratore yes(true);
    f->close();
    EXPECT_FALSE(studs.isVisible());
    EXPECT_TRUE(partenza->isVisible());
}

TEST_F(FileTraveTest, RecentFilesOpenAgain) {
    Salva();
    Menu("mnuFileNuovo");
    Menu("mnuRecenti_0");
    QCoreApplication::processEvents();
    EXPECT_EQ(Valore("txtDati_1"), 120);
    EXPECT_EQ(f->windowTitle(), "AcciaioCls/Flessione - File: uno.sco");
}

TEST_F(FileTraveTest, FolderThatCannotBeWrittenLosesNothing) {
    Apre();
    Piena();
    RispondeFile(InCartella("manca/due"));
    Menu("mnuFileItem_2");
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_TRUE(registratore.testi[0].starts_with("Non è possibile scrivere il file "))
        << registratore.testi[0];
    EXPECT_EQ(f->windowTitle(), "AcciaioCls/Flessione - File: ");
    EXPECT_FALSE(ChiudiProgramma()) << "it is still unsaved";
}

} // namespace
