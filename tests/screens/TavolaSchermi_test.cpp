#include "screens/TavolaSchermi.h"

#include <QAction>
#include <QMenuBar>

#include "frame/ui/RigaDi.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class TavolaSchermiTest : public AmbienteSchermi {};

TEST_F(TavolaSchermiTest, EveryScreenIsMadeUnderTheNameOfItsRow) {
    Avvia();
    for (const VoceSchermo& voce : NavigaSchermi::Unico().Tavola())
        EXPECT_EQ(NavigaSchermi::Unico().Prende(voce.nome).objectName(), voce.nome);
}

// What is computed on one screen is told to the others, whether they have been loaded or not.
TEST_F(TavolaSchermiTest, EveryScreenIsToldOfChangesBeforeItsFirstLoadAndAfterItsLast) {
    auto& main = Avvia();
    auto& n = NavigaSchermi::Unico();
    for (const VoceSchermo& voce : n.Tavola()) {
        Schermo& screen = n.Prende(voce.nome);
        EXPECT_NO_THROW(screen.Aggiorna()) << voce.nome.toStdString();
        if (voce.menu != QLatin1String("mnuCollegamenti_0"))
            continue;
        n.Apre(voce.nome, main);
        screen.close();
        EXPECT_NO_THROW(screen.Aggiorna());
    }
}

TEST_F(TavolaSchermiTest, MenuEntriesAreEnabledExactlyWhereTheTableHasTheirScreen) {
    auto& s = Avvia();
    QStringList led;
    for (const VoceSchermo& voce : NavigaSchermi::Unico().Tavola())
        led << voce.menu;
    for (const char* name :
         {"mnuTipoSaldati", "mnuTipoSaldatiAsimm", "mnuTipoL", "mnuTipoU", "MnuGiunto", "mnuAcciaioCls",
          "mnuCollegamenti_0", "mnuCollegamenti_1", "NormativaMain", "mnuHelp_1"})
        EXPECT_EQ(Trova<QAction>(&s, name)->isEnabled(), led.contains(QString::fromLatin1(name))) << name;
}

TEST_F(TavolaSchermiTest, MenuEntryOpensItsScreen) {
    auto& s = Avvia();
    Trova<QAction>(&s, "mnuCollegamenti_0")->trigger();
    Schermo& bolts = Aperto("frmBulloni");
    EXPECT_FALSE(s.isVisible()) << "it takes the place of its opener";
    bolts.close();
    EXPECT_TRUE(s.isVisible());
}

TEST_F(TavolaSchermiTest, DetailOpensForTheMainScreenOfItsOpener) {
    Preme(&Avvia(), "Command1");
    Preme(&Aperto("FrmPresFless"), "LblVerifiche");
    EXPECT_EQ(Testo(&Aperto("FrmVerifiche"), "Txt_Prof"), "IPE 80");
    EXPECT_EQ(Aperto("FrmVerifiche").origine, &Aperto("FrmPresFless"));
}

TEST_F(TavolaSchermiTest, DetailWithoutAMainScreenIsAnError) {
    Avvia();
    auto& n = NavigaSchermi::Unico();
    EXPECT_THROW(n.Apre("FrmMcRd", n.Prende("FrmInform")), std::logic_error);
}

/// A screen that nobody has heard of.
struct FrmNuovo : Schermo {
    FrmNuovo() : Schermo(QStringLiteral("FrmNuovo")) {}
};

/// A window with the menu entry of that screen.
struct FrmConMenu : Schermo {
    FrmConMenu() : Schermo(QStringLiteral("FrmConMenu")) {
        voce = menuBar()->addAction(QStringLiteral("Nuovo"));
        voce->setObjectName(QStringLiteral("mnuNuovo"));
        voce->setEnabled(false);
        NavigaSchermi::Unico().CollegaMenu(*this);
    }
    QAction* voce;
};

TEST_F(TavolaSchermiTest, OneMoreScreenIsOneRowAndOneClass) {
    auto& n = NavigaSchermi::Unico();
    EXPECT_FALSE(n.Prende<FrmConMenu>().voce->isEnabled());
    n.ScaricaTutti();
    n.Aggiunge(RigaDi<FrmNuovo>("FrmNuovo", "mnuNuovo"));
    auto& window = n.Prende<FrmConMenu>();
    n.Passa(window, nullptr);
    EXPECT_TRUE(window.voce->isEnabled());
    window.voce->trigger();
    EXPECT_EQ(Aperto("FrmNuovo").origine, &window);
    n.Toglie("FrmNuovo");
}

} // namespace
