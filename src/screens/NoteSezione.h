#pragma once

#include <string>

class QLabel;

namespace sagomi {

class SezioneDoppioT;

/// "fibra inferiore: 1.016 kNm" where the lower fibre of different flanges bears less than McyRd; else empty.
std::string NotaMcyRd(const SezioneDoppioT& sezione);

/// The same of the shear that both flanges bear, where it is less than VplzRd.
std::string NotaVplzRd(const SezioneDoppioT& sezione);

/// A note beside the results, hidden while it has nothing to say.
QLabel* CreaNota(const char* nome);
void MostraNota(QLabel* nota, const std::string& testo);

} // namespace sagomi
