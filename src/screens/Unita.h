#pragma once

namespace sagomi {

// The screens speak metres, kN and kNm; sections hold mm, N and N mm. Entries are multiplied, results
// divided.

inline constexpr double mmInMetro = 1000;
inline constexpr double NInkN = 1000;
inline constexpr double NmmInkNm = 1e6;

} // namespace sagomi
