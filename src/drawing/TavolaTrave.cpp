#include "drawing/TavolaTrave.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace sagomi {

namespace {

// In units of the picture.
constexpr double lato = 7;  ///< of a support triangle
constexpr double punta = 3; ///< half width of an arrow's head

PuntoQuadro InGiu(double quanto) { return {0, quanto}; }

} // namespace

PuntoQuadro TavolaTrave::Punto(double x, double y) const {
    return {campo_.sinistra + x * campo_.larghezza, campo_.Centro().y - y * campo_.altezza / 2};
}

void TavolaTrave::Asse() const {
    Contorno();
    Quadro::Linea(Punto(0, 0), Punto(1, 0));
}

void TavolaTrave::Profilo(double altezza) const {
    const PuntoQuadro mezza = InGiu(altezza / 2);
    const std::array<PuntoQuadro, 4> anima{Punto(0, 0) - mezza, Punto(1, 0) - mezza, Punto(1, 0) + mezza,
                                           Punto(0, 0) + mezza};
    Quadro::Area(anima, Fondo::Tenue);
    Contorno();
    Quadro::Linea(anima[0], anima[1]);
    Quadro::Linea(anima[3], anima[2]);
    Fine(TipoLinea::TrattoPunto);
    Quadro::Linea(Punto(0, 0), Punto(1, 0));
}

void TavolaTrave::Appoggio(double x, double sotto) const {
    const PuntoQuadro cima = Punto(x, 0) + InGiu(sotto);
    Fine();
    Quadro::Spezzata(std::array<PuntoQuadro, 3>{cima, cima + PuntoQuadro{lato * 0.6, lato},
                                                cima + PuntoQuadro{-lato * 0.6, lato}},
                     true);
}

void TavolaTrave::Incastro(double x, double mezza) const {
    constexpr double passo = 4;
    const double fuori = x < 0.5 ? -1 : 1;
    const PuntoQuadro muro = Punto(x, 0);
    Contorno();
    Quadro::Linea(muro - InGiu(mezza), muro + InGiu(mezza));
    Fine();
    const int tratti = static_cast<int>(std::ceil(2 * mezza / passo - 0.5));
    for (int i = 0; i < tratti; ++i) {
        const double y = -mezza + i * passo;
        Quadro::Linea(muro + InGiu(y), muro + PuntoQuadro{fuori * passo, y + passo});
    }
}

void TavolaTrave::Freccia(PuntoQuadro da, PuntoQuadro a) const {
    Fine();
    Quadro::Linea(da, a - InGiu(punta));
    Quadro::Punta(a, InGiu(1), 2 * punta, punta * 0.8);
}

void TavolaTrave::Forza(double x, double sopra) const { Freccia(Punto(x, 1), Punto(x, 0) - InGiu(sopra)); }

void TavolaTrave::CaricoDistribuito(double sopra) const {
    constexpr double passo = 12;
    const int frecce = std::max(4, static_cast<int>(std::lround(campo_.larghezza / passo)));
    for (int i = 0; i <= frecce; ++i)
        Forza(static_cast<double>(i) / frecce, sopra);
    Fine();
    Quadro::Linea(Punto(0, 1), Punto(1, 1));
}

void TavolaTrave::Diagramma(const std::function<double(double)>& f) const {
    constexpr int corde = 48;
    std::vector<PuntoQuadro> linea;
    for (int i = 0; i <= corde; ++i) {
        const double x = static_cast<double>(i) / corde;
        linea.push_back(Punto(x, f(x)));
    }
    std::vector<PuntoQuadro> area = linea;
    area.insert(area.end(), {Punto(1, 0), Punto(0, 0)});
    Quadro::Area(area, Fondo::Tenue);
    Fine();
    Quadro::Linea(Punto(0, 0), linea.front());
    Quadro::Linea(Punto(1, 0), linea.back());
    Quadro::Linea(Punto(0, 0), Punto(1, 0));
    Contorno();
    Quadro::Spezzata(linea);
}

void TavolaTrave::Nome(PuntoQuadro punto, std::string_view testo, int dx, int dy) const {
    constexpr double distacco = 2;
    constexpr std::array allinea{Allinea::Destra, Allinea::Centro, Allinea::Sinistra};
    constexpr std::array posa{Posa::Basso, Posa::Mezzo, Posa::Alto};
    q_.Testo(punto + PuntoQuadro{dx * distacco, dy * distacco}, testo,
             allinea.at(static_cast<std::size_t>(dx) + 1), posa.at(static_cast<std::size_t>(dy) + 1));
}

void TavolaTrave::Distanza(double da, double a, std::string_view testo) const {
    constexpr double sotto = -0.6;
    q_.Quota(Punto(da, sotto), Punto(a, sotto));
    Nome(Punto((da + a) / 2, sotto), testo, 0, 1);
}

} // namespace sagomi
