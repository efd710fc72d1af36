#pragma once

#include <cstdint>
#include <string>

#include "drawing/TavolaTrave.h"
#include "sections/DiagrammaMomenti.h"
#include "sections/FattoriMomento.h"

namespace sagomi {

/// The shape of a moment diagram (DiagrammaMomenti.h), with the names of its moments.
void DisegnaPict(const TavolaTrave& tavola, std::int16_t pict);

/// A linear moment diagram of table F.1.1, without names.
void DisegnaPsi(const TavolaTrave& tavola, double psi);

/// Supports and loads of a case of table F.1.2, and its moment diagram below the beam.
void DisegnaCaso(const TavolaTrave& carico, const TavolaTrave& diagramma, CasoF12 caso);

/// "+3/4", "0", "-1": a ratio of end moments in quarters, as the table prints it.
std::string TestoPsi(double psi);

/// The picture of a shape of diagram, 1 to 6, with room for the names at both ends.
Disegno DisegnoPict(std::int16_t pict);

/// The moments of a member about both axes, with the sign of M2, the largest that counts marked with its
/// value [kNm].
/// @param y, z  about y-y and z-z [N mm]
/// @param pict  shape, 1 to 6
Disegno DisegnoMomenti(const MomentiMembratura& y, const MomentiMembratura& z, std::int16_t pict);

/// The moment diagrams or load cases of a table of factors, one band for each, beside the rows of the table.
/// @param prospetto  1 for table F.1.1 (moment diagrams), 2 for F.1.2 (load cases)
Disegno DisegnoProspetto(int prospetto);

} // namespace sagomi
