#pragma once

#include <filesystem>
#include <functional>
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
/// @param ingresso   jobs, one a line, where --json stands without a question
/// @param uscita     receives the answer; of a job one line, as soon as it is done
/// @param errori     receives in Italian what was wrong with the call
/// @return the exit status, of several jobs the worst; nothing where the windows are asked for
std::optional<int> EsegueComando(const std::vector<std::string>& argomenti,
                                 const std::filesystem::path& cartella, std::istream& ingresso,
                                 std::ostream& uscita, std::ostream& errori);

/// The same with a folder that is looked for when an answer needs it.
/// @param cartella  a throw of it ends the command with its text
std::optional<int> EsegueComando(const std::vector<std::string>& argomenti,
                                 const std::function<std::filesystem::path()>& cartella,
                                 std::istream& ingresso, std::ostream& uscita, std::ostream& errori);

} // namespace sagomi
