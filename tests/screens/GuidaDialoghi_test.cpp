#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTextBrowser>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <ostream>

#include "drawing/ui/ScegliDispositivo.h"
#include "frame/Messaggi.h"
#include "frame/ui/FileDialogo.h"
#include "frame/ui/Guida.h"
#include "frame/ui/MessaggiQt.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// F1 in the dialogs that keep all other windows from being used.
class GuidaDialoghiTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        CopiaAccanto("GiuntoFlangiato.hlp");
    }
    void TearDown() override {
        if (QWidget* viewer = Finestra())
            viewer->hide();
        Guida::ImpostaFile({});
        AmbienteSchermi::TearDown();
    }
    static QWidget* Finestra() {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == u"FinestraGuida" && w->isVisible())
                return w;
        return nullptr;
    }
    static std::string Posto() {
        const QUrl source = Finestra()->findChild<QTextBrowser*>()->source();
        return (source.path().mid(1) + u'#' + source.fragment()).toStdString();
    }
    /// F1 in the dialog in hand: the viewer shows the place, takes keys as the desktop sends them, and gives
    /// the dialog back as it was.
    void Chiede(const std::string& dialog, const std::string& place) {
        QWidget* modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr) << dialog;
        EXPECT_EQ(modal->objectName().toStdString(), dialog);
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == modal; })) << dialog;
        const QWidget* focus = QApplication::focusWidget();
        EXPECT_NE(focus, nullptr) << dialog;
        QTest::keyClick(modal->windowHandle(), Qt::Key_F1);
        ASSERT_NE(Finestra(), nullptr) << dialog;
        EXPECT_EQ(Posto(), place) << dialog;
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() == Finestra(); })) << dialog;
        QTest::keyClick(Finestra()->windowHandle(), Qt::Key_K, Qt::ControlModifier);
        EXPECT_TRUE(Trova<QLineEdit>(Finestra(), "txtCerca")->hasFocus()) << dialog << " blocks the viewer";
        QTest::keyClick(Finestra()->windowHandle(), Qt::Key_Escape);
        if (Finestra() != nullptr) // the bar to find in the page, of another test, went first
            QTest::keyClick(Finestra()->windowHandle(), Qt::Key_Escape);
        EXPECT_EQ(Finestra(), nullptr) << dialog;
        EXPECT_TRUE(modal->isVisible()) << dialog;
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == focus; })) << dialog;
        ++asked;
    }
    /// The same in a dialog that is to come and runs a loop of its own, which then is given up.
    void ChiedeA(const std::string& dialog, const std::string& place) {
        constexpr int pause = 450; // [ms], keys do nothing in a box that has just come up
        QTimer::singleShot(pause, [this, dialog, place] {
            Chiede(dialog, place);
            if (auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                d->reject();
        });
    }
    int asked = 0;
};

struct Dialogo {
    const char* nome;
    const char* posto;
};
void PrintTo(const Dialogo& dialog, std::ostream* out) { *out << dialog.nome; } // the name of its test

class GuidaSchermoModaleTest : public GuidaDialoghiTest, public testing::WithParamInterface<Dialogo> {};

TEST_P(GuidaSchermoModaleTest, F1ExplainsItOverIt) {
    NavigaSchermi::Unico().Apre(QString::fromLatin1(GetParam().nome), Avvia());
    Chiede(GetParam().nome, GetParam().posto);
    EXPECT_EQ(asked, 1);
}

INSTANTIATE_TEST_SUITE_P(Guida, GuidaSchermoModaleTest,
                         testing::Values(Dialogo{"frmGamma", "Sagomi.hlp#optNormativa"},
                                         Dialogo{"FrmInform", "Sagomi.hlp#FrmInform"},
                                         Dialogo{"frmSuggerimento", "Sagomi.hlp#cmdOK"}));

// The factors that are being typed are still there.
TEST_F(GuidaDialoghiTest, NothingThatIsBeingTypedIsLost) {
    auto& main = Avvia();
    NavigaSchermi::Unico().Apre(QStringLiteral("frmGamma"), main);
    auto& factors = Aperto("frmGamma");
    Preme(&factors, "optNormativa_2");
    auto* box = Trova<QLineEdit>(&factors, "txtGamma_1");
    box->setFocus();
    box->setText(QStringLiteral("-"));
    Chiede("frmGamma", "Sagomi.hlp#txtGamma");
    EXPECT_EQ(box->text(), "-");
    EXPECT_TRUE(registratore.testi.empty()) << "while the user types nothing speaks";
}

TEST_F(GuidaDialoghiTest, QuestionOfTheReport) {
    auto& main = Avvia();
    VaA(main, "IPE 200");
    main.findChild<QLineEdit*>(QStringLiteral("TxtNsd"))->setText(QStringLiteral("10"));
    NavigaSchermi::Unico().Apre(QStringLiteral("FrmVerifiche"), main);
    ChiedeA("DialogoRelazione", "Sagomi.hlp#DialogoRelazione");
    Preme(&Aperto("FrmVerifiche"), "CmdRelazione");
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(registratore.testi.empty());
}

// The key as the help has it, while a box has the cursor.
TEST_F(GuidaDialoghiTest, CtrlEAsksFromWithinABox) {
    auto& main = Avvia();
    VaA(main, "IPE 200");
    NavigaSchermi::Unico().Apre(QStringLiteral("FrmVerifiche"), main);
    auto* box = Trova<QLineEdit>(&Aperto("FrmVerifiche"), "TxtMysd");
    box->setFocus();
    QTest::keyClicks(box, QStringLiteral("10"));
    ASSERT_TRUE(QTest::qWaitFor([box] { return QApplication::activeWindow() == box->window(); }));
    QKeyEvent key(QEvent::ShortcutOverride, Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::sendEvent(box, &key)) << "nobody sees to it";
    EXPECT_FALSE(key.isAccepted()) << "the box takes the key for itself";
    ChiedeA("DialogoRelazione", "Sagomi.hlp#DialogoRelazione");
    QTest::keyClick(box, Qt::Key_E, Qt::ControlModifier); // presses the button, which takes its time
    EXPECT_TRUE(QTest::qWaitFor([this] { return asked == 1; }));
    EXPECT_TRUE(registratore.testi.empty()) << registratore.testi.front();
}

TEST_F(GuidaDialoghiTest, FilesPrinterAndPreview) {
    auto& main = Avvia();
    ImpostaSceltaFile({});
    ChiedeA("DialogoFile", "Sagomi.hlp#DialogoFile");
    EXPECT_TRUE(SceglieFile(&main, "L", QStringLiteral("Nodi|*.Gfl"), 1, QStringLiteral("*.Gfl")).isEmpty());
    ImpostaSceltaStampante({});
    ChiedeA("DialogoStampa", "Sagomi.hlp#DialogoStampa");
    QTest::keyClick(&main, Qt::Key_P, Qt::ControlModifier);
    NavigaSchermi::Unico().Apre(QStringLiteral("frmSaldature"), main);
    ChiedeA("AnteprimaDiStampa", "Sagomi.hlp#AnteprimaDiStampa");
    QTest::keyClick(&Aperto("frmSaldature"), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(asked, 3);
}

TEST_F(GuidaDialoghiTest, InTheJointTheDialogsHaveItsFile) {
    auto& main = Avvia();
    NavigaSchermi::Unico().Apre(QStringLiteral("frmGiunti"), main);
    ImpostaSceltaFile({});
    ChiedeA("DialogoFile", "GiuntoFlangiato.hlp#DialogoFile");
    EXPECT_TRUE(
        SceglieFile(&Aperto("frmGiunti"), "S", QStringLiteral("Nodi|*.Gfl"), 1, QStringLiteral("*.Gfl"))
            .isEmpty());
    EXPECT_EQ(asked, 1);
}

// The boxes of the program as it shows them, one of each subject.
TEST_F(GuidaDialoghiTest, MessagesAreExplainedWhereTheyStand) {
    auto& main = Avvia();
    EXPECT_TRUE(main.isVisible());
    const PortaMessaggi recorder = CollegaMessaggi({});
    CollegaMessaggiQt();
    const auto told = [this](const char* text, const char* place) {
        ChiedeA("", place);
        Avvisa(text);
    };
    told("Il valore di L minimo è 32 mm", "GiuntoFlangiato.hlp#messaggi");
    told("L'interasse delle nervature deve essere > bs, bb", "Sagomi.hlp#msgTrave");
    told("Msd > MplRd", "Sagomi.hlp#msgConnettori");
    told("ERRORE !! Non è stato selezionato nessun tipo di sagomo", "Sagomi.hlp#msgTabella");
    told("Questo schermo non ha risultati da riportare.", "Sagomi.hlp#msgFile");
    told("fy deve essere > 0", "Sagomi.hlp#msgSezioni");
    CollegaMessaggi(recorder);
    EXPECT_EQ(asked, 6);
}

} // namespace
