// The user's own workbook on the screens of welded sections.

#include <QAction>
#include <QGroupBox>

#include <fstream>

#include "catalogue/LettoreXls.h"
#include "catalogue/ScritturaRighe.h"
#include "frame/ui/EtichettaRisultato.h"
#include "screens/Comandi.h"
#include "screens/frmSaldati.h"
#include "screens/frmSaldatiAsimm.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

using S = std::string;

constexpr const char* simmetrico = "'DoppioT Simmetrico'$";
constexpr const char* asimmetrico = "'DoppioT Asimmetrico'$";

class SagomiUtenteTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        InstallaCartellaUtente(File());
    }

    static std::filesystem::path File() { return PathProgramma / "SagomiUtente.xls"; }

    /// What another program does with the workbook.
    static void Scrive(const char* tabella, const std::vector<std::vector<Valore>>& righe) {
        std::vector<RigaScritta> scritte;
        for (const auto& riga : righe)
            scritte.push_back({{}, riga});
        ScriveRighe(File(), ImprontaDi(File()), tabella, scritte);
    }
    static Valore Campo(std::size_t foglio, std::size_t riga, std::size_t colonna) {
        return LeggeXls(File()).fogli.at(foglio).Legge(riga, colonna);
    }
    static std::size_t Righe(std::size_t foglio) {
        return LeggeXls(File()).fogli.at(foglio).righe.size() - 1;
    }

    /// A screen of welded sections, with the user's sheet in force.
    template <typename T> T& Apre(const char* voce) {
        Trova<QAction>(&Avvia(), voce)->trigger();
        auto& s = NavigaSchermi::Unico().Prende<T>();
        s.ChkTipoUtente->click();
        return s;
    }
    frmSaldati& Simmetrici() { return Apre<frmSaldati>("mnuTipoSaldati"); }
    frmSaldatiAsimm& Asimmetrici() { return Apre<frmSaldatiAsimm>("mnuTipoSaldatiAsimm"); }

    static void Digita(const SchermoSaldati& s, std::initializer_list<const char*> testi) {
        int i = 0;
        for (const char* testo : testi)
            s.TxtProfUtente[i++]->setText(QString::fromStdString(Locale(testo)));
    }
    static void Aggiunge(const SchermoSaldati& s, std::initializer_list<const char*> testi) {
        s.cmdUtente[0]->click();
        Digita(s, testi);
        s.cmdUtenteEdita[0]->click();
    }
};

TEST_F(SagomiUtenteTest, BothScreensHaveTheirControls) {
    auto& s = Simmetrici();
    EXPECT_EQ(s.ChkTipoUtente->toolTip(),
              "Sagomi dal file SagomiUtente.xls - Foglio DoppioT Simmetrico - Cliccare "
              "nuovamente per tornare ai sagomi standard.");
    EXPECT_EQ(Titolo(&s, "frUtenteComandi"), "Edita Sagomo Utente");
    EXPECT_EQ(Titolo(&s, "frUtenteEdita"), "Dati Sagomo Utente");
    const char* commands[] = {"Aggiungi", "Modifica", "Elimina"};
    const char* tips[] = {"Aggiunge un nuovo sagomo", "Modifica il sagomo selezionato",
                          "Elimina il sagomo selezionato"};
    const char* ends[] = {"Aggiungi Nuovo Sagomo", "Annulla/Esci", "Inserisci Modifiche"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(s.cmdUtente[i]->text(), commands[i]);
        EXPECT_EQ(s.cmdUtente[i]->toolTip(), tips[i]);
        EXPECT_EQ(s.cmdUtenteEdita[i]->text(), ends[i]);
    }
    EXPECT_EQ(s.TxtProfUtente.size(), 6);
    auto& other = NavigaSchermi::Unico().Prende<frmSaldatiAsimm>();
    EXPECT_EQ(other.TxtProfUtente.size(), 8);
    EXPECT_TRUE(other.ChkTipoUtente->toolTip().contains("Foglio DoppioT Asimmetrico"));
}

TEST_F(SagomiUtenteTest, TheSheetTakesThePlaceOfTheFamilies) {
    Scrive(simmetrico, {{S("S1"), {}, 300.0, 200.0, 10.0, 20.0}, {S("S2"), {}, 400.0, 200.0, 10.0, 20.0}});
    auto& s = Simmetrici();
    EXPECT_TRUE(s.TipoUtente);
    for (const QCheckBox* box : s.ChkTipo)
        EXPECT_FALSE(box->isEnabled());
    EXPECT_TRUE(s.frUtenteComandi->isVisible());
    EXPECT_EQ(s.Data1->Recordset().DatabaseName(), File());
    EXPECT_EQ(s.Data1->RecordSource(), "SELECT * FROM ['DoppioT Simmetrico'$]");
    EXPECT_EQ(s.Data1->Recordset().Righe(), 2);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "S1");
    EXPECT_EQ(Trova<QLabel>(&s, "LblBarra")->text(), "2 sagomi di SagomiUtente.xls");
    EXPECT_EQ(Testo(&s, "TxtClasseCompressione"), "1");
    EXPECT_TRUE(registratore.testi.empty());

    s.OptionOrdina[1]->click();
    EXPECT_EQ(s.Data1->RecordSource(), "SELECT * FROM ['DoppioT Simmetrico'$] ORDER BY [Iy (cm4)]");
    s.Data1->MoveLast();
    s.ChkTipoUtente->click();
    EXPECT_FALSE(s.TipoUtente);
    EXPECT_TRUE(s.ChkTipo[0]->isEnabled());
    EXPECT_FALSE(s.frUtenteComandi->isVisible());
    EXPECT_EQ(s.Data1->Recordset().DatabaseName(), PathProgramma / "Sagomi.xls");
    EXPECT_EQ(s.Data1->RecordSource(), "SELECT * FROM [ISE$] ORDER BY [Iy (cm4)]");
    EXPECT_EQ(s.Data1->Recordset().RigaCorrente(), 0);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "ISE 300x37");
}

TEST_F(SagomiUtenteTest, ALongNameLeavesTheColumnsBehindItInSight) {
    const std::string name(60, 'W');
    Scrive(simmetrico, {{name, {}, 300.0, 200.0, 10.0, 20.0}});
    auto& s = Simmetrici();
    const int widest = s.DBGrid1->columnWidth(0);
    EXPECT_LT(widest, s.DBGrid1->fontMetrics().horizontalAdvance(QString::fromStdString(name)));
    EXPECT_LT(widest, s.DBGrid1->viewport()->width() / 2);
}

// A row that moved would refill the boxes with its own plates.
TEST_F(SagomiUtenteTest, AnArrowAtTheBoxesLeavesTheRowAndWhatIsTyped) {
    Scrive(simmetrico, {{S("S1"), {}, 300.0, 200.0, 10.0, 20.0}, {S("S2"), {}, 400.0, 200.0, 10.0, 20.0}});
    auto& s = Simmetrici();
    s.cmdUtente[1]->click();
    s.TxtProfUtente[1]->setText("350");
    s.TxtProfUtente[1]->setFocus();
    QTest::keyClick(s.TxtProfUtente[1], Qt::Key_Down);
    EXPECT_EQ(s.Data1->Recordset().RigaCorrente(), 0);
    EXPECT_EQ(s.TxtProfUtente[1]->text(), "350");
    EXPECT_EQ(s.focusWidget(), s.TxtProfUtente[2]) << "to the next box";
    QTest::keyClick(s.TxtProfUtente[2], Qt::Key_Up);
    EXPECT_EQ(s.focusWidget(), s.TxtProfUtente[1]);
    s.cmdUtenteEdita[1]->setFocus();
    QTest::keyClick(s.cmdUtenteEdita[1], Qt::Key_Down);
    EXPECT_EQ(s.Data1->Recordset().RigaCorrente(), 1) << "elsewhere the row goes on";
}

TEST_F(SagomiUtenteTest, WithoutTheShippedWorkbookTheUsersStaysInForce) {
    Scrive(simmetrico, {{S("S1"), {}, 300.0, 200.0, 10.0, 20.0}});
    auto& s = Simmetrici();
    std::filesystem::remove(PathProgramma / "Sagomi.xls");
    s.ChkTipoUtente->click();
    EXPECT_EQ(registratore.testi.size(), 1U) << "told once";
    EXPECT_TRUE(s.TipoUtente);
    EXPECT_TRUE(s.ChkTipoUtente->isChecked());
    EXPECT_FALSE(s.ChkTipo[0]->isEnabled());
    EXPECT_EQ(s.Data1->Recordset().DatabaseName(), File());
    EXPECT_EQ(s.TabellaOrdine, "['DoppioT Simmetrico'$]");
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "S1");
}

TEST_F(SagomiUtenteTest, OneFamilyIsSortedAlsoWhenItIsNotTicked) {
    auto& s = Asimmetrici();
    EXPECT_EQ(s.TabellaOrdine, "['DoppioT Asimmetrico'$]");
    s.ChkTipoUtente->click();
    EXPECT_EQ(s.TabellaOrdine, "[HSD$]");
    s.ChkTipo[0]->setChecked(false);
    s.OptionOrdina[2]->click();
    EXPECT_EQ(s.Data1->RecordSource(), "SELECT * FROM [HSD$] ORDER BY [g (Kg/m)]");
    Preme(&s, "AggiornaTabella");
    EXPECT_EQ(registratore.testi.back(), "ERRORE !! Non è stato selezionato nessun tipo di sagomo");
}

// 300 x 200 x 10 x 20, fillets of 6: the plates give 106 cm2 and the fillets 4 x 0.18 = 0.72.
TEST_F(SagomiUtenteTest, ANewSectionIsTheLastRowWithAllItsValues) {
    Scrive(simmetrico, {{S("S1"), {}, 300.0, 200.0, 10.0, 20.0}});
    auto& s = Simmetrici();
    s.cmdUtente[0]->click();
    EXPECT_TRUE(s.frUtenteEdita->isVisible());
    EXPECT_FALSE(s.Frame1->isVisible());
    EXPECT_TRUE(s.cmdUtenteEdita[0]->isVisible());
    EXPECT_TRUE(s.cmdUtenteEdita[1]->isVisible());
    EXPECT_FALSE(s.cmdUtenteEdita[2]->isVisible());
    EXPECT_EQ(s.TxtProfUtente[1]->text(), "");
    Digita(s, {"Trave \"A\"", "300", "200", "10", "20", "6"});
    s.cmdUtenteEdita[0]->click();
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_FALSE(s.AggiungeSagomoUtente);
    EXPECT_EQ(Righe(0), 2U);
    EXPECT_EQ(Campo(0, 2, 0), Valore(S("Trave ''A''")));
    EXPECT_EQ(Campo(0, 2, 2), Valore(300.0));
    EXPECT_EQ(Campo(0, 2, 6), Valore(6.0));
    EXPECT_NEAR(NumeroDi(Campo(0, 2, 7)), 106.72, 1e-4);
    for (std::size_t c = 1; c < 18; ++c)
        EXPECT_GT(NumeroDi(Campo(0, 2, c)), 0) << c;
    EXPECT_EQ(s.Data1->Recordset().RigaCorrente(), 1);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "Trave ''A''");
    EXPECT_EQ(Sezione().Designation, "Trave ''A''");
    EXPECT_EQ(Testo(&s, "TxtProf_7"), Locale(" 106.7"));
    EXPECT_EQ(Testo(&s, "TxtClasseCompressione"), "1");

    s.cmdUtenteEdita[0]->click(); // the same name again is one more row
    EXPECT_EQ(Righe(0), 3U);
    EXPECT_EQ(s.Data1->Recordset().RigaCorrente(), 2);
    s.cmdUtenteEdita[1]->click();
    EXPECT_FALSE(s.frUtenteEdita->isVisible());
    EXPECT_TRUE(s.Frame1->isVisible());
}

TEST_F(SagomiUtenteTest, DifferentFlangesAreTypedBehindTheFillet) {
    auto& s = Asimmetrici();
    EXPECT_EQ(s.Data1->Recordset().Righe(), 0);
    EXPECT_EQ(Testo(&s, "TxtMcRd_0"), "");
    EXPECT_FALSE(s.cmdUtente[1]->isEnabled());
    Aggiunge(s, {"A1", "600", "300", "12", "20", "0", "250", "12"});
    const double attesi[] = {600, 300, 250, 12, 20, 12, 0};
    for (std::size_t c = 2; c < 9; ++c)
        EXPECT_EQ(Campo(1, 1, c), Valore(attesi[c - 2])) << c;
    EXPECT_TRUE(Sezione().SaldataAsimm);
    EXPECT_GT(double(Sezione().Wely), double(Sezione().WelyInf));
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "A1");
    EXPECT_TRUE(s.cmdUtente[1]->isEnabled());
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(SagomiUtenteTest, WithoutARowNothingOldStandsOnAVisibleDetail) {
    auto& s = Simmetrici();
    s.ChkTipoUtente->click(); // back to the rows of the program
    Preme(&s, "CmdPlotta");
    const auto& preview = Aperto("FrmPltSezione");
    NavigaSchermi::Unico().Apre("FrmInstabDoppioT", s);
    const auto& buckling = Aperto("FrmInstabDoppioT");
    NavigaSchermi::Unico().Apre("FrmVerifiche", s);
    const auto& check = Aperto("FrmVerifiche");
    prove::Scrive(&check, "TxtNsd", "100");
    ASSERT_NE(Scritta(&check, "Lbl_Risultato3_0"), "");
    ASSERT_NE(Scritta(&buckling, "Lbl_NbRd_0"), "");
    const auto empty = [&] {
        for (const Schermo* detail : QList<const Schermo*>{&check, &buckling})
            for (const auto* result : detail->findChildren<EtichettaRisultato*>())
                EXPECT_EQ(result->text(), "")
                    << detail->objectName().toStdString() << '.' << result->objectName().toStdString();
        for (const char* verdict : {"Lbl_Risultato3_0", "Lbl_Risultato3_1", "Lbl_Risultato4", "LblUtilizzo"})
            EXPECT_EQ(Scritta(&check, verdict), "") << verdict;
        EXPECT_EQ(Testo(&check, "Txt_Prof"), "");
    };
    s.ChkTipoUtente->click(); // a sheet without rows
    ASSERT_FALSE(s.RigaInMano());
    EXPECT_TRUE(std::holds_alternative<std::monostate>(SezioneCorrente));
    EXPECT_EQ(preview.windowTitle(), "Plotta");
    empty();
    prove::Scrive(&check, "TxtNsd", "90");
    empty();
    s.ChkTipoUtente->click();
    EXPECT_NE(Scritta(&check, "Lbl_Risultato3_0"), "");
    EXPECT_NE(Scritta(&buckling, "Lbl_NbRd_0"), "");
    EXPECT_EQ(preview.windowTitle(), "Plotta - " + s.TxtProf[0]->text());
}

TEST_F(SagomiUtenteTest, AChangeRewritesTheRowInHand) {
    auto& s = Simmetrici();
    for (const char* h : {"300", "400", "500"})
        Aggiunge(s, {"uguale", h, "200", "7.1", "20", "0"});
    s.cmdUtenteEdita[1]->click();
    s.Data1->MoveTo(1);
    s.cmdUtente[1]->click();
    EXPECT_FALSE(s.cmdUtenteEdita[0]->isVisible());
    EXPECT_TRUE(s.cmdUtenteEdita[2]->isVisible());
    EXPECT_EQ(s.TxtProfUtente[0]->text(), "uguale");
    EXPECT_EQ(s.TxtProfUtente[1]->text(), "400");
    EXPECT_EQ(s.TxtProfUtente[3]->text().toStdString(), Locale("7.1"));
    s.TxtProfUtente[1]->setText("450");
    s.cmdUtenteEdita[2]->click();
    EXPECT_EQ(s.Data1->Recordset().RigaCorrente(), 1) << "among rows of one name";
    EXPECT_EQ(Campo(0, 2, 2), Valore(450.0));
    EXPECT_EQ(Campo(0, 1, 2), Valore(300.0));
    EXPECT_EQ(Campo(0, 2, 4), Valore(7.1));
    EXPECT_EQ(double(Sezione().h), 450);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "uguale");
    s.Data1->MoveTo(2);
    EXPECT_EQ(s.TxtProfUtente[1]->text(), "500") << "the boxes show the row that they would rewrite";
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(SagomiUtenteTest, DeletingIsLeftToTheSpreadsheet) {
    auto& s = Simmetrici();
    Aggiunge(s, {"S1", "300", "200", "10", "20", "0"});
    const ImprontaFile before = ImprontaDi(File());
    s.cmdUtente[2]->click();
    ASSERT_EQ(registratore.messaggi.size(), 1U);
    EXPECT_EQ(registratore.testi[0],
              "Per eliminare un record aprire il file SagomiUtente.xls con Excel ed eliminare la riga.\r\n"
              "Si può però modificare il record.");
    EXPECT_EQ(registratore.messaggi[0].icona, Icona::Avviso);
    EXPECT_EQ(ImprontaDi(File()), before);
}

TEST_F(SagomiUtenteTest, PlatesThatMakeNoSectionAreNotWritten) {
    auto& s = Asimmetrici();
    const ImprontaFile before = ImprontaDi(File());
    const std::initializer_list<const char*> none[] = {{"A", "0", "300", "12", "20", "0", "250", "12"},
                                                       {"A", "600", "300", "12", "20", "0", "250", ""},
                                                       {"", "600", "300", "12", "20", "0", "250", "12"},
                                                       {"A", "600", "300", "-1", "20", "0", "250", "12"}};
    for (const auto& plates : none) {
        registratore.testi.clear();
        Aggiunge(s, plates);
        EXPECT_EQ(registratore.testi, std::vector<S>{"Dati non accettabili od incompleti ! Controllare"});
    }
    EXPECT_EQ(ImprontaDi(File()), before);
}

TEST_F(SagomiUtenteTest, RowsWithDimensionsOnlyAreCompletedOnOpening) {
    Scrive(simmetrico, {{S("S1"), {}, 300.0, 200.0, 10.0, 20.0, 0.0}});
    Scrive(asimmetrico, {{S("A1"), {}, 300.0, 200.0, 300.0, 10.0, 20.0, 20.0, 0.0}});
    auto& s = Simmetrici();
    EXPECT_NEAR(NumeroDi(Campo(0, 1, 7)), 106, 1e-4);
    EXPECT_EQ(Campo(1, 1, 9), Valore()) << "the other screen's sheet";
    EXPECT_EQ(Testo(&s, "TxtProf_7"), Locale(" 106"));
    Scrive(simmetrico, {{S("S2"), {}, 400.0, 200.0, 10.0, 20.0, 0.0}});
    Preme(&s, "AggiornaTabella");
    EXPECT_NEAR(NumeroDi(Campo(0, 2, 7)), 116, 1e-4) << "also when the table is read anew";
    EXPECT_EQ(s.Data1->Recordset().Righe(), 2);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(SagomiUtenteTest, AMissingWorkbookIsOneBoxAndTheTableStays) {
    std::filesystem::remove(File());
    auto& s = Simmetrici();
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_NE(registratore.testi[0].find("SagomiUtente.xls"), S::npos) << registratore.testi[0];
    EXPECT_FALSE(s.ChkTipoUtente->isChecked());
    EXPECT_FALSE(s.TipoUtente);
    EXPECT_TRUE(s.ChkTipo[0]->isEnabled());
    EXPECT_FALSE(s.frUtenteComandi->isVisible());
    EXPECT_EQ(s.Data1->Recordset().Righe(), 49);
    EXPECT_EQ(s.Data1->RecordSource(), s.SQLstring);
    Preme(&s, "AggiornaTabella");
    EXPECT_EQ(registratore.testi.size(), 1U);
}

TEST_F(SagomiUtenteTest, AWorkbookOpenElsewhereIsToldOnceAndTheTableStays) {
    auto& s = Simmetrici();
    Aggiunge(s, {"S1", "300", "200", "10", "20", "0"});
    std::ofstream(PathProgramma / ".~lock.SagomiUtente.xls#") << ",utente;";
    Aggiunge(s, {"S2", "300", "200", "10", "20", "0"});
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_NE(registratore.testi[0].find("aperto in un altro programma"), S::npos);
    EXPECT_EQ(s.Data1->Recordset().Righe(), 1);
    EXPECT_EQ(s.TxtProfUtente[0]->text(), "S2") << "what was typed stays";
    EXPECT_EQ(Sezione().Designation, "S1");
    EXPECT_FALSE(s.AggiungeSagomoUtente);
}

TEST_F(SagomiUtenteTest, AWorkbookChangedByOthersIsToldAndNotWrittenOver) {
    auto& s = Simmetrici();
    Aggiunge(s, {"S1", "300", "200", "10", "20", "0"});
    Scrive(simmetrico, {{S("altrui"), {}, 400.0, 200.0, 10.0, 20.0}});
    Aggiunge(s, {"S2", "300", "200", "10", "20", "0"});
    ASSERT_EQ(registratore.messaggi.size(), 1U);
    EXPECT_EQ(registratore.messaggi[0].bottoni, Bottoni::SiNo);
    EXPECT_EQ(s.Data1->Recordset().Righe(), 1) << "the answer was no";
    EXPECT_EQ(Campo(0, 2, 0), Valore(S("altrui")));
    EXPECT_EQ(Righe(0), 2U);
    Preme(&s, "AggiornaTabella");
    EXPECT_EQ(s.Data1->Recordset().Righe(), 2);
    s.cmdUtenteEdita[0]->click();
    EXPECT_EQ(Righe(0), 3U);
    EXPECT_EQ(registratore.testi.size(), 1U);
}

TEST_F(SagomiUtenteTest, TheTableIsReadAnewWhereTheUserWants) {
    auto& s = Simmetrici();
    Aggiunge(s, {"S1", "300", "200", "10", "20", "0"});
    s.cmdUtente[1]->click();
    s.TxtProfUtente[1]->setText("350");
    Scrive(simmetrico, {{S("altrui"), {}, 400.0, 200.0, 10.0, 20.0}});
    const Registratore yes(true);
    s.cmdUtenteEdita[2]->click();
    EXPECT_EQ(yes.messaggi.size(), 1U);
    EXPECT_EQ(s.Data1->Recordset().Righe(), 2);
    EXPECT_EQ(s.TxtProfUtente[1]->text(), "350") << "what was typed stays";
    EXPECT_EQ(Campo(0, 1, 2), Valore(300.0));
    s.cmdUtenteEdita[2]->click();
    EXPECT_EQ(Campo(0, 1, 2), Valore(350.0));
    EXPECT_EQ(Campo(0, 2, 0), Valore(S("altrui")));
}

TEST_F(SagomiUtenteTest, WhatWasTypedNeverGoesOntoAnotherRow) {
    auto& s = Simmetrici();
    Aggiunge(s, {"S1", "300", "200", "10", "20", "0"});
    s.cmdUtente[1]->click();
    s.TxtProfUtente[1]->setText("350");
    ScriveRighe(File(), ImprontaDi(File()), simmetrico, {{1, {S("altrui"), {}, 400.0, 200.0, 10.0, 20.0}}});
    const Registratore yes(true);
    s.cmdUtenteEdita[2]->click();
    EXPECT_EQ(s.TxtProfUtente[0]->text(), "altrui") << "its row is the one in hand now";
    EXPECT_EQ(s.TxtProfUtente[1]->text(), "400");
    EXPECT_EQ(Campo(0, 1, 2), Valore(400.0));
}

TEST_F(SagomiUtenteTest, HandlersAreSilentWhileARowIsWritten) {
    auto& s = Simmetrici();
    Aggiunge(s, {"S1", "300", "200", "10", "20", "0"});
    Aggiunge(s, {"S2", "400", "200", "10", "20", "0"});
    const auto before = SezioneCorrente;
    const S force = Testo(&s, "TxtNbRd_0");
    s.AggiungeSagomoUtente = true;
    s.Data1->MoveFirst();
    s.TxtNsd->setText("7");
    s.Txt_L0[0]->setText("9");
    s.Txt_fy->setText("275");
    EXPECT_EQ(SezioneCorrente, before);
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), force);
    s.AggiungeSagomoUtente = false;
}

TEST_F(SagomiUtenteTest, EnterGoesFromBoxToBoxAndToTheCommand) {
    auto& s = Simmetrici();
    s.cmdUtente[0]->click();
    s.activateWindow();
    for (int i = 0; i < 6; ++i) {
        EXPECT_TRUE(s.TxtProfUtente[i]->hasFocus() || s.focusWidget() == s.TxtProfUtente[i]) << i;
        QTest::keyClick(s.TxtProfUtente[i], Qt::Key_Return);
    }
    EXPECT_EQ(s.focusWidget(), s.cmdUtenteEdita[0]);
    s.TxtProfUtente[0]->setText("12 metri");
    QTest::keyClick(s.TxtProfUtente[0], Qt::Key_Return);
    EXPECT_EQ(s.TxtProfUtente[0]->text(), "12 metri") << "a name is no number";
}

// 1000 x 300 x 20 / 250 x 12, web 10, S235: class 3; by hand 1489 kNm above and 1096 below; shear 1163 kN of
// the two flanges as they are.
TEST_F(SagomiUtenteTest, TheLowerFibreIsToldWhereItBearsLess) {
    auto& s = Asimmetrici();
    EXPECT_TRUE(Trova<QLabel>(&s, "LblFibraInferiore")->isHidden());
    Aggiunge(s, {"A1", "1000", "300", "10", "20", "0", "250", "12"});
    EXPECT_EQ(Testo(&s, "TxtMcRd_0"), Locale(" 1,489"));
    EXPECT_EQ(Scritta(&s, "LblFibraInferiore"), Locale("fibra inferiore: 1,096 kNm"));
    EXPECT_EQ(Scritta(&s, "LblAliDiverse"), "Vpl,z delle due ali:" + Locale(" 1,163 kN"));
    Preme(&s, "LblMcRd");
    EXPECT_EQ(Scritta(&Aperto("FrmMcRd"), "LblFibraInferiore"), Locale("fibra inferiore: 1,096 kNm"));
    s.ChkTipoUtente->click();
    EXPECT_TRUE(Trova<QLabel>(&s, "LblFibraInferiore")->isHidden())
        << "HSD 500x74: the upper flange is smaller";
}

} // namespace
