// The workbook: read whole against freexl on the same file in the same run, one sheet of it for a first
// query, a Refresh while it is held; and two sheets of 50,000 rows, started with and sorted.

#include <benchmark/benchmark.h>
#include <freexl.h>

#include <cmath>
#include <filesystem>
#include <string>

#include "catalogue/CartellaXls.h"
#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"
#include "catalogue/ScrittoreXls.h"

using namespace sagomi;

namespace {

const std::filesystem::path workbook = std::filesystem::path(SAGOMI_BIN) / "Sagomi.xls";

void FreexlIntera(benchmark::State& state) {
    for (auto _ : state) {
        const void* handle = nullptr;
        freexl_open(workbook.c_str(), &handle);
        unsigned sheets = 0;
        freexl_get_info(handle, FREEXL_BIFF_SHEET_COUNT, &sheets);
        for (unsigned short i = 0; i < sheets; ++i) {
            freexl_select_active_worksheet(handle, i);
            unsigned rows = 0;
            unsigned short columns = 0;
            freexl_worksheet_dimensions(handle, &rows, &columns);
            for (unsigned r = 0; r < rows; ++r)
                for (unsigned short c = 0; c < columns; ++c) {
                    FreeXL_CellValue v{};
                    freexl_get_cell_value(handle, r, c, &v);
                    benchmark::DoNotOptimize(v);
                }
        }
        freexl_close(handle);
    }
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

/// Two sheets of 50,000 rows with the columns of a rolled section, in no order.
std::filesystem::path CartellaGrande() {
    const auto file = std::filesystem::temp_directory_path() / "sagomi_grande.xls";
    const auto& headings = Intestazioni("frmDoppioT");
    CartellaDati dati;
    for (const char* name : {"IPE", "HEA"}) {
        Foglio& sheet = dati.fogli.emplace_back(Foglio{name, {}});
        for (std::size_t c = 0; c < headings.size(); ++c)
            sheet.Scrive(0, c, std::string(headings[c]));
        for (std::size_t r = 1; r <= 50'000; ++r) {
            sheet.Scrive(r, 0, name + std::string(" ") + std::to_string(r));
            for (std::size_t c = 1; c < headings.size(); ++c)
                sheet.Scrive(r, c, std::round(std::fmod(static_cast<double>(r * c) * 7919.0, 99991.0)) / 100);
        }
    }
    ScriveXls(dati, file);
    return file;
}

const std::string dueFogli = "SELECT * FROM [IPE$] UNION SELECT * FROM [HEA$] ORDER BY [Wy (cm3)] ASC";

void GrandeInizio(benchmark::State& state) {
    const auto file = CartellaGrande();
    for (auto _ : state)
        benchmark::DoNotOptimize(Catalogo(file).Esegue(dueFogli));
    std::filesystem::remove(file);
}
BENCHMARK(GrandeInizio)->Unit(benchmark::kMillisecond);

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
