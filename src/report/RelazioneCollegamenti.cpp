#include "report/RelazioneCollegamenti.h"

#include <cmath>
#include <utility>

#include "fasteners/DisegnoCordone.h"
#include "fasteners/DisegnoForatura.h"
#include "fasteners/Saldatura.h"
#include "fasteners/VerdettoBullone.h"
#include "frame/Errori.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "report/Figure.h"

namespace sagomi {

namespace {

constexpr const char* tabella = "ENV 1993-1-1 tab. 6.5.3";
constexpr std::int16_t messaggi = 5; ///< places of what is wrong with hole and distances

using Passi = std::vector<PassoRelazione>;

std::string Nome(TermineBullone termine) {
    switch (termine) {
    case TermineBullone::Taglio:
        return "taglio";
    case TermineBullone::Trazione:
        return "trazione";
    case TermineBullone::Rifollamento:
        return "rifollamento";
    case TermineBullone::Nessuno:
        break;
    }
    return {};
}

std::string Forza(Singolo N) { return Cifre(Singolo(N_a_kN(N))); }

/// "8.8": a name, with a point in every locale.
std::string NomeClasse(const Bullone& b) {
    const long decimi = std::lround(10 * double(b.Classe()));
    return std::to_string(decimi / 10) + '.' + std::to_string(decimi % 10);
}

CapitoloRelazione Dati(const Bullone& b, const std::string& acciaio) {
    CapitoloRelazione c{.titolo = "Bullone e piastra"};
    c.passi = {Dato("Diametro", "d", std::to_string(b.d()), "mm"),
               Dato("Classe", "", NomeClasse(b)),
               Dato("Tensione di rottura del bullone", "f{ub}", Piano(b.fub), "N/mm^{2}"),
               Dato("Tensione di snervamento del bullone", "f{yb}", Intero(b.fyb), "N/mm^{2}"),
               Dato("Sezione tagliata", "", b.Gambo ? "gambo" : "filettatura"),
               Dato("Area tagliata", "A", Formato("0.0", b.Ataglio), "mm^{2}"),
               Dato("Area resistente", "A{s}", Formato("0.0", b.Ares), "mm^{2}"),
               Dato("Foro", "d{0}", Piano(b.do_), "mm"),
               Dato("Acciaio della piastra", "", acciaio),
               Dato("Tensione di rottura della piastra", "f{u}", Piano(b.fu), "N/mm^{2}"),
               Dato("Spessore della piastra", "t", Piano(b.t), "mm"),
               Dato("Distanza dal bordo nella direzione della forza", "e{1}", Piano(b.e1), "mm"),
               Dato("Passo nella direzione della forza", "p{1}", Piano(b.p1), "mm"),
               Dato("Distanza dal bordo di lato", "e{2}", Piano(b.e2), "mm"),
               Dato("Passo di lato", "p{2}", Piano(b.p2), "mm"),
               Dato("Taglio", "F{v,Sd}", Forza(b.FvSd), "kN"),
               Dato("Trazione", "F{t,Sd}", Forza(b.FtSd), "kN"),
               Dato("Normativa", "", NomeNormativa()),
               Dato("Coefficiente parziale, collegamenti", "γ{M2}", Piano(GammaM2))};
    return c;
}

/// A factor that reduces a resistance; 1 is no step.
void AggiungeFattore(Passi& p, const char* descrizione, const char* simbolo, const char* formula,
                     double fattore, const char* norma) {
    if (fattore != 1)
        p.push_back({.descrizione = descrizione,
                     .simbolo = simbolo,
                     .formula = formula,
                     .valore = Cifre(fattore),
                     .norma = norma});
}

std::string Per(const char* simbolo, double fattore) {
    return fattore == 1 ? std::string() : std::string(simbolo) + " ";
}

std::string NumeroPer(double fattore) { return fattore == 1 ? std::string() : Cifre(fattore) + " · "; }

void AggiungeTaglio(Passi& p, const Bullone& b) {
    const double gioco = b.FattoreGioco();
    AggiungeFattore(p, "Gioco del foro maggiore di 1 mm, M12 e M14", "β{g}", "", gioco,
                    "ENV 1993-1-1 6.5.5 (8)");
    p.push_back({.descrizione = "Resistenza a taglio per piano; α{v} = 0,6, nella filettatura delle classi "
                                "4.8, 5.8, 6.8 e 10.9 0,5",
                 .simbolo = "F{v,Rd}",
                 .formula = Per("β{g}", gioco) + "α{v} f{ub} A / γ{M2}",
                 .numeri = NumeroPer(gioco) + Cifre(b.alfaV()) + " · " + Piano(b.fub) + " · " +
                           Formato("0.0", b.Ataglio) + " / " + Piano(GammaM2) + " · 10^{-3}",
                 .valore = Forza(b.FvRd),
                 .unita = "kN",
                 .norma = tabella});
}

bool DistanzaMinore(const Bullone& b) {
    for (std::int16_t i = 1; i <= messaggi; ++i)
        if (!b.Messaggio(i).empty())
            return true;
    return false;
}

void AggiungeRifollamento(Passi& p, const Bullone& b) {
    p.push_back({.descrizione = "Coefficiente di rifollamento",
                 .simbolo = "α",
                 .formula = "min(e{1} / (3 d{0}); p{1} / (3 d{0}) − 1/4; f{ub} / f{u}; 1)",
                 .valore = Cifre(b.alfa),
                 .norma = tabella});
    if (DistanzaMinore(b)) {
        p.push_back({.descrizione = "Resistenza a rifollamento: nessuna, una distanza è sotto il minimo",
                     .simbolo = "F{b,Rd}",
                     .valore = Forza(b.FbRd),
                     .unita = "kN",
                     .norma = "ENV 1993-1-1 6.5.1"});
        return;
    }
    const double bordo = b.FattoreBordo();
    const double passo = b.FattorePasso();
    const char* norma = "ENV 1993-1-1 6.5.5 (10)";
    AggiungeFattore(p, "Riduzione per e{2} < 1,5 d{0}", "β{e2}", "2/3 + (e{2} − 1,2 d{0}) / (0,9 d{0})",
                    bordo, norma);
    AggiungeFattore(p, "Riduzione per p{2} < 3 d{0}", "β{p2}", "2/3 + (p{2} − 2,4 d{0}) / (1,8 d{0})", passo,
                    norma);
    p.push_back({.descrizione = "Resistenza a rifollamento",
                 .simbolo = "F{b,Rd}",
                 .formula = Per("β{e2}", bordo) + Per("β{p2}", passo) + "2,5 α f{u} d t / γ{M2}",
                 .numeri = NumeroPer(bordo) + NumeroPer(passo) + "2,5 · " + Cifre(b.alfa) + " · " +
                           Piano(b.fu) + " · " + std::to_string(b.d()) + " · " + Piano(b.t) + " / " +
                           Piano(GammaM2) + " · 10^{-3}",
                 .valore = Forza(b.FbRd),
                 .unita = "kN",
                 .norma = tabella});
}

CapitoloRelazione Resistenze(const Bullone& b) {
    CapitoloRelazione c{.titolo = "Resistenze"};
    AggiungeTaglio(c.passi, b);
    c.passi.push_back({.descrizione = "Resistenza a trazione",
                       .simbolo = "F{t,Rd}",
                       .formula = "0,9 f{ub} A{s} / γ{M2}",
                       .numeri = "0,9 · " + Piano(b.fub) + " · " + Formato("0.0", b.Ares) + " / " +
                                 Piano(GammaM2) + " · 10^{-3}",
                       .valore = Forza(b.FtRd),
                       .unita = "kN",
                       .norma = tabella});
    AggiungeRifollamento(c.passi, b);
    for (std::int16_t i = 1; i <= messaggi; ++i)
        if (const std::string nota = b.Messaggio(i); !nota.empty())
            c.note.push_back(nota);
    AdattaDecimali(c);
    return c;
}

/// A criterion that the utilisation is the largest of.
void AggiungeCriterio(Passi& p, const char* descrizione, const char* formula, const std::string& numeri,
                      double valore, const char* norma) {
    if (!std::isnan(valore))
        p.push_back({.descrizione = descrizione,
                     .formula = formula,
                     .numeri = numeri,
                     .valore = Cifre(valore),
                     .norma = norma});
}

std::string Quoziente(Singolo agente, Singolo resistente) {
    return InFormula(N_a_kN(agente)) + " / " + InFormula(N_a_kN(resistente));
}

void AggiungeCriteri(Passi& p, const Bullone& b, const VerdettoBullone& v) {
    if (std::isnan(v.interazione))
        return;
    const TerminiTaglioTrazione t = b.TerminiInterazione();
    AggiungeCriterio(p, "Interazione", "F{v,Sd} / F{v,Rd} + F{t,Sd} / (1,4 F{t,Rd})",
                     Cifre(t.taglio) + " + " + Cifre(t.trazione), v.interazione, "ENV 1993-1-1 6.5.5 (5)");
    AggiungeCriterio(p, "Trazione da sola", "F{t,Sd} / F{t,Rd}", Quoziente(b.FtSd, b.FtRd), v.trazione,
                     "ENV 1993-1-1 6.5.5");
    AggiungeCriterio(p, "Rifollamento", "F{v,Sd} / F{b,Rd}", Quoziente(b.FvSd, b.FbRd), v.rifollamento,
                     "ENV 1993-1-1 6.5.5");
    AggiungeCriterio(p, "Utilizzo, il maggiore dei criteri", "", "", v.utilizzo, "");
}

CapitoloRelazione Verifica(const Bullone& b, bool giudicato) {
    CapitoloRelazione c{.titolo = "Verifica a taglio e trazione"};
    VerdettoRelazione verdetto{.verifica = "Bullone a taglio e trazione",
                               .motivo = "le forze mancano, o un dato non vale",
                               .norma = "ENV 1993-1-1 6.5.5"};
    if (giudicato) {
        const VerdettoBullone v = Giudica(b);
        AggiungeCriteri(c.passi, b, v);
        verdetto.esito = VerdettoRelazione::Da(v.utilizzo);
        verdetto.utilizzo = v.utilizzo;
        verdetto.governa = Nome(v.governa);
        verdetto.motivo = v.Motivo();
    }
    AdattaDecimali(c);
    c.verdetto = std::move(verdetto);
    return c;
}

} // namespace

Relazione RelazioneBullone(const Bullone& b, const std::string& acciaio, bool giudicato) {
    Relazione r{.titolo = "Verifica di un bullone",
                .oggetto = "M" + std::to_string(b.d()) + " classe " + NomeClasse(b)};
    r.maschera = "frmBulloni";
    r.disegno = DisegnoForatura({double(b.d()), b.do_, b.e1, b.p1, b.e2, b.p2});
    r.capitoli = {Dati(b, acciaio), Resistenze(b), Verifica(b, giudicato)};
    return r;
}

Relazione RelazioneSaldatura(const Saldatura& s, const std::string& acciaio) {
    Relazione r{.titolo = "Saldatura a cordone d'angolo", .oggetto = acciaio};
    r.maschera = "frmSaldature";
    r.disegno = DisegnoCordone();
    CapitoloRelazione c{.titolo = "Resistenza della gola"};
    const MessaggiTaciuti silenzio;
    c.passi = {Dato("Acciaio", "", acciaio), Dato("Tensione di rottura", "f{u}", Piano(s.fu), "N/mm^{2}"),
               Dato("Normativa", "", NomeNormativa()),
               Dato("Coefficiente parziale, collegamenti", "γ{M2}", Piano(GammaM2))};
    try {
        const Singolo resistenza = s.fvwd();
        c.passi.push_back(Dato("Fattore di correlazione", "β{w}", Piano(s.betaW()), "", "EC3 1-8 tab. 4.1"));
        c.passi.push_back(
            {.descrizione = "Resistenza a taglio della gola",
             .simbolo = "f{vw,d}",
             .formula = "f{u} / (√3 β{w} γ{M2})",
             .numeri = Piano(s.fu) + " / (√3 · " + Piano(s.betaW()) + " · " + Piano(GammaM2) + ")",
             .valore = Cifre(resistenza),
             .unita = "N/mm^{2}",
             .norma = "EC3 1-8 4.5.3.3"});
    } catch (const ErroreAritmetico&) {
        c.note.emplace_back("Questa tensione di rottura non ha un fattore di correlazione.");
    }
    r.capitoli = {std::move(c)};
    return r;
}

} // namespace sagomi
