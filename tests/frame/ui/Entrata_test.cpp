#include "frame/ui/Entrata.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>
#include <QStyleOptionSpinBox>
#include <QVBoxLayout>

#include "frame/ui/AmbienteFinestre.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/RegoleEntrate.h"
#include "frame/ui/UpDown.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// Separators as in Italy while it lives, whatever the locale of the run.
struct Italiano {
    Italiano() : decimale(CarDecimale), migliaia(CarMigliaia) {
        CarDecimale = ',';
        CarMigliaia = '.';
    }
    ~Italiano() {
        CarDecimale = decimale;
        CarMigliaia = migliaia;
    }
    std::uint16_t decimale, migliaia;
};

class EntrataTest : public AmbienteFinestre {
protected:
    void SetUp() override {
        AmbienteFinestre::SetUp();
        auto* content = new QWidget;
        auto* rows = new QVBoxLayout(content);
        for (QWidget* w : {static_cast<QWidget*>(&prima), static_cast<QWidget*>(&seconda),
                           static_cast<QWidget*>(&comando), static_cast<QWidget*>(&passi)})
            rows->addWidget(w);
        finestra.setCentralWidget(content);
        finestra.statusBar();
        prima.setToolTip("Forza assiale");
        campi = new FiltroCampi(&finestra);
        campi->Osserva(&prima);
        campi->Osserva(&seconda);
        QObject::connect(campi, &FiltroCampi::conclusa, [this](QLineEdit* box) { concluse << box; });
        finestra.show();
        finestra.activateWindow();
        prima.setFocus();
        QCoreApplication::processEvents();
    }
    void TearDown() override {
        for (QWidget* w : {static_cast<QWidget*>(&prima), static_cast<QWidget*>(&seconda),
                           static_cast<QWidget*>(&comando), static_cast<QWidget*>(&passi)})
            w->setParent(nullptr); // they are members
        AmbienteFinestre::TearDown();
    }
    [[nodiscard]] QString Barra() const { return finestra.statusBar()->currentMessage(); }

    Italiano italiano;
    QMainWindow finestra;
    Casella prima, seconda;
    QPushButton comando;
    UpDown passi;
    FiltroCampi* campi = nullptr;
    QList<QLineEdit*> concluse;
};

TEST_F(EntrataTest, TellsTypingFromTheProgramsWriting) {
    EXPECT_FALSE(InDigitazione(&prima));
    QTest::keyClicks(&prima, "8");
    EXPECT_TRUE(InDigitazione(&prima));
    EXPECT_TRUE(campi->InDigitazione());
    prima.setText("80");
    EXPECT_FALSE(InDigitazione(&prima));
    EXPECT_TRUE(concluse.isEmpty());
}

// The state is right already in handlers that were connected before the box was watched.
TEST_F(EntrataTest, HandlersKnowWhoWrote) {
    Casella box;
    QList<bool> typed;
    QObject::connect(&box, &QLineEdit::textChanged, [&] { typed << InDigitazione(&box); });
    new Entrata(&box);
    QTest::keyClicks(&box, "1");
    box.setText("2");
    QTest::keyClicks(&box, "3");
    box.clear();
    EXPECT_EQ(typed, (QList<bool>{true, false, true, false}));
}

TEST_F(EntrataTest, EnterConcludesOnce) {
    QTest::keyClicks(&prima, "80");
    QTest::keyClick(&prima, Qt::Key_Return);
    EXPECT_EQ(concluse, QList<QLineEdit*>{&prima});
    EXPECT_FALSE(InDigitazione(&prima));
    EXPECT_TRUE(seconda.hasFocus());
    prima.setFocus();
    QTest::keyClick(&prima, Qt::Key_Return);
    EXPECT_EQ(concluse.size(), 1) << "nothing has been typed since";
}

TEST_F(EntrataTest, LeavingAButtonAndAStepConclude) {
    QTest::keyClicks(&prima, "8");
    QTest::keyClick(&prima, Qt::Key_Tab);
    EXPECT_EQ(concluse.size(), 1);
    QTest::keyClicks(&seconda, "9");
    comando.click();
    EXPECT_EQ(concluse.size(), 2);
    QTest::keyClicks(&seconda, "1");
    passi.stepUp();
    EXPECT_EQ(concluse.size(), 3);
    EXPECT_EQ(concluse.back(), &seconda);
}

// A message box takes the release of the mouse: it must not come between press and release.
TEST_F(EntrataTest, TheClickThatLeavesABoxActsAllTheSame) {
    QStringList order;
    QObject::connect(campi, &FiltroCampi::conclusa, [&order] { order << "conclusa"; });
    QObject::connect(&comando, &QPushButton::clicked, [&order] { order << "clic"; });
    QTest::keyClicks(&prima, "8");
    QTest::mousePress(&comando, Qt::LeftButton);
    EXPECT_TRUE(order.isEmpty());
    EXPECT_TRUE(InDigitazione(&prima));
    QTest::mouseRelease(&comando, Qt::LeftButton);
    EXPECT_EQ(order, (QStringList{"conclusa", "clic"}));
    QCoreApplication::processEvents();
    EXPECT_EQ(order.size(), 2) << "once";
}

TEST_F(EntrataTest, AClickOnAnotherBoxOrOnNothingConcludes) {
    QTest::keyClicks(&prima, "8");
    QTest::mouseClick(&seconda, Qt::LeftButton);
    EXPECT_EQ(concluse, QList<QLineEdit*>{&prima});
    EXPECT_TRUE(seconda.hasFocus());
    QTest::keyClicks(&seconda, "9");
    passi.setFocusPolicy(Qt::StrongFocus);
    QTest::mouseClick(&passi, Qt::LeftButton, {}, QPoint(1, 1));
    QCoreApplication::processEvents();
    EXPECT_EQ(concluse, (QList<QLineEdit*>{&prima, &seconda}));
}

// The message stands where the release should have gone to; the steps would go on for ever.
TEST_F(EntrataTest, StepsEndWithTheMouseThoughTheReleaseWentElsewhere) {
    int steps = 0;
    QObject::connect(&passi, &UpDown::passo, [&steps] { ++steps; });
    passi.setAccelerated(false);
    QStyleOptionSpinBox option;
    option.initFrom(&passi);
    option.subControls = QStyle::SC_All;
    option.buttonSymbols = QAbstractSpinBox::UpDownArrows;
    const QPoint up =
        passi.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &passi).center();
    QTest::mousePress(&passi, Qt::LeftButton, {}, up);
    ASSERT_EQ(steps, 1);
    QTest::mouseRelease(&comando, Qt::LeftButton);
    QTest::qWait(800); // beyond the time after which steps repeat
    EXPECT_EQ(steps, 1);
}

TEST_F(EntrataTest, SaysHowItWasRead) {
    const QColor plain = prima.palette().color(QPalette::Base);
    QTest::keyClicks(&prima, "2.5");
    EXPECT_EQ(prima.toolTip(), "letto come 25");
    EXPECT_EQ(prima.accessibleDescription(), "letto come 25");
    EXPECT_EQ(Barra(), "letto come 25");
    EXPECT_NE(prima.palette().color(QPalette::Base), plain);
    EXPECT_EQ(NumeroIn(&prima), 25);
    QTest::keyClicks(&prima, "00");
    EXPECT_EQ(prima.toolTip(), "Forza assiale") << "2.500 is a number";
    EXPECT_EQ(prima.palette().color(QPalette::Base), plain);
    EXPECT_EQ(Barra(), "");
}

TEST_F(EntrataTest, IsRewrittenAsItWasReadOnLeaving) {
    QStringList changes;
    QObject::connect(&prima, &QLineEdit::textChanged, [&](const QString& t) { changes << t; });
    QTest::keyClicks(&prima, "1 000 kN");
    EXPECT_EQ(prima.text(), "1 000 kN");
    EXPECT_EQ(prima.toolTip(), "letto come 1");
    const auto typed = changes.size();
    QTest::keyClick(&prima, Qt::Key_Tab);
    EXPECT_EQ(prima.text(), "1");
    EXPECT_EQ(prima.toolTip(), "Forza assiale");
    EXPECT_EQ(prima.SegnoMostrato(), Casella::Nessuno);
    EXPECT_EQ(Barra(), "\"1 000 kN\" letto come 1");
    EXPECT_EQ(changes.size(), typed) << "the number is the same";
}

TEST_F(EntrataTest, ANumberOnItsWayIsNotTold) {
    for (const char* text : {"-", "2,", "-,", "1E", "1E-", ","}) {
        prima.clear();
        QTest::keyClicks(&prima, text);
        EXPECT_EQ(prima.toolTip(), "Forza assiale") << text;
    }
    prima.setText("-");
    EXPECT_EQ(prima.toolTip(), "letto come 0") << "nobody is typing it";
    for (const char* text : {"--", "abc", "1,2,3"}) {
        prima.clear();
        QTest::keyClicks(&prima, text);
        EXPECT_NE(prima.toolTip(), "Forza assiale") << text;
    }
}

TEST_F(EntrataTest, PastedTextIsTrimmedAndUnderstood) {
    const auto paste = [this](const char16_t* text) {
        prima.clear();
        QApplication::clipboard()->setText(QString::fromUtf16(text));
        prima.paste();
        return prima.text();
    };
    EXPECT_EQ(paste(u"  \u221212,5 \t\r\n"), "-12,5");
    EXPECT_EQ(paste(u"1\u00A0234,5"), "1234,5");
    EXPECT_TRUE(InDigitazione(&prima));
    prima.setText("7");
    prima.setCursorPosition(0);
    QApplication::clipboard()->setText(" 12 ");
    prima.paste();
    EXPECT_EQ(prima.text(), "12 7") << "the blank inside stays, and is told";
    EXPECT_EQ(prima.toolTip(), "letto come 12");
    QTest::keyClicks(&seconda, "5 ");
    EXPECT_EQ(seconda.text(), "5 ") << "typed";
}

TEST_F(EntrataTest, AMarkTellsItsReason) {
    prima.setText("-5");
    SegnaEntrata(&prima, "La lunghezza non può essere negativa");
    EXPECT_EQ(prima.toolTip(), "La lunghezza non può essere negativa");
    EXPECT_EQ(prima.SegnoMostrato(), Casella::Impossibile);
    EXPECT_EQ(Barra(), "La lunghezza non può essere negativa");
    SegnaEntrata(&prima, {});
    EXPECT_EQ(prima.toolTip(), "Forza assiale");
    EXPECT_EQ(Barra(), "");
}

TEST_F(EntrataTest, TintsKeepTheTextReadable) {
    const auto luminance = [](const QColor& c) {
        const auto linear = [](double v) {
            return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
    };
    for (const auto mark : {Casella::Riletta, Casella::Impossibile}) {
        prima.ImpostaSegno(mark);
        const double base = luminance(prima.palette().color(QPalette::Base));
        const double text = luminance(prima.palette().color(QPalette::Text));
        EXPECT_GE((std::max(base, text) + 0.05) / (std::min(base, text) + 0.05), 4.5);
    }
}

class RegoleEntrateTest : public EntrataTest {
protected:
    void SetUp() override {
        EntrataTest::SetUp();
        const auto negative = [this] { return NumeroIn(&prima) < 0 ? QString("negativa") : QString(); };
        regole.Aggiunge({{&prima},
                         negative,
                         [this] {
                             ++corrette;
                             prima.setText(prima.text().mid(1));
                         },
                         {&uno}});
        regole.Aggiunge({{&seconda},
                         [this] { return NumeroIn(&seconda) < 0 ? QString("impossibile") : QString(); },
                         {},
                         {&due}});
    }
    void Calcola() {
        regole.Applica();
        uno.setText("1");
        due.setText("2");
        regole.SvuotaRisultati();
    }
    RegoleEntrate regole;
    QLabel uno, due;
    int corrette = 0;
};

TEST_F(RegoleEntrateTest, WaitForTheEndOfTheTyping) {
    QTest::keyClicks(&prima, "-3");
    Calcola();
    EXPECT_EQ(corrette, 0);
    EXPECT_EQ(uno.text(), "");
    EXPECT_EQ(due.text(), "2") << "hangs on the other entry";
    EXPECT_EQ(prima.SegnoMostrato(), Casella::Nessuno) << "it will be mended";
    campi->Conclude();
    Calcola();
    EXPECT_EQ(corrette, 1);
    EXPECT_EQ(uno.text(), "1");
    EXPECT_TRUE(regole.Sta(&prima));
}

TEST_F(RegoleEntrateTest, MarkWhatCannotBeMended) {
    QTest::keyClicks(&seconda, "-3");
    Calcola();
    EXPECT_EQ(due.text(), "");
    EXPECT_EQ(uno.text(), "1");
    EXPECT_EQ(seconda.SegnoMostrato(), Casella::Impossibile);
    EXPECT_FALSE(regole.Sta(&seconda));
    seconda.setText("3");
    Calcola();
    EXPECT_EQ(due.text(), "2");
    EXPECT_EQ(seconda.SegnoMostrato(), Casella::Nessuno);
}

TEST(CasellaTest, AResultLongerThanItsBoxShowsItsHead) {
    Casella box;
    box.setToolTip("Resistenza");
    box.ImpostaRisultato(true);
    box.show();
    box.resize(40, box.height());
    box.setText(" 1,234,567,890,123");
    EXPECT_EQ(box.cursorPosition(), 0);
    EXPECT_EQ(box.toolTip(), " 1,234,567,890,123\nResistenza");
    box.resize(400, box.height());
    QCoreApplication::processEvents();
    EXPECT_EQ(box.toolTip(), "Resistenza");
    box.resize(40, box.height());
    box.setText(" 1");
    EXPECT_EQ(box.toolTip(), "Resistenza");
}

} // namespace
