#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "report/Relazione.h"

namespace sagomi {

class Nodo;

/// The report of a node: what was entered, for each joint the values of its printed report in chapters, then
/// the steps of the calculation with their clauses, then what it bears. The steps are those of the last
/// check; of a joint that comes from a file they are made anew on a copy and left out where they do not lead
/// to its results.
/// @param descrizione  as the user has typed it
Relazione RelazioneNodo(const Nodo& nodo, const std::string& descrizione);

} // namespace sagomi
