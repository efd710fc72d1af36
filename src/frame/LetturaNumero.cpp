#include "frame/LetturaNumero.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

namespace sagomi {

namespace {

bool Cifra(char c) { return c >= '0' && c <= '9'; }

std::size_t SaltaCifre(std::string_view testo, std::size_t i) {
    while (i < testo.size() && Cifra(testo[i]))
        ++i;
    return i;
}

/// Length of the exponent at the front of a text, 0 where it has no digit.
std::size_t LunghezzaEsponente(std::string_view testo) {
    if (testo.empty() || (testo[0] != 'E' && testo[0] != 'e'))
        return 0;
    const std::size_t cifre = testo.size() > 1 && (testo[1] == '+' || testo[1] == '-') ? 2 : 1;
    const std::size_t fine = SaltaCifre(testo, cifre);
    return fine > cifre ? fine : 0;
}

/// Length of the number without sign at the front of a text, 0 where none begins.
std::size_t LunghezzaNumero(std::string_view testo) {
    const std::size_t intere = SaltaCifre(testo, 0);
    std::size_t fine = intere;
    if (intere < testo.size() && testo[intere] == '.')
        fine = SaltaCifre(testo, intere + 1);
    const bool soloPunto = intere == 0 && fine <= 1;
    return soloPunto ? 0 : fine + LunghezzaEsponente(testo.substr(fine));
}

/// Whether a number that no double holds is so because it is tiny: its first significant digit, moved by the
/// exponent, stands behind the point.
bool Minuscolo(std::string_view numero) {
    const std::size_t e = std::min(numero.find_first_of("Ee"), numero.size());
    const std::size_t punto = std::min(numero.find('.'), e);
    const std::size_t prima = numero.find_first_not_of("0.");
    std::int64_t esponente = 0;
    if (e < numero.size()) {
        const std::size_t segno = numero[e + 1] == '+' ? e + 2 : e + 1;
        const auto letto = std::from_chars(numero.data() + segno, numero.data() + numero.size(), esponente);
        if (letto.ec != std::errc{})
            return numero[e + 1] == '-';
    }
    constexpr std::int64_t oltreOgniTesto = std::int64_t{1} << 62U; // longer than any text: the sum fits
    esponente = std::clamp(esponente, -oltreOgniTesto, oltreOgniTesto);
    return static_cast<std::int64_t>(punto) - static_cast<std::int64_t>(prima) + esponente < 0;
}

} // namespace

template <typename T> NumeroLetto<T> LeggeNumero(std::string_view testo) {
    constexpr std::string_view bianchi = " \t\r\n";
    std::size_t i = std::min(testo.find_first_not_of(bianchi), testo.size());
    const bool negativo = testo.substr(i).starts_with('-');
    if (negativo || testo.substr(i).starts_with('+'))
        i = std::min(testo.find_first_not_of(bianchi, i + 1), testo.size());
    const std::string_view numero = testo.substr(i, LunghezzaNumero(testo.substr(i)));
    NumeroLetto<T> letto;
    if (numero.empty())
        return letto;
    letto.fine = i + numero.size();
    const auto esito = std::from_chars(numero.data(), numero.data() + numero.size(), letto.valore);
    letto.troppoGrande = esito.ec == std::errc::result_out_of_range && !Minuscolo(numero);
    if (letto.troppoGrande)
        letto.valore = std::numeric_limits<T>::infinity();
    if (negativo)
        letto.valore = -letto.valore;
    return letto;
}

template NumeroLetto<double> LeggeNumero(std::string_view);
template NumeroLetto<float> LeggeNumero(std::string_view);

} // namespace sagomi
