#pragma once

#include "drawing/Disegno.h"

namespace sagomi {

/// A plate on another with a fillet weld at either side; the throat a, the height of the triangle, is
/// dimensioned.
Disegno DisegnoCordone();

} // namespace sagomi
