#include "frame/ui/DocumentoSchermo.h"

#include <QFile>
#include <QMenu>

#include "frame/FileDati.h"
#include "frame/ui/AmbienteFinestre.h"
#include "frame/ui/ChiudiProgramma.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

struct SchermoProva : SchermoConFile {
    QWidget finestra;
    double valore = 0;
    bool riuscito = true;
    SchermoProva() { finestra.setObjectName(QStringLiteral("frmProva")); }
    void FileLeggeScrive(std::string_view modo, std::int16_t nFile) override {
        double altro = valore;
        riuscito = FileInOut(modo, nFile, {&altro});
        if (riuscito)
            valore = altro;
    }
    [[nodiscard]] bool FileRiuscito() const override { return riuscito; }
    [[nodiscard]] QString PrefissoTitolo() const override { return QStringLiteral("Prova - "); }
    QWidget* Finestra() override { return &finestra; }
};

class DocumentoSchermoTest : public AmbienteFinestre {
protected:
    void TearDown() override {
        ImpostaSceltaFile({});
        AmbienteFinestre::TearDown();
    }
    static void Risponde(const QString& chosen) {
        ImpostaSceltaFile(
            [chosen](QWidget*, std::string_view, const QString&, int, const QString&) { return chosen; });
    }
    [[nodiscard]] QString InCartella(const char* name) const {
        return cartella.filePath(QString::fromLatin1(name));
    }

    SchermoProva schermo;
    DocumentoSchermo* documento = new DocumentoSchermo(schermo, {"Prove", "Prv", "prv"});
};

const char* const domanda = "Prove: le modifiche non sono salvate.\nContinuare e perderle?";

TEST_F(DocumentoSchermoTest, NewDocumentHasNoFileAndNothingToLose) {
    EXPECT_EQ(schermo.finestra.windowTitle(), "Prova - ");
    EXPECT_TRUE(documento->File().isEmpty());
    EXPECT_TRUE(documento->PuoPerdere());
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(DocumentoSchermoTest, AsksBeforeWorkIsLost) {
    schermo.valore = 3;
    documento->Modifica();
    EXPECT_FALSE(documento->Nuovo([this] { schermo.valore = 0; })); // answered no
    EXPECT_FALSE(documento->Apre(InCartella("altro.prv")));
    EXPECT_EQ(schermo.valore, 3);
    EXPECT_TRUE(documento->Modificato());
    ASSERT_EQ(registratore.testi.size(), 2U);
    EXPECT_EQ(registratore.testi[0], domanda);
    const Registratore yes(true);
    EXPECT_TRUE(documento->Nuovo([this] { schermo.valore = 0; }));
    EXPECT_EQ(schermo.valore, 0);
    EXPECT_FALSE(documento->Modificato());
    ASSERT_EQ(yes.testi.size(), 1U);
}

TEST_F(DocumentoSchermoTest, SavingNamesTheFileAndEndsTheChanges) {
    schermo.valore = 3;
    documento->Modifica();
    Risponde(InCartella("uno"));
    ASSERT_TRUE(documento->Salva());
    EXPECT_EQ(schermo.finestra.windowTitle(), "Prova - uno.prv");
    EXPECT_EQ(documento->File(), InCartella("uno.prv"));
    EXPECT_FALSE(documento->Modificato());
    schermo.valore = 4;
    documento->Modifica();
    Risponde({});
    ASSERT_TRUE(documento->SalvaSubito()); // without a dialog
    ASSERT_TRUE(documento->Nuovo([this] { schermo.valore = 0; }));
    EXPECT_EQ(schermo.finestra.windowTitle(), "Prova - ");
    Risponde(InCartella("uno.prv"));
    ASSERT_TRUE(documento->Apre());
    EXPECT_EQ(schermo.valore, 4);
    EXPECT_FALSE(documento->Modificato());
}

TEST_F(DocumentoSchermoTest, FileThatIsNotWholeChangesNothing) {
    Risponde(InCartella("uno.prv"));
    ASSERT_TRUE(documento->Salva());
    QFile broken(InCartella("rotto.prv"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.close();
    schermo.valore = 7;
    documento->Modifica();
    const Registratore yes(true);
    EXPECT_FALSE(documento->Apre(InCartella("rotto.prv")));
    EXPECT_EQ(schermo.valore, 7);
    EXPECT_TRUE(documento->Modificato());
    EXPECT_EQ(documento->File(), InCartella("uno.prv"));
    EXPECT_EQ(schermo.finestra.windowTitle(), "Prova - uno.prv");
}

TEST_F(DocumentoSchermoTest, ListsTheFilesLastUsed) {
    QMenu menu;
    documento->CollegaRecenti(menu);
    EXPECT_FALSE(menu.isEnabled());
    for (const char* name : {"uno.prv", "due.prv"}) {
        Risponde(InCartella(name));
        schermo.valore += 1;
        ASSERT_TRUE(documento->Salva());
    }
    ASSERT_EQ(menu.actions().size(), 2);
    EXPECT_EQ(menu.actions()[0]->text(), "&1 due.prv");
    EXPECT_EQ(menu.actions()[1]->objectName(), "mnuRecenti_1");
    menu.actions()[1]->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(schermo.valore, 1);
    EXPECT_EQ(menu.actions()[0]->text(), "&1 uno.prv");
    ASSERT_TRUE(QFile::remove(InCartella("due.prv")));
    EXPECT_FALSE(documento->Apre(InCartella("due.prv")));
    EXPECT_TRUE(registratore.testi.back().starts_with("Non è possibile leggere il file "));
    EXPECT_EQ(menu.actions().size(), 1); // gone, it is not offered again
    EXPECT_EQ(FileRecenti()[QStringLiteral("frmProva")], QStringList{InCartella("uno.prv")});
}

TEST_F(DocumentoSchermoTest, ProgramDoesNotCloseOverUnsavedWork) {
    documento->Modifica();
    EXPECT_FALSE(ChiudiProgramma());
    EXPECT_FALSE(ChiusuraInCorso);
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_EQ(registratore.testi[0], domanda);
    ServerAttivo = true; // the work is the user's, also where a client has opened the program
    EXPECT_FALSE(ChiudiProgramma());
    const Registratore yes(true);
    EXPECT_TRUE(ChiudiProgramma());
}

} // namespace
