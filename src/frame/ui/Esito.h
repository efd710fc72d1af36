#pragma once

class QLabel;

namespace sagomi {

/// Judges a sum of utilisations: "OK" in black up to 1, "NO" in red above it, both on white. A number that is
/// none (NaN) has no verdict: the label is empty.
void MostraEsito(QLabel* etichetta, double valore);

} // namespace sagomi
