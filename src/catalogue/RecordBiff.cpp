#include "catalogue/RecordBiff.h"

#include <array>
#include <bit>
#include <cmath>
#include <stdexcept>

namespace sagomi {

namespace {

constexpr char32_t sostituto = 0xFFFD;

/// Bytes that a lead byte announces and the bits that it brings; 0 for a byte that leads nothing.
struct Testa {
    int byte;
    char32_t bit;
    char32_t minimo; ///< below this the form is longer than it must be, which is not valid
};

Testa LeggeTesta(unsigned char c) {
    if (c < 0x80)
        return {1, c, 0};
    if (c >= 0xC2 && c < 0xE0)
        return {2, c & 0x1FU, 0x80};
    if (c >= 0xE0 && c < 0xF0)
        return {3, c & 0x0FU, 0x800};
    if (c >= 0xF0 && c < 0xF5)
        return {4, c & 0x07U, 0x10000};
    return {0, sostituto, 0};
}

/// The character at `i`; moves `i` behind it, or by one byte where there is none.
char32_t ProssimoCarattere(std::string_view testo, std::size_t& i) {
    const Testa testa = LeggeTesta(static_cast<unsigned char>(testo[i]));
    const std::size_t fine = i + static_cast<std::size_t>(testa.byte);
    ++i;
    if (testa.byte == 0 || fine > testo.size())
        return sostituto;
    char32_t c = testa.bit;
    for (std::size_t j = i; j < fine; ++j) {
        const auto segue = static_cast<unsigned char>(testo[j]);
        if ((segue & 0xC0U) != 0x80U)
            return sostituto;
        c = (c << 6U) | (segue & 0x3FU);
    }
    if (c < testa.minimo || c > 0x10FFFF || (c >= 0xD800 && c < 0xE000))
        return sostituto;
    i = fine;
    return c;
}

void AggiungeUtf8(std::string& utf8, char32_t c) {
    const auto seguito = [&utf8, c](unsigned spostamento) {
        utf8.push_back(static_cast<char>(0x80U | ((c >> spostamento) & 0x3FU)));
    };
    if (c < 0x80) {
        utf8.push_back(static_cast<char>(c));
    } else if (c < 0x800) {
        utf8.push_back(static_cast<char>(0xC0U | (c >> 6U)));
        seguito(0);
    } else if (c < 0x10000) {
        utf8.push_back(static_cast<char>(0xE0U | (c >> 12U)));
        seguito(6);
        seguito(0);
    } else {
        utf8.push_back(static_cast<char>(0xF0U | (c >> 18U)));
        seguito(12);
        seguito(6);
        seguito(0);
    }
}

/// An integer that 30 bits with sign hold. A negative zero is none: its sign would be lost.
bool InteroDaRk(double v) {
    return v >= -536870912.0 && v <= 536870911.0 && static_cast<double>(static_cast<std::int32_t>(v)) == v &&
           !(v == 0 && std::signbit(v));
}

std::uint32_t RkIntero(double v, unsigned centesimi) {
    return (static_cast<std::uint32_t>(static_cast<std::int32_t>(v)) << 2U) | 2U | centesimi;
}

/// The lower 34 bits are zero, so the upper 30 say it all.
bool BastanoTrentaBit(double v) { return (std::bit_cast<std::uint64_t>(v) & 0x3FFFFFFFFULL) == 0; }

std::uint32_t RkReale(double v, unsigned centesimi) {
    return static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(v) >> 32U) | centesimi;
}

/// Puts n bytes of a number down, the low one first; returns the place behind them.
template <std::size_t n> std::uint8_t* Mette(std::uint8_t* dove, std::uint64_t v) {
    for (std::size_t i = 0; i < n; ++i)
        dove[i] = static_cast<std::uint8_t>(v >> (8 * i));
    return dove + n;
}

/// Makes room for n more bytes; returns where they begin.
std::uint8_t* Allunga(std::vector<std::uint8_t>& dati, std::size_t n) {
    const std::size_t da = dati.size();
    dati.resize(da + n);
    return dati.data() + da;
}

std::uint8_t* MetteTesta(std::uint8_t* dove, Biff genere, std::size_t lunghezza) {
    return Mette<2>(Mette<2>(dove, static_cast<std::uint16_t>(genere)), lunghezza);
}

} // namespace

Ottetti& Ottetti::U8(unsigned v) {
    dati_.push_back(static_cast<std::uint8_t>(v & 0xFFU));
    return *this;
}

Ottetti& Ottetti::U16(unsigned v) {
    Mette<2>(Allunga(dati_, 2), v);
    return *this;
}

Ottetti& Ottetti::U32(std::uint32_t v) {
    Mette<4>(Allunga(dati_, 4), v);
    return *this;
}

Ottetti& Ottetti::F64(double v) {
    Mette<8>(Allunga(dati_, 8), std::bit_cast<std::uint64_t>(v));
    return *this;
}

Ottetti& Ottetti::Testo(std::u16string_view t, std::size_t da, std::size_t n, bool stretto) {
    for (const char16_t c : t.substr(da, n)) {
        if (stretto)
            U8(c);
        else
            U16(c);
    }
    return *this;
}

std::uint32_t FlussoBiff::Record(Biff genere, const Ottetti& corpo) {
    if (corpo.size() > massimoRecord)
        throw std::length_error("record BIFF troppo lungo");
    const std::uint32_t posizione = Posizione();
    MetteTesta(Allunga(dati_, testaRecord), genere, corpo.size());
    dati_.insert(dati_.end(), corpo.dati().begin(), corpo.dati().end());
    return posizione;
}

template <std::size_t n> void FlussoBiff::CellaDi(Biff genere, const PostoBiff& posto, std::uint64_t valore) {
    constexpr std::size_t corpo = 6 + n;
    std::array<std::uint8_t, testaRecord + corpo> record{};
    std::uint8_t* dove = MetteTesta(record.data(), genere, corpo);
    dove = Mette<2>(Mette<2>(Mette<2>(dove, posto.riga), posto.colonna), posto.stile);
    Mette<n>(dove, valore);
    dati_.insert(dati_.end(), record.begin(), record.end());
}

void FlussoBiff::Cella(Biff genere, const PostoBiff& posto, std::uint32_t valore) {
    CellaDi<4>(genere, posto, valore);
}

void FlussoBiff::Cella(Biff genere, const PostoBiff& posto, double valore) {
    CellaDi<8>(genere, posto, std::bit_cast<std::uint64_t>(valore));
}

void FlussoBiff::Corregge(std::uint32_t posizione, std::uint32_t valore) {
    for (unsigned i = 0; i < 4; ++i)
        dati_.at(posizione + i) = static_cast<std::uint8_t>(valore >> (8 * i));
}

void FlussoBiff::AllungaA(std::size_t lunghezza) {
    if (dati_.size() < lunghezza)
        dati_.resize(lunghezza);
}

std::u16string Utf16DaUtf8(std::string_view testo) {
    std::u16string u;
    u.reserve(testo.size());
    for (std::size_t i = 0; i < testo.size();) {
        const char32_t c = ProssimoCarattere(testo, i);
        if (c < 0x10000) {
            u.push_back(static_cast<char16_t>(c));
        } else {
            u.push_back(static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10U)));
            u.push_back(static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FFU)));
        }
    }
    return u;
}

std::string Utf8DaUtf16(std::u16string_view testo) {
    std::string utf8;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        char32_t c = testo[i];
        const bool coppia =
            (c & 0xFC00) == 0xD800 && i + 1 < testo.size() && (testo[i + 1] & 0xFC00) == 0xDC00;
        if (coppia)
            c = 0x10000 + ((c & 0x3FFU) << 10U) + (testo[++i] & 0x3FFU);
        else if (c >= 0xD800 && c < 0xE000)
            c = sostituto;
        AggiungeUtf8(utf8, c);
    }
    return utf8;
}

bool EntraInUnByte(std::u16string_view testo) {
    for (const char16_t c : testo)
        if (c > 0xFF)
            return false;
    return true;
}

std::optional<std::uint32_t> CodificaRk(double valore) {
    if (!std::isfinite(valore))
        return std::nullopt;
    if (InteroDaRk(valore))
        return RkIntero(valore, 0);
    if (BastanoTrentaBit(valore))
        return RkReale(valore, 0);
    const double centesimi = std::round(valore * 100);
    if (InteroDaRk(centesimi) && centesimi / 100 == valore)
        return RkIntero(centesimi, 1);
    return std::nullopt;
}

} // namespace sagomi
