#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "catalogue/ErroreCatalogo.h"
#include "catalogue/Valore.h"
#include "frame/LetturaFile.h"

namespace sagomi {

/// Another program has changed a workbook since it was read: nothing has been written.
class CartellaCambiata : public ErroreCatalogo {
public:
    using ErroreCatalogo::ErroreCatalogo;
};

/// A row for a sheet.
struct RigaScritta {
    std::optional<std::size_t> riga; ///< its place, counted from 0; none: behind the last row with a value
    std::vector<Valore> campi;       ///< from the first column; what lies beyond stays
};

/// What a writing has left.
struct EsitoScrittura {
    ImprontaFile impronta;          ///< the file's state
    std::vector<std::size_t> righe; ///< where the rows lie now
};

/// Puts rows into a sheet of a workbook. All other sheets and cells stay as they are, formulas as the values
/// last computed. The file is the old one or the new one, never half of it.
/// @param letta    the state in which the rows that are to be changed were read
/// @param tabella  the sheet as a query names its table: "'DoppioT Simmetrico'$"
/// Throws CartellaCambiata where the file is no longer in that state, also when it changes in the meantime;
/// ErroreCatalogo where it cannot be read or written, is open in a spreadsheet program, which has left its
/// lock beside it, has no such sheet, or where the sheet is full.
EsitoScrittura ScriveRighe(const std::filesystem::path& file, const ImprontaFile& letta,
                           std::string_view tabella, const std::vector<RigaScritta>& righe);

} // namespace sagomi
