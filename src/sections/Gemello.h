#pragma once

#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

namespace sagomi {

/// Where the second piece of a pair stands in a drawing: the first one mirrored.
struct Gemello {
    double distanza = 0;     ///< x becomes -(x + distanza) [mm]
    bool sottoSopra = false; ///< y does instead
};

/// Back to back the gap lies left of x = 0, with the flange tips together right of x = b.
inline Gemello GemelloDi(const SezioneSagomoU& s) {
    return {s.DoppiCorto ? -(2 * s.b + s.dDoppi) : double(s.dDoppi), false};
}

/// Between the long legs the gap lies left of x = 0, between the short ones under y = 0.
inline Gemello GemelloDi(const SezioneSagomoL& s) { return {s.dDoppi, s.DoppiCorto}; }

} // namespace sagomi
