#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

/// The column that a query sorts by, without its brackets; empty where it sorts by none.
std::string ColonnaOrdine(std::string_view query);

/// The same query sorted by another column, upwards.
/// @param colonna  heading of the column, without brackets
std::string OrdinaPer(std::string_view query, std::string_view colonna);

/// A query of whole sheets, of several their union. Views of its text.
struct QueryFogli {
    std::vector<std::string_view> tabelle; ///< without brackets: IPE$, 'L Uguali'$
    std::string_view righe;                ///< the query without its order
    std::string_view colonna;              ///< that sorts it upwards, without brackets; empty where none does
};

/// Takes apart "SELECT * FROM [a] UNION SELECT * FROM [b] ORDER BY [c]", also without its order; nothing for
/// any other form.
std::optional<QueryFogli> SeparaFogli(std::string_view query);

/// A query of whole sheets, sorted upwards by one column. Views of its text.
struct QueryOrdinata {
    std::string_view righe;   ///< the query without its order
    std::string_view colonna; ///< without brackets
    bool unione;              ///< of several sheets: of rows that are equal one is left
};

/// The same for a query that has an order; nothing for any other form.
std::optional<QueryOrdinata> SeparaOrdine(std::string_view query);

/// Whether a query reads a sheet, given by its plain name: IPE, L Uguali.
bool NominaFoglio(std::string_view query, std::string_view foglio);

} // namespace sagomi
