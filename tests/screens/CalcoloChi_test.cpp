#include "screens/CalcoloChi.h"

#include <QComboBox>
#include <QRadioButton>

#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

struct CalcoloChiTest : AmbienteSchermi {
    void Scrive(const char* name, const char* text) {
        Trova<QLineEdit>(&calcolo, name)->setText(QString::fromStdString(Locale(text)));
    }
    CalcoloChi calcolo;
};

// Curve a at a relative slenderness of 1: phi 0.5 (1 + 0.21 · 0.8 + 1) = 1.084, chi 1 / (1.084 + 0.4185).
TEST_F(CalcoloChiTest, FollowsTheCurve) {
    Trova<QComboBox>(&calcolo, "ComboChi")->setCurrentText("a");
    Trova<QRadioButton>(&calcolo, "optChi_1")->setChecked(true);
    Scrive("txtChi_0", "1");
    calcolo.Calcola(235);
    EXPECT_EQ(Testo(&calcolo, "txtChi_2"), Locale("93.9"));
    EXPECT_EQ(Testo(&calcolo, "txtChi_3"), Locale("0.21"));
    EXPECT_EQ(Testo(&calcolo, "txtChi_4"), Locale("1.084"));
    EXPECT_EQ(Testo(&calcolo, "txtChi_5"), Locale("0.6656"));
}

TEST_F(CalcoloChiTest, AnswersEachChangeAndCorrectsWithOneBox) {
    Scrive("txtChi_0", "93.9");
    EXPECT_EQ(Testo(&calcolo, "txtChi_2"), "") << "the strength is not known yet";
    calcolo.Calcola(235);
    EXPECT_EQ(Testo(&calcolo, "txtChi_2"), Locale("1.0"));
    Scrive("txtChi_1", "0.64");
    EXPECT_EQ(Testo(&calcolo, "txtChi_2"), Locale("0.8"));
    Scrive("txtChi_1", "1.2");
    EXPECT_EQ(Testo(&calcolo, "txtChi_1"), "1");
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"BetaA deve essere <=1"});
}

// 1 is 93.9 for fy 235, and 93.9 is 1 again.
TEST_F(CalcoloChiTest, TurnsTheSlendernessIntoTheOtherOne) {
    calcolo.Calcola(235);
    Trova<QRadioButton>(&calcolo, "optChi_1")->click();
    EXPECT_EQ(Testo(&calcolo, "txtChi_0"), "") << "nothing is given yet";
    Scrive("txtChi_0", "1");
    Trova<QRadioButton>(&calcolo, "optChi_0")->click();
    EXPECT_EQ(Testo(&calcolo, "txtChi_0"), Locale("93.9"));
    EXPECT_EQ(Testo(&calcolo, "txtChi_2"), Locale("1.0"));
    Trova<QRadioButton>(&calcolo, "optChi_1")->click();
    EXPECT_EQ(Testo(&calcolo, "txtChi_0"), "1");
    EXPECT_EQ(Testo(&calcolo, "txtChi_2"), Locale("93.9"));
}

TEST_F(CalcoloChiTest, StartsWithTheCurveOfTheSectionAndKeepsTheChosenOne) {
    auto* curve = Trova<QComboBox>(&calcolo, "ComboChi");
    calcolo.ProponeCurva("b");
    EXPECT_EQ(curve->currentText(), "b");
    curve->setCurrentText("d");
    calcolo.ProponeCurva("b");
    EXPECT_EQ(curve->currentText(), "d") << "the same section";
    calcolo.ProponeCurva("a");
    EXPECT_EQ(curve->currentText(), "a");
}

} // namespace
