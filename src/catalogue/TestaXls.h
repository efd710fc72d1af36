#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "catalogue/FoglioLetto.h"

namespace sagomi {

/// A sheet in the list of a workbook.
struct VoceFoglio {
    std::string nome;            ///< UTF-8
    std::uint32_t posizione = 0; ///< of its part in the stream
};

/// What the head of a workbook says for all of its sheets.
struct TestaXls {
    bool biff8 = true;                       ///< of Excel 97 or later, otherwise of Excel 5 or 95
    bool dal1904 = false;                    ///< days are counted from 1 January 1904
    std::vector<VoceFoglio> fogli;           ///< sheets of cells, in the order of their tabs
    std::shared_ptr<const TestiLetti> testi; ///< shared by the sheets
    std::vector<GenereNumero> generi;        ///< of the numbers with each cell style (XF)

    [[nodiscard]] GenereNumero Genere(std::size_t stile) const {
        return stile < generi.size() ? generi[stile] : GenereNumero::Semplice;
    }
};

/// Reads the head from the stream of a workbook. Throws DannoBiff when it is damaged, std::runtime_error when
/// a password protects it, its format is another one or it has more sheets or texts than can be.
TestaXls LeggeTesta(std::span<const std::uint8_t> flusso);

} // namespace sagomi
