#pragma once

namespace sagomi {

/// Plugs the event loop into the yield port: pending events are let through, and long work goes on until the
/// program closes. Nothing else in the program lets events through by itself.
void CollegaAttesaQt();

} // namespace sagomi
