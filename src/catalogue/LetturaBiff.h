#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "catalogue/RecordBiff.h"

namespace sagomi {

/// Bytes of a workbook that are not what they should be. The text is the Italian word for the part that they
/// belong to ("testi", "celle").
class DannoBiff : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Goes from record to record of a stream. Nothing is copied: the stream must outlive it.
class CursoreBiff {
public:
    explicit CursoreBiff(std::span<const std::uint8_t> flusso, std::size_t posizione = 0)
        : flusso_(flusso), prossimo_(posizione) {}

    /// The next record. False at the end of the stream and where nothing but filling follows. Throws
    /// DannoBiff when its length goes beyond the stream.
    bool Avanza();

    /// The next record if it continues this one.
    bool AvanzaSeContinua();

    [[nodiscard]] unsigned Genere() const { return genere_; }
    [[nodiscard]] bool E(Biff b) const { return genere_ == static_cast<unsigned>(b); }
    [[nodiscard]] std::span<const std::uint8_t> Corpo() const { return corpo_; }
    [[nodiscard]] std::size_t Lunghezza() const { return corpo_.size(); }

    /// Numbers at a place in the record. Beyond its end they throw DannoBiff.
    [[nodiscard]] unsigned U8(std::size_t i) const { return Presi(i, 1)[0]; }
    [[nodiscard]] unsigned U16(std::size_t i) const;
    [[nodiscard]] std::uint32_t U32(std::size_t i) const;
    [[nodiscard]] std::uint64_t U64(std::size_t i) const;

private:
    [[nodiscard]] const std::uint8_t* Presi(std::size_t i, std::size_t n) const {
        if (i > corpo_.size() || corpo_.size() - i < n)
            throw DannoBiff("record corto");
        return corpo_.data() + i;
    }

    std::span<const std::uint8_t> flusso_;
    std::span<const std::uint8_t> corpo_;
    std::size_t prossimo_;
    unsigned genere_ = 0;
};

/// Reads strings from the record in hand and, moving the cursor, from those that continue it. Throws
/// DannoBiff where there are fewer bytes than a string announces.
class LettoreStringhe {
public:
    /// @param da  where to begin in the record
    LettoreStringhe(CursoreBiff& cursore, std::size_t da) : cursore_(cursore), i_(da) {}

    /// A number of one, two, four bytes, which stand together in one record.
    unsigned U8() { return Prende(1)[0]; }
    unsigned U16();
    std::uint32_t U32();

    /// Passes bytes over, whatever records they stand in.
    void Salta(std::size_t n);

    /// Characters, of one byte or of two as bit 0 of the options tells; in each new record they begin with
    /// their options anew. Appended in UTF-8.
    void Caratteri(std::size_t n, unsigned opzioni, std::string& utf8);

    /// Bytes of Windows-1252, as workbooks before Excel 97 have them. Appended in UTF-8.
    void CaratteriAnsi(std::size_t n, std::string& utf8);

private:
    [[nodiscard]] std::span<const std::uint8_t> Resto() const;
    void ProssimaParte();
    std::span<const std::uint8_t> Prende(std::size_t n);

    CursoreBiff& cursore_;
    std::size_t i_;
};

/// The number in an RK or MULRK record: an integer of 30 bits or the upper 30 bits of a number, each perhaps
/// to be divided by 100.
double DecodificaRk(std::uint32_t rk);

} // namespace sagomi
