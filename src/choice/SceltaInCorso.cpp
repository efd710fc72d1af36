#include "choice/SceltaInCorso.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace sagomi {

namespace {

constexpr std::size_t pezzo = 32; ///< rows between two looks at the clock

} // namespace

void SceltaInCorso::Sagomi(std::vector<SagomoInGara> sagomi) {
    sagomi_ = std::move(sagomi);
    Ferma();
}

void SceltaInCorso::Aggiunge(std::vector<SagomoInGara> sagomi) {
    sagomi_.insert(sagomi_.end(), std::make_move_iterator(sagomi.begin()),
                   std::make_move_iterator(sagomi.end()));
    righe_.resize(sagomi_.size());
    stato_.resize(sagomi_.size(), daFare);
}

void SceltaInCorso::Comincia(const Richiesta& richiesta, const Filtri& filtri) {
    richiesta_ = richiesta;
    filtri_ = filtri;
    filtri_.soloVerificati = false; // who shows them leaves the others out
    messaggi_.clear();
    righe_.resize(sagomi_.size());
    stato_.assign(sagomi_.size(), daFare);
    fatti_ = 0;
}

void SceltaInCorso::Ferma() {
    righe_.resize(sagomi_.size());
    stato_.assign(sagomi_.size(), daFare);
    messaggi_.clear();
    fatti_ = sagomi_.size();
}

double SceltaInCorso::Avanzamento() const {
    return sagomi_.empty() ? 1 : static_cast<double>(fatti_) / static_cast<double>(sagomi_.size());
}

void SceltaInCorso::Calcola(std::size_t da, std::size_t a) {
    const std::span<const SagomoInGara> some(sagomi_.data() + da, a - da);
    std::fill(stato_.begin() + static_cast<std::ptrdiff_t>(da),
              stato_.begin() + static_cast<std::ptrdiff_t>(a), esclusa);
    for (RigaScelta& riga : Valuta(some, richiesta_, filtri_, messaggi_)) {
        riga.indice += da;
        stato_[riga.indice] = valida;
        righe_[riga.indice] = std::move(riga);
    }
}

bool SceltaInCorso::Avanza(std::chrono::microseconds tempo, std::span<const std::uint32_t> prima) {
    using Orologio = std::chrono::steady_clock;
    const auto fine = Orologio::now() + tempo;
    for (const std::uint32_t posto : prima)
        if (posto < stato_.size() && stato_[posto] == daFare && !Finita())
            Calcola(posto, posto + 1);
    while (!Finita()) {
        const std::size_t a = std::min(fatti_ + pezzo, sagomi_.size());
        Calcola(fatti_, a);
        fatti_ = a;
        if (Orologio::now() >= fine)
            break;
    }
    return Finita();
}

std::vector<std::uint32_t> SceltaInCorso::Ammesse() const {
    std::vector<std::uint32_t> posti;
    posti.reserve(stato_.size());
    for (std::uint32_t i = 0; i < stato_.size(); ++i)
        if (stato_[i] == valida)
            posti.push_back(i);
    return posti;
}

} // namespace sagomi
