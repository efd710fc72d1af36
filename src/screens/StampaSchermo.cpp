#include "screens/StampaSchermo.h"

#include "drawing/ui/FrmPltSezione.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "frame/Messaggi.h"
#include "screens/PlottaSezioneCorrente.h"
#include "screens/SchermoDettaglio.h"
#include "screens/SchermoSezione.h"

namespace sagomi {

namespace {

bool MostraSezioni(const Schermo& schermo) {
    if (const auto* main = dynamic_cast<const SchermoSezione*>(&schermo))
        return main->RigaInMano();
    return dynamic_cast<const SchermoDettaglio*>(&schermo) != nullptr;
}

Disegno MaggioreImmagine(const Schermo& schermo) {
    Disegno largest;
    int area = 0;
    for (const ImmagineDisegno* picture : schermo.findChildren<ImmagineDisegno*>())
        if (const int own = picture->width() * picture->height();
            picture->isVisible() && picture->Mostrato().PlottaInOggetto && own > area) {
            largest = picture->Mostrato();
            area = own;
        }
    return largest;
}

} // namespace

void StampaSchermo(Schermo& schermo, bool anteprima) {
    const bool section = MostraSezioni(schermo);
    if (section && anteprima) {
        PlottaSezioneCorrente(schermo);
        return;
    }
    const Disegno drawing = section ? DisegnoSezioneCorrente() : MaggioreImmagine(schermo);
    if (!drawing.PlottaInOggetto) {
        Avvisa("Questo schermo non ha disegni da stampare.");
        return;
    }
    const QString screen = schermo.objectName();
    if (anteprima)
        FrmPltSezione::Mostra(schermo, screen, [drawing] { return drawing; });
    else
        ScegliDispositivo(sceltaStampante, QString::fromStdString(drawing.nome), drawing, screen, &schermo);
}

} // namespace sagomi
