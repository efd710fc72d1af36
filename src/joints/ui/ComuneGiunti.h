#pragma once

#include <string>
#include <string_view>

#include "frame/Messaggi.h"

class QWidget;

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

/// Gives the text of a box the colour of its group: the column, else the beams.
void TingeGruppo(QWidget* box, bool column);

} // namespace sagomi
