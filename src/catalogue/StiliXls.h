#pragma once

#include <cstddef>
#include <vector>

#include "catalogue/FoglioDati.h"
#include "catalogue/RecordBiff.h"

namespace sagomi {

/// Cell styles of the workbooks written, by their number in the file (XF). The first 15 belong to the format.
enum class StileXls : unsigned {
    Generale = 15,     ///< texts, and numbers as they come
    Intestazione = 16, ///< bold on grey, centred, with a line below
    Decimali0 = 17,    ///< numbers of a column to the same count of decimals, 0 to 4
    Decimali4 = 21,
    Data = 22,
    DataOra = 23,
    Ora = 24
};

/// Appends fonts, number formats, cell styles and the named style that they hang on.
void ScriveStili(FlussoBiff& flusso);

/// True when the first row holds headings: texts, and nothing else.
bool HaIntestazione(const Foglio& foglio);

/// How a column looks.
struct ColonnaXls {
    StileXls numeri = StileXls::Generale; ///< of its plain numbers
    unsigned larghezza = 0;               ///< in 256ths of a character
};

/// Looks of all columns of a sheet, from what they hold. Weights, lengths and areas show as many decimals as
/// the longest of the column has; inertias and moduli, which go over many powers of ten, show as they come.
std::vector<ColonnaXls> Colonne(const Foglio& foglio);

/// The style of one cell.
StileXls StileCella(const Cella& cella, bool intestazione, const ColonnaXls& colonna);

} // namespace sagomi
