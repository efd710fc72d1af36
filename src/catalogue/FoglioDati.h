#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/Valore.h"

namespace sagomi {

/// How a number is meant to be shown where it is not a plain one. A date is the number of days from
/// 30 December 1899, its fraction is the time of day.
enum class GenereNumero { Semplice, Data, DataOra, Ora };

struct Cella {
    Valore valore;
    GenereNumero genere = GenereNumero::Semplice;
};

/// One sheet of a workbook: rows of cells from the top left corner, both counted from 0. Rows may differ in
/// length; what lies beyond the end of a row is empty.
struct Foglio {
    std::string nome; ///< UTF-8
    std::vector<std::vector<Cella>> righe;

    /// The value in a cell, empty outside the rows that are held.
    [[nodiscard]] const Valore& Legge(std::size_t riga, std::size_t colonna) const {
        static const Valore vuoto;
        if (riga >= righe.size() || colonna >= righe[riga].size())
            return vuoto;
        return righe[riga][colonna].valore;
    }

    /// Puts a value into a cell; the sheet grows as far as it must.
    void Scrive(std::size_t riga, std::size_t colonna, Valore valore) {
        if (riga >= righe.size())
            righe.resize(riga + 1);
        if (colonna >= righe[riga].size())
            righe[riga].resize(colonna + 1);
        righe[riga][colonna] = {std::move(valore), GenereNumero::Semplice};
    }
};

/// A workbook: its sheets in the order of their tabs.
struct CartellaDati {
    std::vector<Foglio> fogli;
};

} // namespace sagomi
