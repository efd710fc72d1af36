#include "frame/ui/Guida.h"

#include <QApplication>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

#include "frame/ui/AmbienteFinestre.h"
#include "frame/ui/IndiceGuida.h"
#include "frame/ui/TestoGuida.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class GuidaTest : public AmbienteFinestre {
protected:
    void SetUp() override {
        AmbienteFinestre::SetUp();
        CopiaAccanto("GiuntoFlangiato.hlp");
    }
    static QWidget* Finestra() {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "FinestraGuida" && w->isVisible())
                return w;
        return nullptr;
    }
    static QTextBrowser* Testo() {
        return Finestra() == nullptr ? nullptr : Finestra()->findChild<QTextBrowser*>();
    }
    static std::string Posto() {
        const QUrl source = Testo()->source();
        return (source.path().mid(1) + u'#' + source.fragment()).toStdString();
    }
    static QListWidget* Lista(const char* name) { return Trova<QListWidget>(Finestra(), name); }
    void TearDown() override {
        Guida::ImpostaFile({});
        if (auto* window = Finestra()) {
            Trova<QLineEdit>(window, "txtCerca")->clear();
            window->hide();
            QWidget elsewhere; // the offscreen platform leaves the focus with a window that is hidden
            elsewhere.show();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&elsewhere));
        }
        AmbienteFinestre::TearDown();
    }
};

TEST_F(GuidaTest, F1OpensTheHelpOfTheProgram) {
    Schermo first(QStringLiteral("frmDoppioT"));
    auto* box = new QLineEdit(&first);
    box->setObjectName("Txt_L0_1");
    first.show();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_F1);
    ASSERT_NE(Finestra(), nullptr);
    EXPECT_TRUE(Testo()->toPlainText().contains("Lunghezze di libera inflessione", Qt::CaseInsensitive));
    EXPECT_EQ(Posto(), "Sagomi.hlp#Txt_L0") << "the place of the array of boxes";
    QTest::keyClick(Finestra(), Qt::Key_Escape);
    EXPECT_EQ(Finestra(), nullptr);
}

TEST_F(GuidaTest, FileIsFoundWhateverTheCaseOfItsLetters) {
    Guida::Apre(QStringLiteral("SAGOMI.HLP"));
    EXPECT_NE(Finestra(), nullptr);
    EXPECT_TRUE(registratore.testi.empty());
}

// The row of the message, with the viewer over the box, in use; closing it leaves the box as it was.
TEST_F(GuidaTest, F1OverAMessageExplainsIt) {
    QMessageBox box;
    box.setText(QStringLiteral("Il piolo esce dalla soletta!"));
    box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box.setModal(true);
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    QTest::keyClick(&box, Qt::Key_F1);
    ASSERT_NE(Finestra(), nullptr);
    EXPECT_EQ(Testo()->textCursor().selectedText(), "Il piolo esce dalla soletta!");
    ASSERT_TRUE(QTest::qWaitForWindowActive(Finestra()));
    QTest::keyClick(Finestra()->windowHandle(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Trova<QLineEdit>(Finestra(), "txtTrova")->isVisible()) << "the box blocks the viewer";
    QTest::keyClick(Finestra()->windowHandle(), Qt::Key_Escape);
    QTest::keyClick(Finestra()->windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(Finestra(), nullptr);
    EXPECT_TRUE(box.isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
}

TEST_F(GuidaTest, AMessageOfTheJointIsExplainedInItsFile) {
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("x"),
                    QStringLiteral("u max è superiore a metà dell'altezza della trave pari a 135 mm"));
    box.setModal(true);
    box.show();
    QTest::keyClick(&box, Qt::Key_F1);
    ASSERT_NE(Finestra(), nullptr);
    EXPECT_EQ(Posto(), "GiuntoFlangiato.hlp#messaggi");
    EXPECT_EQ(Testo()->textCursor().selectedText(),
              "u max è superiore a metà dell'altezza della trave pari a");
}

PostoMessaggio NelGiunto(const char* message) {
    return PostoDelMessaggio(LeggeGuida(QStringLiteral("GiuntoFlangiato.hlp")), QString::fromUtf8(message));
}

TEST_F(GuidaTest, ARowIsFoundByAllOfItsMessageNotByAPiece) {
    const PostoMessaggio d1 = NelGiunto(
        "Il valore di d1 porta ad una distanza verticale dell'asse dei bulloni dal filo interno dell'ala "
        "della trave che non consente la realizzazione del foro. Verrà inserito automaticamente il "
        "valore minimo pari a 23 mm");
    EXPECT_TRUE(d1.cella.startsWith(QStringLiteral("Il valore di d1"))) << d1.cella.toStdString();
    const PostoMessaggio bf =
        NelGiunto(" bf è superiore a quello massimo pari alla larghezza della colonna 300");
    EXPECT_TRUE(bf.cella.startsWith(QStringLiteral("bf è inferiore"))) << bf.cella.toStdString();
    EXPECT_EQ(bf.parole, "bf è superiore a quello massimo");
    EXPECT_EQ(NelGiunto("Il file").lettere, 0);
    const QString rows =
        QStringLiteral("<a name=\"m\"></a><table><tr><td><b>Messaggio</b></td><td>C</td></tr>"
                       "<tr><td>Il file ... non si legge</td><td>a</td></tr>"
                       "<tr><td>Il file non va; Il file non si legge ora</td><td>b</td></tr></table>");
    EXPECT_TRUE(PostoDelMessaggio(rows, QStringLiteral("Il file")).ancora.isEmpty());
    EXPECT_TRUE(PostoDelMessaggio(rows, QStringLiteral("non si legge: Il file")).ancora.isEmpty());
    EXPECT_EQ(PostoDelMessaggio(rows, QStringLiteral("Il file \"x\" non si legge.")).lettere, 19);
    EXPECT_EQ(PostoDelMessaggio(rows, QStringLiteral("Il file non si legge ora")).lettere, 24);
}

// Words that stand in an earlier row as well are marked in their own.
TEST_F(GuidaTest, TheWordsAreMarkedInTheirRow) {
    QMessageBox box(
        QMessageBox::NoIcon, QStringLiteral("x"),
        QStringLiteral("Il valore di ef inserito porta ad una distanza orizzontale dell'asse che non "
                       "consente la realizzazione del foro. Verrà inserito"));
    box.setModal(true);
    box.show();
    QTest::keyClick(&box, Qt::Key_F1);
    ASSERT_NE(Finestra(), nullptr);
    EXPECT_EQ(Testo()->textCursor().selectedText(),
              "Il valore di ef inserito porta ad una distanza orizzontale");
}

// The help stays when the box goes, and can be used then too; a message that nobody explains has the help of
// the window below it.
TEST_F(GuidaTest, TheViewerOutlivesTheBoxItStoodOver) {
    Schermo below(QStringLiteral("frmBulloni"));
    below.show();
    {
        QMessageBox box(QMessageBox::NoIcon, QStringLiteral("x"), QStringLiteral("Mai detto"),
                        QMessageBox::NoButton, &below);
        box.setModal(true);
        box.show();
        QTest::keyClick(&box, Qt::Key_F1);
        ASSERT_NE(Finestra(), nullptr);
        EXPECT_EQ(Posto(), "Sagomi.hlp#frmBulloni");
        box.hide();
    }
    ASSERT_NE(Finestra(), nullptr);
    EXPECT_EQ(Finestra()->windowHandle()->transientParent(), nullptr);
    QTest::keyClick(Finestra()->windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(Finestra(), nullptr);
}

// A box over the viewer itself cannot have it over itself.
TEST_F(GuidaTest, ABoxOverTheViewerIsLeftAlone) {
    Guida::Apre(QStringLiteral("Sagomi.hlp"));
    ASSERT_NE(Finestra(), nullptr);
    QMessageBox box(Finestra());
    box.setModal(true);
    box.show();
    QTest::keyClick(&box, Qt::Key_F1);
    EXPECT_EQ(Finestra()->windowHandle()->transientParent(), nullptr);
}

// Notches without number, up and down: the font stays between 6 and 40 points, and what a notch did another
// one undoes.
TEST_F(GuidaTest, ZoomHasItsBounds) {
    Guida::Apre(QStringLiteral("Sagomi.hlp"));
    QTextBrowser* window = Testo();
    ASSERT_NE(window, nullptr);
    const auto notches = [window](int n) {
        QWheelEvent event({50, 50}, window->mapToGlobal(QPointF(50, 50)), {}, {0, 120 * n}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(window->viewport(), &event);
        return window->font().pointSizeF();
    };
    const double start = window->font().pointSizeF();
    EXPECT_NEAR(notches(1), start + 1, 0.1);
    EXPECT_NEAR(notches(-1), start, 0.1);
    for (int i = 0; i < 300; ++i)
        EXPECT_LE(notches(10), 40.1);
    for (int i = 0; i < 300; ++i)
        EXPECT_GE(notches(-10), 5.9);
    EXPECT_LE(notches(1000000), 40.1);
}

// Wider than the page: the picture is made smaller, in its own density; the text needs no scroll bar below
// it.
TEST_F(GuidaTest, PicturesFitThePage) {
    const auto before = TestoGuida::figura;
    TestoGuida::figura = [](const QString& name) {
        QImage picture(name == u"larga" ? QSize(3000, 300) : QSize(200, 100), QImage::Format_RGB32);
        picture.setDevicePixelRatio(name == u"larga" ? 2 : 1);
        return picture;
    };
    Guida::Apre(QStringLiteral("Sagomi.hlp"));
    const auto picture = [](const char* url) {
        return Testo()->loadResource(QTextDocument::ImageResource, QUrl(QLatin1String(url))).value<QImage>();
    };
    EXPECT_EQ(picture("figura:piccola").size(), QSize(200, 100));
    const QImage wide = picture("figura:larga");
    EXPECT_EQ(wide.devicePixelRatio(), 2);
    EXPECT_LT(wide.deviceIndependentSize().width(), std::max(Testo()->viewport()->width(), 560));
    EXPECT_GT(wide.deviceIndependentSize().width(), 500);
    TestoGuida::figura = before;
}

// Drawn 1500 wide: as wide as the page in the narrow window and in the wide one; the small one is left alone.
TEST_F(GuidaTest, PicturesFollowTheWidthOfThePage) {
    const auto before = TestoGuida::figura;
    int drawn = 0;
    TestoGuida::figura = [&drawn](const QString& name) {
        ++drawn;
        QImage picture(name == u"curve" ? QSize(1500, 150) : QSize(200, 100), QImage::Format_RGB32);
        picture.fill(Qt::red);
        return picture;
    };
    const auto shown = [](const char* url) {
        return Testo()
            ->document()
            ->resource(QTextDocument::ImageResource, QUrl(QLatin1String(url)))
            .value<QImage>()
            .width();
    };
    Guida::Apre(QStringLiteral("GiuntoFlangiato.hlp")); // another text than that with the pictures
    Guida::Apre(QStringLiteral("Sagomi.hlp"));
    for (const int width : {900, 1300, 1000}) {
        Finestra()->resize(width, 600);
        QTRY_COMPARE(shown("figura:curve"), Testo()->viewport()->width() - 24);
        EXPECT_EQ(Testo()->horizontalScrollBar()->maximum(), 0) << width;
    }
    const int all = drawn;
    Finestra()->resize(1000, 700);
    QTest::qWait(200);
    EXPECT_EQ(drawn, all) << "the height alone has changed";
    Guida::Apre(QStringLiteral("GiuntoFlangiato.hlp"));
    Finestra()->resize(1250, 700);
    QTest::qWait(200);
    Guida::Apre(QStringLiteral("Sagomi.hlp"));
    QTRY_COMPARE(shown("figura:curve"), Testo()->viewport()->width() - 24); // another text came between
    Finestra()->resize(950, 700);
    QTRY_COMPARE(shown("figura:curve"), Testo()->viewport()->width() - 24);
    TestoGuida::figura = before;
}

TEST_F(GuidaTest, MissingFileIsToldByName) {
    Guida::Apre(QStringLiteral("Manca.hlp"));
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_NE(registratore.testi[0].find("Manca.hlp"), std::string::npos);
    EXPECT_EQ(Finestra(), nullptr);
}

TEST_F(GuidaTest, JointScreenHasItsOwnFileAndTheIndexKnowsBoth) {
    Guida::ImpostaFile(QStringLiteral("GiuntoFlangiato.hlp"));
    Schermo joint(QStringLiteral("frmGiunti"));
    auto* box = new QLineEdit(&joint);
    box->setObjectName("Textbf");
    joint.show();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_F1);
    ASSERT_NE(Finestra(), nullptr);
    EXPECT_EQ(Posto(), "GiuntoFlangiato.hlp#Textbf");
    const auto titles = [](const char* list) {
        QStringList found;
        for (int i = 0; i < Lista(list)->count(); ++i)
            found << Lista(list)->item(i)->text().trimmed();
        return found;
    };
    EXPECT_TRUE(titles("lstArgomenti").contains("Bulloni"));
    EXPECT_TRUE(titles("lstArgomenti").contains("Scheda Parametri"));
    EXPECT_TRUE(titles("lstIndice").contains("Nodo"));
}

TEST_F(GuidaTest, AHelpFileOfAnyLengthIsNotRead) {
    const auto file = std::filesystem::path(PathProgramma) / "GiuntoFlangiato.hlp";
    std::filesystem::resize_file(file, 16U << 20U);
    EXPECT_FALSE(LeggeGuida(QStringLiteral("GiuntoFlangiato.hlp")).isEmpty());
    std::filesystem::resize_file(file, (16U << 20U) + 1);
    EXPECT_TRUE(LeggeGuida(QStringLiteral("GiuntoFlangiato.hlp")).isEmpty());
}

// A control without a place of its own leads to the part of the screen that it stands in, then to the screen.
TEST_F(GuidaTest, PlaceOfAControlIsTheNearestOneAroundIt) {
    Schermo joint(QStringLiteral("frmGiunti"));
    auto* part = new QGroupBox(&joint);
    part->setObjectName("fraFlangia");
    auto* inside = new QLineEdit(part);
    inside->setObjectName("TextIgnota");
    auto* outside = new QLineEdit(&joint);
    const QString text = LeggeGuida(QStringLiteral("giuntoflangiato.HLP"));
    EXPECT_EQ(AncoraDi(text, inside), "fraFlangia");
    EXPECT_EQ(AncoraDi(text, outside), "frmGiunti");
    inside->setObjectName("Texttf_1");
    EXPECT_EQ(AncoraDi(text, inside), "frmGiunti.Texttf_1") << "the limit, not the thickness";
    inside->setObjectName("Texttf");
    EXPECT_EQ(AncoraDi(text, inside), "Texttf");
    const QString shared = QStringLiteral(
        "<a name=\"*.Txt_fy\"><a name=\"Txt_fy\"><a name=\"frmGiunti\"><a name=\"altro.Txt_fy\">");
    inside->setObjectName("Txt_fy");
    EXPECT_EQ(AncoraDi(shared, inside), "*.Txt_fy") << "the same on all screens";
}

TEST_F(GuidaTest, SearchFindsTheTopicsThatHoldAllWords) {
    Guida::Apre(QStringLiteral("Sagomi.hlp"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(Finestra()));
    const int all = Lista("lstArgomenti")->count();
    auto* search = Trova<QLineEdit>(Finestra(), "txtCerca");
    QTest::keyClick(Testo(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_TRUE(search->hasFocus());
    QTest::keyClicks(search, "rigidezza SEMIRIGIDO");
    EXPECT_GT(Lista("lstArgomenti")->count(), 0);
    EXPECT_LT(Lista("lstArgomenti")->count(), all);
    EXPECT_EQ(Lista("lstArgomenti")->item(0)->text().trimmed(), "Scheda Rigidezza") << "titles go first";
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(Posto(), "GiuntoFlangiato.hlp#pagRigidezza");
    search->setText("unita");
    EXPECT_GT(Lista("lstArgomenti")->count(), 0) << "accents do not count";
    search->setText("parolachenonesiste");
    EXPECT_EQ(Lista("lstArgomenti")->count(), 0);
}

// The same topics in the same order as where all plain texts are made by the toolkit and compared at once.
TEST_F(GuidaTest, SearchFindsWhatTheWholeTextsHold) {
    const auto plain = [](const QString& html) {
        return QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
    };
    const auto folded = [](QString text) {
        static const QRegularExpression marks(QStringLiteral("\\p{M}"));
        return text.normalized(QString::NormalizationForm_KD).remove(marks).toCaseFolded();
    };
    QList<ArgomentoGuida> topics;
    for (const auto* file : {"Sagomi.hlp", "GiuntoFlangiato.hlp"})
        topics << ArgomentiGuida(QLatin1String(file), LeggeGuida(QLatin1String(file)));
    ASSERT_GT(topics.size(), 60);
    RicercaGuida search(topics);
    for (const QString words : {"", "  ", "Rigidezza SEMIRIGIDO", "e", "UNITA", "perché à", "piolo soletta",
                                "scheda", "M&amp;N", "<b>", "zzzz", "classe 4 anima", "γ", "ﬁ"}) {
        QStringList titled;
        QStringList others;
        for (const ArgomentoGuida& topic : topics) {
            const auto holds = [&](const QString& text) {
                const QStringList all = folded(words).split(u' ', Qt::SkipEmptyParts);
                return std::ranges::all_of(all, [&](const QString& w) { return folded(text).contains(w); });
            };
            if (holds(topic.titolo))
                titled << topic.titolo;
            else if (holds(topic.titolo + u' ' + plain(topic.corpo)))
                others << topic.titolo;
        }
        QStringList found;
        for (const ArgomentoGuida& topic : search.Cerca(words))
            found << topic.titolo;
        EXPECT_EQ(found, titled + others) << words.toStdString();
    }
}

// Places, marks, entities and white space of a title, and the order of the index.
TEST_F(GuidaTest, TitlesAreThePlainTextsOfTheHeadings) {
    const auto titles = [](const QList<ArgomentoGuida>& topics) {
        QStringList all;
        for (const ArgomentoGuida& topic : topics)
            all << topic.titolo;
        return all;
    };
    const QString html = QStringLiteral("<h1><a name=\"a\"></a>Una\n  <i>riga</i></h1>x"
                                        "<h2><a name=\"b\"></a><a name=\"c\"></a>Più  di due</h2>"
                                        "<h3>A &amp; B&nbsp;C</h3><h2></h2>"
                                        "<a name=\"d\"></a><b>área</b> <a name=\"e\"></a><b>Zona</b>");
    EXPECT_EQ(titles(ArgomentiGuida({}, html)), (QStringList{"Una riga", "Più di due", "A & B C", ""}));
    EXPECT_EQ(titles(IndiceGuida({}, html)),
              (QStringList{"", "A & B C", "área", "Più di due", "Una riga", "Zona"}));
}

TEST_F(GuidaTest, BackAndForwardFollowTheWayThroughTheTopics) {
    Guida::Apre(QStringLiteral("Sagomi.hlp"), QStringLiteral("frmBulloni"));
    const std::string first = Posto();
    Guida::Apre(QStringLiteral("GiuntoFlangiato.hlp"), QStringLiteral("frmGiunti.Optfila"));
    EXPECT_EQ(Posto(), "GiuntoFlangiato.hlp#Optfila");
    ASSERT_TRUE(QTest::qWaitForWindowActive(Finestra()));
    QTest::keyClick(Testo(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Posto(), first);
    EXPECT_TRUE(Trova<QPushButton>(Finestra(), "cmdAvanti")->isEnabled());
    QTest::keyClick(Testo(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Posto(), "GiuntoFlangiato.hlp#Optfila");
}

TEST_F(GuidaTest, FindBoxGoesFromWordToWordAndEscClosesItFirst) {
    Guida::Apre(QStringLiteral("Sagomi.hlp"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(Finestra()));
    QTest::keyClick(Testo(), Qt::Key_F, Qt::ControlModifier);
    auto* find = Trova<QLineEdit>(Finestra(), "txtTrova");
    ASSERT_TRUE(find->isVisible());
    find->setText("rifollamento");
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(Testo()->textCursor().selectedText().toLower(), "rifollamento");
    const int first = Testo()->textCursor().position();
    QTest::keyClick(find, Qt::Key_F3);
    EXPECT_GT(Testo()->textCursor().position(), first);
    QTest::keyClick(find, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Testo()->textCursor().position(), first);
    find->setText("zzzz");
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(Trova<QLabel>(Finestra(), "lblTrova")->text(), "non trovato");
    QTest::keyClick(find, Qt::Key_Escape);
    EXPECT_FALSE(find->isVisible());
    QTest::keyClick(Testo(), Qt::Key_Escape);
    EXPECT_EQ(Finestra(), nullptr);
}

TEST_F(GuidaTest, F1InTheGuideExplainsTheGuide) {
    Guida::ImpostaFile(QStringLiteral("GiuntoFlangiato.hlp"));
    Guida::Apre(QStringLiteral("GiuntoFlangiato.hlp"));
    QTest::keyClick(Testo(), Qt::Key_F1);
    EXPECT_EQ(Posto(), "Sagomi.hlp#FinestraGuida");
}

} // namespace
