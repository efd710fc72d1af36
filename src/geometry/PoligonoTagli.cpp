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

/// Coordinates along the cut and across it.
struct Coordinate2 {
    const std::vector<double>& u;
    const std::vector<double>& v;
};
struct Lista2 {
    std::vector<double>& u;
    std::vector<double>& v;
};

/// One part of a cut outline as it grows.
struct Parte {
    Lista2 punti;

    void Prepara(std::size_t n) const {
        constexpr std::size_t incontri = 8; ///< a double T is met four times, more make the list grow
        punti.u.reserve(n + incontri);
        punti.v.reserve(n + incontri);
    }
    void Aggiunge(double u, double v) const {
        punti.u.push_back(u);
        punti.v.push_back(v);
    }
    void Aggiunge(const Coordinate2& uv, std::size_t da, std::size_t a) const {
        const auto i = static_cast<std::ptrdiff_t>(da);
        const auto j = static_cast<std::ptrdiff_t>(a);
        punti.u.insert(punti.u.end(), uv.u.begin() + i, uv.u.begin() + j);
        punti.v.insert(punti.v.end(), uv.v.begin() + i, uv.v.begin() + j);
    }
};

/// An outline of n vertices and a level v = livello that cuts it, by the rules of Taglio.
struct TaglioALivello {
    Coordinate2 uv;
    std::size_t n;
    double livello;
    double zero; ///< tolerance of the side's box

    /// Twice the tolerance away on the same side of the level, both ends of a side are out of reach.
    [[nodiscard]] bool Sopra(double v) const { return v - livello > 2 * zero; }
    [[nodiscard]] bool Sotto(double v) const { return livello - v > 2 * zero; }

    /// Adds the run of vertices from i that lie clearly on one side, or one vertex close to the level, which
    /// belongs to both sides when it lies on it. @return the vertex after them
    std::size_t Aggiunge(std::size_t i, const Parte& sopra, const Parte& sotto) const {
        std::size_t j = i;
        while (j < n && Sopra(uv.v[j]))
            ++j;
        if (j > i) {
            sopra.Aggiunge(uv, i, j);
            return j;
        }
        while (j < n && Sotto(uv.v[j]))
            ++j;
        if (j > i) {
            sotto.Aggiunge(uv, i, j);
            return j;
        }
        if (uv.v[i] >= livello)
            sopra.Aggiunge(uv.u[i], uv.v[i]);
        if (uv.v[i] <= livello)
            sotto.Aggiunge(uv.u[i], uv.v[i]);
        return i + 1;
    }

    /// Point of the level on the side from vertex i to vertex j.
    bool Punto(std::size_t i, std::size_t j, double& u, double& v) const {
        const double v1 = uv.v[i];
        const double v2 = uv.v[j];
        if ((Sopra(v1) && Sopra(v2)) || (Sotto(v1) && Sotto(v2)))
            return false;
        const double du = uv.u[j] - uv.u[i];
        const double dv = v2 - v1;
        const double minimo = zero * fattoreLati * fattoreRumore;
        if (std::abs(du) <= minimo && std::abs(dv) <= minimo)
            return false;
        if (!(std::abs(dv) > zeroParallele * std::sqrt(du * du + dv * dv)))
            return false;
        u = uv.u[i] + du * (livello - v1) / dv;
        v = v1 + dv * (livello - v1) / dv;
        return Tra(u, uv.u[i], uv.u[j]) && Tra(v, v1, v2);
    }

    [[nodiscard]] bool Tra(double c, double c1, double c2) const {
        return c >= std::min(c1, c2) - zero && c <= std::max(c1, c2) + zero;
    }
};

/// Takes out of a list of points those that coincide with one before them.
std::int16_t ToglieCoincidenti(std::vector<double>& xI, std::vector<double>& yI,
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
        *nTolti = ToglieCoincidenti(xI, yI, iLato, zero);
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

bool Poligono::PartiAlLivello(double livello, double zero, bool lungoX, Poligono& alto,
                              Poligono& basso) const {
    const Coordinate2 uv = lungoX ? Coordinate2{y_, x_} : Coordinate2{x_, y_};
    Parte sopra{lungoX ? Lista2{alto.y_, alto.x_} : Lista2{alto.x_, alto.y_}};
    Parte sotto{lungoX ? Lista2{basso.y_, basso.x_} : Lista2{basso.x_, basso.y_}};
    const TaglioALivello taglio{uv, Numero(), livello, zero};
    sopra.Prepara(Numero());
    sotto.Prepara(Numero());
    bool incontra = false;
    for (std::size_t i = 0; i < Numero();) {
        const std::size_t dopo = taglio.Aggiunge(i, sopra, sotto);
        double u = 0;
        double v = 0;
        if (taglio.Punto(dopo - 1, dopo == Numero() ? 0 : dopo, u, v)) {
            incontra = true;
            sopra.Aggiunge(u, v);
            sotto.Aggiunge(u, v);
        }
        i = dopo;
    }
    alto.n_ = Contati(alto.x_.size());
    basso.n_ = Contati(basso.x_.size());
    return incontra;
}

void Poligono::DividiY(double y, std::shared_ptr<Poligono>& sopra, std::shared_ptr<Poligono>& sotto,
                       bool lungoX) {
    const double livello = Singolo(y);
    const auto [xMin, xMax, yMin, yMax] = BoundingBox();
    const double massimo = lungoX ? xMax : yMax;
    const double minimo = lungoX ? xMin : yMin;
    // This polygon may be held by sopra or sotto: both are written last.
    if (livello < massimo && livello > minimo) {
        auto alto = std::make_shared<Poligono>();
        auto basso = std::make_shared<Poligono>();
        const double zero = std::max(xMax - xMin, yMax - yMin) / fattoreLati;
        if (PartiAlLivello(livello, zero, lungoX, *alto, *basso)) {
            sopra = std::move(alto);
            sotto = std::move(basso);
            return;
        }
    }
    std::shared_ptr<Poligono> stesso = Stesso();
    sopra = livello >= massimo ? nullptr : stesso;
    sotto = livello >= massimo ? stesso : nullptr;
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
