#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "frame/Numeri.h"

namespace sagomi::prove {

/// The separators of some system, while it lives.
class ConSeparatori {
public:
    ConSeparatori(char16_t decimale, char16_t migliaia) {
        CarDecimale = decimale;
        CarMigliaia = migliaia;
    }
    ~ConSeparatori() {
        CarDecimale = decimale_;
        CarMigliaia = migliaia_;
        SeparatoriOk = ok_;
    }
    ConSeparatori(const ConSeparatori&) = delete;
    ConSeparatori& operator=(const ConSeparatori&) = delete;

private:
    std::uint16_t decimale_ = CarDecimale;
    std::uint16_t migliaia_ = CarMigliaia;
    bool ok_ = SeparatoriOk;
};

/// An empty folder that goes with its contents.
class CartellaDiProva {
public:
    CartellaDiProva() {
        std::string nome = (std::filesystem::temp_directory_path() / "sagomi_XXXXXX").string();
        percorso = mkdtemp(nome.data());
    }
    ~CartellaDiProva() {
        std::error_code errore;
        std::filesystem::remove_all(percorso, errore);
    }
    CartellaDiProva(const CartellaDiProva&) = delete;
    CartellaDiProva& operator=(const CartellaDiProva&) = delete;

    /// How many files and folders lie in it.
    [[nodiscard]] long Voci() const {
        return std::distance(std::filesystem::directory_iterator(percorso),
                             std::filesystem::directory_iterator());
    }

    std::filesystem::path percorso;
};

inline void ScriveByte(const std::filesystem::path& percorso, std::string_view byte) {
    std::ofstream(percorso, std::ios::binary) << byte;
}

inline std::string LeggeByte(const std::filesystem::path& percorso) {
    std::ifstream flusso(percorso, std::ios::binary);
    return {std::istreambuf_iterator<char>(flusso), std::istreambuf_iterator<char>()};
}

} // namespace sagomi::prove
