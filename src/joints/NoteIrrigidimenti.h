#pragma once

#include <string>
#include <vector>

#include "drawing/Disegno.h"

namespace sagomi {

class Nodo;

/// How the stiffeners of a column lie.
struct IrrigidimentiNodo {
    bool dueTravi = false;  ///< a beam on either side
    bool inclinato = false; ///< the lower one runs on a slope: beams of different height
    bool superiore = true;  ///< there is one in the zone in tension, too

    /// Those of the current joint; of one without stiffeners those that it could have.
    explicit IrrigidimentiNodo(const Nodo& nodo);
    IrrigidimentiNodo() = default;
};

/// What there is to know of them, a paragraph each.
[[nodiscard]] std::vector<std::string> NoteIrrigidimenti(const IrrigidimentiNodo& irrigidimenti);

/// The column with its stiffeners between the beams, no scale; the length of the lower one along its middle
/// line.
[[nodiscard]] Disegno DisegnoIrrigidimenti(const IrrigidimentiNodo& irrigidimenti);

} // namespace sagomi
