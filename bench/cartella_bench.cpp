// The workbook: read whole against freexl on the same file in the same run, one sheet of it for a first
// query, a Refresh while it is held; and two sheets of 600 to 50,000 rows, started with and sorted.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "CartellaGrande.h"
#include "CelleFreexl.h"
#include "catalogue/CartellaXls.h"
#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"

using namespace sagomi;
using misure::CartellaGrande;
using misure::dueFogli;

namespace {

const std::filesystem::path workbook = std::filesystem::path(SAGOMI_BIN) / "Sagomi.xls";

void FreexlIntera(benchmark::State& state) {
    for (auto _ : state)
        CelleFreexl(workbook);
}
BENCHMARK(FreexlIntera)->Unit(benchmark::kMicrosecond);

void CartellaIntera(benchmark::State& state) {
    for (auto _ : state) {
        CartellaXls cartella(workbook);
        for (std::size_t i = 0; i < cartella.Fogli(); ++i) {
            const FoglioLetto foglio = cartella.Legge(i);
            for (std::size_t r = 0; r < foglio.Righe(); ++r)
                for (std::size_t c = 0; c < foglio.Colonne(); ++c)
                    benchmark::DoNotOptimize(foglio.Cella(r, c));
        }
    }
}
BENCHMARK(CartellaIntera)->Unit(benchmark::kMicrosecond);

void CartellaEUnFoglio(benchmark::State& state) {
    for (auto _ : state) {
        CartellaXls cartella(workbook);
        benchmark::DoNotOptimize(cartella.Legge(3));
    }
}
BENCHMARK(CartellaEUnFoglio)->Unit(benchmark::kMicrosecond);

std::string TutteLeFamiglie(int ordine) {
    const auto& screen = FamigliaDi("frmDoppioT");
    return ComponeQuery("frmDoppioT", {screen.fogli.begin(), screen.fogli.end()}, ordine);
}

void PrimaQuery(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(Catalogo(workbook).Esegue(FamigliaDi("frmDoppioT").primaQuery));
}
BENCHMARK(PrimaQuery)->Unit(benchmark::kMicrosecond);

/// A key for another order with all 792 rows.
void RefreshTenuto(benchmark::State& state) {
    Lettore rows;
    rows.DatabaseName(workbook);
    int order = 0;
    for (auto _ : state) {
        rows.RecordSource(TutteLeFamiglie(order++ % 3));
        rows.Refresh();
    }
}
BENCHMARK(RefreshTenuto)->Unit(benchmark::kMicrosecond);

void Righe(benchmark::internal::Benchmark* b) { b->Arg(1'200)->Arg(10'000)->Arg(100'000); }

void GrandeInizio(benchmark::State& state) {
    const auto file = CartellaGrande(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(Catalogo(file).Esegue(dueFogli));
    std::filesystem::remove(file);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(GrandeInizio)->Apply(Righe)->Unit(benchmark::kMillisecond)->Complexity();

void GrandeFreexl(benchmark::State& state) {
    const auto file = CartellaGrande(state.range(0));
    for (auto _ : state)
        CelleFreexl(file);
    std::filesystem::remove(file);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(GrandeFreexl)->Apply(Righe)->Unit(benchmark::kMillisecond)->Complexity();

void GrandeOrdine(benchmark::State& state) {
    Lettore rows;
    const auto file = CartellaGrande();
    rows.DatabaseName(file);
    int order = 0;
    for (auto _ : state) {
        rows.RecordSource(ComponeQuery("frmDoppioT", {"IPE", "HEA"}, order++ % 3));
        rows.Refresh();
    }
    std::filesystem::remove(file);
}
BENCHMARK(GrandeOrdine)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
