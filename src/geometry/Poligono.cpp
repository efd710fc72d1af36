#include "geometry/Poligono.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <stdexcept>
#include <string>
#include <utility>

namespace sagomi {

namespace {

constexpr float estremoIniziale = 1E+20F; ///< beyond every coordinate

bool TroppiVertici(std::size_t n) { return n > std::numeric_limits<std::int16_t>::max(); }

/// Direction of a vector for the turning of vertices; a vector without length has none that matters.
double AngoloPolare(double dx, double dy) {
    if (std::abs(dx) > 1E-20)
        return std::atan(dy / dx) + (dx < 0 ? std::numbers::pi : 0);
    return dy < 0 ? 1.5 * std::numbers::pi : std::numbers::pi / 2;
}

} // namespace

std::size_t Poligono::Posto(int i, const std::vector<double>& v) {
    if (i < 1 || static_cast<std::size_t>(i) > v.size())
        throw std::out_of_range("vertice " + std::to_string(i) + " fuori da 1.." + std::to_string(v.size()));
    return static_cast<std::size_t>(i) - 1;
}

std::shared_ptr<Poligono> Poligono::Stesso() {
    if (auto io = weak_from_this().lock())
        return io;
    return {std::shared_ptr<Poligono>(), this};
}

Poligono Poligono::Copia() const {
    Poligono copia = *this;
    copia.nStrisce = 0;
    copia.strisce_.clear();
    copia.mezzaStriscia_ = 0;
    copia.rapportoArea_ = 0;
    return copia;
}

void Poligono::nVertici(std::int16_t n) {
    n_ = n;
    if (n <= 0)
        return;
    x_.assign(Numero(), 0);
    y_.assign(Numero(), 0);
}

void Poligono::CoordX(const std::vector<double>& x) {
    if (TroppiVertici(x.size()))
        return;
    x_ = x;
    n_ = static_cast<std::int16_t>(x.size());
    y_.resize(std::max(y_.size(), Numero()));
}

void Poligono::CoordY(const std::vector<double>& y) {
    if (TroppiVertici(y.size()))
        return;
    y_ = y;
    n_ = static_cast<std::int16_t>(y.size());
    x_.resize(std::max(x_.size(), Numero()));
}

void Poligono::Coordinate(const std::vector<double>& x, const std::vector<double>& y, std::int16_t n) {
    if (n <= 0) {
        nVertici(n);
        return;
    }
    if (x.size() < static_cast<std::size_t>(n) || y.size() < static_cast<std::size_t>(n))
        return;
    const auto propria = [this](const std::vector<double>& v) { return &v == &x_ || &v == &y_; };
    if (propria(x) || propria(y)) { // of their copies
        Coordinate(std::vector<double>(x), std::vector<double>(y), n);
        return;
    }
    x_.assign(x.begin(), x.begin() + n);
    y_.assign(y.begin(), y.begin() + n);
    n_ = n;
}

std::int16_t Poligono::Contati(std::size_t vertici) {
    if (TroppiVertici(vertici))
        throw std::out_of_range("poligono di " + std::to_string(vertici) + " vertici");
    return static_cast<std::int16_t>(vertici);
}

std::shared_ptr<Poligono> Poligono::DaVertici(std::vector<double> x, std::vector<double> y) {
    auto p = std::make_shared<Poligono>();
    p->n_ = Contati(x.size());
    p->x_ = std::move(x);
    p->y_ = std::move(y);
    return p;
}

void Poligono::InseriscePunti(int iDopo, const std::vector<double>& xP, const std::vector<double>& yP) {
    const std::size_t totale = Numero() + xP.size();
    if (iDopo < 0 || static_cast<std::size_t>(iDopo) > Numero() || xP.size() != yP.size() ||
        TroppiVertici(totale))
        throw std::out_of_range("punti da inserire dopo il vertice " + std::to_string(iDopo));
    x_.resize(Numero());
    y_.resize(Numero());
    x_.insert(x_.begin() + iDopo, xP.begin(), xP.end());
    y_.insert(y_.begin() + iDopo, yP.begin(), yP.end());
    n_ = static_cast<std::int16_t>(totale);
}

void Poligono::MaxMin(double& xMin, double& xMax, double& yMin, double& yMax, double* zero) const {
    double x0 = estremoIniziale;
    double x1 = -estremoIniziale;
    double y0 = estremoIniziale;
    double y1 = -estremoIniziale;
    for (std::size_t i = 0; i < Numero(); ++i) {
        x0 = std::min(x0, x_[i]);
        x1 = std::max(x1, x_[i]);
        y0 = std::min(y0, y_[i]);
        y1 = std::max(y1, y_[i]);
    }
    xMin = x0;
    xMax = x1;
    yMin = y0;
    yMax = y1;
    if (zero)
        *zero = std::max(x1 - x0, y1 - y0) / 1000000000;
}

double Poligono::MaxDimensione() const {
    if (Numero() == 0)
        return 0;
    const auto [xMin, xMax, yMin, yMax] = BoundingBox();
    return std::max(xMax - xMin, yMax - yMin);
}

std::array<double, 4> Poligono::BoundingBox() const {
    std::array<double, 4> box{};
    MaxMin(box[0], box[1], box[2], box[3]);
    return box;
}

bool Poligono::PuntoInBoundingBox(double x, double y, double margine) const {
    const auto [xMin, xMax, yMin, yMax] = BoundingBox();
    return x >= xMin - margine && x <= xMax + margine && y >= yMin - margine && y <= yMax + margine;
}

void Poligono::RotoTraslaVertici(const Trasformazione& M) {
    for (std::size_t i = 0; i < Numero(); ++i)
        Trasforma(M, x_[i], y_[i]);
}

void Poligono::RuotaVertici(double xC, double yC, double angolo) {
    for (std::size_t i = 0; i < Numero(); ++i) {
        const double raggio = Distanza(xC, yC, x_[i], y_[i]);
        const double direzione = AngoloPolare(x_[i] - xC, y_[i] - yC) + angolo;
        x_[i] = xC + raggio * std::cos(direzione);
        y_[i] = yC + raggio * std::sin(direzione);
    }
    CaratteristicheStatiche();
}

void Poligono::Trasla(double dx, double dy) {
    for (std::size_t i = 0; i < Numero(); ++i) {
        x_[i] -= dx;
        y_[i] -= dy;
    }
}

void Poligono::SpecchiaXY(double d, bool suY) {
    std::vector<double>& v = suY ? y_ : x_;
    for (std::size_t i = 0; i < Numero(); ++i)
        v[i] = -(v[i] + d);
}

} // namespace sagomi
