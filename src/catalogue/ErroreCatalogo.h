#pragma once

#include <filesystem>
#include <string>

#include "frame/Errori.h"

namespace sagomi {

/// A workbook that cannot be read or written, or a query that fails on it. The text is Italian, names the
/// file and says what failed: it can be shown to the user as it stands.
/// It brings no number: the one of the library that reads would say nothing to the user.
class ErroreCatalogo : public ErroreNumerato {
public:
    using ErroreNumerato::ErroreNumerato;
};

/// A workbook that cannot be read, and why.
inline ErroreCatalogo ErroreLettura(const std::filesystem::path& file, const std::string& causa) {
    return ErroreCatalogo("Errore nella lettura di \"" + file.string() + "\": " + causa + ".");
}

} // namespace sagomi
