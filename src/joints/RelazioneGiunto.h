#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

class Nodo;

/// What stands above the joints in a report.
struct TestaRelazione {
    std::string nomeFile;    ///< without its folder; empty while the node has no file
    std::string descrizione; ///< as the user has typed it
};

/// The report of a node: the right joint, then the left one, each with the texts of its boxes. A joint that
/// is not Acquisito has its title alone; an empty box its line without value and unit.
[[nodiscard]] std::vector<std::string> RigheRelazione(const Nodo& nodo, const TestaRelazione& testa);

/// Hands the lines of the report on, one by one; the same for printer and file.
/// @param scrive  takes a line; false ends the report
/// @return whether all were taken
bool StampaRelazione(const Nodo& nodo, const TestaRelazione& testa,
                     const std::function<bool(std::string_view riga)>& scrive);

} // namespace sagomi
