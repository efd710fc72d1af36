#pragma once

namespace sagomi {

class Schermo;

/// Builds the controls of the screen of studs, each found by its object name.
void ComponeConnettori(Schermo& schermo);

} // namespace sagomi
