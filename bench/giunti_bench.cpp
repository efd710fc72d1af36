// The search of a joint's design: candidates a second, and the accurate two-row search on IPE 600 / HE 400 B
// against (a) the same check called through the public operations for each of its candidates and (b)
// exhaustive enumeration of the same space on a coarse grid. Each peer reports the moment that it finds.

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "frame/Messaggi.h"
#include "joints/Nodo.h"
#include "joints/OsservatoreProgetto.h"
#include "joints/Sezioni.h"

using namespace sagomi;

namespace {

/// IPE 600 on HE 400 B, accurate, tf_max 40, L_max 200.
Nodo NodoDiProva(std::int16_t nf, const std::string& irrigidimenti) {
    Nodo n;
    n.ImpostaNodo();
    n.Tipovie = nodoT;
    n.NumeroGiunti = 1;
    n.CaratterizzaGiunti();
    n.TraveDx = prove::IPE600();
    n.Colonnainf = prove::HEB400();
    n.Colonnainf->McyRd = 3232000 * 235 / 1.05;
    Giunto& g = *n.ConnessioneCorrente;
    g.nf = nf;
    g.Irrigidimenti = irrigidimenti;
    g.tf_max = 40;
    g.L_max = 200;
    g.u_max = 40;
    g.TipoProgetto = 1;
    return n;
}

struct Parametri {
    std::int16_t bullone;
    double tf, bf, ef, ex, L, d2, u;
};

/// Keeps every candidate of a search.
struct Elenco : OsservatoreProgetto {
    void Candidato(const Giunto& g) override {
        candidati.push_back({g.IndiceBullone(), g.tf, g.bf, g.ef, g.ex, g.L, g.d2, g.u});
    }
    std::vector<Parametri> candidati;
};

struct Conta : OsservatoreProgetto {
    void Candidato(const Giunto&) override { ++candidati; }
    std::int64_t candidati = 0;
};

void Pone(Giunto& g, const Parametri& p) {
    g.IndiceBullone(p.bullone);
    g.tf = p.tf;
    g.bf = p.bf;
    g.ef = p.ef;
    g.ex = p.ex;
    g.L = p.L;
    g.d2 = p.d2;
    g.u = p.u;
    g.Derivati_Calcola();
}

/// The moment of one candidate by the public operations, without the texts of a whole check.
double MomentoDi(Giunto& g, const Parametri& p) {
    Pone(g, p);
    g.RottureAlaColonna_Calcola();
    g.RottureFlangia_Calcola();
    g.FtRd_EfficaciFile_Calcola();
    g.FtRdAnimaColonna_Calcola(g.nf);
    g.FcRdAnimaColonna_Calcola();
    g.NbRdAnimaColonna_Calcola();
    g.VplRdPannello_Calcola(g.Beta);
    g.RDebole_Calcola();
    g.Mrd_Giunto_CompletaCalcolo();
    return g.MplRdGIUNTO;
}

/// The joint as a search has it when it starts: sections, welds, Beta.
std::shared_ptr<Giunto> Preparato(const Nodo& n) {
    Nodo copia = n;
    copia.ConnessioneCorrente = n.ConnessioneCorrente->CopiaDiLavoro();
    Giunto& g = *copia.ConnessioneCorrente;
    g.Kfc_Calcola();
    g.Kwc_Calcola();
    return copia.ConnessioneCorrente;
}

void Ricerca(benchmark::State& stato, std::int16_t nf, const std::string& irrigidimenti) {
    const MessaggiTaciuti taciuti;
    Nodo n = NodoDiProva(nf, irrigidimenti);
    (void)n.EsegueCalcolo();
    Giunto& g = *n.ConnessioneCorrente;
    Conta conta;
    for (auto _ : stato) {
        g.tf = g.u = 0;
        benchmark::DoNotOptimize(g.Mrd_Giunto_Ottimizza_M_MAX(&conta));
    }
    g.Mrd_Giunto_Calcola();
    stato.counters["candidates/s"] = benchmark::Counter(double(conta.candidati), benchmark::Counter::kIsRate);
    stato.counters["candidates"] = double(conta.candidati) / double(stato.iterations());
    stato.counters["kNm"] = g.MplRdGIUNTO;
}

/// Peer (a).
void OperazioniPubbliche(benchmark::State& stato) {
    const MessaggiTaciuti taciuti;
    Nodo n = NodoDiProva(2, "No");
    Elenco elenco;
    (void)n.EsegueCalcolo(&elenco);
    const auto g = Preparato(n);
    double massimo = 0;
    for (auto _ : stato)
        for (const Parametri& p : elenco.candidati)
            massimo = std::max(massimo, MomentoDi(*g, p));
    const double quanti = double(elenco.candidati.size());
    stato.counters["candidates/s"] =
        benchmark::Counter(quanti, benchmark::Counter::kIsIterationInvariantRate);
    stato.counters["candidates"] = quanti;
    stato.counters["kNm"] = massimo;
}

/// The space of the search on a grid: width and extension by 10 mm, edge distance by 5, thickness by 3.
double Griglia(Giunto& g, std::int64_t& quanti) {
    double massimo = 0;
    Parametri p{};
    const double Lmin = g.LMin_Calcola().value_or(0);
    for (p.bf = ParteIntera(g.Trave->b); p.bf <= 300; p.bf += 10)
        for (p.L = Lmin; p.L <= 200; p.L += 10)
            for (p.bullone = 1; p.bullone <= 22; ++p.bullone) {
                g.bf = p.bf;
                g.L = p.L;
                if (p.bullone > g.IndiceBulloneMaxGiunto_Calcola())
                    break;
                g.IndiceBullone(p.bullone);
                p.ex = g.exMin_Calcola();
                p.d2 = g.d2Min_Calcola();
                for (p.ef = g.efmin_Ricerca(); p.ef <= g.efMax_Calcola(); p.ef += 5)
                    for (p.tf = 1; p.tf <= 40; p.tf += 3) {
                        p.u = std::min(ArrotondaSu(1.4142135623731 * g.Af + p.tf), g.u_max);
                        massimo = std::max(massimo, MomentoDi(g, p));
                        ++quanti;
                    }
            }
    return massimo;
}

/// Peer (b).
void Esauriente(benchmark::State& stato) {
    const MessaggiTaciuti taciuti;
    Nodo n = NodoDiProva(2, "No");
    (void)n.EsegueCalcolo();
    const auto g = Preparato(n);
    coefficientiProgetto.Imposta();
    std::int64_t quanti = 0;
    double massimo = 0;
    for (auto _ : stato)
        massimo = std::max(massimo, Griglia(*g, quanti));
    coefficientiRiposo.Imposta();
    stato.counters["candidates/s"] = benchmark::Counter(double(quanti), benchmark::Counter::kIsRate);
    stato.counters["candidates"] = double(quanti) / double(stato.iterations());
    stato.counters["kNm"] = massimo;
}

} // namespace

BENCHMARK_CAPTURE(Ricerca, accurata_2_file, 2, "No")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Ricerca, accurata_2_file_irrigidita, 2, "Si")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Ricerca, accurata_1_fila, 1, "No")->Unit(benchmark::kMillisecond);
BENCHMARK(OperazioniPubbliche)->Unit(benchmark::kMillisecond);
BENCHMARK(Esauriente)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
