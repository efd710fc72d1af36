#include "automation/ServizioSagomi.h"

#include <QAction>
#include <QCheckBox>
#include <QMessageBox>
#include <QProcess>

#include <fstream>

#include "frame/Messaggi.h"
#include "frame/ui/DocumentoSchermo.h"
#include "frame/ui/MessaggiQt.h"
#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

using Valori = QMap<QString, QString>;

/// A client in a process of its own, and what it has told so far.
class Cliente {
public:
    explicit Cliente(const QStringList& command, const QProcessEnvironment& env = {}) {
        if (!env.isEmpty())
            processo_.setProcessEnvironment(env);
        processo_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        processo_.start(command.first(), command.mid(1));
    }
    ~Cliente() {
        processo_.closeWriteChannel();
        if (!processo_.waitForFinished(10000))
            processo_.kill();
        processo_.waitForFinished();
    }

    void Comanda(const char* what) { processo_.write(QByteArray(what) + '\n'); }
    void Uccide() {
        processo_.kill();
        processo_.waitForFinished();
    }

    /// Waits for the next line that begins so, which it gives; lines before it are passed over.
    QString Attende(const char* inizio, int millisecondi = 20000) {
        QString found;
        EXPECT_TRUE(QTest::qWaitFor([&] { return Prossima(QString::fromUtf8(inizio), found); }, millisecondi))
            << inizio << " did not come";
        return found;
    }

    /// The values of the next section that it is told of.
    Valori Sagomo() {
        Valori values;
        for (const QString& pair : Attende("sagomo ").mid(7).split(u'|'))
            values[pair.section(u'=', 0, 0)] = pair.section(u'=', 1);
        return values;
    }

    /// The values of the section of that name, once it has been told of it.
    Valori Sagomo(const char* name) {
        Valori values = Sagomo();
        while (!values["Designation"].isEmpty() && values["Designation"] != QLatin1String(name))
            values = Sagomo();
        return values;
    }

    /// Whether it has said that by now; nothing is passed over.
    bool HaDetto(const QString& line) {
        Accoglie();
        return righe_.contains(line);
    }

    /// All that it says within a while.
    QStringList Intanto(int millisecondi = 300) {
        QTest::qWait(millisecondi);
        Accoglie();
        return std::exchange(righe_, {});
    }

private:
    void Accoglie() {
        while (processo_.canReadLine())
            righe_ << QString::fromUtf8(processo_.readLine()).chopped(1);
    }

    bool Prossima(const QString& inizio, QString& found) {
        Accoglie();
        while (found.isNull() && !righe_.isEmpty())
            if (const QString line = righe_.takeFirst(); line.startsWith(inizio))
                found = line;
        return !found.isNull();
    }

    QProcess processo_;
    QStringList righe_;
};

QString ProgrammaCliente() { return QStringLiteral(SAGOMI_BIN "/cliente_automazione"); }

class ServizioSagomiTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        if (qEnvironmentVariable("SAGOMI_BUS_DELLE_PROVE") != "1")
            GTEST_SKIP() << "dbus-run-session is not installed";
        ASSERT_EQ(servizio.Registra(), QString());
    }

    /// A client on the bus of the tests.
    static QStringList Comando() {
        return {ProgrammaCliente(), QString::fromStdString((PathProgramma / "Sagomi.ini").string())};
    }

    /// Has a client create the object.
    SchermoSezione& Crea(Cliente& client) {
        client.Attende("pronto");
        client.Comanda("Class_Initialize");
        EXPECT_EQ(client.Sagomo()["Designation"], "IPE 80");
        client.Attende("Class_Initialize fatto");
        return Schermo("frmDoppioT");
    }

    static SchermoSezione& Schermo(const char* name) {
        return dynamic_cast<SchermoSezione&>(*NavigaSchermi::Unico().Trova(QString::fromLatin1(name)));
    }

    static SchermoSezione& PassaA(const char* voce, const char* name) {
        Trova<QAction>(&Schermo("frmDoppioT"), voce)->trigger();
        return Schermo(name);
    }

    ServizioSagomi servizio;
};

TEST_F(ServizioSagomiTest, NothingShowsBeforeTheObjectIsCreated) {
    Cliente client(Comando());
    client.Attende("pronto");
    client.Comanda("tutti");
    EXPECT_TRUE(client.Attende("GetAll fatto").contains("VersioneSezioneSagomi=3"));
    EXPECT_EQ(NavigaSchermi::Unico().Trova(QStringLiteral("frmDoppioT")), nullptr);
    client.Comanda("Quit");
    EXPECT_TRUE(client.Attende("Quit errore").endsWith("OggettoMancante"));
    EXPECT_FALSE(ChiusuraInCorso);
    EXPECT_FALSE(std::filesystem::exists(PathProgramma / "Sagomi.ini")) << "settings that were not read";
}

// The figures are those of the table: IPE 120, 140; HSD 500x74; L 50x50x5; UPN 80.
TEST_F(ServizioSagomiTest, ASecondProcessFollowsTheUser) {
    Cliente client(Comando());
    SchermoSezione& first = Crea(client);
    EXPECT_TRUE(first.isVisible());
    for (int i = 0; i < 3; ++i)
        first.Data1->MoveNext();
    EXPECT_EQ(client.Sagomo()["Designation"], "IPE 100");
    Valori ipe = client.Sagomo();
    EXPECT_EQ(ipe["Designation"], "IPE 120");
    EXPECT_EQ(ipe["TipoSezione"], "SezioneDoppioT");
    EXPECT_EQ(ipe["h"].toDouble(), 120);
    EXPECT_FLOAT_EQ(ipe["tf"].toFloat(), 6.3F);
    EXPECT_EQ(ipe["Area"].toDouble(), 1321);
    EXPECT_EQ(ipe["Wply"].toDouble(), 60730);
    EXPECT_EQ(ipe["Doppi"], "false");
    EXPECT_EQ(ipe["CurvaZ"], "b");
    EXPECT_EQ(client.Sagomo()["Designation"], "IPE 140");

    VaA(PassaA("mnuTipoSaldatiAsimm", "frmSaldatiAsimm"), "HSD 500x74");
    EXPECT_EQ(client.Sagomo("HSD 500x74")["tAlaInf"].toDouble(), 15);
    VaA(PassaA("mnuTipoL", "frmSagomiL"), "L 50x50x5");
    Valori angle = client.Sagomo("L 50x50x5");
    EXPECT_EQ(angle["TipoSezione"], "SezioneSagomoL");
    EXPECT_EQ(angle["tf"], "-1");
    EXPECT_EQ(angle["tw"], "5");
    EXPECT_EQ(angle["bAlaInf"].toDouble(), 250) << "of the section before";
    EXPECT_EQ(angle["Wply"].toDouble(), 1699000) << "of the section before";
    VaA(PassaA("mnuTipoU", "frmSagomiU"), "UPN 80");
    Valori channel = client.Sagomo("UPN 80");
    EXPECT_EQ(channel["TipoSezione"], "SezioneSagomoU");
    EXPECT_EQ(channel["tf"].toDouble(), 8);
    EXPECT_EQ(channel["CurvaY"], "c");

    client.Comanda("Quit");
    client.Attende("Quit fatto");
    EXPECT_TRUE(QTest::qWaitFor([] { return bool(ChiusuraInCorso); }));
    EXPECT_EQ(NavigaSchermi::Unico().Trova(QStringLiteral("frmDoppioT")), nullptr);
    EXPECT_TRUE(client.Intanto().isEmpty()) << "a client that closes is not told";
}

TEST_F(ServizioSagomiTest, TheClientHearsOnceThatTheUserHasClosed) {
    Cliente client(Comando());
    Crea(client).close();
    EXPECT_EQ(client.Attende("quittato"), "quittato con impostazioni");
    EXPECT_TRUE(client.Intanto().isEmpty());
}

TEST_F(ServizioSagomiTest, PairsComeAsOnePieceWithTheirFlags) {
    Cliente client(Comando());
    Crea(client);
    SchermoSezione& s = PassaA("mnuTipoL", "frmSagomiL");
    client.Sagomo();
    Trova<QCheckBox>(&s, "chkDoppi")->setChecked(true);
    Trova<QCheckBox>(&s, "chkDoppiCorto")->setChecked(true);
    Trova<QLineEdit>(&s, "txtDoppi")->setText("8");
    EXPECT_TRUE(client.Intanto().isEmpty()) << "the row has not changed";
    VaA(s, "L 50x50x5");
    Valori pair = client.Sagomo();
    EXPECT_EQ(pair["Doppi"], "true");
    EXPECT_EQ(pair["DoppiCorto"], "true");
    EXPECT_EQ(pair["dDoppi"], "8");
    EXPECT_EQ(pair["Area"].toDouble(), 480) << "of one angle, 4.8 cm2";
    EXPECT_TRUE(client.Intanto().isEmpty()) << "one event a row";
}

TEST_F(ServizioSagomiTest, AClientThatDiesLeavesTheProgramAndItsObject) {
    auto dying = std::make_unique<Cliente>(Comando());
    SchermoSezione& first = Crea(*dying);
    dying->Uccide();
    first.Data1->MoveNext();
    QTest::qWait(100);
    EXPECT_TRUE(first.isVisible());
    Cliente second(Comando());
    second.Attende("pronto");
    second.Comanda("Class_Initialize");
    EXPECT_EQ(second.Attende("Class_Initialize "),
              "Class_Initialize errore Sagomi_v6.SezioneSagomi.Errore.OggettoEsistente");
    EXPECT_TRUE(first.isVisible());
    first.Data1->MoveNext();
    EXPECT_EQ(second.Sagomo()["Designation"], "IPE 120");
}

TEST_F(ServizioSagomiTest, CallsThatCannotBeMeantAreRefusedAndChangeNothing) {
    Cliente client(Comando());
    SchermoSezione& first = Crea(client);
    client.Comanda("tutti");
    const QString before = client.Attende("GetAll fatto");
    client.Comanda("storpia");
    EXPECT_EQ(client.Attende("storpiate", 60000), "storpiate 500 respinte 500");
    client.Comanda("tutti");
    EXPECT_EQ(client.Attende("GetAll fatto"), before);
    EXPECT_TRUE(first.isVisible());
    EXPECT_TRUE(registratore.testi.empty() || registratore.messaggi.front().titolo == "ATTENZIONE ");
    first.Data1->MoveNext();
    EXPECT_EQ(client.Sagomo()["Designation"], "IPE 100");
}

TEST_F(ServizioSagomiTest, QuitClosesTheBoxThatIsOpenBefore) {
    Cliente client(Comando());
    Crea(client);
    CollegaMessaggiQt();
    bool open = false;
    QTimer::singleShot(100, &servizio, [&] {
        open = QApplication::activeModalWidget() != nullptr;
        client.Comanda("Quit");
    });
    Avvisa("Letto da nessuno"); // comes back when somebody has closed the box
    EXPECT_TRUE(open);
    client.Attende("Quit fatto");
    EXPECT_TRUE(QTest::qWaitFor([] { return bool(ChiusuraInCorso); }));
    EXPECT_TRUE(client.Intanto().isEmpty());
}

/// A screen with work that is not saved.
struct ConLavoro : SchermoConFile {
    QWidget finestra;
    DocumentoSchermo* documento = nullptr;
    ConLavoro() {
        documento = new DocumentoSchermo(*this, {"Prova", "prv", "prv"});
        documento->Modifica();
    }
    void FileLeggeScrive(std::string_view /*modo*/, std::int16_t /*nFile*/) override {}
    [[nodiscard]] QString PrefissoTitolo() const override { return {}; }
    [[nodiscard]] QWidget* Finestra() override { return &finestra; }
};

TEST_F(ServizioSagomiTest, QuitLosesNoWorkOfTheUser) {
    Cliente client(Comando());
    SchermoSezione& first = Crea(client);
    {
        ConLavoro work; // the question is answered no
        client.Comanda("Quit");
        client.Attende("Quit fatto");
        EXPECT_TRUE(QTest::qWaitFor([this] { return !registratore.testi.empty(); }));
        EXPECT_FALSE(ChiusuraInCorso);
        first.Data1->MoveNext();
        EXPECT_EQ(client.Sagomo()["Designation"], "IPE 100") << "events go on";
    }
    client.Comanda("Quit");
    client.Attende("Quit fatto");
    EXPECT_TRUE(QTest::qWaitFor([] { return bool(ChiusuraInCorso); }));
}

TEST_F(ServizioSagomiTest, AMessageOfTheStartDoesNotKeepTheClientWaiting) {
    std::filesystem::remove(PathProgramma / "Sagomi.xls");
    CollegaMessaggiQt();
    Cliente client(Comando());
    client.Attende("pronto");
    client.Comanda("Class_Initialize");
    bool answered = false;
    QTimer user; // reads the boxes once the client has been answered
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
        answered = answered || client.HaDetto("Class_Initialize fatto");
        if (QWidget* box = QApplication::activeModalWidget(); box != nullptr && answered)
            box->close();
    });
    user.start(50);
    EXPECT_TRUE(QTest::qWaitFor([&] { return answered && ScreenAttivo == "frmDoppioT"; }, 20000));
    EXPECT_TRUE(Schermo("frmDoppioT").isVisible());
}

TEST_F(ServizioSagomiTest, TheExampleFollowsToo) {
    Cliente example({QStringLiteral("bash"), QStringLiteral(SAGOMI_ESEMPI "/segui_sagomi.sh")});
    EXPECT_EQ(example.Attende("IPE"),
              "IPE 80: h 80.0 mm, b 46.0 mm, A 764.0 mm2, Jy 801000.0 mm4, curve a e b");
    Schermo("frmDoppioT").Data1->MoveNext();
    example.Attende("IPE 100:");
    Schermo("frmDoppioT").close();
    example.Attende("Sagomi è stato chiuso");
}

/// Resident memory of this process [kB].
long Memoria() {
    std::ifstream statm("/proc/self/statm");
    long whole = 0;
    long resident = 0;
    statm >> whole >> resident;
    return resident * 4;
}

// SAGOMI_EVENTI says how many; the run of ./test has enough to see memory grow.
TEST_F(ServizioSagomiTest, EveryRowArrivesInOrderAndMemoryStaysFlat) {
    const int events = std::max(2000, qEnvironmentVariableIntValue("SAGOMI_EVENTI"));
    Cliente client(Comando());
    SchermoSezione& first = Crea(client);
    const int rows = first.Data1->Recordset().Righe();
    std::vector<QString> names;
    long early = 0;
    for (int i = 1; i <= events; ++i) {
        first.Data1->MoveTo(i % rows);
        names.push_back(QString::fromStdString(first.Data1->Recordset().Testo(0)));
        if (i % 50 == 0) {
            for (const QString& name : std::exchange(names, {}))
                ASSERT_EQ(client.Sagomo()["Designation"], name) << i;
        }
        if (i == events / 4)
            early = Memoria();
    }
    EXPECT_LT(Memoria() - early, 2048) << "kB";
    EXPECT_TRUE(client.Intanto().isEmpty());
}

/// The bus starts the installed program by its service file.
TEST(AttivazioneTest, TheBusStartsTheInstalledProgram) {
    if (qEnvironmentVariable("SAGOMI_BUS_DELLE_PROVE") != "1")
        GTEST_SKIP() << "dbus-run-session is not installed";
    const QTemporaryDir place;
    const QString prefix = place.path() + "/usr";
    ASSERT_EQ(QProcess::execute(SAGOMI_CMAKE, {"--install", SAGOMI_COSTRUZIONE, "--prefix", prefix,
                                               "--component", "programma"}),
              0);
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("HOME", place.path());
    env.insert("XDG_CONFIG_HOME", place.path() + "/config");
    env.insert("XDG_DATA_HOME", place.path() + "/data");
    env.insert("XDG_DATA_DIRS", prefix + "/share");
    env.insert("LC_ALL", "it_IT.UTF-8"); // its separators need no warning
    Cliente client({"dbus-run-session", "--", ProgrammaCliente()}, env);
    client.Attende("pronto");
    client.Comanda("padrone");
    EXPECT_EQ(client.Attende(""), "nessuno");
    client.Comanda("tutti");
    EXPECT_TRUE(client.Attende("GetAll fatto").contains("Designation=|")) << "started, nothing is created";
    client.Comanda("Class_Initialize");
    EXPECT_EQ(client.Sagomo()["Designation"], "IPE 80");
    client.Attende("Class_Initialize fatto");
    client.Comanda("Quit");
    client.Attende("Quit fatto");
    EXPECT_TRUE(QTest::qWaitFor([&client] {
        client.Comanda("padrone");
        return client.Attende("") == "nessuno";
    })) << "the process has ended";
}

} // namespace
