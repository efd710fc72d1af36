#include "automation/SezioneSagomi.h"

#include <QAction>
#include <QCheckBox>

#include <stdexcept>

#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// A C++ program that uses the class, and the user before the screens.
class SezioneSagomiTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        oggetto.ComunicaSagomo = [this] { eventi.push_back(oggetto.Designation); };
        oggetto.SagomiQuit = [this] {
            eventi.emplace_back("quit");
            impostazioniScritte = std::filesystem::exists(PathProgramma / "Sagomi.ini");
        };
    }

    /// Creates the object, forgets the events of the start.
    SchermoSezione& Crea() {
        EXPECT_TRUE(oggetto.Class_Initialize());
        eventi.clear();
        return Schermo("frmDoppioT");
    }

    static SchermoSezione& Schermo(const char* name) {
        return dynamic_cast<SchermoSezione&>(*NavigaSchermi::Unico().Trova(QString::fromLatin1(name)));
    }

    /// The user goes over to another family; its first row is taken over on the way.
    SchermoSezione& PassaA(const char* voce, const char* name) {
        Trova<QAction>(&Schermo("frmDoppioT"), voce)->trigger();
        return Schermo(name);
    }

    std::vector<std::string> eventi;
    bool impostazioniScritte = false;
    SezioneSagomi oggetto; // after the events that it tells of
};

TEST_F(SezioneSagomiTest, CreatingStartsTheProgramOnTheFirstScreen) {
    EXPECT_TRUE(oggetto.Class_Initialize());
    EXPECT_TRUE(ServerAttivo);
    EXPECT_EQ(static_cast<OsservatoreSezione*>(OggettoServer), &oggetto);
    EXPECT_TRUE(Schermo("frmDoppioT").isVisible());
    EXPECT_EQ(eventi, std::vector<std::string>{"IPE 80"}) << "the load takes the first row over";
}

TEST_F(SezioneSagomiTest, ThereIsOneObjectOnly) {
    Crea().Data1->MoveNext();
    EXPECT_FALSE(oggetto.Class_Initialize());
    SezioneSagomi second;
    EXPECT_FALSE(second.Class_Initialize());
    EXPECT_EQ(static_cast<OsservatoreSezione*>(OggettoServer), &oggetto);
    EXPECT_EQ(oggetto.Designation, "IPE 100");
}

// IPE 100 of the table: 100 x 55 x 4.1 x 5.7, r 7; 10.32 cm2, 171 and 15.92 cm4, Wpl 39.41 and 9.15 cm3. A
// rolled I section with h/b above 1.2 and tf to 40 mm buckles after a and b, ENV 1993-1-1 table 5.5.3.
TEST_F(SezioneSagomiTest, ARowOfTheTableFillsTheMembers) {
    Crea().Data1->MoveNext();
    EXPECT_EQ(eventi, std::vector<std::string>{"IPE 100"});
    EXPECT_EQ(oggetto.TipoSezione, "SezioneDoppioT");
    EXPECT_EQ(oggetto.Designation, "IPE 100");
    EXPECT_EQ(oggetto.h, 100);
    EXPECT_EQ(oggetto.b, 55);
    EXPECT_EQ(oggetto.tw.Stretto(), 4.1F);
    EXPECT_EQ(oggetto.tf.Stretto(), 5.7F);
    EXPECT_EQ(oggetto.r1, 7);
    EXPECT_EQ(oggetto.r2, 0);
    EXPECT_EQ(oggetto.r, 0);
    EXPECT_FALSE(oggetto.Saldata);
    EXPECT_FALSE(oggetto.SaldataAsimm);
    EXPECT_EQ(oggetto.Area, 1032);
    EXPECT_EQ(oggetto.Jy, 1710000);
    EXPECT_EQ(oggetto.Jz, 159200);
    EXPECT_EQ(oggetto.Wply, 39410);
    EXPECT_EQ(oggetto.Wplz, 9150);
    EXPECT_EQ(oggetto.fy, 235);
    EXPECT_EQ(oggetto.VersioneSezioneSagomi, 3);
    EXPECT_EQ(oggetto.CurvaY, "a");
    EXPECT_EQ(oggetto.CurvaZ, "b");
}

TEST_F(SezioneSagomiTest, ADoubleTIsNeverAPair) {
    SchermoSezione& first = Crea();
    oggetto.Doppi = oggetto.DoppiCorto = true;
    oggetto.dDoppi = 12;
    first.Data1->MoveNext();
    EXPECT_EQ(eventi.size(), 1U);
    EXPECT_FALSE(oggetto.Doppi);
    EXPECT_EQ(oggetto.dDoppi, 0);
    EXPECT_FALSE(oggetto.DoppiCorto);
}

// HSD 500x74 of the table: flanges 180 x 10 above, 250 x 15 below, web 8, fillets of 5; 94 cm2. Welded,
// flanges to 40 mm: curves b and c.
TEST_F(SezioneSagomiTest, AWeldedSectionHasItsFilletAndBothFlanges) {
    Crea();
    VaA(PassaA("mnuTipoSaldatiAsimm", "frmSaldatiAsimm"), "HSD 500x74");
    EXPECT_EQ(oggetto.Designation, "HSD 500x74");
    EXPECT_TRUE(oggetto.Saldata);
    EXPECT_TRUE(oggetto.SaldataAsimm);
    EXPECT_EQ(oggetto.b, 180);
    EXPECT_EQ(oggetto.tf, 10);
    EXPECT_EQ(oggetto.bAlaInf, 250);
    EXPECT_EQ(oggetto.tAlaInf, 15);
    EXPECT_EQ(oggetto.r, 5);
    EXPECT_EQ(oggetto.Area, 9400);
    EXPECT_EQ(oggetto.CurvaY, "b");
    EXPECT_EQ(oggetto.CurvaZ, "c");
}

TEST_F(SezioneSagomiTest, AnAngleHasNoFlangeAndKeepsWhatItDoesNotHave) {
    Crea().Data1->MoveNext();
    oggetto.bAlaInf = 77;
    SchermoSezione& s = PassaA("mnuTipoL", "frmSagomiL");
    eventi.clear();
    VaA(s, "L 50x50x5");
    EXPECT_EQ(eventi, std::vector<std::string>{"L 50x50x5"});
    EXPECT_EQ(oggetto.TipoSezione, "SezioneSagomoL");
    EXPECT_EQ(oggetto.tf, -1);
    EXPECT_EQ(oggetto.tw, 5);
    EXPECT_EQ(oggetto.h, 50);
    EXPECT_EQ(oggetto.bAlaInf, 77) << "of an earlier section";
    EXPECT_EQ(oggetto.Wply, 39410) << "of an earlier section";
    EXPECT_EQ(oggetto.CurvaY, "b");
    EXPECT_EQ(oggetto.CurvaZ, "b");
}

// UPN 80 of the table: 80 x 45 x 6 x 8, 11.02 cm2.
TEST_F(SezioneSagomiTest, APairIsToldBySingleValuesAndFlagsOnceARow) {
    Crea();
    SchermoSezione& s = PassaA("mnuTipoU", "frmSagomiU");
    Trova<QCheckBox>(&s, "chkDoppi")->setChecked(true);
    Trova<QCheckBox>(&s, "chkDoppiAla")->setChecked(true);
    Trova<QLineEdit>(&s, "txtDoppi")->setText("10");
    eventi.clear();
    VaA(s, "UPN 80");
    EXPECT_EQ(eventi, std::vector<std::string>{"UPN 80"});
    EXPECT_EQ(oggetto.TipoSezione, "SezioneSagomoU");
    EXPECT_TRUE(oggetto.Doppi);
    EXPECT_TRUE(oggetto.DoppiCorto);
    EXPECT_EQ(oggetto.dDoppi, 10);
    EXPECT_EQ(oggetto.Area, 1102) << "of one channel";
    EXPECT_EQ(oggetto.tf, 8);
    EXPECT_EQ(oggetto.CurvaY, "c");
    Trova<QCheckBox>(&s, "chkDoppi")->setChecked(false);
    s.Data1->MoveNext();
    EXPECT_FALSE(oggetto.Doppi);
}

TEST_F(SezioneSagomiTest, QuitClosesWithoutAWord) {
    Crea();
    oggetto.Quit();
    EXPECT_FALSE(ServerAttivo);
    EXPECT_TRUE(ChiusuraInCorso);
    EXPECT_EQ(NavigaSchermi::Unico().Trova(QStringLiteral("frmDoppioT")), nullptr);
    EXPECT_TRUE(std::filesystem::exists(PathProgramma / "Sagomi.ini"));
    EXPECT_TRUE(eventi.empty());
}

TEST_F(SezioneSagomiTest, TheUserWhoClosesIsToldOnceAfterTheSettingsAreWritten) {
    SchermoSezione& first = Crea();
    ASSERT_FALSE(std::filesystem::exists(PathProgramma / "Sagomi.ini"));
    first.close();
    ChiudiProgramma();
    EXPECT_EQ(eventi, std::vector<std::string>{"quit"});
    EXPECT_TRUE(impostazioniScritte);
    EXPECT_TRUE(oggetto.Class_Initialize()) << "the program has ended, another run may begin";
}

TEST_F(SezioneSagomiTest, WindowsOfAClientAreNotScaled) {
    SchermoSezione& first = Crea();
    const QFont before = Trova<QLabel>(&first, "LblAcciaio")->font();
    first.showMaximized();
    QCoreApplication::processEvents();
    EXPECT_EQ(Trova<QLabel>(&first, "LblAcciaio")->font(), before);
}

TEST_F(SezioneSagomiTest, AnErrorOnTheWayRaisesNoEvent) {
    Crea().Data1->MoveNext();
    eventi.clear();
    SezioneCorrente.emplace<std::monostate>();
    oggetto.SagomoCambiato();
    SezioneCorrente = std::shared_ptr<SezioneSagomoL>();
    oggetto.SagomoCambiato();
    EXPECT_TRUE(eventi.empty());
    EXPECT_EQ(oggetto.Designation, "IPE 100");
}

TEST_F(SezioneSagomiTest, AFailingClientDoesNotStopTheScreen) {
    SchermoSezione& first = Crea();
    oggetto.ComunicaSagomo = [] { throw std::runtime_error("client"); };
    first.Data1->MoveNext();
    EXPECT_EQ(Sezione().ClasseCompressione, 1) << "the results follow";
    oggetto.ComunicaSagomo = nullptr;
    first.Data1->MoveNext();
    EXPECT_EQ(oggetto.Designation, "IPE 120");
}

TEST_F(SezioneSagomiTest, AnObjectThatIsGoneIsNotTold) {
    auto passing = std::make_unique<SezioneSagomi>();
    EXPECT_TRUE(passing->Class_Initialize());
    passing.reset();
    Schermo("frmDoppioT").Data1->MoveNext();
    Schermo("frmDoppioT").close();
    EXPECT_TRUE(ChiusuraInCorso);
}

} // namespace
