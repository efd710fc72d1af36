#include "frame/NumeroPulito.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "frame/Numeri.h"

namespace sagomi {

namespace {

constexpr std::array<std::string_view, 4> bianchiUniti{"\u00A0", "\u202F", "\u2007", "\u2060"};
constexpr std::array<std::string_view, 3> menoTipografici{"\u2212", "\u2013", "\uFE63"};

bool Prende(std::string_view& testo, std::string_view inizio) {
    if (inizio.empty() || !testo.starts_with(inizio))
        return false;
    testo.remove_prefix(inizio.size());
    return true;
}

std::string_view PrendeCifre(std::string_view& testo) {
    const std::size_t fine = std::min(testo.find_first_not_of("0123456789"), testo.size());
    const std::string_view cifre = testo.substr(0, fine);
    testo.remove_prefix(fine);
    return cifre;
}

/// "0.125" where the point groups is no group of anybody's.
bool PrimoGruppo(std::string_view cifre) {
    return !cifre.empty() && cifre.size() <= 3 && cifre.front() != '0';
}

/// Takes the digits before the decimal separator; false where a group mark stands in a wrong place.
bool PrendeIntere(std::string_view& testo, std::string_view& prime) {
    prime = PrendeCifre(testo);
    const std::string migliaia = Utf8DaCodice(CarMigliaia);
    if (!Prende(testo, migliaia))
        return true;
    if (!PrimoGruppo(prime))
        return false;
    do {
        if (PrendeCifre(testo).size() != 3)
            return false;
    } while (Prende(testo, migliaia));
    return true;
}

/// Takes an exponent; false where one begins and has no digits.
bool PrendeEsponente(std::string_view& testo) {
    if (!Prende(testo, "E") && !Prende(testo, "e"))
        return true;
    if (!Prende(testo, "+"))
        Prende(testo, "-");
    return !PrendeCifre(testo).empty();
}

std::string_view SenzaBianchi(std::string_view testo) {
    constexpr std::string_view bianchi = " \t\r\n";
    const std::size_t inizio = std::min(testo.find_first_not_of(bianchi), testo.size());
    testo.remove_prefix(inizio);
    return testo.substr(0, testo.find_last_not_of(bianchi) + 1); // none: npos + 1 is 0
}

void Sostituisce(std::string& testo, std::string_view vecchio, std::string_view nuovo) {
    for (std::size_t i = testo.find(vecchio); i != std::string::npos;
         i = testo.find(vecchio, i + nuovo.size()))
        testo.replace(i, vecchio.size(), nuovo);
}

} // namespace

bool NumeroPulito(std::string_view testo) {
    std::string_view resto = SenzaBianchi(testo);
    if (resto.empty())
        return true;
    if (!Prende(resto, "+"))
        Prende(resto, "-");
    std::string_view prime;
    if (!PrendeIntere(resto, prime))
        return false;
    const bool decimali = Prende(resto, Utf8DaCodice(CarDecimale)) && !PrendeCifre(resto).empty();
    return (decimali || !prime.empty()) && PrendeEsponente(resto) && resto.empty();
}

std::string NumeroRipulito(std::string_view testo) {
    std::string ripulito(testo);
    for (const std::string_view meno : menoTipografici)
        Sostituisce(ripulito, meno, "-");
    const std::string migliaia = Utf8DaCodice(CarMigliaia);
    const bool raggruppa = std::ranges::find(bianchiUniti, migliaia) != bianchiUniti.end();
    for (const std::string_view bianco : bianchiUniti)
        if (bianco != migliaia)
            Sostituisce(ripulito, bianco, raggruppa ? migliaia : "");
    return ripulito;
}

} // namespace sagomi
