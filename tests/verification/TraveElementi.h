#pragma once

#include <functional>

namespace sagomi {
class SezioneDoppioT;
}

namespace sagomi::verifica {

/// A beam that buckles sideways, by finite elements: cubic shapes of lateral deflection and twist, energy of
/// Vlasov's thin-walled beam, the load factor at which it is no more positive. Lengths in mm, forces in N.
struct TraveElementi {
    double L = 0;
    double EIz = 0, EIw = 0, GIt = 0;
    double beta = 0; ///< Wagner's length, (∫ z (y² + z²) dA) / Iy - 2 zs, 0 of equal flanges
    std::function<double(double)> M; ///< moment under the unit load, compression at z > 0 positive
    double q = 0;                    ///< uniform load
    double P = 0;                    ///< force at xP
    double xP = 0;
    double zCarico = 0;   ///< of the load above the shear centre
    bool mensola = false; ///< held at x = 0 alone, twist and warping too; else forks at both ends

    /// Factor of the load at which the beam buckles.
    [[nodiscard]] double Critico() const;
};

/// Stiffnesses of a section with equal flanges.
TraveElementi ElementiDi(const SezioneDoppioT& s, double L);

/// The program's critical moment between fork supports [N mm].
double McrDi(SezioneDoppioT s, double L, double C1, double c2 = 0, double za = 0);

/// Thin-walled values of a double-T of three plates, from the middle lines: heights from the centroid,
/// upwards.
struct PiattiAperti {
    double Iy = 0, Iz = 0, Iw = 0;
    double yG = 0;   ///< centroid above the lower fibre
    double zs = 0;   ///< shear centre above the centroid
    double beta = 0; ///< Wagner's length

    PiattiAperti(double h, double b, double tw, double tf, double bInf, double tInf);
};

} // namespace sagomi::verifica
