#include "catalogue/OrdineRighe.h"

#include <algorithm>
#include <bit>
#include <compare>
#include <limits>

namespace sagomi {

namespace {

constexpr std::uint64_t chiaveTesto = std::numeric_limits<std::uint64_t>::max();

/// A number that sorts as the value does; all texts have the last.
std::uint64_t Chiave(const Valore& v) {
    if (Vuoto(v))
        return 0;
    const auto* numero = std::get_if<double>(&v);
    if (numero == nullptr)
        return chiaveTesto;
    constexpr std::uint64_t segno = std::uint64_t{1} << 63U;
    const auto bit = std::bit_cast<std::uint64_t>(*numero == 0 ? 0.0 : *numero); // -0 is 0
    return (bit & segno) != 0 ? ~bit : bit | segno;
}

std::strong_ordering Confronta(const Valore& a, const Valore& b) {
    const std::uint64_t di_a = Chiave(a);
    const std::uint64_t di_b = Chiave(b);
    return di_a != chiaveTesto || di_b != chiaveTesto ? di_a <=> di_b
                                                      : std::get<std::string>(a) <=> std::get<std::string>(b);
}

struct Voce {
    std::uint64_t chiave;
    std::uint32_t riga;
};

} // namespace

std::vector<std::uint32_t> OrdineRighe(const std::vector<std::vector<Valore>>& righe, std::size_t colonna,
                                       bool tutti) {
    std::vector<Voce> voci;
    voci.reserve(righe.size());
    for (const auto& riga : righe)
        voci.push_back({Chiave(riga[colonna]), static_cast<std::uint32_t>(voci.size())});
    std::ranges::sort(voci, [&](const Voce& a, const Voce& b) {
        if (a.chiave != b.chiave)
            return a.chiave < b.chiave;
        const auto& di_a = righe[a.riga];
        const auto& di_b = righe[b.riga];
        auto ordine = Confronta(di_a[colonna], di_b[colonna]);
        for (std::size_t c = 0; tutti && ordine == std::strong_ordering::equal && c < di_a.size(); ++c)
            ordine = Confronta(di_a[c], di_b[c]);
        return ordine == std::strong_ordering::equal ? a.riga < b.riga : ordine == std::strong_ordering::less;
    });
    std::vector<std::uint32_t> ordine(voci.size());
    std::ranges::transform(voci, ordine.begin(), &Voce::riga);
    return ordine;
}

} // namespace sagomi
