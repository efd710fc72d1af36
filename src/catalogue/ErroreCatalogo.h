#pragma once

#include <filesystem>
#include <string>

#include "frame/Errori.h"

namespace sagomi {

/// A workbook that cannot be read or written, or a query that fails on it. The text is Italian, names the
/// file and says what failed: it can be shown to the user as it stands.
/// Its number is the one of SQLite, where this failed.
class ErroreCatalogo : public ErroreNumerato {
public:
    using ErroreNumerato::ErroreNumerato;
};

/// A workbook that cannot be read, and why.
inline ErroreCatalogo ErroreLettura(const std::filesystem::path& file, const std::string& causa,
                                    int numero = 0) {
    return ErroreCatalogo("Errore nella lettura di \"" + file.string() + "\": " + causa + ".", numero);
}

} // namespace sagomi
