#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sagomi {

/// The column that a query sorts by, without its brackets; empty where it sorts by none.
std::string ColonnaOrdine(std::string_view query);

/// The same query sorted by another column, upwards.
/// @param colonna  heading of the column, without brackets
std::string OrdinaPer(std::string_view query, std::string_view colonna);

/// A query of whole sheets, sorted upwards by one column. Views of its text.
struct QueryOrdinata {
    std::string_view righe;   ///< the query without its order
    std::string_view colonna; ///< without brackets
    bool unione;              ///< of several sheets: of rows that are equal one is left
};

/// Takes apart "SELECT * FROM [a] UNION SELECT * FROM [b] ORDER BY [c]"; nothing for any other form.
std::optional<QueryOrdinata> SeparaOrdine(std::string_view query);

/// Whether a query reads a sheet, given by its plain name: IPE, L Uguali.
bool NominaFoglio(std::string_view query, std::string_view foglio);

} // namespace sagomi
