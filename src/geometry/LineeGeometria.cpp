#include "geometry/LineeGeometria.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

#include "frame/Messaggi.h"

namespace sagomi {

namespace {

double Estensione(std::span<const double> v) {
    const auto [minimo, massimo] = std::minmax_element(v.begin(), v.end());
    return *massimo - *minimo;
}

std::size_t Quanti(std::int16_t n, std::span<const double> x, std::span<const double> y) {
    return std::min({static_cast<std::size_t>(std::max<std::int16_t>(n, 0)), x.size(), y.size()});
}

} // namespace

double Distanza(double x1, double y1, double x2, double y2) {
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    return std::sqrt(dx * dx + dy * dy);
}

// Green's theorem, side by side.
bool AreaConSegno(std::int16_t n, std::span<const double> x, std::span<const double> y, double& A) {
    const std::size_t quanti = Quanti(n, x, y);
    double doppia = 0;
    for (std::size_t i = 0; i < quanti; ++i) {
        const std::size_t prima = i == 0 ? quanti - 1 : i - 1;
        const std::size_t dopo = i + 1 == quanti ? 0 : i + 1;
        doppia += (x[prima] - x[dopo]) * y[i];
    }
    A = doppia / 2;
    return A >= 0;
}

double Angolo(double dy, double dx) {
    const double tangente = dy / dx;
    if (dx == 0 || !std::isfinite(tangente))
        return dy < 0 ? 1.5 * std::numbers::pi : std::numbers::pi / 2;
    const double a = std::atan(tangente);
    if (dx < 0)
        return a + std::numbers::pi;
    return dy < 0 ? a + 2 * std::numbers::pi : a;
}

double ZeroDimensione(std::span<const double> x, std::span<const double> y, std::int16_t n, double fattore) {
    const std::size_t quanti = Quanti(n, x, y);
    if (quanti == 0)
        return 0;
    return std::max(Estensione(x.first(quanti)), Estensione(y.first(quanti))) / fattore;
}

bool NumeroUguale(double a, double b, double zero) { return std::abs(a - b) <= zero; }

bool PuntiCoincidenti(const Coppia& x, const Coppia& y, const Coppia& w, std::optional<double> zero) {
    const double tolleranza = zero.value_or(ZeroModulo);
    if (tolleranza == 0)
        Avvisa("zero=0 in PuntiCoincidenti");
    if (std::abs(w[0]) <= tolleranza || std::abs(w[1]) <= tolleranza)
        return NumeroUguale(w[0], w[1], tolleranza);
    return NumeroUguale(x[0] / w[0], x[1] / w[1], tolleranza) &&
           NumeroUguale(y[0] / w[0], y[1] / w[1], tolleranza);
}

bool PuntiCoincidentiXY(double x1, double y1, double x2, double y2, std::optional<double> zero) {
    const double tolleranza = zero.value_or(ZeroMaxDimen);
    if (tolleranza == 0)
        Avvisa("zero=0 in PuntiCoincidentiXY");
    return NumeroUguale(x1, x2, tolleranza) && NumeroUguale(y1, y2, tolleranza);
}

// The cross product of two points in homogeneous coordinates is their line.
bool RettaPerDuePunti(const Coppia& x, const Coppia& y, const Coppia& w, double& a, double& b, double& c,
                      std::optional<double> zero) {
    if (PuntiCoincidenti(x, y, w, zero))
        return false;
    a = w[0] * y[1] - w[1] * y[0];
    b = w[1] * x[0] - w[0] * x[1];
    c = y[0] * x[1] - y[1] * x[0];
    return true;
}

// Cramer's rule.
bool IntersezioneRette(double a1, double b1, double c1, double a2, double b2, double c2, double& x, double& y,
                       double zero) {
    const double determinante = a1 * b2 - a2 * b1;
    const double lunghezze = std::sqrt((a1 * a1 + b1 * b1) * (a2 * a2 + b2 * b2));
    // Divided by the lengths of the normals, the determinant is the sine of the angle: free of scale.
    if (!(std::abs(determinante) > zero * lunghezze))
        return false;
    x = (b1 * c2 - b2 * c1) / determinante;
    y = (a2 * c1 - a1 * c2) / determinante;
    return true;
}

Trasformazione RiferimentoDiretto(double xp, double yp, double alfa) {
    const double c = std::cos(alfa);
    const double s = std::sin(alfa);
    return {c, s, -xp * c - yp * s, -s, c, xp * s - yp * c};
}

Trasformazione RiferimentoInverso(double xp, double yp, double alfa) {
    const double c = std::cos(alfa);
    const double s = std::sin(alfa);
    return {c, -s, xp, s, c, yp};
}

void Trasforma(const Trasformazione& M, double& x, double& y) {
    const double x0 = x;
    const double y0 = y;
    x = M[0] * x0 + M[1] * y0 + M[2];
    y = M[3] * x0 + M[4] * y0 + M[5];
}

void AttraversamentiLivello(std::span<const double> x, std::span<const double> y, std::int16_t n, double y0,
                            std::vector<double>& xI, std::vector<std::int16_t>& iLato) {
    xI.clear();
    iLato.clear();
    const std::size_t quanti = Quanti(n, x, y);
    for (std::size_t i = 0; i < quanti; ++i) {
        const std::size_t dopo = i + 1 == quanti ? 0 : i + 1;
        if ((y[i] > y0) == (y[dopo] > y0))
            continue;
        xI.push_back(x[i] + (y0 - y[i]) / (y[dopo] - y[i]) * (x[dopo] - x[i]));
        iLato.push_back(static_cast<std::int16_t>(i + 1));
    }
}

void TogliePuntiInizialiDaPoligonale(std::vector<double>& x, std::vector<double>& y, std::int16_t& n,
                                     std::int16_t nPunti) {
    if (nPunti < 1) {
        Avvisa("Errore in TogliePuntiInizialiDaPoligonale: nPunti=" + std::to_string(int{nPunti}) + " <1");
        return;
    }
    const auto quanti =
        static_cast<std::ptrdiff_t>(std::min(static_cast<std::size_t>(nPunti), Quanti(n, x, y)));
    x.erase(x.begin(), x.begin() + quanti);
    y.erase(y.begin(), y.begin() + quanti);
    n = static_cast<std::int16_t>(n - quanti);
}

} // namespace sagomi
