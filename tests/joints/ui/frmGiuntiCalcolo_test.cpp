// Check, design and files on the joint screen. What the mechanics compute has its own tests; here the boxes
// are held against the joint that was computed.
#include <QFile>
#include <QMenu>
#include <QProgressBar>
#include <QTimer>

#include "frame/Attesa.h"
#include "frame/FileDati.h"
#include "frame/ui/FileDialogo.h"
#include "joints/ConsigliGiunto.h"
#include "joints/ui/AmbienteGiunti.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class CalcoloGiuntiTest : public AmbienteGiunti {
protected:
    void TearDown() override {
        ImpostaSceltaFile({});
        CollegaAttesa({});
        AmbienteGiunti::TearDown();
    }
    Giunto& Joint() const { return *g->NodoCorrente.ConnessioneCorrente; }
    /// The node of the tutorial: a design for the moment of the beam, one row, step of 5 mm.
    void Tutorial() {
        NodoT();
        Scrive("TxtL_Dx", "6");
        Scrive("TxtM_Dx", "40");
        Scrive("TxtT_T", "30");
        Sceglie("OptOttimizza_1");
        Scrive("Texttf_1", "25");
        Scrive("TextL", "100");
        Scrive("Textu_1", "20");
        ASSERT_THAT(Detto(), IsEmpty());
    }
    [[nodiscard]] QString Percorso(const char* name) const {
        return cartella.filePath(QString::fromUtf8(name));
    }
    void FileScelto(const QString& path) const {
        ImpostaSceltaFile(
            [path](QWidget*, std::string_view, const QString&, int, const QString&) { return path; });
    }
    void Menu(int i) const { Trova<QAction>(g, ("mnufileitem_" + std::to_string(i)).c_str())->trigger(); }
    static QByteArray Byte(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(CalcoloGiuntiTest, CheckFillsTheBoxesAndTellsWhatGoverns) {
    NodoT();
    Scrive("TxtL_Dx", "6");
    Scrive("TxtM_Dx", "20");
    Verifica1Fila();
    Preme(g, "cmdCalcola");
    ASSERT_TRUE(Joint().Acquisito);
    EXPECT_EQ(Legge("txtF5"), FormatoCifre(4, Joint().FtRd_Anima_c));
    EXPECT_EQ(Legge("TxtMjRd"), FormatoCifre(4, Joint().MplRdGIUNTO));
    EXPECT_EQ(Legge("TxtSj_0"), FormatoCifre(4, Joint().Sj_MjRd));
    EXPECT_EQ(Legge("Texthf"), FormatoCifre(4, Joint().hf));
    EXPECT_EQ(Legge("txtF6_0"), "") << "of two rows";
    EXPECT_THAT(Scritta(g, "LblGoverna"), StartsWith(" Il momento resistente del giunto è governato "));
    EXPECT_EQ(Scritta(g, "ShapeResistenza"), "OK");
    int bold = 0;
    for (const auto* box : Trova<QWidget>(g, "pagResistenza")->findChildren<QLineEdit*>())
        bold += box->font().bold() ? 1 : 0;
    EXPECT_GE(bold, 2) << "the row and what limits it";
}

TEST_F(CalcoloGiuntiTest, MomentBeyondTheJointIsRedAndSoIsTheShear) {
    NodoT();
    Scrive("TxtL_Dx", "6");
    Scrive("TxtM_Dx", "500");
    Verifica1Fila();
    Preme(g, "cmdCalcola");
    EXPECT_EQ(Scritta(g, "ShapeResistenza"), "NO");
    EXPECT_EQ(Scritta(g, "LblNotaSj"), "Mj,Sd > Mj,Rd");
    Scrive("TxtM_Dx", "1");
    EXPECT_EQ(Scritta(g, "ShapeResistenza"), "") << "a change empties the results";
    EXPECT_EQ(Legge("TxtMjRd"), "");
    Scrive("TxtT_T", "5000");
    Preme(g, "cmdCalcola");
    EXPECT_EQ(Scritta(g, "ShapeResistenza"), "solo M");
    EXPECT_EQ(Scritta(g, "LblTaglio"), "V > Vj,Rd");
}

TEST_F(CalcoloGiuntiTest, SpanThatIsNotGivenIsAskedForAndTheCalculationGoesOn) {
    NodoT();
    Scrive("TxtM_Dx", "20");
    Verifica1Fila();
    Preme(g, "cmdCalcola");
    EXPECT_THAT(
        Detto(),
        testing::Contains("Inserire la luce della trave per classificare il giunto in base alla rigidezza"));
    EXPECT_TRUE(Joint().Acquisito);
    EXPECT_EQ(Scritta(g, "RigidezzaGiunto1"), "luce non data");
    EXPECT_EQ(Legge("txtLimite_0"), "");
}

TEST_F(CalcoloGiuntiTest, DesignFindsAJointAndShowsIt) {
    Tutorial();
    Scheda(1);
    EXPECT_THAT(Scritta(g, "LblObiettivo"), StartsWith("Mb,Rd = "));
    Preme(g, "cmdCalcola");
    ASSERT_TRUE(Joint().Acquisito);
    EXPECT_EQ(Legge("Textbf"), TestoPiano(Joint().bf));
    EXPECT_EQ(Legge("Texttf"), TestoPiano(Joint().tf));
    EXPECT_EQ(Trova<QComboBox>(g, "CboDiametriBulloni")->currentText().toDouble(), Joint().Diam);
    EXPECT_TRUE(Trova<QPushButton>(g, "CmdRisultati")->isEnabled());
    EXPECT_TRUE(Trova<QPushButton>(g, "CmdAzzera")->isEnabled());
    EXPECT_TRUE(Trova<QWidget>(g, "FrameTipoanalisi")->isVisibleTo(g));
    EXPECT_FALSE(Trova<QWidget>(g, "FrameAttesa")->isVisibleTo(g));
    Preme(g, "CmdRisultati");
    EXPECT_EQ(Aperto("FrmRisultatiIntermedi").origine, g);
    Preme(g, "CmdAzzera");
    EXPECT_EQ(Legge("Textbf"), "");
    EXPECT_EQ(Joint().bf, 0);
    EXPECT_FALSE(Joint().Acquisito);
}

TEST_F(CalcoloGiuntiTest, OnlyTheStopReactsWhileASearchRuns) {
    Tutorial();
    Scheda(1);
    QMenu menu(g); // a client may ask for the search while the user has one open
    menu.addAction(QStringLiteral("Copia"));
    menu.popup({});
    int seen = 0;
    CollegaAttesa([&] {
        if (++seen == 1) {
            EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
            EXPECT_FALSE(Trova<QWidget>(g, "FrameTipoanalisi")->isVisibleTo(g));
            EXPECT_TRUE(Trova<QWidget>(g, "FrameAttesa")->isVisibleTo(g));
            EXPECT_TRUE(Trova<QPushButton>(g, "CmdInterrompi")->isEnabled());
            for (const auto* button : g->findChildren<QAbstractButton*>())
                if (!button->objectName().startsWith("qt_")) {
                    EXPECT_EQ(button->isEnabled(), button->objectName() == "CmdInterrompi")
                        << button->objectName().toStdString();
                }
            for (const auto* box : g->findChildren<QLineEdit*>())
                EXPECT_FALSE(box->isEnabled()) << box->objectName().toStdString();
            for (const auto* action : g->findChildren<QAction*>())
                EXPECT_FALSE(action->isEnabled()) << action->text().toStdString();
            g->close();
            EXPECT_TRUE(g->isVisible());
            EXPECT_TRUE(g->InterrompiProgetto) << "closing stops the search";
            g->InterrompiProgetto = false;
        }
        EXPECT_THAT(Scritta(g, "LblAttesa"), AllOf(HasSubstr("Progetto in corso"), HasSubstr("provati")));
        if (seen == 3)
            Preme(g, "CmdInterrompi");
        return true;
    });
    Preme(g, "cmdCalcola");
    EXPECT_EQ(seen, 3) << "stops after the current candidate";
    EXPECT_TRUE(Joint().Acquisito) << "the best is applied";
    EXPECT_TRUE(Trova<QPushButton>(g, "cmdCalcola")->isEnabled());
    EXPECT_TRUE(Trova<QAction>(g, "mnufileitem_0")->isEnabled());
    EXPECT_FALSE(Trova<QLineEdit>(g, "TxtM_Sn")->isEnabled()) << "what was off stays off";
}

TEST_F(CalcoloGiuntiTest, RowOfAnImprovementGoesBackIntoTheJoint) {
    Tutorial();
    Preme(g, "cmdCalcola");
    const auto& table = Joint().RisultatiIntermedi_Estrai();
    ASSERT_GT(table.n(), 1);
    const double bf = table.Numero(1, 5);
    const auto M = std::get<std::string>(table[1][2]);
    g->InserisceSelezione(1);
    EXPECT_EQ(Joint().bf, bf);
    EXPECT_EQ(Formato("0.00", Joint().MplRdGIUNTO), M);
    EXPECT_TRUE(Joint().Acquisito);
    EXPECT_TRUE(Joint().Criterio1) << "still a design";
    EXPECT_EQ(Legge("Textbf"), TestoPiano(bf));
}

TEST_F(CalcoloGiuntiTest, StiffenersThatTheOtherJointHasNotAreAskedAbout) {
    Apre();
    Prende("CmdColonnaInf", "HEB 200");
    Prende("CmdTraveDx", "IPE 270");
    Prende("CmdTraveSx", "IPE 270");
    Scrive("TxtL_Dx", "6");
    Verifica1Fila();
    Preme(g, "cmdCalcola");
    ASSERT_TRUE(g->NodoCorrente.Giunti[1]->Acquisito);
    Detto();
    Trova<QComboBox>(g, "CboGiunto")->setCurrentIndex(1);
    Sceglie("Optirr_1"); // answered no
    EXPECT_THAT(Detto(), ElementsAre("Il giunto calcolato precedentemente presenta una diversa soluzione nel "
                                     "pannello d'anima della colonna.\r\nContinuare?"));
    EXPECT_TRUE(Trova<QRadioButton>(g, "Optirr_0")->isChecked());
    EXPECT_EQ(g->NodoCorrente.Giunti[2]->Irrigidimenti, "No");
    {
        const Registratore yes(true);
        Sceglie("Optirr_1");
    }
    EXPECT_EQ(g->NodoCorrente.Giunti[2]->Irrigidimenti, "Si");
    EXPECT_TRUE(g->NodoCorrente.Giunti[1]->Acquisito) << "the other joint keeps its results";
}

TEST_F(CalcoloGiuntiTest, AdviceOfEveryTopic) {
    Apre();
    for (int i = 0; i <= 20; ++i) {
        Preme(g, ("lblInfo_" + std::to_string(i)).c_str());
        EXPECT_THAT(Detto(), ElementsAre(StartsWith("Per "))) << i;
    }
    Preme(g, "lblInfo_3");
    EXPECT_THAT(Detto(), ElementsAre(HasSubstr("oppure la classe 10.9")));
    Sceglie("Optres_1");
    Preme(g, "lblInfo_3");
    EXPECT_THAT(Detto(), ElementsAre(testing::Not(HasSubstr("10.9"))));
}

TEST_F(CalcoloGiuntiTest, AKeyAsksForTheAdviceOfTheResultInFocus) {
    NodoT();
    Scrive("TxtM_Dx", "20");
    Verifica1Fila();
    Preme(g, "cmdCalcola");
    Detto();
    const auto asks = [this](const char* box) {
        for (int tab = 4; tab < 6; ++tab)
            if (Trova<QTabWidget>(g, "SSTab1")->widget(tab)->findChild<QLineEdit*>(box) != nullptr)
                Scheda(tab);
        Trova<QLineEdit>(g, box)->setFocus();
        QTest::keyClick(Trova<QLineEdit>(g, box), Qt::Key_F1, Qt::ShiftModifier);
        return Detto();
    };
    for (const auto& [box, topic] : {std::pair{"txtF1", 0}, std::pair{"txtF7", 8}, std::pair{"txtmu_3", 19}})
        EXPECT_THAT(asks(box), ElementsAre(ConsiglioGiunto(topic, Joint().Classe))) << box;
    EXPECT_THAT(asks("TxtSj_0"), ElementsAre(ConsiglioGiunto(14, Joint().Classe))) << "has none of its own";
    for (int i = 0; i <= 20; ++i)
        EXPECT_THAT(Trova<QPushButton>(g, ("lblInfo_" + std::to_string(i)).c_str())->toolTip().toStdString(),
                    HasSubstr("Shift+F1"));
    CopiaAccanto("FormuleGiunto.rtf");
    Scheda(4);
    Trova<QLineEdit>(g, "txtF1")->setFocus();
    QTest::keyClick(Trova<QLineEdit>(g, "txtF1"), Qt::Key_F1, Qt::ControlModifier);
    EXPECT_TRUE(Aperto("FrmInfoGiunti").isVisible()) << "the formula";
}

TEST_F(CalcoloGiuntiTest, TutorialFromTheDesignToTheReport) {
    Tutorial();
    Trova<QLineEdit>(g, "TxtDescrizione")->setText("Nodo \"T\"");
    EXPECT_EQ(Legge("TxtDescrizione"), "Nodo ''T''");
    Preme(g, "cmdCalcola");
    Detto();
    const std::string M = Legge("TxtMjRd");
    const double k = Joint().k4;
    FileScelto(Percorso("nodo.Gfl"));
    Menu(2);
    EXPECT_EQ(g->windowTitle(), "Giunto Flangiato - F1 per aiuto - File: nodo.Gfl");
    const QByteArray saved = Byte(Percorso("nodo.Gfl"));
    ASSERT_FALSE(saved.isEmpty());
    Menu(0);
    EXPECT_EQ(g->windowTitle(), "Giunto Flangiato - F1 per aiuto");
    EXPECT_EQ(Scritta(g, "LblTraveDx"), "NON ASSEGNATO");
    EXPECT_EQ(Legge("TxtMjRd"), "");
    EXPECT_EQ(g->NodoCorrente.Tipovie, nodoCroce);
    Menu(1);
    EXPECT_THAT(Detto(), IsEmpty());
    EXPECT_EQ(g->windowTitle(), "Giunto Flangiato - F1 per aiuto - File: nodo.Gfl");
    EXPECT_EQ(Scritta(g, "LblTraveDx"), "IPE 270");
    EXPECT_EQ(Legge("TxtDescrizione"), "Nodo ''T''");
    EXPECT_EQ(Legge("TxtMjRd"), M);
    EXPECT_EQ(Joint().k4, k);
    EXPECT_EQ(Legge("TxtL_Dx"), "6");
    EXPECT_EQ(Legge("TxtT_T"), "30");
    EXPECT_THAT(Scritta(g, "LblStato"), HasSubstr("dal file, non ricalcolati"));
    FileScelto(Percorso("altro.Gfl"));
    Menu(2);
    EXPECT_EQ(Byte(Percorso("altro.Gfl")), saved);
    FileScelto(Percorso("relazione.txt"));
    Menu(4);
    const QByteArray report = Byte(Percorso("relazione.txt"));
    EXPECT_TRUE(report.contains("   NOME FILE: altro.Gfl\r\n")) << report.toStdString();
    EXPECT_TRUE(report.contains("GIUNTO : destro"));
    EXPECT_TRUE(report.contains("     Trave : IPE 270"));
    Preme(g, "cmdCalcola");
    EXPECT_THAT(Scritta(g, "LblStato"), testing::Not(HasSubstr("dal file")));
}

TEST_F(CalcoloGiuntiTest, FileThatIsNotWholeLeavesTheNode) {
    Tutorial();
    FileScelto(Percorso("nodo.Gfl"));
    Menu(2);
    const QByteArray whole = Byte(Percorso("nodo.Gfl"));
    const auto lines = whole.split('\n');
    QFile cut(Percorso("corto.Gfl"));
    ASSERT_TRUE(cut.open(QIODevice::WriteOnly));
    cut.write(lines.mid(0, 50).join('\n'));
    cut.close();
    Detto();
    FileScelto(Percorso("corto.Gfl"));
    Menu(1);
    EXPECT_EQ(Detto().size(), 2U) << "the pair of boxes of a reading error";
    EXPECT_EQ(g->windowTitle(), "Giunto Flangiato - F1 per aiuto - File: nodo.Gfl");
    EXPECT_EQ(Scritta(g, "LblTraveDx"), "IPE 270");
    EXPECT_EQ(Legge("TxtM_Dx"), "40");
}

TEST_F(CalcoloGiuntiTest, UnsavedWorkIsAskedAbout) {
    Tutorial();
    Menu(0);
    ASSERT_EQ(Detto().size(), 1U);
    EXPECT_EQ(Scritta(g, "LblTraveDx"), "IPE 270") << "answered no";
    const Registratore yes(true);
    Menu(0);
    EXPECT_EQ(Scritta(g, "LblTraveDx"), "NON ASSEGNATO");
}

TEST_F(CalcoloGiuntiTest, JointsWithDifferentRowsOfAFileAreAskedAbout) {
    Apre();
    Prende("CmdColonnaInf", "HEB 200");
    Prende("CmdTraveDx", "IPE 270");
    Prende("CmdTraveSx", "IPE 240");
    Sceglie("Optfila_1");
    FileScelto(Percorso("due.Gfl"));
    Menu(2);
    Detto();
    {
        const Registratore yes(true);
        Menu(1);
        EXPECT_THAT(yes.testi,
                    ElementsAre("Il giunto sinistro ha un numero di file di bulloni diverso da quello "
                                "destro.\r\nContinuare?"));
    }
    EXPECT_EQ(Scritta(g, "LblTraveSx"), "IPE 240");
    EXPECT_EQ(g->NodoCorrente.nGiunto, 1);
    Menu(1); // answered no: the node is empty
    EXPECT_EQ(Scritta(g, "LblTraveSx"), "NON ASSEGNATO");
}

} // namespace
