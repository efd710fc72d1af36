#pragma once

namespace sagomi {

// Limits of the rules. Unlike std::min and std::max they keep a value that is no number, so that a failed
// division shows as such and does not turn into the limit.

/// valore, limited from above.
constexpr double AlPiu(double valore, double limite) { return valore > limite ? limite : valore; }

/// valore, limited from below.
constexpr double Almeno(double valore, double limite) { return valore < limite ? limite : valore; }

} // namespace sagomi
