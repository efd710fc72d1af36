#pragma once

#include "frame/Singolo.h"

/// What the joints share: rounding, and the room that a hole needs.
namespace sagomi {

/// The integer part, plus 1 when the fraction is 0.5 or more.
double ArrotondaIntero(double x);

/// The integer part, toward minus infinity.
double ParteIntera(double x);

/// x where it is whole, else the next whole number.
double ArrotondaSu(double x);

/// Least distances of a hole: to a free edge and to a web in diameters of the hole, and the factor of the
/// root or weld. At rest a hole merely fits.
inline Singolo CoefBordo = 0.5;
inline Singolo CoefAnima = 0.5;
inline Singolo CoefRaccordo = 1;

/// The three together, as a long job copies them.
struct CoefficientiForo {
    Singolo Bordo = 0.5, Anima = 0.5, Raccordo = 1;

    /// Those in force.
    [[nodiscard]] static CoefficientiForo InForza() { return {CoefBordo, CoefAnima, CoefRaccordo}; }
    void Imposta() const;
};
inline constexpr CoefficientiForo coefficientiRiposo{};
inline constexpr CoefficientiForo coefficientiProgetto{1.2, 1.2, 0.8}; ///< ENV 1993-1-1 6.5.1.2

} // namespace sagomi
