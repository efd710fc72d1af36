#pragma once

#include <charconv>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace sagomi::prove {

/// A case of a table of tests/data/sections: what is given and what must come out.
struct CasoDaFile {
    std::string nome;
    std::map<std::string, std::string> dati;
    std::map<std::string, std::string> attesi;
};

inline void PrintTo(const CasoDaFile& c, std::ostream* os) { *os << c.nome; }

inline double NumeroDaTesto(const std::string& testo) {
    double v = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), v);
    if (errore != std::errc() || fine != testo.data() + testo.size())
        throw std::invalid_argument("not a number: " + testo);
    return v;
}

/// Reads lines "caso <name>", "dati k=v ...", "attesi k=v ..."; a blank in a value is written "_".
inline std::vector<CasoDaFile> LeggeCasi(const std::string& percorso) {
    std::ifstream file(percorso);
    if (!file)
        throw std::runtime_error("cannot read " + percorso);
    std::vector<CasoDaFile> casi;
    for (std::string riga; std::getline(file, riga);) {
        std::istringstream parole(riga);
        std::string genere;
        if (!(parole >> genere) || genere[0] == '#')
            continue;
        if (genere == "caso") {
            casi.push_back({riga.substr(5), {}, {}});
            continue;
        }
        auto& valori = genere == "dati" ? casi.back().dati : casi.back().attesi;
        for (std::string coppia; parole >> coppia;) {
            const auto uguale = coppia.find('=');
            std::string valore = coppia.substr(uguale + 1);
            for (char& ch : valore)
                ch = ch == '_' ? ' ' : ch;
            valori[coppia.substr(0, uguale)] = valore;
        }
    }
    return casi;
}

} // namespace sagomi::prove
