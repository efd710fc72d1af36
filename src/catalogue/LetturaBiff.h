#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "catalogue/RecordBiff.h"

namespace sagomi {

/// A record as it lies in a stream, with the CONTINUE records behind it. The bytes are those of the stream:
/// they live as long as it does.
struct RecordLetto {
    unsigned genere = 0;
    std::size_t posizione = 0;                          ///< of its head in the stream
    std::vector<std::span<const std::uint8_t>> parti{}; ///< its own bytes, then those of each CONTINUE

    [[nodiscard]] bool E(Biff b) const { return genere == static_cast<unsigned>(b); }
    [[nodiscard]] std::size_t Lunghezza() const { return parti.front().size(); }

    /// Numbers at a place in the record's own bytes, 0 beyond their end.
    [[nodiscard]] unsigned U8(std::size_t i) const;
    [[nodiscard]] unsigned U16(std::size_t i) const;
    [[nodiscard]] std::uint32_t U32(std::size_t i) const;
    [[nodiscard]] double F64(std::size_t i) const;
};

/// All records of a stream, up to the filling at its end. Throws std::runtime_error when a length goes beyond
/// the stream.
std::vector<RecordLetto> LeggiRecord(std::span<const std::uint8_t> flusso);

/// Reads strings from a record and from what continues it. Throws std::runtime_error where there are fewer
/// bytes than a string announces.
class LettoreStringhe {
public:
    /// @param da  where to begin in the record's own bytes
    LettoreStringhe(const RecordLetto& record, std::size_t da) : parti_(record.parti), i_(da) {}

    /// Bytes that must stand together in one record.
    std::span<const std::uint8_t> Prendi(std::size_t n);

    /// Passes bytes over, whatever records they stand in.
    void Salta(std::size_t n);

    /// Characters, of one byte or of two as bit 0 of the options tells. In each new record they begin with
    /// their options anew.
    std::u16string Caratteri(std::size_t n, unsigned opzioni);

    /// The record in hand: 0 is the first one, each CONTINUE one more.
    [[nodiscard]] std::size_t Parte() const { return parte_; }

private:
    [[nodiscard]] std::span<const std::uint8_t> Resto() const;
    void ProssimaParte();

    const std::vector<std::span<const std::uint8_t>>& parti_;
    std::size_t parte_ = 0;
    std::size_t i_;
};

} // namespace sagomi
