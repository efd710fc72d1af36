#pragma once

namespace sagomi {

/// Places and sizes of the windows are given in twips, 1/1440 of an inch; a pixel counts 1/96.
inline constexpr int twipsAPixel = 15;

} // namespace sagomi
