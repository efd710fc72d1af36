#pragma once

#include "geometry/Poligono.h"

/// The offset of an outline: every side is moved by one distance and joined to its neighbours in a corner.
/// Points nearer than ZeroMaxDimen count as one; the caller sets that tolerance first, and a tolerance of
/// zero is reported and gives nothing. An outline with fewer than 3 distinct points gives nothing either.
namespace sagomi {

/// Distance, above zero to the outside, of the offset that passes through the point: the smallest of those
/// that carry a side over it. @return false when no side is carried over the point
bool OffsetDistanza(const Poligono& poligono, double xP, double yP, double& distanza);

/// The offset outline, in the turn of the given one.
bool OffsetPoligono(const Poligono& poligono, double distanza, Poligono& risultato);

} // namespace sagomi
