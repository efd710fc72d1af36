#include "screens/FrmMcRd.h"

#include <QGroupBox>
#include <QPushButton>

#include "frame/ui/EtichettaPedice.h"
#include "frame/ui/UpDown.h"
#include "screens/Dettagli.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmMcRdTest : public AmbienteSchermi {
protected:
    FrmMcRd& Apre(const char* section = "IPE 300") {
        s = &Avvia();
        VaA(*s, section);
        return Riapre();
    }
    FrmMcRd& Riapre() {
        Trova<QPushButton>(s, "LblMcRd")->click();
        return dynamic_cast<FrmMcRd&>(*NavigaSchermi::Unico().Trova(QStringLiteral("FrmMcRd")));
    }
    frmDoppioT* s = nullptr;
};

TEST_F(FrmMcRdTest, HasItsTexts) {
    auto& f = Apre();
    EXPECT_EQ(f.windowTitle(), "Momento resistente - EC3 #6.2.5");
    EXPECT_EQ(Trova<QGroupBox>(&f, "fraDuttilita")->title(),
              "Ordinanza 3274-2003-Parametro di duttilità #6.5.3.1");
    EXPECT_EQ(Scritta(&f, "LblNsd"), "N      [kN]");
    EXPECT_EQ(Scritta(&f, "LblNomeW"), "W [mm  ]");
    EXPECT_EQ(Trova<EtichettaPedice>(&f, "LblNomeW")->Apice(), "3");
    EXPECT_EQ(Testo(&f, "Txt_Prof"), "IPE 300");
    EXPECT_EQ(Testo(&f, "Txt_TipoAcciaio"), "S235 (Fe360)");
    EXPECT_EQ(Testo(&f, "Txt_fy"), "235");
}

// IPE 300, S235, NTC: 628.4 cm3 · 235 / 1.05 = 140.642 kNm, 125.2 · 235 / 1.05 = 28.021.
TEST_F(FrmMcRdTest, PlasticModulus) {
    auto& f = Apre();
    EXPECT_EQ(Scritta(&f, "Lbl_Classe_0"), "1");
    EXPECT_EQ(Scritta(&f, "Lbl_Classe_1"), "1");
    EXPECT_EQ(Scritta(&f, "Lbl_W_0"), "Plastico " + Locale(" 628,400"));
    EXPECT_EQ(Scritta(&f, "Lbl_W_1"), "Plastico " + Locale(" 125,200"));
    EXPECT_EQ(Scritta(&f, "Lbl_McRd_0"), Locale(" 140.6"));
    EXPECT_EQ(Scritta(&f, "Lbl_McRd_1"), Locale(" 28.02"));
    EXPECT_EQ(Scritta(&f, "LblFormulaMcRd_0"), "W fy / γM0");
    EXPECT_EQ(Scritta(&f, "Lbl_Numeri_0"), Locale("628,400") + " · 235 / (" + Locale("1.05") + " · 10⁶)");
    EXPECT_EQ(Scritta(&f, "Lbl_Numeri_1"), Locale("125,200") + " · 235 / (" + Locale("1.05") + " · 10⁶)");
}

// S355: 510 / 355 = 1.437, so 1.25; with 380 typed 380 / 355 = 1.07.
TEST_F(FrmMcRdTest, TheLimitFollowsBothStrengthsOfTheGrade) {
    auto& f = Apre();
    s->ComboTipoAcciaio->setCurrentIndex(2);
    emit s->ComboTipoAcciaio->activated(2);
    EXPECT_EQ(Scritta(&f, "Lbl_s_1"), "=" + Locale(" 1.25"));
    Scrive(s, "Txt_fu", "380");
    EXPECT_EQ(Scritta(&f, "Lbl_s_1"), "=" + Locale(" 1.07"));
}

TEST_F(FrmMcRdTest, ModulusFollowsTheClassOfEachAxis) {
    auto& f = Apre();
    Sezione().ClasseFlessioneY = 3;
    Sezione().ClasseFlessioneZ = 2;
    f.AllAttivazione();
    EXPECT_EQ(Scritta(&f, "Lbl_W_0"), "Elastico " + Locale(" 557,100"));
    EXPECT_EQ(Scritta(&f, "Lbl_W_1"), "Plastico " + Locale(" 125,200"));
    Sezione().ClasseFlessioneY = 4;
    Sezione().ClasseFlessioneZ = 3;
    Sezione().WyEff = 512345.6;
    f.AllAttivazione();
    EXPECT_EQ(Scritta(&f, "Lbl_Classe_0"), "4");
    EXPECT_EQ(Scritta(&f, "Lbl_W_0"), "Effettivo " + Locale(" 512,346"));
    EXPECT_EQ(Scritta(&f, "Lbl_W_1"), "Elastico " + Locale(" 80,500"));
    Sezione().ClasseFlessioneZ = 4;
    Sezione().WzEff = 7777.44;
    f.AllAttivazione();
    EXPECT_EQ(Scritta(&f, "Lbl_W_1"), "Effettivo " + Locale(" 7,777"));
    EXPECT_EQ(Scritta(&f, "Lbl_Numeri_1"), Locale("7,777") + " · 235 / (" + Locale("1.05") + " · 10⁶)");
}

TEST_F(FrmMcRdTest, NumbersBelowOneStandInPowersOfTen) {
    auto& f = Apre();
    Sezione().MczRd = 123456;
    f.AllAttivazione();
    EXPECT_EQ(Scritta(&f, "Lbl_McRd_1"), Locale(" 1.235E-01"));
    Sezione().MczRd = std::nan("");
    f.AllAttivazione();
    EXPECT_EQ(Scritta(&f, "Lbl_McRd_1"), "");
}

TEST_F(FrmMcRdTest, OpeningTakesTheForceFromTheSectionAndKeepsTheShearLength) {
    s = &Avvia();
    VaA(*s, "IPE 300");
    Scrive(s, "TxtNsd", "200");
    auto& f = Riapre();
    EXPECT_EQ(Testo(&f, "TxtNsd"), "200");
    EXPECT_EQ(Testo(&f, "txtLstar"), "");
    Scrive(&f, "txtLstar", "3000");
    Scrive(&f, "TxtNsd", "50");
    f.AllAttivazione();
    EXPECT_EQ(Testo(&f, "TxtNsd"), "50") << "coming back refills nothing";
    EXPECT_EQ(Testo(s, "TxtNsd"), "50") << "the member has one axial force";
    EXPECT_EQ(Sezione().NSd.Stretto(), 50e3F);
    Scrive(s, "TxtNsd", "75");
    Riapre();
    EXPECT_EQ(Testo(&f, "TxtNsd"), "75");
    EXPECT_EQ(Testo(&f, "txtLstar"), "3000");
}

// By hand in Duttilita_test.cpp: 1 / 0.781334 = 1.27986, with 200 kN 1.23570.
TEST_F(FrmMcRdTest, DuctilityParameter) {
    auto& f = Apre();
    Scrive(&f, "txtLstar", "3000");
    EXPECT_EQ(Scritta(&f, "Lbl_s_0"), "=" + Locale(" 1.280"));
    EXPECT_EQ(Scritta(&f, "Lbl_s_1"), "=" + Locale(" 1.25"));
    EXPECT_NE(Colore(&f, "Lbl_s_0"), rosso);
    EXPECT_EQ(Colore(&f, "Lbl_s_1"), rosso) << "the limit governs";
    Scrive(&f, "TxtNsd", "200");
    EXPECT_EQ(Scritta(&f, "Lbl_s_0"), "=" + Locale(" 1.236"));
    EXPECT_EQ(Colore(&f, "Lbl_s_0"), rosso);
    EXPECT_NE(Colore(&f, "Lbl_s_1"), rosso);
}

TEST_F(FrmMcRdTest, HighForceCountsUpToTheWholeWeb) {
    auto& f = Apre();
    Scrive(&f, "txtLstar", "3000");
    Scrive(&f, "TxtNsd", "2000");
    EXPECT_EQ(Scritta(&f, "Lbl_s_0"), "=" + Locale(" 1.161"));
    Scrive(&f, "TxtNsd", "20000");
    EXPECT_EQ(Scritta(&f, "Lbl_s_0"), "=" + Locale(" 1.161"));
}

TEST_F(FrmMcRdTest, NoShearLengthNoParameter) {
    auto& f = Apre();
    for (const char* length : {"", "0", "-5"}) {
        Scrive(&f, "txtLstar", length);
        EXPECT_EQ(Scritta(&f, "Lbl_s_0"), "L* ?");
        EXPECT_NE(Colore(&f, "Lbl_s_0"), rosso);
        EXPECT_EQ(Colore(&f, "Lbl_s_1"), rosso);
    }
}

TEST_F(FrmMcRdTest, LimitIsTheOverstrength) {
    auto& f = Apre();
    Scrive(s, "Txt_fy", "460");
    Scrive(s, "Txt_fu", "540"); // 1.1739
    f.AllAttivazione();
    EXPECT_EQ(Scritta(&f, "Lbl_s_1"), "=" + Locale(" 1.17"));
}

// fu/fy is put exactly at s and just below it.
TEST_F(FrmMcRdTest, ColoursChangeWhereTheParameterReachesTheLimit) {
    auto& f = Apre();
    Scrive(&f, "txtLstar", "3000");
    Scrive(&f, "TxtNsd", "200");
    Sezione().fu = 235 * 1.2357;
    f.CalcolaDuttilita(200e3, 3000); // s 1.235697
    EXPECT_EQ(Colore(&f, "Lbl_s_0"), rosso);
    EXPECT_NE(Colore(&f, "Lbl_s_1"), rosso);
    Sezione().fu = 235 * 1.2356;
    f.CalcolaDuttilita(200e3, 3000);
    EXPECT_NE(Colore(&f, "Lbl_s_0"), rosso);
    EXPECT_EQ(Colore(&f, "Lbl_s_1"), rosso);
}

TEST_F(FrmMcRdTest, ParameterThatIsNoNumberIsEmpty) {
    auto& f = Apre();
    Sezione().tf = 0;
    Sezione().b = 0;
    f.CalcolaDuttilita(0, 3000);
    EXPECT_EQ(Scritta(&f, "Lbl_s_0"), "");
    EXPECT_NE(Colore(&f, "Lbl_s_0"), rosso);
    EXPECT_NE(Colore(&f, "Lbl_s_1"), rosso);
}

TEST_F(FrmMcRdTest, StepsRowAndGradeOfTheCaller) {
    auto& f = Apre();
    Trova<UpDown>(&f, "UpDown1")->stepUp();
    EXPECT_EQ(Testo(&f, "Txt_Prof"), "IPE 330");
    EXPECT_EQ(Scritta(&f, "Lbl_McRd_0"), Locale(" 180.0"));
    Trova<UpDown>(&f, "UpDown2")->stepUp();
    EXPECT_EQ(Testo(&f, "Txt_fy"), "275");
    EXPECT_EQ(Scritta(&f, "Lbl_McRd_0"), Locale(" 210.7")); // 804.3 · 275 / 1.05
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmMcRdTest, EnterGoesFromTheForceToTheShearLength) {
    auto& f = Apre();
    EXPECT_EQ(f.focusWidget()->objectName(), "TxtNsd");
    QTest::keyClick(f.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(f.focusWidget()->objectName(), "txtLstar");
}

TEST_F(FrmMcRdTest, DrawsTheSection) {
    auto& f = Apre();
    auto* picture = Trova<QWidget>(&f, "Picture1");
    const QImage first = picture->grab().toImage();
    Trova<UpDown>(&f, "UpDown1")->stepUp();
    EXPECT_NE(picture->grab().toImage(), first);
}

} // namespace
