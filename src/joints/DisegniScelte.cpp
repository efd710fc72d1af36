#include "joints/DisegniScelte.h"

#include <array>

#include "drawing/Quadro.h"
#include "joints/Nodo.h"

namespace sagomi {

namespace {

// In units of the picture.
constexpr double bordo = 3;
constexpr double mezzaColonna = 4;
constexpr double mezzaTrave = 3;
constexpr double raggio = 1.5; ///< of a bolt

void Trave(PuntoQuadro colonna, double fine) {
    for (const double y : {colonna.y - mezzaTrave, colonna.y + mezzaTrave})
        Quadro::Linea({colonna.x, y}, {fine, y});
}

void Nodi(const Quadro& quadro, std::int16_t tipo) {
    const CampoQuadro campo = quadro.Tutto().Dentro(bordo, bordo, bordo, bordo);
    const PuntoQuadro centro = campo.Centro();
    const bool sopra = tipo == nodoCroce || tipo == nodoT;
    const double alto = sopra ? campo.alto : centro.y - mezzaTrave;
    quadro.Contorno();
    for (const double x : {centro.x - mezzaColonna, centro.x + mezzaColonna})
        Quadro::Linea({x, alto}, {x, campo.Basso()});
    if (!sopra)
        Quadro::Linea({centro.x - mezzaColonna, alto}, {centro.x + mezzaColonna, alto});
    Trave({centro.x + mezzaColonna, centro.y}, campo.Destra());
    if (tipo <= nodoCroceSenzaColonna)
        Trave({centro.x - mezzaColonna, centro.y}, campo.sinistra);
}

void Piastra(const Quadro& quadro, std::int16_t nf) {
    const CampoQuadro campo = quadro.Tutto().Dentro(2 * bordo, bordo, 2 * bordo, bordo);
    const double ala = campo.alto + (nf == 2 ? campo.altezza / 3 : bordo);
    const double asse = campo.Centro().x;
    const double passo = campo.larghezza / 4;
    const std::array contorno{
        PuntoQuadro{campo.sinistra, campo.alto}, PuntoQuadro{campo.Destra(), campo.alto},
        PuntoQuadro{campo.Destra(), campo.Basso()}, PuntoQuadro{campo.sinistra, campo.Basso()}};
    quadro.Contorno();
    Quadro::Spezzata(contorno, true);
    quadro.Fine();
    Quadro::Linea({campo.sinistra + bordo, ala}, {campo.Destra() - bordo, ala});
    Quadro::Linea({campo.sinistra + bordo, campo.Basso() - bordo},
                  {campo.Destra() - bordo, campo.Basso() - bordo});
    Quadro::Linea({asse, ala}, {asse, campo.Basso() - bordo});
    for (const double x : {asse - passo, asse + passo}) {
        Quadro::Cerchio({x, ala + 2 * bordo}, raggio);
        if (nf == 2)
            Quadro::Cerchio({x, ala - 2 * bordo}, raggio);
    }
}

} // namespace

Disegno DisegnoTipoNodo(std::int16_t tipo) {
    Disegno disegno{"Tipo di nodo", {}, {44, 34}};
    disegno.PlottaInOggetto = [tipo, misura = disegno.misura](Superficie* oggetto, std::string_view) {
        Nodi(Quadro(oggetto, Dispositivo, misura), tipo);
    };
    return disegno;
}

Disegno DisegnoFile(std::int16_t nf) {
    Disegno disegno{"File di bulloni", {}, {34, 34}};
    disegno.PlottaInOggetto = [nf, misura = disegno.misura](Superficie* oggetto, std::string_view) {
        Piastra(Quadro(oggetto, Dispositivo, misura), nf);
    };
    return disegno;
}

} // namespace sagomi
