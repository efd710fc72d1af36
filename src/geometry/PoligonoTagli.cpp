#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>
#include <utility>

#include "geometry/Poligono.h"

namespace sagomi {

namespace {

constexpr double fattoreLati = 100000;  ///< greater extent over the tolerance of line and side
constexpr double fattoreRumore = 1E-12; ///< a side shorter than this part of the extent is rounding noise

/// One side of the outline and the line that cuts it.
struct Taglio {
    double a, b, c;
    double zero;   ///< tolerance of the side's box
    double minimo; ///< length up to which a side has no direction

    /// Point of the line on the side from (x1, y1) to (x2, y2).
    bool Punto(double x1, double y1, double x2, double y2, double& x, double& y) const {
        const double la = y2 - y1;
        const double lb = x1 - x2;
        if (std::abs(la) <= minimo && std::abs(lb) <= minimo)
            return false;
        // Measured from the side's start, so that coordinates far from the origin keep their figures.
        if (!IntersezioneRette(a, b, a * x1 + b * y1 + c, la, lb, 0, x, y))
            return false;
        x += x1;
        y += y1;
        return Tra(x, x1, x2) && Tra(y, y1, y2);
    }

    [[nodiscard]] bool Tra(double v, double v1, double v2) const {
        return v >= std::min(v1, v2) - zero && v <= std::max(v1, v2) + zero;
    }
};

/// Takes out of a list of points those that coincide with one before them.
std::int16_t TogliCoincidenti(std::vector<double>& xI, std::vector<double>& yI,
                              std::vector<std::int16_t>& iLato, double zero) {
    std::size_t tenuti = 0;
    for (std::size_t k = 0; k < xI.size(); ++k) {
        bool doppio = false;
        for (std::size_t j = 0; j < tenuti && !doppio; ++j)
            doppio = NumeroUguale(xI[j], xI[k], zero) && NumeroUguale(yI[j], yI[k], zero);
        if (doppio)
            continue;
        xI[tenuti] = xI[k];
        yI[tenuti] = yI[k];
        iLato[tenuti] = iLato[k];
        ++tenuti;
    }
    const std::size_t tolti = xI.size() - tenuti;
    xI.resize(tenuti);
    yI.resize(tenuti);
    iLato.resize(tenuti);
    return static_cast<std::int16_t>(tolti);
}

/// The order in which points are met along the outline; points of the same side keep theirs.
std::vector<std::size_t> OrdineDeiLati(const std::vector<std::int16_t>& iLato, std::size_t nI) {
    std::vector<std::size_t> ordine(nI);
    std::iota(ordine.begin(), ordine.end(), 0U);
    std::stable_sort(ordine.begin(), ordine.end(),
                     [&](std::size_t i, std::size_t j) { return iLato[i] < iLato[j]; });
    return ordine;
}

} // namespace

void Poligono::IntersezioneConRetta(double a, double b, double c, std::vector<double>& xI,
                                    std::vector<double>& yI, std::vector<std::int16_t>& iLato,
                                    std::int16_t& nI, std::int16_t* nTolti) const {
    xI.clear();
    yI.clear();
    iLato.clear();
    const double zero = ZeroDimensione(x_, y_, n_, fattoreLati);
    const Taglio taglio{a, b, c, zero, zero * fattoreLati * fattoreRumore};
    // Twice the tolerance away on the same side of the line, both ends are out of reach.
    const double lontano = 2 * zero * std::sqrt(a * a + b * b);
    const std::size_t n = Numero();
    double prima = n > 0 ? a * x_[0] + b * y_[0] + c : 0;
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t j = i + 1 == n ? 0 : i + 1;
        const double dopo = a * x_[j] + b * y_[j] + c;
        const bool fuori = (prima > lontano && dopo > lontano) || (prima < -lontano && dopo < -lontano);
        prima = dopo;
        double x = 0;
        double y = 0;
        if (fuori || !taglio.Punto(x_[i], y_[i], x_[j], y_[j], x, y))
            continue;
        xI.push_back(x);
        yI.push_back(y);
        iLato.push_back(static_cast<std::int16_t>(i + 1));
    }
    if (nTolti)
        *nTolti = TogliCoincidenti(xI, yI, iLato, zero);
    nI = static_cast<std::int16_t>(xI.size());
}

void Poligono::IntersezioneConSegmento(double x1, double y1, double x2, double y2, std::vector<double>& xI,
                                       std::vector<double>& yI, std::int16_t& nI,
                                       std::vector<std::int16_t>& iLato) const {
    const double a = y2 - y1;
    const double b = x1 - x2;
    std::vector<double> x;
    std::vector<double> y;
    std::vector<std::int16_t> lati;
    if (a != 0 || b != 0)
        IntersezioneConRetta(a, b, -a * x1 - b * y1, x, y, lati, nI);
    const Taglio segmento{a, b, 0, ZeroDimensione(x_, y_, n_, fattoreLati), 0};
    xI.clear();
    yI.clear();
    iLato.clear();
    for (std::size_t k = 0; k < x.size(); ++k) {
        if (!segmento.Tra(x[k], x1, x2) || !segmento.Tra(y[k], y1, y2))
            continue;
        xI.push_back(x[k]);
        yI.push_back(y[k]);
        iLato.push_back(lati[k]);
    }
    nI = static_cast<std::int16_t>(xI.size());
}

std::shared_ptr<Poligono> Poligono::PoligonoConIntersezioni(const std::vector<double>& xI,
                                                            const std::vector<double>& yI,
                                                            const std::vector<std::int16_t>& iLato,
                                                            std::int16_t nI, std::vector<bool>& nuovo) const {
    const std::size_t punti = nI > 0 ? static_cast<std::size_t>(nI) : 0;
    if (xI.size() < punti || yI.size() < punti || iLato.size() < punti)
        throw std::out_of_range("intersezioni: meno punti di quanti annunciati");
    const std::vector<std::size_t> ordine = OrdineDeiLati(iLato, punti);
    std::vector<double> x;
    std::vector<double> y;
    x.reserve(Numero() + punti);
    y.reserve(Numero() + punti);
    nuovo.clear();
    std::size_t k = 0;
    for (std::size_t i = 0; i < Numero(); ++i) {
        x.push_back(x_[i]);
        y.push_back(y_[i]);
        nuovo.push_back(false);
        for (; k < punti && iLato[ordine[k]] <= static_cast<int>(i + 1); ++k) {
            x.push_back(xI[ordine[k]]);
            y.push_back(yI[ordine[k]]);
            nuovo.push_back(true);
        }
    }
    return DaVertici(std::move(x), std::move(y));
}

std::shared_ptr<Poligono>
Poligono::PoligonoSenzaPuntiOpposti(double segno, const std::vector<bool>& sulTaglio, bool usaX) const {
    if (sulTaglio.size() < Numero())
        throw std::out_of_range("punti sul taglio: meno dei vertici");
    const std::vector<double>& prova = usaX ? x_ : y_;
    std::vector<double> x;
    std::vector<double> y;
    x.reserve(Numero());
    y.reserve(Numero());
    for (std::size_t i = 0; i < Numero(); ++i) {
        if (prova[i] * segno < 0 && !sulTaglio[i])
            continue;
        x.push_back(x_[i]);
        y.push_back(y_[i]);
    }
    return DaVertici(std::move(x), std::move(y));
}

void Poligono::DividiY(double y, std::shared_ptr<Poligono>& sopra, std::shared_ptr<Poligono>& sotto,
                       bool lungoX) {
    const double livello = Singolo(y);
    const auto [xMin, xMax, yMin, yMax] = BoundingBox();
    const double massimo = lungoX ? xMax : yMax;
    const double minimo = lungoX ? xMin : yMin;
    std::vector<double> xI;
    std::vector<double> yI;
    std::vector<std::int16_t> iLato;
    std::int16_t nI = 0;
    if (livello < massimo && livello > minimo)
        IntersezioneConRetta(lungoX ? -1 : 0, lungoX ? 0 : -1, livello, xI, yI, iLato, nI);
    // This polygon may be held by sopra or sotto: both are written last.
    if (nI == 0) {
        std::shared_ptr<Poligono> stesso = Stesso();
        sopra = livello >= massimo ? nullptr : stesso;
        sotto = livello >= massimo ? stesso : nullptr;
        return;
    }
    std::vector<bool> nuovo;
    const std::shared_ptr<Poligono> tagliato = PoligonoConIntersezioni(xI, yI, iLato, nI, nuovo);
    const double dx = lungoX ? livello : 0;
    const double dy = lungoX ? 0 : livello;
    tagliato->Trasla(dx, dy);
    auto alto = tagliato->PoligonoSenzaPuntiOpposti(massimo - livello, nuovo, lungoX);
    auto basso = tagliato->PoligonoSenzaPuntiOpposti(minimo - livello, nuovo, lungoX);
    alto->Trasla(-dx, -dy);
    basso->Trasla(-dx, -dy);
    sopra = std::move(alto);
    sotto = std::move(basso);
}

std::shared_ptr<Poligono> Poligono::ParteTagliata(double a, double b, double c, double xP, double yP) const {
    std::vector<double> xI;
    std::vector<double> yI;
    std::vector<std::int16_t> iLato;
    std::int16_t nI = 0;
    IntersezioneConRetta(a, b, c, xI, yI, iLato, nI);
    if (nI == 0)
        return nullptr;
    std::vector<bool> nuovo;
    const std::shared_ptr<Poligono> tagliato = PoligonoConIntersezioni(xI, yI, iLato, nI, nuovo);
    const double direzione = Angolo(-a, b);
    const Trasformazione diretta = RiferimentoDiretto(xI[0], yI[0], direzione);
    Trasforma(diretta, xP, yP);
    tagliato->RotoTraslaVertici(diretta);
    std::shared_ptr<Poligono> parte = tagliato->PoligonoSenzaPuntiOpposti(yP, nuovo);
    parte->RotoTraslaVertici(RiferimentoInverso(xI[0], yI[0], direzione));
    return parte;
}

std::shared_ptr<Poligono> Poligono::PoligonoIntersezione(double a, double b, double c, double xP,
                                                         double yP) const {
    return ParteTagliata(a, b, c, xP, yP);
}

std::shared_ptr<Poligono> Poligono::PoligonoReagente(double xP, double yP, std::int16_t& segno, double a,
                                                     double b, double c) const {
    segno = 1;
    if (std::shared_ptr<Poligono> parte = ParteTagliata(a, b, c, xP, yP)) {
        parte->CaratteristicheStatiche();
        return parte;
    }
    // All vertices lie on one side of the line: the first speaks for them.
    const double posto = n_ > 0 ? a * x_[0] + b * y_[0] + c : 0;
    if ((a * xP + b * yP + c) * posto < 0) {
        segno = -1;
        return nullptr;
    }
    auto intero = std::make_shared<Poligono>();
    intero->Coordinate(x_, y_, n_);
    intero->CaratteristicheStatiche();
    return intero;
}

} // namespace sagomi
