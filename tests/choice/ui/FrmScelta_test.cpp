#include "choice/ui/FrmScelta.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "Guasti.h"
#include "catalogue/CatalogoCsv.h"
#include "catalogue/SagomoUtente.h"
#include "catalogue/ScrittoreXls.h"
#include "catalogue/ScritturaRighe.h"
#include "catalogue/ui/GrigliaCatalogo.h"
#include "choice/ui/ModelloScelta.h"
#include "choice/ui/VistaGrafico.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/FileDialogo.h"
#include "screens/Comandi.h"
#include "screens/FrmPresFless.h"
#include "sections/Verdetto.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

const QString nienteL = QStringLiteral("svergolamento non verificato: manca L o L0z");

class FrmSceltaTest : public AmbienteSchermi {
protected:
    void TearDown() override {
        ImpostaSceltaStampante({});
        ImpostaSceltaFile({});
        AmbienteSchermi::TearDown();
    }

    /// Opened from the first screen, with these entries, all rows done.
    FrmScelta& Apre(const char* N = "250", const char* L0y = "5", const char* L0z = "2.5") {
        return ApreDa(Avvia(), N, L0y, L0z);
    }
    static FrmScelta& ApreDa(SchermoSezione& main, const char* N = "250", const char* L0y = "5",
                             const char* L0z = "2.5") {
        Scrive(&main, "TxtNsd", N);
        Scrive(&main, "Txt_L0_0", L0y);
        Scrive(&main, "Txt_L0_1", L0z);
        Trova<QAction>(&main, "mnuScelta")->trigger();
        auto& s = dynamic_cast<FrmScelta&>(Aperto("FrmScelta"));
        Finisce(s);
        return s;
    }
    static void Finisce(FrmScelta& s) {
        constexpr int attesa = 60000; // of a long catalogue on a busy machine [ms]
        const auto done = [&s] {
            return s.Scelta().Finita() && s.Modello()->rowCount() > 0 &&
                   !Trova<QProgressBar>(&s, "Avanzamento")->isVisible();
        };
        ASSERT_TRUE(QTest::qWaitFor(done, attesa));
        QTest::qWait(40); // the chart follows
    }
    /// Both ends, ends that warp half, a load above mid-height.
    static void ScriveAzioni(FrmScelta& s) {
        for (const auto& [box, text] : {std::pair{"TxtM1_0", "40"},
                                        {"TxtM2_0", "-15"},
                                        {"TxtM1_1", "5"},
                                        {"TxtM2_1", "2"},
                                        {"Txt_k", "0.7"},
                                        {"Txt_C1", "1.5"},
                                        {"Txt_C2", "0.4"},
                                        {"Txt_Zg", "90"},
                                        {"Txt_L", "3"}})
            Scrive(&s, box, text);
        Finisce(s);
    }
    static void ProvaUtilizzo(const char* screen, double value) {
        EXPECT_TRUE(
            Scritta(&Aperto(screen), "LblUtilizzo").starts_with("Utilizzo " + Formato("0.0", value * 100)))
            << screen << ": " << Scritta(&Aperto(screen), "LblUtilizzo") << " for " << value;
    }
    /// The user's own workbook with a row that has its dimensions only: 400 x 200 x 8 x 14, fillets of 5 mm.
    static void ScriveSagomoUtente() {
        const auto file = PathProgramma / "SagomiUtente.xls";
        InstallaCartellaUtente(file);
        const std::vector<Valore> row = {std::string("MIO 400"), {}, 400.0, 200.0, 8.0, 14.0, 5.0};
        ScriveRighe(file, ImprontaDi(file), "'DoppioT Simmetrico'$", {{{}, row}});
    }
    static std::uint32_t Posto(const FrmScelta& s, const char* name) {
        const auto all = s.Scelta().Sagomi();
        for (std::uint32_t i = 0; i < all.size(); ++i)
            if (all[i].Designazione() == name)
                return i;
        throw std::out_of_range(name);
    }
    static const RigaScelta& InMano(const FrmScelta& s) {
        std::uint32_t place = 0;
        if (!s.Modello()->InMano(place))
            throw std::out_of_range("no row in hand");
        return s.Scelta().Riga(place);
    }
    static QString NomeInMano(const FrmScelta& s) {
        return s.Modello()->TestoIntero(s.Modello()->RigaInMano(), 0);
    }
};

TEST_F(FrmSceltaTest, F4OpensItWithTheEntriesOfItsCaller) {
    FrmScelta& s = Apre();
    EXPECT_EQ(s.windowTitle(), "Scelta del sagomo");
    EXPECT_EQ(Trova<QAction>(s.origine, "mnuScelta")->shortcut(), QKeySequence(Qt::Key_F4));
    EXPECT_EQ(Testo(&s, "TxtNsd"), "250");
    EXPECT_EQ(Testo(&s, "Txt_L0_0"), "5");
    EXPECT_EQ(Testo(&s, "Txt_L0_1"), Locale("2.5"));
    EXPECT_EQ(Testo(&s, "Txt_TipoAcciaio"), "S235 (Fe360)");
    EXPECT_EQ(Testo(&s, "Txt_fy"), "235");
    EXPECT_EQ(s.RichiestaInForza().NSd, 250e3);
    Scrive(s.origine, "TxtNsd", "300");
    EXPECT_EQ(Testo(&s, "TxtNsd"), "300") << "and follows them";
}

TEST_F(FrmSceltaTest, WithNothingTypedThereAreResistancesAlone) {
    FrmScelta& s = Apre("", "3", "3");
    const auto column = [](const char* heading) {
        const auto at = std::ranges::find(ColonneScelta(), std::string_view(heading), &ColonnaScelta::titolo);
        return static_cast<int>(at - ColonneScelta().begin());
    };
    EXPECT_NE(s.Modello()->TestoIntero(0, column("Nbz,Rd (kN)")), "");
    for (int c = column("sez."); c <= ColonnaUtilizzo(); ++c)
        EXPECT_EQ(s.Modello()->TestoIntero(0, c), "") << c;
    EXPECT_TRUE(
        std::isnan(s.Modello()->data(s.Modello()->index(0, 0), ModelloScelta::ruoloUtilizzo).toDouble()));
    EXPECT_TRUE(std::ranges::is_sorted(s.Modello()->Posti(), {},
                                       [&s](std::uint32_t p) { return s.Scelta().Riga(p).g; }));
    EXPECT_TRUE(s.Modello()->Leggeri().empty());
    EXPECT_EQ(Trova<QLabel>(&s, "LblRiassunto")->text(), "");
    EXPECT_FALSE(Trova<QLabel>(&s, "LblBarra")->text().contains("verificat"));
    const auto* chart = Trova<VistaGrafico>(&s, "Grafico");
    EXPECT_TRUE(QTest::qWaitFor([chart] { return !chart->Dati().avviso.empty(); })) << "it follows";
    EXPECT_TRUE(chart->Dati().punti.empty());
    Scrive(&s, "TxtNsd", "100");
    Finisce(s);
    EXPECT_NE(s.Modello()->TestoIntero(0, ColonnaUtilizzo()), "");
    EXPECT_TRUE(QTest::qWaitFor([chart] { return !chart->Dati().punti.empty(); }));
    EXPECT_NE(Trova<QLabel>(&s, "LblRiassunto")->text(), "");
}

TEST_F(FrmSceltaTest, EveryMainScreenHasTheEntry) {
    SchermoSezione& main = Avvia();
    for (const char* name : {"frmSaldati", "frmSaldatiAsimm", "frmSagomiU", "frmSagomiL"}) {
        NavigaSchermi::Unico().Apre(QString::fromLatin1(name), main);
        Trova<QAction>(&Aperto(name), "mnuScelta")->trigger();
        Schermo& s = Aperto("FrmScelta");
        EXPECT_EQ(s.origine, &Aperto(name));
        s.close();
        NavigaSchermi::Unico().Passa(main, &Aperto(name));
    }
}

TEST_F(FrmSceltaTest, TheTableHasTheRowsOfTheSweepTheLightestThatHoldsFirst) {
    FrmScelta& s = Apre();
    Scrive(&s, "TxtM1_0", "40");
    Finisce(s);
    std::vector<std::string> messages;
    auto rows = Valuta(s.Scelta().Sagomi(), s.RichiestaInForza(), {}, messages);
    OrdinaPerPeso(rows);
    ASSERT_EQ(s.Modello()->rowCount(), static_cast<int>(rows.size()));
    for (int i = 0; i < 300; ++i)
        EXPECT_EQ(s.Modello()->Posti()[static_cast<std::size_t>(i)],
                  rows[static_cast<std::size_t>(i)].indice);
    EXPECT_EQ(InMano(s).indice, rows.front().indice) << "in hand as long as the user has chosen none";
    EXPECT_TRUE(Trova<QLabel>(&s, "LblRiassunto")->text().contains(NomeInMano(s)));
}

TEST_F(FrmSceltaTest, TheRowThatTheUserHasChosenStaysInHand) {
    FrmScelta& s = Apre();
    ASSERT_TRUE(s.Modello()->VaiA(Posto(s, "HEA 200")));
    Scrive(&s, "TxtM1_0", "40");
    Finisce(s);
    EXPECT_EQ(NomeInMano(s), "HEA 200");
    EXPECT_EQ(Trova<GrigliaCatalogo>(&s, "DBGrid1")->currentIndex().row(), s.Modello()->RigaInMano());
}

TEST_F(FrmSceltaTest, ASecondClickOnAHeadingTurnsTheOrderAThirdEndsIt) {
    FrmScelta& s = Apre();
    auto* table = Trova<GrigliaCatalogo>(&s, "DBGrid1");
    const auto first = [&] { return s.Modello()->TestoIntero(0, 0); };
    const QString lightest = first();
    emit table->ordineChiesto(2);
    const QString thinnest = first();
    emit table->ordineChiesto(2);
    EXPECT_NE(first(), thinnest);
    EXPECT_GT(s.Scelta().Riga(s.Modello()->Posti()[0]).g, 1000);
    emit table->ordineChiesto(2);
    EXPECT_EQ(first(), lightest);
}

TEST_F(FrmSceltaTest, OnlyThoseThatHoldFamiliesAndLimits) {
    FrmScelta& s = Apre();
    Preme(&s, "ChkSoloVerificati");
    for (const std::uint32_t place : s.Modello()->Posti())
        ASSERT_TRUE(s.Scelta().Riga(place).verificato);
    Preme(&s, "ChkTutte"); // none
    EXPECT_EQ(s.Modello()->rowCount(), 0);
    EXPECT_FALSE(Trova<QPushButton>(&s, "CmdPrendi")->isEnabled());
    for (auto* box : s.findChildren<QCheckBox*>())
        if (box->text() == "HEB")
            box->click();
    Scrive(&s, "TxtHMax", "300");
    Finisce(s);
    for (const std::uint32_t place : s.Modello()->Posti()) {
        EXPECT_EQ(s.Scelta().Sagomi()[place].famiglia, "HEB");
        EXPECT_LE(s.Scelta().Riga(place).h, 300);
    }
}

TEST_F(FrmSceltaTest, AClickOnAMarkChoosesItsRow) {
    FrmScelta& s = Apre();
    auto* chart = Trova<VistaGrafico>(&s, "Grafico");
    ASSERT_FALSE(chart->Dati().fronte.empty());
    const std::uint32_t in = chart->Dati().fronte.front();
    ASSERT_TRUE(s.Modello()->VaiA(Posto(s, "HEM 300")));
    QTest::mouseClick(chart, Qt::LeftButton, {}, chart->DoveLaMarca(in).toPoint());
    EXPECT_EQ(InMano(s).indice, chart->Dati().punti[in].posto);
}

TEST_F(FrmSceltaTest, EntriesThatCannotBeEmptyTheResults) {
    FrmScelta& s = Apre();
    auto* box = Trova<QLineEdit>(&s, "Txt_L0_0");
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "-1");
    EXPECT_TRUE(registratore.testi.empty()) << "while the user types nothing speaks";
    EXPECT_EQ(s.Modello()->data(s.Modello()->index(0, ColonnaUtilizzo()), Qt::DisplayRole).toString(), "");
    EXPECT_EQ(s.Modello()->TestoIntero(0, ColonnaUtilizzo()), "");
    EXPECT_EQ(Trova<QLabel>(&s, "LblRiassunto")->text(), "");
    EXPECT_TRUE(s.Modello()->Leggeri().empty());
    for (const char* command : {"CmdPrendi", "CmdConfronta", "CmdCopia", "CmdStampa", "CmdEsporta"})
        EXPECT_FALSE(Trova<QPushButton>(&s, command)->isEnabled()) << command;
    const int rows = s.Modello()->rowCount();
    emit Trova<GrigliaCatalogo>(&s, "DBGrid1")->ordineChiesto(2);
    Trova<QCheckBox>(&s, "ChkSoloVerificati")->setChecked(true);
    EXPECT_EQ(s.Modello()->rowCount(), rows) << "the names, and the row in hand, stay";
    Trova<QCheckBox>(&s, "ChkSoloVerificati")->setChecked(false);
    box->selectAll();
    QTest::keyClicks(box, "4");
    Finisce(s);
    EXPECT_NE(s.Modello()->TestoIntero(0, ColonnaUtilizzo()), "");
}

TEST_F(FrmSceltaTest, TheSectionInUseIsNotTouched) {
    FrmScelta& s = Apre();
    const SezioneDoppioT* before = &Sezione();
    const double N = before->NSd;
    Scrive(&s, "TxtNsd", "900");
    Scrive(&s, "TxtM1_0", "33");
    Finisce(s);
    EXPECT_EQ(&Sezione(), before);
    EXPECT_EQ(double(Sezione().NSd), N);
    EXPECT_EQ(double(Sezione().Mysd), 0);
}

/// The name of a rolled section, or none for a welded one.
class PresaTest : public FrmSceltaTest, public testing::WithParamInterface<const char*> {
protected:
    static std::uint32_t Saldata(const FrmScelta& s) {
        for (const std::uint32_t place : s.Modello()->Posti())
            if (s.Scelta().Sagomi()[place].schermo == "frmSaldati")
                return place;
        throw std::out_of_range("no welded section");
    }
};

TEST_P(PresaTest, ATakenRowShowsTheSameValuesInTheDetails) {
    FrmScelta& s = Apre();
    ScriveAzioni(s);
    ASSERT_TRUE(s.Modello()->VaiA(GetParam() == nullptr ? Saldata(s) : Posto(s, GetParam())));
    const RigaScelta row = InMano(s);
    const std::string kind = s.Scelta().Sagomi()[row.indice].schermo;
    const QString name = NomeInMano(s);
    s.Prende();
    EXPECT_FALSE(s.isVisible());
    auto& main = dynamic_cast<SchermoSezione&>(Aperto(kind.c_str()));
    EXPECT_EQ(main.TxtProf[0]->text(), name);
    EXPECT_EQ(Testo(&main, "TxtNsd"), "250");
    Preme(&main, "Command1");
    auto& member = Aperto("FrmPresFless");
    EXPECT_NEAR(GiudicaInstabilita(Sezione()).utilizzo, row.membratura, 1e-6);
    Preme(&member, "LblFlessTors");
    EXPECT_NEAR(GiudicaFlessoTorsionale(Sezione()).utilizzo, row.svergolamento, 1e-6);
    EXPECT_NEAR(Sezione().MbRd, row.MbRd, 1e-6 * row.MbRd);
    Preme(&Aperto("FrmMsverg"), "LblVerifiche");
    EXPECT_NEAR(GiudicaResistenza(Sezione()).utilizzo, row.sezione, 1e-6);
    for (const char* open : {"FrmVerifiche", "FrmMsverg", "FrmPresFless"})
        Aperto(open).close();
    Preme(&main, "Command2");
    EXPECT_EQ(Testo(&Aperto("FrmMsverg"), "Txt_k"), Locale("0.7")) << "the choice's, not free ends";
    EXPECT_NEAR(Sezione().MbRd, row.MbRd, 1e-6 * row.MbRd);
    Aperto("FrmMsverg").close();
    main.Data1->MoveTo(main.Data1->Recordset().RigaCorrente() == 0 ? 1 : 0);
    EXPECT_FALSE(main.valoriScelti) << "another row has none of them";
}

INSTANTIATE_TEST_SUITE_P(Sagomi, PresaTest, testing::Values("HEA 240", "IPE 500", nullptr),
                         [](const auto& i) { return "n" + std::to_string(i.index); });

TEST_F(FrmSceltaTest, DetailsThatStandOpenShowTheTakenRow) {
    SchermoSezione& main = Avvia();
    Preme(&main, "Command1");
    Scrive(&Aperto("FrmPresFless"), "TxtM1_0", "11");
    Preme(&Aperto("FrmPresFless"), "LblFlessTors");
    for (const auto& [box, text] : {std::pair{"Txt_L", "7"}, {"Txt_k", "0.9"}, {"TxtMysd", "33"}})
        Scrive(&Aperto("FrmMsverg"), box, text);
    Preme(&Aperto("FrmMsverg"), "LblVerifiche");
    Scrive(&Aperto("FrmVerifiche"), "TxtMysd", "22");
    FrmScelta& s = ApreDa(main);
    ScriveAzioni(s);
    ASSERT_TRUE(s.Modello()->VaiA(Posto(s, "HEA 240")));
    const RigaScelta row = InMano(s);
    s.Prende();
    EXPECT_EQ(Testo(&Aperto("FrmVerifiche"), "TxtMysd"), "40");
    EXPECT_EQ(Testo(&Aperto("FrmVerifiche"), "TxtMzsd"), "5");
    EXPECT_EQ(Testo(&Aperto("FrmPresFless"), "TxtM2_0"), "-15");
    for (const auto& [box, text] : {std::pair{"Txt_k", "0.7"},
                                    {"Txt_C1", "1.5"},
                                    {"Txt_C2", "0.4"},
                                    {"Txt_Zg", "90"},
                                    {"Txt_L", "3"},
                                    {"TxtMysd", "40"}})
        EXPECT_EQ(Testo(&Aperto("FrmMsverg"), box), Locale(text)) << box;
    ProvaUtilizzo("FrmVerifiche", row.sezione);
    ProvaUtilizzo("FrmPresFless", row.membratura);
    ProvaUtilizzo("FrmMsverg", row.svergolamento);
    Scrive(&Aperto("FrmVerifiche"), "TxtMysd", "10");
    Scrive(&main, "TxtNsd", "260");
    EXPECT_EQ(Testo(&Aperto("FrmVerifiche"), "TxtMysd"), "10") << "the user's from now on";
}

TEST_F(FrmSceltaTest, AMemberThatIsHeldAllAlongHasNoLengthInItsDetail) {
    FrmScelta& s = Apre();
    ScriveAzioni(s);
    Scrive(&s, "Txt_L", "0");
    Finisce(s);
    ASSERT_TRUE(s.Modello()->VaiA(Posto(s, "HEA 240")));
    const RigaScelta row = InMano(s);
    EXPECT_TRUE(std::isfinite(row.svergolamento));
    SchermoSezione& main = dynamic_cast<SchermoSezione&>(*s.origine);
    s.Prende();
    Preme(&main, "Command2");
    EXPECT_EQ(Testo(&Aperto("FrmMsverg"), "Txt_L"), "0");
    ProvaUtilizzo("FrmMsverg", row.svergolamento);
}

TEST_F(FrmSceltaTest, WithoutALengthNeitherRowNorOpenDetailHasAVerdict) {
    SchermoSezione& main = Avvia();
    Preme(&main, "Command2");
    Scrive(&Aperto("FrmMsverg"), "Txt_L", "7");
    FrmScelta& s = ApreDa(main, "250", "5", "0");
    Scrive(&s, "TxtM1_0", "40");
    Finisce(s);
    ASSERT_TRUE(s.Modello()->VaiA(Posto(s, "HEA 240")));
    EXPECT_TRUE(std::isnan(InMano(s).svergolamento));
    s.Prende();
    EXPECT_EQ(Testo(&Aperto("FrmMsverg"), "Txt_L"), "");
    EXPECT_EQ(Scritta(&Aperto("FrmMsverg"), "LblUtilizzo"), "");
}

TEST_F(FrmSceltaTest, ASectionOfTheUsersWithDimensionsOnlyHasWhatFollowsFromThem) {
    FrmScelta& s = Apre();
    ScriveSagomoUtente();
    s.AllAttivazione(); // the workbook is another one now
    Finisce(s);
    ASSERT_TRUE(s.Modello()->VaiA(Posto(s, "MIO 400")));
    const RigaScelta row = InMano(s);
    // 2 200 14 + 372 8 + four throats of 5 mm: (4 - pi) 5^2 of round fillets to 2 5^2 of welds
    EXPECT_NEAR(row.A, 8576, 51);
    EXPECT_NEAR(row.g, row.A * 7850e-6, 0.01);
    EXPECT_TRUE(row.verificato) << row.motivo;
    s.Prende();
    auto& main = dynamic_cast<SchermoSezione&>(Aperto("frmSaldati"));
    EXPECT_EQ(main.TxtProf[0]->text(), "MIO 400");
    EXPECT_NEAR(Sezione().Area, row.A, 1e-3);
    EXPECT_NEAR(Sezione().NbzRd, row.NbzRd, 1e-6 * row.NbzRd);
}

TEST_F(FrmSceltaTest, AnotherCodeComputesAnew) {
    FrmScelta& s = Apre();
    ASSERT_TRUE(s.Modello()->VaiA(Posto(s, "HEA 200")));
    const double before = InMano(s).NplRd;
    const double factor = GammaM0;
    Normativa = Normativa == normativaEC3 ? normativaNTC : normativaEC3;
    ImpostaGamma();
    ASSERT_NE(double(GammaM0), factor);
    dynamic_cast<SchermoSezione&>(*s.origine).DatiRisultati();
    Finisce(s);
    EXPECT_NEAR(InMano(s).NplRd, before * factor / GammaM0, 1e-6 * before);
}

TEST_F(FrmSceltaTest, SelectedSectionsStaySelectedInAnotherOrder) {
    FrmScelta& s = Apre();
    auto* table = Trova<GrigliaCatalogo>(&s, "DBGrid1");
    const auto names = [&] {
        QStringList some;
        for (const QModelIndex& row : table->selectionModel()->selectedRows())
            some << row.data().toString();
        some.sort();
        return some;
    };
    ASSERT_TRUE(s.Modello()->VaiA(Posto(s, "HEA 200")));
    for (const char* name : {"HEB 300", "IPE 400"}) {
        const auto shown = s.Modello()->Posti();
        const auto at = std::ranges::find(shown, Posto(s, name)) - shown.begin();
        table->selectionModel()->select(s.Modello()->index(static_cast<int>(at), 0),
                                        QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    const QStringList all{"HEA 200", "HEB 300", "IPE 400"};
    ASSERT_EQ(names(), all);
    emit table->ordineChiesto(0);
    EXPECT_EQ(names(), all);
    Scrive(&s, "TxtM1_0", "70");
    Finisce(s);
    EXPECT_EQ(names(), all);
}

TEST_F(FrmSceltaTest, AChannelInAPairIsTakenAsAPair) {
    FrmScelta& s = Apre("400", "3", "3");
    Preme(&s, "chkDoppi");
    Scrive(&s, "txtDoppi", "10");
    Finisce(s);
    ASSERT_TRUE(s.Modello()->VaiA(Posto(s, "UPN 200")));
    const RigaScelta row = InMano(s);
    EXPECT_TRUE(row.doppio);
    s.Prende();
    auto& main = dynamic_cast<SchermoSezione&>(Aperto("frmSagomiU"));
    EXPECT_EQ(main.TxtProf[0]->text(), "UPN 200");
    EXPECT_TRUE(Trova<QCheckBox>(&main, "chkDoppi")->isChecked());
    const auto& pair = *std::get<std::shared_ptr<SezioneSagomoU>>(SezioneCorrente);
    EXPECT_NEAR(pair.NbyRd, row.NbyRd, 1e-6 * row.NbyRd);
    EXPECT_NEAR(pair.NbzRd, row.NbzRd, 1e-6 * row.NbzRd);
}

TEST_F(FrmSceltaTest, RowsStandSideBySide) {
    FrmScelta& s = Apre();
    Preme(&s, "CmdConfronta");
    auto& compared = Aperto("FrmConfronto");
    auto* table = Trova<QTableWidget>(&compared, "Tabella");
    EXPECT_EQ(table->columnCount(), 8) << "names, four sections, three differences";
    EXPECT_EQ(table->horizontalHeaderItem(1)->text(), NomeInMano(s));
    Preme(&compared, "CmdCopia");
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(NomeInMano(s)));
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->html().contains("<td>"));
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasImage());
}

TEST_F(FrmSceltaTest, OfALongerSelectionTheComparisonSaysWhatItShows) {
    FrmScelta& s = Apre();
    const auto select = [&s](int rows) {
        auto* table = Trova<GrigliaCatalogo>(&s, "DBGrid1");
        table->selectionModel()->select(
            QItemSelection(s.Modello()->index(0, 0), s.Modello()->index(rows - 1, 0)),
            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        Preme(&s, "CmdConfronta");
        return Trova<QLabel>(&Aperto("FrmConfronto"), "LblNote")->text();
    };
    EXPECT_EQ(select(6), "i primi quattro di 6");
    EXPECT_EQ(Trova<QTableWidget>(&Aperto("FrmConfronto"), "Tabella")->columnCount(), 8);
    EXPECT_EQ(select(3), "");
    Scrive(&s, "TxtM1_0", "30");
    Scrive(&s, "Txt_L0_1", "");
    EXPECT_EQ(Trova<QLabel>(&Aperto("FrmConfronto"), "LblNote")->text(), nienteL);
}

TEST_F(FrmSceltaTest, WithoutALengthTheStatusLineSaysThatLateralBucklingIsLeftOut) {
    FrmScelta& s = Apre("", "5", "");
    const auto told = [&s] { return Trova<QLabel>(&s, "LblBarra")->text(); };
    EXPECT_FALSE(told().contains(nienteL));
    Scrive(&s, "TxtM1_0", "30");
    Finisce(s);
    EXPECT_TRUE(told().contains(nienteL)) << told().toStdString();
    Scrive(&s, "Txt_L", "3");
    Finisce(s);
    EXPECT_FALSE(told().contains(nienteL)) << told().toStdString();
}

TEST_F(FrmSceltaTest, RowsSideBySideFollowTheForces) {
    FrmScelta& s = Apre();
    Preme(&s, "CmdConfronta");
    auto* table = Trova<QTableWidget>(&Aperto("FrmConfronto"), "Tabella");
    const auto texts = [table] {
        QStringList all;
        for (int row = 0; row < table->rowCount(); ++row)
            all << table->item(row, 1)->text();
        return all;
    };
    const QStringList before = texts();
    const QString name = table->horizontalHeaderItem(1)->text();
    Scrive(&s, "TxtNsd", "125");
    EXPECT_EQ(table->horizontalHeaderItem(1)->text(), name);
    EXPECT_NE(texts(), before);
    Scrive(&s, "TxtNsd", "250");
    EXPECT_EQ(texts(), before);
    auto* box = Trova<QLineEdit>(&s, "Txt_L0_0");
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "-1");
    EXPECT_EQ(table->rowCount(), 0) << "empty, not old";
}

TEST_F(FrmSceltaTest, TheTableIsCopiedAndExported) {
    FrmScelta& s = Apre();
    Preme(&s, "CmdCopia");
    const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
    EXPECT_TRUE(lines.value(0).startsWith("sagomo\tfamiglia\tg (kg/m)"));
    EXPECT_TRUE(lines.value(1).startsWith(NomeInMano(s)));
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->html().contains("<th>sagomo</th>"));
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasImage());
    const QString file = QString::fromStdString((PathProgramma / "prova.csv").string());
    ImpostaSceltaFile(
        [&file](QWidget*, std::string_view, const QString&, int, const QString&) { return file; });
    Preme(&s, "CmdEsporta");
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(written.readAll());
    EXPECT_EQ(text.count(u'\n'), s.Modello()->rowCount() + 1);
    EXPECT_TRUE(text.contains(NomeInMano(s)));
}

// The dialog itself: a name without an ending, the type of programs.
TEST_F(FrmSceltaTest, AnExportHasTheEndingAndTheFormatOfTheTypeThatIsChosen) {
    FrmScelta& s = Apre();
    const QString name = QString::fromStdString((PathProgramma / "vecchia").string());
    QStringList types;
    QTimer::singleShot(0, &s, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* type = dialog->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        for (int i = 0; i < type->count(); ++i)
            types << type->itemText(i);
        QTest::keyClick(type, Qt::Key_Down);
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    Preme(&s, "CmdEsporta");
    EXPECT_EQ(types, (QStringList{"CSV (*.csv)", "JSON (*.json)", "Testo (*.txt)"}));
    QFile written(name + QStringLiteral(".json"));
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QJsonDocument::fromJson(written.readAll()).object().contains("righe"));
}

TEST_F(FrmSceltaTest, AnExportThatCannotBeWrittenIsToldAndTheTableStays) {
    FrmScelta& s = Apre();
    const int rows = s.Modello()->rowCount();
    ConOgniGuasto(PathProgramma, "scelta.csv", [&](const std::filesystem::path& file, const char* reason) {
        ImpostaSceltaFile([&](QWidget*, std::string_view, const QString&, int, const QString&) {
            return QString::fromStdString(file.string());
        });
        registratore.testi.clear();
        Preme(&s, "CmdEsporta");
        ASSERT_EQ(registratore.testi.size(), 1U) << file;
        EXPECT_NE(registratore.testi[0].find(file.string()), std::string::npos) << registratore.testi[0];
        EXPECT_NE(registratore.testi[0].find(reason), std::string::npos) << registratore.testi[0];
    });
    EXPECT_EQ(s.Modello()->rowCount(), rows);
}

TEST_F(FrmSceltaTest, TheTableIsPrintedOnPages) {
    FrmScelta& s = Apre();
    const QString file = QString::fromStdString((PathProgramma / "tabella.pdf").string());
    ImpostaSceltaStampante([&file](QPrinter& printer, QWidget*) {
        printer.setOutputFileName(file);
        return true;
    });
    Preme(&s, "CmdStampa");
    QFile printed(file);
    ASSERT_TRUE(printed.open(QIODevice::ReadOnly));
    const QByteArray pages = printed.readAll();
    EXPECT_TRUE(pages.startsWith("%PDF"));
    EXPECT_LT(pages.count("/Type /Page\n"), s.Modello()->rowCount() / 80) << "a line a row: above 100 on A4";
    if (const QString folder = qEnvironmentVariable("SAGOMI_FIGURE"); !folder.isEmpty())
        QFile::copy(file, folder + QStringLiteral("/tabella.pdf"));
}

TEST_F(FrmSceltaTest, ArrowsMoveAndLettersSearchFromAnywhere) {
    FrmScelta& s = Apre();
    auto* box = Trova<QLineEdit>(&s, "TxtM1_0");
    box->setFocus();
    const int before = s.Modello()->RigaInMano();
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(s.Modello()->RigaInMano(), before + 1);
    auto* table = Trova<GrigliaCatalogo>(&s, "DBGrid1");
    table->setFocus();
    QTest::keyClicks(table, "hea 300");
    EXPECT_EQ(NomeInMano(s), "HEA 300");
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_FALSE(s.isVisible());
    EXPECT_EQ(dynamic_cast<SchermoSezione&>(Aperto("frmDoppioT")).TxtProf[0]->text(), "HEA 300");
}

TEST_F(FrmSceltaTest, CtrlEnterTakesTheRowFromAnEntry) {
    FrmScelta& s = Apre();
    auto* box = Trova<QLineEdit>(&s, "TxtM1_0");
    box->setFocus();
    const QString name = NomeInMano(s);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_TRUE(s.isVisible()) << "Enter alone goes on";
    QTest::keyClick(box, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(s.isVisible());
    std::uint32_t place = 0;
    ASSERT_TRUE(s.Modello()->InMano(place));
    const std::string kind = s.Scelta().Sagomi()[place].schermo;
    EXPECT_EQ(dynamic_cast<SchermoSezione&>(Aperto(kind.c_str())).TxtProf[0]->text(), name);
}

/// The catalogue with two families of 10,000 rows each.
void AllungaCatalogo() {
    constexpr std::size_t righe = 10000;
    CartellaDati workbook = CatalogoDaCsv(SAGOMI_CATALOGUE_DATA);
    for (Foglio& sheet : workbook.fogli)
        if (sheet.nome == "IPE" || sheet.nome == "HEA")
            for (std::size_t r = 1, own = sheet.righe.size() - 1; sheet.righe.size() <= righe; ++r) {
                auto row = sheet.righe[1 + (r - 1) % own];
                row[0].valore = TestoDi(row[0].valore) + " " + std::to_string(r);
                sheet.righe.push_back(std::move(row));
            }
    const auto file = PathProgramma / "Sagomi.xls";
    std::filesystem::remove(file);
    ScriveXls(workbook, file);
}

TEST_F(FrmSceltaTest, ALongCatalogueIsComputedBehindTheTableWhatIsInSightFirst) {
    AllungaCatalogo();
    FrmScelta& s = Apre();
    ASSERT_GT(s.Modello()->rowCount(), 20000);
    Scrive(&s, "TxtM1_0", "77");
    EXPECT_FALSE(s.Scelta().Finita()) << "the key has been answered before all is done";
    EXPECT_TRUE(Trova<QProgressBar>(&s, "Avanzamento")->isVisible());
    for (std::size_t row = 0; row < 5; ++row)
        EXPECT_TRUE(s.Scelta().Valida(s.Modello()->Posti()[row])) << "in sight";
    const auto last = s.Modello()->rowCount() - 1;
    EXPECT_EQ(s.Modello()->TestoIntero(last, ColonnaUtilizzo()), "") << "empty, not old";
    EXPECT_EQ(Trova<QLabel>(&s, "LblRiassunto")->text(), "");
    EXPECT_FALSE(Trova<QLabel>(&s, "LblBarra")->text().contains("verificat"));
    EXPECT_TRUE(s.Modello()->Leggeri().empty());
    EXPECT_TRUE(Trova<VistaGrafico>(&s, "Grafico")->Dati().punti.empty());
    EXPECT_FALSE(Trova<QPushButton>(&s, "CmdEsporta")->isEnabled());
    Scrive(&s, "TxtM1_0", "78"); // another key takes its place
    Finisce(s);
    EXPECT_EQ(s.Scelta().RichiestaInForza().y.M1, 78e6);
    EXPECT_NE(s.Modello()->TestoIntero(last, ColonnaUtilizzo()), "");
    EXPECT_NE(Trova<QLabel>(&s, "LblRiassunto")->text(), "");
    EXPECT_TRUE(Trova<QPushButton>(&s, "CmdEsporta")->isEnabled());
}

} // namespace
