#include "drawing/ui/FrmPltSezione.h"

#include <QAction>
#include <QMenu>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextBrowser>
#include <QTimer>

#include "drawing/Grafica.h"
#include "drawing/ui/AreaDisegno.h"
#include "drawing/ui/Immagini.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "frame/ui/FileDialogo.h"
#include "screens/Ambiente.h"
#include "screens/PlottaSezioneCorrente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmPltSezioneTest : public AmbienteSchermi {
protected:
    void TearDown() override {
        ImpostaSceltaFile({});
        ImpostaSceltaStampante({});
        AmbienteSchermi::TearDown();
    }

    static FrmPltSezione* Anteprima() {
        return dynamic_cast<FrmPltSezione*>(NavigaSchermi::Unico().Trova(QStringLiteral("FrmPltSezione")));
    }
    /// Presses "Plotta" on the first screen.
    static FrmPltSezione& Plotta(frmDoppioT& s) {
        Trova<QPushButton>(&s, "CmdPlotta")->click();
        return *Anteprima();
    }
    static AreaDisegno& Area(FrmPltSezione& p) { return *Trova<AreaDisegno>(&p, "Picture1"); }
    static void Sceglie(FrmPltSezione& p, const char* action) { Trova<QAction>(&p, action)->trigger(); }

    /// A source that writes down who asked for its drawing, and on which device.
    SorgenteDisegno Sorgente(const std::string& name) {
        return [this, name] {
            ++richieste;
            return Disegno{name, [this](Superficie*, std::string_view screen) {
                               maschere.emplace_back(screen);
                               dispositivi.push_back(Dispositivo);
                           }};
        };
    }
    int richieste = 0;
    std::vector<std::string> maschere, dispositivi;
};

TEST_F(FrmPltSezioneTest, StandsReadyBehindTheFirstScreen) {
    auto& s = Avvia();
    ASSERT_NE(Anteprima(), nullptr);
    EXPECT_FALSE(Anteprima()->isVisible());
    FrmPltSezione* first = Anteprima();
    s.AllAttivazione();
    EXPECT_EQ(&Plotta(s), first) << "created once";
}

TEST_F(FrmPltSezioneTest, HasItsControlsWithTheirCaptions) {
    FrmPltSezione& p = Plotta(Avvia());
    const std::pair<const char*, const char*> actions[] = {{"mnuFileItem_0", "&Stampa"},
                                                           {"mnuFileItem_1", "File &DXF"},
                                                           {"mnuFileItem_2", "&CAD"},
                                                           {"mnuFileItem_3", "&Chiudi"},
                                                           {"mnuAnteprima", "&Anteprima di stampa"},
                                                           {"mnuVistaItem_0", "&Tutto"},
                                                           {"mnuVistaItem_1", "&Ingrandisci"},
                                                           {"mnuVistaItem_2", "&Riduci"}};
    for (const auto& [name, caption] : actions)
        EXPECT_EQ(Trova<QAction>(&p, name)->text(), caption);
    EXPECT_EQ(Trova<QAction>(&p, "mnuFileItem_0")->shortcut(), QKeySequence(QStringLiteral("Ctrl+P")));
    EXPECT_EQ(Trova<QAction>(&p, "mnuAnteprima")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+P")));
    EXPECT_EQ(Trova<QMenu>(&p, "mnuFile")->title(), "&File");
    EXPECT_EQ(Trova<QPushButton>(&p, "CmdPlotta")->text(), "Plotta");
    EXPECT_EQ(p.FileGuida(), "Sagomi.hlp");
}

TEST_F(FrmPltSezioneTest, ShowsTheSectionInHand) {
    auto& s = Avvia();
    VaA(s, "IPE 300");
    FrmPltSezione& p = Plotta(s);
    EXPECT_TRUE(p.isVisible());
    EXPECT_TRUE(s.isVisible());
    EXPECT_EQ(p.windowTitle(), "Plotta - IPE 300");
    EXPECT_EQ(p.NomeChiamante(), "frmDoppioT");
    const QImage picture = Area(p).grab().toImage();
    const QRect box = Inchiostro(picture);
    EXPECT_GT(box.height(), Area(p).height() * 8 / 10) << "the drawing fills its window";
    EXPECT_GE(box.top(), 0);
    EXPECT_LT(box.bottom(), Area(p).height());
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmPltSezioneTest, AnotherRowShowsAtOnce) {
    auto& s = Avvia();
    FrmPltSezione& p = Plotta(s);
    EXPECT_EQ(p.windowTitle(), "Plotta - IPE 80");
    VaA(s, "IPE 600");
    EXPECT_EQ(p.windowTitle(), "Plotta - IPE 600");
    const QImage picture = Area(p).grab().toImage();
    Trova<QPushButton>(&p, "CmdPlotta")->click();
    EXPECT_EQ(Area(p).grab().toImage(), picture) << "name and picture go together";
}

TEST_F(FrmPltSezioneTest, EveryShowingHandsTheCallersNameAnew) {
    auto& s = Avvia();
    for (const char* caller : {"frmSagomiU", "frmAcciaioCls", "frmGiunti", "FrmClasseDoppioTU"}) {
        maschere.clear();
        FrmPltSezione::Mostra(s, QString::fromLatin1(caller), Sorgente(std::string("disegno di ") + caller));
        FrmPltSezione& p = *Anteprima();
        EXPECT_EQ(p.NomeChiamante(), caller);
        EXPECT_EQ(p.windowTitle().toStdString(), std::string("Plotta - disegno di ") + caller);
        Area(p).grab();
        ASSERT_FALSE(maschere.empty());
        EXPECT_EQ(maschere.back(), caller);
        EXPECT_EQ(dispositivi.back(), "VIDEO");
    }
    EXPECT_EQ(NavigaSchermi::Unico().Attivo(), Anteprima());
}

TEST_F(FrmPltSezioneTest, EffectiveOutlinesForTheClassScreen) {
    auto& s = Avvia();
    auto section = std::make_shared<SezioneDoppioT>();
    section->Designation = "HSL 1200x190";
    section->fy = 355;
    section->InizializzaSezioneUtente(nullptr, 1200, 500, 8, 12, 6);
    const auto picture = [&](const char* caller, std::int16_t which) {
        section->SezioneEfficaceDaPlottare = which;
        FrmPltSezione::Mostra(s, QString::fromLatin1(caller), [section] {
            return Disegno{section->Designation, [section](Superficie* target, std::string_view screen) {
                               section->PlottaSezione(target, screen, Dispositivo);
                           }};
        });
        return Area(*Anteprima()).grab().toImage();
    };
    const QImage whole = picture("frmSaldati", 0);
    const QImage compression = picture("FrmClasseDoppioTU", 0);
    const QImage y = picture("FrmClasseDoppioTU", 1);
    const QImage z = picture("FrmClasseDoppioTU", 2);
    EXPECT_NE(whole, compression);
    EXPECT_NE(compression, y);
    EXPECT_NE(y, z);
}

TEST_F(FrmPltSezioneTest, AClassScreenPlotsTheCurrentSectionUnderItsOwnName) {
    auto& s = Avvia();
    Schermo classi(QStringLiteral("FrmClasseDoppioTU"));
    PlottaSezioneCorrente(classi);
    EXPECT_EQ(Anteprima()->NomeChiamante(), "FrmClasseDoppioTU");
    EXPECT_EQ(Anteprima()->windowTitle(), "Plotta - IPE 80");
    EXPECT_EQ(Anteprima()->origine, &classi);
    // The main screen makes a new section of its row; the outline asked for goes along.
    Sezione().SezioneEfficaceDaPlottare = 2;
    PlottaSezioneCorrente(classi);
    s.AllAttivazione();
    EXPECT_EQ(Sezione().SezioneEfficaceDaPlottare, 0);
    Anteprima()->AllAttivazione();
    EXPECT_EQ(Sezione().SezioneEfficaceDaPlottare, 2);
    Anteprima()->origine = &s;
}

TEST_F(FrmPltSezioneTest, ClosingGoesBackToTheCaller) {
    auto& s = Avvia();
    FrmPltSezione& p = Plotta(s);
    Sceglie(p, "mnuFileItem_3");
    EXPECT_FALSE(p.isVisible());
    EXPECT_EQ(NavigaSchermi::Unico().Attivo(), &s);
    Plotta(s);
    EXPECT_TRUE(p.isVisible());
    QTest::keyClick(&p, Qt::Key_Escape);
    EXPECT_FALSE(p.isVisible());
}

TEST_F(FrmPltSezioneTest, ZoomIsShownAndStartsAnewAtEachShowing) {
    auto& s = Avvia();
    FrmPltSezione& p = Plotta(s);
    const auto zoom = [&p] { return Trova<QLabel>(&p, "LblZoom")->text().toStdString(); };
    EXPECT_EQ(zoom(), "100 %");
    Sceglie(p, "mnuVistaItem_1");
    EXPECT_EQ(zoom(), "125 %");
    Sceglie(p, "mnuVistaItem_2");
    Sceglie(p, "mnuVistaItem_2");
    EXPECT_EQ(zoom(), "80 %");
    Trova<QPushButton>(&p, "CmdPlotta")->click();
    EXPECT_EQ(zoom(), "80 %") << "drawing anew keeps the view";
    Sceglie(p, "mnuVistaItem_0");
    EXPECT_EQ(zoom(), "100 %");
    Sceglie(p, "mnuVistaItem_1");
    Plotta(s);
    EXPECT_EQ(zoom(), "100 %");
}

TEST_F(FrmPltSezioneTest, MenuSendsTheDrawingToAFile) {
    auto& s = Avvia();
    VaA(s, "IPE 200");
    FrmPltSezione& p = Plotta(s);
    const QString file = cartella.filePath(QStringLiteral("IPE 200.dxf"));
    QString proposed;
    ImpostaSceltaFile([&](QWidget* above, std::string_view, const QString&, int, const QString& proposal) {
        EXPECT_EQ(above, &p);
        proposed = proposal;
        return file;
    });
    Sceglie(p, "mnuFileItem_1");
    EXPECT_EQ(proposed, "IPE 200.dxf");
    EXPECT_EQ(Trova<QLabel>(&p, "LblEsito")->text(), "FILE: " + file);
    const QByteArray bytes = Byte(file);
    EXPECT_TRUE(bytes.startsWith("  0\r\nSECTION\r\n"));
    EXPECT_TRUE(bytes.contains("\r\n  1\r\nIPE 200\r\n"));
    EXPECT_EQ(bytes.count("\r\nVERTEX\r\n"), 45) << "44 and the first again";
    const QList<QByteArray> lines = bytes.split('\n');
    for (qsizetype i = 0; i + 1 < lines.size(); i += 2)
        if (!lines[i].startsWith("  1")) {
            EXPECT_FALSE(lines[i + 1].contains(',')) << "points in coordinates, whatever the locale";
        }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmPltSezioneTest, MenuPrints) {
    auto& s = Avvia();
    VaA(s, "IPE 200");
    FrmPltSezione& p = Plotta(s);
    const QString pdf = cartella.filePath(QStringLiteral("foglio.pdf"));
    ImpostaSceltaStampante([&](QPrinter& printer, QWidget*) {
        printer.setOutputFileName(pdf);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setPageMargins({10, 10, 10, 10}, QPageLayout::Millimeter);
        return true;
    });
    Sceglie(p, "mnuFileItem_0");
    EXPECT_EQ(Trova<QLabel>(&p, "LblEsito")->text(), "STAMPANTE: " + pdf);
    if (!ConPoppler())
        GTEST_SKIP() << "poppler-utils is not installed";
    const QString text = TestoPdf(pdf);
    for (const char* line : {"IPE 200", "h = 200", "b = 100", "r = 12", "Scala 1:1"})
        EXPECT_TRUE(text.contains(QString::fromLatin1(line))) << line;
    EXPECT_TRUE(text.contains(QString::fromStdString(Locale("tw = 5.6"))));
    // The longest plumb line of the sheet is the one of the dimension h, in grey.
    const QImage page = PaginaPdf(pdf);
    int longest = 0;
    for (int x = 0; x < page.width(); ++x) {
        int run = 0;
        for (int y = 0; y < page.height(); ++y) {
            run = qGray(page.pixel(x, y)) < 192 ? run + 1 : 0;
            longest = std::max(longest, run);
        }
    }
    EXPECT_NEAR(longest, 2000, 10) << "200 mm are 200 mm";
}

TEST_F(FrmPltSezioneTest, MenuTriesTheCadProgram) {
    FrmPltSezione& p = Plotta(Avvia());
    Sceglie(p, "mnuFileItem_2");
    EXPECT_EQ(registratore.testi,
              std::vector<std::string>{
                  "Impossibile aprire Autocad.\r\nControllare che la versione di Autocad non sia LT"});
    EXPECT_EQ(Trova<QLabel>(&p, "LblEsito")->text(), "");
    EXPECT_TRUE(p.isVisible()) << "the screen stays";
}

TEST_F(FrmPltSezioneTest, PrintPreviewDrawsThePage) {
    auto& s = Avvia();
    FrmPltSezione::Mostra(s, QStringLiteral("frmDoppioT"), Sorgente("prova"));
    FrmPltSezione& p = *Anteprima();
    QTimer::singleShot(0, &p, [&p] {
        auto* dialog = p.findChild<QPrintPreviewDialog*>(QStringLiteral("AnteprimaDiStampa"));
        ASSERT_NE(dialog, nullptr);
        dialog->grab();
        dialog->reject();
    });
    Sceglie(p, "mnuAnteprima");
    EXPECT_NE(std::find(dispositivi.begin(), dispositivi.end(), "STAMPANTE"), dispositivi.end());
    EXPECT_EQ(Dispositivo, "VIDEO");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmPltSezioneTest, WithoutADrawingNothingCanBeSent) {
    auto& s = Avvia();
    FrmPltSezione::Mostra(s, QStringLiteral("frmDoppioT"), [] { return Disegno{}; });
    FrmPltSezione& p = *Anteprima();
    EXPECT_EQ(p.windowTitle(), "Plotta");
    for (const char* action : {"mnuFileItem_0", "mnuFileItem_1", "mnuFileItem_2", "mnuAnteprima"})
        EXPECT_FALSE(Trova<QAction>(&p, action)->isEnabled()) << action;
    EXPECT_TRUE(Trova<QAction>(&p, "mnuFileItem_3")->isEnabled());
    EXPECT_TRUE(Inchiostro(Area(p).grab().toImage()).isEmpty());
    Plotta(s);
    EXPECT_TRUE(Trova<QAction>(&p, "mnuFileItem_1")->isEnabled());
}

TEST_F(FrmPltSezioneTest, F1ExplainsThePreview) {
    FrmPltSezione& p = Plotta(Avvia());
    Area(p).setFocus();
    QTest::keyClick(&Area(p), Qt::Key_F1);
    QWidget* help = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "FinestraGuida" && w->isVisible())
            help = w;
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(help->findChild<QTextBrowser*>()->toPlainText().contains("La rotella del mouse ingrandisce"));
    help->hide();
}

TEST_F(FrmPltSezioneTest, WithoutARowPlottaDoesNothing) {
    auto& s = Avvia();
    for (QCheckBox* box : s.ChkTipo)
        box->setChecked(false);
    SezioneCorrente = {};
    PlottaSezioneCorrente(s);
    EXPECT_EQ(Anteprima()->windowTitle(), "Plotta");
}

} // namespace
