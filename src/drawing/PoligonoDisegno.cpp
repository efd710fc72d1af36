#include <string>

#include "drawing/Grafica.h"
#include "geometry/Poligono.h"

namespace sagomi {

namespace {

using Spostamento = std::array<double, 2>;

/// Vertices da to a, from 1, moved.
struct Tratto {
    std::vector<double> x, y;

    Tratto(const Poligono& p, int da, int a, const Spostamento& s) {
        for (int i = da; i <= a; ++i) {
            x.push_back(p.xi(i) + s[0]);
            y.push_back(p.yi(i) + s[1]);
        }
    }
    [[nodiscard]] std::int16_t Numero() const { return static_cast<std::int16_t>(x.size()); }
    void Chiuso() const { PolilineaPlt(Numero(), x, y, true); }
};

} // namespace

void Poligono::Plotta(const Spostamento& x0y0, bool doppio) const {
    if (!doppio) {
        Tratto(*this, 1, n_, x0y0).Chiuso();
        return;
    }
    Tratto(*this, 1, n_ / 2 - 1, x0y0).Chiuso();
    Tratto(*this, n_ / 2 + 1, n_, x0y0).Chiuso();
}

int Poligono::Tratteggia(double angolo, double tratteggio, std::int16_t colore,
                         const Spostamento& x0y0) const {
    const Tratto tutto(*this, 1, n_, x0y0);
    return TratteggioPlt(tutto.Numero(), tutto.x, tutto.y, angolo, tratteggio, colore);
}

void Poligono::NumeraVertici(double altezza, const Spostamento& x0y0) const {
    for (int i = 1; i <= n_; ++i)
        TestoPlt(xi(i) + x0y0[0], yi(i) + x0y0[1], altezza, std::to_string(i));
}

void Poligono::PlottaRettangolini(const Spostamento& x0y0) const {
    for (int i = 1; i <= nStrisce; ++i)
        for (int k = 1; k <= nRett(i); ++k) {
            const double x = xRett(k, i) + x0y0[0];
            const double y = yStriscia(i) + x0y0[1];
            const double b = bRett(k, i) / 2;
            const double h = hStriscia(i) / 2;
            const std::array<double, 4> xs{x - b, x + b, x + b, x - b};
            const std::array<double, 4> ys{y - h, y - h, y + h, y + h};
            PolilineaPlt(4, xs, ys, true);
        }
}

} // namespace sagomi
