#pragma once

namespace sagomi {

/// Lays the table of all screens before the navigator. A new screen is its class and one row there.
void CaricaTavolaSchermi();

} // namespace sagomi
