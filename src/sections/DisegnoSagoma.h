#pragma once

#include <string>
#include <vector>

#include "drawing/Disegno.h"

namespace sagomi {

class SezioneDoppioT;

/// What the picture of a double-T section shows: its outline and the names of its dimensions.
struct SagomaDisegnata {
    std::string nome;         ///< of the section
    std::vector<double> x, y; ///< closed outline [mm], y upwards
    double h = 0;             ///< overall height [mm]
    double b = 0;             ///< flange width [mm]
    double tw = 0;            ///< web thickness [mm]
    double tf = 0;            ///< thickness of the upper flange [mm]
    double raggio = 0;        ///< root radius or fillet [mm]
    double yG = 0;            ///< centroid above the bottom [mm]
    std::string nomeRaggio;   ///< "r1" or "r"
};

/// The picture of a section: its outline, as computed last, and what its dimensions are called.
SagomaDisegnata SagomaDi(const SezioneDoppioT& sezione);

/// The picture of the section in hand, to its proportions, with its dimension names. An outline of fewer than
/// 3 points, or one that cannot be drawn, clears it.
Disegno DisegnoSagoma(const SagomaDisegnata& sagoma);

} // namespace sagomi
