// Settled rules of composite beams: what they give beside theory or the code of today.
#include <algorithm>
#include <cmath>

#include "Profili.h"
#include "Verbale.h"
#include "composite/AcciaioCls.h"
#include "composite/ProgettoConnettori.h"
#include "composite/VerificaTrave.h"
#include "geometry/Poligono.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class RegoleMiste : public Ambiente {
protected:
    static AcciaioCls Trave(const SezioneDoppioT& acciaio, double hc, double beff, double As) {
        SezioneCorrente = std::make_shared<SezioneDoppioT>(acciaio);
        AcciaioCls t;
        t.hc = hc;
        t.beff = beff;
        t.c = 30;
        t.As = As;
        AcciaioCls::InizializzaTrave();
        t.InizializzaAcciaioCls();
        return t;
    }
    static AcciaioCls ConPioli(double fuPiolo, std::int16_t tipo = solettaPiena, std::int16_t Nr = 1) {
        AcciaioCls t;
        t.TipoSoletta = tipo;
        t.hc = 150;
        t.ha = 55;
        t.b0 = 150;
        t.dPiolo = 19;
        t.hPiolo = 125;
        t.fu = fuPiolo;
        t.GammaV = 1.25;
        t.Nr = Nr;
        t.CalcolaPrd();
        return t;
    }
};

const char* const mista = "IPE 300, S355, soletta 120x1500, C25/30";

TEST_F(RegoleMiste, BarreCompresse) {
    const auto ipe = Laminata("IPE 300", 355, 300, 150, 7.1, 10.7, 15);
    Regola r("barre-compresse");
    AcciaioCls senza = Trave(ipe, 120, 1500, 0);
    senza.MplRdPositivo();
    for (const double As : {500.0, 2000.0}) {
        AcciaioCls con = Trave(ipe, 120, 1500, As);
        con.MplRdPositivo();
        r.Caso(std::string(mista) + ", barre " + std::to_string(int(As)) + " mm²", "M<sub>pl,Rd</sub>", "kNm",
               senza.MplRd / 1e6, con.MplRd / 1e6, Verso::resistenza);
    }
}

TEST_F(RegoleMiste, AsseNellaSoletta) {
    const auto piccola = Laminata("IPE 160", 235, 160, 82, 5, 7.4, 9);
    Regola r("asse-nella-soletta");
    for (const double As : {1000.0, 1500.0, 2000.0}) {
        AcciaioCls t = Trave(piccola, 120, 1000, As);
        t.TipoVerifica = sluNegativo;
        t.MplRdNegativo();
        r.Caso("IPE 160, S235, soletta 120x1000, barre " + std::to_string(int(As)) + " mm², momento negativo",
               "|M<sub>pl,Rd</sub>|", "kNm", -MomentoInEquilibrio(t) / 1e6, -t.MplRd / 1e6,
               Verso::resistenza);
    }
}

TEST_F(RegoleMiste, ModuloDelCalcestruzzo) {
    Regola r("modulo-del-calcestruzzo");
    for (const auto& [resistenza, modulo] : {std::pair{20.0, 30000.0}, {25.0, 31000.0}, {40.0, 35000.0}}) {
        fck = resistenza;
        const AcciaioCls t = ConPioli(450);
        r.Caso("piolo 19x125, C" + std::to_string(int(resistenza)) + ", E<sub>cm</sub> di EN 1992-1-1",
               "P<sub>Rd,2</sub>", "kN", 0.29 * 19 * 19 * std::sqrt(resistenza * modulo) / 1.25 / 1e3,
               t.PRd2 / 1e3, Verso::resistenza);
    }
}

TEST_F(RegoleMiste, AcciaioDelPiolo) {
    fck = 40;
    Regola r("acciaio-del-piolo");
    for (const double f : {450.0, 600.0})
        r.Caso("piolo 19x125, f<sub>u</sub> " + std::to_string(int(f)), "P<sub>Rd,1</sub>", "kN",
               0.8 * std::min(f, 500.0) * std::numbers::pi * 19 * 19 / 4 / 1.25 / 1e3, ConPioli(f).PRd1 / 1e3,
               Verso::resistenza);
}

TEST_F(RegoleMiste, RiduzionePerLeNervature) {
    Regola r("riduzione-per-le-nervature");
    for (const auto& [Nr, sottile, spessa, forata] :
         {std::tuple{std::int16_t{1}, 0.85, 1.0, 0.75}, {std::int16_t{2}, 0.7, 0.8, 0.6}}) {
        const AcciaioCls t = ConPioli(450, nervatureTrasversali, Nr);
        const double k = 0.7 / std::sqrt(double(Nr)) * 150 / 55 * (125.0 / 55 - 1);
        const std::string dati = "lamiera da 55, b<sub>0</sub> 150, " + std::to_string(Nr) +
                                 (Nr == 1 ? " piolo per nervatura" : " pioli per nervatura");
        r.Caso(dati + ", saldati attraverso, t ≤ 1 mm", "k<sub>t</sub>", "-", std::min(k, sottile),
               t.kRiduzione, Verso::resistenza)
            .Caso(dati + ", t > 1 mm", "k<sub>t</sub>", "-", std::min(k, spessa), t.kRiduzione,
                  Verso::resistenza)
            .Caso(dati + ", lamiera forata", "k<sub>t</sub>", "-", std::min(k, forata), t.kRiduzione,
                  Verso::resistenza);
    }
}

/// Moment of the steel with a tension N, about the lower fibre, by strips of flanges and web.
double AcciaioTeso(double N, double fyd) {
    constexpr int n = 6000;
    const double H = 300, dy = H / n;
    const auto larga = [](double y) {
        const double dal = std::min(y, 300 - y);
        if (dal < 10.7)
            return 150.0;
        const double s = dal - 10.7;
        return s >= 15 ? 7.1 : 7.1 + 2 * (15 - std::sqrt(15.0 * 15 - (15 - s) * (15 - s)));
    };
    double basso = 0, alto = H, M = 0;
    for (int giro = 0; giro < 35; ++giro) {
        const double yN = (basso + alto) / 2;
        double F = 0;
        M = 0;
        for (int i = 0; i < n; ++i) {
            const double y = (i + 0.5) * dy, f = fyd * std::clamp(2 * (yN - y) / dy, -1.0, 1.0) * larga(y) *
                                                 dy; // tension positive
            F += f;
            M -= f * y;
        }
        (F < N ? basso : alto) = yN;
    }
    return M;
}

TEST_F(RegoleMiste, RipristinoParziale) {
    AcciaioCls t = Trave(Laminata("IPE 300", 355, 300, 150, 7.1, 10.7, 15), 120, 1500, 0);
    t.MplRdPositivo();
    const double Ma = t.Sezione->McyRd, Nf = t.Vl, fcd = AcciaioCls::fcd();
    const auto curva = [&](double eta) { // equilibrium with the force eta Nf in the slab
        const double x = eta * Nf / (fcd * 1500);
        return AcciaioTeso(eta * Nf, t.fyd()) + eta * Nf * (300 + 120 - x / 2);
    };
    Regola r("ripristino-parziale");
    Grafico::Punti retta, equilibrio;
    for (int i = 0; i <= 20; ++i) {
        const double eta = 0.05 * i;
        retta.emplace_back(eta, (Ma + eta * (t.MplRd - Ma)) / 1e6);
        equilibrio.emplace_back(eta, curva(eta) / 1e6);
    }
    Grafico("ripristino-parziale", std::string("Momento resistente con connessione parziale: ") + mista + ".",
            "grado di connessione", "kNm")
        .Serie("Sagomi", retta)
        .Serie("equilibrio plastico", equilibrio);
    for (const double Msd : {1.1, 1.5}) {
        const double M = std::min(Msd * Ma, 0.98 * t.MplRd);
        const double programma = ContoParziale(1, t.MplRd, M, Ma).value_or(0);
        double basso = 0, alto = 1;
        for (int i = 0; i < 25; ++i) {
            const double m = (basso + alto) / 2;
            (curva(m) < M ? basso : alto) = m;
        }
        const std::string dati =
            std::string(mista) + ", M<sub>Sd</sub> = 1," + (Msd == 1.1 ? "1" : "5") + " M<sub>pl,a</sub>";
        r.Caso(dati + ", equilibrio", "grado di connessione", "-", basso, programma, Verso::sollecitazione)
            .Caso(dati + ", minimo di EN 1994-1-1 6.6.1.2 per 10 m", "grado di connessione", "-",
                  std::max(0.4, 1 - (0.75 - 0.03 * 10)), programma, Verso::sollecitazione);
    }
}

} // namespace
