#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <vector>

#include "catalogue/FoglioDati.h"

namespace sagomi {

/// Writes a workbook of the format of Excel 97 (BIFF8, ".xls"): every sheet and every cell value, heading
/// rows in bold and kept in place, columns as wide as what they hold. A CartellaDati that LeggeXls gave comes
/// back from the file as it was. Numbers that are no numbers (infinite, NaN) and empty texts become empty
/// cells.
///
/// The file is written beside its final name, flushed to the disk and renamed: it is the old one or the new
/// one, never half of it.
/// Throws ErroreCatalogo for a workbook that the format cannot hold (no sheet, a sheet's name that is empty,
/// longer than 31 characters, used twice or with one of \ / ? * [ ] :, more than 65536 rows or 256 columns, a
/// text of more than 32767 characters) and for a file that cannot be written.
/// @param ancora  asked last, as FileAtomico does; a throw comes through
void ScriveXls(const CartellaDati& cartella, const std::filesystem::path& file,
               const std::function<bool()>& ancora = {});

/// The "Workbook" stream alone, without its container. Throws std::length_error or std::invalid_argument for
/// what the format cannot hold.
std::vector<std::uint8_t> ComponeBiff(const CartellaDati& cartella);

} // namespace sagomi
