#include "catalogue/FormatiXls.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace sagomi {

namespace {

constexpr GenereNumero Composto(bool data, bool ora) {
    if (data)
        return ora ? GenereNumero::DataOra : GenereNumero::Data;
    return ora ? GenereNumero::Ora : GenereNumero::Semplice;
}

/// Takes from the front of `figura` what shows no part of the number: a quoted text, a character behind a
/// backslash, a filler, a space as wide as a character. False when there is none.
bool SaltaTesto(std::string_view& figura) {
    if (figura.front() == '"') {
        const std::size_t fine = figura.find('"', 1);
        figura.remove_prefix(fine == std::string_view::npos ? figura.size() : fine + 1);
        return true;
    }
    if (figura.front() != '\\' && figura.front() != '_' && figura.front() != '*')
        return false;
    figura.remove_prefix(std::min<std::size_t>(2, figura.size()));
    return true;
}

/// Takes brackets from the front: a colour, a country, a condition. What is left of [h], [mm] is h, mm.
std::string PrendeParentesi(std::string_view& figura) {
    const std::size_t fine = std::min(figura.find(']'), figura.size() - 1);
    const std::string_view dentro = figura.substr(1, std::max<std::size_t>(fine, 1) - 1);
    figura.remove_prefix(fine + 1);
    const bool trascorso = dentro.find_first_not_of("hHmMsS") == std::string_view::npos;
    return trascorso ? std::string(dentro) : std::string();
}

/// The letters of the first section, small, without texts and brackets.
std::string Lettere(std::string_view figura) {
    std::string lettere;
    while (!figura.empty() && figura.front() != ';') {
        if (SaltaTesto(figura))
            continue;
        if (figura.front() == '[') {
            lettere += PrendeParentesi(figura);
            continue;
        }
        lettere.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(figura.front()))));
        figura.remove_prefix(1);
    }
    return lettere;
}

/// Takes a word out of the letters. True when it was there.
bool Toglie(std::string& lettere, std::string_view parola) {
    const std::size_t dove = lettere.find(parola);
    if (dove != std::string::npos)
        lettere.erase(dove, parola.size());
    return dove != std::string::npos;
}

} // namespace

GenereNumero GenereFormato(unsigned formato) {
    if (formato >= 14 && formato <= 17)
        return GenereNumero::Data;
    if (formato == 22)
        return GenereNumero::DataOra;
    return (formato >= 18 && formato <= 21) || (formato >= 45 && formato <= 47) ? GenereNumero::Ora
                                                                                : GenereNumero::Semplice;
}

GenereNumero GenereFigura(std::string_view figura) {
    std::string lettere = Lettere(figura);
    Toglie(lettere, "general");
    const bool mezzogiorno = Toglie(lettere, "am/pm") || Toglie(lettere, "a/p");
    const bool ora = mezzogiorno || lettere.find_first_of("hs") != std::string::npos;
    const bool mesi = !ora && lettere.find('m') != std::string::npos; // beside hours they are minutes
    return Composto(mesi || lettere.find_first_of("dy") != std::string::npos, ora);
}

} // namespace sagomi
