#include "catalogue/FoglioLetto.h"

#include <algorithm>
#include <utility>

namespace sagomi {

namespace {

std::uint32_t Posto(const CellaLetta& c) { return static_cast<std::uint32_t>(c.riga) << 16U | c.colonna; }

bool Prima(const CellaLetta& a, const CellaLetta& b) { return Posto(a) < Posto(b); }

/// Brings cells that came in another order into theirs, of those in one place the last.
void Ordina(std::vector<CellaLetta>& celle) {
    const auto ripetuta = [](const CellaLetta& a, const CellaLetta& b) { return Posto(a) >= Posto(b); };
    if (std::ranges::adjacent_find(celle, ripetuta) == celle.end())
        return;
    std::ranges::reverse(celle);
    std::ranges::stable_sort(celle, Prima);
    const auto stesso = [](const CellaLetta& a, const CellaLetta& b) { return Posto(a) == Posto(b); };
    celle.erase(std::unique(celle.begin(), celle.end(), stesso), celle.end());
}

} // namespace

void FoglioLetto::Termina() {
    Ordina(celle_);
    std::erase_if(celle_, [](const CellaLetta& c) { return c.tipo == CellaLetta::Tipo::Vuota; });
    inizi_.clear();
    colonne_ = 0;
    for (std::size_t i = 0; i < celle_.size(); ++i) {
        if (i == 0 || celle_[i].riga != celle_[i - 1].riga)
            inizi_.push_back(static_cast<std::uint32_t>(i));
        colonne_ = std::max<std::size_t>(colonne_, celle_[i].colonna + 1U);
    }
    inizi_.push_back(static_cast<std::uint32_t>(celle_.size()));
}

const CellaLetta* FoglioLetto::Cerca(std::span<const CellaLetta> riga, std::size_t colonna) {
    const auto trovata = std::ranges::lower_bound(riga, colonna, {}, &CellaLetta::colonna);
    return trovata != riga.end() && trovata->colonna == colonna ? &*trovata : nullptr;
}

Valore FoglioLetto::ValoreDi(const CellaLetta* cella) const {
    if (cella == nullptr)
        return {};
    if (cella->HaNumero())
        return cella->Numero();
    return std::string(Testo(*cella));
}

Foglio FoglioDa(const FoglioLetto& letto) {
    Foglio foglio{letto.nome, {}};
    foglio.righe.reserve(letto.Righe());
    for (std::size_t i = 0; i < letto.Righe(); ++i) {
        foglio.righe.resize(letto.NumeroRiga(i) + 1);
        auto& riga = foglio.righe.back();
        const std::span<const CellaLetta> celle = letto.Riga(i);
        riga.resize(celle.back().colonna + 1U);
        for (const CellaLetta& cella : celle)
            riga[cella.colonna] = {letto.ValoreDi(&cella), static_cast<GenereNumero>(cella.genere)};
    }
    return foglio;
}

std::size_t PostiDi(const FoglioLetto& letto) {
    if (letto.Righe() == 0)
        return 0;
    return letto.NumeroRiga(letto.Righe() - 1) + 1 + letto.Righe() * letto.Colonne();
}

} // namespace sagomi
