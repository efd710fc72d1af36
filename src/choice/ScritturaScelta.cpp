#include "choice/ScritturaScelta.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <ostream>
#include <string_view>
#include <utility>
#include <variant>

#include "choice/RelazioneVerifica.h"
#include "choice/TabellaScelta.h"
#include "choice/ValoriScelta.h"
#include "report/TestoRelazione.h"

namespace sagomi {

namespace {

/// Shortest text with a point of a number rounded to four decimals.
std::string Arrotondato(double v) {
    constexpr int decimali = 4;
    char testo[64];
    const auto fine =
        std::abs(v) < 1e15
            ? std::to_chars(testo, testo + sizeof testo, v, std::chars_format::fixed, decimali).ptr
            : std::to_chars(testo, testo + sizeof testo, v).ptr;
    std::string numero(testo, fine);
    if (numero.find('.') != std::string::npos && numero.find('e') == std::string::npos) {
        numero.erase(numero.find_last_not_of('0') + 1);
        if (numero.ends_with('.'))
            numero.pop_back();
    }
    return numero == "-0" ? "0" : numero;
}

/// Shortest text that is read as the same number, or as the same but for the last digit.
std::string Intero(double v, Cifre cifre) {
    constexpr int significative = 15; // a change of units shows beyond
    char testo[64];
    char* const oltre = testo + sizeof testo;
    return {testo, cifre == Cifre::Tutte
                       ? std::to_chars(testo, oltre, v).ptr
                       : std::to_chars(testo, oltre, v, std::chars_format::general, significative).ptr};
}

std::string Numero(double v, Cifre cifre) {
    return cifre == Cifre::Quattro ? Arrotondato(v) : Intero(v, cifre);
}

/// What a person reads: a utilisation beside 1 is not told as 1.
std::string PerLaVista(double v, Cifre cifre) {
    const std::string testo = Arrotondato(v);
    return cifre == Cifre::Tutte && testo == "1" && v != 1 ? Intero(v, cifre) : testo;
}

unsigned Byte(std::string_view testo, std::size_t i) {
    return i < testo.size() ? static_cast<unsigned char>(testo[i]) : 0U;
}

/// How many bytes the character at the beginning takes; 0 where the bytes are no UTF-8.
std::size_t LunghezzaUtf8(std::string_view testo) {
    const unsigned primo = Byte(testo, 0), secondo = Byte(testo, 1);
    const std::size_t n = primo < 0x80   ? 1
                          : primo < 0xC2 ? 0
                          : primo < 0xE0 ? 2
                          : primo < 0xF0 ? 3
                          : primo < 0xF5 ? 4
                                         : 0;
    for (std::size_t i = 1; i < n; ++i)
        if ((Byte(testo, i) & 0xC0U) != 0x80)
            return 0;
    // Longer than need be, half of a pair, or beyond the last character.
    const bool vietato = (primo == 0xE0 && secondo < 0xA0) || (primo == 0xED && secondo >= 0xA0) ||
                         (primo == 0xF0 && secondo < 0x90) || (primo == 0xF4 && secondo >= 0x90);
    return vietato ? 0 : n;
}

/// Each byte that is no UTF-8 becomes U+FFFD.
std::string InUtf8(std::string_view testo) {
    std::string s;
    while (!testo.empty()) {
        const std::size_t n = LunghezzaUtf8(testo);
        s += n == 0 ? std::string_view("\xEF\xBF\xBD") : testo.substr(0, n);
        testo.remove_prefix(std::max<std::size_t>(n, 1));
    }
    return s;
}

std::string TraApici(std::string_view testo) {
    std::string s = "\"";
    for (const char c : InUtf8(testo)) {
        constexpr char primoStampabile = 0x20;
        if (c == '"' || c == '\\')
            s += std::string{'\\', c};
        else if (c == '\n')
            s += "\\n";
        else if (c >= 0 && c < primoStampabile)
            s += ' ';
        else
            s += c;
    }
    return s + '"';
}

std::string InJson(const Valore& v) {
    if (const auto* numero = std::get_if<double>(&v.valore))
        return std::isfinite(*numero) ? Numero(*numero, v.cifre) : "null";
    if (const auto* testo = std::get_if<std::string>(&v.valore))
        return TraApici(*testo);
    return std::get<bool>(v.valore) ? "true" : "false";
}

std::string InTesto(const Valore& v) {
    if (const auto* numero = std::get_if<double>(&v.valore))
        return std::isfinite(*numero) ? PerLaVista(*numero, v.cifre) : "-";
    if (const auto* testo = std::get_if<std::string>(&v.valore))
        return *testo;
    return std::get<bool>(v.valore) ? "OK" : "NO";
}

/// A field of CSV: between quotation marks where it would not be one field else.
std::string InCsv(const Valore& v) {
    const auto* numero = std::get_if<double>(&v.valore);
    std::string testo = numero == nullptr        ? InTesto(v)
                        : std::isfinite(*numero) ? Numero(*numero, v.cifre)
                                                 : "";
    if (testo.find_first_of(",\"\n") == std::string::npos)
        return testo;
    std::string s = "\"";
    for (const char c : testo)
        s += c == '"' ? "\"\"" : std::string(1, c);
    return s + '"';
}

void ScriveOggetto(std::ostream& u, const Valori& valori) {
    u << '{';
    for (std::size_t i = 0; i < valori.size(); ++i)
        u << (i == 0 ? "" : ",") << TraApici(valori[i].chiave) << ':' << InJson(valori[i]);
    u << '}';
}

void ScriveElenco(std::ostream& u, const std::vector<std::string>& testi) {
    u << '[';
    for (std::size_t i = 0; i < testi.size(); ++i)
        u << (i == 0 ? "" : ",") << TraApici(testi[i]);
    u << ']';
}

/// Columns as the eye counts them: a continuation byte of UTF-8 takes none.
std::size_t Colonne(std::string_view testo) {
    return static_cast<std::size_t>(
        std::ranges::count_if(testo, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string Largo(const std::string& testo, std::size_t colonne, bool destra) {
    const std::string spazi(colonne - std::min(colonne, Colonne(testo)), ' ');
    return destra ? spazi + testo : testo + spazi;
}

std::string Intestazione(const Valore& v) {
    return v.unita.empty() ? v.simbolo : v.simbolo + " [" + v.unita + ']';
}

/// A table with columns as wide as what stands in them; numbers to the right.
void ScriveTabella(std::ostream& u, const std::vector<Valori>& righe) {
    if (righe.empty())
        return;
    std::vector<std::size_t> larghezze;
    for (std::size_t i = 0; i < righe.front().size(); ++i) {
        std::size_t larga = Colonne(Intestazione(righe.front()[i]));
        for (const Valori& riga : righe)
            larga = std::max(larga, Colonne(InTesto(riga[i])));
        larghezze.push_back(larga);
    }
    const auto linea = [&](const Valori& riga, auto&& testo) {
        std::string s;
        for (std::size_t i = 0; i < riga.size(); ++i)
            s += (i == 0 ? "" : "  ") +
                 Largo(testo(riga[i]), larghezze[i], std::holds_alternative<double>(riga[i].valore));
        u << s.erase(s.find_last_not_of(' ') + 1) << '\n';
    };
    linea(righe.front(), Intestazione);
    for (const Valori& riga : righe)
        linea(riga, [](const Valore& v) { return InTesto(v); });
}

/// Marks the lightest of each family that was checked and holds.
/// @return whether there is any
bool SegnaLeggeri(std::vector<Valori>& tabella, std::span<const SagomoInGara> sagomi,
                  const std::vector<RigaScelta>& righe) {
    std::vector<std::uint32_t> posti(righe.size());
    std::iota(posti.begin(), posti.end(), 0U);
    std::vector<RigaScelta> perPosto(sagomi.size());
    for (std::uint32_t& posto : posti) {
        const RigaScelta& riga = righe[posto];
        posto = static_cast<std::uint32_t>(riga.indice);
        perPosto[riga.indice] = riga;
    }
    const std::vector<std::uint32_t> leggeri = PiuLeggeriFra(posti, perPosto, sagomi);
    for (std::size_t i = 0; i < posti.size(); ++i)
        if (std::ranges::find(leggeri, posti[i]) != leggeri.end())
            std::get<std::string>(tabella[i].front().valore) += " *";
    return !leggeri.empty();
}

void ScriveCsv(std::ostream& u, const std::vector<Valori>& righe) {
    for (std::size_t i = 0; !righe.empty() && i < righe.front().size(); ++i)
        u << (i == 0 ? "" : ",") << righe.front()[i].chiave;
    u << (righe.empty() ? "" : "\n");
    for (const Valori& riga : righe) {
        for (std::size_t i = 0; i < riga.size(); ++i)
            u << (i == 0 ? "" : ",") << InCsv(riga[i]);
        u << '\n';
    }
}

/// What was asked for as a job that asks for the same.
Valori LavoroDi(const Comando& c, const SagomoInGara& sagomo) {
    Valori v = ValoriRichiesta(c.richiesta, &sagomo.sezione);
    v.insert(v.begin(),
             {{"verifica", "sagomo", sagomo.Designazione()}, {"famiglie", "famiglia", sagomo.famiglia}});
    return v;
}

Valori LavoroDi(const Comando& c) {
    Valori v = ValoriRichiesta(c.richiesta);
    v.insert(v.begin(), {"scelta", "scelta", true});
    std::string famiglie;
    for (const std::string& nome : c.filtri.famiglie)
        famiglie += (famiglie.empty() ? "" : ",") + nome;
    if (!famiglie.empty())
        v.push_back({"famiglie", "famiglie", famiglie});
    const Filtri& f = c.filtri;
    for (const auto& [chiave, limite] :
         {std::pair{"hmax", f.hMassima}, {"bmax", f.bMassima}, {"gmin", f.gMinimo}, {"gmax", f.gMassimo}})
        v.push_back({chiave, chiave, limite.value_or(RigaScelta::nessuno), "", "", Cifre::Date});
    v.push_back({"verificati", "verificati", f.soloVerificati});
    return v;
}

} // namespace

void ScriveVerifica(std::ostream& uscita, const Comando& comando, const SagomoInGara& sagomo,
                    const SagomoVerificato& esito, const std::vector<std::string>& messaggi) {
    const Valori risultati = ValoriVerifica(sagomo, esito, comando.richiesta);
    if (comando.formato == FormatoUscita::Json) {
        uscita << "{\"richiesta\":";
        ScriveOggetto(uscita, LavoroDi(comando, sagomo));
        uscita << ",\"risultati\":";
        ScriveOggetto(uscita, risultati);
        uscita << ",\"messaggi\":";
        ScriveElenco(uscita, messaggi);
        uscita << "}\n";
    } else if (comando.formato == FormatoUscita::Csv) {
        ScriveCsv(uscita, {risultati});
    } else {
        Relazione relazione = RelazioneVerifica(sagomo, esito, comando.richiesta);
        relazione.avvisi = messaggi;
        uscita << TestoRelazione(relazione);
    }
}

void ScriveScelta(std::ostream& uscita, const Comando& comando, std::span<const SagomoInGara> sagomi,
                  const std::vector<RigaScelta>& righe, const std::vector<std::string>& messaggi) {
    std::vector<Valori> tabella;
    tabella.reserve(righe.size());
    for (const RigaScelta& riga : righe)
        tabella.push_back(ValoriRiga(sagomi[riga.indice], riga));
    if (comando.formato == FormatoUscita::Csv) {
        ScriveCsv(uscita, tabella);
        return;
    }
    if (comando.formato == FormatoUscita::Testo) {
        const bool segnati = SegnaLeggeri(tabella, sagomi, righe);
        ScriveTabella(uscita, tabella);
        if (segnati)
            uscita << "* il più leggero verificato della sua famiglia\n";
        ScriveMessaggi(uscita, messaggi);
        return;
    }
    uscita << "{\"richiesta\":";
    ScriveOggetto(uscita, LavoroDi(comando));
    uscita << ",\"righe\":[";
    for (std::size_t i = 0; i < tabella.size(); ++i) {
        uscita << (i == 0 ? "" : ",");
        ScriveOggetto(uscita, tabella[i]);
    }
    uscita << "],\"messaggi\":";
    ScriveElenco(uscita, messaggi);
    uscita << "}\n";
}

void ScriveMessaggi(std::ostream& u, const std::vector<std::string>& messaggi) {
    for (const std::string& m : messaggi)
        u << "avviso: " << m << '\n';
}

void ScriveErrore(std::ostream& uscita, std::string_view testo) {
    uscita << "{\"errore\":" << TraApici(testo) << "}\n";
}

} // namespace sagomi
