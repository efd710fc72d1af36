#include "screens/PlottaSezioneCorrente.h"

#include <memory>
#include <type_traits>

#include "drawing/Grafica.h"
#include "drawing/ui/FrmPltSezione.h"
#include "frame/GeneraleSagomi.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

/// The effective outline asked for; it goes along when the row changes behind the preview.
std::int16_t EfficaceChiesto() {
    const auto* section = std::get_if<std::shared_ptr<SezioneDoppioT>>(&SezioneCorrente);
    return section != nullptr && *section ? (*section)->SezioneEfficaceDaPlottare : std::int16_t(0);
}

/// The drawing keeps the section that it shows, whatever row comes after it.
template <typename Sezione>
Disegno DisegnoDi(const std::shared_ptr<Sezione>& section, std::int16_t efficace) {
    if (!section)
        return {};
    section->SezioneEfficaceDaPlottare = efficace;
    return {section->Designation, [section](Superficie* target, std::string_view maschera) {
                section->PlottaSezione(target, maschera, Dispositivo);
            }};
}

Disegno DisegnoCorrente(std::int16_t efficace) {
    return std::visit(
        [efficace](const auto& section) -> Disegno {
            if constexpr (std::is_same_v<std::decay_t<decltype(section)>, std::monostate>)
                return {};
            else
                return DisegnoDi(section, efficace);
        },
        SezioneCorrente);
}

} // namespace

void PlottaSezioneCorrente(Schermo& da) {
    FrmPltSezione::Mostra(da, da.objectName(),
                          [efficace = EfficaceChiesto()] { return DisegnoCorrente(efficace); });
}

} // namespace sagomi
