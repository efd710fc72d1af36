#pragma once

#include <functional>

namespace sagomi {

/// Long work asks here, at points of its own choice, whether to go on: the answer lets the pending events of
/// the user through, and is no once the program is closing or the work has been interrupted. The program
/// plugs the event loop into the port, a test whatever it wants.
using PortaAttesa = std::function<bool()>;

/// Plugs an answerer into the port and returns the one that was there, to be put back. With an empty one the
/// answer is always to go on.
PortaAttesa CollegaAttesa(PortaAttesa porta);

/// @return whether to go on
bool Prosegue();

} // namespace sagomi
