#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/Poligono.h"
#include "geometry/PoligonoOffset.h"

namespace sagomi {

namespace {

constexpr double zeroVista = 1E-10;     ///< mm; what counts as lying further right
constexpr double zeroAllineati = 1E-12; ///< sine of the angle up to which hull points are on one side

using Punti = std::vector<double>;

bool Prima(double x1, double y1, double x2, double y2) { return y1 < y2 || (y1 == y2 && x1 < x2); }

/// Next vertex of the hull after p, counter-clockwise: no other point lies to the right of the way to it. Of
/// several on that way it is the furthest. p itself when all points coincide.
std::size_t SuccessivoInviluppo(const Punti& x, const Punti& y, std::size_t n, std::size_t p) {
    std::size_t scelto = p;
    double dx = 0;
    double dy = 0;
    for (std::size_t k = 0; k < n; ++k) {
        const double ex = x[k] - x[p];
        const double ey = y[k] - y[p];
        if (ex == 0 && ey == 0)
            continue;
        const double vettoriale = dx * ey - dy * ex;
        const double soglia = zeroAllineati * std::hypot(dx, dy) * std::hypot(ex, ey);
        const bool allineato = std::abs(vettoriale) <= soglia;
        const bool oltre = ex * ex + ey * ey > dx * dx + dy * dy;
        if (scelto != p && (allineato ? !oltre : vettoriale > 0))
            continue;
        scelto = k;
        dx = ex;
        dy = ey;
    }
    return scelto;
}

} // namespace

std::shared_ptr<Poligono> Poligono::PoligonoConvessoCircoscritto() const {
    if (n_ < 1)
        return std::make_shared<Poligono>();
    std::size_t inizio = 0;
    for (std::size_t i = 1; i < Numero(); ++i)
        if (Prima(x_[i], y_[i], x_[inizio], y_[inizio]))
            inizio = i;
    std::vector<double> xV;
    std::vector<double> yV;
    std::size_t p = inizio;
    do {
        xV.push_back(x_[p]);
        yV.push_back(y_[p]);
        p = SuccessivoInviluppo(x_, y_, Numero(), p);
    } while (!(x_[p] == x_[inizio] && y_[p] == y_[inizio]) && xV.size() < Numero());
    return DaVertici(std::move(xV), std::move(yV));
}

void Poligono::VistaDaDestra(std::vector<double>& xV, std::vector<double>& yV, std::int16_t& nV) const {
    std::vector<double> vistaX;
    std::vector<double> vistaY;
    std::vector<double> xI;
    std::vector<double> yI;
    std::vector<std::int16_t> iLato;
    std::int16_t nI = 0;
    for (std::size_t i = 0; i < Numero(); ++i) {
        IntersezioneConRetta(0, -1, y_[i], xI, yI, iLato, nI);
        if (std::any_of(xI.begin(), xI.end(), [&](double v) { return v > x_[i] + zeroVista; }))
            continue;
        vistaX.push_back(x_[i]);
        vistaY.push_back(y_[i]);
    }
    xV = std::move(vistaX);
    yV = std::move(vistaY);
    nV = static_cast<std::int16_t>(xV.size());
}

void Poligono::PuntoInPoligono(double x, double y, double w, double zero, std::int16_t& esito) const {
    esito = -1;
    if (!(std::abs(w) > zero))
        return;
    std::vector<double> xI;
    std::vector<std::int16_t> iLato;
    AttraversamentiLivello(x_, y_, n_, y / w, xI, iLato);
    const auto oltre = std::count_if(xI.begin(), xI.end(), [&](double v) { return v > x / w; });
    if (oltre % 2 != 0)
        esito = 1;
}

bool Poligono::OffsetPerPunto(double xP, double yP, std::shared_ptr<Poligono>& risultato) const {
    ZeroMaxDimen = MaxDimensione() / 1000000;
    double distanza = 0;
    auto nuovo = std::make_shared<Poligono>();
    if (!OffsetDistanza(*this, xP, yP, distanza) || !OffsetPoligono(*this, distanza, *nuovo)) {
        risultato.reset();
        return false;
    }
    risultato = std::move(nuovo);
    return true;
}

} // namespace sagomi
