#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace sagomi::prove {

/// A file in a folder of its own that goes with the run.
class FileDiProva {
public:
    explicit FileDiProva(const char* nome) {
        std::string modello = (std::filesystem::temp_directory_path() / "sagomi_fuzz_XXXXXX").string();
        cartella = mkdtemp(modello.data());
        percorso = cartella / nome;
    }
    ~FileDiProva() {
        std::error_code errore;
        std::filesystem::remove_all(cartella, errore);
    }
    FileDiProva(const FileDiProva&) = delete;
    FileDiProva& operator=(const FileDiProva&) = delete;

    void Scrive(const std::uint8_t* data, std::size_t size) const {
        std::ofstream(percorso, std::ios::binary) << std::string(data, data + size);
    }

    std::filesystem::path cartella, percorso;
};

} // namespace sagomi::prove
