#include "screens/FrmMsverg.h"

#include <QPushButton>

#include "frame/ui/UpDown.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

using Testi = std::vector<std::string>;

// IPE 300, S235, NTC. Expected values of a second calculation in Python, from the formulas of ENV 1993-1-1
// 5.5.2, 5.5.4 and F.1.2 and the catalogue's figures.
class FrmMsvergTest : public AmbienteSchermi {
protected:
    FrmMsverg& Apre() {
        main_ = &Avvia();
        VaA(*main_, "IPE 300");
        Preme(main_, "Command2");
        registratore.testi.clear();
        return dynamic_cast<FrmMsverg&>(Aperto("FrmMsverg"));
    }
    /// Through the check of axial force and bending, which sets moments and factors.
    FrmMsverg& ApreDaPresFless() {
        main_ = &Avvia();
        VaA(*main_, "IPE 300");
        Scrive(main_, "Txt_L0_0", "5");
        Scrive(main_, "Txt_L0_1", "2.5");
        Scrive(main_, "TxtNsd", "120");
        Preme(main_, "Command1");
        auto& f = Aperto("FrmPresFless");
        Scrive(&f, "TxtM1_0", "60");
        Scrive(&f, "TxtM2_0", "-20");
        Scrive(&f, "TxtM1_1", "4");
        Preme(&f, "LblFlessTors");
        registratore.testi.clear();
        auto& m = dynamic_cast<FrmMsverg&>(Aperto("FrmMsverg"));
        Scrive(&m, "Txt_L", "5");
        return m;
    }
    frmDoppioT* main_ = nullptr;
};

TEST_F(FrmMsvergTest, OpensFromTheFirstScreenWithPlainEndsAndUniformMoment) {
    auto& m = Apre();
    EXPECT_EQ(m.windowTitle(),
              "Resistenza della membratura all'instabilità flesso-torsionale - EC3 (edizione 1992) #5.5.2.");
    EXPECT_EQ(Testo(&m, "Txt_Prof"), "IPE 300");
    EXPECT_EQ(Testo(&m, "Txt_fy"), "235");
    for (const char* one : {"Txt_k", "Txt_Kw", "Txt_C1"})
        EXPECT_EQ(Testo(&m, one), "1") << one;
    for (const char* zero : {"Txt_C2", "Txt_C3", "Txt_Zg", "TxtNsd", "TxtMysd", "TxtMzsd"})
        EXPECT_EQ(Testo(&m, zero), "0") << zero;
    EXPECT_EQ(Testo(&m, "Txt_L"), "");
    EXPECT_EQ(Scritta(&m, "LblZg"), "Quota di applicazione del carico rispetto al punto a metà altezza");
    EXPECT_EQ(Trova<QPushButton>(&m, "Command1")->text(), "Timoshenko");
}

TEST_F(FrmMsvergTest, NoLengthIsNoReduction) {
    auto& m = Apre();
    Scrive(&m, "Txt_L", "0");
    EXPECT_EQ(Scritta(&m, "Lbl_Mcr"), "¥");
    EXPECT_EQ(Scritta(&m, "Lbl_LamdaLT"), Locale("0.0"));
    EXPECT_EQ(Scritta(&m, "Lbl_chi"), Locale("1.0"));
    EXPECT_EQ(Scritta(&m, "Lbl_McRd"), Locale("140.642"));
    EXPECT_EQ(Scritta(&m, "Lbl_MbRd"), Locale("140.642"));
    EXPECT_EQ(Scritta(&m, "Lbl_Risult"), Locale("0.0"));
    EXPECT_EQ(Scritta(&m, "Lbl_Risultato"), "OK");
    Normativa = normativaAltro;
    GammaM0Altro = 1.0;
    GammaM1Altro = 1.1;
    GammaM2Altro = 1.25;
    ImpostaGamma();
    main_->AllAttivazione();
    m.AllAttivazione();
    EXPECT_NEAR(Numero(&m, "Lbl_MbRd"), Numero(&m, "Lbl_McRd") / 1.1, 0.001);
}

TEST_F(FrmMsvergTest, NoLengthGivenIsNoVerdict) {
    auto& m = Apre();
    Scrive(&m, "TxtMysd", "60");
    for (const char* text : {"", "-5"}) {
        Scrive(&m, "Txt_L", text);
        for (const char* empty :
             {"Lbl_Mcr", "Lbl_LamdaLT", "Lbl_chi", "Lbl_MbRd", "LblMbRd", "Lbl_Risult", "Lbl_Risultato"})
            EXPECT_EQ(Scritta(&m, empty), "") << text << ' ' << empty;
    }
    EXPECT_EQ(Trova<QLineEdit>(&m, "Txt_L")->toolTip(), "La lunghezza fra i vincoli non può essere negativa");
    EXPECT_EQ(Scritta(&m, "Lbl_McRd"), Locale("140.642")) << "hangs on no length";
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmMsvergTest, LengthStartsAsTheOneAboutZOfTheCaller) {
    main_ = &Avvia();
    VaA(*main_, "IPE 300");
    Scrive(main_, "Txt_L0_1", "2.5");
    Preme(main_, "Command2");
    EXPECT_EQ(Testo(&Aperto("FrmMsverg"), "Txt_L"), Locale("2.5"));
}

// Uniform moment over 5 m: C1 0.972 lowers Mcr of 115.584 in proportion.
TEST_F(FrmMsvergTest, AFactorBelowOneCanBeTypedKeyByKey) {
    auto& m = Apre();
    Scrive(&m, "Txt_L", "5");
    Scrive(&m, "TxtMysd", "60");
    auto* C1 = Trova<QLineEdit>(&m, "Txt_C1");
    C1->setFocus();
    C1->selectAll();
    QStringList sums;
    const QString text = QString::fromStdString(Locale("0.972"));
    for (const QChar key : text) {
        QTest::keyClicks(C1, QString(key));
        sums << QString::fromStdString(Scritta(&m, "Lbl_Risultato"));
    }
    EXPECT_TRUE(registratore.testi.empty()) << "nothing speaks while the user types";
    EXPECT_EQ(C1->text(), text);
    EXPECT_EQ(sums.mid(0, 2), (QStringList{"", ""})) << "0 and 0, give no verdict";
    EXPECT_NEAR(Numero(&m, "Lbl_Mcr"), 115.584 * 0.972, 0.01);
    EXPECT_EQ(Scritta(&m, "Lbl_Risultato"), "OK");
    C1->selectAll();
    QTest::keyClicks(C1, "0");
    EXPECT_EQ(Scritta(&m, "Lbl_Risult"), "");
    QTest::keyClick(C1, Qt::Key_Return);
    EXPECT_EQ(registratore.testi, Testi{"MbRd = 0"}) << "now it stands";
}

TEST_F(FrmMsvergTest, EntriesGoIntoTheSection) {
    auto& m = Apre();
    const std::pair<const char*, const char*> entries[] = {
        {"TxtNsd", "120"}, {"TxtMysd", "60.5"}, {"TxtMzsd", "4"},  {"Txt_k", "0.7"},  {"Txt_Kw", "0.9"},
        {"Txt_C1", "1.3"}, {"Txt_C2", "0.4"},   {"Txt_C3", "0.5"}, {"Txt_Zg", "150"}, {"Txt_L", "5.7"}};
    for (const auto& [name, text] : entries)
        Scrive(&m, name, text);
    const SezioneDoppioT& s = Sezione();
    EXPECT_EQ(s.NSd.Stretto(), 120e3F);
    EXPECT_EQ(s.Mysd.Stretto(), 60.5e6F);
    EXPECT_EQ(s.Mzsd.Stretto(), 4e6F);
    EXPECT_EQ(s.k.Stretto(), 0.7F);
    EXPECT_EQ(s.Kw.Stretto(), 0.9F);
    EXPECT_EQ(s.C1.Stretto(), 1.3F);
    EXPECT_EQ(s.c2.Stretto(), 0.4F);
    EXPECT_EQ(s.c3.Stretto(), 0.5F);
    EXPECT_EQ(s.za.Stretto(), 150.F);
    EXPECT_EQ(s.LLT.Stretto(), 5700.F);
    EXPECT_EQ(Testo(main_, "TxtNsd"), "120") << "the caller has heard of it";
}

TEST_F(FrmMsvergTest, UniformMomentOverFiveMetres) {
    auto& m = Apre();
    Scrive(&m, "Txt_L", "5");
    Scrive(&m, "TxtMysd", "60");
    const std::pair<const char*, const char*> labels[] = {{"Lbl_Mcr", "115.584"},  {"Lbl_LamdaLT", "1.13"},
                                                          {"Lbl_chi", "0.575"},    {"Lbl_MbRd", "80.931"},
                                                          {"Lbl_Risult", "0.741"}, {"Lbl_Risultato", "OK"}};
    for (const auto& [name, text] : labels)
        EXPECT_EQ(Scritta(&m, name), Locale(text)) << name;
    Sezione().Saldata = true; // curve c
    Scrive(&m, "TxtMysd", "61");
    EXPECT_EQ(Scritta(&m, "Lbl_chi"), Locale("0.468"));
}

TEST_F(FrmMsvergTest, FactorsOfTheMomentDiagramComeAlong) {
    auto& m = ApreDaPresFless();
    EXPECT_NEAR(ValoreNumerico(Testo(&m, "Txt_C1")), 2.40444, 1e-5);
    EXPECT_EQ(Testo(&m, "TxtNsd"), "120");
    EXPECT_EQ(Testo(&m, "TxtMysd"), "60");
    EXPECT_EQ(Testo(&m, "TxtMzsd"), "4");
    const std::pair<const char*, const char*> labels[] = {
        {"Lbl_Mcr", "277.915"},         {"Lbl_LamdaLT", "0.729"}, {"Lbl_chi", "0.834"},
        {"Lbl_MbRd", "117.257"},        {"LblNsd", "120.0"},      {"LblNbzRd", "876.37"},
        {"LblKLTMySd", "0.988 x 60.0"}, {"LblMbRd", "117.257"},   {"LblkzMzSd", "0.969 x 4.0"},
        {"LblMczRd", "28.021"},         {"Lbl_Risult", "0.781"},  {"Lbl_Risultato", "OK"}};
    for (const auto& [name, text] : labels)
        EXPECT_EQ(Scritta(&m, name), Locale(text)) << name;
    EXPECT_EQ(Scritta(&m, "LblValPiu1"), " + ");
    EXPECT_EQ(Scritta(&m, "LblValUguale"), " = ");
    EXPECT_EQ(Titolo(&m, "Frame1"),
              "Resistenza all'instabilità flesso torsionale (flessione e compressione)- "
              "Classe 1/2 - EC3 #5.5.4. (2)");
    EXPECT_FALSE(Trova<QLabel>(&m, "LakLTMySd4")->isVisible());
}

TEST_F(FrmMsvergTest, TitleAndLineFollowTheClass) {
    auto& m = ApreDaPresFless();
    Scrive(&m, "Txt_fy", "300");
    Scrive(&m, "TxtNsd", "750");
    EXPECT_EQ(Testo(main_, "Txt_fy"), "300");
    EXPECT_EQ(Titolo(&m, "Frame1"),
              "Resistenza all'instabilità flesso torsionale (flessione e compressione)- "
              "Classe 3 - EC3 #5.5.4. (4)");
    EXPECT_EQ(Scritta(&m, "Lbl_Risult"), Locale("1.267"));
    EXPECT_EQ(Scritta(&m, "Lbl_Risultato"), "NO");
    Scrive(&m, "Txt_fy", "355");
    Scrive(&m, "TxtNsd", "820");
    EXPECT_EQ(Titolo(&m, "Frame1"),
              "Resistenza all'instabilità flesso torsionale (flessione e compressione)- "
              "Classe 4 - EC3 #5.5.4. (6)");
    EXPECT_TRUE(Trova<QLabel>(&m, "LakLTMySd4")->isVisible());
    EXPECT_TRUE(Trova<QLabel>(&m, "LblkzMzSd4")->isVisible());
    EXPECT_FALSE(Trova<QLabel>(&m, "LblKLTMySd")->isVisible());
    EXPECT_EQ(Scritta(&m, "LakLTMySd4"), Locale("0.897 x (60.0 + 0.0)"));
    EXPECT_EQ(Scritta(&m, "LblkzMzSd4"), Locale("1.274 x (4.0 + 0.0)"));
    EXPECT_NEAR(Numero(&m, "Lbl_Risult"), 1.2088, 0.003);
}

TEST_F(FrmMsvergTest, ARowOfTheLinearTableIsCopied) {
    auto& m = Apre();
    Scrive(&m, "Txt_L", "5");
    Scrive(&m, "Txt_C2", "0.459");
    Preme(&m, "CmdH1");
    auto& table = Aperto("frmMsvergH1");
    Preme(&table, "lblC1_4"); // psi +3/4, k 0.7
    EXPECT_FALSE(table.isVisible());
    EXPECT_EQ(Testo(&m, "Txt_k"), Locale("0.7"));
    EXPECT_EQ(Testo(&m, "Txt_C1"), Locale("1.27"));
    EXPECT_EQ(Testo(&m, "Txt_C2"), "0");
    EXPECT_EQ(Testo(&m, "Txt_C3"), Locale("1.565"));
    EXPECT_EQ(Testo(&m, "Txt_Kw"), "1");
    EXPECT_EQ(Sezione().C1.Stretto(), 1.27F);
    EXPECT_EQ(Sezione().k.Stretto(), 0.7F);
}

TEST_F(FrmMsvergTest, ARowOfTheLoadTableIsCopied) {
    auto& m = Apre();
    Scrive(&m, "Txt_L", "5");
    Scrive(&m, "Txt_Zg", "150");
    Scrive(&m, "TxtMysd", "60");
    Preme(&m, "CmdH2");
    auto& table = Aperto("frmMsvergH2");
    Preme(&table, "lblC1_0");
    EXPECT_FALSE(table.isVisible());
    EXPECT_EQ(Testo(&m, "Txt_C1"), Locale("1.132"));
    EXPECT_EQ(Testo(&m, "Txt_C2"), Locale("0.459"));
    EXPECT_EQ(Testo(&m, "Txt_C3"), Locale("0.525"));
    EXPECT_EQ(Scritta(&m, "Lbl_Mcr"), Locale("97.52"));
    EXPECT_EQ(Scritta(&m, "Lbl_chi"), Locale("0.511"));
    EXPECT_EQ(Scritta(&m, "Lbl_Risult"), Locale("0.835"));
}

TEST_F(FrmMsvergTest, StepOfTheRowCarriesTheFactorsOver) {
    auto& m = ApreDaPresFless();
    const SezioneDoppioT before = Sezione();
    Trova<UpDown>(&m, "UpDown1")->stepUp();
    EXPECT_EQ(Testo(&m, "Txt_Prof"), "IPE 330");
    const SezioneDoppioT& s = Sezione();
    EXPECT_EQ(s.Designation, "IPE 330");
    EXPECT_EQ(s.BetaMy.Stretto(), before.BetaMy.Stretto());
    EXPECT_EQ(s.BetaMz.Stretto(), before.BetaMz.Stretto());
    EXPECT_EQ(s.BetaMLT.Stretto(), before.BetaMLT.Stretto());
    EXPECT_NEAR(s.C1, before.C1, 1e-6);
    EXPECT_EQ(s.Mysd.Stretto(), 60e6F);
    EXPECT_EQ(s.LLT.Stretto(), 5000.F);
}

TEST_F(FrmMsvergTest, FactorsSurviveThatTheCallerReadsItsRowAnew) {
    auto& m = ApreDaPresFless();
    const std::string sum = Scritta(&m, "Lbl_Risult");
    main_->AllAttivazione();
    EXPECT_EQ(Sezione().BetaMz, 0);
    m.AllAttivazione();
    EXPECT_NEAR(Sezione().BetaMz, 1.8, 1e-6);
    EXPECT_EQ(Scritta(&m, "Lbl_Risult"), sum);
}

TEST_F(FrmMsvergTest, FactorsThatTheMemberCheckGaveAnotherRowStay) {
    auto& m = ApreDaPresFless();
    main_->Data1->MoveNext();
    Sezione().BetaMy = 1.25;
    Sezione().BetaMz = 1.35;
    Sezione().BetaMLT = 1.45;
    m.AllAttivazione();
    EXPECT_EQ(Sezione().BetaMy.Stretto(), 1.25F);
    EXPECT_EQ(Sezione().BetaMz.Stretto(), 1.35F);
    EXPECT_EQ(Sezione().BetaMLT.Stretto(), 1.45F);
}

TEST_F(FrmMsvergTest, StepOfTheSteel) {
    auto& m = ApreDaPresFless();
    Trova<UpDown>(&m, "UpDown2")->stepUp();
    EXPECT_EQ(Testo(&m, "Txt_TipoAcciaio"), "S275 (Fe430)");
    EXPECT_EQ(Testo(&m, "Txt_fy"), "275");
    EXPECT_NEAR(Numero(&m, "Lbl_McRd"), 628.4e3 * 275 / 1.05 / 1e6, 0.001);
    EXPECT_EQ(Testo(&m, "TxtMysd"), "60");
}

TEST_F(FrmMsvergTest, NoResistanceIsToldAndTheScreenStays) {
    auto& m = Apre();
    Scrive(&m, "Txt_L", "0");
    Sezione().McyRd = 0;
    Scrive(&m, "TxtMysd", "60");
    EXPECT_EQ(registratore.testi, Testi{"MbRd = 0"});
    EXPECT_TRUE(m.isVisible());
    EXPECT_EQ(Scritta(&m, "Lbl_Risult"), "");
    EXPECT_EQ(Scritta(&m, "Lbl_Risultato"), "NO");
}

TEST_F(FrmMsvergTest, EndFactorsOfZeroGiveNoNumber) {
    auto& m = Apre();
    Scrive(&m, "Txt_L", "5");
    Scrive(&m, "TxtMysd", "60");
    for (const char* name : {"Txt_k", "Txt_Kw"}) {
        Scrive(&m, name, "");
        for (const char* empty :
             {"Lbl_Mcr", "Lbl_LamdaLT", "Lbl_chi", "Lbl_MbRd", "LblMbRd", "Lbl_Risult", "Lbl_Risultato"})
            EXPECT_EQ(Scritta(&m, empty), "") << name << ' ' << empty;
        Scrive(&m, name, "1");
        EXPECT_EQ(Scritta(&m, "Lbl_Mcr"), Locale("115.584"));
        EXPECT_EQ(Scritta(&m, "Lbl_Risultato"), "OK");
    }
}

TEST_F(FrmMsvergTest, LengthIsKeptWhereTheSectionHasNone) {
    auto& m = Apre();
    Scrive(&m, "Txt_L", "5");
    Scrive(&m, "Txt_Zg", "150");
    QTest::keyClick(&m, Qt::Key_Escape);
    EXPECT_EQ(Sezione().LLT, 0);
    Preme(main_, "Command2");
    EXPECT_EQ(Testo(&m, "Txt_L"), "5");
    EXPECT_EQ(Testo(&m, "Txt_Zg"), "0");
    EXPECT_EQ(Sezione().LLT.Stretto(), 5000.F);
}

TEST_F(FrmMsvergTest, OpensTimoshenkoAndTheSectionCheck) {
    auto& m = Apre();
    Scrive(&m, "Txt_L", "5");
    Scrive(&m, "TxtMysd", "60");
    Preme(&m, "Command1");
    auto& t = Aperto("frmTimoshenko");
    EXPECT_EQ(Testo(&t, "Txt_L"), "5");
    EXPECT_EQ(Testo(&t, "TxtIz"), Locale("603.8"));
    QTest::keyClick(&t, Qt::Key_Escape);
    EXPECT_FALSE(t.isVisible());
    Preme(&m, "LblVerifiche");
    auto& v = Aperto("FrmVerifiche");
    EXPECT_EQ(Testo(&v, "TxtMysd"), "60");
    QTest::keyClick(&v, Qt::Key_Escape);
    EXPECT_TRUE(m.isVisible());
    EXPECT_EQ(NavigaSchermi::Unico().Attivo(), &m);
}

TEST_F(FrmMsvergTest, EnterGoesThroughTheEntries) {
    auto& m = Apre();
    m.activateWindow();
    Trova<QLineEdit>(&m, "Txt_fy")->setFocus();
    for (const char* next : {"TxtNsd", "TxtMysd", "TxtMzsd", "Txt_L", "Txt_k", "Txt_Kw", "Txt_Zg", "Txt_C1",
                             "Txt_C2", "Txt_C3"}) {
        QTest::keyClick(m.focusWidget(), Qt::Key_Enter);
        EXPECT_EQ(m.focusWidget()->objectName(), next);
    }
}

} // namespace
