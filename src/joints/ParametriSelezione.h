#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "frame/Tabella1.h"

namespace sagomi {

/// One column of an improvement: the moment is a text with 2 decimals, all others are numbers.
using ValoreSelezione = std::variant<double, std::string>;

/// An improvement found by a search, from column 1: index, M [kNm], d, tf, bf, ef and then, of one row of
/// bolts, d2; of two rows ex, dX, d2, u [mm].
using RigaSelezione = Tabella1<ValoreSelezione>;

/// The improvements of a search, in the order of their finding, counted from 1.
class TabellaSelezione {
public:
    [[nodiscard]] int n() const { return static_cast<int>(righe_.size()); }
    /// A row that is not there throws std::out_of_range.
    const RigaSelezione& operator[](int riga) const {
        if (riga < 1 || riga > n())
            throw std::out_of_range("riga " + std::to_string(riga) + " fuori da 1.." + std::to_string(n()));
        return righe_[static_cast<std::size_t>(riga - 1)];
    }
    /// The number in a column that holds one.
    [[nodiscard]] double Numero(int riga, int colonna) const {
        return std::get<double>((*this)[riga][colonna]);
    }
    void Aggiunge(RigaSelezione riga) { righe_.push_back(std::move(riga)); }
    void Svuota() { righe_.clear(); }

    bool operator==(const TabellaSelezione&) const = default;

private:
    std::vector<RigaSelezione> righe_;
};

/// The free parameters of a joint; of one row, those of the outer row are 0. No bolt: nothing has been found.
struct RecordMigliore {
    std::int16_t bullone = 0; ///< position in the table of bolts
    double tf = 0, bf = 0, ef = 0, ex = 0, L = 0, d2 = 0, u = 0;

    [[nodiscard]] bool Vuoto() const { return bullone == 0; }
};

} // namespace sagomi
