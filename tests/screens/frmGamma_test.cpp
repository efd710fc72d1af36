#include "screens/frmGamma.h"

#include <QAction>
#include <QPushButton>
#include <QRadioButton>

#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmGammaTest : public AmbienteSchermi {
protected:
    Schermo& ApreDialogo(SchermoSezione& s) {
        s.NormativaMain->trigger();
        Schermo* dialog = NavigaSchermi::Unico().Trova(QStringLiteral("frmGamma"));
        if (dialog == nullptr || !dialog->isVisible())
            throw std::runtime_error("the dialog did not open");
        return *dialog;
    }
};

TEST_F(FrmGammaTest, ShowsTheFactorsInForce) {
    auto& s = Avvia();
    auto& d = ApreDialogo(s);
    EXPECT_EQ(d.windowTitle(), "Coefficienti parziali di sicurezza");
    EXPECT_TRUE(Trova<QRadioButton>(&d, "optNormativa_0")->isChecked());
    EXPECT_EQ(Testo(&d, "txtGamma_0"), Locale("1.05"));
    EXPECT_EQ(Testo(&d, "txtGamma_1"), Locale("1.05"));
    EXPECT_EQ(Testo(&d, "txtGamma_2"), Locale("1.25"));
    EXPECT_EQ(Trova<QLabel>(&d, "LblGamma_0")->text(), "Resistenza delle sezioni");
    EXPECT_EQ(Trova<QLabel>(&d, "LblGamma_1")->text(), "Resistenza all'instabilità");
    EXPECT_EQ(Trova<QLabel>(&d, "LblGamma_2")->text(), "Resistenza dei collegamenti");
    EXPECT_TRUE(Trova<QLineEdit>(&d, "txtGamma_0")->isReadOnly());
}

TEST_F(FrmGammaTest, OptionActsAtOnceAndTheCallerRecalculatesOnClosing) {
    auto& s = Avvia();
    VaA(s, "IPE 200");
    auto& d = ApreDialogo(s);
    Trova<QRadioButton>(&d, "optNormativa_1")->click();
    EXPECT_EQ(Normativa, normativaEC3);
    EXPECT_EQ(GammaM0.Stretto(), 1.F);
    EXPECT_EQ(Testo(&d, "txtGamma_0"), "1");
    Trova<QPushButton>(&d, "cmdOK_0")->click();
    EXPECT_FALSE(d.isVisible());
    EXPECT_EQ(s.NormativaMain->text(), "Normativa: EC3");
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), Locale(" 669.3")); // 2848 · 235 / 1000
}

TEST_F(FrmGammaTest, OwnFactorsCanBeTypedUnderAltroOnly) {
    auto& s = Avvia();
    auto& d = ApreDialogo(s);
    Trova<QRadioButton>(&d, "optNormativa_2")->click();
    EXPECT_EQ(Testo(&d, "txtGamma_0"), "1") << "factors of a new installation are 0 and count as 1";
    EXPECT_FALSE(Trova<QLineEdit>(&d, "txtGamma_0")->isReadOnly());
    Trova<QLineEdit>(&d, "txtGamma_0")->setText(QString::fromStdString(Locale("1.1")));
    Trova<QLineEdit>(&d, "txtGamma_1")->setText("0");
    Trova<QLineEdit>(&d, "txtGamma_2")->setText(QString::fromStdString(Locale("1.3")));
    Trova<QPushButton>(&d, "cmdOK_0")->click();
    EXPECT_EQ(GammaM0.Stretto(), 1.1F);
    EXPECT_EQ(GammaM1Altro.Stretto(), 0.F);
    EXPECT_EQ(GammaM1.Stretto(), 1.F) << "0 counts as 1";
    EXPECT_EQ(GammaM2Altro.Stretto(), 1.3F);
    EXPECT_EQ(s.NormativaMain->text(), "Normativa: Altro");
}

TEST_F(FrmGammaTest, NegativeFactorIsRefusedInPlace) {
    auto& s = Avvia();
    auto& d = ApreDialogo(s);
    Trova<QRadioButton>(&d, "optNormativa_2")->click();
    Trova<QLineEdit>(&d, "txtGamma_1")->setText("-1");
    Trova<QPushButton>(&d, "cmdOK_0")->click();
    EXPECT_EQ(registratore.testi,
              std::vector<std::string>{"I coefficienti parziali di sicurezza non possono essere negativi"});
    EXPECT_TRUE(d.isVisible());
    EXPECT_EQ(GammaM1.Stretto(), 1.F);
}

TEST_F(FrmGammaTest, FactorOutsideItsRangeIsRefusedInPlace) {
    auto& s = Avvia();
    auto& d = ApreDialogo(s);
    Trova<QRadioButton>(&d, "optNormativa_2")->click();
    for (const char* text : {"1E-30", "0.49", "5.01", "1E400"}) {
        registratore.testi.clear();
        Trova<QLineEdit>(&d, "txtGamma_0")->setText(QString::fromStdString(Locale(text)));
        Trova<QPushButton>(&d, "cmdOK_0")->click();
        EXPECT_EQ(
            registratore.testi,
            std::vector<std::string>{"I coefficienti parziali di sicurezza devono essere compresi fra " +
                                     Locale("0.5") + " e 5"})
            << text;
        EXPECT_TRUE(d.isVisible());
        EXPECT_EQ(GammaM0.Stretto(), 1.F);
    }
    Trova<QLineEdit>(&d, "txtGamma_0")->setText(QString::fromStdString(Locale("0.5")));
    Trova<QLineEdit>(&d, "txtGamma_1")->setText("5");
    Trova<QPushButton>(&d, "cmdOK_0")->click();
    EXPECT_FALSE(d.isVisible());
    EXPECT_EQ(GammaM0.Stretto(), 0.5F);
    EXPECT_EQ(GammaM1.Stretto(), 5.F);
}

TEST_F(FrmGammaTest, CancelPutsBackTheCodeButNotTheFactors) {
    auto& s = Avvia();
    auto& d = ApreDialogo(s);
    Trova<QRadioButton>(&d, "optNormativa_1")->click();
    Trova<QPushButton>(&d, "cmdOK_1")->click();
    EXPECT_EQ(Trova<QPushButton>(&d, "cmdOK_1")->text(), "Annulla");
    EXPECT_EQ(Normativa, normativaNTC);
    EXPECT_EQ(s.NormativaMain->text(), "Normativa: NTC");
    EXPECT_EQ(GammaM0.Stretto(), 1.F);
    ImpostaGamma();
    EXPECT_EQ(GammaM0.Stretto(), 1.05F);
}

TEST_F(FrmGammaTest, ReopenedAfterCancelTheOldOptionSetsItsFactorsAgain) {
    auto& s = Avvia();
    auto& d = ApreDialogo(s);
    Trova<QRadioButton>(&d, "optNormativa_1")->click();
    d.close(); // the window's own button cancels too
    EXPECT_EQ(GammaM0.Stretto(), 1.F);
    ApreDialogo(s);
    EXPECT_TRUE(Trova<QRadioButton>(&d, "optNormativa_0")->isChecked());
    EXPECT_EQ(Testo(&d, "txtGamma_0"), "1") << "the factors in force";
    Trova<QRadioButton>(&d, "optNormativa_0")->click();
    EXPECT_EQ(GammaM0.Stretto(), 1.05F);
}

TEST_F(FrmGammaTest, EscapeIsCancel) {
    auto& s = Avvia();
    auto& d = ApreDialogo(s);
    Trova<QRadioButton>(&d, "optNormativa_2")->click();
    QTest::keyClick(&d, Qt::Key_Escape);
    EXPECT_FALSE(d.isVisible());
    EXPECT_EQ(Normativa, normativaNTC);
}

} // namespace
