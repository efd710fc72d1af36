#include "joints/TracciaVista.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace sagomi {

namespace {

// In heights of the text. Extension lines pass a little beyond the dimension line, ISO 129-1.
constexpr double stacco = 0.4;
constexpr double staccoTesto = 0.5; ///< of a text under its line, clear of the ticks
constexpr double sporgenza = 0.5;
constexpr double mezzaTacca = 0.4;
constexpr double codolo = 1.6;
constexpr double rigaTesto = 1.35;
constexpr double passoRetino = 0.55;
constexpr double dente = 0.8; ///< of a line of breaking

struct Ascisse {
    std::vector<double> x, y;

    Ascisse(const TracciaVista& vista, std::span<const PuntoNodo> punti) {
        for (const PuntoNodo& p : punti) {
            const PuntoNodo q = vista.In(p);
            x.push_back(q.x);
            y.push_back(q.y);
        }
    }
    [[nodiscard]] std::int16_t n() const { return static_cast<std::int16_t>(x.size()); }
};

double Verso(double da, double a) { return a >= da ? 1 : -1; }

/// The first and the last of several texts stand outside where they are wider than what they measure.
void EstremeFuori(std::span<const QuotaNodo> quote, const std::vector<double>& mezze,
                  std::vector<double>& centri) {
    if (quote.size() < 2)
        return;
    const std::size_t ultima = quote.size() - 1;
    const auto stretta = [&](std::size_t i) { return 2 * mezze[i] > std::abs(quote[i].a - quote[i].da); };
    if (stretta(0))
        centri[0] = std::min(quote[0].da, quote[0].a) - mezze[0];
    if (stretta(ultima))
        centri[ultima] = std::max(quote[ultima].da, quote[ultima].a) + mezze[ultima];
}

} // namespace

std::vector<double> Distanziati(std::vector<double> centri, const std::vector<double>& mezze) {
    std::vector<std::size_t> ordine(centri.size());
    std::iota(ordine.begin(), ordine.end(), 0U);
    std::sort(ordine.begin(), ordine.end(), [&](auto i, auto j) { return centri[i] < centri[j]; });
    constexpr int giri = 40; // of halving what overlaps; as few texts as these are apart long before
    for (int giro = 0; giro < giri; ++giro)
        for (std::size_t k = 1; k < ordine.size(); ++k) {
            double& prima = centri[ordine[k - 1]];
            double& dopo = centri[ordine[k]];
            const double manca = mezze[ordine[k - 1]] + mezze[ordine[k]] - (dopo - prima);
            if (manca <= 0)
                continue;
            prima -= manca / 2;
            dopo += manca / 2;
        }
    return centri;
}

void TracciaVista::Contorno() {
    PennaPlt(pennaInchiostro);
    LineaStilePlt(spessoreContorno, TipoLinea::Continua, Estremi::Quadri);
}

void TracciaVista::Fine(TipoLinea tipo) {
    PennaPlt(pennaGrigia);
    LineaStilePlt(spessoreFine, tipo, Estremi::Piatti);
}

void TracciaVista::Rossa() {
    PennaPlt(pennaGoverna);
    LineaStilePlt(spessoreContorno, TipoLinea::Continua, Estremi::Quadri);
}

void TracciaVista::Linea(PuntoNodo da, PuntoNodo a) const {
    const PuntoNodo p = In(da);
    const PuntoNodo q = In(a);
    LineaPlt(p.x, p.y, q.x, q.y);
}

void TracciaVista::Spezzata(std::span<const PuntoNodo> punti, bool chiusa) const {
    const Ascisse s(*this, punti);
    PolilineaPlt(s.n(), s.x, s.y, chiusa);
}

void TracciaVista::Area(std::span<const PuntoNodo> punti, Fondo fondo) const {
    const Ascisse s(*this, punti);
    AreaPlt(s.n(), s.x, s.y, fondo);
}

void TracciaVista::Cerchio(PuntoNodo centro, double r) const {
    const PuntoNodo p = In(centro);
    CerchioPlt(p.x, p.y, r);
}

void TracciaVista::Tratteggia(std::span<const PuntoNodo> punti, std::int16_t colore) const {
    constexpr double angolo = 45;
    const Ascisse s(*this, punti);
    LineaStilePlt(spessoreFine);
    TratteggioPlt(s.n(), s.x, s.y, angolo, -passoRetino * a_, colore);
}

void TracciaVista::Testo(PuntoNodo dove, std::string_view testo, Allinea allinea, bool rosso) const {
    if (verso_ < 0 && allinea != Allinea::Centro)
        allinea = allinea == Allinea::Sinistra ? Allinea::Destra : Allinea::Sinistra;
    const PuntoNodo p = In(dove);
    PennaPlt(rosso ? pennaGoverna : pennaInchiostro);
    TestoPlt(p.x, p.y - testo_ / 2, testo_, testo, allinea);
}

void TracciaVista::Richiamo(PuntoNodo da, PuntoNodo a, std::string_view testo) const {
    const double verso = Verso(da.x, a.x);
    Fine();
    Linea(da, a);
    Testo({a.x + verso * stacco * a_, a.y}, testo, verso > 0 ? Allinea::Sinistra : Allinea::Destra);
}

// A thin line with a zigzag in its middle, ISO 128-2 line type 01.1.19.
void TracciaVista::Rottura(PuntoNodo da, PuntoNodo a) const {
    const double lunga = std::hypot(a.x - da.x, a.y - da.y);
    if (!(lunga > 0))
        return;
    const double ux = (a.x - da.x) / lunga;
    const double uy = (a.y - da.y) / lunga;
    const double d = std::min(dente * a_, lunga / 8);
    const auto punto = [&](double lungo, double oltre) {
        return PuntoNodo{da.x + ux * lungo - uy * oltre, da.y + uy * lungo + ux * oltre};
    };
    const double m = lunga / 2;
    Fine();
    Spezzata(std::array{punto(-d, 0), punto(m - d / 2, 0), punto(m - d / 4, d), punto(m + d / 4, -d),
                        punto(m + d / 2, 0), punto(lunga + d, 0)},
             false);
}

void TracciaVista::Tacca(PuntoNodo dove) const {
    const double t = mezzaTacca * a_;
    const PuntoNodo p = In(dove);
    LineaPlt(p.x - t, p.y - t, p.x + t, p.y + t);
}

void TracciaVista::Penna(const QuotaNodo& quota) const {
    Fine();
    if (quota.rosso)
        PennaPlt(pennaGoverna);
}

void TracciaVista::Verticali(double xPezzo, double x, std::span<const QuotaNodo> quote) const {
    const double verso = Verso(xPezzo, x);
    std::vector<double> centri;
    for (const QuotaNodo& q : quote) {
        Penna(q);
        Linea({x, q.da}, {x, q.a});
        for (const double y : {q.da, q.a}) {
            Linea({xPezzo + verso * stacco * a_, y}, {x + verso * sporgenza * a_, y});
            Tacca({x, y});
        }
        centri.push_back((q.da + q.a) / 2);
    }
    centri = Distanziati(centri, std::vector<double>(quote.size(), rigaTesto * a_ / 2));
    for (std::size_t i = 0; i < quote.size(); ++i)
        Testo({x + verso * 2 * stacco * a_, centri[i]}, quote[i].testo,
              verso > 0 ? Allinea::Sinistra : Allinea::Destra, quote[i].rosso);
}

void TracciaVista::Orizzontali(double yPezzo, double y, std::span<const QuotaNodo> quote) const {
    const double verso = Verso(yPezzo, y);
    std::vector<double> centri;
    std::vector<double> mezze;
    for (const QuotaNodo& q : quote) {
        Penna(q);
        Linea({q.da, y}, {q.a, y});
        for (const double x : {q.da, q.a}) {
            Linea({x, yPezzo + verso * stacco * a_}, {x, y + verso * sporgenza * a_});
            Tacca({x, y});
        }
        centri.push_back((q.da + q.a) / 2);
        mezze.push_back((LarghezzaTestoPlt(testo_, q.testo) + stacco * a_) / 2);
    }
    EstremeFuori(quote, mezze, centri);
    centri = Distanziati(centri, mezze);
    for (std::size_t i = 0; i < quote.size(); ++i)
        Testo({centri[i], y + verso * (staccoTesto + 0.5) * a_}, quote[i].testo, Allinea::Centro,
              quote[i].rosso);
}

void TracciaVista::Spessore(double x1, double x2, double yPezzo, double y, const QuotaNodo& quota) const {
    Penna(quota);
    const double verso = Verso(yPezzo, y);
    Linea({x1 - codolo * a_, y}, {x2 + codolo * a_, y});
    for (const double x : {x1, x2}) {
        Linea({x, yPezzo + verso * stacco * a_}, {x, y + verso * sporgenza * a_});
        Tacca({x, y});
    }
    Testo({x2 + (codolo + stacco) * a_, y}, quota.testo, Allinea::Sinistra, quota.rosso);
}

} // namespace sagomi
