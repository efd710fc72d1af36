// Reading and writing each kind of file, against reading and writing the same bytes in the same run. The
// program checks what it reads and writes beside the old file; the peer does neither. Waiting for the disk is
// in no figure: CPU time counts.

#include <benchmark/benchmark.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "catalogue/LettoreXls.h"
#include "catalogue/ScrittoreXls.h"
#include "composite/AcciaioCls.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "joints/Nodo.h"

namespace fs = std::filesystem;
using namespace sagomi;

namespace {

constexpr int volte =
    200; ///< a written file is flushed: the number of runs is not left to the time they take

/// One kind of file: a file of it, and how the program reads and writes it.
struct Genere {
    std::string nome;
    fs::path file;
    std::function<bool(const fs::path&)> legge, scrive;
};

std::string Byte(const fs::path& file) {
    std::ostringstream letti;
    letti << std::ifstream(file, std::ios::binary).rdbuf();
    return std::move(letti).str();
}

/// Runs something on an opened data file and closes it.
bool Aperto(const fs::path& file, std::string_view modo, const std::function<bool(std::int16_t)>& fa) {
    const std::int16_t n = ApreFile(file, modo);
    const bool riuscito = n != 0 && fa(n);
    return n != 0 && ChiudeFile(n) && riuscito;
}

Genere Cartella() {
    static CartellaDati dati;
    return {"workbook", fs::path(SAGOMI_BIN) / "Sagomi.xls",
            [](const fs::path& file) { return !(dati = LeggeXls(file)).fogli.empty(); },
            [](const fs::path& file) { return ScriveXls(dati, file), true; }};
}

Genere FileGiunto() {
    static Nodo nodo;
    return {"joint", fs::path(SAGOMI_TEST_FILES) / "fuzz/corpus/nodo/due_due_file",
            [](const fs::path& file) {
                return Aperto(file, "L", [](std::int16_t n) { return nodo.AperturaFile(n); });
            },
            [](const fs::path& file) {
                return Aperto(file, "S", [](std::int16_t n) { return nodo.Input_Output("S", n); });
            }};
}

Genere FileTrave() {
    static AcciaioCls trave;
    return {"beam", fs::path(SAGOMI_TEST_FILES) / "data/composite/piena.sco",
            [](const fs::path& file) {
                return Aperto(file, "L", [](std::int16_t n) { return trave.FileLeggeScrive("L", n); });
            },
            [](const fs::path& file) {
                return Aperto(file, "S", [](std::int16_t n) { return trave.FileLeggeScrive("S", n); });
            }};
}

/// The settings have one place: the folder of the program.
Genere FileImpostazioni(const fs::path& cartella) {
    PathProgramma = cartella;
    IniLeggeScrive("S");
    return {"settings", cartella / "Sagomi.ini", [](const fs::path&) { return IniLeggeScrive("L"); },
            [](const fs::path&) { return IniLeggeScrive("S"); }};
}

void Legge(benchmark::State& state, const Genere& genere) {
    if (!genere.legge(genere.file))
        state.SkipWithError("the file cannot be read");
    for (auto _ : state)
        benchmark::DoNotOptimize(genere.legge(genere.file));
}

void SoloLegge(benchmark::State& state, const Genere& genere) {
    for (auto _ : state)
        benchmark::DoNotOptimize(Byte(genere.file));
}

void Scrive(benchmark::State& state, const Genere& genere, const fs::path& scritto) {
    if (!genere.legge(genere.file) || !genere.scrive(scritto))
        state.SkipWithError("the file cannot be written");
    for (auto _ : state)
        benchmark::DoNotOptimize(genere.scrive(scritto));
}

void SoloScrive(benchmark::State& state, const Genere& genere, const fs::path& copia) {
    const std::string byte = Byte(genere.file);
    for (auto _ : state)
        std::ofstream(copia, std::ios::binary) << byte;
}

void Registra(const Genere& genere, const fs::path& cartella) {
    const fs::path scritto = cartella / ("scritto_" + genere.nome);
    const fs::path copia = cartella / ("copia_" + genere.nome);
    const auto misura = [](const std::string& nome, auto fa) {
        benchmark::RegisterBenchmark(nome.c_str(), fa)->Unit(benchmark::kMicrosecond)->Iterations(volte);
    };
    misura("Legge_" + genere.nome, [genere](benchmark::State& s) { Legge(s, genere); });
    misura("SoloLegge_" + genere.nome, [genere](benchmark::State& s) { SoloLegge(s, genere); });
    misura("Scrive_" + genere.nome, [=](benchmark::State& s) { Scrive(s, genere, scritto); });
    misura("SoloScrive_" + genere.nome, [=](benchmark::State& s) { SoloScrive(s, genere, copia); });
}

} // namespace

int main(int argc, char** argv) {
    const fs::path cartella = fs::temp_directory_path() / ("sagomi_file_" + std::to_string(getpid()));
    fs::create_directory(cartella);
    ImpostaGamma();
    for (const Genere& genere : {Cartella(), FileGiunto(), FileTrave(), FileImpostazioni(cartella)})
        Registra(genere, cartella);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    fs::remove_all(cartella);
}
