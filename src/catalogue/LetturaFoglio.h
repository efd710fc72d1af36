#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "catalogue/FoglioLetto.h"
#include "catalogue/LimitiXls.h"
#include "catalogue/TestaXls.h"

namespace sagomi {

/// What may still be taken of a workbook, or what has been.
struct MisuraCelle {
    std::size_t celle = 0;
    std::size_t testo = 0; ///< bytes of the cells' texts, a shared one counted in each cell
};

inline constexpr MisuraCelle massimaMisura{massimeCelle, massimoTestoCelle};

/// Reads the cells of one sheet from the stream of a workbook: numbers, texts, dates, logical values as 1 and
/// 0, of formulas the value last computed; errors count as empty. Sheets of charts and charts inside sheets
/// have no cells.
/// @param resta  what it may have; what it has is taken off
/// Throws DannoBiff when the sheet is damaged or has a cell outside the columns of the format,
/// std::runtime_error when it has more than it may.
FoglioLetto LeggeFoglio(std::span<const std::uint8_t> flusso, const TestaXls& testa, std::size_t indice,
                        MisuraCelle& resta);

} // namespace sagomi
