#pragma once

#include <cstddef>

namespace sagomi {

inline constexpr std::size_t massimeRighe = 65536; ///< of a sheet of this format
inline constexpr std::size_t massimeColonne = 256;

/// What the program takes of a workbook at most, whatever the workbook announces.
inline constexpr std::size_t massimoFile = std::size_t{64} << 20U; ///< bytes
inline constexpr std::size_t massimiFogli = 4096;
inline constexpr std::size_t massimeCelle = 4'000'000; ///< with something in them, in all sheets
inline constexpr std::size_t massimoTestoCelle = std::size_t{64} << 20U; ///< bytes of all cells' texts

} // namespace sagomi
