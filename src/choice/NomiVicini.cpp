#include "choice/NomiVicini.h"

#include <algorithm>
#include <utility>

#include "catalogue/Minuscole.h"

namespace sagomi {

std::size_t Distanza(std::string_view a, std::string_view b) {
    std::vector<std::size_t> riga(b.size() + 1);
    for (std::size_t j = 0; j < riga.size(); ++j)
        riga[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t obliquo = std::exchange(riga[0], i);
        for (std::size_t j = 1; j < riga.size(); ++j) {
            const std::size_t cambiata = obliquo + (a[i - 1] == b[j - 1] ? 0 : 1);
            obliquo = riga[j];
            riga[j] = std::min({cambiata, riga[j] + 1, riga[j - 1] + 1});
        }
    }
    return riga.back();
}

std::string Piegato(std::string_view nome) {
    std::string s = Minuscole(nome);
    std::erase(s, ' ');
    return s;
}

std::vector<std::string> NomiVicini(std::string_view nome, const std::vector<std::string>& nomi) {
    constexpr std::size_t quanti = 3;
    const std::string cercato = Piegato(nome);
    std::size_t minima = cercato.size() / 2 + 1;
    std::vector<std::string> vicini;
    for (const std::string& altro : nomi) {
        const std::string piegato = Piegato(altro);
        if (cercato.size() > piegato.size() + minima) // letters that are too many cannot stay
            continue;
        const std::size_t d = Distanza(cercato, piegato);
        if (d > minima || (d == minima && vicini.empty()))
            continue;
        if (d < minima)
            vicini.clear();
        minima = d;
        if (vicini.size() < quanti && std::ranges::find(vicini, altro) == vicini.end())
            vicini.push_back(altro);
    }
    return vicini;
}

std::string Elencati(const std::vector<std::string>& nomi) {
    std::string testo;
    for (const std::string& nome : nomi)
        testo += (testo.empty() ? "" : ", ") + nome;
    return testo;
}

} // namespace sagomi
