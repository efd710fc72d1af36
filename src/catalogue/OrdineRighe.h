#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "catalogue/Valore.h"

namespace sagomi {

/// The order of rows by a column, upwards as SQLite has it: nothing, numbers, texts by their bytes.
/// @param righe   rows that all have that column
/// @param tutti   rows with the same value there go by all their fields from the first;
///                else they stay as they stand
/// @return places in righe
std::vector<std::uint32_t> OrdineRighe(const std::vector<std::vector<Valore>>& righe, std::size_t colonna,
                                       bool tutti);

} // namespace sagomi
