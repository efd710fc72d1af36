#pragma once

#include <string>
#include <string_view>

namespace sagomi {

/// The column that a query sorts by, without its brackets; empty where it sorts by none.
std::string ColonnaOrdine(std::string_view query);

/// The same query sorted by another column, upwards.
/// @param colonna  heading of the column, without brackets
std::string OrdinaPer(std::string_view query, std::string_view colonna);

/// Whether a query reads a sheet, given by its plain name: IPE, L Uguali.
bool NominaFoglio(std::string_view query, std::string_view foglio);

} // namespace sagomi
