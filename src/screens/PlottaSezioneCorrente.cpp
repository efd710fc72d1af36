#include "screens/PlottaSezioneCorrente.h"

#include <memory>
#include <type_traits>

#include "frame/GeneraleSagomi.h"
#include "geometry/Grafica.h"
#include "geometry/ui/FrmPltSezione.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

/// The drawing keeps the section that it shows, whatever row comes after it.
template <typename Sezione> Disegno DisegnoDi(const std::shared_ptr<Sezione>& section) {
    if (!section)
        return {};
    return {section->Designation, [section](Superficie* target, std::string_view maschera) {
                section->PlottaSezione(target, maschera, Dispositivo);
            }};
}

Disegno DisegnoCorrente() {
    return std::visit(
        [](const auto& section) -> Disegno {
            if constexpr (std::is_same_v<std::decay_t<decltype(section)>, std::monostate>)
                return {};
            else
                return DisegnoDi(section);
        },
        SezioneCorrente);
}

} // namespace

void PlottaSezioneCorrente(Schermo& da) { FrmPltSezione::Mostra(da, da.objectName(), DisegnoCorrente); }

} // namespace sagomi
