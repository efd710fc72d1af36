#include "frame/Decimale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdlib>
#include <system_error>

namespace sagomi {

namespace {

void ToglieZeri(Decimale& d) {
    const std::size_t ultima = d.cifre.find_last_not_of('0');
    d.cifre.erase(ultima == std::string::npos ? 0 : ultima + 1);
    const std::size_t prima = std::min(d.cifre.find_first_not_of('0'), d.cifre.size());
    d.cifre.erase(0, prima);
    d.punto -= static_cast<int>(prima);
    if (d.cifre.empty())
        d.punto = 0;
}

/// Reads the form "-1.2345e+02".
Decimale DaTesto(std::string_view testo) {
    Decimale d;
    d.negativo = testo.starts_with('-');
    if (d.negativo)
        testo.remove_prefix(1);
    const std::size_t e = testo.find('e');
    int esponente = 0;
    const std::size_t segno = testo[e + 1] == '+' ? e + 2 : e + 1; // from_chars refuses a plus
    std::from_chars(testo.data() + segno, testo.data() + testo.size(), esponente);
    for (const char c : testo.substr(0, e))
        if (c != '.')
            d.cifre += c;
    d.punto = esponente + 1;
    ToglieZeri(d);
    return d;
}

template <typename T, typename... Precisione> Decimale DaNumero(T valore, Precisione... cifre) {
    std::array<char, 96> spazio{}; // the longest shortest form of a double has 24 characters
    const auto fine = std::to_chars(spazio.data(), spazio.data() + spazio.size(), valore,
                                    std::chars_format::scientific, cifre...)
                          .ptr;
    return DaTesto({spazio.data(), static_cast<std::size_t>(fine - spazio.data())});
}

/// Adds one in the last place; nines carry over, in front of the first digit if need be.
void Incrementa(Decimale& d) {
    std::size_t i = d.cifre.size();
    while (i > 0 && d.cifre[i - 1] == '9')
        d.cifre[--i] = '0';
    if (i > 0) {
        ++d.cifre[i - 1];
        return;
    }
    d.cifre.insert(d.cifre.begin(), '1');
    ++d.punto;
}

} // namespace

Decimale CifreMinime(double valore) { return DaNumero(valore); }
Decimale CifreMinime(float valore) { return DaNumero(valore); }
Decimale CifreEsatte(double valore) { return DaNumero(valore, 60); }

Decimale ArrotondaSignificative(Decimale d, int nCifre) {
    if (nCifre >= static_cast<int>(d.cifre.size()))
        return d;
    if (nCifre < 0) {
        d.cifre.clear();
    } else {
        const bool inSu = d.cifre[static_cast<std::size_t>(nCifre)] >= '5';
        d.cifre.resize(static_cast<std::size_t>(nCifre));
        if (inSu)
            Incrementa(d);
    }
    ToglieZeri(d);
    return d;
}

Decimale ArrotondaDecimali(Decimale d, int nDec) {
    const int tenute = d.punto + nDec;
    return ArrotondaSignificative(std::move(d), std::max(tenute, -1));
}

std::string CifreIntere(const Decimale& d) {
    if (d.Zero() || d.punto <= 0)
        return {};
    std::string intere = d.cifre;
    intere.resize(static_cast<std::size_t>(d.punto), '0');
    return intere;
}

std::string CifreDecimali(const Decimale& d) {
    if (d.punto >= static_cast<int>(d.cifre.size()))
        return {};
    if (d.punto >= 0)
        return d.cifre.substr(static_cast<std::size_t>(d.punto));
    return std::string(static_cast<std::size_t>(-d.punto), '0') + d.cifre;
}

std::string TestoPosizionale(const Decimale& d, std::string_view separatore) {
    std::string testo = d.negativo && !d.Zero() ? "-" : "";
    const std::string intere = CifreIntere(d);
    const std::string decimali = CifreDecimali(d);
    testo += intere.empty() ? "0" : intere;
    if (!decimali.empty())
        testo.append(separatore).append(decimali);
    return testo;
}

std::string EsponenteConSegno(int esponente, int nCifre) {
    std::string cifre = std::to_string(std::abs(esponente)); // an integer: no locale in it
    if (static_cast<int>(cifre.size()) < nCifre)
        cifre.insert(0, static_cast<std::size_t>(nCifre) - cifre.size(), '0');
    return (esponente < 0 ? "-" : "+") + cifre;
}

std::string TestoEsponente(const Decimale& d, std::string_view separatore) {
    Decimale mantissa = d;
    mantissa.punto = d.Zero() ? 0 : 1;
    return TestoPosizionale(mantissa, separatore) + "E" + EsponenteConSegno(d.Zero() ? 0 : d.punto - 1, 2);
}

} // namespace sagomi
