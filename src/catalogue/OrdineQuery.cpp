#include "catalogue/OrdineQuery.h"

#include <utility>

#include "catalogue/Famiglie.h"
#include "catalogue/TabellaFoglio.h"

namespace sagomi {

namespace {

constexpr std::string_view ordina = " ORDER BY ";

/// Takes a text off the front; false where it does not stand there.
bool Toglie(std::string_view& testo, std::string_view inizio) {
    if (!testo.starts_with(inizio))
        return false;
    testo.remove_prefix(inizio.size());
    return true;
}

/// Takes a name in brackets or quotation marks off the front; empty where none stands there.
std::string_view ToglieNome(std::string_view& testo) {
    if (!testo.starts_with('[') && !testo.starts_with('"'))
        return {};
    const auto fine = testo.find(testo.front() == '[' ? ']' : '"', 1);
    if (fine == std::string_view::npos)
        return {};
    const std::string_view nome = testo.substr(1, fine - 1);
    testo.remove_prefix(fine + 1);
    return nome;
}

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

std::optional<QueryFogli> SeparaFogli(std::string_view query) {
    constexpr std::string_view tutto = "SELECT * FROM ";
    std::string_view resto = query;
    QueryFogli fogli;
    do {
        if (!Toglie(resto, tutto))
            return std::nullopt;
        fogli.tabelle.push_back(ToglieNome(resto));
        if (fogli.tabelle.back().empty())
            return std::nullopt;
    } while (Toglie(resto, " UNION "));
    fogli.righe = query.substr(0, query.size() - resto.size());
    if (Toglie(resto, ordina)) {
        fogli.colonna = ToglieNome(resto);
        Toglie(resto, " ASC");
        if (fogli.colonna.empty())
            return std::nullopt;
    }
    return resto.empty() ? std::optional(std::move(fogli)) : std::nullopt;
}

std::optional<QueryOrdinata> SeparaOrdine(std::string_view query) {
    const auto fogli = SeparaFogli(query);
    if (!fogli || fogli->colonna.empty())
        return std::nullopt;
    return QueryOrdinata{fogli->righe, fogli->colonna, fogli->tabelle.size() > 1};
}

bool NominaFoglio(std::string_view query, std::string_view foglio) {
    return query.find("FROM " + NomeFoglioQuery(foglio)) != std::string_view::npos;
}

} // namespace sagomi
