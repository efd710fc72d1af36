#include "frame/ui/ChiudiProgramma.h"

#include <QCoreApplication>

#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/ui/DocumentoSchermo.h"
#include "frame/ui/NavigaSchermi.h"

namespace sagomi {

bool ChiudiProgramma() {
    if (ChiusuraInCorso)
        return true;
    if (!DocumentoSchermo::TuttiDaLasciare())
        return false;
    ChiusuraInCorso = true;
    NavigaSchermi::Unico().ScaricaTutti();
    IniLeggeScrive("S");
    if (ServerAttivo && OggettoServer != nullptr)
        OggettoServer->SagomiQuittato();
    QCoreApplication::quit();
    return true;
}

} // namespace sagomi
