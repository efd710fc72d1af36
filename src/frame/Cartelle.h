#pragma once

#include <filesystem>

namespace sagomi {

/// The folder with the files of the program: its own, where "Sagomi.xls" lies beside it; else share/sagomi of
/// the place that it is installed in, bin beside share; its own again where neither has the workbook.
/// @param programma  folder of the program
std::filesystem::path CartellaFile(const std::filesystem::path& programma);

/// The folders of the user after the rules of the desktops: XDG_DATA_HOME or ~/.local/share, XDG_CONFIG_HOME
/// or ~/.config. A variable that names no absolute path does not count; without a home the path is relative.
std::filesystem::path CartellaDatiUtente();
std::filesystem::path CartellaConfigurazioneUtente();

/// The folder of what came with the program and is only read, help and formulas: PathInstallazione, or
/// PathProgramma where that is empty.
std::filesystem::path CartellaInstallata();

} // namespace sagomi
