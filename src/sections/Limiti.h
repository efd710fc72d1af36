#pragma once

#include <cmath>
#include <limits>

namespace sagomi {

// Limits of the rules. Unlike std::min and std::max they turn a value that is not finite into no number, so
// that a failed division shows as such and does not become the limit.

/// valore, limited from above; NaN when it is not finite.
inline double AlPiu(double valore, double limite) {
    if (!std::isfinite(valore))
        return std::numeric_limits<double>::quiet_NaN();
    return valore > limite ? limite : valore;
}

/// valore, limited from below; NaN when it is not finite.
inline double Almeno(double valore, double limite) {
    if (!std::isfinite(valore))
        return std::numeric_limits<double>::quiet_NaN();
    return valore < limite ? limite : valore;
}

} // namespace sagomi
