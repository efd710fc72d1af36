// The full road of a row: SQL query, reader, section, InizializzaSezione; against the bare initialiser on the
// same sections in the same run, which shows what the road costs.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"
#include "catalogue/RigaDoppioT.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;

namespace {

std::string TutteLeFamiglie() {
    const auto& screen = FamigliaDi("frmDoppioT");
    return ComponeQuery("frmDoppioT", {screen.fogli.begin(), screen.fogli.end()}, 0);
}

void Prepara(SezioneDoppioT& s) {
    s.fy = 355;
    s.L0y = 5000;
    s.L0z = 2500;
    s.NSd = 250000;
}

void StradaIntera(benchmark::State& state) {
    Lettore rows;
    rows.DatabaseName(std::filesystem::path(SAGOMI_BIN) / "Sagomi.xls");
    rows.RecordSource(TutteLeFamiglie());
    std::int64_t n = 0;
    for (auto _ : state) {
        rows.Refresh();
        for (; !rows.EOF_(); rows.MoveNext(), ++n) {
            SezioneDoppioT s;
            LeggeRiga(rows, s);
            Prepara(s);
            s.InizializzaSezione();
            benchmark::DoNotOptimize(s.NbyRd);
        }
    }
    state.SetItemsProcessed(n);
}
BENCHMARK(StradaIntera)->Unit(benchmark::kMillisecond);

void SoloInizializzaSezione(benchmark::State& state) {
    Lettore rows;
    rows.DatabaseName(std::filesystem::path(SAGOMI_BIN) / "Sagomi.xls");
    rows.RecordSource(TutteLeFamiglie());
    std::vector<SezioneDoppioT> sections;
    for (rows.Refresh(); !rows.EOF_(); rows.MoveNext()) {
        LeggeRiga(rows, sections.emplace_back());
        Prepara(sections.back());
    }
    std::int64_t n = 0;
    for (auto _ : state)
        for (SezioneDoppioT& s : sections) {
            s.InizializzaSezione();
            benchmark::DoNotOptimize(s.NbyRd);
            ++n;
        }
    state.SetItemsProcessed(n);
}
BENCHMARK(SoloInizializzaSezione)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
