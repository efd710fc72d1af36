#pragma once

// One kind of file: read and written as the program does it, against the same bytes read and written as they
// stand, and against the bytes written as safely (beside the old file, flushed to the disk, renamed). Waiting
// for the disk is in no figure: CPU time counts.

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "frame/FileAtomico.h"

namespace sagomi::misure {

constexpr int volte =
    200; ///< a written file is flushed: the number of runs is not left to the time they take

using SulFile = std::function<bool(const std::filesystem::path&)>;

struct GenereFile {
    std::string nome;
    std::filesystem::path file; ///< one of the kind; of a kind that is only written it is made first
    SulFile legge;              ///< none for a kind that the program only writes
    SulFile scrive;             ///< none for a kind that it only reads
};

inline std::string Byte(const std::filesystem::path& file) {
    std::ostringstream letti;
    letti << std::ifstream(file, std::ios::binary).rdbuf();
    return std::move(letti).str();
}

/// Runs something on a file many times, after a first time that must succeed.
inline void Misura(const std::string& nome, const SulFile& fa, const std::filesystem::path& file) {
    const auto esegue = [fa, file](benchmark::State& state) {
        if (!fa(file))
            state.SkipWithError("the file cannot be read or written");
        for (auto _ : state)
            benchmark::DoNotOptimize(fa(file));
    };
    benchmark::RegisterBenchmark(nome.c_str(), esegue)->Unit(benchmark::kMicrosecond)->Iterations(volte);
}

inline bool ScriveByte(const std::filesystem::path& file, const std::string& byte) {
    return static_cast<bool>(std::ofstream(file, std::ios::binary) << byte);
}

/// @param cartella  for what is written
inline void Registra(const GenereFile& genere, const std::filesystem::path& cartella) {
    if (genere.legge) {
        Misura("Legge_" + genere.nome, genere.legge, genere.file);
        Misura(
            "SoloLegge_" + genere.nome, [](const auto& file) { return !Byte(file).empty(); }, genere.file);
    }
    if (!genere.scrive)
        return;
    const std::filesystem::path scritto = cartella / ("scritto_" + genere.nome);
    if (genere.legge)
        genere.legge(genere.file); // what is written then
    genere.scrive(scritto);
    const std::string byte = Byte(genere.legge ? genere.file : scritto);
    const std::filesystem::path copia = cartella / ("copia_" + genere.nome);
    Misura("Scrive_" + genere.nome, genere.scrive, scritto);
    Misura(
        "SoloScrive_" + genere.nome, [byte](const auto& file) { return ScriveByte(file, byte); }, copia);
    Misura(
        "Salva_" + genere.nome, [byte](const auto& file) { return ScriveAtomico(file, byte); }, copia);
}

/// A folder for what is written, gone with the program.
class CartellaMisure {
public:
    CartellaMisure()
        : percorso(std::filesystem::temp_directory_path() / ("sagomi_file_" + std::to_string(getpid()))) {
        std::filesystem::create_directory(percorso);
    }
    ~CartellaMisure() {
        std::error_code errore;
        std::filesystem::remove_all(percorso, errore);
    }
    CartellaMisure(const CartellaMisure&) = delete;
    CartellaMisure& operator=(const CartellaMisure&) = delete;

    const std::filesystem::path percorso;
};

} // namespace sagomi::misure
