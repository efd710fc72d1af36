#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace sagomi {

/// Which of two places comes first.
using PrimaDi = std::function<bool(std::uint32_t, std::uint32_t)>;

/// Places that are sorted piece by piece, so that who shows them never waits: runs are sorted, then merged
/// two by two. Equal ones keep their order. What the comparison looks at has to stay as it is meanwhile.
class OrdineInCorso {
public:
    static constexpr std::size_t tratto = 4096; ///< places that are sorted in one go

    void Comincia(std::vector<std::uint32_t> posti, PrimaDi prima);
    /// There is nothing to sort any more.
    void Ferma();

    /// Sorts for about so long, and not less than a piece.
    /// @return whether all is done
    bool Avanza(std::chrono::microseconds tempo);
    [[nodiscard]] bool InCorso() const { return lungo_ > 0; }

    /// The sorted places, to be taken once.
    [[nodiscard]] std::vector<std::uint32_t> Prende();

private:
    void Passo();

    std::vector<std::uint32_t> posti_, altri_;
    PrimaDi prima_;
    std::size_t lungo_ = 0; ///< of the runs that lie sorted; 0 when nothing is under way
    std::size_t da_ = 0;    ///< where the next step begins
    bool tratti_ = false;   ///< the first runs are being sorted
};

} // namespace sagomi
