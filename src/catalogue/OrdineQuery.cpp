#include "catalogue/OrdineQuery.h"

#include "catalogue/Famiglie.h"
#include "catalogue/TabellaFoglio.h"

namespace sagomi {

namespace {

constexpr std::string_view ordina = " ORDER BY ";

} // namespace

std::string ColonnaOrdine(std::string_view query) {
    const auto at = query.rfind(ordina);
    if (at == std::string_view::npos)
        return {};
    std::string_view key = query.substr(at + ordina.size());
    if (key.empty() || (key.front() != '[' && key.front() != '"'))
        return {};
    const auto end = key.rfind(key.front() == '[' ? ']' : '"');
    return end == std::string_view::npos || end == 0 ? std::string() : std::string(key.substr(1, end - 1));
}

std::string OrdinaPer(std::string_view query, std::string_view colonna) {
    const std::string name(colonna);
    const bool closes = name.find(']') != std::string::npos;
    return std::string(query.substr(0, query.rfind(ordina))) + std::string(ordina) +
           (closes ? TraVirgolette(name) : "[" + name + "]");
}

bool NominaFoglio(std::string_view query, std::string_view foglio) {
    return query.find("FROM " + NomeFoglioQuery(foglio)) != std::string_view::npos;
}

} // namespace sagomi
