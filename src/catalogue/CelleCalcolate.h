#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "catalogue/FoglioDati.h"
#include "catalogue/LetturaBiff.h"

namespace sagomi {

/// A cell whose contents the reading library does not give, or gives wrong.
struct CellaCalcolata {
    std::string foglio; ///< name of the sheet
    std::size_t riga = 0, colonna = 0;
    Valore valore; ///< a formula's value when the file was saved; empty for an error
};

/// The cells with formulas, and those with errors, of all sheets: the reading library passes formulas over
/// and takes errors for numbers.
/// @param record  of a workbook that VerificaXls has passed
/// Throws std::runtime_error when a text is cut short.
std::vector<CellaCalcolata> CelleCalcolate(const std::vector<RecordLetto>& record);

} // namespace sagomi
