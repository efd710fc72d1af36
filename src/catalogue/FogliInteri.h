#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "catalogue/Catalogo.h"
#include "catalogue/FoglioLetto.h"

namespace sagomi {

/// The sheet of a table, whose name is written exactly so; null where there is none or it cannot be read.
using TrovaFoglio = std::function<std::shared_ptr<const FoglioLetto>(std::string_view tabella)>;

/// Rows of whole sheets, "SELECT * FROM [a] UNION SELECT * FROM [b] ORDER BY [c]", taken straight from the
/// sheets: what SQLite gives for that query, row for row, which costs several times as much there because it
/// takes every cell in and hands it out again. Nothing where SQLite has to answer: any other form, a union
/// without an order, a sheet or a column that is missing, sheets of different widths or named twice, too many
/// cells.
std::optional<EsitoQuery> RigheDiFogli(std::string_view query, const TrovaFoglio& trova);

} // namespace sagomi
