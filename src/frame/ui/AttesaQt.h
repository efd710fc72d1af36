#pragma once

namespace sagomi {

/// Plugs the event loop into the yield port: pending events are let through, and long work goes on until the
/// program closes. Nothing else in the program lets events through by itself.
void CollegaAttesaQt();

/// Whether work that lets events through is under way: what it works with must not go.
bool InAttesa();

} // namespace sagomi
