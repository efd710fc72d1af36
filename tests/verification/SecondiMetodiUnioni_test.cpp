// Joints and composite beams by a second method.
#include <algorithm>
#include <cmath>

#include "Profili.h"
#include "TrattoTLimite.h"
#include "Verbale.h"
#include "composite/AcciaioCls.h"
#include "geometry/Poligono.h"
#include "joints/DiagrammaAlfa.h"
#include "joints/TrattoT.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class SecondiMetodiUnioni : public Ambiente {};

TEST_F(SecondiMetodiUnioni, ModiDelTrattoT) {
    Controprova c("Modi di rottura del tratto a T",
                  "teorema statico: si cerca la forza di contatto che rende massima la forza portata, con "
                  "momenti e bulloni "
                  "entro le loro resistenze.",
                  "m 40, n 40 mm, l<sub>eff</sub> 200 mm, S235, due M20 8.8, spessori diversi");
    for (const double t : {8.0, 14.0, 20.0, 35.0}) {
        const double Bt = 0.9 * 800 * 245 / 1250, Mpl = Mpl_Calcola(200, t, 235, 1);
        const ModiTrattoT modi(200, 40, 40, Mpl, 2, Bt);
        c.Confronta("F<sub>T,Rd</sub>, t = " + std::to_string(int(t)) + " mm", "kN",
                    TrattoTStatico(Mpl, 40, 40, 2, Bt), modi.Resistenza(), 0.001);
    }
}

TEST_F(SecondiMetodiUnioni, DiagrammaDiAlfa) {
    Controprova c(
        "Diagramma di α accanto a un irrigidimento",
        "forma chiusa delle curve, λ<sub>1</sub> = λ<sub>1</sub>* + (1 − λ<sub>1</sub>*) ((λ<sub>2</sub>* − "
        "λ<sub>2</sub>)/λ<sub>2</sub>*)<sup>0,185 α<sup>1,785</sup></sup>, risolta in α.",
        "il programma legge una tavola a passi di 0,1");
    for (const auto& [l1, l2] :
         {std::pair{0.4, 0.4}, {0.5, 0.3}, {0.5, 0.8}, {0.6, 0.4}, {0.7, 0.5}, {0.8, 0.9}})
        c.Confronta("α, λ<sub>1</sub> " + std::to_string(l1).replace(1, 1, ",").substr(0, 3) +
                        ", λ<sub>2</sub> " + std::to_string(l2).replace(1, 1, ",").substr(0, 3),
                    "-", AlfaChiusa(l1, l2), AlfaDiagramma(l1, l2), 0.04,
                    "La tavola è letta sul diagramma stampato, la forma chiusa lo approssima.");
}

AcciaioCls Mista(double hc, double beff, double As) {
    auto s = std::make_shared<SezioneDoppioT>(Saldata(355, 400, 180, 8, 14));
    SezioneCorrente = s;
    AcciaioCls t;
    t.hc = hc;
    t.beff = beff;
    t.c = 30;
    t.As = As;
    AcciaioCls::InizializzaTrave();
    t.InizializzaAcciaioCls();
    return t;
}

/// Strips of the same beam: width of the steel 400 x 180 x 8 x 14 at a level.
double Acciaio(double y) { return y < 14 || y > 386 ? 180 : 8; }

struct Plastica {
    double M = 0, yN = 0;
};

/// Plastic moment in sagging by strips of steel and slab.
Plastica PerStrisce(double hc, double beff, double fyd, double fcd) {
    constexpr int n = 50000;
    const double H = 400, alta = H + hc, dy = alta / n;
    double basso = 0, alto = alta;
    Plastica p;
    for (int giro = 0; giro < 50; ++giro) {
        p.yN = (basso + alto) / 2;
        double F = 0;
        p.M = 0;
        for (int i = 0; i < n; ++i) {
            const double y = (i + 0.5) * dy;
            const double f = y < H      ? (y > p.yN ? fyd : -fyd) * Acciaio(y) * dy
                             : y > p.yN ? fcd * beff * dy
                                        : 0;
            F += f;
            p.M += f * y;
        }
        (F > 0 ? basso : alto) = p.yN;
    }
    return p;
}

TEST_F(SecondiMetodiUnioni, MomentoPlasticoDellaTraveMista) {
    Controprova c("Momento plastico della trave mista",
                  "equilibrio di 50 000 strisce di acciaio e calcestruzzo; il programma "
                  "divide i poligoni.",
                  "acciaio saldato 400 mm, ali 180x14, anima 8 mm, S355; soletta piena C25/30");
    for (const auto& [hc, beff] : {std::pair{120.0, 2000.0}, {80.0, 1200.0}}) {
        AcciaioCls t = Mista(hc, beff, 0);
        t.MplRdPositivo();
        const Plastica p = PerStrisce(hc, beff, t.fyd(), AcciaioCls::fcd());
        const std::string quale = ", soletta " + std::to_string(int(hc)) + "x" + std::to_string(int(beff));
        c.Confronta("M<sub>pl,Rd</sub>" + quale, "kNm", p.M / 1e6, t.MplRd / 1e6, 0.001);
        c.Confronta("y dell'asse neutro" + quale, "mm", p.yN, t.yNeutro, 0.001);
    }
}

TEST_F(SecondiMetodiUnioni, TensioniElasticheDellaTraveMista) {
    AcciaioCls t = Mista(120, 2000, 0);
    t.TipoVerifica = metodoNPositivo;
    t.Msd = 300e6;
    CoeffOmogeneizzazione = 15;
    t.SigmaCalcola();
    // Strips: concrete over n, only what is compressed; the axis by bisection on the first moment.
    constexpr int n = 100000;
    const double H = 400, alta = 520, dy = alta / n;
    double basso = 0, alto = alta, I = 0, yN = 0;
    for (int giro = 0; giro < 50; ++giro) {
        yN = (basso + alto) / 2;
        double S = 0;
        I = 0;
        for (int i = 0; i < n; ++i) {
            const double y = (i + 0.5) * dy;
            const double larga = y < H ? Acciaio(y) : y > yN ? 2000.0 / 15 : 0;
            S += larga * dy * (y - yN);
            I += larga * dy * (y - yN) * (y - yN);
        }
        (S > 0 ? basso : alto) = yN;
    }
    Controprova("Tensioni elastiche della trave mista (metodo n)",
                "100 000 strisce omogeneizzate all'acciaio, calcestruzzo teso escluso.",
                "la stessa trave, soletta 120x2000, n 15, M 300 kNm")
        .Confronta("y dell'asse neutro", "mm", yN, t.yNeutro, 0.001)
        .Confronta("J<sub>id</sub>", "cm⁴", I / 1e4, t.Jid / 1e4, 0.001)
        .Confronta("σ dell'acciaio, lembo inferiore", "N/mm²", 300e6 * yN / I, t.SigmaInf, 0.001)
        .Confronta("σ del calcestruzzo, lembo superiore", "N/mm²", -300e6 * (520 - yN) / I / 15, t.SigmaCls,
                   0.001);
}

} // namespace
