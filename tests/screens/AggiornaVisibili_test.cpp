#include "screens/AggiornaVisibili.h"

#include <QWindow>

#include "drawing/ui/FrmPltSezione.h"
#include "fasteners/ui/frmBulloni.h"
#include "frame/Unita.h"
#include "screens/Comandi.h"
#include "screens/FrmMcRd.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class AggiornaVisibiliTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        s = &Avvia();
        VaA(*s, "IPE 300");
    }
    Schermo& Apre(const char* name) {
        NavigaSchermi::Unico().Apre(QString::fromLatin1(name), *s);
        return Aperto(name);
    }
    frmDoppioT* s = nullptr;
};

TEST_F(AggiornaVisibiliTest, VisibleDetailsFollowTheRowOfTheirCaller) {
    const auto& buckling = Apre("FrmInstabDoppioT");
    const auto& moment = Apre("FrmMcRd");
    VaA(*s, "IPE 200");
    EXPECT_EQ(Testo(&buckling, "Txt_Prof"), "IPE 200");
    EXPECT_EQ(Testo(&moment, "Txt_Prof"), "IPE 200");
    // 220,6 cm3 · 235 / 1,05
    EXPECT_NEAR(Numero(&moment, "Lbl_McRd_0"), 220.6 * 0.235 / 1.05, 0.05);
}

TEST_F(AggiornaVisibiliTest, VisibleDetailsTakeTheForceTypedIntoTheirCaller) {
    const auto& check = Apre("FrmVerifiche");
    const auto& member = Apre("FrmPresFless");
    NavigaSchermi::Unico().Apre(QStringLiteral("FrmMcRd"), *s); // in use now
    s->TxtNsd->setText(QStringLiteral("120"));
    EXPECT_EQ(Testo(&check, "TxtNsd"), "120");
    EXPECT_EQ(Testo(&member, "TxtNsd"), "120");
    EXPECT_EQ(s->TxtNsd->text(), "120") << "no detail writes its old force back";
    s->Txt_L0[1]->setText(QStringLiteral("4"));
    EXPECT_EQ(Testo(&member, "Txt_L0_1"), "4");
    EXPECT_NEAR(Numero(&member, "Lbl_Lamda_1"), 400 / 3.35, 0.1) << "iz of IPE 300 is 3,35 cm";
}

TEST_F(AggiornaVisibiliTest, NothingSpeaksOrGoesAstrayWhileTheCallerIsTypedInto) {
    const auto& member = Apre("FrmPresFless");
    const auto& torsion = Apre("FrmMsverg");
    s->activateWindow();
    QTest::keyClicks(s->TxtNsd, QString::fromStdString(Locale("-1250.5")));
    QTest::keyClick(s->TxtNsd, Qt::Key_Return);
    EXPECT_EQ(s->TxtNsd->text().toStdString(), Locale("-1250.5"));
    EXPECT_EQ(NumeroIn(Trova<QLineEdit>(&member, "TxtNsd")), -1250.5);
    EXPECT_EQ(NumeroIn(Trova<QLineEdit>(&torsion, "TxtNsd")), -1250.5);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(AggiornaVisibiliTest, ADetailKeepsWhatItHasOfItsOwn) {
    const auto& check = Apre("FrmVerifiche");
    Scrive(&check, "TxtNsd", "75");
    Scrive(&check, "TxtMysd", "20");
    NavigaSchermi::Unico().Apre(QStringLiteral("FrmMcRd"), *s);
    VaA(*s, "IPE 200");
    EXPECT_EQ(Testo(&check, "TxtNsd"), "75");
    EXPECT_EQ(Testo(&check, "TxtMysd"), "20");
    EXPECT_EQ(Sezione().Mysd, 0) << "the section of the main screen hears nothing of it";
    EXPECT_EQ(s->TxtNsd->text(), "75") << "but N goes both ways";
    EXPECT_EQ(Sezione().NSd, 75e3);
}

TEST_F(AggiornaVisibiliTest, TheActiveDetailWorksOnTheSectionItself) {
    Apre("FrmMcRd");
    const auto& check = Apre("FrmVerifiche");
    Scrive(&check, "TxtMysd", "20");
    VaA(*s, "IPE 200");
    EXPECT_EQ(Sezione().Mysd.Stretto(), 20e6F);
}

TEST_F(AggiornaVisibiliTest, NothingSpeaksWhileOthersComputeAnew) {
    const auto& torsion = Apre("FrmMsverg");
    Scrive(&torsion, "Txt_L", "6");
    Scrive(&torsion, "Txt_C1", "0"); // no critical moment: a message at its own computing
    NavigaSchermi::Unico().Apre(QStringLiteral("FrmMcRd"), *s);
    registratore.testi.clear();
    VaA(*s, "IPE 200");
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(Testo(&torsion, "Txt_Prof"), "IPE 200");
}

TEST_F(AggiornaVisibiliTest, ThePreviewShowsTheRowInHand) {
    Trova<QPushButton>(s, "CmdPlotta")->click();
    const auto& preview = NavigaSchermi::Unico().Prende<FrmPltSezione>();
    EXPECT_EQ(preview.windowTitle(), "Plotta - IPE 300");
    VaA(*s, "IPE 200");
    EXPECT_EQ(preview.windowTitle(), "Plotta - IPE 200");
}

TEST_F(AggiornaVisibiliTest, TimoshenkosBeamTakesTheConstantsOfAnotherRow) {
    const auto& torsion = Apre("FrmMsverg");
    Preme(&torsion, "Command1");
    const auto& beam = Aperto("frmTimoshenko");
    Scrive(&beam, "TxtIT", "99");
    s->Txt_L0[0]->setText(QStringLiteral("3"));
    EXPECT_EQ(Testo(&beam, "TxtIT"), "99") << "the same section: what was typed stays";
    VaA(*s, "IPE 200");
    EXPECT_EQ(Testo(&beam, "Txt_Prof"), "IPE 200");
    EXPECT_EQ(ValoreNumerico(Testo(&beam, "TxtIz")), 142.4);
}

TEST_F(AggiornaVisibiliTest, ClosingGoesToTheNearestScreenThatIsVisible) {
    auto& member = Apre("FrmPresFless");
    Preme(&member, "LblFlessTors");
    auto& torsion = Aperto("FrmMsverg");
    member.close();
    EXPECT_FALSE(member.isVisible());
    QTest::keyClick(&torsion, Qt::Key_Escape);
    EXPECT_FALSE(torsion.isVisible());
    EXPECT_FALSE(member.isVisible()) << "a closed screen stays closed";
    EXPECT_EQ(NavigaSchermi::Unico().Attivo(), s);
}

TEST_F(AggiornaVisibiliTest, DetailsLeaveAndComeBackWithTheirCaller) {
    auto& check = Apre("FrmVerifiche");
    Apre("frmBulloni");
    EXPECT_FALSE(s->isVisible());
    EXPECT_FALSE(check.isVisible());
    Aperto("frmBulloni").close();
    EXPECT_TRUE(s->isVisible());
    EXPECT_TRUE(check.isVisible());
    EXPECT_EQ(NavigaSchermi::Unico().Attivo(), s);
}

TEST_F(AggiornaVisibiliTest, ADetailIsTransientForTheScreenThatOpensIt) {
    auto& member = Apre("FrmPresFless");
    EXPECT_EQ(member.windowHandle()->transientParent(), s->windowHandle());
    Preme(&member, "LblFlessTors");
    auto& torsion = Aperto("FrmMsverg");
    EXPECT_EQ(torsion.windowHandle()->transientParent(), member.windowHandle());
    member.close();
    EXPECT_EQ(torsion.windowHandle()->transientParent(), s->windowHandle());
}

TEST_F(AggiornaVisibiliTest, EscClosesTheObservationsOfTheBoltsFirst) {
    auto& bolts = Apre("frmBulloni");
    Preme(&bolts, "Command1");
    auto* notes = Trova<QWidget>(&bolts, "Txt_Osservazioni");
    ASSERT_TRUE(notes->isVisible());
    QTest::keyClick(notes, Qt::Key_Escape);
    EXPECT_FALSE(notes->isVisible());
    EXPECT_TRUE(bolts.isVisible());
    QTest::keyClick(&bolts, Qt::Key_Escape);
    EXPECT_FALSE(bolts.isVisible());
}

TEST_F(AggiornaVisibiliTest, EnterPressesOkOfTheFactors) {
    for (const char* control : {"optNormativa_2", "txtGamma_0", "txtGamma_2", "cmdOK_0", "cmdOK_1"}) {
        auto& dialog = Apre("frmGamma");
        Preme(&dialog, "optNormativa_2");
        Scrive(&dialog, "txtGamma_0", "1.1");
        QTest::keyClick(Trova<QWidget>(&dialog, control), Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible()) << control;
        EXPECT_EQ(GammaM0.Stretto(), 1.1F) << control;
        GammaM0 = GammaM0Altro = 1;
    }
}

} // namespace
