#include "screens/StatoUtente.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>

#include "frame/ui/ChiudiProgramma.h"
#include "frame/ui/Collocazione.h"
#include "frame/ui/DocumentoSchermo.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class StatoUtenteTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        PostiFinestre().clear();
        CartellaStato(utente.path());
    }
    void TearDown() override {
        AmbienteSchermi::TearDown();
        CartellaStato({});
        PostiFinestre().clear();
    }
    static void Finisce() {
        ChiudiProgramma();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        PostiFinestre().clear();
    }
    QTemporaryDir utente;
};

TEST_F(StatoUtenteTest, TheFirstStartHasNothingOfIt) {
    const auto& s = Avvia();
    EXPECT_FALSE(QFile::exists(utente.filePath(QStringLiteral("stato.ini"))));
    EXPECT_TRUE(s.Txt_L0[0]->text().isEmpty() || NumeroIn(s.Txt_L0[0]) == 0);
}

TEST_F(StatoUtenteTest, TheNextStartFindsTheFilesLastUsedAgain) {
    Avvia();
    const QStringList files{QStringLiteral("/uno, \"due\".sco"), QStringLiteral("/tre.sco")};
    FileRecenti()[QStringLiteral("frmAcciaioCls")] = files;
    Finisce();
    FileRecenti().clear();
    LeggeStatoComune();
    EXPECT_EQ(FileRecenti().value(QStringLiteral("frmAcciaioCls")), files);
}

TEST_F(StatoUtenteTest, TheNextStartOpensEveryScreenWhereItWas) {
    const QList<const char*> names{"frmBulloni", "frmSaldature", "frmGiunti", "frmAcciaioCls"};
    auto& n = NavigaSchermi::Unico();
    auto& first = Avvia();
    int step = 1;
    for (const char* name : names) {
        n.Apre(QString(name), first);
        n.Prende(QString(name)).move(step, 20 + step);
        n.Lascia(n.Prende(QString(name)));
        ++step;
    }
    Finisce();
    auto& s = Avvia();
    LeggeStatoComune();
    step = 1;
    for (const char* name : names) {
        n.Apre(QString(name), s);
        EXPECT_EQ(n.Prende(QString(name)).pos(), QPoint(step, 20 + step)) << name;
        n.Lascia(n.Prende(QString(name)));
        ++step;
    }
}

TEST_F(StatoUtenteTest, TheNextStartFindsFamiliesOrderRowAndEntriesAgain) {
    auto& s = Avvia();
    s.ChkTipo[0]->click();
    s.OptionOrdina[1]->click();
    s.Data1->MoveLast();
    QTest::keyClicks(s.Txt_L0[1], QString::fromStdString(Locale("5.25")));
    QTest::keyClicks(s.TxtNsd, "120");
    const QString row = s.TxtProf[0]->text();
    const std::string query = s.Data1->RecordSource();
    const std::string force = Testo(&s, "TxtNbRd_1");
    Finisce();

    const auto& again = Avvia();
    EXPECT_TRUE(again.ChkTipo[0]->isChecked());
    EXPECT_TRUE(again.OptionOrdina[1]->isChecked());
    EXPECT_EQ(again.Data1->RecordSource(), query);
    EXPECT_EQ(again.TxtProf[0]->text(), row);
    EXPECT_EQ(again.Txt_L0[1]->text().toStdString(), Locale("5.25"));
    EXPECT_TRUE(again.Txt_L0[0]->text().isEmpty());
    EXPECT_EQ(again.TxtNsd->text(), "120");
    EXPECT_EQ(Testo(&again, "TxtNbRd_1"), force) << "computed with them";
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(StatoUtenteTest, TheOrderOfAHeadingComesBack) {
    auto& s = Avvia();
    OrdinaPerColonna(s, 2);
    Finisce();
    const auto& again = Avvia();
    EXPECT_EQ(again.Data1->RecordSource(), "SELECT * FROM [IPE$] ORDER BY [h (mm)]");
    EXPECT_FALSE(again.OptionOrdina[0]->isChecked());
}

TEST_F(StatoUtenteTest, ColumnsDrawnWiderStaySo) {
    auto& s = Avvia();
    s.DBGrid1->setColumnWidth(3, 111);
    const int other = s.DBGrid1->columnWidth(8);
    Finisce();
    const auto& again = Avvia();
    EXPECT_EQ(again.DBGrid1->columnWidth(3), 111);
    EXPECT_NEAR(again.DBGrid1->columnWidth(8), other, 4);
}

TEST_F(StatoUtenteTest, PlacesOfTheWindowsAndTheFolderComeBack) {
    auto& s = Avvia();
    NavigaSchermi::Unico().Apre(QStringLiteral("FrmMcRd"), s);
    Aperto("FrmMcRd").move(23, 31);
    s.move(12, 14);
    PathLavoro = utente.path().toStdString();
    Finisce();
    PathLavoro.clear();
    auto& again = Avvia();
    EXPECT_EQ(PathLavoro, utente.path().toStdString());
    EXPECT_EQ(again.pos(), QPoint(12, 14));
    NavigaSchermi::Unico().Apre(QStringLiteral("FrmMcRd"), again);
    EXPECT_EQ(Aperto("FrmMcRd").pos(), QPoint(23, 31));
}

TEST_F(StatoUtenteTest, AMaximisedWindowIsMaximisedAgain) {
    auto& s = Avvia();
    s.showMaximized();
    QCoreApplication::processEvents();
    const double ratio = s.Rapporto();
    Finisce();
    const auto& again = Avvia();
    QCoreApplication::processEvents();
    EXPECT_TRUE(again.isMaximized());
    EXPECT_DOUBLE_EQ(again.Rapporto(), ratio);
}

TEST_F(StatoUtenteTest, TheSettingsStandApart) {
    Avvia();
    Finisce();
    EXPECT_TRUE(QFile::exists(utente.filePath(QStringLiteral("stato.ini"))));
    EXPECT_FALSE(QFile::exists(utente.filePath(QStringLiteral("Sagomi.ini"))));
}

TEST_F(StatoUtenteTest, AFolderThatIsNoneIsNotSpokenOf) {
    QFile blocked(utente.filePath(QStringLiteral("file")));
    ASSERT_TRUE(blocked.open(QIODevice::WriteOnly));
    CartellaStato(blocked.fileName()); // no file can stand below a file
    Avvia();
    Finisce();
    EXPECT_TRUE(registratore.testi.empty());
    Avvia();
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(StatoUtenteTest, AFileThatIsNoneOfOursChangesNothing) {
    QFile other(utente.filePath(QStringLiteral("stato.ini")));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("[frmDoppioT]\nfamiglie=XYZ\nordine=niente\nriga=IPE 9\nTxtNsd=abc\nmisura=1\ncolonne=7\n");
    other.close();
    const auto& s = Avvia();
    EXPECT_EQ(s.Data1->RecordSource(), "SELECT * FROM [IPE$] ORDER BY [Wy (cm3)]");
    EXPECT_EQ(s.TxtProf[0]->text(), "IPE 80");
    EXPECT_TRUE(s.TxtNsd->text().isEmpty() || s.TxtNsd->text() == "0");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(StatoUtenteTest, AFileOfAnyLengthIsNeitherReadNorWritten) {
    QFile other(utente.filePath(QStringLiteral("stato.ini")));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("[recenti]\nfrmGiunti=/uno.gfl\n");
    ASSERT_TRUE(other.resize((qint64{16} << 20U) + 1)); // without blocks on the disk
    other.close();
    FileRecenti().clear();
    LeggeStatoComune();
    EXPECT_TRUE(FileRecenti().isEmpty());
    ScriveStato(Avvia());
    EXPECT_EQ(other.size(), (qint64{16} << 20U) + 1);
    EXPECT_TRUE(registratore.testi.empty());
}

} // namespace
