#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/FoglioDati.h"
#include "catalogue/RecordBiff.h"

namespace sagomi::prove {

/// A sheet from its rows; {} is an empty cell.
inline Foglio FoglioDi(std::string nome, std::initializer_list<std::vector<Valore>> righe) {
    Foglio f{std::move(nome), {}};
    std::size_t r = 0;
    for (const auto& riga : righe) {
        f.righe.emplace_back();
        for (std::size_t c = 0; c < riga.size(); ++c)
            f.Scrive(r, c, riga[c]);
        ++r;
    }
    return f;
}

/// One record of a stream, read back without the writer.
struct RecordProva {
    std::uint32_t posizione;
    unsigned genere;
    std::vector<std::uint8_t> corpo;

    [[nodiscard]] unsigned U16(std::size_t i) const { return corpo.at(i) | unsigned(corpo.at(i + 1)) << 8U; }
    [[nodiscard]] std::uint32_t U32(std::size_t i) const { return U16(i) | std::uint32_t(U16(i + 2)) << 16U; }
    [[nodiscard]] bool E(Biff b) const { return genere == static_cast<unsigned>(b); }
};

/// All records of a stream up to the filling at its end.
inline std::vector<RecordProva> LeggeRecord(const std::vector<std::uint8_t>& flusso) {
    std::vector<RecordProva> letti;
    for (std::size_t i = 0; i + 4 <= flusso.size();) {
        const unsigned genere = flusso[i] | unsigned(flusso[i + 1]) << 8U;
        const std::size_t n = flusso[i + 2] | std::size_t(flusso[i + 3]) << 8U;
        if (genere == 0 && n == 0)
            break;
        const auto da = flusso.begin() + static_cast<std::ptrdiff_t>(i + 4);
        letti.push_back({static_cast<std::uint32_t>(i), genere, {da, da + static_cast<std::ptrdiff_t>(n)}});
        i += 4 + n;
    }
    return letti;
}

} // namespace sagomi::prove
