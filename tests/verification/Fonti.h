#pragma once

#include <string_view>
#include <vector>

namespace sagomi::verifica {

/// A published document that figures are held against.
struct Fonte {
    std::string_view sigla; ///< how the examples name it
    std::string_view autori;
    std::string_view titolo;
    std::string_view edizione; ///< publisher and edition
    std::string_view anno;
    std::string_view lettura; ///< how its figures were read, in Italian
};

/// All of them, in the order of the manual.
const std::vector<Fonte>& Fonti();

/// The one of a name; a name that is not there throws std::out_of_range.
const Fonte& FonteDi(std::string_view sigla);

} // namespace sagomi::verifica
