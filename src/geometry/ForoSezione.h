#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace sagomi {

/// Cuts the strip of a web between the levels y0 and y0 + H out of an outline, which stays one closed
/// polygon: a notch goes from each face of the web to 0.01 mm beside the axis x = 0, so that a thread of 0.02
/// mm holds the outline together. Eight vertices more, area less by (tw - 0.02) H.
///
/// The outline runs counter-clockwise with the right face of the web first, and both levels lie on the
/// straight part of the faces. A level that meets nothing leaves the outline as it is.
/// @param x, y, n  vertices [mm], vertex 1 at [0], and their count
/// @param tipo     "DoppioT": both notches; "SagomiU": the first only; any other word is reported, and the
/// first
///                 notch stays
void ForoSezione(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, double y0, double H,
                 std::string_view tipo);

} // namespace sagomi
