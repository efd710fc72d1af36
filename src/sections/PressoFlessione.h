#pragma once

#include <cstdint>

#include "sections/DiagrammaMomenti.h"

namespace sagomi {

class SezioneDoppioT;

/// The effects of a diagram on a member of this section, whose axial force adds what it does on the shift of
/// the effective centroid (class 4). InizializzaSezione and ClassePressoFlessioneCalcola must have run
/// before.
/// @param asse  0 for y-y, 1 for z-z
/// @param m     moments without that of the shift
EffettiDiagramma EffettiSullaSezione(const SezioneDoppioT& sezione, int asse, MomentiMembratura m,
                                     std::int16_t tipo, std::int16_t pict);

/// Puts the diagrams of a member into its section, for the check after ENV 1993-1-1 5.5.4: the largest
/// moments, the equivalent uniform moment factors, C1; the ends are free to rotate in plan and to warp, the
/// load acts at mid-height.
void ApplicaDiagrammi(SezioneDoppioT& sezione, const EffettiDiagramma& y, const EffettiDiagramma& z);

/// Kinds of section that take the diagrams of a member.
template <typename S>
concept ConDiagrammi = requires(S& s, const EffettiDiagramma& e) {
    ApplicaDiagrammi(s, e, e);
};

} // namespace sagomi
