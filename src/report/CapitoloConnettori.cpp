#include "report/CapitoloConnettori.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "composite/AcciaioCls.h"
#include "composite/ProgettoConnettori.h"
#include "frame/GeneraleSagomi.h"
#include "frame/RaccoltaMessaggi.h"
#include "report/Figure.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

using Passi = std::vector<PassoRelazione>;

constexpr const char* resistenza = "ENV 1994-1-1 6.3.2.1";
constexpr const char* completo = "ENV 1994-1-1 6.2.1.1";
constexpr const char* parziale = "ENV 1994-1-1 6.2.1.2";

bool ConPioli(const AcciaioCls& t) { return t.dPiolo > 0 && t.hPiolo > 0 && t.Luce > 0 && t.Vl > 0; }

/// A file keeps neither strength nor factor of the studs.
void Completa(CapitoloRelazione& c, AcciaioCls& t) {
    if (!(t.fu > 0)) {
        t.fu = fuPioloIniziale;
        c.note.emplace_back("La tensione di rottura dei pioli non è data: quella usuale.");
    }
    if (!(t.GammaV > 0)) {
        t.GammaV = GammaVIniziale;
        c.note.emplace_back("Il coefficiente parziale dei pioli non è dato: quello usuale.");
    }
}

bool Plastica(const AcciaioCls& t) { return t.TipoVerifica == sluPositivo || t.TipoVerifica == sluNegativo; }

void AggiungeDati(Passi& p, const AcciaioCls& t) {
    p.push_back(Dato("Altezza del piolo", "h", Piano(t.hPiolo), "mm"));
    p.push_back(Dato("Diametro del gambo", "d", Piano(t.dPiolo), "mm"));
    p.push_back(Dato("Tensione di rottura del piolo", "f{u}", Piano(t.fu), "N/mm^{2}"));
    p.push_back(Dato("Coefficiente parziale dei pioli", "γ{V}", Piano(t.GammaV), "", "ENV 1994-1-1 2.3.3.2"));
    p.push_back(Dato("Connettori per nervatura o per fila", "N{r}", std::to_string(t.Nr)));
    p.push_back(Dato("Lunghezza su cui si dispongono", "L", Piano(t.Luce), "m"));
}

void AggiungeRiduzione(Passi& p, const AcciaioCls& t) {
    if (t.TipoSoletta == solettaPiena)
        return;
    const std::string larghezza = InFormula(t.b0) + " / " + Piano(t.ha);
    p.push_back(Dato("Larghezza media della nervatura", "b{0}", Cifre(t.b0), "mm"));
    const bool lungo = t.TipoSoletta == nervatureParallele;
    const double h = lungo ? std::min<double>(t.hPiolo, t.ha + 75) : double(t.hPiolo);
    const std::string altezza = "(" + Piano(Singolo(h)) + " / " + Piano(t.ha) + " − 1)";
    const std::string massimo = !lungo && t.Nr == 2 ? "0,8" : "1";
    p.push_back({.descrizione = "Riduzione per le nervature",
                 .simbolo = "k",
                 .formula = (lungo ? "0,6 (b{0} / h{a}) [min(h; h{a} + 75) / h{a} − 1] ≤ "
                                   : "(0,7 / √N{r}) (b{0} / h{a}) (h / h{a} − 1) ≤ ") +
                            massimo,
                 .numeri = lungo ? "0,6 · " + larghezza + " · " + altezza
                                 : "0,7 / √" + std::to_string(t.Nr) + " · " + larghezza + " · " + altezza,
                 .valore = Rapporto(t.kRiduzione),
                 .norma = lungo ? "ENV 1994-1-1 6.3.3.1" : "ENV 1994-1-1 6.3.3.2"});
}

void AggiungeResistenza(Passi& p, const AcciaioCls& t) {
    const double snellezza = t.hPiolo / t.dPiolo;
    const double alfa = snellezza >= 4 ? 1 : 0.2 * (snellezza + 1);
    const std::string d2 = Piano(t.dPiolo) + "^{2}";
    p.push_back({.descrizione = "Modulo elastico del calcestruzzo",
                 .simbolo = "E{cm}",
                 .formula = "9500 (f{ck} + 8)^{1/3}",
                 .numeri = "9500 · (" + Piano(fck) + " + 8)^{1 / 3}",
                 .valore = Intero(t.ModuloCalcestruzzo()),
                 .unita = "N/mm^{2}",
                 .norma = "ENV 1992-1-1 3.1.2.5.2"});
    p.push_back({.descrizione = "Coefficiente della snellezza del piolo",
                 .simbolo = "α",
                 .formula = "0,2 (h / d + 1) ≤ 1",
                 .numeri = "0,2 · (" + Piano(t.hPiolo) + " / " + Piano(t.dPiolo) + " + 1)",
                 .valore = Rapporto(alfa),
                 .norma = resistenza});
    p.push_back({.descrizione = "Resistenza del gambo",
                 .simbolo = "P{Rd,1}",
                 .formula = "0,8 f{u} (π d^{2} / 4) / γ{V}",
                 .numeri = "0,8 · " + Piano(t.fu) + " · (3,14159 · " + d2 + " / 4) / " + Piano(t.GammaV) +
                           " · 10^{-3}",
                 .valore = Kilo(t.PRd1),
                 .unita = "kN",
                 .norma = resistenza});
    p.push_back({.descrizione = "Resistenza del calcestruzzo intorno al piolo",
                 .simbolo = "P{Rd,2}",
                 .formula = "0,29 α d^{2} √(f{ck} E{cm}) / γ{V}",
                 .numeri = "0,29 · " + Rapporto(alfa) + " · " + d2 + " · √(" + Piano(fck) + " · " +
                           Intero(t.ModuloCalcestruzzo()) + ") / " + Piano(t.GammaV) + " · 10^{-3}",
                 .valore = Kilo(t.PRd2),
                 .unita = "kN",
                 .norma = resistenza});
    AggiungeRiduzione(p, t);
    const bool ridotta = t.TipoSoletta != solettaPiena;
    const std::string minore = Kilo(std::min(t.PRd1, t.PRd2));
    p.push_back({.descrizione = "Resistenza di un connettore",
                 .simbolo = "P{Rd}",
                 .formula = ridotta ? "k min(P{Rd,1}; P{Rd,2})" : "min(P{Rd,1}; P{Rd,2})",
                 .numeri = ridotta ? Rapporto(t.kRiduzione) + " · " + minore : "",
                 .valore = Kilo(t.PRd),
                 .unita = "kN",
                 .norma = resistenza});
}

/// Their spacing along the length.
void AggiungePasso(Passi& p, const EsitoConnettori& esito, const std::string& n) {
    if (!esito.Passo)
        return;
    const bool coppie = esito.Unita.starts_with("coppie");
    p.push_back(
        {.descrizione = coppie ? "Passo delle coppie" : "Passo dei connettori",
         .simbolo = "s",
         .formula = coppie ? ("2 L / (" + n + " − 1), ai mm interi") : ("L / (" + n + " − 1), ai mm interi"),
         .valore = Intero(*esito.Passo),
         .unita = "mm"});
    if (esito.nervature)
        p.push_back(Dato("Nervature intere in un passo", "", std::to_string(*esito.nervature)));
}

void AggiungeCompleto(CapitoloRelazione& c, const AcciaioCls& t, const EsitoConnettori& esito) {
    c.passi.push_back({.descrizione = "Connettori di mezza trave, a completo ripristino",
                       .simbolo = "n{f}",
                       .formula = "V{l} / P{Rd}",
                       .numeri = Kilo(t.Vl) + " / " + Kilo(t.PRd),
                       .valore = Rapporto(t.nConnCalc),
                       .norma = completo});
    if (!esito.n)
        return;
    c.passi.push_back({.descrizione = "Connettori della trave, a completo ripristino",
                       .simbolo = "n{c}",
                       .formula = "2 ⌈n{f}⌉",
                       .valore = std::to_string(*esito.n),
                       .norma = completo});
    AggiungePasso(c.passi, esito, "n{c}");
}

/// The straight line from the steel alone to full connection.
void AggiungeParziale(CapitoloRelazione& c, const AcciaioCls& t, const EsitoConnettori& esito) {
    if (!esito.n)
        return;
    const double Mpl = std::abs(t.MplRd);
    const double Ma = t.Sezione->McyRd;
    const ConnessioneParziale parz = ConParziale(t, *esito.n);
    const bool coppie = t.Nr == 2;
    c.passi.push_back({.descrizione = "Connettori della trave, a parziale ripristino per M{Sd}",
                       .simbolo = "n{p}",
                       .formula = coppie ? "⌈n{c} (|M{Sd}| − M{a}) / (M{pl,Rd} − M{a})⌉, pari"
                                         : "2 ⌈n{f} (|M{Sd}| − M{a}) / (M{pl,Rd} − M{a})⌉",
                       .valore = std::to_string(*esito.n),
                       .norma = parziale});
    AggiungePasso(c.passi, esito, "n{p}");
    c.note.emplace_back("Il grado minimo di connessione non è verificato (ENV 1994-1-1 6.1.2).");
    c.passi.push_back({.descrizione = "Grado di connessione",
                       .simbolo = "η",
                       .formula = "(n{p} / 2) / n{f} ≤ 1",
                       .numeri = std::to_string(*esito.n) + " / 2 / " + Rapporto(t.nConnCalc),
                       .valore = Rapporto(parz.grado),
                       .norma = parziale});
    c.passi.push_back({.descrizione = "Momento resistente a parziale ripristino",
                       .simbolo = "M{Rd}",
                       .formula = "M{a} + η (M{pl,Rd} − M{a})",
                       .numeri = KiloMetri(Ma) + " + " + Rapporto(parz.grado) + " · (" + KiloMetri(Mpl) +
                                 " − " + KiloMetri(Ma) + ")",
                       .valore = KiloMetri(parz.MRd),
                       .unita = "kNm",
                       .norma = parziale});
}

/// A design with what it tells as notes.
EsitoConnettori Progetta(CapitoloRelazione& c, AcciaioCls& t, bool parz) {
    RaccoltaMessaggi raccolta;
    EsitoConnettori esito = ProgettaConnettori(t, parz);
    for (const Messaggio& m : raccolta.raccolti)
        c.note.push_back(m.testo);
    raccolta.raccolti.clear();
    if (!esito.messaggio.empty())
        c.note.push_back((parz ? "A parziale ripristino: " : "") + esito.messaggio);
    if (esito.nervatureDoppie > 0) {
        std::string consiglio = TestoSuggerimento(esito.nervatureDoppie);
        std::replace(consiglio.begin(), consiglio.end(), '\n', ' ');
        c.note.push_back((parz ? "A parziale ripristino: " : "") + consiglio);
    }
    return esito;
}

} // namespace

std::optional<CapitoloRelazione> CapitoloConnettori(const AcciaioCls& trave) {
    if (!trave.Sezione || !ConPioli(trave))
        return std::nullopt;
    CapitoloRelazione c{.titolo = "Connettori a piolo"};
    AcciaioCls t = trave;
    Completa(c, t);
    AggiungeDati(c.passi, t);
    const EsitoConnettori intera = Progetta(c, t, false);
    if (!intera.PRd)
        return c;
    AggiungeResistenza(c.passi, t);
    AggiungeCompleto(c, t, intera);
    if (Plastica(t) && t.Msd != 0 && std::abs(t.Msd) < std::abs(t.MplRd))
        AggiungeParziale(c, t, Progetta(c, t, true));
    AdattaDecimali(c);
    return c;
}

} // namespace sagomi
