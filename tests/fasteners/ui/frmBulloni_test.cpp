#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "drawing/SuperficieFinta.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "fasteners/ui/AmbienteBulloni.h"
#include "frame/ui/EtichettaFormula.h"
#include "frame/ui/UpDown.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

constexpr const char* suggerimento = "Cliccare nuovamente sul comando Osservazioni per chiudere la casella";

TEST_F(FrmBulloniTest, TextsOfTheScreen) {
    Apre();
    EXPECT_EQ(b->windowTitle(), "Resistenza di progetto dei bulloni - EC5 1-8 #3.6.1  NTC2018 #4.2.8.1.1");
    EXPECT_EQ(Trova<QGroupBox>(b, "frmTaglioTraz")->title(), "Taglio e Trazione - EC3 #6.5.5.(5)");
    EXPECT_EQ(Trova<QRadioButton>(b, "optFilettata_0")->text(), "Sezione filettata");
    EXPECT_EQ(Trova<QRadioButton>(b, "optFilettata_1")->text(), "Sezione lorda");
    EXPECT_EQ(Trova<QPushButton>(b, "Command1")->text(), "Osservazioni");
    const std::pair<const char*, const char*> etichette[] = {
        {"ComboClassiBulloni", "Classe bullone"},
        {"Txt_fub", "fub"},
        {"Txt_fyb", "fyb"},
        {"ComboDiametriBulloni", "diametro"},
        {"Txt_A", "A"},
        {"Txt_FVRd", "Resistenza a taglio (per piano di taglio)"},
        {"Txt_FtRd", "Resistenza a trazione"},
        {"Txt_fu", "fu"},
        {"Txt_Rif_0", "spessore"},
        {"Txt_Rif_1", "diametro foro"},
        {"Txt_Rif_2", "e1"},
        {"Txt_Rif_3", "p1"},
        {"Txt_Rif_4", "e2"},
        {"Txt_Rif_5", "p2"},
        {"Txt_Rif_6", "alfa"},
        {"Txt_Rif_7", "Resistenza a rifollamento"},
        {"Txt_FSd_0", "Fv,Sd [kN]"},
        {"Txt_FSd_1", "Ft,Sd [kN]"},
        {"UpDown2", "Acciaio"}};
    for (const auto& [controllo, testo] : etichette) {
        const auto* w = Trova<QWidget>(b, controllo);
        EXPECT_FALSE(w->toolTip().isEmpty()) << controllo;
        EXPECT_FALSE(w->accessibleName().isEmpty()) << controllo;
        bool named = false;
        for (const QLabel* label : b->findChildren<QLabel*>())
            named = named || (label->buddy() == w && label->text() == testo);
        EXPECT_TRUE(named) << controllo;
    }
    EXPECT_EQ(Trova<QLabel>(b, "LblDistanze")->text(), "distanze bordo");
    for (const char* risultato :
         {"Txt_fyb", "Txt_A", "Txt_FVRd", "Txt_FtRd", "Txt_TipoAcciaio", "Txt_Rif_6", "Txt_Rif_7"})
        EXPECT_TRUE(Trova<QLineEdit>(b, risultato)->isReadOnly()) << risultato;
    EXPECT_TRUE(Osservazioni()->isReadOnly());
}

TEST_F(FrmBulloniTest, OpensInThePlaceOfTheSectionScreen) {
    Apre();
    EXPECT_FALSE(partenza->isVisible());
    EXPECT_EQ(b->origine, partenza);
    EXPECT_EQ(b->pos(), QPoint(8, 53));
    EXPECT_FALSE(b->Caricamento);
}

// M8 4.6: 0.6 · 400 · 38.6 / 1.25 = 7.4112 kN, 0.9 · 400 · 38.6 / 1.25 = 11.1168 kN; hole 9.
TEST_F(FrmBulloniTest, LoadsTheFirstClassAndTheFirstDiameter) {
    Apre();
    const auto* classi = Trova<QComboBox>(b, "ComboClassiBulloni");
    QStringList nomi;
    for (int i = 0; i < classi->count(); ++i)
        nomi << classi->itemText(i);
    EXPECT_EQ(nomi, (QStringList{"4.6", "4.8", "5.6", "5.8", "6.8", "8.8", "10.9"}));
    EXPECT_EQ(classi->currentIndex(), 0);
    const auto* diametri = Trova<QComboBox>(b, "ComboDiametriBulloni");
    EXPECT_EQ(diametri->count(), 22);
    EXPECT_EQ(diametri->currentText(), "8");
    EXPECT_EQ(diametri->itemText(21), "68");
    EXPECT_TRUE(Trova<QRadioButton>(b, "optFilettata_0")->isChecked());
    EXPECT_EQ(Legge("Txt_fub"), "400");
    EXPECT_EQ(Legge("Txt_fyb"), "240");
    EXPECT_EQ(Legge("Txt_A"), Locale("38.6"));
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 7.411"));
    EXPECT_EQ(Legge("Txt_FtRd"), Locale(" 11.12"));
    EXPECT_EQ(Legge("Txt_TipoAcciaio"), "S235 (Fe360)");
    EXPECT_EQ(Legge("Txt_fu"), "360");
    EXPECT_EQ(Legge("Txt_Rif_0"), "");
    EXPECT_EQ(Legge("Txt_Rif_1"), "9");
    EXPECT_EQ(Legge("Txt_Rif_2"), "27");
    EXPECT_EQ(Legge("Txt_Rif_3"), Locale("33.75"));
    EXPECT_EQ(Legge("Txt_Rif_4"), Locale("13.5"));
    EXPECT_EQ(Legge("Txt_Rif_5"), "27");
    EXPECT_EQ(Legge("Txt_Rif_6"), " 1");
    EXPECT_EQ(Legge("Txt_Rif_7"), " 0") << "bearing starts with no thickness";
    EXPECT_EQ(Somma(), "") << "no force, no verdict";
    EXPECT_EQ(Verdetto(), "");
    EXPECT_EQ(Elenco(), std::vector<std::string>{});
    EXPECT_FALSE(Osservazioni()->isVisible());
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmBulloniTest, LoadsTheClassInUse) {
    partenza = &Avvia();
    IndiceClasseBullone = 5;
    Riapre();
    EXPECT_EQ(Trova<QComboBox>(b, "ComboClassiBulloni")->currentText(), "8.8");
    EXPECT_EQ(Legge("Txt_fub"), "800");
    EXPECT_EQ(Legge("Txt_fyb"), Locale("640.0001")) << "as single precision gives it";
}

TEST_F(FrmBulloniTest, ClassGivesStrengthsAndResistancesAtOnce) {
    Apre();
    M16();
    EXPECT_EQ(IndiceClasseBullone, 5);
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 60.29"));
    EXPECT_EQ(Legge("Txt_FtRd"), Locale(" 90.43"));
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 115.2"));
    Classe("10.9"); // 0.5 · 1000 · 157 / 1.25
    EXPECT_EQ(Legge("Txt_fub"), "1000");
    EXPECT_EQ(Legge("Txt_fyb"), Locale("899.9996"));
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 62.8"));
}

TEST_F(FrmBulloniTest, ClassOfTheSameStrengthStillChangesShearAndSum) {
    Apre();
    Classe("4.6");
    Diametro("16");
    Scrive("Txt_FSd_0", "20");
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 30.14"));
    EXPECT_EQ(Somma(), Locale(" 0.6635 +  0 =  0.6635")); // 20 / 30.144
    Classe("4.8");
    EXPECT_EQ(Legge("Txt_fub"), "400");
    EXPECT_EQ(Legge("Txt_fyb"), Locale("320.0001"));
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 25.12"));
    EXPECT_EQ(Somma(), Locale(" 0.7962 +  0 =  0.7962")); // 20 / 25.12
}

TEST_F(FrmBulloniTest, DiameterWritesHoleAndDistancesThatLowerNothing) {
    Apre();
    M16();
    Scrive("Txt_Rif_1", "20");
    Scrive("Txt_Rif_2", "25");
    Scrive("Txt_Rif_5", "30");
    EXPECT_NE(Elenco(), std::vector<std::string>{});
    Diametro("27");
    EXPECT_EQ(Legge("Txt_Rif_0"), "10") << "the thickness stays";
    EXPECT_EQ(Legge("Txt_Rif_1"), "30");
    EXPECT_EQ(Legge("Txt_Rif_2"), "90");
    EXPECT_EQ(Legge("Txt_Rif_3"), Locale("112.5"));
    EXPECT_EQ(Legge("Txt_Rif_4"), "45");
    EXPECT_EQ(Legge("Txt_Rif_5"), "90");
    EXPECT_EQ(Legge("Txt_Rif_6"), " 1");
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 194.4")); // 2.5 · 360 · 27 · 10 / 1.25
    EXPECT_EQ(Legge("Txt_A"), Locale("459.0"));
    EXPECT_EQ(Elenco(), std::vector<std::string>{});
}

TEST_F(FrmBulloniTest, NoDiameterEverFailsWithItsOwnDistances) {
    Apre();
    Scrive("Txt_Rif_0", "10");
    for (int i = 0; i < 22; ++i) {
        Sceglie("ComboDiametriBulloni", i);
        EXPECT_EQ(Elenco(), std::vector<std::string>{}) << i;
        EXPECT_EQ(Legge("Txt_Rif_6"), " 1") << i;
        EXPECT_NE(Legge("Txt_Rif_7"), " 0") << i;
    }
}

TEST_F(FrmBulloniTest, GrossSectionTakesTheShankAndResetsHoleAndDistances) {
    Apre();
    M16();
    Scrive("Txt_Rif_1", "19");
    Scrive("Txt_Rif_2", "40");
    Trova<QRadioButton>(b, "optFilettata_1")->click();
    EXPECT_EQ(Legge("Txt_A"), Locale("201.1"));     // pi 16² / 4 = 201.062
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 77.21")); // 0.6 · 800 · 201.062 / 1.25 = 77.208
    EXPECT_EQ(Legge("Txt_FtRd"), Locale(" 90.43"));
    EXPECT_EQ(Legge("Txt_Rif_1"), "18");
    EXPECT_EQ(Legge("Txt_Rif_2"), "54");
    Trova<QRadioButton>(b, "optFilettata_0")->click();
    EXPECT_EQ(Legge("Txt_A"), Locale("157.0"));
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 60.29"));
}

TEST_F(FrmBulloniTest, TypedStrengthOfTheBoltSurvivesADiameterButNotAClass) {
    Apre();
    M16();
    Scrive("Txt_FSd_0", "20");
    Scrive("Txt_fub", "900");
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 67.82")); // 0.6 · 900 · 157 / 1.25 = 67.824
    EXPECT_EQ(Legge("Txt_FtRd"), Locale(" 101.7"));
    EXPECT_EQ(Somma(), Locale(" 0.2949 +  0 =  0.2949")) << "20 / 67.824";
    Diametro("20");
    EXPECT_EQ(Legge("Txt_fub"), "900");
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 105.8")); // 0.6 · 900 · 245 / 1.25 = 105.84
    Classe("8.8");
    EXPECT_EQ(Legge("Txt_fub"), "800");
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 94.08"));
}

TEST_F(FrmBulloniTest, TypedStrengthOfTheBoltLowersAlfa) {
    Apre();
    M16();
    Scrive("Txt_fub", "270"); // 270 / 360
    EXPECT_EQ(Legge("Txt_Rif_6"), Locale(" 0.75"));
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 86.4"));
}

TEST_F(FrmBulloniTest, StrengthsThatAreNoneAreIgnored) {
    Apre();
    M16();
    Scrive("Txt_FSd_0", "20");
    const std::string somma = Somma();
    for (const char* nessuna : {"0", "", "abc", "-5"}) {
        Scrive("Txt_fub", nessuna);
        EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 60.29")) << nessuna;
        EXPECT_EQ(Somma(), somma) << nessuna;
        Scrive("Txt_fu", nessuna);
        EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 115.2")) << nessuna;
    }
    Scrive("Txt_Rif_0", "20");
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 230.4")) << "the last good strength still counts";
    Scrive("Txt_fu", "430");
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 275.2")); // 2.5 · 430 · 16 · 20 / 1.25
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmBulloniTest, SteelWithoutAStrengthLeavesBearingEmptyUntilOneIsTyped) {
    partenza = &Avvia();
    fuAcciaio[1] = 0; // a settings file may hold any
    Riapre();
    M16();
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 60.29"));
    EXPECT_EQ(Legge("Txt_Rif_6"), "");
    EXPECT_EQ(Legge("Txt_Rif_7"), "");
    Scrive("Txt_fu", "360");
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 115.2"));
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmBulloniTest, DistancesNotAboveZeroNeverReachTheBolt) {
    Apre();
    M16();
    for (const char* box : {"Txt_Rif_1", "Txt_Rif_2", "Txt_Rif_3", "Txt_Rif_4", "Txt_Rif_5"}) {
        Scrive(box, "0");
        EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 115.2")) << box;
        Scrive(box, "");
        EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 115.2")) << box;
    }
    Scrive("Txt_Rif_0", "20"); // with all the others empty
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 230.4"));
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmBulloniTest, ClearingTheThicknessZeroesTheResistance) {
    Apre();
    M16();
    Scrive("Txt_Rif_0", "");
    EXPECT_EQ(Legge("Txt_Rif_7"), " 0");
    EXPECT_EQ(Elenco(), std::vector<std::string>{}) << "no message tells it";
}

// M14 10.9, As 115: 0.5 · 1000 · 115 / 1.25 = 46 kN; with a play above 1 mm 0.85 of it.
TEST_F(FrmBulloniTest, HoleChangesTheShearResistanceOfSmallBolts) {
    Apre();
    Classe("10.9");
    Diametro("14");
    Scrive("Txt_FSd_0", "23");
    EXPECT_EQ(Legge("Txt_FVRd"), " 46");
    EXPECT_EQ(Somma(), Locale(" 0.5 +  0 =  0.5"));
    Scrive("Txt_Rif_1", "16");
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 39.1"));
    EXPECT_EQ(Somma(), Locale(" 0.5882 +  0 =  0.5882")) << "23 / 39.1";
    Scrive("Txt_Rif_1", "15");
    EXPECT_EQ(Legge("Txt_FVRd"), " 46");
}

TEST_F(FrmBulloniTest, BearingFollowsTheDistances) {
    Apre();
    M16();
    Scrive("Txt_Rif_2", "27"); // 27 / 54
    EXPECT_EQ(Legge("Txt_Rif_6"), Locale(" 0.5"));
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 57.6"));
    Scrive("Txt_Rif_4", "24.3"); // 1.35 do: 5/6
    EXPECT_EQ(Legge("Txt_Rif_7"), " 48");
}

TEST_F(FrmBulloniTest, ListShowsWhatIsTooSmallAndHidesOtherwise) {
    Apre();
    M16();
    Scrive("Txt_Rif_2", "21");
    EXPECT_EQ(Elenco(), std::vector<std::string>{"e1 deve essere > 1.2 do = " + Locale("21.6") +
                                                 " - EC3 #6.5.1.2. (1)"});
    EXPECT_EQ(Legge("Txt_Rif_7"), " 0");
    Scrive("Txt_Rif_5", "43");
    ASSERT_EQ(Elenco().size(), 2U);
    EXPECT_EQ(Elenco()[1].substr(0, 19), "p2 deve essere > 2.");
    Scrive("Txt_Rif_1", "15");
    ASSERT_EQ(Elenco().size(), 1U) << "with the smaller hole the distances suffice";
    EXPECT_EQ(Elenco()[0], "do deve essere > d = " + Locale("16.0"));
    Scrive("Txt_Rif_1", "16");
    EXPECT_EQ(Elenco(), std::vector<std::string>{});
}

TEST_F(FrmBulloniTest, SpinnerStepsTheSteelInUseAndStopsAtBothEnds) {
    Apre();
    M16();
    auto* steel = Trova<UpDown>(b, "UpDown2");
    steel->stepDown();
    EXPECT_EQ(IndiceAcciaio, 0);
    steel->stepUp();
    EXPECT_EQ(IndiceAcciaio, 1);
    EXPECT_EQ(Legge("Txt_TipoAcciaio"), "S275 (Fe430)");
    EXPECT_EQ(Legge("Txt_fu"), "430");
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 137.6")); // 2.5 · 430 · 16 · 10 / 1.25
    steel->stepUp();
    steel->stepUp();
    EXPECT_EQ(IndiceAcciaio, 2);
    EXPECT_EQ(Legge("Txt_fu"), "510");
}

TEST_F(FrmBulloniTest, EnterGoesFromTheThicknessToTheCommand) {
    Apre();
    b->activateWindow();
    Trova<QLineEdit>(b, "Txt_Rif_0")->setFocus();
    for (const char* seguente : {"Txt_Rif_1", "Txt_Rif_2", "Txt_Rif_3", "Txt_Rif_4", "Txt_Rif_5", "Txt_FSd_0",
                                 "Txt_FSd_1", "Command1"}) {
        QTest::keyClick(b->focusWidget(), Qt::Key_Return);
        ASSERT_EQ(b->focusWidget()->objectName(), seguente);
        if (auto* box = qobject_cast<QLineEdit*>(b->focusWidget())) {
            EXPECT_EQ(box->selectedText(), box->text());
        }
    }
}

TEST_F(FrmBulloniTest, CommandOpensAndClosesTheAdvice) {
    Apre();
    M16();
    Scrive("Txt_Rif_2", "27");
    auto* command = Trova<QPushButton>(b, "Command1");
    command->click();
    EXPECT_TRUE(Osservazioni()->isVisible());
    QCoreApplication::processEvents();
    const int top = Osservazioni()->mapTo(b, QPoint()).y();
    for (const char* field : {"Txt_FtRd", "Txt_Rif_7", "Txt_FSd_0", "Lbl_Risultato_0", "Lbl_Risultato_1",
                              "Picture1", "Command1", "LblUtilizzo"}) {
        const auto* w = Trova<QWidget>(b, field);
        EXPECT_LE(w->mapTo(b, QPoint()).y() + w->height(), top) << "the advice stands below " << field;
    }
    EXPECT_LE(b->DimensioneContenuto().height(), b->height()) << "the window has made room";
    const std::string testo = "La resistenza a rifollamento è penalizzata (alfa = " + Locale(" 0.5") +
                              " < 1) perchè:\n   e1 < 3 do = 54\n\n";
    EXPECT_EQ(Osservazioni()->toPlainText().toStdString(), testo + "\n\n" + suggerimento);
    command->click();
    EXPECT_FALSE(Osservazioni()->isVisible());
    command->click();
    EXPECT_EQ(Osservazioni()->toPlainText().toStdString(), testo) << "the hint comes once in a run";
}

TEST_F(FrmBulloniTest, EscAndTheCloseMarkCloseTheAdviceFirst) {
    Apre();
    const int height = b->height();
    auto* command = Trova<QPushButton>(b, "Command1");
    command->click();
    EXPECT_GT(b->height(), height);
    QTest::keyClick(Osservazioni(), Qt::Key_Escape);
    EXPECT_FALSE(Osservazioni()->isVisible());
    EXPECT_TRUE(b->isVisible());
    EXPECT_EQ(b->height(), height) << "the room is given back";
    command->click();
    Trova<QToolButton>(b, "CmdChiudiOsservazioni")->click();
    EXPECT_FALSE(Osservazioni()->isVisible());
    QTest::keyClick(b, Qt::Key_Escape);
    EXPECT_FALSE(b->isVisible());
}

TEST_F(FrmBulloniTest, HeadNamesTheCodeOfRulesAndTheFactorInForce) {
    Apre();
    M16();
    EXPECT_EQ(Scritta("Lbl_Normativa"), "NTC");
    EXPECT_EQ(Scritta("Lbl_GammaM2"), Locale("1.25"));
    GammaM2 = 1;
    b->AllAttivazione();
    EXPECT_EQ(Scritta("Lbl_GammaM2"), "1");
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 75.36")); // 0.6 · 800 · 157
    EXPECT_EQ(Legge("Txt_Rif_7"), " 144");          // 2.5 · 360 · 16 · 10
}

TEST_F(FrmBulloniTest, SymbolsAreTrueSubscriptsAndUnitsStandBehindThem) {
    Apre();
    const std::pair<const char*, const char*> symbols[] = {
        {"Lbl_FVRd", "F{v,Rd} [kN]"}, {"Lbl_FtRd", "F{t,Rd} [kN]"}, {"Lbl_Rif_7", "F{b,Rd} [kN]"},
        {"Lbl_Rif_0", "t [mm]"},      {"Lbl_Rif_2", "[mm]"},        {"Lbl_fub", "[N/mm²]"}};
    for (const auto& [name, symbol] : symbols)
        EXPECT_EQ(Trova<EtichettaFormula>(b, name)->Simbolo(), symbol) << name;
    EXPECT_EQ(Trova<EtichettaFormula>(b, "Lbl_fub")->Formula(), "f{ub}");
    EXPECT_TRUE(Trova<QLabel>(b, "Lbl_Risultato_1")->font().bold());
}

// 157.0, 60.29 and 90.43: the numbers end so many figures before the edge that their separators line up.
TEST_F(FrmBulloniTest, DecimalsOfTheResistancesLineUp) {
    Apre();
    M16();
    QCoreApplication::processEvents(); // the column is arranged before it is painted
    const auto separator = [this](const char* name) {
        const auto* box = Trova<QLineEdit>(b, name);
        const QString tail = box->text().mid(box->text().indexOf(QChar(CarDecimale)));
        return box->textMargins().right() + box->fontMetrics().horizontalAdvance(tail);
    };
    EXPECT_EQ(separator("Txt_A"), separator("Txt_FVRd"));
    EXPECT_EQ(separator("Txt_FtRd"), separator("Txt_FVRd"));
}

TEST_F(FrmBulloniTest, HintComesOnceInARunWhateverBecomesOfTheScreen) {
    EXPECT_TRUE(SuggerimentoBulloni);
    Apre();
    Trova<QPushButton>(b, "Command1")->click();
    EXPECT_EQ(Osservazioni()->toPlainText().toStdString(),
              std::string("Spessore piastra = 0 !!!!\n\n") + suggerimento);
    b->close();
    Riapre();
    EXPECT_FALSE(Osservazioni()->isVisible());
    Trova<QPushButton>(b, "Command1")->click();
    EXPECT_EQ(Osservazioni()->toPlainText(), "Spessore piastra = 0 !!!!");
}

TEST_F(FrmBulloniTest, AdviceInViewIsNeverOld) {
    Apre();
    M16();
    Trova<QPushButton>(b, "Command1")->click();
    EXPECT_EQ(Osservazioni()->toPlainText().toStdString(), std::string("\n\n") + suggerimento);
    Scrive("Txt_Rif_1", "15");
    EXPECT_EQ(Osservazioni()->toPlainText().toStdString(),
              std::string("B E S T I A !!!  Il diametro del foro è inferiore al diametro del bullone.\n\n") +
                  suggerimento);
}

TEST_F(FrmBulloniTest, ClosingGoesBackAndDropsTheBolt) {
    Apre();
    M16();
    Scrive("Txt_FSd_0", "20");
    Scrive("Txt_fub", "900");
    Trova<UpDown>(b, "UpDown2")->stepUp();
    b->close();
    EXPECT_FALSE(b->isVisible());
    EXPECT_TRUE(partenza->isVisible());
    EXPECT_EQ(NavigaSchermi::Unico().Attivo(), partenza);
    EXPECT_FALSE(ChiusuraInCorso);
    const frmBulloni* prima = b;
    Riapre();
    EXPECT_EQ(b, prima) << "the window is kept";
    EXPECT_EQ(Trova<QComboBox>(b, "ComboClassiBulloni")->currentText(), "8.8");
    EXPECT_EQ(Trova<QComboBox>(b, "ComboDiametriBulloni")->currentText(), "8");
    EXPECT_EQ(Legge("Txt_fub"), "800");
    EXPECT_EQ(Legge("Txt_Rif_0"), "");
    EXPECT_EQ(Legge("Txt_FSd_0"), "");
    EXPECT_EQ(Legge("Txt_fu"), "360") << "the section screen has brought its own steel back";
}

TEST_F(FrmBulloniTest, ComingToTheFrontAgainKeepsTheEntries) {
    Apre();
    M16();
    b->AllAttivazione();
    EXPECT_EQ(Legge("Txt_Rif_0"), "10");
    EXPECT_EQ(Trova<QComboBox>(b, "ComboDiametriBulloni")->currentText(), "16");
}

TEST_F(FrmBulloniTest, PictureFollowsTheDistances) {
    Apre();
    M16();
    Scrive("Txt_Rif_2", "40");
    Scrive("Txt_Rif_5", "70");
    SuperficieFinta su(400, 300);
    const SuUscita uscita(&su);
    Trova<ImmagineDisegno>(b, "Picture1")->Mostrato().PlottaInOggetto(&su, "frmBulloni");
    // Four holes of 18 with their bolts of 16; hole to hole 67.5 along the load and 70 across it.
    ASSERT_EQ(su.cerchi.size(), 8U);
    const double scala = su.cerchi[0].r / 9;
    EXPECT_NEAR(su.cerchi[1].r, 8 * scala, 1e-9);
    EXPECT_NEAR(su.cerchi[4].x - su.cerchi[0].x, 67.5 * scala, 1e-9);
    EXPECT_NEAR(su.cerchi[0].y - su.cerchi[2].y, 70 * scala, 1e-9);
    // 40 from the holes to the end of the plate, 27 to its lower edge: the first line of its outline.
    EXPECT_NEAR(su.linee[0].x2 - su.cerchi[4].x, 40 * scala, 1e-9);
    EXPECT_NEAR(su.linee[0].y2 - su.cerchi[4].y, 27 * scala, 1e-9);
    EXPECT_FALSE(b->grab().isNull());
}

TEST_F(FrmBulloniTest, HelpExplainsTheControls) {
    Apre();
    QFile help(cartella.filePath(QStringLiteral("Sagomi.hlp")));
    ASSERT_TRUE(help.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(help.readAll());
    for (const char* argomento :
         {"frmBulloni", "ComboClassiBulloni", "Txt_fub", "ComboDiametriBulloni", "optFilettata", "Txt_FVRd",
          "Txt_FtRd", "Txt_Rif", "Txt_FSd", "Txt_Osservazioni", "frmSaldature", "Txt_betaw", "Txt_fvwd"})
        EXPECT_TRUE(text.contains(QStringLiteral("<a name=\"%1\">").arg(QLatin1String(argomento))))
            << argomento;
}

// The whole screen without a mouse, from the menu to the way back.
TEST_F(FrmBulloniTest, WorksByKeyboardAlone) {
    partenza = &Avvia();
    ASSERT_TRUE(QTest::qWaitForWindowActive(partenza));
    QTest::keyClick(partenza, Qt::Key_C, Qt::AltModifier);
    auto* menu = Trova<QMenu>(partenza, "mnuCollegamenti1");
    ASSERT_TRUE(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_B);
    b = dynamic_cast<frmBulloni*>(NavigaSchermi::Unico().Trova(QStringLiteral("frmBulloni")));
    ASSERT_NE(b, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(b));
    const auto fuoco = [this](const char* nome) { EXPECT_EQ(b->focusWidget()->objectName(), nome); };
    const auto tasto = [this](Qt::Key key) { QTest::keyClick(b->focusWidget(), key); };
    const auto tab = [this] { QTest::keyClick(b->focusWidget(), Qt::Key_Tab); };

    fuoco("ComboClassiBulloni");
    QTest::keyClicks(b->focusWidget(), "8");
    EXPECT_EQ(Legge("Txt_fub"), "800");
    tab();
    fuoco("Txt_fub");
    tab();
    fuoco("ComboDiametriBulloni");
    for (int i = 0; i < 4; ++i)
        tasto(Qt::Key_Down);
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 60.29"));
    tab();
    fuoco("optFilettata_0");
    tasto(Qt::Key_Right);
    EXPECT_TRUE(Trova<QRadioButton>(b, "optFilettata_1")->isChecked());
    EXPECT_EQ(Legge("Txt_FVRd"), Locale(" 77.21"));
    tab();
    fuoco("UpDown2");
    tasto(Qt::Key_Up);
    EXPECT_EQ(Legge("Txt_fu"), "430");
    tab();
    fuoco("Txt_fu");
    tab();
    fuoco("Txt_Rif_0");
    QTest::keyClicks(b->focusWidget(), "10");
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 137.6"));
    tasto(Qt::Key_Return);
    tasto(Qt::Key_Return);
    fuoco("Txt_Rif_2");
    QTest::keyClicks(b->focusWidget(), "27"); // over what is selected
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 68.8"));
    for (int i = 0; i < 4; ++i)
        tasto(Qt::Key_Enter);
    fuoco("Txt_FSd_0");
    QTest::keyClicks(b->focusWidget(), "20");
    tasto(Qt::Key_Return);
    QTest::keyClicks(b->focusWidget(), "50");
    EXPECT_EQ(Somma(), Locale(" 0.2590 +  0.3949 =  0.6540")); // 20 / 77.208
    tasto(Qt::Key_Return);
    fuoco("Command1");
    tasto(Qt::Key_Return);
    EXPECT_TRUE(Osservazioni()->isVisible());
    QTest::keyClick(b, Qt::Key_O, Qt::AltModifier); // the button is seen to go down first
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Osservazioni()->isVisible(); }));
    QTest::keyClick(b, Qt::Key_Escape);
    EXPECT_FALSE(b->isVisible());
    EXPECT_TRUE(partenza->isVisible());
    EXPECT_TRUE(registratore.testi.empty());
}

} // namespace
