#include <algorithm>
#include <cmath>

#include "geometry/Matematica.h"
#include "geometry/Poligono.h"

namespace sagomi {

namespace {

/// What lies on one side of a level: its signed area, doubled, and its first moment about the level, six
/// times.
struct Meta {
    double A2 = 0;
    double S6 = 0;

    /// The strip between the level and a side that begins w1 and ends w2 above it, du wide.
    void Aggiunge(double du, double w1, double w2) {
        A2 += du * (w1 + w2);
        S6 += du * (w1 * w1 + w1 * w2 + w2 * w2);
    }
    [[nodiscard]] double Baricentro() const { return S6 / A2 / 3; } ///< above the level
};

struct Meta2 {
    Meta sopra, sotto;
};

/// The two sides of the level v = livello, without making polygons of them: each side of the outline gives
/// the strip between it and the level, one that crosses it a triangle on either side.
Meta2 AlLivello(const std::vector<double>& u, const std::vector<double>& v, std::size_t n, double livello) {
    Meta2 meta;
    double w1 = n > 0 ? v[n - 1] - livello : 0;
    double u1 = n > 0 ? u[n - 1] : 0;
    for (std::size_t i = 0; i < n; ++i) {
        const double w2 = v[i] - livello;
        const double du = u1 - u[i];
        if (w1 >= 0 && w2 >= 0) {
            meta.sopra.Aggiunge(du, w1, w2);
        } else if (w1 <= 0 && w2 <= 0) {
            meta.sotto.Aggiunge(du, w1, w2);
        } else {
            const double t = w1 / (w1 - w2);
            (w1 > 0 ? meta.sopra : meta.sotto).Aggiunge(du * t, w1, 0);
            (w1 > 0 ? meta.sotto : meta.sopra).Aggiunge(du * (1 - t), 0, w2);
        }
        u1 = u[i];
        w1 = w2;
    }
    return meta;
}

/// Area above the level alone, which is what a search asks for at every step.
double AreaSopra(const std::vector<double>& u, const std::vector<double>& v, std::size_t n, double livello) {
    double doppia = 0;
    double w1 = n > 0 ? v[n - 1] - livello : 0;
    double u1 = n > 0 ? u[n - 1] : 0;
    for (std::size_t i = 0; i < n; ++i) {
        const double w2 = v[i] - livello;
        const double piuAlto = std::max(w1, w2);
        if (w1 >= 0 && w2 >= 0)
            doppia += (u1 - u[i]) * (w1 + w2);
        else if (piuAlto > 0)
            doppia += (u1 - u[i]) * piuAlto * piuAlto / std::abs(w1 - w2);
        u1 = u[i];
        w1 = w2;
    }
    return std::abs(doppia) / 2;
}

} // namespace

double Poligono::yEquazione(double y, bool lungoX) {
    const double livello = Singolo(y);
    const auto [xMin, xMax, yMin, yMax] = BoundingBox();
    if (livello >= (lungoX ? xMax : yMax))
        return -rapportoArea_ * Area;
    if (livello <= (lungoX ? xMin : yMin)) {
        AreaCalcola();
        return Area - rapportoArea_ * Area;
    }
    const double sopra = lungoX ? AreaSopra(y_, x_, Numero(), livello) : AreaSopra(x_, y_, Numero(), livello);
    return sopra - rapportoArea_ * Area;
}

void Poligono::Dividi(double rapporto, std::shared_ptr<Poligono>& sopra, std::shared_ptr<Poligono>& sotto,
                      double& yN, bool lungoX) {
    rapportoArea_ = rapporto;
    AreaCalcola();
    auto [xMin, xMax, yMin, yMax] = BoundingBox();
    double& minimo = lungoX ? xMin : yMin;
    double& massimo = lungoX ? xMax : yMax;
    yN = ZeroFunzione(*this, minimo, massimo, Area / 10000, lungoX);
    DividiY(yN, sopra, sotto, lungoX);
}

// Twice the first moment of a half disc, D^3 / 12.
void Poligono::WplasticoCerchio(double De, double Di, double& W) { W = (De * De * De - Di * Di * Di) / 6; }

double Poligono::Wplastico(double* yN, bool attornoY, bool cerchio, double De, double Di) {
    double W = 0;
    if (cerchio) {
        WplasticoCerchio(De, Di, W);
        return W;
    }
    AreaCalcola();
    return ModuloPlastico(BoundingBox(), attornoY, yN);
}

// The plastic neutral axis halves the area; the modulus is half the area times the distance of the centroids
// of the halves. The search of Dividi(0.5), step by step, without making polygons: the level stays the same
// to its last figure.
double Poligono::ModuloPlastico(const std::array<double, 4>& box, bool attornoY, double* yN) {
    rapportoArea_ = 0.5;
    const std::vector<double>& u = attornoY ? y_ : x_;
    const std::vector<double>& v = attornoY ? x_ : y_;
    const double minimo = box[attornoY ? 0 : 2];
    const double massimo = box[attornoY ? 1 : 3];
    const auto residuo = [&](double y) {
        const double livello = Singolo(y);
        if (livello >= massimo || livello <= minimo)
            return (livello >= massimo ? -0.5 : 0.5) * Area;
        return AreaSopra(u, v, Numero(), livello) - 0.5 * Area;
    };
    double x1 = minimo;
    double x2 = massimo;
    const double trovato = CercaZero(residuo, x1, x2, Area / 10000);
    if (yN)
        *yN = trovato;
    const double livello = Singolo(trovato);
    const Meta2 meta = AlLivello(u, v, Numero(), livello);
    // A search that failed may leave one half only: no couple of forces.
    if (livello >= massimo || livello <= minimo || meta.sopra.A2 == 0 || meta.sotto.A2 == 0)
        return 0;
    return Area / 2 * (meta.sopra.Baricentro() - meta.sotto.Baricentro());
}

void Poligono::Wplastici() {
    WplX = WplY = 0;
    if (Area == 0)
        return;
    AreaCalcola();
    const std::array<double, 4> box = BoundingBox();
    WplX = ModuloPlastico(box, false, nullptr);
    WplY = Area != 0 ? ModuloPlastico(box, true, nullptr) : 0;
}

} // namespace sagomi
