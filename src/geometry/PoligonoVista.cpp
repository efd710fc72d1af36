#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/Poligono.h"
#include "geometry/PoligonoOffset.h"

namespace sagomi {

namespace {

constexpr double zeroVista = 1E-10;     ///< mm; what counts as lying further right
constexpr double zeroAllineati = 1E-12; ///< sine of the angle up to which hull points are on one side

struct Punto {
    double x, y;
    /// From the bottom up, on one level from left to right.
    bool operator<(const Punto& p) const { return y < p.y || (y == p.y && x < p.x); }
    bool operator==(const Punto&) const = default;
};

/// The vertices in order, each place once; what is not a number has none.
std::vector<Punto> PuntiInOrdine(const std::vector<double>& x, const std::vector<double>& y, std::size_t n) {
    std::vector<Punto> punti;
    punti.reserve(n);
    for (std::size_t i = 0; i < n; ++i)
        if (!std::isnan(x[i]) && !std::isnan(y[i]))
            punti.push_back({x[i], y[i]});
    std::sort(punti.begin(), punti.end());
    punti.erase(std::unique(punti.begin(), punti.end()), punti.end());
    return punti;
}

/// True when the way from a over b to c turns left; up to the tolerance b lies on the side from a to c.
bool GiraASinistra(const Punto& a, const Punto& b, const Punto& c) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double ex = c.x - a.x;
    const double ey = c.y - a.y;
    const double vettoriale = dx * ey - dy * ex;
    return vettoriale > 0 && vettoriale * vettoriale >
                                 zeroAllineati * zeroAllineati * (dx * dx + dy * dy) * (ex * ex + ey * ey);
}

/// One more point for a half of the hull, which begins at `inizio`.
void AllungaInviluppo(std::vector<Punto>& catena, std::size_t inizio, const Punto& p) {
    while (catena.size() > inizio + 1 && !GiraASinistra(catena[catena.size() - 2], catena.back(), p))
        catena.pop_back();
    catena.push_back(p);
}

/// The monotone chain of A. M. Andrew (1979). Counter-clockwise from the first point: up along the right
/// half, down along the left one.
std::vector<Punto> Inviluppo(const std::vector<Punto>& punti) {
    if (punti.size() < 2)
        return punti;
    std::vector<Punto> catena;
    catena.reserve(punti.size() + 1);
    for (const Punto& p : punti)
        AllungaInviluppo(catena, 0, p);
    const std::size_t cima = catena.size() - 1;
    for (std::size_t i = punti.size() - 1; i-- > 0;)
        AllungaInviluppo(catena, cima, punti[i]);
    catena.pop_back(); // the first point again
    return catena;
}

} // namespace

std::shared_ptr<Poligono> Poligono::PoligonoConvessoCircoscritto() const {
    std::vector<double> xV;
    std::vector<double> yV;
    for (const Punto& p : Inviluppo(PuntiInOrdine(x_, y_, Numero()))) {
        xV.push_back(p.x);
        yV.push_back(p.y);
    }
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

// Even-odd rule: a ray from a point inside crosses the outline an odd number of times.
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
