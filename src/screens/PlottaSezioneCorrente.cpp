#include "screens/PlottaSezioneCorrente.h"

#include <type_traits>

#include "drawing/Grafica.h"
#include "drawing/ui/FrmPltSezione.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

/// The effective outline asked for; it goes along when the row changes behind the preview.
std::int16_t EfficaceChiesto() {
    std::int16_t efficace = 0;
    SullaSezioneInUso(
        [&efficace](const ConContorniEfficaci auto& s) { efficace = s.SezioneEfficaceDaPlottare; });
    return efficace;
}

/// The drawing keeps the section that it shows, whatever row comes after it.
Disegno DisegnoCorrente(std::int16_t efficace) {
    Disegno disegno;
    SullaSezioneInUso([&disegno, efficace, tenuta = SezioneCorrente](auto& section) {
        if constexpr (ConContorniEfficaci<std::decay_t<decltype(section)>>)
            section.SezioneEfficaceDaPlottare = efficace;
        disegno = {section.Designation, [tenuta](Superficie* target, std::string_view maschera) {
                       SullaSezione([&](const auto& s) { s.PlottaSezione(target, maschera, Dispositivo); },
                                    tenuta);
                   }};
    });
    return disegno;
}

} // namespace

Disegno DisegnoSezioneCorrente() { return DisegnoCorrente(EfficaceChiesto()); }

void PlottaSezioneCorrente(Schermo& da) {
    FrmPltSezione::Mostra(da, da.objectName(),
                          [efficace = EfficaceChiesto()] { return DisegnoCorrente(efficace); });
}

} // namespace sagomi
