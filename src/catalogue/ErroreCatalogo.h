#pragma once

#include <stdexcept>

namespace sagomi {

/// A workbook that cannot be read or written, or a query that fails on it. The text is Italian, names the
/// file and says what failed: it can be shown to the user as it stands.
class ErroreCatalogo : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace sagomi
