// A page of the table of sections, from the key to the painted rows, at 1,200 to 100,000 rows; peer: the
// toolkit's own table over the same model, in the same run. Median and 99th percentile of a
// page, CPU time.

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <memory>
#include <vector>

#include "CartellaGrande.h"
#include "catalogue/ui/GrigliaCatalogo.h"
#include "catalogue/ui/LettoreDati.h"
#include "frame/Messaggi.h"
#include "screens/GeneraleSchermi.h"

using namespace sagomi;

namespace {

constexpr int pagine = 500;

std::unique_ptr<LettoreDati> Righe(std::int64_t quante) {
    const auto file = misure::CartellaGrande(quante);
    auto lettore = std::make_unique<LettoreDati>();
    lettore->DatabaseName(file);
    lettore->RecordSource(misure::dueFogli);
    lettore->Refresh();
    std::filesystem::remove(file);
    return lettore;
}

void Mostra(QTableView& tabella) {
    tabella.resize(1000, 500);
    tabella.show();
    (void)QTest::qWaitForWindowExposed(&tabella);
}

/// Of all threads: the toolkit paints with several, and other programs do not count.
double MillisecondiCpu() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

double Quantile(std::vector<double>& tempi, double q) {
    std::ranges::sort(tempi);
    return tempi[static_cast<std::size_t>(static_cast<double>(tempi.size() - 1) * q)];
}

/// Goes down by pages, from the top again where the end is reached.
void Sfoglia(benchmark::State& state, QTableView& tabella) {
    QScrollBar& barra = *tabella.verticalScrollBar();
    std::vector<double> tempi;
    for (auto _ : state) {
        const double inizio = MillisecondiCpu();
        if (barra.value() == barra.maximum())
            barra.setValue(0);
        else
            barra.triggerAction(QAbstractSlider::SliderPageStepAdd);
        tabella.viewport()->repaint();
        tempi.push_back(MillisecondiCpu() - inizio);
    }
    state.counters["p50_ms"] = Quantile(tempi, 0.5);
    state.counters["p99_ms"] = Quantile(tempi, 0.99);
}

void PaginaGriglia(benchmark::State& state) {
    const auto lettore = Righe(state.range(0));
    GrigliaCatalogo griglia;
    griglia.Collega(lettore.get());
    griglia.FormatoGriglia(lettore->Recordset().Campi() - 1);
    Mostra(griglia);
    Sfoglia(state, griglia);
}

void PaginaTabella(benchmark::State& state) {
    const auto lettore = Righe(state.range(0));
    QTableView tabella;
    tabella.setModel(lettore->Modello());
    tabella.setSelectionBehavior(QAbstractItemView::SelectRows);
    Mostra(tabella);
    Sfoglia(state, tabella);
}

void Quante(benchmark::internal::Benchmark* b) {
    b->Arg(1'200)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(pagine);
}
BENCHMARK(PaginaGriglia)->Apply(Quante);
BENCHMARK(PaginaTabella)->Apply(Quante);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    PreparaApplicazione();
    CollegaMessaggi({}); // nobody is there to press OK
    benchmark::RunSpecifiedBenchmarks();
}
