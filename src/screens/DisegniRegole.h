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

/// The design strength that is left of the characteristic one under each partial factor, by NTC 4.2.4.1.1 and
/// by EC3 6.1.
Disegno DisegnoCoefficienti();

/// An equivalent T-stub of an end plate in its three modes of failure, ENV 1993-1-1 annex J: the flange
/// yields in four lines, the flange yields and the bolts fail, the bolts fail.
Disegno DisegnoModiTrattoT();

/// A composite beam whose ribs next to both supports have two studs, the others one.
Disegno DisegnoSuggerimento();

} // namespace sagomi
