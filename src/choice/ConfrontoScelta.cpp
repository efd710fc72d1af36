#include "choice/ConfrontoScelta.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string_view>

#include "choice/TabellaScelta.h"
#include "drawing/Quadro.h"
#include "frame/Numeri.h"
#include "sections/DisegnoSagoma.h"

namespace sagomi {

namespace {

std::string ConSegno(std::string_view figura, double valore) {
    return (valore > 0 ? "+" : "") + Formato(figura, valore);
}

/// "+12,3 (+4 %)"
std::string Differenza(const ColonnaScelta& colonna, const RigaScelta& prima, const RigaScelta& riga) {
    const double da = colonna.valore(prima);
    const double a = colonna.valore(riga);
    if (!std::isfinite(da) || !std::isfinite(a))
        return {};
    const bool parte = colonna.figura[0] == '\0'; // the utilisation is a share itself
    if (parte)
        return ConSegno("0", (a - da) * 100) + " %";
    std::string testo = ConSegno(colonna.figura, a - da);
    constexpr std::string_view intero = "0"; // a class has no per cent
    if (da != 0 && colonna.figura != intero)
        testo += " (" + ConSegno("0", (a - da) / da * 100) + " %)";
    return testo;
}

struct Ingombro {
    double sinistra = 0, destra = 0, basso = 0, alto = 0;
    [[nodiscard]] double Larghezza() const { return destra - sinistra; }
    [[nodiscard]] double Altezza() const { return alto - basso; }
};

Ingombro IngombroDi(const SagomaDisegnata& s) {
    return {s.sinistra, s.destra, std::min(s.basso, 0.0), std::max(s.alto, s.h)};
}

/// Outlines on one base line, each in the middle of its strip.
class Tavola {
public:
    Tavola(const Quadro& quadro, const std::vector<SagomaDisegnata>& sagome)
        : q_(quadro), sagome_(sagome), riga_(quadro.Riga()) {
        const CampoQuadro campo = q_.Tutto().Dentro(riga_, 1.6 * riga_, riga_, 2.8 * riga_);
        striscia_ = campo.larghezza / static_cast<double>(sagome.size());
        base_ = campo.Basso();
        sinistra_ = campo.sinistra;
        double alta = 0;
        double larga = 0;
        for (const SagomaDisegnata& s : sagome) {
            alta = std::max(alta, IngombroDi(s).Altezza());
            larga = std::max(larga, IngombroDi(s).Larghezza());
        }
        scala_ = std::min(campo.altezza / alta, (striscia_ - riga_) / larga);
        q_.VeraGrandezza(scala_);
    }

    void Traccia() const {
        for (std::size_t i = 0; i < sagome_.size(); ++i)
            Disegna(sagome_[i], sinistra_ + (static_cast<double>(i) + 0.5) * striscia_);
    }

private:
    void Disegna(const SagomaDisegnata& s, double mezzo) const {
        const Ingombro i = IngombroDi(s);
        const double x0 = mezzo - (i.sinistra + i.destra) / 2 * scala_;
        const auto in = [&](double x, double y) {
            return PuntoQuadro{x0 + x * scala_, base_ - (y - i.basso) * scala_};
        };
        Contorno(s.x, s.y, in);
        Contorno(s.xAltra, s.yAltra, in);
        const double alto = base_ - i.Altezza() * scala_;
        q_.Testo({mezzo, alto - 0.3 * riga_}, s.nome, Allinea::Centro, Posa::Basso);
        const double y = base_ + 0.8 * riga_;
        q_.Quota({in(i.sinistra, 0).x, y}, {in(i.destra, 0).x, y});
        q_.Testo({mezzo, y + 0.3 * riga_},
                 Formato("#,##0", i.Larghezza()) + " x " + Formato("#,##0", i.Altezza()), Allinea::Centro,
                 Posa::Alto);
    }

    template <typename In>
    void Contorno(const std::vector<double>& x, const std::vector<double>& y, const In& in) const {
        std::vector<PuntoQuadro> punti;
        for (std::size_t i = 0; i < x.size(); ++i)
            punti.push_back(in(x[i], y[i]));
        if (punti.empty())
            return;
        Quadro::Area(punti, Fondo::Tenue);
        q_.Contorno();
        Quadro::Spezzata(punti, true);
    }

    const Quadro& q_;
    const std::vector<SagomaDisegnata>& sagome_;
    double riga_;
    double striscia_ = 0, base_ = 0, sinistra_ = 0, scala_ = 1;
};

bool Disegnabile(const SagomaDisegnata& s) {
    const Ingombro i = IngombroDi(s);
    return s.x.size() > 2 && i.Larghezza() > 0 && i.Altezza() > 0 && Disegnabili(s.x) && Disegnabili(s.y);
}

} // namespace

std::vector<LineaConfronto> LineeConfronto(const std::vector<Confrontato>& righe) {
    std::vector<LineaConfronto> linee;
    for (int c = colonnaFamiglia; c <= ColonnaUtilizzo(); ++c) {
        const ColonnaScelta& colonna = ColonneScelta()[static_cast<std::size_t>(c)];
        LineaConfronto& linea = linee.emplace_back();
        linea.voce = colonna.titolo;
        linea.aiuto = colonna.aiuto;
        for (const Confrontato& r : righe) {
            const bool primo = &r == righe.data();
            linea.valori.push_back(TestoScelta(r.esito.riga, r.sagomo, c));
            linea.differenze.push_back(primo || colonna.valore == nullptr
                                           ? std::string()
                                           : Differenza(colonna, righe.front().esito.riga, r.esito.riga));
        }
    }
    return linee;
}

Disegno DisegnoConfronto(const std::vector<Confrontato>& righe) {
    Disegno disegno{"Confronto", {}, {560, 240}, {240, 120}};
    auto sagome = std::make_shared<std::vector<SagomaDisegnata>>();
    for (const Confrontato& r : righe)
        if (SagomaDisegnata s = std::visit([](const auto& x) { return SagomaDi(x); }, r.esito.sezione);
            Disegnabile(s))
            sagome->push_back(std::move(s));
    if (!sagome->empty())
        disegno.PlottaInOggetto = [sagome, misura = disegno.misura](Superficie* oggetto, std::string_view) {
            const Quadro quadro(oggetto, Dispositivo, misura);
            Tavola(quadro, *sagome).Traccia();
        };
    return disegno;
}

} // namespace sagomi
