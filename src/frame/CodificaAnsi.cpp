#include "frame/CodificaAnsi.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace sagomi {

namespace {

/// Bytes 0x80 to 0x9F; the rest of the page is Latin-1.
constexpr std::array<char32_t, 32> pagina80 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::uint8_t Byte(char c) { return static_cast<std::uint8_t>(c); }

void AggiungeUtf8(std::string& testo, char32_t codice) {
    const auto aggiunge = [&testo](char32_t b) { testo += static_cast<char>(static_cast<std::uint8_t>(b)); };
    if (codice < 0x80) {
        aggiunge(codice);
    } else if (codice < 0x800) {
        aggiunge(0xC0 | (codice >> 6));
        aggiunge(0x80 | (codice & 0x3F));
    } else {
        aggiunge(0xE0 | (codice >> 12));
        aggiunge(0x80 | ((codice >> 6) & 0x3F));
        aggiunge(0x80 | (codice & 0x3F));
    }
}

char AnsiDaCodice(char32_t codice) {
    if (codice < 0x80 || (codice >= 0xA0 && codice <= 0xFF))
        return static_cast<char>(static_cast<std::uint8_t>(codice));
    const auto* posto = std::find(pagina80.begin(), pagina80.end(), codice);
    return posto == pagina80.end() ? '?' : static_cast<char>(0x80 + (posto - pagina80.begin()));
}

constexpr char32_t nessuno = 0xFFFFFFFF;

/// Takes one character off the front of the text; `nessuno` and one byte where it is no UTF-8.
char32_t PrendeCodice(std::string_view& testo) {
    const std::uint8_t primo = Byte(testo[0]);
    const std::size_t seguito = primo < 0x80 ? 0 : primo < 0xC2 ? 9 : primo < 0xE0 ? 1 : primo < 0xF0 ? 2 : 3;
    char32_t codice = seguito == 0 ? primo : primo & (0x3FU >> seguito);
    bool buono = seguito < testo.size() && primo < 0xF5;
    for (std::size_t i = 1; buono && i <= seguito; ++i) {
        buono = (Byte(testo[i]) & 0xC0) == 0x80;
        codice = (codice << 6) | (Byte(testo[i]) & 0x3F);
    }
    constexpr std::array<char32_t, 4> minimo = {0, 0x80, 0x800,
                                                0x10000}; // no character in more bytes than due
    buono = buono && seguito < minimo.size() && codice >= minimo[seguito];
    testo.remove_prefix(buono ? seguito + 1 : 1);
    return buono ? codice : nessuno;
}

} // namespace

std::string AnsiDaUtf8(std::string_view testo) {
    std::string ansi;
    ansi.reserve(testo.size());
    while (!testo.empty())
        ansi += AnsiDaCodice(PrendeCodice(testo));
    return ansi;
}

std::string Utf8DaAnsi(std::string_view testo) {
    std::string utf8;
    utf8.reserve(testo.size());
    for (const char c : testo) {
        const std::uint8_t byte = Byte(c);
        AggiungeUtf8(utf8, byte >= 0x80 && byte < 0xA0 ? pagina80[byte - 0x80U] : byte);
    }
    return utf8;
}

} // namespace sagomi
