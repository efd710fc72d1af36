#pragma once

#include "drawing/Disegno.h"
#include "joints/ParametriSelezione.h"

namespace sagomi {

class Nodo;

/// The drawing of the current joint of a node as the workshop gets it. Node and joint are copied: it shows
/// what they are now.
Disegno DisegnoNodo(const Nodo& nodo);

/// The same of a row of the improvements that a search has found, put into a scratch copy of the joint.
/// A row that is not there throws std::out_of_range.
Disegno DisegnoSelezione(const Nodo& nodo, const TabellaSelezione& tabella, int riga);

} // namespace sagomi
