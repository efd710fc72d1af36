#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/FoglioDati.h"

namespace sagomi {

/// Texts one behind the other in one piece of memory.
class TestiLetti {
public:
    /// What is appended here becomes a text with Chiude.
    std::string& InCorso() { return byte_; }
    void Chiude() { fini_.push_back(byte_.size()); }

    void Riserva(std::size_t testi) { fini_.reserve(testi); }
    [[nodiscard]] std::size_t size() const { return fini_.size(); }
    [[nodiscard]] std::string_view operator[](std::size_t i) const {
        const std::size_t da = i == 0 ? 0 : fini_[i - 1];
        return std::string_view(byte_).substr(da, fini_[i] - da);
    }

private:
    std::string byte_;
    std::vector<std::size_t> fini_;
};

/// A cell as it was read, in 16 bytes.
struct CellaLetta {
    enum class Tipo : std::uint8_t { Vuota, Numero, Testo, TestoComune };

    std::uint64_t dato; ///< the bits of the number, or the place of the text among those of its kind
    std::uint16_t riga, colonna;
    Tipo tipo;
    std::uint8_t genere; ///< a GenereNumero

    [[nodiscard]] bool HaNumero() const { return tipo == Tipo::Numero; }
    [[nodiscard]] double Numero() const { return std::bit_cast<double>(dato); }
};

/// A sheet as it was read: the cells that hold something, by row and column, and nothing between them.
class FoglioLetto {
public:
    std::string nome; ///< UTF-8

    FoglioLetto() = default;
    /// @param comuni  the texts that the sheets of the workbook share
    FoglioLetto(std::string nome_, std::shared_ptr<const TestiLetti> comuni)
        : nome(std::move(nome_)), comuni_(std::move(comuni)) {}

    /// Adds a cell; of two in one place the later one counts, also an empty one. Termina ends the adding.
    void Aggiunge(const CellaLetta& cella) { celle_.push_back(cella); }
    [[nodiscard]] TestiLetti& TestiPropri() { return propri_; }
    void Termina();

    /// Rows with a value, from the top.
    [[nodiscard]] std::size_t Righe() const { return inizi_.size() - 1; }
    /// The place of such a row in the sheet, from 0.
    [[nodiscard]] std::size_t NumeroRiga(std::size_t i) const { return celle_[inizi_[i]].riga; }
    /// One more than the last column with a value.
    [[nodiscard]] std::size_t Colonne() const { return colonne_; }
    [[nodiscard]] std::size_t Celle() const { return celle_.size(); }

    /// The cells of the i-th row with a value, from left to right.
    [[nodiscard]] std::span<const CellaLetta> Riga(std::size_t i) const {
        return std::span(celle_).subspan(inizi_[i], inizi_[i + 1] - inizi_[i]);
    }

    /// A cell of the i-th row with a value; null where there is nothing.
    [[nodiscard]] const CellaLetta* Cella(std::size_t i, std::size_t colonna) const {
        const std::span<const CellaLetta> riga = Riga(i);
        if (colonna < riga.size() && riga[colonna].colonna == colonna)
            return &riga[colonna]; // a row without holes
        return Cerca(riga, colonna);
    }

    /// The text of a cell that holds one.
    [[nodiscard]] std::string_view Testo(const CellaLetta& cella) const {
        const auto i = static_cast<std::size_t>(cella.dato);
        return cella.tipo == CellaLetta::Tipo::Testo ? propri_[i] : (*comuni_)[i];
    }

    /// The value of a cell, nothing for null.
    [[nodiscard]] Valore ValoreDi(const CellaLetta* cella) const;

private:
    static const CellaLetta* Cerca(std::span<const CellaLetta> riga, std::size_t colonna);

    std::shared_ptr<const TestiLetti> comuni_;
    TestiLetti propri_;
    std::vector<CellaLetta> celle_;
    std::vector<std::uint32_t> inizi_{0}; ///< the first cell of each row with a value, and the end
    std::size_t colonne_ = 0;
};

/// The sheet with a place for each cell up to the last of its row.
Foglio FoglioDa(const FoglioLetto& letto);

/// How many places that sheet has, rows counted as one each.
std::size_t PostiDi(const FoglioLetto& letto);

} // namespace sagomi
