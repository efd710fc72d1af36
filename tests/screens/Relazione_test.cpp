// The command "Relazione PDF..." of the check screens.
#include <QFile>
#include <QMenu>
#include <QTemporaryDir>

#include "frame/ui/FileDialogo.h"
#include "report/RelazioneSagomo.h"
#include "report/TestoRelazione.h"
#include "report/ui/ComandoRelazione.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class RelazioneTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        ImpostaChiedeRelazione([this](QWidget*, const QString& progetto) {
            proposto = progetto;
            return scelta;
        });
        ImpostaSceltaFile([this](QWidget*, std::string_view, const QString&, int, const QString& nome) {
            nomeProposto = nome;
            return file;
        });
    }
    void TearDown() override {
        ImpostaChiedeRelazione({});
        ImpostaSceltaFile({});
        QFile::remove(file);
        AmbienteSchermi::TearDown();
    }
    [[nodiscard]] bool EPdf() const {
        QFile pdf(file);
        return pdf.open(QIODevice::ReadOnly) && pdf.read(5) == "%PDF-";
    }
    Schermo& Aperta(const char* nome) {
        auto& main = dynamic_cast<SchermoSezione&>(Avvia());
        VaA(main, "IPE 300");
        Scrive(&main, "TxtNsd", "100");
        NavigaSchermi::Unico().Apre(QString::fromLatin1(nome), main);
        return Aperto(nome);
    }

    QTemporaryDir prova;
    QString file = prova.filePath("Relazione_test.pdf");
    QString proposto, nomeProposto;
    std::optional<SceltaRelazione> scelta = SceltaRelazione{MetaRelazione::Pdf, "Capannone"};
};

TEST_F(RelazioneTest, EveryCheckScreenWritesItsReport) {
    for (const char* nome : {"FrmVerifiche", "FrmPresFless", "FrmMsverg", "FrmMcRd"}) {
        Schermo& s = Aperta(nome);
        if (auto* length = s.findChild<QLineEdit*>("Txt_L"))
            length->setText("5");
        Preme(&s, "CmdRelazione");
        EXPECT_TRUE(EPdf()) << nome;
        EXPECT_TRUE(nomeProposto.contains("IPE 300")) << nomeProposto.toStdString();
        QFile::remove(file);
        s.close();
    }
    EXPECT_EQ(proposto, "Capannone") << "the project is kept";
}

TEST_F(RelazioneTest, TheFiguresAreThoseOfTheScreen) {
    Schermo& s = Aperta("FrmVerifiche");
    Scrive(&s, "TxtMysd", "50");
    const std::string testo = TestoRelazione(RelazioneSezione(Sezione(), "FrmVerifiche"));
    for (const char* nome : {"LblMNyRd", "LblMNzRd", "LblMysd"}) {
        const std::string valore = Scritta(&s, nome);
        EXPECT_NE(testo.find(valore.substr(valore.find_first_not_of(' '))), std::string::npos) << nome << '\n'
                                                                                               << testo;
    }
    EXPECT_NE(testo.find("Resistenza della sezione: " + Scritta(&s, "Lbl_Risultato3_0")), std::string::npos)
        << testo;
}

TEST_F(RelazioneTest, GivingUpWritesNothing) {
    Schermo& s = Aperta("FrmVerifiche");
    scelta.reset();
    Preme(&s, "CmdRelazione");
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(RelazioneTest, WithoutResultsThereIsNoReport) {
    Schermo& s = Aperta("FrmMsverg");
    Scrive(&s, "Txt_L", "-1");
    Preme(&s, "CmdRelazione");
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(RelazioneTest, BoltsAndWeldsWriteTheirs) {
    Schermo& main = Avvia();
    for (const char* nome : {"frmBulloni", "frmSaldature"}) {
        NavigaSchermi::Unico().Apre(QString::fromLatin1(nome), main);
        Preme(&Aperto(nome), "CmdRelazione");
        EXPECT_TRUE(EPdf()) << nome;
        QFile::remove(file);
        Aperto(nome).close();
    }
}

TEST_F(RelazioneTest, JointAndBeamHaveItInTheirMenu) {
    Schermo& main = Avvia();
    for (const char* nome : {"frmGiunti", "frmAcciaioCls"}) {
        NavigaSchermi::Unico().Apre(QString::fromLatin1(nome), main);
        const auto* entry = Aperto(nome).findChild<QAction*>("mnuRelazione");
        ASSERT_NE(entry, nullptr) << nome;
        EXPECT_EQ(entry->shortcut(), QKeySequence("Ctrl+E"));
    }
}

} // namespace
