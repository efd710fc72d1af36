#include "TraveElementi.h"

#include <array>
#include <cmath>
#include <vector>

#include "sections/Eurocod3.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi::verifica {

namespace {

constexpr std::size_t elementi = 20;
constexpr std::size_t gradi = 4; ///< deflection, its slope, twist, its rate
constexpr std::size_t incognite = gradi * (elementi + 1);
constexpr std::size_t banda = 2 * gradi; ///< unknowns farther apart have no element in common

using Matrice = std::vector<std::vector<double>>;

/// Value, slope and curvature of the four cubic shapes at s from 0 to 1 of an element of length h.
struct Forme {
    std::array<double, 4> f{}, f1{}, f2{};

    Forme(double s, double h)
        : f{1 - 3 * s * s + 2 * s * s * s, h * (s - 2 * s * s + s * s * s), 3 * s * s - 2 * s * s * s,
            h * (s * s * s - s * s)},
          f1{(6 * s * s - 6 * s) / h, 1 - 4 * s + 3 * s * s, (6 * s - 6 * s * s) / h, 3 * s * s - 2 * s},
          f2{(12 * s - 6) / h / h, (6 * s - 4) / h, (6 - 12 * s) / h / h, (6 * s - 2) / h} {}
};

/// Places of the shapes of deflection and of twist in an element.
std::size_t Deflessione(std::size_t e, std::size_t i) { return gradi * (e + i / 2) + i % 2; }
std::size_t Torsione(std::size_t e, std::size_t i) { return Deflessione(e, i) + 2; }

struct Sistema {
    Matrice K{incognite, std::vector<double>(incognite)};
    Matrice G{incognite, std::vector<double>(incognite)};

    void Punto(const TraveElementi& t, std::size_t e, double s, double h, double peso) {
        const Forme f(s, h);
        const double M = t.M((double(e) + s) * h);
        for (std::size_t i = 0; i < 4; ++i)
            for (std::size_t j = 0; j < 4; ++j) {
                const std::size_t v = Deflessione(e, i), p = Torsione(e, i), q = Torsione(e, j);
                K[v][Deflessione(e, j)] += peso * t.EIz * f.f2[i] * f.f2[j];
                K[p][q] += peso * (t.EIw * f.f2[i] * f.f2[j] + t.GIt * f.f1[i] * f.f1[j]);
                G[p][q] += peso * (M * t.beta * f.f1[i] * f.f1[j] + t.q * t.zCarico * f.f[i] * f.f[j]);
                G[v][q] += peso * M * f.f2[i] * f.f[j];
                G[q][v] += peso * M * f.f2[i] * f.f[j];
            }
    }

    explicit Sistema(const TraveElementi& t) {
        const double h = t.L / elementi;
        constexpr std::array punti{0.0694318442029737, 0.330009478207572, 0.669990521792428,
                                   0.930568155797026};
        constexpr std::array pesi{0.173927422568727, 0.326072577431273, 0.326072577431273, 0.173927422568727};
        for (std::size_t e = 0; e < elementi; ++e)
            for (std::size_t k = 0; k < punti.size(); ++k)
                Punto(t, e, punti.at(k), h, pesi.at(k) * h);
        const auto nodo = static_cast<std::size_t>(std::lround(t.xP / h));
        G[gradi * nodo + 2][gradi * nodo + 2] += t.P * t.zCarico;
    }
};

std::vector<std::size_t> Libere(bool mensola) {
    std::vector<std::size_t> libere;
    for (std::size_t i = 0; i < incognite; ++i) {
        const std::size_t nodo = i / gradi;
        const bool forcella = i % 2 == 0 && (nodo == 0 || nodo == elementi);
        if (mensola ? nodo > 0 : !forcella)
            libere.push_back(i);
    }
    return libere;
}

/// Whether K less the load's share is positive (Cholesky).
bool Stabile(const Sistema& s, const std::vector<std::size_t>& libere, double carico) {
    const std::size_t n = libere.size();
    Matrice l(n, std::vector<double>(n));
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t primo = i < banda ? 0 : i - banda;
        for (std::size_t j = primo; j <= i; ++j) {
            double x = s.K[libere[i]][libere[j]] - carico * s.G[libere[i]][libere[j]];
            for (std::size_t k = primo; k < j; ++k)
                x -= l[i][k] * l[j][k];
            if (i == j && !(x > 0))
                return false;
            l[i][j] = i == j ? std::sqrt(x) : x / l[j][j];
        }
    }
    return true;
}

} // namespace

double TraveElementi::Critico() const {
    const Sistema s(*this);
    const std::vector<std::size_t> libere = Libere(mensola);
    double basso = 0, alto = 1;
    while (Stabile(s, libere, alto))
        alto *= 2;
    while (alto - basso > 1e-7 * alto) {
        const double m = (basso + alto) / 2;
        (Stabile(s, libere, m) ? basso : alto) = m;
    }
    return basso;
}

TraveElementi ElementiDi(const SezioneDoppioT& s, double L) {
    TraveElementi t;
    t.L = L;
    t.EIz = E_acciaio * s.Jz;
    t.EIw = E_acciaio * s.Jw;
    t.GIt = G_acciaio * s.JT;
    return t;
}

double McrDi(SezioneDoppioT s, double L, double C1, double c2, double za) {
    s.k = s.Kw = 1;
    s.LLT = L;
    s.C1 = C1;
    s.c2 = c2;
    s.za = za;
    return s.McrFunz();
}

PiattiAperti::PiattiAperti(double h, double b, double tw, double tf, double bInf, double tInf) {
    const double zSup = h - tf / 2, zInf = tInf / 2, hs = zSup - zInf;
    const double Asup = b * tf, Ainf = bInf * tInf, Aw = (h - tf - tInf) * tw;
    const double zw = tInf + (h - tf - tInf) / 2;
    yG = (Asup * zSup + Ainf * zInf + Aw * zw) / (Asup + Ainf + Aw);
    const double I1 = tf * b * b * b / 12, I2 = tInf * bInf * bInf * bInf / 12;
    Iz = I1 + I2;
    Iw = I1 * I2 / Iz * hs * hs;
    zs = zInf + hs * I1 / Iz - yG;
    double terzo = 0; // ∫ z (y² + z²) dA in strips
    constexpr int strisce = 2000;
    const auto piatto = [&](double z0, double z1, double larga) {
        const double dz = (z1 - z0) / strisce;
        for (int i = 0; i < strisce; ++i) {
            const double z = z0 + (i + 0.5) * dz - yG;
            Iy += larga * dz * z * z;
            terzo += z * (larga * larga * larga / 12 + z * z * larga) * dz;
        }
    };
    piatto(h - tf, h, b);
    piatto(tInf, h - tf, tw);
    piatto(0, tInf, bInf);
    beta = terzo / Iy - 2 * zs;
}

} // namespace sagomi::verifica
