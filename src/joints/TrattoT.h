#pragma once

#include <algorithm>

#include "joints/Divisione.h"

/// The equivalent T-stub in bending, ENV 1993-1-1 annex J: its three modes of failure. Lengths in mm, fy in
/// N/mm2, forces in kN, moments in kN mm.
namespace sagomi {

/// Plastic moment of the effective length of a flange.
inline double Mpl_Calcola(double leff, double t, double fy, double gammaM0) {
    return 0.25 * leff * (t * t) * fy / (gammaM0 * 1000);
}

/// Complete yielding of the flange.
/// @param m  distance of the bolts from the web
inline double Modo1_Calcola(double Mpl, double m) { return Diviso(4 * Mpl, m, "m"); }

/// Failure of the bolts with yielding of the flange.
/// @param n   distance of the bolts from the edge
/// @param nb  number of bolts
/// @param Bt  tension resistance of one
inline double Modo2_Calcola(double Mpl, double m, double n, double nb, double Bt) {
    return Diviso(2 * Mpl + n * nb * Bt, m + n, "m + n");
}

/// Failure of the bolts.
inline double Modo3_Calcola(double nb, double Bt) { return nb * Bt; }

inline double Minimo3(double a, double b, double c) { return std::min(a, std::min(b, c)); }

/// What decides the resistance of a T-stub.
struct ModiTrattoT {
    double leff = 0, m = 0, n = 0, Mpl = 0, Modo1 = 0, Modo2 = 0, Modo3 = 0;

    /// The three modes of a stub of nb bolts.
    ModiTrattoT(double leff_, double m_, double n_, double Mpl_, double nb, double Bt)
        : leff(leff_), m(m_), n(n_), Mpl(Mpl_), Modo1(Modo1_Calcola(Mpl, m)),
          Modo2(Modo2_Calcola(Mpl, m, n, nb, Bt)), Modo3(Modo3_Calcola(nb, Bt)) {}

    [[nodiscard]] double Resistenza() const { return Minimo3(Modo1, Modo2, Modo3); }
};

} // namespace sagomi
