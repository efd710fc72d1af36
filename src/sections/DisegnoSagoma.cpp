#include "sections/DisegnoSagoma.h"

#include <algorithm>

#include "drawing/Quadro.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

using Punto = PuntoQuadro;

/// Draws in units of the picture what is given in millimetres, inside a frame kept free for the dimension
/// lines.
class Tavola {
public:
    Tavola(const Quadro& quadro, const SagomaDisegnata& s) : q_(quadro), s_(s), testo_(quadro.Riga()) {
        const auto [xMin, xMax] = std::minmax_element(s.x.begin(), s.x.end());
        const auto [yMin, yMax] = std::minmax_element(s.y.begin(), s.y.end());
        const CampoQuadro campo = q_.Tutto().Dentro(testo_ * 1.2, testo_ * 1.1, testo_ * 1.9, testo_ * 1.9);
        scala_ = std::min(campo.larghezza / (*xMax - *xMin), campo.altezza / (*yMax - *yMin));
        origine_ = campo.Centro() + Punto{-(*xMin + *xMax) / 2, (*yMin + *yMax) / 2} * scala_;
        q_.VeraGrandezza(scala_);
    }

    void Traccia() const {
        Contorno();
        Assi();
        QuotaAltezza("h");
        QuotaLarghezza("b");
        Nomi();
    }

private:
    [[nodiscard]] Punto In(double x, double y) const { return origine_ + Punto{x, -y} * scala_; }

    void Contorno() const {
        std::vector<Punto> contorno;
        for (std::size_t i = 0; i < s_.x.size(); ++i)
            contorno.push_back(In(s_.x[i], s_.y[i]));
        Quadro::Area(contorno, Fondo::Tenue);
        q_.Contorno();
        Quadro::Spezzata(contorno, true);
    }

    void Assi() const {
        q_.Fine(TipoLinea::TrattoPunto);
        const Punto sinistra = In(-s_.b / 2, s_.yG) - Punto{testo_ * 0.7, 0};
        Quadro::Linea(sinistra, In(s_.b / 2, s_.yG) + Punto{testo_ * 0.4, 0});
        const Punto alto = In(0, s_.h) - Punto{0, testo_ * 0.5};
        Quadro::Linea(alto, In(0, 0) + Punto{0, testo_ * 0.4});
        q_.Testo(sinistra - Punto{0, testo_ * 0.1}, "y", Allinea::Sinistra, Posa::Basso);
        q_.Testo(alto + Punto{testo_ * 0.25, testo_ * 0.35}, "z", Allinea::Sinistra, Posa::Basso);
    }

    /// Dimension of the height, to the right of the section.
    void QuotaAltezza(std::string_view nome) const {
        const Punto basso = In(s_.b / 2, 0);
        const Punto alto = In(s_.b / 2, s_.h);
        const double x = basso.x + testo_ * 0.9;
        q_.Quota({x, basso.y}, {x, alto.y});
        for (const Punto& estremo : {basso, alto})
            Quadro::Linea({estremo.x + stacco, estremo.y}, {x + stacco, estremo.y});
        q_.Testo({x + testo_ * 0.3, (basso.y + alto.y) / 2}, nome, Allinea::Sinistra, Posa::Mezzo);
    }

    /// Dimension of the width, below the section.
    void QuotaLarghezza(std::string_view nome) const {
        const Punto sinistra = In(-s_.b / 2, 0);
        const Punto destra = In(s_.b / 2, 0);
        const double y = sinistra.y + testo_ * 0.8;
        q_.Quota({sinistra.x, y}, {destra.x, y});
        for (const double x : {sinistra.x, destra.x})
            Quadro::Linea({x, sinistra.y + stacco}, {x, y + stacco});
        q_.Testo({(sinistra.x + destra.x) / 2, y + 1}, nome, Allinea::Centro, Posa::Alto);
    }

    /// Names of the thicknesses and of the fillet, beside what they measure.
    void Nomi() const {
        q_.Testo(In(s_.tw / 2, s_.h * 0.28) + Punto{testo_ * 0.35, 0}, "tw", Allinea::Sinistra, Posa::Mezzo);
        q_.Testo(In(-s_.b / 2, s_.h) - Punto{0, 2}, "tf", Allinea::Sinistra, Posa::Basso);
        const double raccordo = s_.h - s_.tf - s_.raggio;
        const Punto radice = In(-s_.tw / 2 - s_.raggio * 0.3, raccordo + s_.raggio * 0.7);
        const Punto nome = radice + Punto{-testo_ * 0.9, testo_ * 0.9};
        q_.Fine();
        Quadro::Linea(radice, nome);
        q_.Testo(nome, s_.nomeRaggio, Allinea::Destra, Posa::Alto);
    }

    static constexpr double stacco =
        3; ///< of an extension line from the piece, and beyond its dimension line

    const Quadro& q_;
    const SagomaDisegnata& s_;
    double testo_; ///< height of a line of text
    double scala_ = 1;
    Punto origine_;
};

bool Disegnabile(const SagomaDisegnata& s) {
    const std::vector<double> misure{s.h, s.b, s.tw, s.tf, s.raggio, s.yG};
    return s.x.size() > 2 && s.x.size() == s.y.size() && s.h > 0 && Disegnabili(s.x) && Disegnabili(s.y) &&
           Disegnabili(misure);
}

} // namespace

SagomaDisegnata SagomaDi(const SezioneDoppioT& sezione) {
    const SezioneDoppioT& s = sezione;
    SagomaDisegnata sagoma;
    if (!s.SezioneGenericaCorrente)
        return sagoma;
    const auto& contorno = *s.SezioneGenericaCorrente->Poligono;
    for (int i = 1; i <= contorno.nVertici(); ++i) {
        sagoma.x.push_back(contorno.xi(i));
        sagoma.y.push_back(contorno.yi(i));
    }
    sagoma.nome = s.Designation;
    sagoma.h = s.h;
    sagoma.b = s.b;
    sagoma.tw = s.tw;
    sagoma.tf = s.tf;
    sagoma.raggio = s.Saldata ? s.r : s.r1;
    sagoma.yG = s.yG;
    sagoma.nomeRaggio = s.Saldata ? "r" : "r1";
    return sagoma;
}

Disegno DisegnoSagoma(const SagomaDisegnata& sagoma) {
    Disegno disegno{sagoma.nome, {}, {200, 230}, {125, 170}};
    if (Disegnabile(sagoma))
        disegno.PlottaInOggetto = [sagoma, misura = disegno.misura](Superficie* oggetto, std::string_view) {
            const Quadro quadro(oggetto, Dispositivo, misura);
            Tavola(quadro, sagoma).Traccia();
        };
    return disegno;
}

} // namespace sagomi
