#pragma once

#include <filesystem>

namespace sagomi {

/// The folder with the files of the program: its own, where "Sagomi.xls" lies beside it; else share/sagomi of
/// the place that it is installed in, bin beside share; its own again where neither has the workbook.
/// @param programma  folder of the program
std::filesystem::path CartellaFile(const std::filesystem::path& programma);

} // namespace sagomi
