#include "catalogue/CatalogoCsv.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstddef>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "catalogue/Csv.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/Famiglie.h"

namespace sagomi {

namespace {

[[noreturn]] void Fallisce(std::string_view foglio, std::size_t riga, const std::string& cosa) {
    throw ErroreCatalogo("Errore nella tabella \"" + std::string(foglio) + "\", riga " +
                         std::to_string(riga) + ": " + cosa + ".");
}

/// Letters and digits alone, small: "Wpl,y (cm3)" and "Wply_cm3" are the same column.
std::string Nocciolo(std::string_view nome) {
    std::string n;
    for (const char c : nome)
        if (std::isalnum(static_cast<unsigned char>(c)))
            n.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
    return n;
}

void VerificaColonne(std::string_view foglio, const std::vector<std::string>& testa,
                     const std::vector<std::string_view>& intestazioni) {
    const bool conBaricentro = testa.size() == intestazioni.size() + 1 && testa.back() == "e_cm";
    if (testa.size() != intestazioni.size() && !conBaricentro)
        Fallisce(foglio, 1, std::to_string(testa.size()) + " colonne");
    for (std::size_t c = 0; c < intestazioni.size(); ++c)
        if (Nocciolo(testa[c]) != Nocciolo(intestazioni[c]))
            Fallisce(foglio, 1, "\"" + testa[c] + "\" al posto di \"" + std::string(intestazioni[c]) + "\"");
}

Valore NumeroDaCsv(std::string_view foglio, std::size_t riga, const std::string& testo) {
    if (testo.empty())
        return {};
    double v = 0;
    const auto letto = std::from_chars(testo.data(), testo.data() + testo.size(), v);
    if (letto.ec != std::errc() || letto.ptr != testo.data() + testo.size())
        Fallisce(foglio, riga, "\"" + testo + "\" non è un numero");
    return v;
}

std::string LeggeTesto(const std::filesystem::path& file) {
    const std::ifstream f(file, std::ios::binary);
    std::ostringstream testo;
    if (!f || !(testo << f.rdbuf()))
        throw ErroreCatalogo("Errore nella lettura di \"" + file.string() + "\": il file non si apre.");
    return testo.str();
}

} // namespace

Foglio FoglioDaCsv(std::string_view foglio, std::string_view schermo, std::string_view csv) {
    const auto& intestazioni = Intestazioni(schermo);
    const auto righe = LeggeCsv(csv);
    if (righe.empty())
        Fallisce(foglio, 1, "manca");
    VerificaColonne(foglio, righe.front(), intestazioni);
    Foglio f;
    f.nome = foglio;
    for (std::size_t c = 0; c < intestazioni.size(); ++c)
        f.Scrive(0, c, std::string(intestazioni[c]));
    for (std::size_t r = 1; r < righe.size(); ++r) {
        if (righe[r].size() != righe.front().size())
            Fallisce(foglio, r + 1, std::to_string(righe[r].size()) + " valori");
        f.Scrive(r, 0, righe[r][0]);
        for (std::size_t c = 1; c < intestazioni.size(); ++c)
            f.Scrive(r, c, NumeroDaCsv(foglio, r + 1, righe[r][c]));
    }
    return f;
}

CartellaDati CatalogoDaCsv(const std::filesystem::path& cartella) {
    CartellaDati catalogo;
    for (const FamigliaSchermo& famiglia : FamiglieSchermi())
        for (const std::string_view foglio : famiglia.fogli) {
            std::string file(foglio);
            std::ranges::replace(file, ' ', '_');
            catalogo.fogli.push_back(
                FoglioDaCsv(foglio, famiglia.schermo, LeggeTesto(cartella / (file + ".csv"))));
        }
    return catalogo;
}

} // namespace sagomi
