#include "screens/frmSaldati.h"

#include <QAction>
#include <QMenu>

#include "catalogue/LettoreXls.h"
#include "catalogue/ScrittoreXls.h"
#include "screens/Comandi.h"
#include "screens/frmSaldatiAsimm.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmSaldatiTest : public AmbienteSchermi {
protected:
    /// Opens a screen of welded sections from the first screen.
    template <typename T> T& Apre(const char* voce) {
        Trova<QAction>(&Avvia(), voce)->trigger();
        return NavigaSchermi::Unico().Prende<T>();
    }
    frmSaldati& Simmetrici() { return Apre<frmSaldati>("mnuTipoSaldati"); }
    frmSaldatiAsimm& Asimmetrici() { return Apre<frmSaldatiAsimm>("mnuTipoSaldatiAsimm"); }

    static QStringList Scritte(const QObject& screen, const char* array, int n) {
        QStringList texts;
        for (int i = 1; i <= n; ++i)
            texts << Trova<QLabel>(&screen, (array + std::to_string(i)).c_str())->text();
        return texts;
    }
};

TEST_F(FrmSaldatiTest, TakesThePlaceOfTheFirstScreenWithItsOwnFamilies) {
    auto& s = Simmetrici();
    EXPECT_TRUE(s.isVisible());
    EXPECT_FALSE(NavigaSchermi::Unico().Trova("frmDoppioT")->isVisible());
    EXPECT_EQ(s.windowTitle(), "Doppio T Saldati Simmetrici - F1 per aiuto");
    EXPECT_EQ(s.SQLstring, "SELECT * FROM [ISE$] ORDER BY [Wy (cm3)]");
    const char* families[] = {"HSE", "HSL", "HSU", "HSH", "ISE", "HSA"};
    ASSERT_EQ(s.ChkTipo.size(), 6);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(s.ChkTipo[i]->text(), families[i]);
        EXPECT_EQ(s.ChkTipo[i]->isChecked(), i == 4);
    }
    EXPECT_EQ(s.Data1->Recordset().Righe(), 49);
    EXPECT_EQ(s.Data1->Recordset().Campi(), 18);
    EXPECT_EQ(Scritte(s, "LblProf_", 17),
              (QStringList{"g (Kg/m):", "h (mm):", "b (mm):", "tw (mm):", "tf (mm):", "r (mm):", "A (cm2):",
                           "Iy (cm4):", "Wy (cm3):", "Wpl,y (cm3):", "iy (cm):", "Iz (cm4):", "Wz (cm3):",
                           "Wpl,z (cm3):", "iz (cm):", "IT (cm4):", "Iw (cm6):"}));
    EXPECT_EQ(s.findChild<QAction*>("mnuTipoSaldati"), nullptr);
    EXPECT_EQ(Trova<QAction>(&s, "mnuTipoSaldatiAsimm")->text(), "Saldati &Asimmetrici");
    EXPECT_EQ(Trova<QAction>(&s, "mnuTipoT")->text(), "&Doppio T Laminati");
    EXPECT_EQ(ScreenAttivo, "frmSaldati");
}

TEST_F(FrmSaldatiTest, DifferentFlangesHaveTheirOwnColumns) {
    auto& s = Asimmetrici();
    EXPECT_EQ(s.windowTitle(), "Doppio T Saldati Asimmetrici - F1 per aiuto");
    EXPECT_EQ(s.SQLstring, "SELECT * FROM [HSD$] ORDER BY [Wy1 (cm3)]");
    ASSERT_EQ(s.ChkTipo.size(), 1);
    EXPECT_EQ(s.ChkTipo[0]->text(), "HSD");
    EXPECT_EQ(s.OptionOrdina[0]->text(), "Wy1");
    EXPECT_EQ(s.Data1->Recordset().Righe(), 38);
    EXPECT_EQ(s.Data1->Recordset().Campi(), 21);
    EXPECT_EQ(Scritte(s, "LblProf_", 20),
              (QStringList{"g (Kg/m):",  "h (mm):",      "b1 (mm):",     "b2 (mm):",  "tw (mm):",
                           "tf1 (mm):",  "tf2 (mm):",    "r (mm):",      "A (cm2):",  "Iy (cm4):",
                           "Wy1 (cm3):", "Wy2 (cm3):",   "Wpl,y (cm3):", "iy (cm):",  "Iz (cm4):",
                           "Wz (cm3):",  "Wpl,z (cm3):", "iz (cm):",     "IT (cm4):", "Iw (cm6):"}));
    EXPECT_EQ(s.findChild<QAction*>("mnuTipoSaldatiAsimm"), nullptr);
    EXPECT_EQ(Trova<QAction>(&s, "mnuTipoSaldati")->text(), "&Saldati Simmetrici");
}

// ISE 300x53, S235, NTC, by hand: A 67.1 cm2, d/tw = 260/8 = 32.5, class 1; lambda1 93.9; L0y 6 m:
// 6000/125.4, curve b, chi 0.8799; L0z 3 m: 3000/35.49, curve c, chi 0.5997; Av = 270 x 8 and 2 x 150 x 15.
TEST_F(FrmSaldatiTest, ComputesTheSectionInHandAsWelded) {
    auto& s = Simmetrici();
    VaA(s, "ISE 300x53");
    EXPECT_TRUE(Sezione().Saldata);
    EXPECT_FALSE(Sezione().SaldataAsimm);
    EXPECT_EQ(Sezione().r.Stretto(), 5.F);
    EXPECT_EQ(Sezione().WelyInf.Stretto(), Sezione().Wely.Stretto());
    EXPECT_EQ(Sezione().iZ.Stretto(), 35.49F);
    Scrive(&s, "Txt_L0_0", "6");
    Scrive(&s, "Txt_L0_1", "3");
    EXPECT_EQ(Testo(&s, "TxtClasseCompressione"), "1");
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), Locale(" 1,321"));
    EXPECT_EQ(Testo(&s, "TxtNbRd_1"), Locale(" 900.6"));
    EXPECT_EQ(Testo(&s, "TxtMcRd_0"), Locale(" 177.6"));
    EXPECT_EQ(Testo(&s, "TxtMcRd_1"), Locale(" 38.81"));
    EXPECT_EQ(Testo(&s, "TxtVplRd_0"), Locale(" 279.1"));
    EXPECT_EQ(Testo(&s, "TxtVplRd_1"), Locale(" 581.5"));
    Scrive(&s, "TxtNsd", "600"); // above a quarter of 1502 kN: the class in compression holds
    EXPECT_EQ(Sezione().NSd.Stretto(), 600000.F);
    EXPECT_EQ(Testo(&s, "TxtClassePressFless"), "1");
    EXPECT_TRUE(registratore.testi.empty());
}

// HSD 500x74 by hand: web 465 x 8, slenderness 58.1: class 4 in compression, lambda 1.0233, rho 0.7671, so
// Aeff = 9400 - 465 x 8 x 0.2329 = 8533.7 mm2; class 1 in bending.
TEST_F(FrmSaldatiTest, ComputesDifferentFlanges) {
    auto& s = Asimmetrici();
    VaA(s, "HSD 500x74");
    const SezioneDoppioT& t = Sezione();
    EXPECT_TRUE(t.Saldata && t.SaldataAsimm);
    EXPECT_EQ(double(t.b), 180);
    EXPECT_EQ(double(t.bAlaInf), 250);
    EXPECT_EQ(double(t.tf), 10);
    EXPECT_EQ(double(t.tAlaInf), 15);
    EXPECT_EQ(double(t.tw), 8);
    EXPECT_EQ(double(t.Wely), 1273000);
    EXPECT_EQ(double(t.WelyInf), 1891000);
    EXPECT_EQ(double(t.Wply), 1699000);
    EXPECT_EQ(Testo(&s, "TxtClasseCompressione"), "4");
    EXPECT_EQ(Testo(&s, "TxtClasseFlessioneY"), "1");
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), Locale(" 1,910"));
    EXPECT_EQ(Testo(&s, "TxtMcRd_0"), Locale(" 380.3"));
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmSaldatiTest, DetailsOpenOnTheSectionInHand) {
    auto& s = Asimmetrici();
    VaA(s, "HSD 500x74");
    Preme(&s, "LblClasse");
    EXPECT_EQ(Scritta(&Aperto("FrmClasseDoppioTU"), "Lbl_cInf"), Locale("116.00"));
    EXPECT_EQ(Scritta(&Aperto("FrmClasseDoppioTU"), "Lbl_ClasseAlaInfC"), "1");
    for (const auto& [button, screen] :
         {std::pair{"LblNbRd", "FrmInstabDoppioT"}, {"LblMcRd", "FrmMcRd"}, {"Command1", "FrmPresFless"}}) {
        Preme(&s, button);
        EXPECT_EQ(Testo(&Aperto(screen), "Txt_Prof"), "HSD 500x74");
        Aperto(screen).close();
    }
}

TEST_F(FrmSaldatiTest, CommandsStartFromAFreshSection) {
    auto& s = Simmetrici();
    Sezione().Mysd = 7;
    Sezione().k = 0.5;
    Preme(&s, "Command2");
    EXPECT_TRUE(Aperto("FrmMsverg").isVisible());
    EXPECT_EQ(double(Sezione().Mysd), 0);
    EXPECT_EQ(double(Sezione().k), 1);
    EXPECT_EQ(double(Sezione().Kw), 1);
    EXPECT_EQ(double(Sezione().C1), 1);
    Sezione().NbyRd = 0;
    Preme(&s, "Command1");
    EXPECT_GT(Sezione().NbyRd, 0);
}

TEST_F(FrmSaldatiTest, OnlyEqualFlangesArePickedForAJoint) {
    auto& s = Simmetrici();
    SceltaSagomoGiunto = true;
    AttivaForm(s);
    EXPECT_FALSE(s.cmdSceltaSagomoGiunto->isHidden());
    Trova<QAction>(&s, "mnuTipoSaldatiAsimm")->trigger();
    EXPECT_TRUE(NavigaSchermi::Unico().Prende<frmSaldatiAsimm>().cmdSceltaSagomoGiunto->isHidden());
}

// The row of a welded section with equal flanges, once among those and once among those with different ones.
TEST_F(FrmSaldatiTest, EqualFlangesGiveTheSameOnBothScreens) {
    CartellaDati workbook = LeggeXls(PathProgramma / "Sagomi.xls");
    Foglio* hsd = nullptr;
    const std::vector<Cella>* ise = nullptr;
    for (Foglio& f : workbook.fogli) {
        if (f.nome == "HSD")
            hsd = &f;
        if (f.nome == "ISE")
            ise = &f.righe[7];
    }
    const std::size_t from[] = {0, 1, 2, 3, 3, 4, 5, 5, 6, 7, 8, 9, 9, 10, 11, 12, 13, 14, 15, 16, 17};
    for (std::size_t c = 0; c < 21; ++c)
        hsd->Scrive(1, c, (*ise)[from[c]].valore);
    ScriveXls(workbook, PathProgramma / "Sagomi.xls");
    const std::string name = std::get<std::string>((*ise)[0].valore);
    auto& one = Simmetrici();
    VaA(one, name.c_str());
    Trova<QAction>(&one, "mnuTipoSaldatiAsimm")->trigger();
    auto& other = NavigaSchermi::Unico().Prende<frmSaldatiAsimm>();
    VaA(other, name.c_str());
    for (const char* box :
         {"TxtClasseCompressione", "TxtClasseFlessioneY", "TxtClasseFlessioneZ", "TxtClassePressFless",
          "TxtNbRd_0", "TxtNbRd_1", "TxtMcRd_0", "TxtMcRd_1", "TxtVplRd_0", "TxtVplRd_1"}) {
        EXPECT_FALSE(Testo(&one, box).empty());
        EXPECT_EQ(Testo(&one, box), Testo(&other, box)) << box;
    }
    EXPECT_TRUE(registratore.testi.empty());
}

} // namespace
