#include "drawing/Grafica.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

#include "drawing/Cad.h"
#include "drawing/Dxf.h"
#include "geometry/LineeGeometria.h"
#include "geometry/Poligono.h"

namespace sagomi {

namespace {

constexpr double larghezzaMediaCarattere = 0.85; ///< of a character over its height, in a plain CAD font

double yInUscita(double y) { return yOrigine + y / ScalaY; }

template <typename... T> bool Finiti(T... valori) { return (std::isfinite(valori) && ...); }

bool TuttiFiniti(std::span<const double> valori) {
    return std::all_of(valori.begin(), valori.end(), [](double v) { return std::isfinite(v); });
}

bool NelCad() { return Dispositivo == dispositivoDwg || Dispositivo == dispositivoBlocco; }

/// Model space or block, whichever the device names; null when there is none.
ContenitoreCad* Contenitore() {
    return Dispositivo == dispositivoBlocco ? BloccoCad.get() : ModelSpaceCad.get();
}

void ScriveSulBersaglio(double x, double y, double altezza, std::string_view testo, Allinea allinea) {
    Superficie& o = *OggettoGrafico;
    const std::int16_t colore = o.ForeColor;
    o.ForeColor = ColorePenna;
    const double attuale = std::abs(o.TextHeight(testo));
    if (attuale > 0)
        o.FontSize *= altezza / attuale;
    const double arretra = allinea == Allinea::Sinistra ? 0 : allinea == Allinea::Centro ? 0.5 : 1;
    o.CurrentX = x - arretra * o.TextWidth(testo);
    o.CurrentY = y;
    o.Print(testo);
    o.ForeColor = colore;
}

/// Characters of a text in UTF-8.
std::size_t Caratteri(std::string_view testo) {
    return static_cast<std::size_t>(
        std::count_if(testo.begin(), testo.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

double LarghezzaStimata(double altezza, std::string_view testo) {
    return larghezzaMediaCarattere * altezza * static_cast<double>(Caratteri(testo));
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

bool SulBersaglio() { return Dispositivo != dispositivoDxf && !NelCad(); }

void PennaPlt(std::int16_t colore) {
    ColorePenna = colore;
    if (SulBersaglio() && OggettoGrafico != nullptr)
        OggettoGrafico->ForeColor = colore;
}

void LineaStilePlt(double spessore, TipoLinea tipo) {
    if (!SulBersaglio() || OggettoGrafico == nullptr)
        return;
    OggettoGrafico->DrawWidth = spessore;
    OggettoGrafico->DrawStyle = tipo;
}

void LineaPlt(double x1, double y1, double x2, double y2) {
    const double a = yInUscita(y1);
    const double b = yInUscita(y2);
    if (!Finiti(x1, a, x2, b))
        return;
    if (Dispositivo == dispositivoDxf)
        DxfLinea(x1, a, x2, b);
    else if (NelCad())
        CadLinea(Contenitore(), x1, a, x2, b);
    else if (OggettoGrafico != nullptr)
        OggettoGrafico->Line(x1, a, x2, b);
}

void CerchioPlt(double x, double y, double r) {
    const double yU = yInUscita(y);
    if (!Finiti(x, yU, r) || !(r > 0))
        return;
    if (Dispositivo == dispositivoDxf)
        DxfCerchio(x, yU, r);
    else if (NelCad())
        CadCerchio(Contenitore(), x, yU, r);
    else if (OggettoGrafico != nullptr)
        OggettoGrafico->Circle(x, yU, r);
}

void PolilineaPlt(std::int16_t n, std::span<const double> x, std::span<const double> y, bool chiusa) {
    if (n < 2 || x.size() < static_cast<std::size_t>(n) || y.size() < static_cast<std::size_t>(n))
        return;
    const std::span<const double> ascisse = x.first(static_cast<std::size_t>(n));
    std::vector<double> quote(y.begin(), y.begin() + n);
    std::transform(quote.begin(), quote.end(), quote.begin(), yInUscita);
    if (!TuttiFiniti(ascisse) || !TuttiFiniti(quote))
        return;
    if (Dispositivo == dispositivoDxf) {
        (chiusa ? DxfPolilineaChiusa : DxfPolilinea)(n, ascisse, quote);
    } else if (NelCad()) {
        CadPolilinea(Contenitore(), n, ascisse, quote, chiusa);
    } else if (OggettoGrafico != nullptr) {
        for (std::size_t i = 1; i < quote.size(); ++i)
            OggettoGrafico->Line(ascisse[i - 1], quote[i - 1], ascisse[i], quote[i]);
        if (chiusa)
            OggettoGrafico->Line(ascisse.back(), quote.back(), ascisse.front(), quote.front());
    }
}

void TestoPlt(double x, double y, double altezza, std::string_view testo, Allinea allinea) {
    const double yU = yInUscita(y);
    if (!Finiti(x, yU, altezza) || !(altezza > 0) || testo.empty())
        return;
    if (SulBersaglio()) {
        if (OggettoGrafico != nullptr)
            ScriveSulBersaglio(x, yU, altezza, testo, allinea);
        return;
    }
    const double arretra = allinea == Allinea::Sinistra ? 0 : allinea == Allinea::Centro ? 0.5 : 1;
    const double xSinistra = x - arretra * LarghezzaStimata(altezza, testo);
    if (Dispositivo == dispositivoDxf)
        DxfTesto(xSinistra, yU, altezza, testo);
    else
        CadTesto(Contenitore(), xSinistra, yU, altezza, testo);
}

double LarghezzaTestoPlt(double altezza, std::string_view testo) {
    if (!SulBersaglio() || OggettoGrafico == nullptr)
        return LarghezzaStimata(altezza, testo);
    const double attuale = std::abs(OggettoGrafico->TextHeight(testo));
    return attuale > 0 ? OggettoGrafico->TextWidth(testo) * altezza / attuale : 0;
}

int TratteggioPlt(std::int16_t n, std::span<const double> x, std::span<const double> y, double angolo,
                  double tratteggio, std::int16_t colore) {
    if (n < 3 || x.size() < static_cast<std::size_t>(n) || y.size() < static_cast<std::size_t>(n))
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
