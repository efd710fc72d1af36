#include "fasteners/DisegnoCordone.h"

#include <algorithm>
#include <array>

#include "drawing/Quadro.h"

namespace sagomi {

namespace {

using Punto = PuntoQuadro;

// In parts of the height of the upright plate above the other one.
constexpr double spessore = 0.3;
constexpr double lato = 0.42;     ///< of a weld
constexpr double mezzaBase = 1.1; ///< half the lying plate
constexpr double larga = 2 * mezzaBase, alta = 1 + spessore;

class Tavola {
public:
    explicit Tavola(const Quadro& quadro) : q_(quadro), testo_(quadro.Riga()) {
        const CampoQuadro campo = q_.Tutto().Dentro(testo_, testo_, testo_, testo_);
        scala_ = std::min(campo.larghezza / larga, campo.altezza / alta);
        origine_ = campo.Centro() + Punto{0, (alta / 2 - spessore) * scala_};
    }

    void Traccia() const {
        Piatto(-mezzaBase, -spessore, mezzaBase, 0);
        Piatto(-spessore / 2, 0, spessore / 2, 1);
        for (const double verso : {-1.0, 1.0})
            Cordone(verso);
        Gola();
    }

private:
    /// From the middle of the joint, upwards.
    [[nodiscard]] Punto In(double x, double y) const { return origine_ + Punto{x, -y} * scala_; }

    void Piatto(double x1, double y1, double x2, double y2) const {
        const std::array contorno{In(x1, y1), In(x2, y1), In(x2, y2), In(x1, y2)};
        q_.Contorno();
        Quadro::Spezzata(contorno, true);
    }

    void Cordone(double verso) const {
        const double radice = verso * spessore / 2;
        const std::array contorno{In(radice, 0), In(radice + verso * lato, 0), In(radice, lato)};
        Quadro::Area(contorno, Fondo::Tenue);
        q_.Contorno();
        Quadro::Spezzata(contorno, true);
    }

    void Gola() const {
        const Punto radice = In(spessore / 2, 0);
        const Punto faccia = In(spessore / 2 + lato / 2, lato / 2);
        q_.Quota(radice, faccia);
        q_.Testo(faccia + Punto{testo_ * 0.4, 0}, "a", Allinea::Sinistra, Posa::Basso);
    }

    const Quadro& q_;
    double testo_; ///< height of a line of text
    double scala_ = 1;
    Punto origine_;
};

} // namespace

Disegno DisegnoCordone() {
    Disegno disegno{"Cordone d'angolo", {}, {220, 150}, {160, 110}};
    disegno.PlottaInOggetto = [misura = disegno.misura](Superficie* oggetto, std::string_view) {
        const Quadro quadro(oggetto, Dispositivo, misura);
        Tavola(quadro).Traccia();
    };
    return disegno;
}

} // namespace sagomi
