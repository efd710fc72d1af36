#pragma once

#include "frame/Errori.h"

namespace sagomi {

/// A workbook that cannot be read or written, or a query that fails on it. The text is Italian, names the
/// file and says what failed: it can be shown to the user as it stands.
/// Its number is the one of SQLite, of freexl or of the system, where one of these failed.
class ErroreCatalogo : public ErroreNumerato {
public:
    using ErroreNumerato::ErroreNumerato;
};

} // namespace sagomi
