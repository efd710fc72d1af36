#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace sagomi {

/// Where a run of the program works.
struct CartellaLavoro {
    std::filesystem::path lavoro;        ///< of settings and workbooks
    std::filesystem::path installazione; ///< of what came with the program, which is only read
    std::string avviso; ///< why the user's folder or workbook cannot be used; empty where all is well
};

/// Finds the folder and makes it ready. A program with its files beside it works there when it may write
/// there; any other in "sagomi" of the user's data folder, where the workbooks are copied at the first start.
/// Where the user has no workbook it is made, as a copy of "SagomiUtente-vuota.xls" of the installation. What
/// an older program left in the user's configuration folder, settings and sections, moves there; a workbook
/// that is there already is replaced only while it is the installed one without rows. A newer
/// "Sagomi.xls" of the installation takes the place of a copy that the user has not changed. A user's folder
/// that cannot be made ready leaves the installed files in use.
/// @param programma  folder of the program
/// @param scelta     another folder for the work, made if need be
/// Throws std::runtime_error, in Italian, for a chosen folder that cannot be used.
CartellaLavoro ApreCartellaLavoro(const std::filesystem::path& programma,
                                  const std::optional<std::filesystem::path>& scelta = {});

} // namespace sagomi
