#pragma once

#include <cstddef>
#include <cstdint>

#include "catalogue/FoglioDati.h"
#include "catalogue/LimitiXls.h"
#include "catalogue/RecordBiff.h"
#include "catalogue/TabellaStringhe.h"

namespace sagomi {

/// Appends one sheet to the stream: page set-up, column widths, rows and cells, and a view whose heading row,
/// where there is one, stays in place. A number that is no number (infinite, NaN) leaves its cell empty.
/// @param stringhe  has collected the sheet's texts
/// @param attivo    the sheet that shows when the workbook is opened
/// @return position of the sheet in the stream
std::uint32_t ScriveFoglio(FlussoBiff& flusso, const Foglio& foglio, const TabellaStringhe& stringhe,
                           bool attivo);

} // namespace sagomi
