#pragma once

#include <string>
#include <string_view>

namespace sagomi {

struct Relazione;

/// A markup as plain text: subscripts run on ("Nb,Rd"), superscripts of digits become those of Unicode,
/// others stand behind a caret.
std::string SenzaPedici(std::string_view markup);

/// The report as plain text, UTF-8, lines of up to 110 columns that end in a line feed.
std::string TestoRelazione(const Relazione& relazione);

} // namespace sagomi
