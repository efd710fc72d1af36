#include "frame/ui/Tasti.h"

#include <QMenuBar>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QtTest>

#include "drawing/ui/FrmPltSezione.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "screens/Comandi.h"
#include "screens/PulsanteDiagramma.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class TastiSchermiTest : public AmbienteSchermi {
protected:
    void TearDown() override {
        ImpostaSceltaStampante({});
        AmbienteSchermi::TearDown();
    }
};

std::string Dove(const Schermo& s, const QObject* o) {
    return s.objectName().toStdString() + '.' + o->objectName().toStdString();
}

/// Every command that is seen has a key of its own, which its tool-tip tells.
void Percorre(const Schermo& screen) {
    QHash<QString, const QObject*> keys;
    static const QRegularExpression told(QStringLiteral("(F\\d+|Alt\\+.|Ctrl\\+\\w+)\\)?"));
    const auto take = [&](const QObject* command, const QString& tip) {
        const QString key = told.match(tip).captured(1);
        EXPECT_FALSE(key.isEmpty()) << Dove(screen, command) << ": \"" << tip.toStdString() << '"';
        EXPECT_FALSE(keys.contains(key))
            << Dove(screen, command) << " and " << Dove(screen, keys.value(key, command)) << " have the key "
            << key.toStdString();
        keys.insert(key, command);
    };
    for (const auto* button : screen.findChildren<QAbstractButton*>())
        if (Comando(*button) && button->isVisibleTo(&screen))
            take(button, button->statusTip().isEmpty() ? button->toolTip() : button->statusTip());
    for (const auto* bar : screen.findChildren<QMenuBar*>())
        for (const QAction* action : bar->actions()) {
            const bool none =
                action->shortcut().isEmpty() && QKeySequence::mnemonic(action->text()).isEmpty();
            EXPECT_FALSE(none) << Dove(screen, action) << " has no key";
        }
}

const QHash<QString, QString> apritori = {{"FrmMsverg", "FrmPresFless"},
                                          {"FrmVerifiche", "FrmPresFless"},
                                          {"frmMsvergH1", "FrmMsverg"},
                                          {"frmMsvergH2", "FrmMsverg"},
                                          {"frmTimoshenko", "FrmMsverg"}};

TEST_F(TastiSchermiTest, EveryCommandOfEveryScreenHasAKeyAndTellsIt) {
    auto& main = Avvia();
    auto& n = NavigaSchermi::Unico();
    VaA(main, "IPE 500");
    Scrive(&main, "Txt_fy", "355");
    Scrive(&main, "TxtNsd", "900"); // class 4: the effective outlines can be asked for
    Percorre(main);
    n.Apre("FrmPresFless", main);
    n.Apre("FrmMsverg", n.Prende("FrmPresFless"));
    for (const VoceSchermo& voce : QList<VoceSchermo>(n.Tavola())) {
        if (voce.nome == main.objectName())
            continue;
        n.Apre(voce.nome, n.Prende(apritori.value(voce.nome, main.objectName())));
        Percorre(n.Prende(voce.nome));
    }
}

TEST_F(TastiSchermiTest, AFunctionKeyOpensWhatItsButtonOpens) {
    auto& main = Avvia();
    auto* button = Trova<QPushButton>(&main, "LblNbRd");
    ASSERT_FALSE(button->shortcut().isEmpty());
    EXPECT_TRUE(button->toolTip().contains(button->shortcut().toString(QKeySequence::NativeText)));
}

TEST_F(TastiSchermiTest, CtrlPPrintsTheSectionOfAMainScreenAndOfADetail) {
    auto& main = Avvia();
    VaA(main, "IPE 300");
    int asked = 0;
    QString last;
    ImpostaSceltaStampante([&](QPrinter& printer, QWidget*) {
        ++asked;
        last = printer.docName();
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(cartella.filePath("stampa.pdf"));
        return true;
    });
    QTest::keyClick(&main, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(last, "IPE 300");
    Preme(&main, "LblNbRd");
    auto& detail = Aperto("FrmInstabDoppioT");
    QTest::keyClick(Trova<QLineEdit>(&detail, "txtChi_0"), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(QFile::exists(cartella.filePath("stampa.pdf")));
}

TEST_F(TastiSchermiTest, CtrlShiftPShowsThePreviewOfTheSectionOrOfThePicture) {
    auto& main = Avvia();
    VaA(main, "IPE 300");
    QTest::keyClick(&main, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Aperto("FrmPltSezione").windowTitle(), "Plotta - IPE 300");
    NavigaSchermi::Unico().Apre("FrmMsverg", main);
    auto& f = Aperto("FrmMsverg");
    Preme(&f, "Command1");
    QTest::keyClick(&Aperto("frmTimoshenko"), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Aperto("FrmPltSezione").windowTitle(), "Plotta - Carico critico");
}

TEST_F(TastiSchermiTest, CtrlPPrintsTheTableOfAScreenWithoutDrawings) {
    auto& main = Avvia();
    const QString pdf = cartella.filePath("testo.pdf");
    ImpostaSceltaStampante([&](QPrinter& printer, QWidget*) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        return true;
    });
    NavigaSchermi::Unico().Apre("FrmRisultatiIntermedi", main);
    QTest::keyClick(&Aperto("FrmRisultatiIntermedi"), Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(QFile::exists(pdf));
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(TastiSchermiTest, AScreenWithoutATablePrintsItsNumbersOrItsWords) {
    auto& main = Avvia();
    int asked = 0;
    ImpostaSceltaStampante([&](QPrinter& printer, QWidget*) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(cartella.filePath(QStringLiteral("numeri%1.pdf").arg(++asked)));
        return true;
    });
    for (const char* name : {"frmSaldature", "frmGamma", "FrmInform"}) {
        NavigaSchermi::Unico().Apre(QString::fromLatin1(name), main);
        QTest::keyClick(&Aperto(name), Qt::Key_P, Qt::ControlModifier);
        EXPECT_TRUE(QFile::exists(cartella.filePath(QStringLiteral("numeri%1.pdf").arg(asked)))) << name;
        Aperto(name).close();
    }
    EXPECT_EQ(asked, 3);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(TastiSchermiTest, CtrlShiftPShowsThePagesOfAScreenWithoutDrawings) {
    auto& main = Avvia();
    for (const char* name : {"FrmRisultatiIntermedi", "frmSaldature", "FrmInform"}) {
        NavigaSchermi::Unico().Apre(QString::fromLatin1(name), main);
        auto& screen = Aperto(name);
        bool shown = false;
        QTimer::singleShot(0, &screen, [&] {
            auto* dialog = screen.findChild<QDialog*>(QStringLiteral("AnteprimaDiStampa"));
            ASSERT_NE(dialog, nullptr);
            dialog->grab();
            shown = true;
            dialog->reject();
        });
        QTest::keyClick(&screen, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(shown) << name;
        screen.close();
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(TastiSchermiTest, TabEntersThePicturesAtTheChosenOneAndArrowsGoOn) {
    auto& main = Avvia();
    NavigaSchermi::Unico().Apre("FrmPresFless", main);
    auto& f = Aperto("FrmPresFless");
    const auto entered = [&f] {
        QStringList names;
        for (const auto* picture : f.findChildren<PulsanteDiagramma*>())
            if ((picture->focusPolicy() & Qt::TabFocus) != 0)
                names << picture->objectName();
        return names;
    };
    EXPECT_EQ(entered(), QStringList{"Picture1_1"});
    EXPECT_EQ(Trova<QWidget>(&f, "OptMomento_0")->focusPolicy() & Qt::TabFocus, 0);
    auto* first = Trova<PulsanteDiagramma>(&f, "Picture1_1");
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Right);
    EXPECT_TRUE(Trova<PulsanteDiagramma>(&f, "Picture1_2")->isChecked());
    EXPECT_EQ(entered(), QStringList{"Picture1_2"});
    QTest::keyClick(Trova<PulsanteDiagramma>(&f, "Picture1_2"), Qt::Key_Right);
    EXPECT_TRUE(Trova<QAbstractButton>(&f, "OptMomento_1")->isChecked()) << "the option follows";
    QTest::keyClick(Trova<PulsanteDiagramma>(&f, "Picture1_3"), Qt::Key_Left);
    QTest::keyClick(Trova<PulsanteDiagramma>(&f, "Picture1_2"), Qt::Key_Left);
    QTest::keyClick(first, Qt::Key_Left);
    EXPECT_EQ(entered(), QStringList{"Picture1_6"}) << "round";
}

TEST_F(TastiSchermiTest, CommandsWithoutARowAreDisabled) {
    auto& main = Avvia();
    const auto commands = {
        "LblClasse", "LblNbRd", "LblMcRd", "Command1", "Command2", "CmdPlotta", "cmdSceltaSagomoGiunto"};
    for (const char* name : commands)
        EXPECT_TRUE(Trova<QWidget>(&main, name)->isEnabled()) << name;
    const std::string query = main.Data1->RecordSource();
    main.Data1->RecordSource("SELECT * FROM [IPE$] WHERE [h (mm)] < 0");
    main.Data1->Refresh();
    ASSERT_FALSE(main.RigaInMano());
    for (const char* name : commands)
        EXPECT_FALSE(Trova<QWidget>(&main, name)->isEnabled()) << name;
    main.Data1->RecordSource(query);
    main.Data1->Refresh();
    for (const char* name : commands)
        EXPECT_TRUE(Trova<QWidget>(&main, name)->isEnabled()) << name;
}

} // namespace
