#include "choice/StampaScelta.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <utility>
#include <variant>

#include "choice/TabellaScelta.h"
#include "choice/ValoriScelta.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace {

/// Columns as the eye counts them: a continuation byte of UTF-8 takes none.
std::size_t Colonne(const std::string& testo) {
    return static_cast<std::size_t>(
        std::ranges::count_if(testo, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string Largo(const std::string& testo, std::size_t colonne, bool destra) {
    const std::string spazi(colonne - std::min(colonne, Colonne(testo)), ' ');
    return destra ? spazi + testo : testo + spazi;
}

/// The units stand once above the table.
std::string SenzaUnita(std::string_view titolo) { return std::string(titolo.substr(0, titolo.find(' '))); }

/// Items one behind the other, in as many lines as they need.
void Aggiunge(std::vector<std::string>& linee, const std::vector<std::string>& voci,
              const std::string& fra = "   ") {
    constexpr std::size_t larghezza = 130;
    std::string linea;
    for (const std::string& voce : voci) {
        if (!linea.empty() && Colonne(linea) + fra.size() + Colonne(voce) > larghezza)
            linee.push_back(std::exchange(linea, {}));
        linea += (linea.empty() ? "" : fra) + voce;
    }
    if (!linea.empty())
        linee.push_back(linea);
}

const Valore& Cerca(const Valori& v, std::string_view chiave) {
    return *std::ranges::find(v, chiave, &Valore::chiave);
}

/// "fy 235 N/mm2"
std::string Voce(const std::string& nome, const Valore& v) {
    const auto* numero = std::get_if<double>(&v.valore);
    const std::string valore = numero == nullptr ? std::get<std::string>(v.valore) : TestoPiano(*numero);
    return nome + ' ' + valore + (v.unita.empty() ? "" : ' ' + v.unita);
}

std::vector<std::string> Voci(const Valori& v, std::initializer_list<std::string_view> chiavi) {
    std::vector<std::string> voci;
    for (const std::string_view chiave : chiavi) {
        const Valore& valore = Cerca(v, chiave);
        if (const auto* numero = std::get_if<double>(&valore.valore);
            numero == nullptr || std::isfinite(*numero))
            voci.push_back(Voce(valore.simbolo, valore));
    }
    return voci;
}

std::vector<std::string> Membratura(const Richiesta& r, const Valori& v) {
    std::vector<std::string> voci = Voci(v, {"L0y", "L0z", "L0v"});
    if (!LunghezzaSvergolamento(r)) {
        voci.emplace_back("svergolamento senza lunghezza");
        return voci;
    }
    voci.push_back(r.LLT ? Voce("L", Cerca(v, "L")) : "L come L0,z");
    for (std::string& voce : Voci(v, {"k", "Kw"}))
        voci.push_back(std::move(voce));
    voci.push_back(r.C1 ? Voce("C1", Cerca(v, "C1")) : "C1 del diagramma");
    for (std::string& voce : Voci(v, {"C2", "C3"}))
        voci.push_back(std::move(voce));
    voci.push_back(Voce("zg", Cerca(v, "za")));
    return voci;
}

std::string Coppie(const Richiesta& r) {
    if (!r.doppi)
        return "canali e angolari singoli";
    return "canali e angolari in coppia, distanza " + TestoPiano(r.dDoppi) + " mm" +
           (r.accostati ? ", accostati" : "");
}

std::vector<std::string> Limiti(const Filtri& f) {
    std::vector<std::string> voci;
    const auto limite = [&voci](const char* nome, const std::optional<double>& valore, const char* unita) {
        if (valore)
            voci.push_back(nome + TestoPiano(*valore) + unita);
    };
    limite("h ≤ ", f.hMassima, " mm");
    limite("b ≤ ", f.bMassima, " mm");
    limite("g ≥ ", f.gMinimo, " kg/m");
    limite("g ≤ ", f.gMassimo, " kg/m");
    if (voci.empty())
        voci.emplace_back("senza limiti di misura e di massa");
    voci.emplace_back(f.soloVerificati ? "solo verificati" : "verificati e non");
    return voci;
}

std::vector<std::string> Famiglie(const Filtri& f) {
    if (f.famiglie.empty())
        return {"tutte le famiglie"};
    std::vector<std::string> voci = f.famiglie;
    voci.front() = "famiglie: " + voci.front();
    return voci;
}

using Campi = std::vector<std::string>;

std::vector<Campi> CampiTabella(std::span<const std::uint32_t> posti, std::span<const RigaScelta> righe,
                                std::span<const SagomoInGara> sagomi) {
    std::vector<Campi> tabella(1);
    for (const ColonnaScelta& colonna : ColonneScelta())
        tabella.front().push_back(SenzaUnita(colonna.titolo));
    for (const std::uint32_t posto : posti) {
        Campi& campi = tabella.emplace_back();
        for (int c = 0; c <= ColonnaUtilizzo(); ++c)
            campi.push_back(TestoScelta(righe[posto], sagomi[posto], c));
    }
    return tabella;
}

std::vector<std::string> Allineata(const std::vector<Campi>& tabella) {
    const std::size_t colonne = ColonneScelta().size();
    std::vector<std::size_t> larghezze(colonne);
    for (const Campi& campi : tabella)
        for (std::size_t c = 0; c < colonne; ++c)
            larghezze[c] = std::max(larghezze[c], Colonne(campi[c]));
    std::vector<std::string> linee;
    for (const Campi& campi : tabella) {
        std::string linea;
        for (std::size_t c = 0; c < colonne; ++c) {
            const bool sinistra = c <= colonnaFamiglia || c + 1 == colonne;
            linea += (c == 0 ? "" : " ") + Largo(campi[c], larghezze[c], !sinistra);
        }
        linea.erase(linea.find_last_not_of(' ') + 1); // blanks would go on below
        linee.push_back(std::move(linea));
    }
    return linee;
}

} // namespace

std::string_view NomeDiagramma(std::int16_t pict) {
    constexpr std::array<std::string_view, 6> nomi{"Momenti di estremità dello stesso segno",
                                                   "Momenti di estremità di segno opposto",
                                                   "Momenti di estremità contro un carico distribuito",
                                                   "Momenti di estremità contro un carico concentrato",
                                                   "Momenti di estremità con un carico distribuito",
                                                   "Momenti di estremità con un carico concentrato"};
    return nomi.at(static_cast<std::size_t>(pict - 1));
}

std::vector<std::string> TestataScelta(const Richiesta& r, const Filtri& f) {
    const Valori v = ValoriRichiesta(r);
    std::vector<std::string> linee{"Scelta del sagomo"};
    Aggiunge(linee, Voci(v, {"acciaio", "fy", "fu", "normativa", "GammaM0", "GammaM1"}));
    Aggiunge(linee, Voci(v, {"N", "My", "My2", "MyQ", "Mz", "Mz2", "MzQ"}));
    linee.emplace_back(NomeDiagramma(r.pict));
    Aggiunge(linee, Membratura(r, v));
    linee.push_back(Coppie(r));
    Aggiunge(linee, Limiti(f));
    Aggiunge(linee, Famiglie(f), ", ");
    linee.emplace_back("g in kg/m, h e b in mm, A in cm2, forze in kN, momenti in kNm");
    return linee;
}

std::vector<std::string> StampaScelta(const Richiesta& richiesta, const Filtri& filtri,
                                      std::span<const std::uint32_t> posti, std::span<const RigaScelta> righe,
                                      std::span<const SagomoInGara> sagomi,
                                      const std::vector<std::string>& messaggi) {
    std::vector<std::string> linee = TestataScelta(richiesta, filtri);
    linee.emplace_back();
    for (std::string& linea : Allineata(CampiTabella(posti, righe, sagomi)))
        linee.push_back(std::move(linea));
    if (!messaggi.empty())
        linee.emplace_back();
    for (const std::string& m : messaggi)
        linee.push_back("avviso: " + m);
    return linee;
}

} // namespace sagomi
