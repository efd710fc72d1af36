#pragma once

class QLabel;

namespace sagomi {

/// Judges a sum of utilisations: "OK" in black up to 1, "NO" in red above it, both on white. A sum that is no
/// number (NaN, minus infinity) has no verdict: the label is empty; plus infinity is "NO".
void MostraEsito(QLabel* etichetta, double valore);

} // namespace sagomi
