#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "geometry/Poligono.h"

namespace sagomi {

/// A section known only by its outline: a polygon and the static values copied from it [mm].
/// CoordinateSezione comes first, then CaratteristicheStaticheSezione, then Wplastici where the plastic
/// moduli are wanted.
class SezioneGenerica {
public:
    double Area = 0, xG = 0, yG = 0;
    double JotaXG = 0;      ///< second moment about the centroidal x axis
    double JotaYG = 0;      ///< second moment about the centroidal y axis
    double JotaIG = 0;      ///< greater principal moment
    double JotaIIG = 0;     ///< lesser principal moment
    double Rho1 = 0;        ///< radius of gyration of JotaIG
    double Rho2 = 0;        ///< radius of gyration of JotaIIG
    double Alfa1 = 0;       ///< direction of the axis of JotaIG [rad]
    double WxSuperiore = 0; ///< elastic modulus about x, top fibre
    double WxInferiore = 0; ///< the same, bottom fibre
    double WyDestra = 0;    ///< elastic modulus about y, right fibre
    double WySinistra = 0;  ///< the same, left fibre
    double WplX = 0;        ///< plastic modulus, horizontal cut
    double WplY = 0;        ///< plastic modulus, vertical cut

    /// The outline. Copies of the section share it; one that was taken away is created at the next use.
    std::shared_ptr<sagomi::Poligono> Poligono = std::make_shared<sagomi::Poligono>();

    /// Hands the first n vertices to the polygon.
    void CoordinateSezione(const std::vector<double>& x, const std::vector<double>& y, std::int16_t n);

    /// Calculates the static properties of the polygon and copies them.
    void CaratteristicheStaticheSezione();

    /// Calculates the plastic moduli of the polygon and copies them; zero before the static properties.
    void Wplastici();

private:
    sagomi::Poligono& Contorno();
};

} // namespace sagomi
