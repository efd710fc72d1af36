#include "catalogue/FogliInteri.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "catalogue/LimitiXls.h"
#include "catalogue/OrdineQuery.h"
#include "catalogue/OrdineRighe.h"
#include "catalogue/TabellaFoglio.h"

namespace sagomi {

namespace {

using Fogli = std::vector<std::shared_ptr<const FoglioLetto>>;
using Riga = std::vector<Valore>;

bool UnoDueVolte(std::vector<std::string_view> tabelle) {
    std::ranges::sort(tabelle);
    return std::ranges::adjacent_find(tabelle) != tabelle.end();
}

/// The sheets where all are there, as wide as one another, and not too large together.
std::optional<Fogli> Trova(const std::vector<std::string_view>& tabelle, const TrovaFoglio& trova) {
    Fogli fogli;
    std::size_t celle = 0;
    for (const std::string_view tabella : tabelle) {
        std::shared_ptr<const FoglioLetto> foglio = trova(tabella);
        if (!foglio || (!fogli.empty() && foglio->Colonne() != fogli.front()->Colonne()))
            return std::nullopt;
        celle += foglio->Righe() * foglio->Colonne();
        fogli.push_back(std::move(foglio));
    }
    return celle <= massimeCelle ? std::optional(std::move(fogli)) : std::nullopt;
}

void Aggiunge(std::vector<Riga>& righe, const FoglioLetto& foglio) {
    for (std::size_t i = PrimaRecord(foglio); i < foglio.Righe(); ++i) {
        Riga& riga = righe.emplace_back(std::max<std::size_t>(foglio.Colonne(), 1));
        for (const CellaLetta& cella : foglio.Riga(i))
            riga[cella.colonna] = foglio.ValoreDi(&cella);
    }
}

std::vector<Riga> InOrdine(std::vector<Riga> righe, const std::vector<std::uint32_t>& ordine) {
    std::vector<Riga> ordinate;
    ordinate.reserve(righe.size());
    for (const std::uint32_t i : ordine)
        ordinate.push_back(std::move(righe[i]));
    return ordinate;
}

/// Of rows that are equal a union leaves one, that of its last sheet.
std::vector<Riga> Unione(const Fogli& fogli, std::size_t colonna) {
    std::vector<Riga> righe;
    for (std::size_t i = fogli.size(); i-- > 0;)
        Aggiunge(righe, *fogli[i]);
    const std::vector<std::uint32_t> ordine = OrdineRighe(righe, colonna, true);
    righe = InOrdine(std::move(righe), ordine);
    righe.erase(std::unique(righe.begin(), righe.end()), righe.end());
    return righe;
}

std::vector<Riga> UnFoglio(const FoglioLetto& foglio, std::optional<std::size_t> colonna) {
    std::vector<Riga> righe;
    Aggiunge(righe, foglio);
    if (!colonna)
        return righe;
    const std::vector<std::uint32_t> ordine = OrdineRighe(righe, *colonna, false);
    return InOrdine(std::move(righe), ordine);
}

} // namespace

std::optional<EsitoQuery> RigheDiFogli(std::string_view query, const TrovaFoglio& trova) {
    const auto forma = SeparaFogli(query);
    if (!forma || UnoDueVolte(forma->tabelle) || (forma->tabelle.size() > 1 && forma->colonna.empty()))
        return std::nullopt;
    const auto fogli = Trova(forma->tabelle, trova);
    if (!fogli)
        return std::nullopt;
    EsitoQuery esito{NomiCampi(*fogli->front()), {}};
    std::optional<std::size_t> colonna;
    if (!forma->colonna.empty()) {
        const auto trovata = std::ranges::find(esito.campi, forma->colonna);
        if (trovata == esito.campi.end())
            return std::nullopt;
        colonna = static_cast<std::size_t>(trovata - esito.campi.begin());
    }
    esito.righe =
        fogli->size() > 1 ? Unione(*fogli, colonna.value_or(0)) : UnFoglio(*fogli->front(), colonna);
    return esito;
}

} // namespace sagomi
