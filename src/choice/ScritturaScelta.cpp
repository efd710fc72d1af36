#include "choice/ScritturaScelta.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <ostream>
#include <string_view>
#include <variant>

#include "choice/RelazioneVerifica.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Unita.h"
#include "report/TestoRelazione.h"
#include "sections/ColonnaInstabilita.h"

namespace sagomi {

namespace {

/// A value of an answer: what a program calls it, what a person does, its unit and clause.
struct Valore {
    std::string chiave, simbolo;
    std::variant<double, std::string, bool> valore;
    std::string unita, clausola;
};
using Valori = std::vector<Valore>;

/// Shortest text with a point of a number rounded to four decimals.
std::string Numero(double v) {
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

std::string TraApici(std::string_view testo) {
    std::string s = "\"";
    for (const char c : testo) {
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
        return std::isfinite(*numero) ? Numero(*numero) : "null";
    if (const auto* testo = std::get_if<std::string>(&v.valore))
        return TraApici(*testo);
    return std::get<bool>(v.valore) ? "true" : "false";
}

std::string InTesto(const Valore& v, std::string_view nessuno) {
    if (const auto* numero = std::get_if<double>(&v.valore))
        return std::isfinite(*numero) ? Numero(*numero) : std::string(nessuno);
    if (const auto* testo = std::get_if<std::string>(&v.valore))
        return *testo;
    return std::get<bool>(v.valore) ? "OK" : "NO";
}

/// A field of CSV: between quotation marks where it would not be one field else.
std::string InCsv(const Valore& v) {
    std::string testo = InTesto(v, "");
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

Valori ValoriRichiesta(const Richiesta& r) {
    return {{"acciaio", "acciaio", r.TipoAcciaio, "", ""},
            {"fy", "fy", r.fy, "N/mm2", ""},
            {"normativa", "normativa", NomeNormativa(), "", ""},
            {"GammaM0", "γM0", double(GammaM0), "", ""},
            {"GammaM1", "γM1", double(GammaM1), "", ""},
            {"N", "NSd", N_a_kN(r.NSd), "kN", ""},
            {"My1", "My,1", Nmm_a_kNm(r.y.M1), "kNm", ""},
            {"My2", "My,2", Nmm_a_kNm(r.y.M2), "kNm", ""},
            {"MyQ", "My,Q", Nmm_a_kNm(r.y.MQ), "kNm", ""},
            {"Mz1", "Mz,1", Nmm_a_kNm(r.z.M1), "kNm", ""},
            {"Mz2", "Mz,2", Nmm_a_kNm(r.z.M2), "kNm", ""},
            {"MzQ", "Mz,Q", Nmm_a_kNm(r.z.MQ), "kNm", ""},
            {"diagramma", "diagramma", double(r.pict), "", ""},
            {"L0y", "L0,y", mm_a_m(r.L0y), "m", ""},
            {"L0z", "L0,z", mm_a_m(r.L0z), "m", ""}};
}

void AggiungeColonna(Valori& v, const std::string& asse, const ColonnaCalcolata& c, double lamda,
                     const std::string& curva, double NbRd) {
    const std::string clausola = "ENV 1993-1-1 5.5.1";
    v.push_back({"lamda" + asse, "λ" + asse, lamda, "", clausola});
    v.push_back({"lamdaSegnato" + asse, "λ segnato " + asse, c.lamdaSegnato, "", clausola});
    v.push_back({"curva" + asse, "curva " + asse, curva, "", "ENV 1993-1-1 tab. 5.5.3"});
    v.push_back({"alfa" + asse, "α" + asse, c.alfa, "", "ENV 1993-1-1 tab. 5.5.1"});
    v.push_back({"fi" + asse, "φ" + asse, c.fi, "", clausola});
    v.push_back({"chi" + asse, "χ" + asse, c.chi, "", clausola});
    v.push_back({"Nb" + asse + "Rd", "Nb," + asse + ",Rd", N_a_kN(NbRd), "kN", clausola});
}

/// From the slenderness to the resistance about both axes.
Valori ValoriInstabilita(const SagomoVerificato& e) {
    Valori v;
    std::visit(
        [&](const auto& s) {
            const double betaA = s.betaA();
            v.push_back({"betaA", "βA", betaA, "", "ENV 1993-1-1 5.5.1.1"});
            AggiungeColonna(v, "y", CalcolaColonna(s.LamdaY(), s.fy, betaA, s.Area, e.CurvaY), s.LamdaY(),
                            e.CurvaY, e.riga.NbyRd);
            AggiungeColonna(v, "z", CalcolaColonna(s.LamdaZ(), s.fy, betaA, s.Area, e.CurvaZ), s.LamdaZ(),
                            e.CurvaZ, e.riga.NbzRd);
        },
        e.sezione);
    return v;
}

Valori ValoriVerifica(const SagomoInGara& sagomo, const SagomoVerificato& e) {
    const RigaScelta& r = e.riga;
    Valori v{{"designazione", "sagomo", sagomo.Designazione(), "", ""},
             {"famiglia", "famiglia", sagomo.famiglia, "", ""},
             {"g", "g", r.g, "kg/m", ""},
             {"h", "h", r.h, "mm", ""},
             {"b", "b", r.b, "mm", ""},
             {"A", "A", mm2_a_cm2(r.A), "cm2", ""},
             {"classe", "classe", double(r.classe), "", "EC3 tab. 5.2"},
             {"NplRd", "Npl,Rd", N_a_kN(r.NplRd), "kN", "ENV 1993-1-1 5.4.4"}};
    for (Valore& valore : ValoriInstabilita(e))
        v.push_back(std::move(valore));
    v.push_back({"McyRd", "Mc,y,Rd", Nmm_a_kNm(r.McyRd), "kNm", "ENV 1993-1-1 5.4.5"});
    v.push_back({"MbRd", "Mb,Rd", Nmm_a_kNm(r.MbRd), "kNm", "ENV 1993-1-1 5.5.2"});
    v.push_back({"sezione", "sezione", r.sezione, "", "EC3 6.2.9"});
    v.push_back({"membratura", "membratura", r.membratura, "", "ENV 1993-1-1 5.5.4"});
    v.push_back({"svergolamento", "svergolamento", r.svergolamento, "", "ENV 1993-1-1 5.5.4"});
    v.push_back({"massimo", "massimo", r.massimo, "", ""});
    v.push_back({"governa", "governa", std::string(NomeVerifica(r.governa)), "", ""});
    v.push_back({"verificato", "esito", r.verificato, "", ""});
    v.push_back({"motivo", "motivo", r.motivo, "", ""});
    return v;
}

Valori ValoriRiga(const SagomoInGara& sagomo, const RigaScelta& r) {
    return {{"designazione", "sagomo", sagomo.Designazione(), "", ""},
            {"famiglia", "famiglia", sagomo.famiglia, "", ""},
            {"g", "g", r.g, "kg/m", ""},
            {"h", "h", r.h, "mm", ""},
            {"b", "b", r.b, "mm", ""},
            {"A", "A", mm2_a_cm2(r.A), "cm2", ""},
            {"classe", "cl.", double(r.classe), "", ""},
            {"NplRd", "Npl,Rd", N_a_kN(r.NplRd), "kN", ""},
            {"NbyRd", "Nb,y,Rd", N_a_kN(r.NbyRd), "kN", ""},
            {"NbzRd", "Nb,z,Rd", N_a_kN(r.NbzRd), "kN", ""},
            {"McyRd", "Mc,y,Rd", Nmm_a_kNm(r.McyRd), "kNm", ""},
            {"MbRd", "Mb,Rd", Nmm_a_kNm(r.MbRd), "kNm", ""},
            {"sezione", "sezione", r.sezione, "", ""},
            {"membratura", "membr.", r.membratura, "", ""},
            {"svergolamento", "sverg.", r.svergolamento, "", ""},
            {"massimo", "massimo", r.massimo, "", ""},
            {"governa", "governa", std::string(NomeVerifica(r.governa)), "", ""},
            {"verificato", "esito", r.verificato, "", ""}};
}

/// A table with columns as wide as what stands in them; numbers to the right.
void ScriveTabella(std::ostream& u, const std::vector<Valori>& righe) {
    if (righe.empty())
        return;
    std::vector<std::size_t> larghezze;
    for (std::size_t i = 0; i < righe.front().size(); ++i) {
        std::size_t larga = Colonne(righe.front()[i].simbolo);
        for (const Valori& riga : righe)
            larga = std::max(larga, Colonne(InTesto(riga[i], "-")));
        larghezze.push_back(larga);
    }
    const auto linea = [&](const Valori& riga, auto&& testo) {
        std::string s;
        for (std::size_t i = 0; i < riga.size(); ++i)
            s += (i == 0 ? "" : "  ") +
                 Largo(testo(riga[i]), larghezze[i], std::holds_alternative<double>(riga[i].valore));
        u << s.erase(s.find_last_not_of(' ') + 1) << '\n';
    };
    linea(righe.front(), [](const Valore& v) { return v.simbolo; });
    for (const Valori& riga : righe)
        linea(riga, [](const Valore& v) { return InTesto(v, "-"); });
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

void ScriveMessaggi(std::ostream& u, const std::vector<std::string>& messaggi) {
    for (const std::string& m : messaggi)
        u << "avviso: " << m << '\n';
}

} // namespace

void ScriveVerifica(std::ostream& uscita, const Comando& comando, const SagomoInGara& sagomo,
                    const SagomoVerificato& esito, const std::vector<std::string>& messaggi) {
    const Valori richiesta = ValoriRichiesta(comando.richiesta);
    const Valori risultati = ValoriVerifica(sagomo, esito);
    if (comando.formato == FormatoUscita::Json) {
        uscita << "{\"richiesta\":";
        ScriveOggetto(uscita, richiesta);
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
        ScriveTabella(uscita, tabella);
        ScriveMessaggi(uscita, messaggi);
        return;
    }
    uscita << "{\"richiesta\":";
    ScriveOggetto(uscita, ValoriRichiesta(comando.richiesta));
    uscita << ",\"righe\":[";
    for (std::size_t i = 0; i < tabella.size(); ++i) {
        uscita << (i == 0 ? "" : ",");
        ScriveOggetto(uscita, tabella[i]);
    }
    uscita << "],\"messaggi\":";
    ScriveElenco(uscita, messaggi);
    uscita << "}\n";
}

void ScriveErrore(std::ostream& uscita, std::string_view testo) {
    uscita << "{\"errore\":" << TraApici(testo) << "}\n";
}

} // namespace sagomi
