#include "catalogue/LetturaBiff.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace sagomi {

namespace {

unsigned Leggi16(std::span<const std::uint8_t> d, std::size_t i) {
    return d[i] | static_cast<unsigned>(d[i + 1]) << 8U;
}

[[noreturn]] void TestiDanneggiati() {
    throw std::runtime_error("la cartella di lavoro è danneggiata (testi)");
}

} // namespace

unsigned RecordLetto::U8(std::size_t i) const { return i < Lunghezza() ? parti.front()[i] : 0; }

unsigned RecordLetto::U16(std::size_t i) const { return U8(i) | U8(i + 1) << 8U; }

std::uint32_t RecordLetto::U32(std::size_t i) const { return U16(i) | U16(i + 2) << 16U; }

double RecordLetto::F64(std::size_t i) const {
    return std::bit_cast<double>(U32(i) | static_cast<std::uint64_t>(U32(i + 4)) << 32U);
}

std::vector<RecordLetto> LeggiRecord(std::span<const std::uint8_t> flusso) {
    std::vector<RecordLetto> record;
    for (std::size_t i = 0; i + testaRecord <= flusso.size();) {
        const unsigned genere = Leggi16(flusso, i);
        const std::size_t lunghezza = Leggi16(flusso, i + 2);
        if (genere == 0 && lunghezza == 0)
            break; // the rest is filling
        if (lunghezza > flusso.size() - i - testaRecord)
            throw std::runtime_error("la cartella di lavoro è danneggiata (record)");
        const auto corpo = flusso.subspan(i + testaRecord, lunghezza);
        if (genere == static_cast<unsigned>(Biff::Continue) && !record.empty())
            record.back().parti.push_back(corpo);
        else
            record.push_back({genere, i, {corpo}});
        i += testaRecord + lunghezza;
    }
    return record;
}

std::span<const std::uint8_t> LettoreStringhe::Resto() const {
    const auto& parte = parti_[parte_];
    return parte.subspan(std::min(i_, parte.size()));
}

void LettoreStringhe::ProssimaParte() {
    i_ = 0;
    if (++parte_ >= parti_.size())
        TestiDanneggiati();
}

std::span<const std::uint8_t> LettoreStringhe::Prendi(std::size_t n) {
    if (Resto().empty())
        ProssimaParte();
    if (Resto().size() < n)
        TestiDanneggiati();
    const auto presi = Resto().first(n);
    i_ += n;
    return presi;
}

void LettoreStringhe::Salta(std::size_t n) {
    while (n > 0) {
        if (Resto().empty())
            ProssimaParte();
        const std::size_t qui = std::min(n, Resto().size());
        i_ += qui;
        n -= qui;
    }
}

std::u16string LettoreStringhe::Caratteri(std::size_t n, unsigned opzioni) {
    std::u16string testo;
    while (testo.size() < n) {
        if (Resto().empty()) {
            ProssimaParte();
            opzioni = Prendi(1)[0];
        }
        const std::size_t largo = (opzioni & 1U) != 0 ? 2 : 1;
        const std::size_t qui = std::min(n - testo.size(), Resto().size() / largo);
        if (qui == 0)
            TestiDanneggiati();
        const auto byte = Prendi(qui * largo);
        for (std::size_t i = 0; i < byte.size(); i += largo)
            testo.push_back(static_cast<char16_t>(largo == 2 ? Leggi16(byte, i) : byte[i]));
    }
    return testo;
}

} // namespace sagomi
