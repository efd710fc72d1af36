#include "sections/DisegnoSagoma.h"

#include <algorithm>
#include <utility>

#include "drawing/Quadro.h"
#include "sections/DisegnoQuotato.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

namespace sagomi {

namespace {

using Punto = PuntoQuadro;

/// Draws in units of the picture what is given in millimetres, inside a frame kept free for the dimension
/// lines.
class Tavola {
public:
    Tavola(const Quadro& quadro, const SagomaDisegnata& s) : q_(quadro), s_(s), testo_(quadro.Riga()) {
        const auto [xMin, xMax] = Estensione(s.x, s.xAltra);
        const auto [yMin, yMax] = Estensione(s.y, s.yAltra);
        const CampoQuadro campo = q_.Tutto().Dentro(testo_ * 1.2, testo_ * 1.1, testo_ * 1.9, testo_ * 1.9);
        scala_ = std::min(campo.larghezza / (xMax - xMin), campo.altezza / (yMax - yMin));
        origine_ = campo.Centro() + Punto{-(xMin + xMax) / 2, (yMin + yMax) / 2} * scala_;
        q_.VeraGrandezza(scala_);
    }

    void Traccia() const {
        Contorno(s_.x, s_.y);
        Contorno(s_.xAltra, s_.yAltra);
        Assi();
        QuotaAltezza("h");
        QuotaLarghezza(s_.nomeB);
        for (const NomeSagoma& nome : s_.nomi)
            Scrive(nome);
    }

private:
    static std::pair<double, double> Estensione(const std::vector<double>& a, const std::vector<double>& b) {
        std::vector<double> tutte = a;
        tutte.insert(tutte.end(), b.begin(), b.end());
        const auto [minimo, massimo] = std::minmax_element(tutte.begin(), tutte.end());
        return {*minimo, *massimo};
    }

    [[nodiscard]] Punto In(double x, double y) const { return origine_ + Punto{x, -y} * scala_; }

    void Contorno(const std::vector<double>& x, const std::vector<double>& y) const {
        std::vector<Punto> contorno;
        for (std::size_t i = 0; i < x.size(); ++i)
            contorno.push_back(In(x[i], y[i]));
        if (contorno.empty())
            return;
        Quadro::Area(contorno, Fondo::Tenue);
        q_.Contorno();
        Quadro::Spezzata(contorno, true);
    }

    void Assi() const {
        q_.Fine(TipoLinea::TrattoPunto);
        const Punto sinistra = In(s_.sinistra, s_.yG) - Punto{testo_ * 0.7, 0};
        Quadro::Linea(sinistra, In(s_.destra, s_.yG) + Punto{testo_ * 0.4, 0});
        const Punto alto = In(s_.xG, s_.alto) - Punto{0, testo_ * 0.5};
        Quadro::Linea(alto, In(s_.xG, s_.basso) + Punto{0, testo_ * 0.4});
        q_.Testo(sinistra - Punto{0, testo_ * 0.1}, "y", Allinea::Sinistra, Posa::Basso);
        q_.Testo(alto + Punto{testo_ * 0.25, testo_ * 0.35}, "z", Allinea::Sinistra, Posa::Basso);
    }

    /// Dimension of the height, to the right of the section.
    void QuotaAltezza(std::string_view nome) const {
        const Punto basso = In(s_.destra, 0);
        const Punto alto = In(s_.destra, s_.h);
        const double x = basso.x + testo_ * 0.9;
        q_.Quota({x, basso.y}, {x, alto.y});
        for (const Punto& estremo : {basso, alto})
            Quadro::Linea({estremo.x + stacco, estremo.y}, {x + stacco, estremo.y});
        q_.Testo({x + testo_ * 0.3, (basso.y + alto.y) / 2}, nome, Allinea::Sinistra, Posa::Mezzo);
    }

    /// Dimension of the width, below the section.
    void QuotaLarghezza(std::string_view nome) const {
        const Punto sinistra = In(s_.xb, s_.basso);
        const Punto destra = In(s_.xb + s_.b, s_.basso);
        const double y = sinistra.y + testo_ * 0.8;
        q_.Quota({sinistra.x, y}, {destra.x, y});
        for (const double x : {sinistra.x, destra.x})
            Quadro::Linea({x, sinistra.y + stacco}, {x, y + stacco});
        q_.Testo({(sinistra.x + destra.x) / 2, y + 1}, nome, Allinea::Centro, Posa::Alto);
    }

    void Scrive(const NomeSagoma& nome) const {
        const Punto dove = In(nome.x, nome.y);
        const Punto testo = dove + Punto{nome.dx, nome.dy} * testo_;
        if (nome.richiamo) {
            q_.Fine();
            Quadro::Linea(dove, testo);
        }
        q_.Testo(testo, nome.testo, nome.allinea, nome.posa);
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
    std::vector<double> misure{s.h, s.b, s.xb, s.sinistra, s.destra, s.basso, s.alto, s.xG, s.yG};
    for (const NomeSagoma& nome : s.nomi)
        misure.insert(misure.end(), {nome.x, nome.y});
    return s.x.size() > 2 && s.x.size() == s.y.size() && s.xAltra.size() == s.yAltra.size() && s.h > 0 &&
           Disegnabili(s.x) && Disegnabili(s.y) && Disegnabili(s.xAltra) && Disegnabili(s.yAltra) &&
           Disegnabili(misure);
}

constexpr double staccoNome = 0.35; ///< of a name from the web beside it
constexpr double sopraAla = -0.13;  ///< of a name above a flange
constexpr double braccio = 0.9;     ///< of a leader

/// The outline, the extent of one piece from x = xb and y = 0, and its centroid.
SagomaDisegnata Sagoma(const std::string& nome, const SezioneGenerica* contorno, double h, double b,
                       double xb) {
    SagomaDisegnata s;
    if (contorno == nullptr)
        return s;
    for (int i = 1; i <= contorno->Poligono->nVertici(); ++i) {
        s.x.push_back(contorno->Poligono->xi(i));
        s.y.push_back(contorno->Poligono->yi(i));
    }
    s.nome = nome;
    s.h = s.alto = h;
    s.b = b;
    s.xb = s.sinistra = xb;
    s.destra = xb + b;
    s.xG = contorno->xG;
    s.yG = contorno->yG;
    return s;
}

/// Adds the second piece of a pair, mirrored to the other side of x = -distanza / 2, or of y.
void Raddoppia(SagomaDisegnata& s, const Gemello& altro) {
    if (s.x.empty())
        return;
    const auto specchia = [&altro](double& v) { v = -(v + altro.distanza); };
    s.xAltra = s.x;
    s.yAltra = s.y;
    auto& mosse = altro.sottoSopra ? s.yAltra : s.xAltra;
    std::for_each(mosse.begin(), mosse.end(), specchia);
    const auto [minimo, massimo] = std::minmax_element(mosse.begin(), mosse.end());
    double& da = altro.sottoSopra ? s.basso : s.sinistra;
    double& a = altro.sottoSopra ? s.alto : s.destra;
    da = std::min(da, *minimo);
    a = std::max(a, *massimo);
    (altro.sottoSopra ? s.yG : s.xG) = -altro.distanza / 2;
}

} // namespace

namespace {

/// Of different flanges each has its width and its thickness.
void AliDiverse(SagomaDisegnata& sagoma, const SezioneDoppioT& s) {
    const double larga = std::max(s.b, s.bAlaInf);
    sagoma.b = s.bAlaInf;
    sagoma.xb = -s.bAlaInf / 2;
    sagoma.nomeB = "b2";
    sagoma.sinistra = -larga / 2;
    sagoma.destra = larga / 2;
    sagoma.nomi[1].testo = "tf1";
    sagoma.nomi.push_back({"b1", s.b / 2, s.h, 0, sopraAla, Allinea::Destra, Posa::Basso});
    sagoma.nomi.push_back({"tf2", -s.bAlaInf / 2, s.tAlaInf, 0, sopraAla, Allinea::Sinistra, Posa::Basso});
}

} // namespace

SagomaDisegnata SagomaDi(const SezioneDoppioT& sezione) {
    const SezioneDoppioT& s = sezione;
    SagomaDisegnata sagoma = Sagoma(s.Designation, s.SezioneGenericaCorrente.get(), s.h, s.b, -s.b / 2);
    const double raggio = s.Saldata ? s.r : s.r1;
    const double xRadice = -s.tw / 2 - raggio * 0.3;
    const double yRadice = s.h - s.tf - raggio + raggio * 0.7;
    sagoma.nomi = {
        {"tw", s.tw / 2, s.h * 0.28, staccoNome, 0},
        {"tf", -s.b / 2, s.h, 0, sopraAla, Allinea::Sinistra, Posa::Basso},
        {s.Saldata ? "r" : "r1", xRadice, yRadice, -braccio, braccio, Allinea::Destra, Posa::Alto, true}};
    if (s.SaldataAsimm)
        AliDiverse(sagoma, s);
    return sagoma;
}

SagomaDisegnata SagomaDi(const SezioneSagomoU& sezione) {
    const SezioneSagomoU& s = sezione;
    SagomaDisegnata sagoma = Sagoma(s.Designation, s.SezioneGenericaCorrente.get(), s.h, s.b, 0);
    const double raccordo = 0.3 * s.r1;
    sagoma.nomi = {{"tw", s.tw, s.h * 0.28, staccoNome, 0},
                   {"tf", 0.6 * s.b, s.h, 0, sopraAla, Allinea::Sinistra, Posa::Basso},
                   {"r1", s.tw + raccordo, s.h - s.tf2() - raccordo, braccio, braccio, Allinea::Sinistra,
                    Posa::Alto, true}};
    if (s.Doppi)
        Raddoppia(sagoma, GemelloDi(s));
    return sagoma;
}

SagomaDisegnata SagomaDi(const SezioneSagomoL& sezione) {
    const SezioneSagomoL& s = sezione;
    SagomaDisegnata sagoma = Sagoma(s.Designation, s.SezioneGenericaCorrente.get(), s.h, s.b, 0);
    const double radice = s.t + 0.3 * s.r1;
    sagoma.nomi = {{"t", s.t, s.h * 0.7, staccoNome, 0},
                   {"r1", radice, radice, braccio, -braccio, Allinea::Sinistra, Posa::Basso, true}};
    if (s.Doppi)
        Raddoppia(sagoma, GemelloDi(s));
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
