#pragma once

#include <cstdint>

#include "drawing/Disegno.h"

namespace sagomi {

/// The small pictures beside the choices of a joint, not to scale.

/// A kind of node: column, its part above the node where there is one, one beam or two.
Disegno DisegnoTipoNodo(std::int16_t tipo);

/// The plate in front view with one row of bolts in tension, or two.
Disegno DisegnoFile(std::int16_t nf);

} // namespace sagomi
