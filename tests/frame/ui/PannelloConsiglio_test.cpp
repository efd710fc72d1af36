#include "frame/ui/PannelloConsiglio.h"

#include <QApplication>
#include <QLabel>
#include <QToolButton>

#include "AmbienteFinestre.h"
#include "frame/ui/Colori.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

TEST(PannelloConsiglioTest, TakesRoomOnlyWhileThereIsSomethingToSay) {
    PannelloConsiglio panel;
    panel.ImpostaNome("LblNota");
    EXPECT_FALSE(panel.isVisible());
    panel.Mostra("Foro troppo grande");
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(Trova<QLabel>(&panel, "LblNota")->text(), "Foro troppo grande");
    panel.Mostra("");
    EXPECT_FALSE(panel.isVisible());
}

TEST(PannelloConsiglioTest, OnceClosedItWaitsForSomethingElse) {
    PannelloConsiglio panel;
    panel.ImpostaNome("LblNota");
    panel.Mostra("uno");
    Trova<QToolButton>(&panel, "CmdChiudiLblNota")->click();
    EXPECT_FALSE(panel.isVisible());
    panel.Mostra("uno");
    EXPECT_FALSE(panel.isVisible());
    panel.Mostra("due");
    EXPECT_TRUE(panel.isVisible());
    Trova<QToolButton>(&panel, "CmdChiudiLblNota")->click();
    panel.Apre(true);
    EXPECT_TRUE(panel.isVisible()) << "asked for again";
}

TEST(PannelloConsiglioTest, CanBeReadInLightAndDark) {
    const QPalette before = QApplication::palette();
    for (const int grey : {0xef, 53}) {
        QPalette colours(QColor(grey, grey, grey));
        QApplication::setPalette(colours);
        PannelloConsiglio panel;
        panel.Mostra("consiglio");
        QPalette own = panel.palette();
        EXPECT_NE(own.color(QPalette::Window), colours.color(QPalette::Window)) << "tinted";
        EXPECT_GE(Contrasto(own.color(QPalette::WindowText), own.color(QPalette::Window)), 4.5) << grey;
    }
    QApplication::setPalette(before);
}

} // namespace
