#include "catalogue/LetturaBiff.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "frame/CodificaAnsi.h"

namespace sagomi {

namespace {

static_assert(std::endian::native == std::endian::little, "the format has the low byte first");

template <typename T> T Numero(const std::uint8_t* byte) {
    T n;
    std::memcpy(&n, byte, sizeof n);
    return n;
}

[[noreturn]] void TestiDanneggiati() { throw DannoBiff("testi"); }

/// Characters of one byte are the first 256 of Unicode.
void AggiungeStretti(std::span<const std::uint8_t> byte, std::string& utf8) {
    for (const std::uint8_t b : byte)
        if (b < 0x80)
            utf8.push_back(static_cast<char>(b));
        else
            utf8.append({static_cast<char>(0xC0U | b >> 6U), static_cast<char>(0x80U | (b & 0x3FU))});
}

void AggiungeUnita(std::span<const std::uint8_t> byte, std::size_t largo, std::u16string& testo) {
    for (std::size_t i = 0; i < byte.size(); i += largo)
        testo.push_back(static_cast<char16_t>(largo == 2 ? Numero<std::uint16_t>(&byte[i]) : byte[i]));
}

} // namespace

bool CursoreBiff::Avanza() {
    if (prossimo_ > flusso_.size() || flusso_.size() - prossimo_ < testaRecord)
        return false;
    const auto testa = flusso_.subspan(prossimo_);
    const unsigned genere = Numero<std::uint16_t>(testa.data());
    const std::size_t lunghezza = Numero<std::uint16_t>(testa.data() + 2);
    if (genere == 0 && lunghezza == 0)
        return false; // the rest is filling
    if (lunghezza > testa.size() - testaRecord)
        throw DannoBiff("record");
    genere_ = genere;
    corpo_ = testa.subspan(testaRecord, lunghezza);
    prossimo_ += testaRecord + lunghezza;
    return true;
}

bool CursoreBiff::AvanzaSeContinua() {
    if (prossimo_ > flusso_.size() || flusso_.size() - prossimo_ < testaRecord)
        return false;
    return Numero<std::uint16_t>(&flusso_[prossimo_]) == static_cast<unsigned>(Biff::Continue) && Avanza();
}

unsigned CursoreBiff::U16(std::size_t i) const { return Numero<std::uint16_t>(Presi(i, 2)); }

std::uint32_t CursoreBiff::U32(std::size_t i) const { return Numero<std::uint32_t>(Presi(i, 4)); }

std::uint64_t CursoreBiff::U64(std::size_t i) const { return Numero<std::uint64_t>(Presi(i, 8)); }

std::span<const std::uint8_t> LettoreStringhe::Resto() const {
    const auto corpo = cursore_.Corpo();
    return corpo.subspan(std::min(i_, corpo.size()));
}

void LettoreStringhe::ProssimaParte() {
    i_ = 0;
    if (!cursore_.AvanzaSeContinua())
        TestiDanneggiati();
}

std::span<const std::uint8_t> LettoreStringhe::Prende(std::size_t n) {
    if (Resto().empty())
        ProssimaParte();
    if (Resto().size() < n)
        TestiDanneggiati();
    const auto presi = Resto().first(n);
    i_ += n;
    return presi;
}

unsigned LettoreStringhe::U16() { return Numero<std::uint16_t>(Prende(2).data()); }

std::uint32_t LettoreStringhe::U32() { return Numero<std::uint32_t>(Prende(4).data()); }

void LettoreStringhe::Salta(std::size_t n) {
    while (n > 0) {
        if (Resto().empty())
            ProssimaParte();
        const std::size_t qui = std::min(n, Resto().size());
        i_ += qui;
        n -= qui;
    }
}

void LettoreStringhe::Caratteri(std::size_t n, unsigned opzioni, std::string& utf8) {
    if ((opzioni & 1U) == 0 && n > 0 && n <= Resto().size())
        return AggiungeStretti(Prende(n), utf8);
    std::u16string testo; // whole, for a character in two halves may go over the border
    while (testo.size() < n) {
        if (Resto().empty()) {
            ProssimaParte();
            opzioni = U8();
        }
        const std::size_t largo = (opzioni & 1U) != 0 ? 2 : 1;
        const std::size_t qui = std::min(n - testo.size(), Resto().size() / largo);
        if (qui == 0)
            TestiDanneggiati();
        AggiungeUnita(Prende(qui * largo), largo, testo);
    }
    utf8 += Utf8DaUtf16(testo);
}

void LettoreStringhe::CaratteriAnsi(std::size_t n, std::string& utf8) {
    if (n == 0)
        return;
    const auto byte = Prende(n);
    utf8 += Utf8DaAnsi({reinterpret_cast<const char*>(byte.data()), byte.size()});
}

double DecodificaRk(std::uint32_t rk) {
    const double v = (rk & 2U) != 0 ? static_cast<double>(static_cast<std::int32_t>(rk) >> 2)
                                    : std::bit_cast<double>(static_cast<std::uint64_t>(rk & ~3U) << 32U);
    return (rk & 1U) != 0 ? v / 100 : v;
}

} // namespace sagomi
