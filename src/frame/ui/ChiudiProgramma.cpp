#include "frame/ui/ChiudiProgramma.h"

#include <QApplication>
#include <QTimer>

#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/ui/AttesaQt.h"
#include "frame/ui/DocumentoSchermo.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

/// The end itself. Work that lets events through, and a box, still have their screens in use: it waits for
/// them.
void Finisce(bool inRitardo) {
    constexpr int riprova = 10; // [ms]
    if (InAttesa() || (inRitardo && QApplication::activeModalWidget() != nullptr)) {
        QTimer::singleShot(riprova, qApp, [] { Protetto("Errore", [] { Finisce(true); }); });
        return;
    }
    NavigaSchermi::Unico().ScaricaTutti();
    IniLeggeScrive("S");
    if (ServerAttivo && OggettoServer != nullptr)
        OggettoServer->SagomiQuittato();
    QCoreApplication::quit();
}

} // namespace

bool ChiudiProgramma() {
    if (ChiusuraInCorso)
        return true;
    if (!DocumentoSchermo::TuttiDaLasciare())
        return false;
    ChiusuraInCorso = true;
    Finisce(false);
    return true;
}

} // namespace sagomi
