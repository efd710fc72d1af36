#pragma once

class QLabel;

namespace sagomi {

/// Judges a sum of utilisations: "OK" in black up to 1, "NO" in red above it, both on white; in a dark
/// palette light on its base colour. A sum that is no number (NaN, minus infinity) has no verdict: the label
/// is empty; plus infinity is "NO". A verdict that has changed is told to a screen reader.
void MostraEsito(QLabel* etichetta, double valore);

/// The value that governs stands out, bold and in red.
void MostraGoverna(QLabel* etichetta, bool governa);

} // namespace sagomi
