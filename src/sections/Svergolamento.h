#pragma once

namespace sagomi {

class SezioneDoppioT;

/// Degree of asymmetry of the flanges as a length [mm], zj of ENV 1993-1-1 F.1.2; 0 of equal flanges.
double AsimmetriaAli(const SezioneDoppioT& s);

} // namespace sagomi
