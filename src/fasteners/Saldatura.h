#pragma once

#include "frame/Singolo.h"

namespace sagomi {

/// A fillet weld by the strength of its throat alone, whatever the direction of the force (EC3 1-8 4.5.3.3).
class Saldatura {
public:
    double fu = 0; ///< ultimate strength of the weaker part joined [N/mm2]

    /// Correlation factor [-], EC3 1-8 table 4.1. It is tabulated for the strengths 360, 430, 510, 520 and
    /// 540 only: any other is refused with a message, and the factor is 0.
    [[nodiscard]] Singolo betaW() const;

    /// Design shear strength of the throat [N/mm2], with the GammaM2 in force. Throws ErroreAritmetico, after
    /// the message of betaW, where the strength has no correlation factor.
    [[nodiscard]] Singolo fvwd() const;
};

} // namespace sagomi
