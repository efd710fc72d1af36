#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What a name that is none was probably meant for.
namespace sagomi {

/// How many letters have to be changed, put in or left out to make one word of the other.
std::size_t Distanza(std::string_view a, std::string_view b);

/// A name as names are compared: without blanks, in small letters. "hea200" is "HEA 200".
std::string Piegato(std::string_view nome);

/// The names nearest to one, those at the least distance alone, at most three, in their order.
/// @param nomi  each once is told once
/// @return none where all of them are further than half of the name's letters
std::vector<std::string> NomiVicini(std::string_view nome, const std::vector<std::string>& nomi);

/// Names with a comma between.
std::string Elencati(const std::vector<std::string>& nomi);

} // namespace sagomi
