#include "frame/ui/ChiudiProgramma.h"

#include <QCoreApplication>

#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/ui/NavigaSchermi.h"

namespace sagomi {

void ChiudiProgramma() {
    if (ChiusuraInCorso)
        return;
    ChiusuraInCorso = true;
    NavigaSchermi::Unico().ScaricaTutti();
    IniLeggeScrive("S");
    if (ServerAttivo && OggettoServer != nullptr)
        OggettoServer->SagomiQuittato();
    QCoreApplication::quit();
}

} // namespace sagomi
