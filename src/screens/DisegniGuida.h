#pragma once

#include <string_view>
#include <vector>

#include "drawing/Disegno.h"

namespace sagomi {

/// The drawings of the help and the manual, which knows them by their names. They use the program's own ways
/// to draw sections, joints and diagrams, on examples of their own; rolled sections are those of the
/// catalogue.

/// The drawing of that name; one that nobody knows, or whose section the
/// catalogue has not, has nothing to plot.
[[nodiscard]] Disegno DisegnoGuida(std::string_view nome);

/// The names of all of them.
[[nodiscard]] std::vector<std::string_view> NomiDisegniGuida();

} // namespace sagomi
