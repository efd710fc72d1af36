// The pictures of joints, held against SVG files that a person has looked at.
#include <string>

#include "NodoDisegnato.h"
#include "drawing/SuperficieRitratta.h"
#include "frame/GeneraleSagomi.h"
#include "joints/DiagrammaRigidezza.h"
#include "joints/DisegniScelte.h"
#include "joints/DisegnoNodo.h"
#include "joints/FiguraGiunto.h"
#include "joints/NoteIrrigidimenti.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class DisegniApprovati : public testing::Test {
protected:
    static void Approvato(const std::string& nome, const std::string& svg) {
        ConfrontaApprovato("joints/figure/" + nome + ".svg", svg);
    }
};

using enum ComponenteGiunto;

struct Figura {
    const char* nome;
    std::int16_t tipo;
    int nf;
    const char* irrigidimenti;
    bool sinistro;
    double larghezza, altezza;
    EvidenzaGiunto evidenza;
};

TEST_F(DisegniApprovati, FigureAccantoAiRisultati) {
    const auto evidenza = [](std::vector<ComponenteFila> governano, const char* parametro,
                             const char* limite) {
        return EvidenzaGiunto{std::move(governano), "governa: qualcosa", parametro, limite};
    };
    const auto interna = FilaGiunto::Interna, esterna = FilaGiunto::Esterna, nessuna = FilaGiunto::Nessuna;
    const Figura figure[] = {
        {"T", nodoT, 2, "Si", false, 480, 600, {}},
        {"L", nodoL, 1, "Cp", false, 480, 600, evidenza({{Pannello, nessuna}}, "tf", "min 12")},
        {"croce", nodoCroce, 2, "Si", false, 700, 560,
         evidenza({{Flangia, esterna}, {AnimaTrave, interna}}, "L", "max 80")},
        {"croce-sinistra", nodoCroce, 2, "Cp", true, 480, 600,
         evidenza({{AnimaColonnaCompressa, nessuna}, {Saldature, nessuna}}, "ef", "min 35")},
        {"croce-senza-colonna", nodoCroceSenzaColonna, 1, "No", false, 900, 400,
         evidenza({{Bulloni, nessuna}, {AlaTrave, nessuna}}, "bf", "max 150")},
        {"croce-senza-colonna-sinistra", nodoCroceSenzaColonna, 2, "Si", true, 480, 600,
         evidenza({{Irrigidimenti, nessuna}, {InstabilitaAnimaColonna, nessuna}}, "d2", "min 40")},
        {"T-tesa", nodoT, 2, "No", false, 480, 600,
         evidenza({{AnimaColonnaTesa, nessuna}, {AlaColonna, esterna}}, "ex", "min 35")},
        {"T-una-fila", nodoT, 1, "No", false, 420, 640,
         evidenza({{AlaColonna, nessuna}, {Flangia, nessuna}}, "u", "max 10")},
    };
    for (const Figura& f : figure) {
        const Nodo n = NodoDisegnato(f.tipo, f.nf, f.irrigidimenti, f.sinistro);
        Approvato(std::string("figura-") + f.nome,
                  InSvg(FiguraGiunto(n, nullptr, f.evidenza), f.larghezza, f.altezza, "frmGiunti"));
    }
}

TEST_F(DisegniApprovati, FigureSenzaDati) {
    Nodo n;
    n.ImpostaNodo();
    n.CaratterizzaGiunti();
    n.PuntatoreColonna(HEB200());
    n.PuntatoreTraveDestra(IPE270());
    Approvato("figura-senza-flangia", InSvg(FiguraGiunto(n, nullptr, {}), 480, 600, "frmGiunti"));
    Nodo senza = NodoDisegnato(nodoT, 2);
    senza.ConnessioneCorrente->bf = 0;
    senza.ConnessioneCorrente->ex = 0;
    Approvato("figura-senza-larghezza",
              InSvg(FiguraGiunto(senza, nullptr, {{}, {}, "ex", "min 35"}), 480, 600, "frmGiunti"));
}

TEST_F(DisegniApprovati, AltreForme) {
    const EvidenzaGiunto e{
        {{Irrigidimenti, FilaGiunto::Nessuna}, {Bulloni, FilaGiunto::Esterna}}, {}, "u", "min 20"};
    const Nodo T = NodoDisegnato(nodoT, 2, "Si");
    for (const auto& [l, h] : {std::pair{1400, 450}, {320, 900}, {260, 260}})
        Approvato("forma-" + std::to_string(l) + "x" + std::to_string(h),
                  InSvg(FiguraGiunto(T, nullptr, e), l, h, "frmGiunti"));
    for (const auto& [l, h] : {std::pair{277, 190}, {400, 277}})
        Approvato("carta-" + std::to_string(l) + "x" + std::to_string(h),
                  InSvg(DisegnoNodo(T), l, h, "frmGiunti", dispositivoStampante));
    // The sheet of the workshop chooses where its views and texts lie.
    for (const auto& [l, h] : {std::pair{500, 140}, {300, 210}, {230, 230}, {420, 420}})
        Approvato("officina-" + std::to_string(l) + "x" + std::to_string(h),
                  InSvg(DisegnoNodo(T), l, h, "frmGiunti", dispositivoStampante));
    Nodo sola;
    sola.ImpostaNodo();
    sola.CaratterizzaGiunti();
    sola.PuntatoreColonna(HEB200());
    Nodo vuoto;
    vuoto.ImpostaNodo();
    Approvato("nessun-sagomo", InSvg(FiguraGiunto(vuoto, nullptr, {}), 480, 600, "frmGiunti"));
    Approvato("sola-colonna", InSvg(FiguraGiunto(sola, nullptr, {}), 480, 600, "frmGiunti"));
}

// Beams that have no room for texts between their flanges.
TEST_F(DisegniApprovati, TraviBasse) {
    const auto bassa = [] { return Laminato("IPE 80", 80, 46, 3.8, 5.2, 5, 764, 801400); };
    const Nodo T = NodoDisegnato(nodoT, 2, "Si", false, bassa());
    const Nodo croce = NodoDisegnato(nodoCroce, 1, "Cp", true, bassa());
    Approvato("bassa-T", InSvg(DisegnoNodo(T), 190, 277, "frmGiunti", dispositivoStampante));
    Approvato("bassa-croce", InSvg(DisegnoNodo(croce), 800, 500, "frmGiunti"));
}

// As small as the windows let them become, and with a component chosen.
TEST_F(DisegniApprovati, FiguraMinimaEScelta) {
    const Nodo T = NodoDisegnato(nodoT, 2, "Si");
    const Disegno d = FiguraGiunto(T, nullptr, {});
    Approvato("figura-minima", InSvg(d, d.minima.larghezza, d.minima.altezza, "frmGiunti"));
    const auto tracciato = std::make_shared<TracciatoNodo>();
    tracciato->attivo = true;
    tracciato->scelto = {Flangia, FilaGiunto::Nessuna};
    Approvato("figura-scelta", InSvg(FiguraGiunto(T, nullptr, {}, tracciato), 480, 600, "frmGiunti"));
}

// A drawing that waits is of what was there: later changes of the node do not reach it.
TEST_F(DisegniApprovati, UnDisegnoResta) {
    const Nodo croce = NodoDisegnato(nodoCroce, 2);
    const Disegno d = DisegnoNodo(croce);
    const auto svg = [&d] { return InSvg(d, 277, 190, "frmGiunti", dispositivoStampante); };
    const std::string prima = svg();
    for (const int i : {1, 2}) {
        croce.Giunti[i].Riferimento()->bf = 120;
        croce.Giunti[i].Riferimento()->Derivati_Calcola();
    }
    croce.Colonnainf->h = 240;
    EXPECT_EQ(svg(), prima);
}

TEST_F(DisegniApprovati, Irrigidimenti) {
    for (const auto& [nome, tipo, quali] : {std::tuple{"due-travi", nodoCroce, "Si"},
                                            {"una-trave", nodoT, "Cp"},
                                            {"senza-colonna", nodoCroceSenzaColonna, "Cp"},
                                            {"angolo", nodoL, "Si"}}) {
        const Disegno d = DisegnoIrrigidimenti(IrrigidimentiNodo(NodoDisegnato(tipo, 2, quali)));
        Approvato(std::string("irrigidimenti-") + nome, InSvg(d, d.misura.larghezza, d.misura.altezza, ""));
    }
}

TEST_F(DisegniApprovati, FogliDOfficina) {
    const Nodo T = NodoDisegnato(nodoT, 2, "Si"), croce = NodoDisegnato(nodoCroce, 2, "Cp", true);
    Approvato("foglio-T", InSvg(DisegnoNodo(T), 190, 277, "frmGiunti", dispositivoStampante));
    Approvato("foglio-croce", InSvg(DisegnoNodo(croce), 277, 190, "frmGiunti", dispositivoStampante));
    Approvato("video-croce", InSvg(DisegnoNodo(croce), 900, 650, "frmGiunti"));
}

TEST_F(DisegniApprovati, CurveDelGiunto) {
    for (const bool telaio : {true, false}) {
        Nodo n = NodoDisegnato(nodoT, 2);
        n.TraveDx->McyRd = 484e3 * 235 / 1.05;
        n.TraveDx->lunghezza() = telaio ? 6 : 0;
        n.TraveDx->Mysd = telaio ? 70 : -30;
        n.ConnessioneCorrente->Criterio1 = false;
        n.EsegueCalcolo();
        ASSERT_TRUE(n.ConnessioneCorrente->Acquisito);
        Approvato(telaio ? "curva" : "curva-senza-luce",
                  InSvg(DiagrammaRigidezza(*n.ConnessioneCorrente), 440, 280, "frmGiunti"));
        n.ConnessioneCorrente->Acquisito = false;
        if (telaio)
            Approvato("curva-senza-calcolo",
                      InSvg(DiagrammaRigidezza(*n.ConnessioneCorrente), 440, 280, "frmGiunti"));
    }
}

// Names that come near each other, and a joint of less than 1 kNm.
TEST_F(DisegniApprovati, CurveAlLimite) {
    Nodo n = NodoDisegnato(nodoT, 2);
    n.TraveDx->McyRd = 484e3 * 235 / 1.05;
    n.TraveDx->lunghezza() = 2;
    n.TraveDx->Mysd = 83;
    n.ConnessioneCorrente->Criterio1 = false;
    n.EsegueCalcolo();
    Giunto& g = *n.ConnessioneCorrente;
    Approvato("curva-vicina", InSvg(DiagrammaRigidezza(g), 440, 280, "frmGiunti"));
    Approvato("curva-stretta", InSvg(DiagrammaRigidezza(g), 300, 200, "frmGiunti"));
    const Disegno d = DiagrammaRigidezza(g);
    Approvato("curva-minima", InSvg(d, d.minima.larghezza, d.minima.altezza, "frmGiunti"));
    for (double* k : {&g.MplRdGIUNTO, &g.M_elastico, &g.LimiteCerniera, &g.LimiteRigido1, &g.LimiteRigido2})
        *k /= 1000;
    for (double* k : {&g.Sj_MjRd, &g.Sj_Mela, &g.Sj_MjSd})
        *k /= 20000;
    n.TraveDx->Mysd = 0;
    Approvato("curva-piccola", InSvg(DiagrammaRigidezza(g), 440, 280, "frmGiunti"));
}

TEST_F(DisegniApprovati, Scelte) {
    for (std::int16_t tipo = 0; tipo <= 3; ++tipo) {
        const Disegno d = DisegnoTipoNodo(tipo);
        Approvato("nodo-" + std::to_string(tipo),
                  InSvg(d, d.misura.larghezza, d.misura.altezza, "frmGiunti"));
    }
    for (std::int16_t nf = 1; nf <= 2; ++nf) {
        const Disegno d = DisegnoFile(nf);
        EXPECT_EQ(d.misura.larghezza, d.misura.altezza);
        Approvato("file-" + std::to_string(nf), InSvg(d, d.misura.larghezza, d.misura.altezza, "frmGiunti"));
    }
}

} // namespace
