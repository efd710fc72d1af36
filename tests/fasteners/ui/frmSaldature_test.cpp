#include "fasteners/ui/frmSaldature.h"

#include <QAction>
#include <QMenu>

#include "frame/ui/UpDown.h"
#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

// Expected strengths by hand, fu / 1.7320508 / betaw / 1.25: 207.85, 233.66, 261.73.
class FrmSaldatureTest : public AmbienteSchermi {
protected:
    frmSaldature& Apre() {
        partenza = &Avvia();
        return Riapre();
    }
    frmSaldature& Riapre() {
        Trova<QAction>(partenza, "mnuCollegamenti_1")->trigger();
        w = dynamic_cast<frmSaldature*>(NavigaSchermi::Unico().Trova(QStringLiteral("frmSaldature")));
        if (w == nullptr || !w->isVisible())
            throw std::runtime_error("the screen did not open");
        return *w;
    }
    [[nodiscard]] std::string Legge(const char* casella) const { return Testo(w, casella); }

    frmDoppioT* partenza = nullptr;
    frmSaldature* w = nullptr;
};

TEST_F(FrmSaldatureTest, TextsOfTheScreen) {
    Apre();
    EXPECT_EQ(w->windowTitle(),
              "Resistenza saldature a cordoni d'angolo - EC5 1-8 #4.5.3.3  NTC2018 #4.2.8.2.4");
    const std::pair<const char*, const char*> etichette[] = {{"UpDown2", "Acciaio"},
                                                             {"Txt_fu", "fu"},
                                                             {"Txt_betaw", "Coeff. di correlazione"},
                                                             {"Txt_fvwd", "Resistenza di progetto a taglio"}};
    for (const auto& [controllo, testo] : etichette) {
        const auto* c = Trova<QWidget>(w, controllo);
        EXPECT_FALSE(c->toolTip().isEmpty()) << controllo;
        EXPECT_FALSE(c->accessibleName().isEmpty()) << controllo;
        bool named = false;
        for (const QLabel* label : w->findChildren<QLabel*>())
            named = named || (label->buddy() == c && label->text() == testo);
        EXPECT_TRUE(named) << controllo;
    }
    for (const char* box : {"Txt_TipoAcciaio", "Txt_fu", "Txt_betaw", "Txt_fvwd"})
        EXPECT_TRUE(Trova<QLineEdit>(w, box)->isReadOnly()) << box;
}

TEST_F(FrmSaldatureTest, ShowsTheStrengthForTheSteelInUse) {
    Apre();
    EXPECT_FALSE(partenza->isVisible());
    EXPECT_EQ(w->pos(), QPoint(8, 53));
    EXPECT_EQ(Legge("Txt_TipoAcciaio"), "S235 (Fe360)");
    EXPECT_EQ(Legge("Txt_fu"), "360");
    EXPECT_EQ(Legge("Txt_betaw"), Locale("0.8"));
    EXPECT_EQ(Legge("Txt_fvwd"), Locale(" 207.8"));
    EXPECT_EQ(Trova<QLabel>(w, "Lbl_Valori")->text().toStdString(),
              Locale("360 / (√3 · 0.8 · 1.25) = 207.8"));
    EXPECT_EQ(Trova<QLabel>(w, "Lbl_GammaM2")->text().toStdString(), Locale("1.25"));
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmSaldatureTest, SpinnerStepsTheSteelInUseAndStopsAtBothEnds) {
    Apre();
    auto* steel = Trova<UpDown>(w, "UpDown2");
    steel->stepUp();
    EXPECT_EQ(IndiceAcciaio, 1);
    EXPECT_EQ(Legge("Txt_TipoAcciaio"), "S275 (Fe430)");
    EXPECT_EQ(Legge("Txt_betaw"), Locale("0.85"));
    EXPECT_EQ(Legge("Txt_fvwd"), Locale(" 233.7"));
    steel->stepUp();
    steel->stepUp();
    EXPECT_EQ(IndiceAcciaio, 2);
    EXPECT_EQ(Legge("Txt_betaw"), Locale("0.9"));
    EXPECT_EQ(Legge("Txt_fvwd"), Locale(" 261.7"));
    for (int i = 0; i < 4; ++i)
        steel->stepDown();
    EXPECT_EQ(IndiceAcciaio, 0);
    EXPECT_EQ(Legge("Txt_fvwd"), Locale(" 207.8"));
}

TEST_F(FrmSaldatureTest, UnknownStrengthIsToldTwiceAndTheScreenStays) {
    Apre();
    fuAcciaio[2] = 400;
    Trova<UpDown>(w, "UpDown2")->stepUp();
    ASSERT_EQ(registratore.messaggi.size(), 2U);
    for (const Messaggio& m : registratore.messaggi) {
        EXPECT_EQ(m.testo, "Valore di fu non previsto");
        EXPECT_EQ(m.icona, Icona::Stop);
    }
    EXPECT_EQ(Legge("Txt_fu"), "400");
    EXPECT_EQ(Legge("Txt_betaw"), "") << "a factor of 0 is none";
    EXPECT_EQ(Legge("Txt_fvwd"), "");
    EXPECT_EQ(Trova<QLabel>(w, "Lbl_Valori")->text(), "");
    EXPECT_TRUE(w->isVisible());
    Trova<UpDown>(w, "UpDown2")->stepUp();
    EXPECT_EQ(Legge("Txt_fvwd"), Locale(" 261.7"));
}

TEST_F(FrmSaldatureTest, ComesBackWithTheSteelAndTheFactorsOfTheMoment) {
    Apre();
    w->close();
    EXPECT_TRUE(partenza->isVisible());
    EXPECT_EQ(NavigaSchermi::Unico().Attivo(), partenza);
    GammaM2 = 1;
    Riapre();
    EXPECT_EQ(Legge("Txt_fvwd"), Locale(" 259.8")); // 360 / 1.73205 / 0.8
}

TEST_F(FrmSaldatureTest, WorksByKeyboardAlone) {
    partenza = &Avvia();
    ASSERT_TRUE(QTest::qWaitForWindowActive(partenza));
    QTest::keyClick(partenza, Qt::Key_C, Qt::AltModifier);
    auto* menu = Trova<QMenu>(partenza, "mnuCollegamenti1");
    ASSERT_TRUE(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_S);
    w = dynamic_cast<frmSaldature*>(NavigaSchermi::Unico().Trova(QStringLiteral("frmSaldature")));
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->focusWidget()->objectName(), "UpDown2");
    QTest::keyClick(w->focusWidget(), Qt::Key_Up);
    EXPECT_EQ(Legge("Txt_fvwd"), Locale(" 233.7"));
    QTest::keyClick(w->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(Legge("Txt_fvwd"), Locale(" 207.8"));
    QTest::keyClick(w, Qt::Key_Escape);
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(partenza->isVisible());
}

} // namespace
