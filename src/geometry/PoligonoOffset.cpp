#include "geometry/PoligonoOffset.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "frame/Messaggi.h"

namespace sagomi {

namespace {

constexpr double cosenoGiro = 1E-9; ///< 1 + cosine of the turn up to which a corner doubles back on itself

/// A corner and the side that leaves it.
struct Lato {
    double x, y;           ///< corner
    double tx = 0, ty = 0; ///< direction of the side
    double lunghezza = 0;  ///< its length
    double mx = 0, my = 0; ///< way of the corner for an offset of 1

    [[nodiscard]] double nx(double verso) const { return verso * ty; } ///< outward normal
    [[nodiscard]] double ny(double verso) const { return -verso * tx; }
};

/// An outline without doubled points, with the directions that its offset needs.
struct Contorno {
    std::vector<Lato> lati;
    double verso = 1; ///< 1 counter-clockwise, -1 clockwise
};

std::vector<Lato> PuntiDistinti(const Poligono& p) {
    std::vector<Lato> lati;
    for (int i = 1; i <= p.nVertici(); ++i)
        if (lati.empty() || !PuntiCoincidentiXY(lati.back().x, lati.back().y, p.xi(i), p.yi(i)))
            lati.push_back({p.xi(i), p.yi(i)});
    while (lati.size() > 1 && PuntiCoincidentiXY(lati.back().x, lati.back().y, lati[0].x, lati[0].y))
        lati.pop_back();
    return lati;
}

void Direzioni(std::vector<Lato>& lati) {
    for (std::size_t i = 0; i < lati.size(); ++i) {
        const Lato& dopo = lati[(i + 1) % lati.size()];
        Lato& lato = lati[i];
        lato.lunghezza = Distanza(lato.x, lato.y, dopo.x, dopo.y);
        lato.tx = (dopo.x - lato.x) / lato.lunghezza;
        lato.ty = (dopo.y - lato.y) / lato.lunghezza;
    }
}

/// The corner moves along the bisector; where the outline doubles back, with the side that leaves it.
void Angoli(Contorno& c) {
    for (std::size_t i = 0; i < c.lati.size(); ++i) {
        const Lato& prima = c.lati[(i + c.lati.size() - 1) % c.lati.size()];
        Lato& lato = c.lati[i];
        const double giro = 1 + prima.tx * lato.tx + prima.ty * lato.ty;
        const bool indietro = giro < cosenoGiro;
        lato.mx = indietro ? lato.nx(c.verso) : (prima.nx(c.verso) + lato.nx(c.verso)) / giro;
        lato.my = indietro ? lato.ny(c.verso) : (prima.ny(c.verso) + lato.ny(c.verso)) / giro;
    }
}

std::optional<Contorno> PreparaContorno(const Poligono& p) {
    if (ZeroMaxDimen == 0) {
        Avvisa("Impostare ZeroMaxDimen");
        return std::nullopt;
    }
    Contorno c{PuntiDistinti(p)};
    if (c.lati.size() < 3)
        return std::nullopt;
    double area = 0;
    c.verso = AreaConSegno(p.nVertici(), p.CoordX(), p.CoordY(), area) ? 1 : -1;
    Direzioni(c.lati);
    Angoli(c);
    return c;
}

/// Offset that carries the side from corner a to corner b over the point, if there is one.
std::optional<double> DistanzaDalLato(const Lato& a, const Lato& b, double verso, double xP, double yP) {
    const double dx = xP - a.x;
    const double dy = yP - a.y;
    const double d = dx * a.nx(verso) + dy * a.ny(verso);
    const double lungo = dx * a.tx + dy * a.ty;
    const double da = d * (a.mx * a.tx + a.my * a.ty);
    const double ad = a.lunghezza + d * (b.mx * a.tx + b.my * a.ty);
    if (lungo < std::min(da, ad) - ZeroMaxDimen || lungo > std::max(da, ad) + ZeroMaxDimen)
        return std::nullopt;
    return d;
}

} // namespace

bool OffsetDistanza(const Poligono& poligono, double xP, double yP, double& distanza) {
    const std::optional<Contorno> c = PreparaContorno(poligono);
    if (!c)
        return false;
    std::optional<double> minima;
    for (std::size_t i = 0; i < c->lati.size(); ++i) {
        const auto d = DistanzaDalLato(c->lati[i], c->lati[(i + 1) % c->lati.size()], c->verso, xP, yP);
        if (d && (!minima || std::abs(*d) < std::abs(*minima)))
            minima = d;
    }
    distanza = minima.value_or(0);
    return minima.has_value();
}

bool OffsetPoligono(const Poligono& poligono, double distanza, Poligono& risultato) {
    const std::optional<Contorno> c = PreparaContorno(poligono);
    if (!c)
        return false;
    std::vector<double> x;
    std::vector<double> y;
    for (const Lato& lato : c->lati) {
        x.push_back(lato.x + distanza * lato.mx);
        y.push_back(lato.y + distanza * lato.my);
    }
    risultato.Coordinate(x, y, static_cast<std::int16_t>(x.size()));
    return true;
}

} // namespace sagomi
