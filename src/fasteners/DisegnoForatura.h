#pragma once

#include "drawing/Disegno.h"

namespace sagomi {

/// What the picture of a bolted plate shows [mm].
struct ForaturaDisegnata {
    double d = 0;   ///< bolt
    double do_ = 0; ///< hole
    double e1 = 0;  ///< end distance, in the direction of the load
    double p1 = 0;  ///< pitch in the direction of the load
    double e2 = 0;  ///< edge distance, across the load
    double p2 = 0;  ///< pitch across the load
};

/// Two rows of two bolts at the end of a plate, to scale, with the names of the distances and the direction
/// of the load. A distance that is not above 0, or cannot be drawn, clears the picture.
Disegno DisegnoForatura(const ForaturaDisegnata& foratura);

} // namespace sagomi
