#include "screens/FrmPresFless.h"

#include <QPushButton>
#include <QRadioButton>

#include <functional>

#include "frame/ui/UpDown.h"
#include "screens/Comandi.h"
#include "screens/FrmMsverg.h"
#include "screens/PulsanteDiagramma.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

using Testi = std::vector<std::string>;

// IPE 300, S235, NTC, N 120 kN, L0 5 and 2.5 m. Expected values of a second calculation in Python, from the
// formulas of ENV 1993-1-1 5.5.1 and 5.5.4 and the catalogue's figures.
class FrmPresFlessTest : public AmbienteSchermi {
protected:
    FrmPresFless& Apre(const char* section = "IPE 300") {
        main_ = &Avvia();
        VaA(*main_, section);
        Scrive(main_, "Txt_L0_0", "5");
        Scrive(main_, "Txt_L0_1", "2.5");
        Scrive(main_, "TxtNsd", "120");
        Preme(main_, "Command1");
        registratore.testi.clear();
        return dynamic_cast<FrmPresFless&>(Aperto("FrmPresFless"));
    }
    frmDoppioT* main_ = nullptr;
};

TEST_F(FrmPresFlessTest, OpensOnTheSectionOfTheCaller) {
    auto& f = Apre();
    EXPECT_EQ(f.windowTitle(), "Verifica Presso-Flessione - EC3 (edizione 1992) #5.5.4.");
    EXPECT_EQ(Testo(&f, "Txt_Prof"), "IPE 300");
    EXPECT_EQ(Testo(&f, "Txt_TipoAcciaio"), "S235 (Fe360)");
    EXPECT_EQ(Testo(&f, "Txt_fy"), "235");
    EXPECT_EQ(Testo(&f, "TxtNsd"), "120");
    EXPECT_EQ(Testo(&f, "Txt_L0_0"), "5");
    EXPECT_EQ(Testo(&f, "Txt_L0_1"), Locale("2.5"));
    EXPECT_EQ(f.TipoDiagramma, 0);
    EXPECT_EQ(f.IndicePict, 1);
    EXPECT_TRUE(main_->isVisible()) << "the caller stays behind";
}

TEST_F(FrmPresFlessTest, ShowsFactorsResistancesAndTheInteractionTermByTerm) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "TxtM2_0", "-20");
    Scrive(&f, "TxtM1_1", "4");
    const std::pair<const char*, const char*> labels[] = {
        {"Lbl_Lamda_0", "40.128"},  {"Lbl_Lamda_1", "74.627"}, {"Lbl_Mu_0", "0.156"},
        {"Lbl_Mu_1", "0.237"},      {"Lbl_k_0", "0.984"},      {"Lbl_k_1", "0.969"},
        {"Lbl_NbRd_0", "1138.612"}, {"Lbl_NbRd_1", "876.37"},  {"Lbl_McRd_0", "140.642"},
        {"Lbl_McRd_1", "28.021"},   {"Lbl_MSd_0", "60.0"},     {"Lbl_MSd_1", "4.0"},
        {"Lbl_BetaM_0", "2.033"},   {"Lbl_BetaM_1", "1.8"},    {"Lbl_C1", "2.404"},
        {"LblTermineN", "0.137"},   {"LblTermineMy", "0.42"},  {"LblTermineMz", "0.138"},
        {"Lbl_Risult", "0.695"}};
    for (const auto& [name, text] : labels)
        EXPECT_EQ(Scritta(&f, name), Locale(text)) << name;
    EXPECT_EQ(Scritta(&f, "LblValPiu1"), " + ");
    EXPECT_EQ(Scritta(&f, "LblValPiu2"), " + ");
    EXPECT_EQ(Scritta(&f, "LblValUguale"), " = ");
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "OK");
    EXPECT_EQ(Titolo(&f, "Frame1"), "Flessione e compressione assiale - Classe 1 - EC3 #5.5.4.(1)");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmPresFlessTest, WritesWhatTheOtherChecksRead) {
    auto& f = Apre();
    Sezione().za = 100;
    Sezione().c2 = Sezione().c3 = 1;
    Sezione().LLT = 5000;
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "TxtM2_0", "-20");
    Scrive(&f, "TxtM1_1", "4");
    const SezioneDoppioT& s = Sezione();
    EXPECT_EQ(s.Mysd.Stretto(), 60e6F);
    EXPECT_EQ(s.Mzsd.Stretto(), 4e6F);
    EXPECT_NEAR(s.C1, 2.40444, 1e-5);
    EXPECT_NEAR(s.BetaMy, 2.03333, 1e-5);
    EXPECT_EQ(s.BetaMLT.Stretto(), s.BetaMy.Stretto());
    EXPECT_NEAR(s.BetaMz, 1.8, 1e-6);
    EXPECT_EQ(s.k, 1);
    EXPECT_EQ(s.Kw, 1);
    EXPECT_EQ(s.za, 0);
    EXPECT_EQ(s.c2, 0);
    EXPECT_EQ(s.c3, 0);
    // the critical moment of these factors, and the resistance that follows from it
    EXPECT_NEAR(s.Mcr / 1e6, 277.915, 0.01);
    EXPECT_NEAR(s.LamdaLT, 0.72895, 1e-4);
    EXPECT_NEAR(s.MbRd / 1e6, 117.257, 0.01);
}

TEST_F(FrmPresFlessTest, SpanLoadAgainstTheEndMoments) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "TxtM2_0", "-20");
    Scrive(&f, "TxtM1_1", "4");
    Preme(&f, "Picture1_4");
    EXPECT_EQ(f.TipoDiagramma, 1);
    EXPECT_EQ(f.IndicePict, 4);
    EXPECT_TRUE(Trova<QRadioButton>(&f, "OptMomento_1")->isChecked());
    Scrive(&f, "TxtMQ_0", "85.5");
    EXPECT_EQ(Scritta(&f, "Lbl_MSd_0"), Locale("65.5"));
    EXPECT_EQ(Scritta(&f, "Lbl_BetaM_0"), Locale("1.602"));
    EXPECT_EQ(Scritta(&f, "Lbl_C1"), Locale("1.0"));
    EXPECT_EQ(Scritta(&f, "Lbl_Mu_0"), Locale("-0.212"));
    EXPECT_EQ(Scritta(&f, "Lbl_Risult"), Locale("0.751"));
    Preme(&f, "Picture1_6"); // with them: 20 + 85.5 at the middle, above the end
    EXPECT_EQ(Scritta(&f, "Lbl_MSd_0"), Locale("105.5"));
    EXPECT_NEAR(Numero(&f, "Lbl_BetaM_0"), 2.0333333 + 85.5 / 105.5 * (1.4 - 2.0333333), 5e-4);
    Preme(&f, "Picture1_5");
    EXPECT_NEAR(Numero(&f, "Lbl_BetaM_0"), 2.0333333 + 85.5 / 105.5 * (1.3 - 2.0333333), 5e-4);
}

TEST_F(FrmPresFlessTest, AnOptionPicksTheFirstPictureOfItsGroup) {
    auto& f = Apre();
    EXPECT_FALSE(Trova<QLineEdit>(&f, "TxtMQ_0")->isVisible());
    Preme(&f, "OptMomento_1");
    EXPECT_EQ(f.IndicePict, 3);
    EXPECT_TRUE(Trova<PulsanteDiagramma>(&f, "Picture1_3")->isChecked());
    EXPECT_TRUE(Trova<QLineEdit>(&f, "TxtMQ_0")->isVisible());
    EXPECT_TRUE(Trova<QLineEdit>(&f, "TxtMQ_1")->isVisible());
    Preme(&f, "OptMomento_0");
    EXPECT_EQ(f.IndicePict, 1);
    EXPECT_EQ(f.TipoDiagramma, 0);
    EXPECT_TRUE(Trova<PulsanteDiagramma>(&f, "Picture1_1")->isChecked());
    f.SelezionaPict(2);
    EXPECT_EQ(f.IndicePict, 2);
    EXPECT_EQ(f.TipoDiagramma, 0);
    for (const int none : {0, 7}) {
        f.SelezionaPict(none);
        EXPECT_EQ(f.IndicePict, 2);
    }
}

TEST_F(FrmPresFlessTest, PicturesAreChosenFromTheKeyboard) {
    auto& f = Apre();
    auto* picture = Trova<PulsanteDiagramma>(&f, "Picture1_5");
    picture->setFocus();
    QTest::keyClick(picture, Qt::Key_Space);
    EXPECT_EQ(f.IndicePict, 5);
    QTest::keyClick(Trova<PulsanteDiagramma>(&f, "Picture1_2"), Qt::Key_Return);
    EXPECT_EQ(f.IndicePict, 2);
    QTest::mouseClick(Trova<PulsanteDiagramma>(&f, "Picture1_4"), Qt::LeftButton);
    EXPECT_EQ(f.IndicePict, 4);
}

TEST_F(FrmPresFlessTest, EveryPictureIsAnother) {
    auto& f = Apre();
    f.SelezionaPict(1);
    QList<QImage> seen;
    for (int i = 2; i <= 6; ++i) {
        const auto name = "Picture1_" + std::to_string(i);
        const QImage image = Trova<QWidget>(&f, name.c_str())->grab().toImage();
        EXPECT_FALSE(seen.contains(image)) << i;
        seen << image;
    }
}

TEST_F(FrmPresFlessTest, NegativeFirstMomentChangesItsSign) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "-60");
    EXPECT_EQ(registratore.testi, Testi{"M1 deve essere positivo.\nIl segno viene automaticamente cambiato"});
    EXPECT_EQ(Testo(&f, "TxtM1_0"), "60");
    EXPECT_EQ(Sezione().Mysd.Stretto(), 60e6F);
}

TEST_F(FrmPresFlessTest, SecondMomentAboveTheFirstBecomesZero) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_1", "4");
    Scrive(&f, "TxtM2_1", "4.5");
    EXPECT_EQ(registratore.testi,
              Testi{"M1 deve essere maggiore di M2 (in valore assoluto).\nM2 viene posto = 0"});
    EXPECT_EQ(Testo(&f, "TxtM2_1"), "0");
    EXPECT_EQ(Scritta(&f, "Lbl_BetaM_1"), Locale("1.8"));
    Scrive(&f, "TxtM2_1", "-4");
    EXPECT_EQ(registratore.testi.size(), 1U);
}

// The 8 of 80 is below M2 for a moment.
TEST_F(FrmPresFlessTest, TypingALargerMomentKeepsTheOtherOne) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "TxtM2_0", "50");
    Scrive(&f, "TxtM1_1", "4");
    const std::string z = Scritta(&f, "Lbl_MSd_1");
    auto* M1 = Trova<QLineEdit>(&f, "TxtM1_0");
    M1->setFocus();
    M1->selectAll();
    QTest::keyClicks(M1, "8");
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(Testo(&f, "TxtM2_0"), "50");
    for (const char* empty :
         {"Lbl_MSd_0", "Lbl_BetaM_0", "Lbl_C1", "LblTermineMy", "Lbl_Risult", "Lbl_Risultato"})
        EXPECT_EQ(Scritta(&f, empty), "") << empty;
    EXPECT_EQ(Scritta(&f, "Lbl_MSd_1"), z) << "the other axis stands";
    EXPECT_NE(Scritta(&f, "LblTermineN"), "");
    QTest::keyClicks(M1, "0");
    EXPECT_EQ(M1->text(), "80");
    EXPECT_EQ(Scritta(&f, "Lbl_MSd_0"), Locale("80.0"));
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "OK");
    QTest::keyClick(M1, Qt::Key_Return);
    EXPECT_EQ(Testo(&f, "TxtM2_0"), "50");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmPresFlessTest, ACorrectionWaitsForEnterLeavingOrAStep) {
    auto& f = Apre();
    f.activateWindow();
    auto* M1 = Trova<QLineEdit>(&f, "TxtM1_0");
    const char* message = "M1 deve essere positivo.\nIl segno viene automaticamente cambiato";
    const std::function<void()> ends[] = {
        [&] { QTest::keyClick(M1, Qt::Key_Return); }, [&] { QTest::keyClick(M1, Qt::Key_Tab); },
        [&] { Trova<UpDown>(&f, "UpDown1")->stepUp(); }, [&] { Preme(&f, "OptMomento_1"); }};
    for (const auto& end : ends) {
        SCOPED_TRACE(&end - ends);
        registratore.testi.clear();
        M1->setFocus();
        QCoreApplication::processEvents(); // the window becomes the active one
        ASSERT_TRUE(M1->hasFocus());
        M1->selectAll();
        QTest::keyClicks(M1, "-60");
        EXPECT_TRUE(registratore.testi.empty());
        EXPECT_EQ(M1->text(), "-60");
        end();
        EXPECT_EQ(registratore.testi, Testi{message});
        EXPECT_EQ(M1->text(), "60");
        EXPECT_EQ(Scritta(&f, "Lbl_MSd_0"), Locale("60.0"));
    }
}

TEST_F(FrmPresFlessTest, ALengthBelowZeroIsMarkedAndEmptiesItsAxis) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "Txt_L0_0", "-5");
    for (const char* empty :
         {"Lbl_Lamda_0", "Lbl_NbRd_0", "Lbl_k_0", "LblTermineN", "Lbl_Risult", "Lbl_Risultato"})
        EXPECT_EQ(Scritta(&f, empty), "") << empty;
    EXPECT_EQ(Scritta(&f, "Lbl_NbRd_1"), Locale("876.37")) << "the other axis stands";
    EXPECT_EQ(Trova<QLineEdit>(&f, "Txt_L0_0")->toolTip(),
              "La lunghezza di libera inflessione non può essere negativa");
    EXPECT_EQ(Testo(main_, "TxtNbRd_0"), "");
    EXPECT_NE(Testo(main_, "TxtNbRd_1"), "");
    Scrive(&f, "Txt_L0_0", "5");
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "OK");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmPresFlessTest, AStrengthThatIsNoneIsPutBackOnLeaving) {
    auto& f = Apre();
    auto* fy = Trova<QLineEdit>(&f, "Txt_fy");
    fy->setFocus();
    fy->selectAll();
    QTest::keyClicks(fy, "0");
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(Testo(main_, "Txt_fy"), "235") << "not handed on";
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "");
    QTest::keyClick(fy, Qt::Key_Return);
    EXPECT_EQ(registratore.testi, Testi{"fy deve essere > 0"});
    EXPECT_EQ(fy->text(), "235");
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "OK");
}

TEST_F(FrmPresFlessTest, NegativeSpanMomentChangesItsSign) {
    auto& f = Apre();
    Preme(&f, "OptMomento_1");
    Scrive(&f, "TxtMQ_1", "-2.5");
    EXPECT_EQ(registratore.testi, Testi{"MQ deve essere positivo.\nIl segno viene automaticamente cambiato"});
    EXPECT_EQ(Testo(&f, "TxtMQ_1"), Locale("2.5"));
    EXPECT_EQ(Scritta(&f, "Lbl_MSd_1"), Locale("2.5"));
}

TEST_F(FrmPresFlessTest, TheEndMomentsOfAnAxisAreItsOwn) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "TxtM1_1", "4");
    double M = 0;
    double BetaM = 0;
    double C1 = 0;
    f.CompletaForm1(1, M, BetaM, C1);
    EXPECT_EQ(M, 4e6);
    EXPECT_DOUBLE_EQ(BetaM, 1.8);
    EXPECT_DOUBLE_EQ(C1, 1.88);
    f.CompletaForm1(0, M, BetaM, C1);
    EXPECT_EQ(M, 60e6);
}

TEST_F(FrmPresFlessTest, NoMomentCountsAsUniform) {
    auto& f = Apre();
    EXPECT_EQ(Scritta(&f, "Lbl_BetaM_0"), Locale("1.1"));
    EXPECT_EQ(Scritta(&f, "Lbl_C1"), Locale("1.0"));
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "TxtM2_0", "60");
    EXPECT_EQ(Scritta(&f, "Lbl_C1"), Locale("1.0"));
    Scrive(&f, "TxtM2_0", "-60");
    EXPECT_EQ(Scritta(&f, "Lbl_C1"), Locale("2.7"));
    EXPECT_EQ(Scritta(&f, "Lbl_BetaM_0"), Locale("2.5"));
}

// fy 300, N 750 kN: web of 39.6 epsilon, class 3 in compression; elastic moduli in the terms.
TEST_F(FrmPresFlessTest, ClassThreeTakesTheElasticMoments) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "TxtM2_0", "-20");
    Scrive(&f, "TxtM1_1", "4");
    Scrive(&f, "Txt_fy", "300");
    Scrive(&f, "TxtNsd", "750");
    EXPECT_EQ(Titolo(&f, "Frame1"), "Flessione e compressione assiale - Classe 3 - EC3 #5.5.4.(3)");
    EXPECT_EQ(Scritta(&f, "LblTermineN"), Locale("0.736"));
    EXPECT_EQ(Scritta(&f, "LblTermineMy"), Locale("0.371"));
    EXPECT_EQ(Scritta(&f, "LblTermineMz"), Locale("0.218"));
    EXPECT_EQ(Scritta(&f, "Lbl_Risult"), Locale("1.325"));
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "NO");
    EXPECT_EQ(Trova<QLabel>(&f, "Lbl_Risultato")->palette().color(QPalette::WindowText), QColor(255, 0, 0));
}

// fy 355, N 820 kN: 43.0 epsilon, class 4 in compression, betaA 0.9793 by hand.
TEST_F(FrmPresFlessTest, ClassFourHasItsOwnLine) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "TxtM2_0", "-20");
    Scrive(&f, "TxtM1_1", "4");
    Scrive(&f, "Txt_fy", "355");
    Scrive(&f, "TxtNsd", "820");
    EXPECT_EQ(Titolo(&f, "Frame1"), "Flessione e compressione assiale - Classe 4 - EC3 #5.5.4.(5)");
    EXPECT_TRUE(Trova<QLabel>(&f, "Lbl_Risult4")->isVisible());
    EXPECT_FALSE(Trova<QLabel>(&f, "Lbl_Risult")->isVisible());
    EXPECT_NEAR(Numero(&f, "LblTermineN4"), 0.7444, 0.002);
    EXPECT_NEAR(Numero(&f, "LblTermineMy4"), 0.3133, 0.002);
    EXPECT_NEAR(Numero(&f, "LblTermineMz4"), 0.1873, 0.002);
    EXPECT_NEAR(Numero(&f, "Lbl_Risult4"), 1.2449, 0.003);
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "NO");
    Scrive(&f, "TxtNsd", "100");
    EXPECT_TRUE(Trova<QLabel>(&f, "Lbl_Risult")->isVisible());
    EXPECT_FALSE(Trova<QLabel>(&f, "Lbl_Risult4")->isVisible());
}

// HEAA 300, fy 420: outstand 11.4 tf, above 14 epsilon 10.5: the upper flange is cut, the centroid shifts.
TEST_F(FrmPresFlessTest, AxialForceTimesTheShiftGoesIntoBothEnds) {
    main_ = &Avvia();
    main_->ChkTipo[11]->setChecked(true);
    Preme(main_, "AggiornaTabella");
    VaA(*main_, "HEAA 300");
    Scrive(main_, "Txt_fy", "420");
    Scrive(main_, "TxtNsd", "500");
    Preme(main_, "Command1");
    const auto& f = Aperto("FrmPresFless");
    registratore.testi.clear();
    const double e = Sezione().eNy;
    ASSERT_GT(e, 1);
    ASSERT_EQ(Sezione().ClassePressoFlessione, 4);
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "TxtM2_0", "-20");
    const double M1e = 60 + 500 * e / 1000;
    const double psi = (-20 + 500 * e / 1000) / M1e;
    EXPECT_NEAR(Numero(&f, "Lbl_MSd_0"), M1e, 0.001);
    EXPECT_NEAR(Numero(&f, "Lbl_BetaM_0"), 1.8 - 0.7 * psi, 0.001);
}

TEST_F(FrmPresFlessTest, ForceAndLengthsGoBackToTheCaller) {
    auto& f = Apre();
    Scrive(&f, "TxtNsd", "200");
    EXPECT_EQ(Testo(main_, "TxtNsd"), "200");
    EXPECT_EQ(Sezione().NSd.Stretto(), 200e3F);
    Scrive(&f, "Txt_L0_1", "3.5");
    EXPECT_EQ(Testo(main_, "Txt_L0_1"), Locale("3.5"));
    EXPECT_EQ(Sezione().L0z.Stretto(), 3500.F);
    EXPECT_EQ(Testo(main_, "Txt_L0_0"), "5");
    EXPECT_NEAR(Numero(&f, "Lbl_Lamda_1"), 3500 / 33.5, 0.001);
}

TEST_F(FrmPresFlessTest, EqualValuesLeaveTheCallersTexts) {
    auto& f = Apre();
    QTest::keyClick(&f, Qt::Key_Escape);
    Scrive(main_, "TxtNsd", "0120.00");
    main_->Txt_L0[0]->clear();
    Preme(main_, "Command1");
    EXPECT_EQ(Testo(main_, "TxtNsd"), Locale("0120.00"));
    EXPECT_EQ(Testo(&f, "TxtNsd"), "120");
    EXPECT_EQ(Testo(main_, "Txt_L0_0"), "");
    EXPECT_EQ(Testo(&f, "Txt_L0_0"), "0");
}

TEST_F(FrmPresFlessTest, MomentsAreKeptFromOneOpeningToTheNext) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "60");
    QTest::keyClick(&f, Qt::Key_Escape);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(Sezione().Mysd, 0) << "the caller has made a new section";
    Scrive(main_, "TxtNsd", "80");
    Preme(main_, "Command1");
    EXPECT_EQ(Testo(&f, "TxtM1_0"), "60");
    EXPECT_EQ(Testo(&f, "TxtNsd"), "80");
    EXPECT_EQ(Sezione().Mysd.Stretto(), 60e6F);
}

TEST_F(FrmPresFlessTest, StrengthGoesToTheCaller) {
    auto& f = Apre();
    Scrive(&f, "Txt_fy", "265");
    EXPECT_EQ(Testo(main_, "Txt_fy"), "265");
    EXPECT_EQ(Sezione().fy.Stretto(), 265.F);
    EXPECT_NEAR(Numero(&f, "Lbl_McRd_0"), 628.4e3 * 265 / 1.05 / 1e6, 0.001);
    Scrive(&f, "Txt_fy", "0");
    EXPECT_EQ(registratore.testi, Testi{"fy deve essere > 0"});
    EXPECT_EQ(Sezione().fy.Stretto(), 265.F);
}

TEST_F(FrmPresFlessTest, StepButtonsMoveRowAndSteel) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "60");
    Trova<UpDown>(&f, "UpDown1")->stepUp();
    EXPECT_EQ(Testo(&f, "Txt_Prof"), "IPE 330");
    EXPECT_EQ(Sezione().Designation, "IPE 330");
    EXPECT_EQ(Sezione().Mysd.Stretto(), 60e6F);
    EXPECT_NEAR(Numero(&f, "Lbl_McRd_0"), 804.3e3 * 235 / 1.05 / 1e6, 0.001);
    Trova<UpDown>(&f, "UpDown1")->stepDown();
    EXPECT_EQ(Testo(&f, "Txt_Prof"), "IPE 300");
    auto* steel = Trova<UpDown>(&f, "UpDown2");
    steel->stepDown();
    EXPECT_EQ(Testo(&f, "Txt_TipoAcciaio"), "S235 (Fe360)") << "held at the first";
    steel->stepUp();
    EXPECT_EQ(Testo(&f, "Txt_TipoAcciaio"), "S275 (Fe430)");
    EXPECT_EQ(Testo(&f, "Txt_fy"), "275");
    steel->stepUp();
    steel->stepUp();
    EXPECT_EQ(Testo(&f, "Txt_TipoAcciaio"), "S355 (Fe510)") << "held at the last";
    EXPECT_NEAR(Numero(&f, "Lbl_McRd_0"), 628.4e3 * 355 / 1.05 / 1e6, 0.001);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmPresFlessTest, OpensTheOtherChecksAndComesBack) {
    auto& f = Apre();
    Scrive(&f, "TxtM1_0", "60");
    Scrive(&f, "TxtM2_0", "-20");
    Preme(&f, "LblVerifiche");
    auto& verifiche = Aperto("FrmVerifiche");
    EXPECT_EQ(Testo(&verifiche, "TxtMysd"), "60");
    Scrive(&verifiche, "TxtNsd", "500");
    EXPECT_EQ(Sezione().NSd.Stretto(), 500e3F);
    QTest::keyClick(&verifiche, Qt::Key_Escape);
    EXPECT_FALSE(verifiche.isVisible());
    EXPECT_EQ(Sezione().NSd.Stretto(), 500e3F);
    EXPECT_EQ(Testo(&f, "TxtNsd"), "500") << "the force of the other check";
    Scrive(&f, "TxtNsd", "120");
    for (const char* opener : {"LblFlessTors", "LbLFlessTorsHelp"}) {
        Preme(&f, opener);
        auto& m = Aperto("FrmMsverg");
        EXPECT_EQ(Testo(&m, "TxtMysd"), "60");
        EXPECT_NEAR(ValoreNumerico(Testo(&m, "Txt_C1")), 2.40444, 1e-5);
        QTest::keyClick(&m, Qt::Key_Escape);
        EXPECT_FALSE(m.isVisible());
        EXPECT_TRUE(f.isVisible());
    }
}

TEST_F(FrmPresFlessTest, EnterGoesThroughTheEntries) {
    auto& f = Apre();
    f.activateWindow();
    Preme(&f, "OptMomento_1");
    Trova<QLineEdit>(&f, "Txt_fy")->setFocus();
    for (const char* next : {"TxtNsd", "Txt_L0_0", "Txt_L0_1", "TxtM1_0", "TxtM2_0", "TxtMQ_0", "TxtM1_1",
                             "TxtM2_1", "TxtMQ_1"}) {
        QTest::keyClick(f.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(f.focusWidget()->objectName(), next);
    }
    Preme(&f, "OptMomento_0"); // no span moments: they are passed over
    Trova<QLineEdit>(&f, "TxtM2_0")->setFocus();
    QTest::keyClick(f.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(f.focusWidget()->objectName(), "TxtM1_1");
}

TEST_F(FrmPresFlessTest, ASumThatIsNoneHasNoVerdict) {
    auto& f = Apre();
    Sezione().MczRd = 0; // 0 / 0 in the term of Mz
    Scrive(&f, "TxtM1_0", "60");
    EXPECT_EQ(Scritta(&f, "Lbl_Risult"), "");
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "");
    Scrive(&f, "TxtM1_1", "4"); // 4 / 0
    EXPECT_EQ(Scritta(&f, "Lbl_Risult"), "");
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "NO");
}

} // namespace
