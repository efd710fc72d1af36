#pragma once

#include "frame/Errori.h"

namespace sagomi {

/// a / b. A division by 0 throws ErroreAritmetico: a fastener has no resistance to show then.
inline double Rapporto(double a, double b) {
    if (b == 0)
        throw ErroreAritmetico("divisione per zero");
    return a / b;
}

} // namespace sagomi
