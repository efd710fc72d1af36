#include "Verbale.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <set>
#include <stdexcept>

#include <gtest/gtest.h>

#include "Fonti.h"

namespace sagomi::verifica {

namespace {

constexpr double scartoDaSpiegare = 0.01;
constexpr std::array nomiCapitoli{"sagomi",      "classi",       "resistenza", "instabilita", "svergolamento",
                                  "interazione", "collegamenti", "giunti",     "miste",       "critici"};

struct Gruppo {
    std::string capitolo, fonte, luogo, dati; ///< of a second method: title in luogo, method in fonte
    std::vector<Confronto> confronti;
};

struct CasoRegola {
    std::string dati, grandezza, unita;
    double teoria, programma;
    Verso verso;
};

struct RegolaScritta {
    std::string id;
    std::vector<CasoRegola> casi;
    std::vector<std::pair<std::string, std::pair<double, int>>> numeri;
};

struct GraficoScritto {
    std::string dove, didascalia, x, y;
    std::vector<std::pair<std::string, Grafico::Punti>> serie;
};

struct Verbale {
    std::vector<Gruppo> esempi, controprove;
    std::vector<RegolaScritta> regole;
    std::vector<GraficoScritto> grafici;
};

Verbale& IlVerbale() {
    static Verbale v;
    return v;
}

std::string Stringa(std::string_view s) {
    std::string esce = "\"";
    for (const char c : s) {
        if (c == '"' || c == '\\')
            esce += '\\';
        esce += c == '\n' ? ' ' : c;
    }
    return esce + '"';
}

std::string Numero(double x) {
    std::array<char, 40> testo{};
    const auto fine = std::to_chars(testo.data(), testo.data() + testo.size(), x).ptr;
    return std::isfinite(x) ? std::string(testo.data(), fine) : "null";
}

using Campi = std::vector<std::pair<const char*, std::string>>;

std::string Oggetto(const Campi& campi) {
    std::string esce;
    for (const auto& [nome, valore] : campi)
        esce += (esce.empty() ? "{" : ", ") + Stringa(nome) + ": " + valore;
    return esce + "}";
}

template <typename T, typename F> std::string Lista(const std::vector<T>& voci, F scrive) {
    std::string esce;
    for (const T& v : voci)
        esce += (esce.empty() ? "\n" : ",\n") + scrive(v);
    return "[" + esce + "]";
}

std::string Scrive(const Confronto& c) {
    return Oggetto({{"grandezza", Stringa(c.grandezza)},
                    {"unita", Stringa(c.unita)},
                    {"riferimento", Stringa(c.riferimento)},
                    {"atteso", Numero(c.atteso)},
                    {"valore", Numero(c.valore)},
                    {"tolleranza", Numero(c.tolleranza)},
                    {"nota", Stringa(c.nota)}});
}

std::string Scrive(const Gruppo& g) {
    return Oggetto({{"capitolo", Stringa(g.capitolo)},
                    {"fonte", Stringa(g.fonte)},
                    {"luogo", Stringa(g.luogo)},
                    {"dati", Stringa(g.dati)},
                    {"confronti", Lista(g.confronti, [](const Confronto& c) { return Scrive(c); })}});
}

const char* Nome(Verso v) {
    return v == Verso::resistenza ? "resistenza" : v == Verso::sollecitazione ? "sollecitazione" : "neutro";
}

std::string Scrive(const RegolaScritta& r) {
    const auto caso = [](const CasoRegola& c) {
        return Oggetto({{"dati", Stringa(c.dati)},
                        {"grandezza", Stringa(c.grandezza)},
                        {"unita", Stringa(c.unita)},
                        {"teoria", Numero(c.teoria)},
                        {"programma", Numero(c.programma)},
                        {"verso", Stringa(Nome(c.verso))}});
    };
    const auto numero = [](const auto& n) {
        return Oggetto({{"nome", Stringa(n.first)},
                        {"valore", Numero(n.second.first)},
                        {"decimali", std::to_string(n.second.second)}});
    };
    return Oggetto(
        {{"id", Stringa(r.id)}, {"casi", Lista(r.casi, caso)}, {"numeri", Lista(r.numeri, numero)}});
}

std::string Scrive(const GraficoScritto& g) {
    const auto punto = [](const auto& p) { return "[" + Numero(p.first) + ", " + Numero(p.second) + "]"; };
    const auto serie = [&](const auto& s) {
        return Oggetto({{"nome", Stringa(s.first)}, {"punti", Lista(s.second, punto)}});
    };
    return Oggetto({{"dove", Stringa(g.dove)},
                    {"didascalia", Stringa(g.didascalia)},
                    {"x", Stringa(g.x)},
                    {"y", Stringa(g.y)},
                    {"serie", Lista(g.serie, serie)}});
}

std::string Scrive(const Fonte& f) {
    return Oggetto({{"sigla", Stringa(f.sigla)},
                    {"autori", Stringa(f.autori)},
                    {"titolo", Stringa(f.titolo)},
                    {"edizione", Stringa(f.edizione)},
                    {"anno", Stringa(f.anno)},
                    {"lettura", Stringa(f.lettura)}});
}

/// Writes the record at the end of a run, into the file that SAGOMI_VERBALE names.
class Scrittura : public testing::Environment {
public:
    void TearDown() override {
        const char* path = std::getenv("SAGOMI_VERBALE");
        if (path == nullptr)
            return;
        const Verbale& v = IlVerbale();
        std::ofstream file(path);
        file << Oggetto({{"fonti", Lista(Fonti(), [](const Fonte& f) { return Scrive(f); })},
                         {"esempi", Lista(v.esempi, [](const Gruppo& g) { return Scrive(g); })},
                         {"controprove", Lista(v.controprove, [](const Gruppo& g) { return Scrive(g); })},
                         {"regole", Lista(v.regole, [](const RegolaScritta& r) { return Scrive(r); })},
                         {"grafici", Lista(v.grafici, [](const GraficoScritto& g) { return Scrive(g); })}})
             << '\n';
        EXPECT_TRUE(file.good()) << path;
    }
};

[[maybe_unused]] const testing::Environment* const scrittura =
    testing::AddGlobalTestEnvironment(new Scrittura);

void Verifica(const std::string& dove, const Confronto& c) {
    const double scarto = Scarto(c.atteso, c.valore);
    EXPECT_LE(std::abs(scarto), c.tolleranza)
        << dove << ": " << c.grandezza << ", " << c.riferimento << " against " << c.valore << ", off by "
        << 100 * scarto << " %";
    EXPECT_TRUE(std::abs(scarto) <= scartoDaSpiegare || !c.nota.empty())
        << dove << ": " << c.grandezza << " differs by " << 100 * scarto << " % and no note says why";
}

std::string Corto(double x) {
    std::array<char, 40> testo{};
    const auto fine =
        std::to_chars(testo.data(), testo.data() + testo.size(), x, std::chars_format::general, 5).ptr;
    return {testo.data(), fine};
}

} // namespace

double Scarto(double riferimento, double valore) {
    return riferimento == 0 ? valore : (valore - riferimento) / std::abs(riferimento);
}

double Cifra(std::string_view testo) {
    double x = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), x);
    if (errore != std::errc() || fine != testo.data() + testo.size())
        throw std::invalid_argument("no figure: " + std::string(testo));
    return x;
}

Esempio::Esempio(Capitolo capitolo, std::string_view fonte, std::string luogo, std::string dati)
    : indice_(IlVerbale().esempi.size()) {
    const Fonte& f = FonteDi(fonte);
    IlVerbale().esempi.push_back({nomiCapitoli.at(static_cast<std::size_t>(capitolo)),
                                  std::string(f.sigla),
                                  std::move(luogo),
                                  std::move(dati),
                                  {}});
}

Esempio& Esempio::Confronta(std::string grandezza, std::string unita, std::string_view pubblicato,
                            double valore, double tolleranza, std::string nota) {
    Gruppo& g = IlVerbale().esempi.at(indice_);
    g.confronti.push_back({std::move(grandezza), std::move(unita), std::string(pubblicato), Cifra(pubblicato),
                           valore, tolleranza, std::move(nota)});
    Verifica(g.fonte + ", " + g.luogo, g.confronti.back());
    return *this;
}

Controprova::Controprova(std::string titolo, std::string metodo, std::string dati)
    : indice_(IlVerbale().controprove.size()) {
    IlVerbale().controprove.push_back({"", std::move(metodo), std::move(titolo), std::move(dati), {}});
}

Controprova& Controprova::Confronta(std::string grandezza, std::string unita, double secondo, double valore,
                                    double tolleranza, std::string nota) {
    Gruppo& g = IlVerbale().controprove.at(indice_);
    g.confronti.push_back({std::move(grandezza), std::move(unita), Corto(secondo), secondo, valore,
                           tolleranza, std::move(nota)});
    Verifica(g.luogo, g.confronti.back());
    return *this;
}

Regola::Regola(std::string id) : indice_(IlVerbale().regole.size()) {
    IlVerbale().regole.push_back({std::move(id), {}, {}});
}

Regola& Regola::Caso(std::string dati, std::string grandezza, std::string unita, double teoria,
                     double programma, Verso verso) {
    RegolaScritta& r = IlVerbale().regole.at(indice_);
    EXPECT_TRUE(std::isfinite(teoria) && std::isfinite(programma)) << r.id << ": " << dati;
    r.casi.push_back({std::move(dati), std::move(grandezza), std::move(unita), teoria, programma, verso});
    return *this;
}

Regola& Regola::Numero(std::string nome, double valore, int decimali) {
    IlVerbale().regole.at(indice_).numeri.push_back({std::move(nome), {valore, decimali}});
    return *this;
}

Grafico::Grafico(std::string dove, std::string didascalia, std::string x, std::string y)
    : indice_(IlVerbale().grafici.size()) {
    IlVerbale().grafici.push_back({std::move(dove), std::move(didascalia), std::move(x), std::move(y), {}});
}

Grafico& Grafico::Serie(std::string nome, Punti punti) {
    GraficoScritto& g = IlVerbale().grafici.at(indice_);
    for (const auto& [x, y] : punti)
        EXPECT_TRUE(std::isfinite(x) && std::isfinite(y)) << g.dove << ": " << nome;
    g.serie.emplace_back(std::move(nome), std::move(punti));
    return *this;
}

} // namespace sagomi::verifica
