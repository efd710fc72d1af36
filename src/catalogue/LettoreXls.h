#pragma once

#include <filesystem>

#include "catalogue/FoglioDati.h"

namespace sagomi {

/// Reads a workbook of the format of Excel 97 to 2003 (".xls"), by whatever program it was saved: every sheet
/// with its numbers, texts, dates and, of formulas, the values last computed. Errors in cells count as empty;
/// logical values are 1 and 0.
/// Throws ErroreCatalogo when the file is missing, is no such workbook, is damaged or has no sheet.
CartellaDati LeggiXls(const std::filesystem::path& file);

} // namespace sagomi
