#pragma once

#include <string>
#include <string_view>

#include "frame/Messaggi.h"

namespace sagomi {

/// Title of the messages of the joint screen.
inline constexpr const char* titoloGiunto = "Giunto Flangiato";

/// What stands in the way of an entry or a command.
inline void Dice(std::string_view testo) { Avvisa(testo, titoloGiunto, Icona::Stop); }

/// Tabs.
enum SchedaGiunto : int {
    schedaDati,
    schedaProgetto,
    schedaParametri,
    schedaGeometria,
    schedaResistenza,
    schedaRigidezza
};

} // namespace sagomi
