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

/// A line of the report of a joint.
struct VoceRelazione {
    std::string testo;      ///< a title, a text, or what stands before a value
    std::string valore;     ///< as the box of the joint has it; empty where it has none
    std::string unita;      ///< behind the value, "[mm]"
    bool conValore = false; ///< the line is one of a value

    /// As it is printed.
    [[nodiscard]] std::string Riga() const;
};

/// The lines of one joint, its title first.
/// @param indice  1 the right joint, 2 the left one
[[nodiscard]] std::vector<VoceRelazione> VociRelazione(const Nodo& nodo, int indice);

/// The report of a node: the right joint, then the left one, each with the texts of its boxes. A joint that
/// is not Acquisito has its title alone; an empty box its line without value and unit.
[[nodiscard]] std::vector<std::string> RigheRelazione(const Nodo& nodo, const TestaRelazione& testa);

/// Hands the lines of the report on, one by one; the same for printer and file.
/// @param scrive  takes a line; false ends the report
/// @return whether all were taken
bool StampaRelazione(const Nodo& nodo, const TestaRelazione& testa,
                     const std::function<bool(std::string_view riga)>& scrive);

} // namespace sagomi
