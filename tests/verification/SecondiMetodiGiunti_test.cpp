// Stiffened joints and the rotation of a joint by a second method.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "Profili.h"
#include "TrattoTLimite.h"
#include "Verbale.h"
#include "joints/Giunto.h"
#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class SecondiMetodiGiunti : public Ambiente {};

constexpr double pi = std::numbers::pi, sqrt2 = std::numbers::sqrt2;

/// IPE 500 on HE 300 B, S235, plate 300x25 with M24 8.8, rows 50 mm beyond both faces of the flange.
struct GiuntoLargo {
    Giunto g;
    GiuntoLargo() {
        const auto trave = prove::Laminato("IPE 500", 500, 200, 10.2, 16, 21, 11550, 482e6);
        const auto colonna = prove::HEB300();
        trave->McyRd = 2194000 * 235.0;
        g.PuntatoreSezioni(trave, colonna);
        g.sTraveColonna_Calcola();
        g.IndiceBullone(9);
        g.nf = 2;
        g.tf = 25;
        g.bf = 300;
        g.ef = 50;
        g.d2 = 50;
        g.ex = 50;
        g.L = 100;
        g.u = 20;
        g.Af = 8;
        g.aw = 6;
        g.Irr_Spessore = 16;
        g.Irr_B = 130;
        g.Irr_a = 5;
    }
    void Calcola(const char* irrigidimenti, double beta) {
        g.Irrigidimenti = irrigidimenti;
        g.Beta = beta;
        g.Derivati_Calcola();
        g.Mrd_Giunto_Calcola();
    }
};

constexpr double Bt = 0.9 * 800 * 353 / 1250; ///< M24 8.8 [kN]

/// A row beside a stiffener or a flange of the beam: yield lines of the closed form, force by statics.
double FilaAccanto(double m, double e, double n, double distanza, double t) {
    const double leff = std::min(2 * pi, AlfaChiusa(m / (m + e), distanza / (m + e))) * m;
    return TrattoTStatico(0.25 * leff * t * t * 235 / 1e3, m, n, 2, Bt);
}

TEST_F(SecondiMetodiGiunti, GiuntoIrrigidito) {
    GiuntoLargo giunto;
    const Giunto& g = giunto.g;
    giunto.Calcola("Si", 0);
    // Measured on the drawing: bolts 200 apart, roots 0.8 of a fillet.
    const double mc = (200 - 11) / 2.0 - 0.8 * 27, mf = (200 - 10.2) / 2 - 0.8 * sqrt2 * 6;
    const double sottoC = 50 - 0.8 * sqrt2 * 5, sottoF = 50 - 0.8 * sqrt2 * 8;
    const double ala = FilaAccanto(mc, 50, 50, sottoC, 19);
    const double flangia = FilaAccanto(mf, 50, 50, sottoF, 25);
    const double esterna = TrattoTStatico(0.25 * 150 * 25 * 25 * 235 / 1e3, sottoF, 50, 2, Bt);
    const double anima =
        10.2 * 235 / 1e3 * mf * std::min(2 * pi, AlfaChiusa(mf / (mf + 50), sottoF / (mf + 50)));
    const double interna = std::min({ala, flangia, anima}), fuori = std::min(ala, esterna);
    const char* const tavola =
        "La tavola di α è letta sul diagramma stampato, la forma chiusa lo approssima.";
    Controprova(
        "Giunto con irrigidimenti nella colonna",
        "linee di rottura nella forma chiusa di α, forza di ogni fila per il teorema statico, momento "
        "come somma delle forze per i bracci misurati dal mezzo dell'ala compressa.",
        "IPE 500 su HE 300 B, S235, flangia 300x25, M24 8.8 a 50 mm dalle facce dell'ala, interasse "
        "200 mm, irrigidimenti da 16 con gola 5, gole 8 e 6, nessun taglio nel pannello")
        .Confronta("F<sub>T,Rd</sub>, ala accanto all'irrigidimento", "kN", ala, g.Ftrd_FilaInf_c, 0.04,
                   tavola)
        .Confronta("F<sub>T,Rd</sub>, flangia, fila interna", "kN", flangia, g.FtRd_FilaInf_f, 0.04, tavola)
        .Confronta("F<sub>T,Rd</sub>, flangia, fila esterna", "kN", esterna, g.FtRd_FilaSup_f, 0.002)
        .Confronta("forza della fila interna", "kN", interna, g.FtRd_EffInf, 0.04, tavola)
        .Confronta("forza della fila esterna", "kN", fuori, g.FtRd_EffSup, 0.04, tavola)
        .Confronta("M<sub>j,Rd</sub>", "kNm", (fuori * (550 - 8) + interna * (450 - 16 - 8)) / 1e3,
                   g.MplRdGIUNTO, 0.03, tavola);
}

/// A spring that stretches in proportion up to two thirds of its resistance, then with the cube of the force.
struct Molla {
    double rigida, resistenza; ///< [kN/mm, kN]
    [[nodiscard]] double Allungamento(double F) const {
        const double quota = std::max(F / resistenza, 2.0 / 3);
        return F * quota * quota / rigida;
    }
};

/// Moment over rotation [kNm/rad] of a row with its springs, at the lever arm z [mm].
double Rotazione(const std::vector<Molla>& molle, double F, double z) {
    double allunga = 0;
    for (const Molla& m : molle)
        allunga += m.Allungamento(F);
    return F * z / 1e3 / (allunga / z);
}

TEST_F(SecondiMetodiGiunti, RotazioneDelGiunto) {
    Controprova c(
        "Rotazione del giunto",
        "catena di molle: pannello 0,38 E t<sub>w</sub>, anime 0,8 E t<sub>w</sub>, ala e flangia E "
        "t³/(4 m²) o, accanto a un irrigidimento, E t³/(12 λ m²), bulloni 2 E "
        "A<sub>s</sub>/L<sub>b</sub> (ENV 1993-1-1 J), allungate dalla forza della fila.",
        "lo stesso giunto con la sola fila interna");
    for (const auto& [irrigidimenti, beta] : {std::pair{"No", 0.0}, {"No", 1.0}, {"Cp", 1.0}, {"Si", 0.0}}) {
        GiuntoLargo giunto;
        Giunto& g = giunto.g;
        g.nf = 1;
        giunto.Calcola(irrigidimenti, beta);
        g.Sj_Giunto_Calcola();
        const bool teso = irrigidimenti[0] == 'S', compresso = irrigidimenti[0] != 'N';
        const double E = 210, mc = 94.5 - 0.8 * 27, mf = 94.9 - 0.8 * sqrt2 * 6;
        const double sottoC = 50 - 0.8 * sqrt2 * 5, sottoF = 50 - 0.8 * sqrt2 * 8;
        const double latoC = teso ? 12 * std::min(1.0 / 3, sottoC / (mc + 50)) : 4;
        const double latoF = 12 * std::min(1.0 / 3, sottoF / (mf + 50));
        std::vector<Molla> molle{
            {E * 19 * 19 * 19 / (latoC * mc * mc), g.Ftrd_FilaInf_c},
            {E * 25 * 25 * 25 / (latoF * mf * mf), g.FtRd_FilaInf_f},
            {2 * E * 353 / (19 + 25 + g.rond_s + (g.bul_m + g.bul_k) / 2), 2 * Bt},
        };
        if (beta > 0)
            molle.push_back({0.38 * E * 11, g.VplRd_Pannello_c});
        if (!teso)
            molle.push_back({0.8 * E * 11, g.FtRd_Anima_c});
        if (!compresso)
            molle.push_back({0.8 * E * 11, std::min<double>(g.FcRd_Anima_c, g.NbRd_Anima_c)});
        const double F = g.FtRd_EffInf, z = 500 - 16 - 50 - 8;
        const std::string quale = std::string(", irrigidimenti ") +
                                  (teso        ? "tesi e compressi"
                                   : compresso ? "compressi"
                                               : "nessuno") +
                                  (beta > 0 ? ", β 1" : ", β 0");
        c.Confronta("S<sub>j</sub> a ⅔ M<sub>j,Rd</sub>" + quale, "MNm/rad",
                    Rotazione(molle, F / 1.5, z) / 1e3, g.Sj_Mela / 1e3, 0.001);
        c.Confronta("S<sub>j</sub> a M<sub>j,Rd</sub>" + quale, "MNm/rad", Rotazione(molle, F, z) / 1e3,
                    g.Sj_MjRd / 1e3, 0.001);
    }
}

} // namespace
