#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "catalogue/RecordBiff.h"

namespace sagomi {

/// The shared strings of a workbook: each text stands once, the cells refer to it by its number.
class TabellaStringhe {
public:
    /// The longest text that a cell can hold, in UTF-16 units.
    static constexpr std::size_t massimoTesto = 32767;

    /// Counts a cell that holds this text (UTF-8); a new text is entered. One that is too long throws
    /// std::length_error.
    void Raccoglie(const std::string& testo);

    /// The number of a text that has been entered.
    [[nodiscard]] std::uint32_t Indice(const std::string& testo) const { return indici_.at(testo); }

    /// Appends the table (SST and what it takes of CONTINUE records) and the positions for a quick look-up
    /// (EXTSST).
    void Scrive(FlussoBiff& flusso) const;

private:
    std::unordered_map<std::string, std::uint32_t> indici_;
    std::vector<std::u16string> testi_; ///< in the order of their numbers
    std::uint32_t usi_ = 0;             ///< cells that refer to the table
};

} // namespace sagomi
