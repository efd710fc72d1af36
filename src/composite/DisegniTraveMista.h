#pragma once

#include "drawing/Disegno.h"

namespace sagomi {

class AcciaioCls;

/// The deck with its measures, two ribs wide, as the data of the beam have it; a line of text says what
/// cannot be drawn. The beam is copied.
Disegno DisegnoLamiera(const AcciaioCls& trave);

/// The beam from its side with n studs at their spacing along Luce, single or in pairs by Nr. Fewer than 2
/// studs leave the beam alone.
Disegno DisegnoConnettori(const AcciaioCls& trave, int n);

} // namespace sagomi
