#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <string>

#include "geometry/Poligono.h"

namespace sagomi {

namespace {

/// Height of the part of a strip between two levels, and the level of its centre.
struct Fetta {
    double h, y;
    Fetta(double centro, double altezza, double yInf, double ySup) {
        const double basso = std::max(centro - altezza / 2, yInf);
        const double alto = std::min(centro + altezza / 2, ySup);
        h = std::max(0.0, alto - basso);
        y = (alto + basso) / 2;
    }
};

} // namespace

const Poligono::RigaStriscia& Poligono::Striscia(int i) const {
    if (i < 1 || static_cast<std::size_t>(i) > strisce_.size())
        throw std::out_of_range("striscia " + std::to_string(i) + " fuori da 1.." +
                                std::to_string(strisce_.size()));
    return strisce_[static_cast<std::size_t>(i) - 1];
}

std::size_t Poligono::PostoRett(int k, int i) const {
    if (k < 1 || k > Striscia(i).nRett)
        throw std::out_of_range("rettangolo " + std::to_string(k) + " della striscia " + std::to_string(i));
    return static_cast<std::size_t>(k) - 1;
}

void Poligono::ApreTabelle(std::int16_t n, double mezza) {
    nStrisce = std::max<std::int16_t>(n, 0);
    mezzaStriscia_ = mezza;
    strisce_.assign(static_cast<std::size_t>(nStrisce), {});
}

void Poligono::DiscretizzaPoligono(std::int16_t n) {
    const auto [xMin, xMax, yMin, yMax] = BoundingBox();
    const bool vuoto = n < 1 || n_ < 1;
    const double passo = vuoto ? 0 : (yMax - yMin) / n;
    ApreTabelle(vuoto ? 0 : n, passo / 2);
    std::vector<double> xI;
    std::vector<std::int16_t> iLato;
    for (std::size_t i = 0; i < strisce_.size(); ++i) {
        RigaStriscia& riga = strisce_[i];
        const double centro = yMax - (static_cast<double>(i) + 0.5) * passo;
        riga.y = centro;
        riga.h = passo;
        AttraversamentiLivello(x_, y_, n_, centro, xI, iLato);
        std::sort(xI.begin(), xI.end());
        const std::size_t rettangoli = std::min<std::size_t>(xI.size() / 2, maxRettangoli);
        for (std::size_t k = 0; k < rettangoli; ++k) {
            riga.b[k] = xI[2 * k + 1] - xI[2 * k];
            riga.x[k] = (xI[2 * k + 1] + xI[2 * k]) / 2;
        }
        riga.nRett = static_cast<std::int16_t>(rettangoli);
    }
}

void Poligono::DiscretizzaCerchio(std::int16_t n, double D, double xC, double yC) {
    ApreTabelle(n, n > 0 ? D / n / 2 : 0);
    const double r = D / 2;
    const double passo = std::numbers::pi / std::max<int>(n, 1);
    double angolo = std::numbers::pi / 2;
    for (RigaStriscia& riga : strisce_) {
        angolo -= passo;
        const double mezzaCorda = std::max(0.0, r * std::cos(angolo));
        riga.y = yC + r * std::sin(angolo);
        riga.h = 2 * mezzaCorda * std::sin(passo / 2); // r (sin(angolo + passo/2) - sin(angolo - passo/2))
        riga.b[0] = 2 * mezzaCorda;
        riga.x[0] = xC;
        riga.nRett = 1;
    }
}

double Poligono::RettangolinoArea(int i, double yInf, double ySup) const {
    return RettangolinoMomenti(i, yInf, ySup).Area;
}

// Theorem of Huygens and Steiner, a rectangle at a time.
MomentiStriscia Poligono::RettangolinoMomenti(int i, double yInf, double ySup) const {
    const RigaStriscia& riga = Striscia(i);
    const Fetta fetta(riga.y, riga.h, yInf, ySup);
    MomentiStriscia m;
    for (std::size_t k = 0; k < static_cast<std::size_t>(riga.nRett); ++k) {
        const double b = riga.b[k];
        const double x = riga.x[k];
        const double A = b * fetta.h;
        m.Area += A;
        m.Sx += A * fetta.y;
        m.Sy += A * x;
        m.Ix += A * (fetta.y * fetta.y + fetta.h * fetta.h / 12);
        m.Iy += A * (x * x + b * b / 12);
        m.Ixy += A * x * fetta.y;
    }
    return m;
}

} // namespace sagomi
