#pragma once

#include <optional>

namespace sagomi {

class SezioneDoppioT;

// Sections with different flanges. McyRd looks at the upper fibre only and VplzRd counts the upper flange
// twice; here is what the lower ones leave of them.

/// The moment about y-y that the lower fibre bears [N mm], where it decides: a section of class 3 or 4 in
/// bending whose lower elastic, or effective, modulus is the smaller one. Else none.
std::optional<double> McyRdInferiore(const SezioneDoppioT& sezione);

/// The shear that both flanges bear as they are [N], where that is less than VplzRd. Else none.
std::optional<double> VplzRdInferiore(const SezioneDoppioT& sezione);

/// The smallest modulus about y-y of all fibres in an elastic check, over that of the upper fibre of the
/// whole section; at most 1. Of class 4 in bending the effective section counts too.
double QuotaElastica(const SezioneDoppioT& sezione);

/// The smaller of McyRd and McyRdInferiore over McyRd; at most 1.
double QuotaMcyRd(const SezioneDoppioT& sezione);

} // namespace sagomi
