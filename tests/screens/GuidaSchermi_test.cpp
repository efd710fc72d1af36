#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>
#include <QTextBrowser>
#include <QUrl>

#include <filesystem>
#include <stdexcept>

#include "frame/ui/FinestraGuida.h"
#include "frame/ui/Guida.h"
#include "frame/ui/IndiceGuida.h"
#include "screens/Comandi.h"
#include "screens/SagomiGuida.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class GuidaSchermiTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        CopiaAccanto("GiuntoFlangiato.hlp");
    }
};

/// What the user can have in hand, with a name that the help may know.
bool InMano(const QWidget* w) {
    const bool part = w->objectName().isEmpty() || w->objectName().startsWith(QStringLiteral("qt_")) ||
                      w->objectName().startsWith(QStringLiteral("Scroll")) ||
                      w->objectName() == u"txtNascosto" || // never in sight
                      qobject_cast<const QComboBox*>(w->parentWidget()) != nullptr;
    return !part &&
           (qobject_cast<const QAbstractButton*>(w) != nullptr ||
            qobject_cast<const QLineEdit*>(w) != nullptr || qobject_cast<const QComboBox*>(w) != nullptr ||
            qobject_cast<const QTableView*>(w) != nullptr);
}

// The topic of the control itself or of the part that it stands in: that of the whole window says too little.
TEST_F(GuidaSchermiTest, EveryControlOfEveryScreenHasItsTopic) {
    Schermo& main = Avvia();
    auto& n = NavigaSchermi::Unico();
    int controls = 0;
    for (const VoceSchermo& voce : QList<VoceSchermo>(n.Tavola())) {
        const Schermo& screen = n.Prende(voce.nome);
        const QString html = LeggeGuida(screen.FileGuida());
        ASSERT_FALSE(html.isEmpty());
        EXPECT_FALSE(AncoraDi(html, voce.nome).isEmpty()) << voce.nome.toStdString();
        for (const QWidget* w : screen.findChildren<QWidget*>())
            if (InMano(w) && w->window() == &screen) {
                const QString place = AncoraDi(html, w);
                EXPECT_TRUE(!place.isEmpty() && (place != voce.nome || voce.nome == u"FrmInform"))
                    << voce.nome.toStdString() << '.' << w->objectName().toStdString();
                ++controls;
            }
    }
    EXPECT_GT(controls, 500);
    EXPECT_TRUE(main.isVisible());
}

/// Where the viewer stands after F1 in a window: file and place.
QUrl DopoF1(const Schermo& screen) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(&const_cast<Schermo&>(screen), &key);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (const auto* viewer = qobject_cast<FinestraGuida*>(window))
            return viewer->findChild<QTextBrowser*>()->source();
    return {};
}

// The file in force is that of the window before, whose drawing is shown or whose report is asked for.
TEST_F(GuidaSchermiTest, EveryWindowHasItsTopicWithEachFileInForce) {
    Avvia();
    Guida::Installa();
    auto& n = NavigaSchermi::Unico();
    for (const char* file : {"Sagomi.hlp", "GiuntoFlangiato.hlp"})
        for (const VoceSchermo& voce : QList<VoceSchermo>(n.Tavola())) {
            const Schermo& screen = n.Prende(voce.nome);
            Guida::ImpostaFile(QLatin1String(file));
            EXPECT_EQ(DopoF1(screen).fragment(), voce.nome) << file;
        }
    Guida::ImpostaFile(QStringLiteral("GiuntoFlangiato.hlp"));
    EXPECT_TRUE(DopoF1(n.Prende(QStringLiteral("FrmPltSezione")))
                    .toString()
                    .endsWith(QStringLiteral("GiuntoFlangiato.hlp#FrmPltSezione")));
    Guida::ImpostaFile({});
}

/// The topic that holds a place, with the parts below its heading.
QString Argomento(const QString& html, const QString& place) {
    const qsizetype at = html.indexOf(QLatin1String("name=\"") + place + u'"');
    const qsizetype from = html.lastIndexOf(QStringLiteral("<h2>"), at);
    return html.mid(from, html.indexOf(QStringLiteral("<h2>"), at) - from);
}

// Every window but that of version and licence, which has nothing to be drawn; the first has its picture with
// the table.
TEST_F(GuidaSchermiTest, EveryScreenHasAPictureInItsTopic) {
    Avvia();
    auto& n = NavigaSchermi::Unico();
    for (const VoceSchermo& voce : QList<VoceSchermo>(n.Tavola())) {
        if (voce.nome == u"FrmInform")
            continue;
        const QString html = LeggeGuida(n.Prende(voce.nome).FileGuida());
        const QString place = voce.nome == u"frmDoppioT" ? QStringLiteral("DBGrid1") : voce.nome;
        EXPECT_TRUE(Argomento(html, place).contains(QStringLiteral("<img src=\"figura:")))
            << voce.nome.toStdString();
    }
}

// A workbook that comes back is read; pictures without it are not kept.
TEST_F(GuidaSchermiTest, PicturesComeBackWithTheWorkbook) {
    const auto file = std::filesystem::path(PathProgramma) / "Sagomi.xls";
    const auto aside = std::filesystem::path(PathProgramma) / "altrove";
    std::filesystem::rename(file, aside);
    EXPECT_TRUE(GaraGuida().sagomi.empty());
    EXPECT_THROW((void)SagomoGuida("IPE 300"), std::out_of_range);
    std::filesystem::rename(aside, file);
    EXPECT_EQ(SagomoGuida("IPE 300").Designazione(), "IPE 300");
    const Gara* kept = &GaraGuida();
    EXPECT_EQ(kept->sagomi.data(), GaraGuida().sagomi.data()) << "read once";
}

} // namespace
