#include "choice/OrdineInCorso.h"

#include <algorithm>
#include <utility>

namespace sagomi {

namespace {

auto A(std::vector<std::uint32_t>& posti, std::size_t posto) {
    return posti.begin() + static_cast<std::ptrdiff_t>(std::min(posto, posti.size()));
}

} // namespace

void OrdineInCorso::Comincia(std::vector<std::uint32_t> posti, PrimaDi prima) {
    posti_ = std::move(posti);
    altri_.resize(posti_.size());
    prima_ = std::move(prima);
    lungo_ = tratto;
    da_ = 0;
    tratti_ = true;
}

void OrdineInCorso::Ferma() {
    lungo_ = 0;
    posti_.clear();
    prima_ = {};
}

// One run, or one pair of them: a pair takes as many comparisons as it has places.
void OrdineInCorso::Passo() {
    if (tratti_) {
        std::stable_sort(A(posti_, da_), A(posti_, da_ + tratto), prima_);
        da_ += tratto;
    } else {
        std::merge(A(posti_, da_), A(posti_, da_ + lungo_), A(posti_, da_ + lungo_),
                   A(posti_, da_ + 2 * lungo_), A(altri_, da_), prima_);
        da_ += 2 * lungo_;
    }
    if (da_ < posti_.size())
        return;
    da_ = 0;
    if (!std::exchange(tratti_, false)) {
        posti_.swap(altri_);
        lungo_ *= 2;
    }
    if (lungo_ >= posti_.size())
        lungo_ = 0;
}

bool OrdineInCorso::Avanza(std::chrono::microseconds tempo) {
    using Orologio = std::chrono::steady_clock;
    const auto fine = Orologio::now() + tempo;
    while (InCorso()) {
        Passo();
        if (Orologio::now() >= fine)
            break;
    }
    return !InCorso();
}

std::vector<std::uint32_t> OrdineInCorso::Prende() { return std::exchange(posti_, {}); }

} // namespace sagomi
