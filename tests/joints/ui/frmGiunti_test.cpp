#include "joints/ui/frmGiunti.h"

#include <QAction>
#include <QTabWidget>

#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmGiuntiTest : public AmbienteSchermi {};

TEST_F(FrmGiuntiTest, OpensInThePlaceOfTheSectionScreen) {
    auto& main = Avvia();
    Trova<QAction>(&main, "MnuGiunto")->trigger();
    auto& g = dynamic_cast<frmGiunti&>(Aperto("frmGiunti"));
    EXPECT_FALSE(main.isVisible());
    EXPECT_EQ(g.windowTitle(), "Giunto Flangiato - F1 per aiuto");
    const auto* tabs = Trova<QTabWidget>(&g, "SSTab1");
    QStringList names;
    for (int i = 0; i < tabs->count(); ++i)
        names << tabs->tabText(i);
    EXPECT_EQ(names, (QStringList{"Dati", "Progetto", "Parametri", "Geometria", "Resistenza", "Rigidezza"}));
    g.close();
    EXPECT_TRUE(main.isVisible());
}

} // namespace
