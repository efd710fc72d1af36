#include "report/TestoRelazione.h"

#include <algorithm>
#include <array>

#include "report/Relazione.h"

namespace sagomi {

namespace {

constexpr std::size_t colonne = 110;
constexpr std::size_t colonnaSimbolo = 14;
constexpr std::size_t colonnaValore = 14;
constexpr std::size_t colonnaUnita = 8;

/// Columns as the eye counts them: neither a continuation byte of UTF-8 nor a combining bar takes one.
std::size_t Colonne(std::string_view testo) {
    std::size_t n = 0;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        const auto c = static_cast<unsigned char>(testo[i]);
        const bool segno = c == 0xCC || (c == 0xCD && i + 1 < testo.size() &&
                                         static_cast<unsigned char>(testo[i + 1]) < 0xB0);
        if ((c & 0xC0U) != 0x80U && !segno)
            ++n;
    }
    return n;
}

std::string Largo(const std::string& testo, std::size_t larghezza, bool destra = false) {
    const std::string spazi(larghezza - std::min(larghezza, Colonne(testo)), ' ');
    return destra ? spazi + testo : testo + spazi;
}

std::string Apice(std::string_view testo) {
    constexpr std::array<const char*, 10> cifre{"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
    std::string s;
    for (const char c : testo) {
        if (c >= '0' && c <= '9')
            s += cifre.at(static_cast<std::size_t>(c - '0'));
        else if (c == '-')
            s += "⁻";
        else
            return testo.find_first_of(" /·+") == std::string_view::npos ? '^' + std::string(testo)
                                                                         : "^(" + std::string(testo) + ')';
    }
    return s;
}

/// Writes lines without blanks at their ends.
class Righe {
public:
    void Riga(std::string riga = {}) {
        riga.erase(riga.find_last_not_of(' ') + 1);
        testo_ += riga + '\n';
    }
    void Passo(const PassoRelazione& p);
    void Verdetto(const VerdettoRelazione& v);
    void Paragrafo(std::string_view testo, std::string_view testa);
    [[nodiscard]] std::string Testo() && { return std::move(testo_); }

private:
    std::string testo_;
};

/// The value with what it is; the formula and its numbers below, each in a line of its own. A word stands
/// behind its description.
void Righe::Passo(const PassoRelazione& p) {
    const std::string valore = p.valore.empty() ? "-" : p.valore;
    const std::string descrizione = SenzaPedici(p.descrizione);
    const std::string norma = p.norma.empty() ? std::string() : "  [" + p.norma + ']';
    if (p.simbolo.empty() && p.formula.empty()) {
        Riga("  " + descrizione + ": " + valore + (p.unita.empty() ? "" : " " + SenzaPedici(p.unita)) +
             norma);
        return;
    }
    Riga("  " + Largo(SenzaPedici(p.simbolo), colonnaSimbolo) + Largo(valore, colonnaValore, true) + "  " +
         Largo(SenzaPedici(p.unita), colonnaUnita) + descrizione + norma);
    const std::string rientro(2 + colonnaSimbolo, ' ');
    for (const std::string* formula : {&p.formula, &p.numeri})
        if (!formula->empty())
            Paragrafo(SenzaPedici(*formula), rientro + (formula->starts_with('\n') ? "  " : "= "));
}

void Righe::Verdetto(const VerdettoRelazione& v) {
    std::string riga = "  " + v.verifica + ": " + std::string(TestoEsito(v.esito));
    if (const std::string utilizzo = TestoUtilizzo(v.utilizzo); !utilizzo.empty())
        riga += ", utilizzo " + utilizzo;
    if (!v.governa.empty())
        riga += ", governa " + SenzaPedici(v.governa);
    if (!v.norma.empty())
        riga += "  [" + v.norma + ']';
    Riga(riga);
    if (!v.motivo.empty())
        Paragrafo(SenzaPedici(v.motivo), "    ");
}

/// Breaks lines at blanks; those of the text stay.
void Righe::Paragrafo(std::string_view testo, std::string_view testa) {
    if (testo.starts_with('\n'))
        testo.remove_prefix(1);
    std::string riga(testa);
    const std::string rientro(Colonne(testa), ' ');
    std::string parola;
    const auto aggiunge = [&] {
        const bool primo = riga == testa || riga == rientro;
        if (!primo && Colonne(riga) + 1 + Colonne(parola) > colonne) {
            Riga(riga);
            riga = rientro;
        } else if (!primo) {
            riga += ' ';
        }
        riga += parola;
        parola.clear();
    };
    for (const char c : testo) {
        if (c == '\r')
            continue;
        if (c != ' ' && c != '\n') {
            parola += c;
            continue;
        }
        aggiunge();
        if (c == '\n') {
            Riga(riga);
            riga = rientro;
        }
    }
    aggiunge();
    Riga(riga);
}

} // namespace

std::string SenzaPedici(std::string_view markup) {
    std::string testo;
    while (!markup.empty()) {
        const std::size_t apre = markup.find('{');
        const std::size_t chiude = apre == std::string_view::npos ? apre : markup.find('}', apre);
        if (chiude == std::string_view::npos)
            return testo + std::string(markup);
        const bool alto = apre > 0 && markup[apre - 1] == '^';
        const std::string_view dentro = markup.substr(apre + 1, chiude - apre - 1);
        testo += markup.substr(0, alto ? apre - 1 : apre);
        testo += alto ? Apice(dentro) : std::string(dentro);
        markup.remove_prefix(chiude + 1);
    }
    return testo;
}

std::string TestoRelazione(const Relazione& relazione) {
    Righe righe;
    righe.Riga(relazione.titolo + ": " + relazione.oggetto);
    if (!relazione.progetto.empty())
        righe.Riga("Progetto: " + relazione.progetto);
    righe.Riga(relazione.data.empty() ? ProgrammaRelazione()
                                      : "Data: " + relazione.data + "  " + ProgrammaRelazione());
    for (const CapitoloRelazione& c : relazione.capitoli) {
        righe.Riga();
        righe.Riga(c.titolo);
        for (const PassoRelazione& p : c.passi)
            righe.Passo(p);
        for (const std::string& nota : c.note)
            righe.Paragrafo(SenzaPedici(nota), "  ");
        if (c.verdetto)
            righe.Verdetto(*c.verdetto);
    }
    if (!relazione.avvisi.empty())
        righe.Riga();
    for (const std::string& avviso : relazione.avvisi)
        righe.Paragrafo(avviso, "avviso: ");
    return std::move(righe).Testo();
}

} // namespace sagomi
