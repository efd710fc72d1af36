#pragma once

class QLineEdit;

namespace sagomi {

/// Number of a box by the tolerant rule of the screens: empty and text are 0; a typographic minus and blanks
/// that do not break are understood.
double NumeroIn(const QLineEdit* casella);

} // namespace sagomi
