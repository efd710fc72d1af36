// The whole catalogue checked for one set of forces, against the bare initialiser on the same sections in the
// same run: what the checks and their verdicts cost beyond it.

#include <benchmark/benchmark.h>

#include <vector>

#include "choice/Scelta.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

std::vector<SagomoInGara> DoppiT() {
    std::vector<SagomoInGara> some;
    for (SagomoInGara& s : LeggeGara(SAGOMI_BIN).sagomi)
        if (std::holds_alternative<SezioneDoppioT>(s.sezione))
            some.push_back(std::move(s));
    return some;
}

Richiesta Forze() {
    Richiesta r;
    r.TipoAcciaio = NomeAcciaio[3];
    r.fy = fyAcciaio[3];
    r.fu = fuAcciaio[3];
    r.NSd = 250e3;
    r.y.M1 = 60e6;
    r.z.M1 = 5e6;
    r.L0y = 5000;
    r.L0z = 2500;
    return r;
}

void Scelta(benchmark::State& state) {
    ImpostaGamma();
    const std::vector<SagomoInGara> sagomi = DoppiT();
    const Richiesta forze = Forze();
    std::int64_t n = 0;
    for (auto _ : state) {
        std::vector<std::string> messaggi;
        std::vector<RigaScelta> righe = Valuta(sagomi, forze, {}, messaggi);
        OrdinaPerPeso(righe);
        benchmark::DoNotOptimize(righe.data());
        n += static_cast<std::int64_t>(righe.size());
    }
    state.SetItemsProcessed(n);
}
BENCHMARK(Scelta)->Unit(benchmark::kMillisecond);

void SoloInizializzaSezione(benchmark::State& state) {
    ImpostaGamma();
    const std::vector<SagomoInGara> sagomi = DoppiT();
    const Richiesta forze = Forze();
    std::int64_t n = 0;
    for (auto _ : state)
        for (const SagomoInGara& sagomo : sagomi) {
            SezioneDoppioT s = std::get<SezioneDoppioT>(sagomo.sezione);
            s.fy = forze.fy;
            s.NSd = forze.NSd;
            s.L0y = forze.L0y;
            s.L0z = forze.L0z;
            s.InizializzaSezione();
            benchmark::DoNotOptimize(s.NbyRd);
            ++n;
        }
    state.SetItemsProcessed(n);
}
BENCHMARK(SoloInizializzaSezione)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
