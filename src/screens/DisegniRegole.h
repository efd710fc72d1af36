#pragma once

#include "drawing/Disegno.h"

namespace sagomi {

/// Pictures of rules, for the help.

/// Reduction factor over relative slenderness, curves a0 to d, ENV 1993-1-1 5.5.1.2.
Disegno DisegnoCurve();

/// Stresses of a section in bending by its class: plastic, elastic, effective, EC3 6.2.5.
Disegno DisegnoTensioni();

/// Plastic moments about both axes over the axial force, of a double-T whose web is 40 % of its area,
/// EC3 6.2.9.1 (5).
Disegno DisegnoDominio();

/// Leg and throat of a fillet weld.
Disegno DisegnoCordone();

/// A portal hinged at its feet under a uniform load, and its moment diagram.
Disegno DisegnoPortale();

} // namespace sagomi
