#include "joints/NoteIrrigidimenti.h"

#include <array>
#include <cmath>

#include "drawing/Quadro.h"
#include "joints/Nodo.h"

namespace sagomi {

namespace {

using Punto = PuntoQuadro;

constexpr double larghezzaFigura = 230, altezzaFigura = 250;

/// Draws in units of the picture.
class Tavola {
public:
    Tavola(const Quadro& quadro, const IrrigidimentiNodo& irrigidimenti) : q_(quadro), i_(irrigidimenti) {
        const CampoQuadro c = q_.Tutto().Dentro(6, 6, 6, 6);
        asse_ = c.Centro().x;
        mezza_ = c.larghezza * 0.19;
        sinistra_ = c.sinistra;
        destra_ = c.Destra();
        alto_ = c.alto;
        basso_ = c.Basso();
        ala_ = c.altezza * 0.028;
        cima_ = alto_ + c.altezza * 0.16;
        fondoDestra_ = cima_ + c.altezza * (i_.inclinato ? 0.66 : 0.55);
        fondoSinistra_ = i_.inclinato ? cima_ + c.altezza * 0.42 : fondoDestra_;
    }

    void Traccia() const {
        Colonna();
        Trave(asse_ + mezza_, destra_, fondoDestra_);
        if (i_.dueTravi)
            Trave(asse_ - mezza_, sinistra_, fondoSinistra_);
        if (i_.superiore)
            Piatto({asse_ - interno(), cima_ + ala_ / 2}, {asse_ + interno(), cima_ + ala_ / 2});
        const Punto da{asse_ - interno(), fondoSinistra_ - ala_ / 2};
        const Punto a{asse_ + interno(), fondoDestra_ - ala_ / 2};
        Piatto(da, a);
        Lunghezza(da, a);
    }

private:
    [[nodiscard]] double interno() const { return mezza_ - ala_; }

    void Colonna() const {
        q_.Contorno();
        for (const double x : {asse_ - mezza_, asse_ + mezza_})
            Quadro::Linea({x, alto_}, {x, basso_});
        q_.Fine();
        for (const double x : {asse_ - interno(), asse_ + interno()})
            Quadro::Linea({x, alto_}, {x, basso_});
        Quadro::Linea({asse_ - mezza_, alto_}, {asse_ + mezza_, alto_});
        Quadro::Linea({asse_ - mezza_, basso_}, {asse_ + mezza_, basso_});
    }

    void Trave(double faccia, double fine, double fondo) const {
        q_.Contorno();
        Quadro::Linea({faccia, cima_}, {fine, cima_});
        Quadro::Linea({faccia, fondo}, {fine, fondo});
        q_.Fine();
        Quadro::Linea({faccia, cima_ + ala_}, {fine, cima_ + ala_});
        Quadro::Linea({faccia, fondo - ala_}, {fine, fondo - ala_});
        Quadro::Linea({fine, cima_}, {fine, fondo});
    }

    /// A plate by its middle line.
    void Piatto(Punto da, Punto a) const {
        const Punto mezzo{0, ala_ / 2};
        const std::array<Punto, 4> contorno{da - mezzo, a - mezzo, a + mezzo, da + mezzo};
        q_.Contorno();
        Quadro::Area(contorno, Fondo::Pieno);
        Quadro::Spezzata(contorno, true);
    }

    void Lunghezza(Punto da, Punto a) const {
        const Punto verso = a - da;
        const double lunga = std::hypot(verso.x, verso.y);
        const Punto sotto = Punto{-verso.y, verso.x} * (q_.Riga() / lunga);
        q_.Quota(da + sotto, a + sotto);
        q_.Testo((da + a) * 0.5 + sotto * 1.3, "L", Allinea::Centro, Posa::Alto);
    }

    const Quadro& q_;
    const IrrigidimentiNodo& i_;
    double asse_ = 0, mezza_ = 0, sinistra_ = 0, destra_ = 0;
    double alto_ = 0, basso_ = 0, ala_ = 0, cima_ = 0, fondoDestra_ = 0, fondoSinistra_ = 0;
};

} // namespace

IrrigidimentiNodo::IrrigidimentiNodo(const Nodo& nodo) : dueTravi(nodo.NumeroGiunti == 2) {
    const auto& destra = nodo.TraveDx.Riferimento();
    const auto& sinistra = nodo.TraveSx.Riferimento();
    inclinato = dueTravi && destra && sinistra && destra->h != sinistra->h;
    superiore = !nodo.ConnessioneCorrente || nodo.ConnessioneCorrente->Irrigidimenti != "Cp";
}

std::vector<std::string> NoteIrrigidimenti(const IrrigidimentiNodo& i) {
    std::vector<std::string> note{
        i.superiore
            ? "Gli irrigidimenti stanno tra le ali della colonna, su entrambi i lati dell'anima: quello "
              "inferiore in zona compressa, quello superiore in zona tesa, all'altezza delle ali della "
              "trave."
            : "L'irrigidimento sta tra le ali della colonna, su entrambi i lati dell'anima, in zona "
              "compressa, all'altezza dell'ala inferiore della trave."};
    if (i.inclinato)
        note.emplace_back("Le travi hanno altezza diversa: l'irrigidimento inferiore è inclinato, dall'ala "
                          "inferiore di una trave a quella dell'altra.");
    else if (i.dueTravi)
        note.emplace_back("Con travi di altezza diversa l'irrigidimento inferiore è inclinato, dall'ala "
                          "inferiore di una trave a quella dell'altra.");
    note.emplace_back(
        "La lunghezza riportata nella cartella \"Geometria\" è quella reale, lungo la linea media "
        "dell'irrigidimento.");
    if (i.superiore && i.dueTravi)
        note.emplace_back(
            "L'irrigidimento superiore è sempre orizzontale, qualunque sia l'altezza delle travi.");
    return note;
}

Disegno DisegnoIrrigidimenti(const IrrigidimentiNodo& irrigidimenti) {
    const Misura misura{larghezzaFigura, altezzaFigura, {}};
    return {"Irrigidimenti",
            [irrigidimenti, misura](Superficie* oggetto, std::string_view) {
                const Quadro quadro(oggetto, Dispositivo, misura);
                Tavola(quadro, irrigidimenti).Traccia();
            },
            misura};
}

} // namespace sagomi
