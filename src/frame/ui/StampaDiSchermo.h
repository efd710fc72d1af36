#pragma once

#include <functional>

namespace sagomi {

class Schermo;

/// What Ctrl+P does on every screen, and Ctrl+Shift+P, the preview. Whoever draws plugs it in.
using StampaDiSchermo = std::function<void(Schermo& schermo, bool anteprima)>;
void ImpostaStampa(StampaDiSchermo stampa);

} // namespace sagomi
