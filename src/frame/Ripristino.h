#pragma once

namespace sagomi {

/// Hands over what RipristinaGenerale has to empty besides the block of settings: a global of a layer above.
/// @param svuota  brings it back to its state before the start
/// @return true, so that a variable of the upper layer can be initialised by the call
bool AggiungeRipristino(void (*svuota)());

} // namespace sagomi
