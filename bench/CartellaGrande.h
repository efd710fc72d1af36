#pragma once

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <string>
#include <unistd.h>

#include "catalogue/Famiglie.h"
#include "catalogue/ScrittoreXls.h"

namespace sagomi::misure {

/// A workbook of two sheets of so many rows in all with the columns of a rolled section, in no order.
inline std::filesystem::path CartellaGrande(std::int64_t righe = 100'000) {
    const auto file =
        std::filesystem::temp_directory_path() / ("sagomi_grande_" + std::to_string(getpid()) + ".xls");
    const auto& headings = Intestazioni("frmDoppioT");
    CartellaDati dati;
    for (const char* name : {"IPE", "HEA"}) {
        Foglio& sheet = dati.fogli.emplace_back(Foglio{name, {}});
        for (std::size_t c = 0; c < headings.size(); ++c)
            sheet.Scrive(0, c, std::string(headings[c]));
        for (std::size_t r = 1; r <= static_cast<std::size_t>(righe) / 2; ++r) {
            sheet.Scrive(r, 0, name + std::string(" ") + std::to_string(r));
            for (std::size_t c = 1; c < headings.size(); ++c)
                sheet.Scrive(r, c, std::round(std::fmod(static_cast<double>(r * c) * 7919.0, 99991.0)) / 100);
        }
    }
    ScriveXls(dati, file);
    return file;
}

inline constexpr const char* dueFogli =
    "SELECT * FROM [IPE$] UNION SELECT * FROM [HEA$] ORDER BY [Wy (cm3)] ASC";

} // namespace sagomi::misure
