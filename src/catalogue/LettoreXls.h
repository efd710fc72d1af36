#pragma once

#include <filesystem>

#include "catalogue/FoglioDati.h"
#include "frame/LetturaFile.h"

namespace sagomi {

/// Reads a workbook of the format of Excel 97 to 2003 (".xls") whole, by whatever program it was saved: every
/// sheet with its numbers, texts, dates and, of formulas, the values last computed. Errors in cells count as
/// empty; logical values are 1 and 0. What it gives can be changed and written again by ScriveXls.
/// Throws ErroreCatalogo when the file is missing, is no such workbook, has no sheet, when any of its sheets
/// is damaged, or when it holds more than the program takes (LimitiXls.h; with all the places between the
/// cells not more of them either).
/// @param impronta  receives the state in which the file was read, where it is not null
CartellaDati LeggeXls(const std::filesystem::path& file, ImprontaFile* impronta = nullptr);

} // namespace sagomi
