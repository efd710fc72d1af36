#include <QPushButton>

#include "drawing/ui/ImmagineDisegno.h"
#include "screens/Comandi.h"
#include "screens/FrmPresFless.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// What details and their caller tell one another.
class ScambiTest : public AmbienteSchermi {
protected:
    frmDoppioT& Principale(const char* section = "IPE 300") {
        auto& main = Avvia();
        VaA(main, section);
        Scrive(&main, "TxtNsd", "250");
        Scrive(&main, "Txt_L0_0", "5");
        Scrive(&main, "Txt_L0_1", "2.5");
        return main;
    }
    static FrmPresFless& ConMomenti(frmDoppioT& main, const char* M1, const char* M2) {
        NavigaSchermi::Unico().Apre("FrmPresFless", main);
        auto& f = dynamic_cast<FrmPresFless&>(Aperto("FrmPresFless"));
        Scrive(&f, "TxtM1_0", M1);
        Scrive(&f, "TxtM2_0", M2);
        return f;
    }
};

TEST_F(ScambiTest, NTravelsFromEveryDetailToItsCallerAndBack) {
    auto& main = Principale();
    int force = 300;
    for (const char* name : {"FrmVerifiche", "FrmMsverg", "FrmInstabDoppioT", "FrmPresFless", "FrmMcRd"}) {
        NavigaSchermi::Unico().Apre(name, main);
        auto& f = Aperto(name);
        EXPECT_EQ(Testo(&f, "TxtNsd"), Testo(&main, "TxtNsd")) << name;
        Scrive(&f, "TxtNsd", std::to_string(++force).c_str());
        EXPECT_EQ(Testo(&main, "TxtNsd"), std::to_string(force)) << name;
        Scrive(&main, "TxtNsd", std::to_string(++force).c_str());
        f.AllAttivazione();
        EXPECT_EQ(Testo(&f, "TxtNsd"), std::to_string(force)) << name;
        EXPECT_EQ(Testo(&main, "TxtNsd"), std::to_string(force)) << name;
    }
}

// i 124.6 and 33.5 mm: 4000 / 124.6 = 32.10, 3000 / 33.5 = 89.55.
TEST_F(ScambiTest, LengthsAreTypedWhereTheDerivationStarts) {
    auto& main = Principale();
    Preme(&main, "LblNbRd");
    auto& f = Aperto("FrmInstabDoppioT");
    EXPECT_EQ(Testo(&f, "Txt_L0_0"), "5");
    EXPECT_EQ(Scritta(&f, "Lbl_i_0"), Locale("124.6"));
    EXPECT_EQ(Scritta(&f, "Lbl_i_1"), Locale("33.5"));
    Scrive(&f, "Txt_L0_0", "4");
    Scrive(&f, "Txt_L0_1", "3");
    EXPECT_NEAR(Numero(&f, "Lbl_Lamda_0"), 32.10, 0.01);
    EXPECT_NEAR(Numero(&f, "Lbl_Lamda_1"), 89.55, 0.01);
    EXPECT_EQ(Testo(&main, "Txt_L0_0"), "4");
    EXPECT_EQ(Testo(&main, "Txt_L0_1"), "3");
    EXPECT_NEAR(Numero(&f, "Lbl_Utilizzo_1"), 250 / Numero(&f, "Lbl_NbRd_1"), 6e-4);
    Scrive(&f, "TxtNsd", "-10");
    EXPECT_EQ(Scritta(&f, "Lbl_Utilizzo_1"), "") << "tension";
}

TEST_F(ScambiTest, AMomentTypedInADetailComesBackIntoTheDiagramThatKeepsItsShape) {
    auto& f = ConMomenti(Principale(), "60", "-20");
    Preme(&f, "LblFlessTors");
    auto& ms = Aperto("FrmMsverg");
    EXPECT_EQ(Testo(&ms, "TxtMysd"), "60");
    Scrive(&ms, "TxtMysd", "90");
    f.AllAttivazione();
    EXPECT_EQ(Testo(&f, "TxtM1_0"), "90");
    EXPECT_EQ(Testo(&f, "TxtM2_0"), "-30");
    Scrive(&f, "TxtM1_0", "75");
    ms.AllAttivazione();
    EXPECT_EQ(Testo(&ms, "TxtMysd"), "75");
}

TEST_F(ScambiTest, AMomentComesIntoADiagramThatHadNone) {
    auto& f = ConMomenti(Principale(), "60", "0");
    Preme(&f, "LblVerifiche");
    auto& check = Aperto("FrmVerifiche");
    Scrive(&check, "TxtMzsd", "8");
    f.AllAttivazione();
    EXPECT_EQ(Testo(&f, "TxtM1_1"), "8");
    EXPECT_EQ(Testo(&f, "TxtM1_0"), "60");
    check.AllAttivazione();
    EXPECT_EQ(Testo(&check, "TxtMzsd"), "8");
}

// psi -1/3: 1.88 + 1.4/3 + 0.52/9 = 2.404.
TEST_F(ScambiTest, C1OfAnotherDetailHoldsUntilTheDiagramChanges) {
    auto& f = ConMomenti(Principale(), "60", "-20");
    EXPECT_EQ(Scritta(&f, "Lbl_C1"), Locale("2.404"));
    Preme(&f, "LblFlessTors");
    auto& ms = Aperto("FrmMsverg");
    Scrive(&ms, "Txt_C1", "1.5");
    f.AllAttivazione();
    EXPECT_EQ(Scritta(&f, "Lbl_C1"), Locale("1.5"));
    ms.AllAttivazione();
    EXPECT_EQ(Testo(&ms, "Txt_C1"), Locale("1.5"));
    Scrive(&f, "TxtM2_0", "60"); // uniform
    EXPECT_EQ(Scritta(&f, "Lbl_C1"), Locale("1.0"));
    ms.AllAttivazione();
    EXPECT_EQ(Testo(&ms, "Txt_C1"), "1");
}

TEST_F(ScambiTest, BetaMComeFromTheDiagramAndZeroMeansNotGiven) {
    auto& f = ConMomenti(Principale(), "60", "60");
    Preme(&f, "LblFlessTors");
    auto& ms = Aperto("FrmMsverg");
    EXPECT_EQ(Scritta(&ms, "Lbl_BetaMLT"), Locale("1.1")); // 1.8 - 0.7
    EXPECT_EQ(Scritta(&ms, "Lbl_BetaMz"), Locale("1.1"));
    EXPECT_EQ(Scritta(&ms, "LblNotaBetaM"), "0 = non assegnato");
}

TEST_F(ScambiTest, ThePictureFollowsTheSignOfM2) {
    auto& f = ConMomenti(Principale(), "60", "-20");
    EXPECT_EQ(f.IndicePict, 2);
    EXPECT_TRUE(Trova<QAbstractButton>(&f, "Picture1_2")->isChecked());
    Scrive(&f, "TxtM2_0", "20");
    EXPECT_EQ(f.IndicePict, 1);
    EXPECT_TRUE(bool(Trova<ImmagineDisegno>(&f, "ImgMomenti")->Mostrato().PlottaInOggetto));
    Preme(&f, "Picture1_4");
    Scrive(&f, "TxtM2_0", "-20");
    EXPECT_EQ(f.IndicePict, 4) << "a span load keeps its shape";
}

// IPE 300, S235, class 1: 628400 · 235 / 1.05 = 140.6 kNm.
TEST_F(ScambiTest, TheMomentSaysItsFactor) {
    auto& main = Principale();
    Preme(&main, "LblMcRd");
    auto& f = Aperto("FrmMcRd");
    EXPECT_EQ(Scritta(&f, "Lbl_GammaM_0"), Locale("1.05"));
    EXPECT_EQ(Scritta(&f, "LblFormulaMcRd_0"), "W fy / γM0");
    EXPECT_NEAR(Numero(&f, "Lbl_McRd_0"), 628400 * 235 / 1.05e6, 0.05);
}

// IPE 500 S355 in compression: d/tw 41.76, lambda_p = 41.76 / (28.4 · 0.8136 · 2) = 0.9036,
// rho = (0.9036 - 0.22) / 0.8165 = 0.8372: of 426 mm 69.3 are lost, of 11600 mm2 707.
TEST_F(ScambiTest, AClassFourSectionSaysWhatItLoses) {
    auto& main = Principale("IPE 500");
    Preme(&main, "LblClasse");
    auto& f = Aperto("FrmClasseDoppioTU");
    EXPECT_TRUE(Trova<QWidget>(&f, "fraEfficace")->isHidden());
    Scrive(&main, "Txt_fy", "355");
    Scrive(&main, "TxtNsd", "900");
    f.AllAttivazione();
    EXPECT_FALSE(Trova<QWidget>(&f, "fraEfficace")->isHidden());
    EXPECT_NEAR(Numero(&f, "Lbl_PersaWebC"), 69.3, 0.5);
    EXPECT_NEAR(Numero(&f, "Lbl_Aeff"), 11550 - 707, 60);
    EXPECT_EQ(Scritta(&f, "Lbl_PersaWebF"), "");
    EXPECT_EQ(Scritta(&f, "Lbl_WyEff"), "");
}

} // namespace
