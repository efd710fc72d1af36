#include "drawing/Grafica.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>
#include <vector>

#include "drawing/SuperficieCad.h"
#include "drawing/SuperficieDxf.h"
#include "geometry/LineeGeometria.h"
#include "geometry/Poligono.h"

namespace sagomi {

namespace {

double yInUscita(double y) { return yOrigine + y / ScalaY; }

bool Disegnabile(double v) { return std::abs(v) <= coordinataMassima; } // false for what is no number

template <typename... T> bool Disegnabili(T... valori) { return (Disegnabile(valori) && ...); }

/// The first n points as they go out; empty when they are fewer or one of them cannot be drawn.
struct Punti {
    std::span<const double> x;
    std::vector<double> y;

    Punti(std::int16_t n, std::span<const double> ascisse, std::span<const double> ordinate) {
        const auto quanti = static_cast<std::size_t>(std::max<std::int16_t>(n, 0));
        if (ascisse.size() < quanti || ordinate.size() < quanti)
            return;
        x = ascisse.first(quanti);
        y.resize(quanti);
        std::transform(ordinate.begin(), ordinate.begin() + static_cast<std::ptrdiff_t>(quanti), y.begin(),
                       yInUscita);
        if (!sagomi::Disegnabili(x) || !sagomi::Disegnabili(y)) {
            x = {};
            y.clear();
        }
    }
};

/// Way from a level of a line of text down to its base line; below 0 where y points upwards.
double AllaBase(const Superficie& s, Posa posa) {
    const RigaTesto riga = s.TextLine();
    const double verso = s.ScaleHeight < 0 ? -1 : 1;
    switch (posa) {
    case Posa::Alto:
        return verso * riga.sopra;
    case Posa::Mezzo:
        return verso * (riga.sopra - riga.sotto) / 2;
    case Posa::Basso:
        return -verso * riga.sotto;
    case Posa::Base:
        break;
    }
    return 0;
}

/// Number of lines of a hatching, and their spacing, for an outline of that height.
struct Righe {
    int numero = 0;
    double passo = 0;

    Righe(double H, double tratteggio) {
        constexpr double massimo = std::numeric_limits<std::int16_t>::max(); // the width of counts here
        const double quante = tratteggio < 0 ? H / -tratteggio : tratteggio;
        if (!(quante >= 1) || !(H > 0))
            return;
        numero = static_cast<int>(std::min(quante, massimo));
        passo = tratteggio < 0 ? -tratteggio : H / numero;
    }
};

/// The chords of the outline on one level of its turned frame, drawn in the frame of the model.
void Corde(const Poligono& girato, double livello, const Trasformazione& ritorno) {
    std::vector<double> xI;
    std::vector<std::int16_t> iLato;
    AttraversamentiLivello(girato.CoordX(), girato.CoordY(), girato.nVertici(), livello, xI, iLato);
    std::sort(xI.begin(), xI.end());
    for (std::size_t k = 0; k + 1 < xI.size(); k += 2) {
        double x1 = xI[k];
        double y1 = livello;
        double x2 = xI[k + 1];
        double y2 = livello;
        if (PuntiCoincidentiXY(x1, y1, x2, y2, ZeroMaxDimen))
            continue;
        Trasforma(ritorno, x1, y1);
        Trasforma(ritorno, x2, y2);
        LineaPlt(x1, y1, x2, y2);
    }
}

} // namespace

StatoUscita::StatoUscita()
    : dispositivo_(Dispositivo), penna_(ColorePenna), yOrigine_(yOrigine), scalaY_(ScalaY),
      oggetto_(OggettoGrafico) {}

StatoUscita::~StatoUscita() {
    Dispositivo.swap(dispositivo_);
    ColorePenna = penna_;
    yOrigine = yOrigine_;
    ScalaY = scalaY_;
    OggettoGrafico = oggetto_;
}

Superficie* SuperficieInForza() {
    static SuperficieDxf dxf;
    static SuperficieCad spazio(ModelSpaceCad);
    static SuperficieCad blocco(BloccoCad);
    static const std::array<std::pair<std::string_view, Superficie*>, 3> senzaBersaglio{
        {{dispositivoDxf, &dxf}, {dispositivoDwg, &spazio}, {dispositivoBlocco, &blocco}}};
    for (const auto& [nome, superficie] : senzaBersaglio)
        if (Dispositivo == nome)
            return superficie;
    return OggettoGrafico;
}

bool SulBersaglio() {
    const Superficie* s = SuperficieInForza();
    return s == nullptr || s->Limitata();
}

bool Disegnabili(std::span<const double> valori) {
    return std::all_of(valori.begin(), valori.end(), Disegnabile);
}

void PennaPlt(std::int16_t colore) {
    ColorePenna = colore;
    if (Superficie* s = SuperficieInForza())
        s->ForeColor = colore;
}

void LineaStilePlt(double spessore, TipoLinea tipo, Estremi estremi) {
    Superficie* s = SuperficieInForza();
    if (s == nullptr)
        return;
    s->DrawWidth = spessore;
    s->DrawStyle = tipo;
    s->DrawCap = estremi;
}

void LineaPlt(double x1, double y1, double x2, double y2) {
    const double a = yInUscita(y1);
    const double b = yInUscita(y2);
    Superficie* s = SuperficieInForza();
    if (s != nullptr && Disegnabili(x1, a, x2, b))
        s->Line(x1, a, x2, b);
}

void CerchioPlt(double x, double y, double r) {
    const double yU = yInUscita(y);
    Superficie* s = SuperficieInForza();
    if (s != nullptr && Disegnabili(x, yU, r) && r > 0)
        s->Circle(x, yU, r);
}

void PolilineaPlt(std::int16_t n, std::span<const double> x, std::span<const double> y, bool chiusa) {
    const Punti punti(n, x, y);
    Superficie* s = SuperficieInForza();
    if (s != nullptr && punti.y.size() > 1)
        s->Polyline(punti.x, punti.y, chiusa);
}

void AreaPlt(std::int16_t n, std::span<const double> x, std::span<const double> y, Fondo fondo) {
    const Punti punti(n, x, y);
    Superficie* s = SuperficieInForza();
    if (s != nullptr && punti.y.size() > 2)
        s->Fill(punti.x, punti.y, fondo);
}

void TestoPlt(double x, double y, double altezza, std::string_view testo, Allinea allinea, Posa posa) {
    const double yU = yInUscita(y);
    Superficie* s = SuperficieInForza();
    if (s == nullptr || !Disegnabili(x, yU, altezza) || !(altezza > 0) || testo.empty())
        return;
    const std::int16_t colore = s->ForeColor;
    s->ForeColor = ColorePenna;
    s->FontHeight(altezza);
    s->CurrentX = x;
    s->CurrentY = posa == Posa::Base ? yU : yU + AllaBase(*s, posa);
    s->PrintAligned(testo, allinea);
    s->ForeColor = colore;
}

double LarghezzaTestoPlt(double altezza, std::string_view testo) {
    Superficie* s = SuperficieInForza();
    if (s == nullptr)
        return LarghezzaStimata(altezza, testo);
    const double corpo = s->FontSize;
    s->FontHeight(altezza);
    const double larghezza = s->TextWidth(testo);
    s->FontSize = corpo;
    return larghezza;
}

int TratteggioPlt(std::int16_t n, std::span<const double> x, std::span<const double> y, double angolo,
                  double tratteggio, std::int16_t colore) {
    if (n < 3 || x.size() < static_cast<std::size_t>(n) || y.size() < static_cast<std::size_t>(n))
        return 0;
    const auto quanti = static_cast<std::size_t>(n);
    if (!Disegnabili(x.first(quanti)) || !Disegnabili(y.first(quanti)))
        return 0;
    const double alfa = std::numbers::pi * angolo / 180;
    Poligono girato;
    girato.Coordinate({x.begin(), x.begin() + n}, {y.begin(), y.begin() + n}, n);
    girato.RotoTraslaVertici(RiferimentoDiretto(0, 0, alfa));
    double xMin = 0;
    double xMax = 0;
    double yMin = 0;
    double yMax = 0;
    girato.MaxMin(xMin, xMax, yMin, yMax);
    const Righe righe(yMax - yMin, tratteggio);
    if (righe.numero == 0)
        return 0;
    ZeroMaxDimen = girato.MaxDimensione() / 1000000;
    const Trasformazione ritorno = RiferimentoInverso(0, 0, alfa);
    const std::int16_t penna = ColorePenna;
    PennaPlt(colore);
    for (int k = 0; k < righe.numero; ++k)
        Corde(girato, yMin + (k + 0.5) * righe.passo, ritorno);
    PennaPlt(penna);
    return righe.numero;
}

} // namespace sagomi
