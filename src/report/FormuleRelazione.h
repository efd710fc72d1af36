#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sagomi {

/// What the file of formulas says of a quantity of a joint, in the markup of reports.
struct FormulaQuantita {
    std::string simbolo;
    std::string descrizione;
    std::string formula; ///< lines of formulas; empty where the block has none
};

/// Reads the block of a quantity.
/// @param rtf  bytes of the file of formulas (FormuleGiunto.h)
/// @param id   of the quantity, as "k6"
/// @return none where the file has no such block
[[nodiscard]] std::optional<FormulaQuantita> FormulaDi(std::string_view rtf, std::string_view id);

} // namespace sagomi
