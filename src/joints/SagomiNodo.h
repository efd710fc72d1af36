#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace sagomi {

class Nodo;
class SezioneDoppioT;

/// The sections of a node: which may be taken, and what follows from the partial factors.

/// What a section is in a node.
enum class RuoloSagomo : std::int8_t { Nessuno, TraveDx, TraveSx, Colonna };

/// Whether there is a section with dimensions.
[[nodiscard]] bool Assegnato(const std::shared_ptr<SezioneDoppioT>& sagomo);

/// Whether the node has all the sections that its kind asks for.
[[nodiscard]] bool SagomiAssegnati(const Nodo& nodo);

/// Gives a copy of a section to a node, with the actions that the role has already; the joints that it
/// belongs to lose their results, those under design their parameters too. Before that it is held against
/// class, width and height (ENV 1993-1-1 annex J): what does not hold is told, of a beam of class 4 it is
/// asked.
/// @param scelta  in N and N mm, as the section screens have it; it has its classes
/// @return whether it was taken; the node is as it was otherwise
bool AssegnaSagomo(Nodo& nodo, RuoloSagomo ruolo, const SezioneDoppioT& scelta);

/// McyRd and NplRd of the sections with the partial factors in force; computed on copies, tells nothing.
void RinnovaResistenze(Nodo& nodo);

/// What McyRd and NplRd hang on, as text: code, partial factors and strengths of the sections.
[[nodiscard]] std::string FirmaSagomi(const Nodo& nodo);

/// Data files have no quotes inside a text: two apostrophes take their place in the names of the sections.
void ToglieVirgolette(Nodo& nodo);

/// NplRd alone, which files do not have.
void RinnovaNplRd(Nodo& nodo);

} // namespace sagomi
