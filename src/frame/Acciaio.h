#pragma once

#include <string>

#include "frame/Singolo.h"

namespace sagomi {

/// Whether a yield strength is not the one that the list of steels has for a grade [N/mm2]. A grade that the
/// list does not hold, and a strength that is none, are not overtyped.
bool FyRiscritta(const std::string& tipo, Singolo fy);

/// The name of a grade as screens and drawings show it: an overtyped strength belongs to it,
/// "S235 (Fe360), fy 460".
std::string AcciaioMostrato(const std::string& tipo, Singolo fy);

} // namespace sagomi
