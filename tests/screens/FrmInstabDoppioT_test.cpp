#include "screens/FrmInstabDoppioT.h"

#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "frame/ui/UpDown.h"
#include "screens/ColonnaInstabilita.h"
#include "screens/Dettagli.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmInstabDoppioTTest : public AmbienteSchermi {
protected:
    FrmInstabDoppioT& Apre(const char* section, const char* L0y = "", const char* L0z = "") {
        s = &Avvia();
        VaA(*s, section);
        Scrive(s, "Txt_L0_0", L0y);
        Scrive(s, "Txt_L0_1", L0z);
        Trova<QPushButton>(s, "LblNbRd")->click();
        return dynamic_cast<FrmInstabDoppioT&>(
            *NavigaSchermi::Unico().Trova(QStringLiteral("FrmInstabDoppioT")));
    }
    /// What a column shows, line after line.
    static std::vector<std::string> Colonna(const QObject& f, int axis) {
        std::vector<std::string> texts;
        for (const char* name : {"Lamda", "LamdaS", "Curva", "Alfa", "Fi", "chi", "Ncr", "NbRd"})
            texts.push_back(Scritta(&f, ("Lbl_" + std::string(name) + '_' + std::to_string(axis)).c_str()));
        return texts;
    }
    static std::vector<std::string> Testi(std::vector<std::string> texts) {
        for (std::string& t : texts)
            t = Locale(t);
        return texts;
    }
    frmDoppioT* s = nullptr;
};

TEST_F(FrmInstabDoppioTTest, HasItsTexts) {
    auto& f = Apre("IPE 200");
    EXPECT_EQ(f.windowTitle(), "Resistenza all'instabilità - EC3 #6.3.1");
    EXPECT_EQ(Trova<QGroupBox>(&f, "FrmChi")->title(), "Calcolo coefficiente di riduzione");
    EXPECT_EQ(Trova<QRadioButton>(&f, "optE0_0")->text(), "y-y");
    EXPECT_EQ(Trova<QRadioButton>(&f, "optE0_1")->text(), "z-z");
    EXPECT_EQ(Scritta(&f, "Lbl_e0d"), "e0,d [mm]");
    auto* curves = Trova<QComboBox>(&f, "ComboChi");
    ASSERT_EQ(curves->count(), 5);
    const char* names[] = {"a0", "a", "b", "c", "d"};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(curves->itemText(i), names[i]);
    EXPECT_EQ(Testo(&f, "Txt_Prof"), "IPE 200");
}

// IPE 200, S235, NTC, L0 5 and 2.5 m: the root of the Ayrton-Perry quadratic worked out in Python,
// Ncr = pi^2 210000 2848 / lamda^2.
TEST_F(FrmInstabDoppioTTest, ShowsTheDerivationAboutBothAxes) {
    auto& f = Apre("IPE 200", "5", "2.5");
    EXPECT_EQ(Scritta(&f, "Lbl_eps"), Locale("1.0"));
    EXPECT_EQ(Scritta(&f, "Lbl_Lamda1"), Locale("93.9"));
    EXPECT_EQ(Scritta(&f, "Lbl_betaA"), Locale("1.0"));
    EXPECT_EQ(Scritta(&f, "lblGM1"), Locale("1.05"));
    EXPECT_EQ(Colonna(f, 0),
              Testi({"60.53", "0.6447", "a", "0.21", "0.7545", "0.8722", "1610.939", "555.976"}));
    EXPECT_EQ(Colonna(f, 1),
              Testi({"111.61", "1.1886", "b", "0.34", "1.3744", "0.4844", "473.887", "308.739"}));
}

TEST_F(FrmInstabDoppioTTest, ResistanceIsTheOneOfTheFirstScreen) {
    auto& f = Apre("IPE 360", "6.5", "3.2");
    EXPECT_EQ(Scritta(&f, "Lbl_NbRd_0"), Formato("0.0##", Sezione().NbyRd / 1000));
    EXPECT_EQ(Scritta(&f, "Lbl_NbRd_1"), Formato("0.0##", Sezione().NbzRd / 1000));
}

TEST_F(FrmInstabDoppioTTest, BeginsInItsFirstEntry) {
    auto& f = Apre("IPE 300");
    EXPECT_EQ(f.focusWidget(), Trova<QLineEdit>(&f, "TxtNsd"));
}

// Steel Buildings in Europe, Multi-Storey Steel Buildings part 4, worked example A.5: HE 300 B, S235, 8.00
// and 5.60 m: Ncr 8151.2 and 5657.4 kN, chi_y 0.808. The radii of the catalogue have three figures.
TEST_F(FrmInstabDoppioTTest, PublishedColumnHe300B) {
    s = &Avvia();
    s->ChkTipo[1]->setChecked(true);
    Trova<QPushButton>(s, "AggiornaTabella")->click();
    VaA(*s, "HEB 300");
    Scrive(s, "Txt_L0_0", "8");
    Scrive(s, "Txt_L0_1", "5.6");
    auto& f = NavigaSchermi::Unico().Prende<FrmInstabDoppioT>();
    f.ApreDa(*s, *s);
    EXPECT_NEAR(ValoreNumerico(Scritta(&f, "Lbl_Ncr_0")), 8151.2, 8151.2 * 1e-3);
    EXPECT_NEAR(ValoreNumerico(Scritta(&f, "Lbl_Ncr_1")), 5657.4, 5657.4 * 1e-3);
    EXPECT_NEAR(ValoreNumerico(Scritta(&f, "Lbl_LamdaS_0")), 0.655, 1e-3);
    EXPECT_NEAR(ValoreNumerico(Scritta(&f, "Lbl_LamdaS_1")), 0.787, 1e-3);
    EXPECT_EQ(Scritta(&f, "Lbl_Curva_0"), "b");
    EXPECT_NEAR(ValoreNumerico(Scritta(&f, "Lbl_chi_0")), 0.808, 6e-4);
}

TEST_F(FrmInstabDoppioTTest, NoLengthNoCriticalForce) {
    auto& f = Apre("IPE 200", "", "2.5");
    EXPECT_EQ(Colonna(f, 0), Testi({"0.0", "0.0", "a", "0.21", "0.479", "1.0", "¥", "637.41"}));
    EXPECT_EQ(Scritta(&f, "Lbl_Ncr_1"), Locale("473.887"));
}

TEST_F(FrmInstabDoppioTTest, RowWithoutARadiusShowsNoNumbers) {
    auto& f = Apre("IPE 200", "5", "2.5");
    Sezione().iY = 0;
    f.CompletaForm1(0);
    EXPECT_EQ(Colonna(f, 0), Testi({"", "", "a", "0.21", "", "", "", ""}));
    EXPECT_EQ(Scritta(&f, "Lbl_NbRd_1"), Locale("308.739"));
    Trova<QRadioButton>(&f, "optE0_1")->click();
    Trova<QRadioButton>(&f, "optE0_0")->click();
    EXPECT_EQ(Testo(&f, "txtE0"), "");
}

// S355: d/tw 43.04 epsilon, lamda_p 43.04 / 56.8 = 0.7576, rho 0.9366: of the web's 248.6 mm 15.76 are lost,
// 1 - 15.76 · 7.1 / 5381 = 0.979.
TEST_F(FrmInstabDoppioTTest, EffectiveAreaOfClassFour) {
    auto& f = Apre("IPE 300", "5", "");
    Scrive(s, "Txt_fy", "355");
    f.AllAttivazione();
    EXPECT_EQ(Sezione().ClasseCompressione, 4);
    EXPECT_NEAR(ValoreNumerico(Scritta(&f, "Lbl_betaA")), 0.979, 2e-3);
    EXPECT_EQ(Scritta(&f, "Lbl_eps"), Locale("0.81"));
    EXPECT_EQ(Scritta(&f, "Lbl_Lamda1"), Locale("76.4")); // 93.9 · 0.81362
    EXPECT_LT(ValoreNumerico(Scritta(&f, "Lbl_LamdaS_0")), 40.13 / 76.4);
}

TEST_F(FrmInstabDoppioTTest, LeavesOutLabelsThatAScreenLacks) {
    Apre("IPE 200", "5");
    Schermo other(QStringLiteral("altro"));
    QLabel lamda(&other);
    lamda.setObjectName(QStringLiteral("Lbl_Lamda_2"));
    ColonnaInstabilita(12.345, 2, other);
    EXPECT_EQ(lamda.text().toStdString(), Locale("12.35"));
}

// Table 5.5.2 of ENV 1993-1-1 at a relative slenderness of 1: curve a 0.6656, b 0.5970, c 0.5399, d 0.4671.
TEST_F(FrmInstabDoppioTTest, CalculatorFromTheSlenderness) {
    auto& f = Apre("IPE 200");
    Scrive(&f, "txtChi_0", "93.9");
    EXPECT_EQ(Scritta(&f, "LblChi_0"), "lamda");
    EXPECT_EQ(Scritta(&f, "LblChi_2"), "lamda segnato");
    EXPECT_EQ(Testo(&f, "txtChi_2"), Locale("1.0"));
    const std::pair<const char*, const char*> rows[] = {
        {"0.13", "0.7253"}, {"0.21", "0.6656"}, {"0.34", "0.597"}, {"0.49", "0.5399"}, {"0.76", "0.4671"}};
    for (int i = 0; i < 5; ++i) {
        Trova<QComboBox>(&f, "ComboChi")->setCurrentIndex(i);
        EXPECT_EQ(Testo(&f, "txtChi_3"), Locale(rows[i].first));
        EXPECT_EQ(Testo(&f, "txtChi_5"), Locale(rows[i].second));
    }
    EXPECT_EQ(Testo(&f, "txtChi_4"), Locale("1.304")); // 0.5 (1 + 0.76 · 0.8 + 1)
    Scrive(&f, "txtChi_1", "0.64");
    EXPECT_EQ(Testo(&f, "txtChi_2"), Locale("0.8")) << "root of the effective area";
}

TEST_F(FrmInstabDoppioTTest, CalculatorFromTheRelativeSlenderness) {
    auto& f = Apre("IPE 200");
    Trova<QRadioButton>(&f, "optChi_1")->click();
    Scrive(&f, "txtChi_0", "0.8");
    EXPECT_EQ(Scritta(&f, "LblChi_0"), "lamda segnato");
    EXPECT_EQ(Scritta(&f, "LblChi_2"), "lamda");
    EXPECT_EQ(Testo(&f, "txtChi_2"), Locale("75.12"));
    Scrive(&f, "txtChi_1", "0.64");
    EXPECT_EQ(Testo(&f, "txtChi_2"), Locale("93.9"));
    Trova<QComboBox>(&f, "ComboChi")->setCurrentText("b");
    EXPECT_EQ(Testo(&f, "txtChi_5"), Locale("0.7245")); // table 5.5.2
    Trova<QRadioButton>(&f, "optChi_0")->click();
    EXPECT_EQ(Testo(&f, "txtChi_0"), Locale("93.9")) << "the same member, said by its slenderness";
    EXPECT_EQ(Testo(&f, "txtChi_2"), Locale("0.8"));
    EXPECT_EQ(Testo(&f, "txtChi_5"), Locale("0.7245"));
}

// Rolled, h/b 2: curve a about y-y, b about z-z.
TEST_F(FrmInstabDoppioTTest, CalculatorStartsWithTheCurveThatGoverns) {
    auto& f = Apre("IPE 200", "5", "2.5");
    EXPECT_EQ(Trova<QComboBox>(&f, "ComboChi")->currentText(), "b");
    Scrive(s, "Txt_L0_1", "");
    f.AllAttivazione();
    EXPECT_EQ(Trova<QComboBox>(&f, "ComboChi")->currentText(), "a");
}

TEST_F(FrmInstabDoppioTTest, CalculatorFollowsTheStrengthInForce) {
    auto& f = Apre("IPE 200");
    Scrive(&f, "txtChi_0", "93.9");
    Scrive(s, "Txt_fy", "940"); // epsilon 0.5
    f.AllAttivazione();
    EXPECT_EQ(Testo(&f, "txtChi_0"), Locale("93.9")) << "keeps what was typed";
    EXPECT_EQ(Testo(&f, "txtChi_2"), Locale("2.0"));
}

TEST_F(FrmInstabDoppioTTest, EffectiveAreaIsAtMostTheWholeOne) {
    auto& f = Apre("IPE 200");
    Scrive(&f, "txtChi_0", "93.9");
    EXPECT_EQ(Testo(&f, "txtChi_1"), "1");
    Scrive(&f, "txtChi_1", "1.2");
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"BetaA deve essere <=1"}) << "one box a change";
    EXPECT_EQ(Testo(&f, "txtChi_1"), "1");
    EXPECT_EQ(Testo(&f, "txtChi_2"), Locale("1.0"));
    registratore.testi.clear();
    Scrive(&f, "txtChi_1", "1");
    Scrive(&f, "txtChi_1", "0");
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(Testo(&f, "txtChi_5"), Locale("1.0"));
    Trova<QRadioButton>(&f, "optChi_1")->click();
    EXPECT_EQ(Testo(&f, "txtChi_2"), "") << "no slenderness without an area";
    Scrive(&f, "txtChi_1", "-1");
    Trova<QRadioButton>(&f, "optChi_0")->click();
    EXPECT_EQ(Testo(&f, "txtChi_5"), "");
}

TEST_F(FrmInstabDoppioTTest, AnAreaAboveTheWholeWaitsForEnter) {
    auto& f = Apre("IPE 200");
    Scrive(&f, "txtChi_0", "93.9");
    auto* area = Trova<QLineEdit>(&f, "txtChi_1");
    area->setFocus();
    area->selectAll();
    QTest::keyClicks(area, "12");
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(area->text(), "12");
    EXPECT_EQ(Testo(&f, "txtChi_5"), "");
    QTest::keyClick(area, Qt::Key_Return);
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"BetaA deve essere <=1"});
    EXPECT_EQ(area->text(), "1");
    EXPECT_EQ(Testo(&f, "txtChi_2"), Locale("1.0"));
    Scrive(&f, "txtChi_0", "-5");
    EXPECT_EQ(Testo(&f, "txtChi_5"), "");
    EXPECT_EQ(Trova<QLineEdit>(&f, "txtChi_0")->toolTip(), "La snellezza non può essere negativa");
}

// IPE 300, 5 m. y-y: (0.42735 - 0.2) · 0.21 · 1 · 557100 / 5381 = 4.943; z-z: (1.5895 - 0.2) · 0.34 · 1.32685
// · 80500 / 5381 = 9.378 mm.
TEST_F(FrmInstabDoppioTTest, InitialBow) {
    auto& f = Apre("IPE 300", "5", "5");
    EXPECT_EQ(Testo(&f, "txtE0"), Locale(" 4.943"));
    Trova<QRadioButton>(&f, "optE0_1")->click();
    EXPECT_EQ(Testo(&f, "txtE0"), Locale(" 9.378"));
    Scrive(s, "Txt_L0_1", "");
    f.AllAttivazione();
    EXPECT_EQ(Testo(&f, "txtE0"), " 2") << "never less";
}

TEST_F(FrmInstabDoppioTTest, TellsWhatTheBowIsFor) {
    auto& f = Apre("IPE 200");
    Trova<QPushButton>(&f, "LblNbRd")->click();
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_EQ(registratore.testi[0],
              "Imperfezione di freccia iniziale equivalente\n"
              "per la verifica all'instabilità usando l'analisi del secondo ordine\n"
              "EC3 # 5.5.1. figura 5.5.1.\n"
              "Deve essere inclusa nell'analisi globale del secondo ordine del telaio quando\n"
              "il moltiplicatore critico è minore di 4 [#5.2.4.2. (4)].\n"
              "Valore da adottare con analisi globale elastica e verifica di resistenza elastica.");
}

TEST_F(FrmInstabDoppioTTest, StepsRowAndGradeOfTheCaller) {
    auto& f = Apre("IPE 200", "5", "2.5");
    Trova<UpDown>(&f, "UpDown1")->stepUp();
    EXPECT_EQ(Testo(&f, "Txt_Prof"), "IPE 220");
    EXPECT_EQ(Scritta(&f, "Lbl_Lamda_0"), Locale("54.88")); // 5000 / 91.1
    Trova<UpDown>(&f, "UpDown2")->stepUp();
    EXPECT_EQ(Testo(&f, "Txt_fy"), "275");
    EXPECT_EQ(Scritta(&f, "Lbl_Lamda1"), Locale("86.8")); // 93.9 · 0.92442
}

TEST_F(FrmInstabDoppioTTest, OpensWithoutASectionOnlyWhenThereIsARow) {
    s = &Avvia();
    s->Data1->RecordSource("SELECT * FROM [IPE$] WHERE [h (mm)] < 0");
    s->Data1->Refresh();
    ASSERT_FALSE(s->RigaInMano());
    Trova<QPushButton>(s, "LblNbRd")->click();
    EXPECT_EQ(NavigaSchermi::Unico().Trova(QStringLiteral("FrmInstabDoppioT")), nullptr);
}

} // namespace
