#include "fasteners/DisegnoForatura.h"

#include <algorithm>
#include <array>
#include <vector>

#include "drawing/Quadro.h"

namespace sagomi {

namespace {

using Punto = PuntoQuadro;

/// Draws in units of the picture what is given in millimetres: x in the direction of the load, the plate's
/// end at the right.
class Tavola {
public:
    Tavola(const Quadro& quadro, const ForaturaDisegnata& f) : q_(quadro), f_(f), testo_(quadro.Riga()) {
        x_ = {std::max(f.do_, f.p1 * 0.4), 0, 0};
        x_[1] = x_[0] + f.p1;
        x_[2] = x_[1] + f.e1;
        y_ = {f.e2, f.e2 + f.p2, 2 * f.e2 + f.p2};
        const CampoQuadro campo = q_.Tutto().Dentro(4, 4, testo_ * 2.2, testo_ * 1.9);
        scala_ = std::min(campo.larghezza / x_[2], campo.altezza / y_[2]);
        origine_ = campo.Centro() + Punto{-x_[2], y_[2]} * (scala_ / 2);
        q_.VeraGrandezza(scala_);
    }

    void Traccia() const {
        Piastra();
        for (const double x : {x_[0], x_[1]})
            for (const double y : {y_[0], y_[1]})
                Foro(In(x, y));
        Carico();
        Quote();
    }

private:
    [[nodiscard]] Punto In(double x, double y) const { return origine_ + Punto{x, -y} * scala_; }

    /// The plate is whole at its end and broken off at the other side.
    void Piastra() const {
        const std::vector<Punto> contorno{In(0, 0), In(x_[2], 0), In(x_[2], y_[2]), In(0, y_[2])};
        const std::vector<Punto> rottura = Rottura();
        std::vector<Punto> tutta = contorno;
        tutta.insert(tutta.end(), rottura.begin() + 1, rottura.end() - 1);
        Quadro::Area(tutta, Fondo::Tenue);
        q_.Contorno();
        Quadro::Spezzata(contorno);
        q_.Fine();
        Quadro::Spezzata(rottura);
    }

    /// The broken side, from top to bottom: a cubic that swings right and left.
    [[nodiscard]] std::vector<Punto> Rottura() const {
        constexpr int corde = 24;
        const Punto alto = In(0, y_[2]);
        const Punto basso = In(0, 0);
        const Punto slancio{testo_ * 0.35, 0};
        const Punto primo = alto + (basso - alto) * (1.0 / 3) + slancio;
        const Punto secondo = basso + (alto - basso) * (1.0 / 3) - slancio;
        std::vector<Punto> linea;
        for (int i = 0; i <= corde; ++i) {
            const double t = static_cast<double>(i) / corde;
            const double u = 1 - t;
            linea.push_back(alto * (u * u * u) + primo * (3 * u * u * t) + secondo * (3 * u * t * t) +
                            basso * (t * t * t));
        }
        return linea;
    }

    /// The hole shows what lies behind the plate, with the bolt in it and its axes.
    void Foro(Punto centro) const {
        const double foro = f_.do_ / 2 * scala_;
        Quadro::Disco(centro, foro, Fondo::Sfondo);
        q_.Contorno();
        Quadro::Cerchio(centro, foro);
        q_.Fine();
        Quadro::Cerchio(centro, f_.d / 2 * scala_);
        q_.Fine(TipoLinea::TrattoPuntoCorto);
        const double oltre = foro + 4;
        Quadro::Linea(centro - Punto{oltre, 0}, centro + Punto{oltre, 0});
        Quadro::Linea(centro - Punto{0, oltre}, centro + Punto{0, oltre});
    }

    /// Between the two rows of bolts, towards the end that e1 is measured to.
    void Carico() const {
        constexpr double punta = 6; // length of the arrow's head
        const Punto da = In(x_[0], y_[2] / 2);
        const Punto a = In(x_[1], y_[2] / 2);
        q_.Contorno();
        Quadro::Linea(da, a - Punto{punta, 0});
        Quadro::Punta(a, {1, 0}, punta, punta * 0.4);
        q_.Testo((da + a) * 0.5 - Punto{0, 2}, "F", Allinea::Centro, Posa::Basso);
    }

    void Quote() const {
        const double sotto = In(0, 0).y + testo_ * 0.7;
        QuotaSotto(In(x_[0], 0).x, In(x_[1], 0).x, sotto, "p1");
        QuotaSotto(In(x_[1], 0).x, In(x_[2], 0).x, sotto, "e1");
        const double accanto = In(x_[2], 0).x + testo_ * 0.7;
        QuotaAccanto(In(0, 0).y, In(0, y_[0]).y, accanto, "e2");
        QuotaAccanto(In(0, y_[0]).y, In(0, y_[1]).y, accanto, "p2");
    }

    void QuotaSotto(double x1, double x2, double y, std::string_view nome) const {
        q_.Quota({x1, y}, {x2, y});
        q_.Testo({(x1 + x2) / 2, y + 2}, nome, Allinea::Centro, Posa::Alto);
    }

    void QuotaAccanto(double y1, double y2, double x, std::string_view nome) const {
        q_.Quota({x, y1}, {x, y2});
        q_.Testo({x + testo_ * 0.35, (y1 + y2) / 2}, nome, Allinea::Sinistra, Posa::Mezzo);
    }

    const Quadro& q_;
    const ForaturaDisegnata& f_;
    double testo_;              ///< height of a line of text
    std::array<double, 3> x_{}; ///< bolts, bolts, end of the plate [mm]
    std::array<double, 3> y_{}; ///< bolts, bolts, upper edge [mm]
    double scala_ = 1;
    Punto origine_;
};

bool Disegnabile(const ForaturaDisegnata& f) {
    const std::array misure{f.d, f.do_, f.e1, f.p1, f.e2, f.p2};
    return Disegnabili(misure) && *std::min_element(misure.begin(), misure.end()) > 0;
}

} // namespace

Disegno DisegnoForatura(const ForaturaDisegnata& foratura) {
    Disegno disegno{"Foratura", {}, {260, 150}, {180, 130}};
    if (Disegnabile(foratura))
        disegno.PlottaInOggetto = [foratura, misura = disegno.misura](Superficie* oggetto, std::string_view) {
            const Quadro quadro(oggetto, Dispositivo, misura);
            Tavola(quadro, foratura).Traccia();
        };
    return disegno;
}

} // namespace sagomi
