#pragma once

#include "joints/DisegnoNodo.h" // IWYU pragma: export

namespace sagomi {

class Nodo;
class Schermo;

/// Opens the preview, as "Plotta" of every screen does.
/// @param nodo  drawn anew at every showing of the preview; lives as long as the program's screens do
void PlottaNodo(Schermo& da, const Nodo& nodo);

/// Opens the preview on one row of the improvements.
void PlottaSelezione(Schermo& da, const Nodo& nodo, const TabellaSelezione& tabella, int riga);

} // namespace sagomi
