// The reports of all screens, by their command and its question, read back from the PDF.
#include <QDialog>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdlib>
#include <memory>
#include <regex>
#include <string>
#include <vector>

#include "Guasti.h"
#include "TestoPdf.h"
#include "composite/ui/frmAcciaioCls.h"
#include "frame/VersioneProgramma.h"
#include "frame/ui/FileDialogo.h"
#include "joints/ui/AmbienteGiunti.h"
#include "report/Relazione.h"
#include "report/ui/ComandoRelazione.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class RelazioniPdfTest : public AmbienteGiunti {
protected:
    void SetUp() override {
        if (!ConLettorePdf())
            GTEST_SKIP() << "no pdftotext";
        AmbienteGiunti::SetUp();
        CopiaAccanto("FormuleGiunto.rtf");
        ImpostaSceltaFile(
            [this](QWidget*, std::string_view, const QString&, int, const QString&) { return file; });
    }
    void TearDown() override {
        ImpostaSceltaFile({});
        AmbienteGiunti::TearDown();
    }

    /// Types the project, presses the button that saves.
    void Risponde() {
        QTimer::singleShot(0, qApp, [this] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            chiesto = true;
            Trova<QLineEdit>(dialog, "TxtProgetto")->setText("Capannone à Sesto");
            for (auto* button : dialog->findChildren<QPushButton*>())
                if (button->text().contains("Salva PDF"))
                    button->click();
        });
    }

    /// The text of the report that the screen writes.
    std::string Riportato(const Schermo& s) {
        QFile::remove(file);
        chiesto = false;
        Risponde();
        if (auto* entry = s.findChild<QAction*>("mnuRelazione"))
            entry->trigger();
        else
            Preme(&s, "CmdRelazione");
        EXPECT_TRUE(chiesto) << "the project was asked for";
        if (const char* tieni = std::getenv("SAGOMI_TIENI_PDF")) // to be looked at
            QFile::copy(file, QString::fromUtf8(tieni) + u'/' + s.objectName() + ".pdf");
        return TestoPdf(file.toStdString());
    }

    /// The head on every page, the figures of these boxes, and verdicts.
    void Prova(const Schermo& s, const std::vector<const char*>& figure,
               const std::vector<const char*>& testi) {
        const std::string text = Riportato(s);
        std::size_t pages = 0;
        for (std::size_t at = text.find('\f'); at != std::string::npos; at = text.find('\f', at + 1))
            ++pages;
        for (const std::string& head : {std::string("Capannone à Sesto"), DataRelazione(),
                                        "Sagomi " + std::string(versioneProgramma)}) {
            std::size_t found = 0;
            for (std::size_t at = text.find(head); at != std::string::npos; at = text.find(head, at + 1))
                ++found;
            EXPECT_GE(found, pages) << head << " in " << s.objectName().toStdString();
        }
        for (const char* name : figure) {
            const QString shown = s.findChild<QWidget*>(name)->property("text").toString().trimmed();
            std::string value =
                QString(shown).replace(QChar(0x202f), u' ').toStdString(); // as pdftotext does
            EXPECT_FALSE(value.empty()) << name;
            std::erase(value, ',');
            std::string plain = text;
            std::erase(plain, ',');
            EXPECT_NE(plain.find(value), std::string::npos) << name << " = " << value << " in\n" << text;
        }
        for (const char* words : testi)
            EXPECT_TRUE(std::regex_search(text, std::regex(words))) << words << " in\n" << text;
    }

    QTemporaryDir prova;
    QString file = prova.filePath("relazione.pdf");
    bool chiesto = false;
};

TEST_F(RelazioniPdfTest, AJointHasItsComponentsAndItsMoment) {
    NodoT();
    Scrive("TxtL_Dx", "6");
    Scrive("TxtM_Dx", "20");
    Verifica2File();
    Preme(g, "cmdCalcola");
    Prova(*g,
          {"TxtMjRd", "TxtMel", "txtF1", "txtF2", "txtF5", "txtF8", "TxtVrd0", "TxtSj_0", "Textmc", "txtK_0"},
          {"HEB 200", "IPE 270", "Passi del calcolo", "ENV 1993-1-1 appendice J", "OK|NO", "governa [a-z]+"});
}

TEST_F(RelazioniPdfTest, ABeamHasItsMomentAndItsStuds) {
    auto& main = Avvia();
    VaA(main, "IPE 300");
    Trova<QAction>(&main, "mnuAcciaioCls")->trigger();
    auto& beam = dynamic_cast<frmAcciaioCls&>(Aperto("frmAcciaioCls"));
    for (const auto& [box, text] : {std::pair{"txtDati_1", "120"},
                                    {"txtDati_2", "1200"},
                                    {"txtDati_3", "1000"},
                                    {"txtDati_4", "30"},
                                    {"Txt_M", "150"}})
        prove::Scrive(&beam, box, text);
    NavigaSchermi::Unico().Apre("frmConnettori", beam);
    Schermo& studs = Aperto("frmConnettori");
    prove::Scrive(&studs, "txtInput_3", "8");
    Preme(&studs, "CmdProgetta");
    const std::string n = Testo(&studs, "txtn");
    const std::string spacing = Testo(&studs, "txtPasso");
    ASSERT_FALSE(n.empty());
    Prova(studs, {"txtn", "txtPasso"}, {"Connettori a piolo", "Trave mista", "OK"});
    prove::Scrive(&studs, "txtInput_3", "");
    Preme(&studs, "CmdRelazione");
    EXPECT_EQ(registratore.testi.back(), "Questo schermo non ha risultati da riportare.");
    prove::Scrive(&studs, "txtInput_3", "8");
    Preme(&studs, "CmdProgetta");
    studs.close();
    Prova(beam, {"Txt_MplRd", "Txt_NeutroPlastico", "Txt_MaplRd", "Txt_Vl"},
          {"Connettori a piolo", "IPE 300", "OK"});
    const std::string text = Riportato(beam);
    EXPECT_TRUE(std::regex_search(text, std::regex(" " + n + "\\s"))) << n << text;
    EXPECT_TRUE(std::regex_search(text, std::regex(" " + spacing + " +mm"))) << spacing << text;
}

TEST_F(RelazioniPdfTest, TheChecksOfASectionHaveTheirSteps) {
    auto& main = Avvia();
    VaA(main, "IPE 300");
    prove::Scrive(&main, "TxtNsd", "100");
    prove::Scrive(&main, "Txt_L0_0", "5");
    prove::Scrive(&main, "Txt_L0_1", "2.5");
    NavigaSchermi::Unico().Apre("FrmVerifiche", main);
    prove::Scrive(&Aperto("FrmVerifiche"), "TxtMysd", "50");
    Prova(Aperto("FrmVerifiche"), {"LblMNyRd", "LblMNzRd"},
          {"Verifica della sezione", "EC3 6\\.2\\.9", "IPE 300", "OK"});
    Aperto("FrmVerifiche").close();
    NavigaSchermi::Unico().Apre("FrmPresFless", main);
    Prova(Aperto("FrmPresFless"), {}, {"Verifica della membratura", "5\\.5\\.4", "OK"});
    NavigaSchermi::Unico().Apre("FrmMsverg", Aperto("FrmPresFless"));
    prove::Scrive(&Aperto("FrmMsverg"), "Txt_L", "5");
    Prova(Aperto("FrmMsverg"), {}, {"Verifica allo svergolamento", "Momento critico elastico", "OK"});
    Aperto("FrmMsverg").close();
    Aperto("FrmPresFless").close();
    NavigaSchermi::Unico().Apre("FrmMcRd", main);
    prove::Scrive(&Aperto("FrmMcRd"), "txtLstar", "2000");
    Prova(Aperto("FrmMcRd"), {"Lbl_McRd_0", "Lbl_McRd_1"}, {"Momento resistente", "Duttilità", "3274-2003"});
}

TEST_F(RelazioniPdfTest, AChannelHasItsMoments) {
    auto& main = Avvia();
    Trova<QAction>(&main, "mnuTipoU")->trigger();
    NavigaSchermi::Unico().Apre("FrmMcRd", Aperto("frmSagomiU"));
    Prova(Aperto("FrmMcRd"), {"Lbl_McRd_0", "Lbl_McRd_1"}, {"UPN", "Classificazione", "5\\.4\\.5"});
}

TEST_F(RelazioniPdfTest, ConnectionsHaveTheirResistances) {
    auto& main = Avvia();
    NavigaSchermi::Unico().Apre("frmBulloni", main);
    Prova(Aperto("frmBulloni"), {"Txt_FVRd", "Txt_FtRd"}, {"6\\.5\\.3"});
    NavigaSchermi::Unico().Apre("frmSaldature", main);
    Prova(Aperto("frmSaldature"), {"Txt_fvwd", "Txt_fu", "Txt_betaw"}, {"4\\.5\\.3"});
}

TEST_F(RelazioniPdfTest, AReportThatCannotBeWrittenIsTold) {
    auto& main = Avvia();
    VaA(main, "IPE 300");
    NavigaSchermi::Unico().Apre("FrmMcRd", main);
    const std::string before = Scritta(&Aperto("FrmMcRd"), "Lbl_McRd_0");
    ConOgniGuasto(
        PathProgramma, "relazione.pdf", [&](const std::filesystem::path& where, const char* reason) {
            file = QString::fromStdString(where.string());
            registratore.testi.clear();
            Risponde();
            Preme(&Aperto("FrmMcRd"), "CmdRelazione");
            ASSERT_EQ(registratore.testi.size(), 1U) << where;
            EXPECT_NE(registratore.testi[0].find(where.string()), std::string::npos) << registratore.testi[0];
            EXPECT_NE(registratore.testi[0].find(reason), std::string::npos) << registratore.testi[0];
        });
    EXPECT_EQ(Scritta(&Aperto("FrmMcRd"), "Lbl_McRd_0"), before);
}

} // namespace
