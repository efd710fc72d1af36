#pragma once

#include <filesystem>

namespace sagomi {

/// Names the folder of "recently-used.xbel", the list of files last used that the programs of a desktop
/// share; while none is named nothing is kept.
void CartellaRecenti(const std::filesystem::path& cartella);

/// Puts a file of ours, by its absolute path, into that list. One that cannot be read or written is left as
/// it is, and nothing is said of it.
void RicordaNelDesktop(const std::filesystem::path& file);

} // namespace sagomi
