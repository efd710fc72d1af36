#pragma once

#include <cstdint>

#include "criticalloads/ui/TavolaTrave.h"
#include "sections/FattoriMomento.h"

namespace sagomi {

/// The shape of a moment diagram (DiagrammaMomenti.h), with the names of its moments.
void DisegnaPict(TavolaTrave& tavola, std::int16_t pict);

/// A linear moment diagram of table F.1.1.
void DisegnaPsi(TavolaTrave& tavola, double psi);

/// Supports and loads of a case of table F.1.2, and its moment diagram below the beam.
void DisegnaCaso(TavolaTrave& carico, TavolaTrave& diagramma, CasoF12 caso);

/// "+3/4", "0", "-1": a ratio of end moments in quarters, as the table prints it.
QString TestoPsi(double psi);

} // namespace sagomi
