#include "screens/GeneraleSchermi.h"

#include <QAction>
#include <QMessageBox>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTimer>

#include <fstream>

#include "frame/Cartelle.h"
#include "frame/Impostazioni.h"
#include "frame/ui/Guida.h"
#include "frame/ui/IndiceGuida.h"
#include "frame/ui/MessaggiQt.h"
#include "screens/Ambiente.h"
#include "screens/StatoUtente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class GeneraleSchermiTest : public AmbienteSchermi {
protected:
    static std::string Ini() {
        std::ifstream file(PathProgramma / "Sagomi.ini", std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

TEST_F(GeneraleSchermiTest, StartShowsTheRolledScreenFirst) {
    Main();
    auto* first = NavigaSchermi::Unico().Trova(QStringLiteral("frmDoppioT"));
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(ScreenAttivo, "frmDoppioT");
    EXPECT_FALSE(AvvioInCorso);
}

TEST_F(GeneraleSchermiTest, ThePreviewStandsReadyAndMakesItsControlsWhenItIsAskedFor) {
    auto& s = Avvia();
    const Schermo* preview = NavigaSchermi::Unico().Trova(QStringLiteral("FrmPltSezione"));
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(preview->findChild<QPushButton*>(QStringLiteral("CmdPlotta")), nullptr);
    Trova<QPushButton>(&s, "CmdPlotta")->click();
    EXPECT_TRUE(preview->isVisible());
    EXPECT_NE(preview->findChild<QPushButton*>(QStringLiteral("CmdPlotta")), nullptr);
}

TEST_F(GeneraleSchermiTest, StartedByAClientNothingShows) {
    ServerAttivo = true;
    Main();
    EXPECT_EQ(NavigaSchermi::Unico().Trova(QStringLiteral("frmDoppioT")), nullptr);
}

/// Another folder than the program's, whose state does not reach the user's own.
class CartellaSceltaTest : public GeneraleSchermiTest {
protected:
    void SetUp() override {
        GeneraleSchermiTest::SetUp();
        QStandardPaths::setTestModeEnabled(true);
        scelta = std::filesystem::path(cartella.path().toStdString()) / "lavori di Niccolò";
    }
    void TearDown() override {
        GeneraleSchermiTest::TearDown();
        CartellaStato({});
        QStandardPaths::setTestModeEnabled(false);
    }
    std::filesystem::path scelta;
};

TEST_F(CartellaSceltaTest, SettingsAndSectionsAreKeptThereAndHelpIsReadWhereItCameFrom) {
    ASSERT_TRUE(TrovaCartelle(scelta));
    CartellaStato({});
    EXPECT_EQ(PathProgramma, scelta);
    EXPECT_EQ(CartellaInstallata(), SAGOMI_BIN);
    Avvia();
    EXPECT_FALSE(LeggeGuida(QStringLiteral("Sagomi.hlp")).isEmpty());
    EXPECT_FALSE(std::filesystem::exists(scelta / "Sagomi.hlp"));
    ChiudiProgramma();
    EXPECT_TRUE(Ini().starts_with("\"3\",\"7.8\"\r\n")) << Ini();
    EXPECT_TRUE(std::filesystem::exists(scelta / "SagomiUtente.xls"));
    EXPECT_TRUE(registratore.testi.empty()) << registratore.testi.front();
}

TEST_F(CartellaSceltaTest, OneThatCannotBeUsedIsToldAndNothingStarts) {
    std::ofstream(scelta) << "un file";
    EXPECT_FALSE(TrovaCartelle(scelta));
    EXPECT_EQ(registratore.testi,
              std::vector<std::string>{"la cartella " + scelta.string() +
                                       " non si può usare: " + scelta.string() + " non è una cartella"});
}

TEST_F(GeneraleSchermiTest, FirstRunWorksUnderNtcAndWritesACompleteFile) {
    Avvia();
    EXPECT_EQ(Normativa, normativaNTC);
    EXPECT_EQ(GammaM0.Stretto(), 1.05F);
    EXPECT_EQ(GammaM1.Stretto(), 1.05F);
    EXPECT_EQ(GammaM2.Stretto(), 1.25F);
    ChiudiProgramma();
    EXPECT_TRUE(Ini().starts_with("\"3\",\"7.8\"\r\n3\r\n\"S235 (Fe360)\"\r\n235\r\n360\r\n")) << Ini();
}

TEST_F(GeneraleSchermiTest, SettingsComeBackAtTheNextStart) {
    auto& s = Avvia();
    s.ComboTipoAcciaio->setCurrentIndex(2);
    emit s.ComboTipoAcciaio->activated(2);
    Normativa = normativaEC3;
    ChiudiProgramma();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto folder = PathProgramma;
    RipristinaGenerale();
    PathProgramma = folder;
    auto& again = Avvia();
    EXPECT_EQ(again.ComboTipoAcciaio->currentIndex(), 2);
    EXPECT_EQ(Testo(&again, "Txt_fy"), "355");
    EXPECT_EQ(again.NormativaMain->text(), "Normativa: EC3");
    EXPECT_EQ(GammaM0.Stretto(), 1.F);
}

TEST_F(GeneraleSchermiTest, SettingsThatCannotBeAreNamedInTheStatusLine) {
    std::ofstream(PathProgramma / "Sagomi.ini")
        << "\"1\",\"7.8\"\n1\n\"S235\"\n235\n360\n0\n1\n8.8\n0\n1.#INF\n430\n15\n2\n1E-30,1,1\n";
    auto& s = Avvia();
    EXPECT_EQ(
        Trova<QLabel>(&s, "LblBarra")->text(),
        "18 sagomi di 1 famiglia · Sagomi.ini: valori non ammessi di fck, GammaM0, riportati ai predefiniti");
    EXPECT_EQ(GammaM0.Stretto(), 1.F);
}

TEST_F(GeneraleSchermiTest, AChangeOfSettingsIsInTheFileAtOnce) {
    auto& s = Avvia();
    s.ComboTipoAcciaio->setCurrentIndex(2);
    emit s.ComboTipoAcciaio->activated(2);
    const std::string chosen = Ini();
    EXPECT_NE(chosen.find("\r\n510\r\n2\r\n7\r\n"), std::string::npos) << chosen;
    ChiudiProgramma();
    EXPECT_EQ(Ini(), chosen);
}

TEST_F(GeneraleSchermiTest, FileBeforeVersion77IsReadUnderEc3AndRewritten) {
    std::ofstream(PathProgramma / "Sagomi.ini", std::ios::binary)
        << "2\r\n\"A\"\r\n235\r\n360\r\n\"B\"\r\n275\r\n430\r\n1\r\n1\r\n8.8\r\n0\r\n25\r\n430\r\n15\r\n";
    auto& s = Avvia();
    EXPECT_EQ(NumAcciai, 2);
    EXPECT_EQ(s.ComboTipoAcciaio->currentText(), "B");
    EXPECT_EQ(s.NormativaMain->text(), "Normativa: EC3");
    ChiudiProgramma();
    EXPECT_TRUE(Ini().starts_with("\"2\",\"7.8\"\r\n2\r\n\"A\"\r\n")) << Ini();
}

/// Hears the moment at which a client is told of a row.
struct Osservatore : OsservatoreSezione {
    std::vector<std::string> eventi;
    SchermoSezione* schermo = nullptr;
    void SagomoCambiato() override {
        const auto& section = *std::get<std::shared_ptr<SezioneDoppioT>>(SezioneCorrente);
        eventi.push_back("cambiato " + section.Designation + " classe " +
                         std::to_string(section.ClasseCompressione) + " campo " +
                         (schermo == nullptr ? "" : schermo->TxtProf[2]->text().toStdString()));
    }
    void SagomiQuittato() override { eventi.emplace_back("quittato"); }
};

TEST_F(GeneraleSchermiTest, NewRowFillsReadsTellsComputesChecksInThatOrder) {
    auto& s = Avvia();
    Osservatore client;
    client.schermo = &s;
    ServerAttivo = true;
    OggettoServer = &client;
    s.Data1->MoveNext();
    // Fields are there, the section is read, its class (0) is not computed yet.
    EXPECT_EQ(client.eventi, std::vector<std::string>{"cambiato IPE 100 classe 0 campo  100"});
    EXPECT_EQ(Sezione().ClasseCompressione, 1);
    s.CaricaForm = true;
    s.Data1->MoveNext();
    EXPECT_EQ(Sezione().ClasseCompressione, 0) << "while loading nothing computes";
    s.CaricaForm = false;
    client.eventi.clear();
    ChiudiProgramma();
    EXPECT_EQ(client.eventi, std::vector<std::string>{"quittato"});
}

TEST_F(GeneraleSchermiTest, OtherFieldsAndEmptyTablesChangeNothing) {
    auto& s = Avvia();
    const auto before = SezioneCorrente;
    RecordCambiato(s, 1);
    EXPECT_EQ(SezioneCorrente, before);
    s.Data1->Recordset().MovePrevious(); // BOF
    RecordCambiato(s, 0);
    s.DatiRisultati();
    EXPECT_EQ(SezioneCorrente, before);
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), "");
}

TEST_F(GeneraleSchermiTest, OneChangeOfRowIsOneNewSectionAlsoWithTheSameName) {
    auto& s = Avvia();
    QSignalSpy rows(s.Data1, &LettoreDati::rigaCambiata);
    s.Data1->RecordSource("SELECT * FROM [IPE$] WHERE designation = 'IPE 200' UNION ALL "
                          "SELECT * FROM [IPE$] WHERE designation = 'IPE 200'");
    s.Data1->Refresh();
    EXPECT_EQ(rows.count(), 1);
    const auto first = SezioneCorrente;
    s.Data1->MoveNext();
    EXPECT_EQ(rows.count(), 2);
    EXPECT_NE(SezioneCorrente, first);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "IPE 200");
}

TEST_F(GeneraleSchermiTest, ValuesAreCheckedAtAChangeOfRowOnly) {
    auto& s = Avvia();
    s.Data1->RecordSource("SELECT designation, 1 AS g, [h (mm)], [b (mm)], [tw (mm)], [tf (mm)], [r1 (mm)], "
                          "[r2 (mm)], [A (cm2)], [Iy (cm4)] * 1.1, [Wy (cm3)], [Wpl,y (cm3)], [iy (cm)], "
                          "[Iz (cm4)], [Wz (cm3)], [Wpl,z (cm3)], [iz (cm)], [IT (cm4)], [Iw (cm6)] "
                          "FROM [IPE$] WHERE designation = 'IPE 200'");
    s.Data1->Refresh();
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_TRUE(registratore.testi[0].starts_with("Riscontrato valore troppo approssimato nel database\r"));
    registratore.testi.clear();
    Trova<QLineEdit>(&s, "Txt_L0_0")->setText("3");
    AttivaForm(s);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(GeneraleSchermiTest, MaximiseScalesUpToTheRatioAndRestoreGoesBackExactly) {
    auto& s = Avvia();
    auto* label = Trova<QLabel>(&s, "LblAcciaio");
    const QFont before = label->font();
    const int combo = s.ComboTipoAcciaio->height();
    s.showMaximized();
    QCoreApplication::processEvents();
    ASSERT_TRUE(s.ridimensiona.scalata);
    const double ratio = s.height() * 15.0 / s.HeightIni;
    EXPECT_DOUBLE_EQ(s.ridimensiona.altezza, ratio);
    EXPECT_LE(label->font().pointSizeF(), before.pointSizeF() * ratio + 0.02);
    EXPECT_GE(label->font().pointSizeF(), before.pointSizeF()) << "what fitted before still does";
    EXPECT_EQ(s.ComboTipoAcciaio->height(), combo) << "a combo box keeps its height";
    s.showNormal();
    QCoreApplication::processEvents();
    EXPECT_EQ(label->font(), before);
}

TEST_F(GeneraleSchermiTest, MinimisingChangesNothingNorDoesAClientsProgram) {
    auto& s = Avvia();
    const QFont before = Trova<QLabel>(&s, "LblAcciaio")->font();
    s.showMinimized();
    QCoreApplication::processEvents();
    EXPECT_TRUE(s.ridimensiona.minimizzata);
    s.showNormal();
    QCoreApplication::processEvents();
    EXPECT_FALSE(s.ridimensiona.minimizzata);
    EXPECT_EQ(Trova<QLabel>(&s, "LblAcciaio")->font(), before);
    ServerAttivo = true;
    s.showMaximized();
    QCoreApplication::processEvents();
    EXPECT_EQ(Trova<QLabel>(&s, "LblAcciaio")->font(), before);
}

TEST_F(GeneraleSchermiTest, ClosingRunsOnceAndUnloadsTheLastOpenedFirst) {
    auto& s = Avvia();
    Trova<QAction>(&s, "mnuHelp_1")->trigger();
    QSignalSpy unloaded(&NavigaSchermi::Unico(), &NavigaSchermi::schermoScaricato);
    s.close();
    EXPECT_TRUE(ChiusuraInCorso);
    ASSERT_GE(unloaded.count(), 2);
    EXPECT_EQ(unloaded.first()[0], "FrmInform");
    EXPECT_EQ(unloaded.last()[0], "frmDoppioT");
    EXPECT_TRUE(std::filesystem::exists(PathProgramma / "Sagomi.ini"));
    std::filesystem::remove(PathProgramma / "Sagomi.ini");
    ChiudiProgramma();
    EXPECT_FALSE(std::filesystem::exists(PathProgramma / "Sagomi.ini")) << "a second time does nothing";
}

TEST_F(GeneraleSchermiTest, SettingsThatCannotBeWrittenAreToldOnceAndClosingGoesOn) {
    Avvia();
    std::filesystem::create_directory(PathProgramma / "Sagomi.ini"); // nothing can be renamed over a folder
    ChiudiProgramma();
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Scrittura incompleta del file"});
    EXPECT_EQ(NavigaSchermi::Unico().Trova(QStringLiteral("frmDoppioT")), nullptr);
}

/// A main screen whose reading fails.
struct SchermoRotto : frmDoppioT {
    void Leggedati() override { throw std::out_of_range("campo 9"); }
};

TEST_F(GeneraleSchermiTest, FailureOfAnActivationNamesTheScreen) {
    Avvia();
    auto& broken = NavigaSchermi::Unico().Prende<SchermoRotto>();
    registratore.testi.clear();
    AttivaForm(broken);
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Errore in AttivaForm frmDoppioT n° 0 - campo 9"});
}

TEST_F(GeneraleSchermiTest, LoadReadsTheFirstRowWithoutComputingOrChecking) {
    Osservatore client;
    OggettoServer = &client;
    ServerAttivo = true; // the client hears of the row that the load takes over
    Avvia();
    frmDoppioT loading; // constructed, not shown yet
    client.schermo = &loading;
    EXPECT_TRUE(loading.CaricaForm);
    EXPECT_EQ(Testo(&loading, "TxtProf_0"), "IPE 80");
    EXPECT_EQ(Sezione().ClasseCompressione, 0);
    EXPECT_EQ(Testo(&loading, "TxtNbRd_0"), "");
    EXPECT_EQ(Testo(&loading, "Txt_fy"), "235");
    EXPECT_TRUE(registratore.testi.empty() || registratore.messaggi.front().titolo == "ATTENZIONE ");
}

TEST_F(GeneraleSchermiTest, ActivationTellsNoClientAndChecksNothing) {
    auto& s = Avvia();
    Osservatore client;
    client.schermo = &s;
    ServerAttivo = true;
    OggettoServer = &client;
    Normativa = normativaEC3;
    AttivaForm(s);
    EXPECT_TRUE(client.eventi.empty());
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(s.NormativaMain->text(), "Normativa: EC3");
    EXPECT_EQ(Guida::File(), "Sagomi.hlp");
}

TEST_F(GeneraleSchermiTest, EachWrongValueHasItsOwnBox) {
    auto& s = Avvia();
    s.Data1->RecordSource("SELECT designation, 1 AS g, [h (mm)], [b (mm)], [tw (mm)], [tf (mm)], [r1 (mm)], "
                          "[r2 (mm)], [A (cm2)] * 1.5, [Iy (cm4)], [Wy (cm3)], [Wpl,y (cm3)], [iy (cm)], "
                          "[Iz (cm4)], [Wz (cm3)] * 1.5, [Wpl,z (cm3)], [iz (cm)], [IT (cm4)], [Iw (cm6)] "
                          "FROM [IPE$] WHERE designation = 'IPE 200'");
    s.Data1->Refresh();
    EXPECT_EQ(registratore.testi.size(), 2U);
    EXPECT_EQ(Testo(&s, "TxtProf_14"), Locale(" 42.71")) << "the row stays, with the values of the table";
}

TEST_F(GeneraleSchermiTest, TableWithTooFewColumnsIsRefusedByName) {
    auto& s = Avvia();
    s.Data1->RecordSource("SELECT designation, [h (mm)] FROM [IPE$]");
    try {
        s.Data1->Refresh();
        ADD_FAILURE() << "a table of two columns was taken";
    } catch (const std::exception& e) {
        EXPECT_NE(std::string(e.what()).find("Sagomi.xls"), std::string::npos) << e.what();
        EXPECT_NE(std::string(e.what()).find("2 colonne"), std::string::npos) << e.what();
    }
    EXPECT_EQ(s.Data1->Recordset().Righe(), 18) << "the old table stays";
}

TEST_F(GeneraleSchermiTest, MessageBoxOnTheScreenLeavesItsSection) {
    auto& s = Avvia();
    const auto before = SezioneCorrente;
    const auto recorder = CollegaMessaggi({});
    CollegaMessaggiQt();
    int boxes = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [&boxes] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++boxes;
            box->buttons().front()->click();
        }
    });
    closer.start(5);
    s.Txt_fy->clear();
    CollegaMessaggi(recorder);
    QCoreApplication::processEvents();
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(SezioneCorrente, before);
}

TEST_F(GeneraleSchermiTest, TableScalesAndComesBackExactly) {
    auto& s = Avvia();
    const int column = s.DBGrid1->columnWidth(0);
    const int row = s.DBGrid1->rowHeight(0);
    s.ScalaControlli(1.5, 1.25);
    EXPECT_GT(s.DBGrid1->columnWidth(0), column);
    EXPECT_NEAR(s.DBGrid1->rowHeight(0), row * 1.25, 1);
    s.ScalaControlli(1, 1);
    EXPECT_EQ(s.DBGrid1->columnWidth(0), column);
    EXPECT_EQ(s.DBGrid1->rowHeight(0), row);
}

TEST_F(GeneraleSchermiTest, SmallFontsStaySmall) {
    auto& s = Avvia();
    auto* label = Trova<QLabel>(&s, "LblAcciaio");
    QFont small = label->font();
    small.setFamily(QStringLiteral("Small Fonts"));
    small.setPointSizeF(6);
    label->setFont(small);
    s.ScalaControlli(2, 2);
    EXPECT_DOUBLE_EQ(label->font().pointSizeF(), 7);
    s.ScalaControlli(1, 1);
    EXPECT_DOUBLE_EQ(label->font().pointSizeF(), 6);
}

TEST_F(GeneraleSchermiTest, LeaveByTheFileMenu) {
    auto& s = Avvia();
    Trova<QAction>(&s, "mnuFileItem_0")->trigger();
    EXPECT_TRUE(ChiusuraInCorso);
}

TEST_F(GeneraleSchermiTest, ActivationTakesTheScreensOwnSteel) {
    auto& s = Avvia();
    IndiceAcciaio = 2; // another screen has stepped it
    AttivaForm(s);
    EXPECT_EQ(IndiceAcciaio, 0);
}

} // namespace
