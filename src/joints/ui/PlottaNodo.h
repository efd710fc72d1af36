#pragma once

#include "drawing/Disegno.h"
#include "joints/ParametriSelezione.h"

namespace sagomi {

class Giunto;
class Nodo;
class Schermo;

/// The drawing of the current joint of a node as the workshop gets it. Node and joint are copied: it shows
/// what they are now.
Disegno DisegnoNodo(const Nodo& nodo);

/// The same of a row of the improvements that a search has found, put into a scratch copy of the joint.
/// A row that is not there throws std::out_of_range.
Disegno DisegnoSelezione(const Nodo& nodo, const TabellaSelezione& tabella, int riga);

/// Opens the preview, as "Plotta" of every screen does.
/// @param nodo  drawn anew at every showing of the preview; lives as long as the program's screens do
void PlottaNodo(Schermo& da, const Nodo& nodo);

/// Opens the preview on one row of the improvements.
void PlottaSelezione(Schermo& da, const Nodo& nodo, const TabellaSelezione& tabella, int riga);

} // namespace sagomi
