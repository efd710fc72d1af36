// Channels, pairs and biaxial plastic moments by a second method: strips and sectorial integrals.
#include <algorithm>
#include <cmath>

#include "Profili.h"
#include "Verbale.h"
#include "sections/SezioneDoppia.h"
#include "sections/SezioneSagomoU.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class SecondiMetodiCanali : public Ambiente {};

constexpr double h = 200, b = 80, tw = 6, tf = 11, r1 = 13; // a channel with parallel flanges

SezioneSagomoU Canale() {
    SezioneSagomoU s;
    s.fy = 235;
    s.h = h;
    s.b = b;
    s.tw = tw;
    s.tf = tf;
    s.r1 = r1;
    s.InizializzaSezione();
    const SezioneGenerica& g = *s.SezioneGenericaCorrente;
    s.Area = g.Area;
    s.Jy = g.JotaXG;
    s.Jz = g.JotaYG;
    s.iY = std::sqrt(g.JotaXG / g.Area);
    s.Iz = std::sqrt(g.JotaYG / g.Area);
    s.Wply = g.WplX;
    s.InizializzaSezione();
    return s;
}

/// Height of a fillet of radius r at u from the face of the web.
double Raccordo(double r, double u) { return u < r ? r - std::sqrt(r * r - (r - u) * (r - u)) : 0; }

/// Upright extent of the channel at x from its back.
double Alta(double x) { return x < tw ? h : 2 * (tf + Raccordo(r1, x - tw)); }

TEST_F(SecondiMetodiCanali, CoppiaPerStrisce) {
    constexpr int n = 200000;
    constexpr double gioco = 12, dx = b / n;
    double A = 0, S = 0, Jz = 0;
    for (int i = 0; i < n; ++i) {
        const double x = (i + 0.5) * dx, da = x + gioco / 2;
        A += 2 * Alta(x) * dx;
        S += 2 * Alta(x) * dx * da;
        Jz += 2 * Alta(x) * dx * da * da;
    }
    SezioneSagomoU coppia = Canale();
    RendeDoppia(coppia, SingoloDi(coppia), gioco, false);
    Controprova("Canali accoppiati",
                "200 000 strisce verticali dei due canali, con i raccordi ad arco, intorno all'asse comune.",
                "due canali 200x80x6x11, raccordo 13 mm, dorso a dorso a 12 mm")
        .Confronta("A", "cm²", A / 1e2, coppia.Area / 1e2, 0.002)
        .Confronta("I<sub>z</sub>", "cm⁴", Jz / 1e4, coppia.Jz / 1e4, 0.002)
        .Confronta("i<sub>z</sub>", "mm", std::sqrt(Jz / A), coppia.Iz, 0.001)
        .Confronta("W<sub>el,z</sub>", "cm³", Jz / (b + gioco / 2) / 1e3, coppia.Welz / 1e3, 0.002)
        .Confronta("W<sub>pl,z</sub>", "cm³", S / 1e3, coppia.Wplz / 1e3, 0.002);
}

/// Sectorial moment of centre lines, flanges of the given length from a web without thickness, by midpoints.
double Ingobbamento(double larga) {
    constexpr int n = 100000;
    const double hf = h - tf;
    double Iy = 0, Szw = 0; // about y; of the sectorial coordinate with its pole on the web
    const double ds = larga / n, dz = hf / n;
    for (int i = 0; i < n; ++i) {
        const double s = (i + 0.5) * ds, z = (i + 0.5) * dz - hf / 2;
        Iy += 2 * tf * ds * hf * hf / 4 + tw * dz * z * z;
        Szw += 2 * tf * ds * (hf / 2 * s) * (hf / 2);
    }
    const double e = Szw / Iy; // shear centre behind the web
    double Iw = 0;
    for (int i = 0; i < n; ++i) {
        const double s = (i + 0.5) * ds, z = (i + 0.5) * dz - hf / 2;
        Iw += 2 * tf * ds * std::pow(hf / 2 * (s - e), 2) + tw * dz * std::pow(e * z, 2);
    }
    return Iw;
}

TEST_F(SecondiMetodiCanali, IngobbamentoDelCanale) {
    Controprova("Costante di ingobbamento di un canale",
                "integrale della coordinata settoriale sulle linee medie, con il centro di taglio dalla "
                "condizione che ne annulla il momento.",
                "canale 200x80x6x11")
        .Confronta("I<sub>w</sub>, ali larghe quanto dal dorso", "cm⁶", Ingobbamento(b) / 1e6,
                   Canale().JotaOmega() / 1e6, 1e-4)
        .Confronta("I<sub>w</sub>, ali dalla linea media dell'anima", "cm⁶", Ingobbamento(b - tw / 2) / 1e6,
                   Canale().JotaOmega() / 1e6, 0.15,
                   "Il programma conta la larghezza intera: vedi Regole particolari, Costante di "
                   "ingobbamento.");
}

TEST_F(SecondiMetodiCanali, MomentoPlasticoDeboleConForza) {
    auto s = Laminata("HE 200 B", 235, 200, 200, 9, 15, 18);
    Controprova c("Momento plastico debole ridotto dallo sforzo normale",
                  "equilibrio plastico di 40 000 strisce verticali, con l'asse neutro che dà lo sforzo "
                  "normale.",
                  "HE 200 B, S235");
    const auto alta = [](double x) {
        const double da = std::abs(x);
        return da < 4.5 ? 200.0 : 2 * (15 + Raccordo(18, da - 4.5));
    };
    for (const double quota : {0.2, 0.4, 0.6, 0.8}) {
        s.NSd = quota * s.NplRd;
        constexpr int n = 40000;
        const double dx = 200.0 / n;
        double basso = -100, alto = 100, M = 0;
        for (int giro = 0; giro < 50; ++giro) {
            const double xN = (basso + alto) / 2;
            double F = 0;
            M = 0;
            for (int i = 0; i < n; ++i) {
                const double x = (i + 0.5) * dx - 100,
                             f = 235 * std::clamp(2 * (x - xN) / dx, -1.0, 1.0) * alta(x) * dx;
                F += f;
                M += f * x;
            }
            (F > s.NSd ? basso : alto) = xN;
        }
        double MNy = 0, MNz = 0, beta = 0;
        s.MNRd(MNy, MNz, beta);
        c.Confronta("M<sub>N,z,Rd</sub>, N = " + std::to_string(quota).replace(1, 1, ",").substr(0, 3) +
                        " N<sub>pl</sub>",
                    "kNm", M / 1e6, MNz / 1e6, 0.03,
                    "La formula della norma è una parabola oltre la resistenza dell'anima.");
    }
}

} // namespace
