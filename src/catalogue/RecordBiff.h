#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sagomi {

/// Kinds of the BIFF8 records that are written, and of those that are looked at when reading.
enum class Biff : std::uint16_t {
    Formula = 0x0006,
    CalcCount = 0x000C,
    CalcMode = 0x000D,
    Precision = 0x000E,
    RefMode = 0x000F,
    Delta = 0x0010,
    Iteration = 0x0011,
    Eof = 0x000A,
    Header = 0x0014,
    Footer = 0x0015,
    Selection = 0x001D,
    DateMode = 0x0022,
    FilePass = 0x002F,
    PrintHeaders = 0x002A,
    PrintGridlines = 0x002B,
    Font = 0x0031,
    Continue = 0x003C,
    Window1 = 0x003D,
    Pane = 0x0041,
    CodePage = 0x0042,
    DefColWidth = 0x0055,
    SaveRecalc = 0x005F,
    ColInfo = 0x007D,
    Guts = 0x0080,
    WsBool = 0x0081,
    GridSet = 0x0082,
    HCenter = 0x0083,
    VCenter = 0x0084,
    BoundSheet = 0x0085,
    Country = 0x008C,
    Setup = 0x00A1,
    MulRk = 0x00BD,
    RString = 0x00D6,
    DbCell = 0x00D7,
    Xf = 0x00E0,
    Sst = 0x00FC,
    LabelSst = 0x00FD,
    ExtSst = 0x00FF,
    UseSelfs = 0x0160,
    Dimensions = 0x0200,
    Number = 0x0203,
    Label = 0x0204,
    BoolErr = 0x0205,
    String = 0x0207,
    Row = 0x0208,
    Index = 0x020B,
    DefaultRowHeight = 0x0225,
    Window2 = 0x023E,
    Rk = 0x027E,
    Style = 0x0293,
    Format = 0x041E,
    Bof = 0x0809
};

/// A record holds at most this many bytes behind its head; the rest goes into CONTINUE records.
inline constexpr std::size_t massimoRecord = 8224;
inline constexpr std::size_t testaRecord = 4; ///< kind and length, 16 bits each

/// Bytes in the order of the format, the low one first.
class Ottetti {
public:
    Ottetti() { dati_.reserve(32); } // most records fit

    Ottetti& U8(unsigned v);
    Ottetti& U16(unsigned v);
    Ottetti& U32(std::uint32_t v);
    Ottetti& F64(double v);
    Ottetti& Testo(std::u16string_view t, std::size_t da, std::size_t n, bool stretto);

    [[nodiscard]] const std::vector<std::uint8_t>& dati() const { return dati_; }
    [[nodiscard]] std::size_t size() const { return dati_.size(); }
    void Svuota() { dati_.clear(); }

private:
    std::vector<std::uint8_t> dati_;
};

/// Where a cell stands, counted from 0, and the number of its style.
struct PostoBiff {
    unsigned riga, colonna, stile;
};

/// The "Workbook" stream: records one behind the other.
class FlussoBiff {
public:
    /// Makes room for so many bytes at once.
    void Riserva(std::size_t byte) { dati_.reserve(byte); }

    /// Appends a record; returns its position in the stream. More than massimoRecord bytes throw
    /// std::length_error.
    std::uint32_t Record(Biff genere, const Ottetti& corpo = {});

    /// Appends the record of a cell, which are most of a workbook: its place, then the value in 4 bytes (Rk,
    /// LabelSst) or in 8 (Number).
    void Cella(Biff genere, const PostoBiff& posto, std::uint32_t valore);
    void Cella(Biff genere, const PostoBiff& posto, double valore);

    /// Overwrites four bytes that were written before their value was known.
    void Corregge(std::uint32_t posizione, std::uint32_t valore);

    [[nodiscard]] std::uint32_t Posizione() const { return static_cast<std::uint32_t>(dati_.size()); }
    [[nodiscard]] const std::vector<std::uint8_t>& dati() const& { return dati_; }
    [[nodiscard]] std::vector<std::uint8_t> dati() && { return std::move(dati_); }

    /// Fills up with zeros to a length: a stream below 4096 bytes would be kept in the small sectors of the
    /// container, which some readers do not follow.
    void AllungaA(std::size_t lunghezza);

private:
    template <std::size_t n> void CellaDi(Biff genere, const PostoBiff& posto, std::uint64_t valore);

    std::vector<std::uint8_t> dati_;
};

/// UTF-8 to UTF-16. What is no valid UTF-8 becomes U+FFFD.
std::u16string Utf16DaUtf8(std::string_view testo);

/// UTF-16 to UTF-8. Half a character beyond U+FFFF becomes U+FFFD.
std::string Utf8DaUtf16(std::u16string_view testo);

/// All characters fit one byte: the format then stores the low bytes only.
bool EntraInUnByte(std::u16string_view testo);

/// A number in the 32 bits of an RK record: an integer of 30 bits or the upper 30 bits of the number, each
/// also of the hundredfold. Empty when the number would not come back exactly.
std::optional<std::uint32_t> CodificaRk(double valore);

} // namespace sagomi
