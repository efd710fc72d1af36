#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace sagomi {

/// How a command ends.
enum : int { comandoVerificato = 0, comandoNonVerificato = 1, comandoErrato = 2 };

/// The program without windows: checks a section, or chooses one, and writes the answer. Settings of earlier
/// runs play no part.
/// @param argomenti  without the program's name
/// @param cartella   folder of the workbooks
/// @param uscita     receives the answer
/// @param errori     receives in Italian what was wrong with the call
/// @return the exit status; nothing where the windows are asked for
std::optional<int> EsegueComando(const std::vector<std::string>& argomenti,
                                 const std::filesystem::path& cartella, std::ostream& uscita,
                                 std::ostream& errori);

} // namespace sagomi
