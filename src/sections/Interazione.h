#pragma once

#include <cmath>

namespace sagomi {

/// The share of one moment in an interaction, k (MSd + NeN) / MRd to the power of the exponent.
struct TermineMomento {
    double MSd = 0;       ///< design moment [N mm]
    double NeN = 0;       ///< axial force times the shift of the centroid [N mm]; 0 where the rule has none
    double MRd = 0;       ///< resistance that divides [N mm]
    double k = 1;         ///< factor of the moment [-]
    double esponente = 1; ///< [-]

    /// The moment with the shift of the centroid [N mm].
    [[nodiscard]] double M() const { return MSd + NeN; }
    [[nodiscard]] double Valore() const {
        const double quota = k * M() / MRd;
        return esponente == 1 ? quota : std::pow(quota, esponente);
    }
};

/// The terms of a check under axial force and bending; passes when their sum is not above 1.
struct TerminiInterazione {
    double NSd = 0; ///< axial force [N]
    double NRd = 0; ///< resistance that divides [N]
    TermineMomento y, z;
    bool assialeNeiMomenti =
        false; ///< the axial force has no term: it reduces the resistances of the moments

    [[nodiscard]] double N() const { return assialeNeiMomenti ? 0 : NSd / NRd; }
    [[nodiscard]] double Somma() const { return N() + y.Valore() + z.Valore(); }
};

} // namespace sagomi
