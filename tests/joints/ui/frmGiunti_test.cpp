#include <QTest>

#include "drawing/ui/ImmagineDisegno.h"
#include "joints/ui/AmbienteGiunti.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class FrmGiuntiTest : public AmbienteGiunti {};

TEST_F(FrmGiuntiTest, OpensInThePlaceOfTheSectionScreen) {
    Apre();
    EXPECT_FALSE(partenza->isVisible());
    EXPECT_EQ(g->windowTitle(), "Giunto Flangiato - F1 per aiuto");
    const auto* tabs = Trova<QTabWidget>(g, "SSTab1");
    QStringList names;
    for (int i = 0; i < tabs->count(); ++i)
        names << tabs->tabText(i);
    EXPECT_EQ(names, (QStringList{"Dati", "Progetto", "Parametri", "Geometria", "Resistenza", "Rigidezza"}));
    for (const char* label : {"LblTraveDx", "LblTraveSx", "LblColonnaInf"})
        EXPECT_EQ(Scritta(g, label), "NON ASSEGNATO");
    Trova<QAction>(g, "mnufileitem_5")->trigger();
    EXPECT_TRUE(partenza->isVisible());
}

TEST_F(FrmGiuntiTest, AllControlsStandWithTheirTexts) {
    Apre();
    const std::pair<const char*, const char*> texts[] = {{"Optvie_0", "con colonna superiore"},
                                                         {"Optvie_1", "senza colonna superiore"},
                                                         {"Optvie_2", "con colonna superiore"},
                                                         {"Optvie_3", "senza colonna superiore"},
                                                         {"Optres_0", "Classe 8.8"},
                                                         {"Optres_1", "Classe 10.9"},
                                                         {"Optfila_0", "1 fila "},
                                                         {"Optfila_1", "2 file "},
                                                         {"Optirr_0", "senza irrigidimenti"},
                                                         {"Optirr_1", "con irrigidimenti"},
                                                         {"Optirr_2", "irrigidimento in zona compressa"},
                                                         {"OptBeta_0", "Cautelativo"},
                                                         {"OptBeta_1", "Analitico"},
                                                         {"OptCriterio_0", "Progetto"},
                                                         {"OptCriterio_1", "Verifica"},
                                                         {"OptTipoProgetto_0", "Veloce"},
                                                         {"OptTipoProgetto_1", "Accurato"},
                                                         {"OptOttimizza_0", "1.2 Mb,Rd "},
                                                         {"OptOttimizza_1", "Mb,Rd"},
                                                         {"OptOttimizza_2", "MjSd"}};
    for (const auto& [name, text] : texts)
        EXPECT_EQ(Trova<QRadioButton>(g, name)->text(), text) << name;
    EXPECT_EQ(Trova<QRadioButton>(g, "OptTipoProgetto_0")->toolTip(), "Step di 5 mm in bf e h'");
    EXPECT_EQ(Trova<QRadioButton>(g, "OptTipoProgetto_1")->toolTip(), "Step di 1 mm su tutti i parametri");
    for (int i = 0; i <= 20; ++i)
        EXPECT_NE(g->findChild<QPushButton*>(QStringLiteral("lblInfo_%1").arg(i)), nullptr) << i;
    for (const char* name :
         {"Textd",       "Textd0",         "Textdw",         "Textlb",    "Textaf",      "Textaw",
          "Textec",      "Textmc",         "Textmf",         "Textm1",    "Textm2",      "Textw",
          "Textp",       "Texthf",         "Txt_L_Irr_0",    "Txt_S_Irr", "Txt_B_Irr",   "Txt_Sal_Irr",
          "txtF1",       "txtF2",          "txtF3",          "txtF4",     "txtF5",       "txtF6",
          "txtF6_0",     "txtF6_1",        "txtF6_0Ridistr", "txtF7",     "txtF7_0",     "txtF7_1",
          "txtF8",       "txtF6_1Ridistr", "txtFmin0",       "txtFmin1",  "txtMrdTrave", "TxtSj_2",
          "txtLimite_2", "txtK_6",         "txtmu_6",        "TxtCoef_2", "Txt_L_Irr_1"})
        EXPECT_TRUE(Trova<QLineEdit>(g, name)->isReadOnly()) << name;
}

TEST_F(FrmGiuntiTest, ChoicesHaveTheirPictures) {
    Apre();
    for (const char* name : {"PicCroce", "PicT", "PicTDx", "PicLDx", "Pic1Fila", "Pic2Fila"}) {
        auto* picture = Trova<ImmagineDisegno>(g, name);
        EXPECT_TRUE(picture->Mostrato().PlottaInOggetto) << name;
        EXPECT_EQ(picture->focusPolicy(), Qt::NoFocus) << name;
        EXPECT_FALSE(picture->grab().isNull());
    }
}

TEST_F(FrmGiuntiTest, DesignOrCheckNamesTheCommand) {
    Apre();
    auto* command = Trova<QPushButton>(g, "cmdCalcola");
    EXPECT_EQ(command->text(), "&Progetta");
    EXPECT_EQ(command->toolTip(), "Progetta il giunto");
    Sceglie("OptCriterio_1");
    EXPECT_EQ(command->text(), "&Verifica");
    EXPECT_EQ(command->toolTip(), "Verifica il giunto");
    EXPECT_TRUE(g->NodoCorrente.ConnessioneCorrente->Criterio2);
    EXPECT_FALSE(g->NodoCorrente.ConnessioneCorrente->Criterio1);
}

TEST_F(FrmGiuntiTest, SectionIsPickedAndTheScreenComesBack) {
    Apre();
    Preme(g, "CmdTraveDx");
    EXPECT_TRUE(partenza->isVisible());
    EXPECT_FALSE(g->isVisible());
    EXPECT_FALSE(partenza->cmdSceltaSagomoGiunto->isHidden());
    VaA(*partenza, "IPE 270");
    Preme(partenza, "cmdSceltaSagomoGiunto");
    EXPECT_TRUE(g->isVisible());
    EXPECT_FALSE(SceltaSagomoGiunto);
    EXPECT_EQ(Scritta(g, "LblTraveDx"), "IPE 270");
    ASSERT_TRUE(g->NodoCorrente.TraveDx);
    EXPECT_EQ(g->NodoCorrente.Giunti[1]->Trave, g->NodoCorrente.TraveDx.Riferimento());
    EXPECT_EQ(double(g->NodoCorrente.TraveDx->h), 270);
}

TEST_F(FrmGiuntiTest, MenuCompletesThePickToo) {
    Apre();
    Preme(g, "CmdColonnaInf");
    VaA(*partenza, "HEB 200");
    Trova<QAction>(partenza, "MnuGiunto")->trigger();
    EXPECT_EQ(Scritta(g, "LblColonnaInf"), "HEB 200");
    EXPECT_FALSE(SceltaSagomoGiunto);
}

TEST_F(FrmGiuntiTest, NewNodeAndOneBeamGiveUpThePick) {
    Apre();
    Nodo(0);
    Preme(g, "CmdTraveSx");
    EXPECT_TRUE(SceltaSagomoGiunto);
    Nodo(2);
    EXPECT_FALSE(SceltaSagomoGiunto);
    Preme(g, "CmdTraveDx");
    EXPECT_TRUE(SceltaSagomoGiunto);
    g->NodoCorrente.ConnessioneCorrente->tf = 1;
    const Registratore yes(true);
    Trova<QAction>(g, "mnufileitem_0")->trigger();
    EXPECT_EQ(g->NodoCorrente.ConnessioneCorrente->tf, 0) << "a new node";
    EXPECT_FALSE(SceltaSagomoGiunto);
}

TEST_F(FrmGiuntiTest, OptionKeepsWhatIsTyped) {
    NodoT();
    Verifica1Fila();
    auto* box = Trova<QLineEdit>(g, "Textbf");
    box->clear();
    QTest::keyClicks(box, "160");
    Sceglie("Optres_1");
    EXPECT_EQ(g->NodoCorrente.ConnessioneCorrente->bf, 160);
    EXPECT_EQ(Legge("Textbf"), "160");
}

TEST_F(FrmGiuntiTest, NegativeParameterIsMarked) {
    NodoT();
    Verifica1Fila();
    auto* box = Trova<QLineEdit>(g, "Texttf");
    Scrive("Texttf", "-15");
    EXPECT_THAT(box->toolTip().toStdString(), HasSubstr("non può essere negativo"));
    Scrive("Texttf", "15");
    EXPECT_THAT(box->toolTip().toStdString(), testing::Not(HasSubstr("negativo")));
}

TEST_F(FrmGiuntiTest, WeldedSectionIsTakenFromItsScreen) {
    Apre();
    Preme(g, "CmdColonnaInf");
    Trova<QAction>(partenza, "mnuTipoSaldati")->trigger();
    auto& welded = dynamic_cast<frmSaldati&>(Aperto("frmSaldati"));
    EXPECT_FALSE(welded.cmdSceltaSagomoGiunto->isHidden());
    welded.ChkTipo[0]->setChecked(true); // HSE
    Preme(&welded, "AggiornaTabella");
    VaA(welded, "HSE 300x148");
    Preme(&welded, "cmdSceltaSagomoGiunto");
    ASSERT_TRUE(g->isVisible());
    ASSERT_NE(g->NodoCorrente.Colonnainf, nullptr);
    EXPECT_TRUE(g->NodoCorrente.Colonnainf->Saldata);
    EXPECT_EQ(Giunto::Radice(*g->NodoCorrente.Colonnainf), g->NodoCorrente.Colonnainf->a());
}

TEST_F(FrmGiuntiTest, SectionOfAnotherFamilyIsNotTaken) {
    Apre();
    Preme(g, "CmdTraveDx");
    Trova<QAction>(partenza, "mnuTipoU")->trigger();
    Trova<QAction>(&Aperto("frmSagomiU"), "MnuGiunto")->trigger();
    EXPECT_EQ(Scritta(g, "LblTraveDx"), "NON ASSEGNATO");
    Trova<QAction>(g, "mnufileitem_5")->trigger(); // still to be picked
    Trova<QAction>(&Aperto("frmSagomiU"), "mnuTipoT")->trigger();
    VaA(*partenza, "IPE 240");
    Preme(partenza, "cmdSceltaSagomoGiunto");
    EXPECT_EQ(Scritta(g, "LblTraveDx"), "IPE 240");
}

TEST_F(FrmGiuntiTest, FlagWithoutAPendingPickIsTold) {
    Apre();
    Trova<QAction>(g, "mnufileitem_5")->trigger();
    SceltaSagomoGiunto = true;
    Trova<QAction>(partenza, "MnuGiunto")->trigger();
    EXPECT_THAT(Detto(), ElementsAre("SceltaSagomoGiunto=TRUE ! Non previsto"));
}

TEST_F(FrmGiuntiTest, DesignTabWantsTheSections) {
    Apre();
    Scheda(1);
    EXPECT_EQ(Trova<QTabWidget>(g, "SSTab1")->currentIndex(), 0);
    EXPECT_THAT(Detto(),
                ElementsAre("Completare l'assegnamento dei sagomi prima di passare alla scheda progetto"));
    Prende("CmdColonnaInf", "HEB 200");
    Prende("CmdTraveDx", "IPE 270");
    Scheda(1);
    EXPECT_EQ(Detto().size(), 1U) << "the left beam is missing";
    Prende("CmdTraveSx", "IPE 270");
    Scheda(1);
    EXPECT_EQ(Trova<QTabWidget>(g, "SSTab1")->currentIndex(), 1);
    EXPECT_THAT(Detto(), IsEmpty());
}

// NplRd = 4595 mm2 · 235 / 1.05 = 1028.4 kN: a tenth of it is 102.8 kN.
TEST_F(FrmGiuntiTest, AxialForceWarnsAndLetsPass) {
    NodoT();
    Scrive("TxtN_Dx", "102");
    Scheda(1);
    EXPECT_THAT(Detto(), IsEmpty());
    Scheda(0);
    Scrive("TxtN_Dx", "103.5");
    Scheda(1);
    EXPECT_EQ(Trova<QTabWidget>(g, "SSTab1")->currentIndex(), 1);
    ASSERT_EQ(registratore.messaggi.size(), 1U);
    EXPECT_EQ(registratore.messaggi[0].testo,
              "Lo sforzo normale nella trave è superiore al 10% del suo Npl,rd. Questa situazione invalida "
              "il calcolo (Appendice J-3.1.1.(6)).");
    EXPECT_EQ(registratore.messaggi[0].titolo, "Giunto Flangiato");
    EXPECT_EQ(registratore.messaggi[0].icona, Icona::Stop);
}

TEST_F(FrmGiuntiTest, BoxesGoIntoTheFieldsOfTheNode) {
    Apre();
    Prende("CmdColonnaInf", "HEB 200");
    Prende("CmdTraveDx", "IPE 270");
    Prende("CmdTraveSx", "IPE 240");
    const char* boxes[] = {"TxtL_Dx", "TxtM_Dx", "TxtT_T",   "TxtN_Dx",  "TxtL_Sn",  "TxtM_Sn",
                           "TxtV_Sn", "TxtN_Sn", "TxtM_Col", "TxtV_Col", "TxtN_Col", "TxtV_Sup"};
    for (int i = 0; i < 12; ++i)
        Scrive(boxes[i], std::to_string(i + 1).c_str());
    auto& n = g->NodoCorrente;
    EXPECT_EQ(n.TraveDx->lunghezza(), 1);
    EXPECT_EQ(double(n.TraveDx->Mysd), 2);
    EXPECT_EQ(double(n.TraveDx->Vsd()), 3);
    EXPECT_EQ(double(n.TraveDx->Nsd()), 4);
    EXPECT_EQ(n.TraveSx->lunghezza(), 5);
    EXPECT_EQ(double(n.TraveSx->Mysd), 6);
    EXPECT_EQ(double(n.TraveSx->Vsd()), 7);
    EXPECT_EQ(double(n.TraveSx->Nsd()), 8);
    EXPECT_EQ(double(n.Colonnainf->Mysd), 9);
    EXPECT_EQ(double(n.Colonnainf->Vsd()), 10);
    EXPECT_EQ(double(n.Colonnainf->Nsd()), 11);
    EXPECT_EQ(double(n.VColSup), 12);
    EXPECT_EQ(n.Giunti[1]->MbSd, 2);
    EXPECT_EQ(n.Giunti[2]->VbSd, 7);
    Prende("CmdTraveDx", "IPE 300");
    EXPECT_EQ(double(n.TraveDx->Mysd), 2) << "the actions belong to the place, not to the section";
    EXPECT_EQ(Legge("TxtM_Dx"), "2");
}

TEST_F(FrmGiuntiTest, TextThatIsNoNumberBecomesTheNumberAgain) {
    NodoT();
    Scrive("TxtM_Dx", "55");
    Scrive("TxtM_Dx", "abc");
    EXPECT_EQ(Legge("TxtM_Dx"), "55");
    EXPECT_EQ(double(g->NodoCorrente.TraveDx->Mysd), 55);
    auto* box = Trova<QLineEdit>(g, "TxtM_Dx");
    box->selectAll();
    QTest::keyClicks(box, "12x");
    EXPECT_EQ(double(g->NodoCorrente.TraveDx->Mysd), 55) << "nothing is taken while it is typed";
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(Legge("TxtM_Dx"), "55");
    box->selectAll();
    QTest::keyClicks(box, "60");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(double(g->NodoCorrente.TraveDx->Mysd), 60);
}

TEST_F(FrmGiuntiTest, KindOfNodeHasItsJointsAndBoxes) {
    Apre();
    const auto* joints = Trova<QComboBox>(g, "CboGiunto");
    EXPECT_EQ(joints->count(), 2);
    EXPECT_TRUE(Trova<QLineEdit>(g, "TxtV_Sup")->isEnabled());
    Scrive("TxtV_Sup", "10");
    Nodo(3);
    EXPECT_EQ(g->NodoCorrente.Tipovie, nodoL);
    EXPECT_EQ(g->NodoCorrente.NumeroGiunti, 1);
    EXPECT_EQ(double(g->NodoCorrente.VColSup), 0);
    EXPECT_FALSE(g->NodoCorrente.Giunti[2]);
    EXPECT_EQ(joints->count(), 1);
    EXPECT_EQ(joints->itemText(0), "Giunto destro");
    EXPECT_FALSE(Trova<QLineEdit>(g, "TxtV_Sup")->isEnabled());
    EXPECT_FALSE(Trova<QPushButton>(g, "CmdTraveSx")->isEnabled());
    EXPECT_EQ(g->NodoCorrente.Giunti[1]->TipiGiunto, "LDx");
    Nodo(1);
    EXPECT_EQ(joints->count(), 2);
    EXPECT_EQ(joints->itemText(1), "Giunto sinistro");
    EXPECT_EQ(g->NodoCorrente.Giunti[2]->TipiGiunto, "Croce_Sn");
}

TEST_F(FrmGiuntiTest, OptionsFollowTheJoint) {
    Apre();
    Sceglie("Optres_1");
    Sceglie("OptCriterio_1");
    Sceglie("OptBeta_1");
    Sceglie("Optfila_1");
    EXPECT_EQ(g->NodoCorrente.Giunti[1]->fubl, 1000);
    Trova<QComboBox>(g, "CboGiunto")->setCurrentIndex(1);
    EXPECT_EQ(g->NodoCorrente.nGiunto, 2);
    EXPECT_TRUE(Trova<QRadioButton>(g, "Optres_0")->isChecked());
    EXPECT_TRUE(Trova<QRadioButton>(g, "OptCriterio_0")->isChecked());
    EXPECT_EQ(Trova<QPushButton>(g, "cmdCalcola")->text(), "&Progetta");
    Trova<QComboBox>(g, "CboGiunto")->setCurrentIndex(0);
    EXPECT_TRUE(Trova<QRadioButton>(g, "Optres_1")->isChecked());
    EXPECT_TRUE(Trova<QRadioButton>(g, "OptBeta_1")->isChecked());
    EXPECT_TRUE(Trova<QRadioButton>(g, "Optfila_1")->isChecked());
    EXPECT_EQ(Trova<QPushButton>(g, "cmdCalcola")->text(), "&Verifica");
}

TEST_F(FrmGiuntiTest, FactorsOfAnotherCodeRenewTheSections) {
    NodoT();
    const double Mb = g->NodoCorrente.TraveDx->McyRd;
    const double Npl = g->NodoCorrente.TraveDx->NplRd;
    g->NodoCorrente.Giunti[1]->Acquisito = true;
    Normativa = normativaEC3;
    ImpostaGamma();
    g->AllAttivazione();
    EXPECT_NEAR(g->NodoCorrente.TraveDx->McyRd, Mb * 1.05, 1e-6 * Mb);
    EXPECT_NEAR(g->NodoCorrente.TraveDx->NplRd, Npl * 1.05, 1e-6 * Npl);
    EXPECT_FALSE(g->NodoCorrente.Giunti[1]->Acquisito);
}

TEST_F(FrmGiuntiTest, AnOvertypedStrengthStandsInTheNameOfTheGrade) {
    Apre();
    Nodo(2);
    Preme(g, "CmdColonnaInf");
    VaA(*partenza, "HEB 200");
    prove::Scrive(partenza, "Txt_fy", "460");
    Preme(partenza, "cmdSceltaSagomoGiunto");
    EXPECT_EQ(Trova<QLabel>(g, "LblColonnaInf")->toolTip(), "S235 (Fe360), fy 460");
}

} // namespace
