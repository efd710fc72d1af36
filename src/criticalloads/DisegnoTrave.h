#pragma once

#include "drawing/Disegno.h"

namespace sagomi {

/// The beam of a critical load.
struct TraveDisegnata {
    bool mensola = false;     ///< cantilever, else simply supported
    bool distribuito = false; ///< the load is distributed
    int quota = 0;            ///< of the load: 0 top flange, 1 centroid, 2 bottom flange
};

/// The picture of a beam: its supports, its load, and the height at which the load acts.
Disegno DisegnoTrave(const TraveDisegnata& trave);

} // namespace sagomi
