#pragma once

#include <optional>

#include "report/Relazione.h"

namespace sagomi {

class AcciaioCls;

/// The headed studs of a composite beam that has been checked: resistance of one, their number and spacing
/// for full connection and, of a plastic check whose moment asks for fewer, for partial connection with the
/// moment that these give. None for a beam without data of studs, or without a longitudinal force.
/// @param trave  a copy of it is designed
std::optional<CapitoloRelazione> CapitoloConnettori(const AcciaioCls& trave);

} // namespace sagomi
