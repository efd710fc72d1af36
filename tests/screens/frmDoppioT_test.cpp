#include "screens/frmDoppioT.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>

#include "screens/Ambiente.h"
#include "sections/Eurocod3.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmDoppioTTest : public AmbienteSchermi {};

TEST_F(FrmDoppioTTest, HasEveryControlWithItsCaption) {
    auto& s = Avvia();
    EXPECT_EQ(s.windowTitle(), "Doppio T Laminati - F1 per aiuto");
    const char* families[] = {"HEA", "HEB", "HEM", "IPE",  "IPEO", "IPEA", "IPEX", "IPN",
                              "HD",  "HEX", "HP",  "HEAA", "UC",   "UB",   "W",    "HL"};
    ASSERT_EQ(s.ChkTipo.size(), 16);
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(s.ChkTipo[i]->text(), families[i]);
        EXPECT_EQ(s.ChkTipo[i]->isChecked(), i == 3);
    }
    const char* orders[] = {"Wy", "Iy", "g"};
    ASSERT_EQ(s.OptionOrdina.size(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(s.OptionOrdina[i]->text(), orders[i]);
    EXPECT_TRUE(s.OptionOrdina[0]->isChecked());
    ASSERT_EQ(s.TxtProf.size(), 19);
    const char* labels[] = {
        "g (Kg/m):", "h (mm):",   "b (mm):",      "tw (mm):",  "tf (mm):",     "r1 (mm):",
        "r2 (mm):",  "A (cm2):",  "Iy (cm4):",    "Wy (cm3):", "Wpl,y (cm3):", "iy (cm):",
        "Iz (cm4):", "Wz (cm3):", "Wpl,z (cm3):", "iz (cm):",  "IT (cm4):",    "Iw (cm6):"};
    for (int i = 1; i <= 18; ++i) {
        const auto name = "LblProf_" + std::to_string(i);
        EXPECT_EQ(Trova<QLabel>(&s, name.c_str())->text(), labels[i - 1]);
        EXPECT_TRUE(s.TxtProf[i]->isReadOnly());
    }
    const std::pair<const char*, const char*> buttons[] = {
        {"AggiornaTabella", "Aggiorna Tabella"},
        {"LblClasse", "Dettagli"},
        {"LblNbRd", "Dettagli"},
        {"LblMcRd", "Dettagli"},
        {"lblVplRd", "Dettagli"},
        {"Command1", "P&resso Flessione"},
        {"Command2", "&Svergolamento"},
        {"CmdPlotta", "Plotta"},
        {"cmdSceltaSagomoGiunto", "Ritorna alla Form Giunto"}};
    for (const auto& [name, caption] : buttons)
        EXPECT_EQ(Trova<QPushButton>(&s, name)->text(), caption);
    const std::pair<const char*, const char*> actions[] = {{"mnuFileItem_0", "&Esci"},
                                                           {"mnuTipoSaldati", "&Saldati Simmetrici"},
                                                           {"mnuTipoSaldatiAsimm", "Saldati &Asimmetrici"},
                                                           {"mnuTipoL", "Sagomi &L"},
                                                           {"mnuTipoU", "Sagomi &U"},
                                                           {"mnuCollegamenti_0", "&Bullonati"},
                                                           {"mnuCollegamenti_1", "&Saldati"},
                                                           {"MnuGiunto", "&Giunto Flangiato"},
                                                           {"mnuAcciaioCls", "&AcciaioCls"},
                                                           {"NormativaMain", "Normativa: NTC"},
                                                           {"mnuHelp_0", "&Guida"},
                                                           {"mnuHelp_1", "&Informazioni"}};
    for (const auto& [name, caption] : actions)
        EXPECT_EQ(Trova<QAction>(&s, name)->text(), caption);
    EXPECT_EQ(Trova<QMenu>(&s, "mnuTipo")->title(), "&Tipo Sagomo");
    EXPECT_EQ(Trova<QMenu>(&s, "mnuCollegamenti1")->title(), "&Collegamenti");
    EXPECT_EQ(Trova<QLabel>(&s, "LblNsd")->text(), "N     [kN]");
    EXPECT_EQ(Trova<QLabel>(&s, "LblMcRd_0")->text(), "M         [kNm]");
    EXPECT_EQ(Trova<QLabel>(&s, "LblMcRd_0")->property("pedice"), "cy,Rd");
    EXPECT_TRUE(Trova<QLineEdit>(&s, "txtNascosto")->isHidden());
}

TEST_F(FrmDoppioTTest, TipsSayWhatAResistanceIs) {
    auto& s = Avvia();
    EXPECT_EQ(Trova<QLineEdit>(&s, "TxtNbRd_0")->toolTip(),
              "Resistenza di progetto all'instabilità per inflessione intorno a y-y");
    EXPECT_EQ(Trova<QLineEdit>(&s, "TxtNbRd_1")->toolTip(),
              "Resistenza di progetto all'instabilità per inflessione intorno a z-z");
    EXPECT_EQ(Trova<QLineEdit>(&s, "TxtMcRd_0")->toolTip(),
              "Momento resistente di progetto della sezione intorno all'asse y-y");
    EXPECT_EQ(Trova<QLineEdit>(&s, "TxtMcRd_1")->toolTip(),
              "Momento resistente di progetto della sezione intorno all'asse z-z");
    EXPECT_EQ(Trova<QLineEdit>(&s, "TxtVplRd_0")->toolTip(),
              "Resistenza di progetto a taglio (impegna l'anima) EC3 #5.4.6.");
    EXPECT_EQ(Trova<QLineEdit>(&s, "TxtVplRd_1")->toolTip(),
              "Resistenza di progetto a taglio (impegna le ali) EC3 #5.4.6.");
}

TEST_F(FrmDoppioTTest, StartsOnTheFirstIpeWithItsResults) {
    auto& s = Avvia();
    EXPECT_EQ(s.SQLstring, "SELECT * FROM [IPE$] ORDER BY [Wy (cm3)]");
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "IPE 80");
    EXPECT_EQ(s.Data1->Recordset().Righe(), 18);
    EXPECT_GE(s.WidthIni, 9600);
    EXPECT_GE(s.HeightIni, 7680);
    EXPECT_FALSE(s.CaricaForm);
    EXPECT_EQ(Testo(&s, "Txt_fy"), "235");
    EXPECT_EQ(Testo(&s, "Txt_fu"), "360");
    // 764 mm2 · 235 / 1.05 = 170.99 kN
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), Locale(" 171.0"));
    EXPECT_EQ(Trova<QLabel>(&s, "LblBarra")->text(), "18 sagomi di 1 famiglia");
    EXPECT_EQ(std::filesystem::status(PathProgramma / "Sagomi.xls").permissions() &
                  std::filesystem::perms::owner_write,
              std::filesystem::perms::none);
}

// IPE 200, S235, NTC, by hand: A 28.48 cm2, iy 8.26, iz 2.24 cm, Wpl 220.6 and 44.61 cm3;
// L0y 5 m: lamda 0.6447, curve a, chi 0.8722; L0z 2.5 m: lamda 1.1886, curve b, chi 0.4844.
TEST_F(FrmDoppioTTest, ComputesTheSectionInHandFromTheEntries) {
    auto& s = Avvia();
    VaA(s, "IPE 200");
    EXPECT_EQ(Testo(&s, "TxtProf_9"), Locale(" 1,943"));
    EXPECT_EQ(Testo(&s, "TxtProf_8"), Locale(" 28.48"));
    EXPECT_EQ(Testo(&s, "TxtClasseCompressione"), "1");
    EXPECT_EQ(Testo(&s, "TxtClasseFlessioneY"), "1");
    EXPECT_EQ(Testo(&s, "TxtClasseFlessioneZ"), "1");
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), Locale(" 637.4")) << "no length, no reduction";
    EXPECT_EQ(Testo(&s, "TxtMcRd_0"), Locale(" 49.37"));
    EXPECT_EQ(Testo(&s, "TxtMcRd_1"), Locale(" 9.984"));
    EXPECT_EQ(Testo(&s, "TxtVplRd_0"), Locale(" 180.9"));
    Trova<QLineEdit>(&s, "Txt_L0_0")->setText("5");
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), Locale(" 556.0"));
    Trova<QLineEdit>(&s, "Txt_L0_1")->setText(QString::fromStdString(Locale("2.5")));
    EXPECT_EQ(Testo(&s, "TxtNbRd_1"), Locale(" 308.7"));
    EXPECT_EQ(Sezione().L0z.Stretto(), 2500.F);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmDoppioTTest, AxialForceDecidesTheClassInCompressionAndBending) {
    auto& s = Avvia();
    Trova<QComboBox>(&s, "ComboTipoAcciaio")->setCurrentIndex(2);
    emit Trova<QComboBox>(&s, "ComboTipoAcciaio")->activated(2);
    VaA(s,
        "IPE 300"); // d/tw = 248.6/7.1 = 35.0; epsilon 0.8136: 43.04, class 4 in compression, 1 in bending
    EXPECT_EQ(Testo(&s, "TxtClassePressFless"), Testo(&s, "TxtClasseFlessioneY"));
    EXPECT_EQ(Testo(&s, "TxtClassePressFless"), "1");
    Trova<QLineEdit>(&s, "TxtNsd")->setText("1000");
    EXPECT_EQ(Sezione().NSd.Stretto(), 1e6F);
    EXPECT_EQ(Testo(&s, "TxtClassePressFless"), "4");
}

TEST_F(FrmDoppioTTest, SteelListWritesBothStrengthsAndRestoresAnOvertypedOne) {
    auto& s = Avvia();
    auto* steel = Trova<QComboBox>(&s, "ComboTipoAcciaio");
    EXPECT_EQ(steel->count(), 3);
    steel->setCurrentIndex(1);
    emit steel->activated(1);
    EXPECT_EQ(IndiceAcciaio, 1);
    EXPECT_EQ(Testo(&s, "Txt_fy"), "275");
    EXPECT_EQ(Testo(&s, "Txt_fu"), "430");
    EXPECT_EQ(Sezione().TipoAcciaio, "S275 (Fe430)");
    EXPECT_EQ(Sezione().fu.Stretto(), 430.F);
    Trova<QLineEdit>(&s, "Txt_fy")->setText("265");
    EXPECT_EQ(Sezione().fy.Stretto(), 265.F);
    emit steel->activated(1);
    EXPECT_EQ(Testo(&s, "Txt_fy"), "275");
    EXPECT_EQ(Sezione().fy.Stretto(), 275.F);
}

TEST_F(FrmDoppioTTest, NewStrengthAloneCanChangeTheClass) {
    auto& s = Avvia();
    VaA(s, "IPE 300"); // web 35.0: class 2 in compression with epsilon 1 (33 < s <= 38)
    EXPECT_EQ(Testo(&s, "TxtClasseCompressione"), "2");
    Trova<QLineEdit>(&s, "Txt_fy")->setText("300"); // epsilon 0.885: 39.6, class 3
    EXPECT_EQ(Testo(&s, "TxtClasseCompressione"), "3");
}

TEST_F(FrmDoppioTTest, RefusesAStrengthThatIsNone) {
    auto& s = Avvia();
    Trova<QLineEdit>(&s, "Txt_fy")->setText("0");
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"fy deve essere > 0"});
    EXPECT_EQ(Sezione().fy.Stretto(), 235.F);
    Trova<QLineEdit>(&s, "Txt_fy")->setText("abc");
    EXPECT_EQ(registratore.testi.size(), 2U);
    EXPECT_EQ(Sezione().fy.Stretto(), 235.F);
    EXPECT_EQ(Testo(&s, "Txt_fy"), "235") << "put back";
}

TEST_F(FrmDoppioTTest, AStrengthOnItsWayReachesNoRow) {
    auto& s = Avvia();
    auto* fy = Trova<QLineEdit>(&s, "Txt_fy");
    fy->setFocus();
    fy->selectAll();
    QTest::keyClicks(fy, "0");
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), "");
    s.Data1->MoveNext();
    EXPECT_EQ(Sezione().fy.Stretto(), 235.F);
    QTest::keyClick(fy, Qt::Key_Return);
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"fy deve essere > 0"});
    EXPECT_EQ(fy->text(), "235");
    EXPECT_NE(Testo(&s, "TxtNbRd_0"), "");
    fy->setFocus();
    fy->selectAll();
    QTest::keyClicks(fy, "355");
    EXPECT_EQ(Sezione().fy.Stretto(), 355.F) << "computed at each key";
    EXPECT_EQ(registratore.testi.size(), 1U);
}

TEST_F(FrmDoppioTTest, ALengthBelowZeroEmptiesItsAxisAlone) {
    auto& s = Avvia();
    for (const char* text : {"-5", "1E999"}) {
        Trova<QLineEdit>(&s, "Txt_L0_0")->setText(text);
        EXPECT_EQ(Testo(&s, "TxtNbRd_0"), "") << text;
        EXPECT_NE(Testo(&s, "TxtNbRd_1"), "") << text;
    }
    Trova<QLineEdit>(&s, "Txt_L0_0")->setText("5");
    EXPECT_NE(Testo(&s, "TxtNbRd_0"), "");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmDoppioTTest, SmallestStrengthIsJustAboveTheLimit) {
    auto& s = Avvia();
    Trova<QLineEdit>(&s, "Txt_fy")->setText(QString::fromStdString(Locale("0.001")));
    EXPECT_EQ(registratore.testi.size(), 1U);
    Trova<QLineEdit>(&s, "Txt_fy")->setText(QString::fromStdString(Locale("0.0011")));
    EXPECT_EQ(registratore.testi.size(), 1U);
    EXPECT_FLOAT_EQ(Sezione().fy.Stretto(), 0.0011F);
}

TEST_F(FrmDoppioTTest, EmptyLengthIsNoSlenderness) {
    Avvia();
    EXPECT_EQ(Sezione().L0y.Stretto(), 0.F);
    EXPECT_EQ(Sezione().LamdaY(), 0);
    EXPECT_EQ(Chi(0.21, Sezione().LamdaSegnatoY()), 1);
}

TEST_F(FrmDoppioTTest, RowThatDoesNotComputeHasNoOldResults) {
    auto& s = Avvia();
    s.Data1->RecordSource("SELECT designation, 1 AS g, [h (mm)], [b (mm)], [tw (mm)], [tf (mm)], [r1 (mm)], "
                          "[r2 (mm)], [A (cm2)], [Iy (cm4)], [Wy (cm3)], [Wpl,y (cm3)], NULL AS iy, "
                          "[Iz (cm4)], [Wz (cm3)], [Wpl,z (cm3)], [iz (cm)], [IT (cm4)], [Iw (cm6)] "
                          "FROM [IPE$] WHERE designation = 'IPE 200'");
    s.Data1->Refresh();
    EXPECT_TRUE(Sezione().ErroreDatiDatabase);
    EXPECT_EQ(Testo(&s, "TxtProf_12"), " 0") << "an empty field counts as 0";
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), "");
    EXPECT_EQ(Testo(&s, "TxtVplRd_1"), "");
    EXPECT_EQ(Testo(&s, "TxtMcRd_0"), Locale(" 49.37"));
}

TEST_F(FrmDoppioTTest, LengthOfAnUnknownAxisIsAnError) {
    auto& s = Avvia();
    s.LunghezzaCambiata(2);
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Errore in L0"});
}

TEST_F(FrmDoppioTTest, EnterGoesThroughTheEntries) {
    auto& s = Avvia();
    s.activateWindow();
    auto* fy = Trova<QLineEdit>(&s, "Txt_fy");
    fy->setFocus();
    Trova<QLineEdit>(&s, "Txt_L0_0")->setText("5");
    QTest::keyClick(fy, Qt::Key_Return);
    EXPECT_EQ(s.focusWidget()->objectName(), "Txt_L0_0");
    EXPECT_EQ(Trova<QLineEdit>(&s, "Txt_L0_0")->selectedText(), "5");
    QTest::keyClick(s.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(s.focusWidget()->objectName(), "Txt_L0_1");
    QTest::keyClick(s.focusWidget(), Qt::Key_Enter);
    EXPECT_EQ(s.focusWidget()->objectName(), "TxtNsd");
    auto* command = Trova<QPushButton>(&s, "Command1");
    command->setEnabled(false);
    QTest::keyClick(s.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(s.focusWidget()->objectName(), "TxtNsd") << "a disabled button leaves the focus where it is";
    command->setEnabled(true);
    QTest::keyClick(s.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(s.focusWidget()->objectName(), "Command1");
}

TEST_F(FrmDoppioTTest, ArrowKeysInAnEntryMoveTheRow) {
    auto& s = Avvia();
    auto* n = Trova<QLineEdit>(&s, "TxtNsd");
    QTest::keyClick(n, Qt::Key_Down);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "IPE 100");
    QTest::keyClick(n, Qt::Key_Up);
    QTest::keyClick(n, Qt::Key_Up);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "IPE 80") << "stops at the first row";
    QTest::keyClick(Trova<QPushButton>(&s, "AggiornaTabella"), Qt::Key_Down);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "IPE 100");
    EXPECT_EQ(s.DBGrid1->currentIndex().row(), 1);
}

TEST_F(FrmDoppioTTest, TwoFamiliesAreOneSortedList) {
    auto& s = Avvia();
    s.ChkTipo[0]->setChecked(true);
    Trova<QPushButton>(&s, "AggiornaTabella")->click();
    const Lettore& rows = s.Data1->Recordset();
    EXPECT_EQ(s.Data1->RecordSource(),
              "SELECT * FROM [HEA$] UNION SELECT * FROM [IPE$] ORDER BY [Wy (cm3)] ASC");
    ASSERT_EQ(rows.Righe(), 18 + 24);
    for (int i = 1; i < rows.Righe(); ++i)
        EXPECT_LE(NumeroDi(rows.Cella(i - 1, 10)), NumeroDi(rows.Cella(i, 10)));
    EXPECT_EQ(Trova<QLabel>(&s, "LblBarra")->text(), "42 sagomi di 2 famiglie");
    s.OptionOrdina[2]->click();
    EXPECT_EQ(s.Data1->RecordSource(), "SELECT * FROM [HEA$] UNION SELECT * FROM [IPE$] ORDER BY [g (Kg/m)]");
}

TEST_F(FrmDoppioTTest, AllFamiliesShowEveryRow) {
    auto& s = Avvia();
    for (QCheckBox* box : s.ChkTipo)
        box->setChecked(true);
    Trova<QPushButton>(&s, "AggiornaTabella")->click();
    EXPECT_EQ(s.DBGrid1->model()->rowCount(), 792);
    s.Data1->MoveLast();
    EXPECT_EQ(s.DBGrid1->currentIndex().row(), 791);
}

TEST_F(FrmDoppioTTest, NothingTickedLeavesTheTable) {
    auto& s = Avvia();
    VaA(s, "IPE 200");
    registratore.testi.clear();
    s.ChkTipo[3]->setChecked(false);
    Trova<QPushButton>(&s, "AggiornaTabella")->click();
    EXPECT_EQ(registratore.testi,
              std::vector<std::string>{"ERRORE !! Non è stato selezionato nessun tipo di sagomo"});
    EXPECT_EQ(s.Data1->Recordset().Righe(), 18);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "IPE 200");
}

TEST_F(FrmDoppioTTest, SlenderWebShowsAButtonWithTheReason) {
    auto& s = Avvia();
    auto* warning = Trova<QPushButton>(&s, "lblVplRd");
    EXPECT_TRUE(warning->isHidden());
    VaA(s, "IPE 600"); // d/tw = 514/12 = 42.8; beyond 69 epsilon for fy above 610
    Trova<QLineEdit>(&s, "Txt_fy")->setText("620");
    EXPECT_FALSE(warning->isHidden());
    warning->click();
    EXPECT_EQ(registratore.testi, std::vector<std::string>{
                                      "d/tw > 69 epsilon. Verificare instabilità per taglio EC3 #5.4.6.(7)"});
    Trova<QLineEdit>(&s, "Txt_fy")->setText("235");
    EXPECT_TRUE(warning->isHidden());
}

TEST_F(FrmDoppioTTest, EntriesSurviveAnActivationAndTheSectionIsNew) {
    auto& s = Avvia();
    VaA(s, "IPE 200");
    Trova<QLineEdit>(&s, "Txt_L0_0")->setText("5");
    Sezione().Mysd = 1e6;
    AttivaForm(s);
    EXPECT_EQ(Sezione().Mysd.Stretto(), 0.F) << "what a detail screen left is gone";
    EXPECT_EQ(Sezione().L0y.Stretto(), 5000.F);
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), Locale(" 556.0"));
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "IPE 200");
}

TEST_F(FrmDoppioTTest, BackToTheJointShowsOnlyDuringAPick) {
    auto& s = Avvia();
    auto* back = Trova<QPushButton>(&s, "cmdSceltaSagomoGiunto");
    EXPECT_TRUE(back->isHidden());
    SceltaSagomoGiunto = true;
    AttivaForm(s);
    EXPECT_FALSE(back->isHidden());
    SceltaSagomoGiunto = false;
    AttivaForm(s);
    EXPECT_TRUE(back->isHidden());
}

TEST_F(FrmDoppioTTest, MissingWorkbookIsToldOnceAndTheScreenStays) {
    std::filesystem::remove(PathProgramma / "Sagomi.xls");
    InizializzaProgramma();
    auto& s = dynamic_cast<frmDoppioT&>(*NavigaSchermi::Unico().Trova(QStringLiteral("frmDoppioT")));
    std::vector<std::string> load;
    for (const std::string& text : registratore.testi)
        if (text.starts_with("Errore in form_load n° "))
            load.push_back(text);
    ASSERT_EQ(load.size(), 1U);
    EXPECT_NE(load[0].find("Sagomi.xls"), std::string::npos);
    EXPECT_TRUE(s.isVisible());
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "");
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), "");
    EXPECT_EQ(Trova<QComboBox>(&s, "ComboTipoAcciaio")->count(), 3);
    registratore.testi.clear();
    Trova<QLineEdit>(&s, "Txt_L0_0")->setText("5");
    Trova<QLineEdit>(&s, "TxtNsd")->setText("5");
    EXPECT_TRUE(registratore.testi.empty()) << "nothing computes without a row";
    Trova<QPushButton>(&s, "AggiornaTabella")->click();
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_NE(registratore.testi[0].find("Sagomi.xls"), std::string::npos);
}

TEST_F(FrmDoppioTTest, PictureFollowsTheRowOnAnyScale) {
    auto& s = Avvia();
    auto* picture = Trova<QWidget>(&s, "Picture1");
    const QImage narrow = picture->grab().toImage();
    VaA(s, "IPE 600");
    EXPECT_NE(picture->grab().toImage(), narrow);
}

} // namespace
