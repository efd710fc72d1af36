#include "report/CapitoliStabilita.h"

#include <cmath>

#include "frame/GeneraleSagomi.h"
#include "report/CapitoliSagomo.h"
#include "report/Figure.h"
#include "sections/ColonnaInstabilita.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"
#include "sections/Svergolamento.h"
#include "sections/Verdetto.h"

namespace sagomi {

namespace {

constexpr const char* colonne = "ENV 1993-1-1 5.5.1";
constexpr const char* interazione = "ENV 1993-1-1 5.5.4";

using Passi = std::vector<PassoRelazione>;

/// What a column is computed with.
struct Colonna {
    std::string asse;
    double L0, i, lamda; ///< mm, mm, -
    std::string curva;
    double NbRd; ///< of the section; no number for none
};

/// The steps about one axis.
void Aggiunge(Passi& p, const Colonna& k, double fy, double betaA, double area) {
    const ColonnaCalcolata c = CalcolaColonna(k.lamda, fy, betaA, area, k.curva);
    const std::string& a = k.asse;
    const std::string lamda = "λ̅{" + a + "}";
    const std::string ls = Rapporto(c.lamdaSegnato);
    p.push_back({.descrizione = "Snellezza intorno a " + a + "-" + a,
                 .simbolo = "λ{" + a + "}",
                 .formula = "L{0," + a + "} / i{" + a + "}",
                 .numeri = Piano(k.L0) + " / " + Rapporto(k.i),
                 .valore = Formato("0.0#", k.lamda),
                 .norma = colonne});
    p.push_back({.descrizione = "Snellezza relativa",
                 .simbolo = lamda,
                 .formula = "λ{" + a + "} / λ{1} √β{A},  λ{1} = 93,9 ε",
                 .valore = ls,
                 .norma = "ENV 1993-1-1 5.5.1.2"});
    p.push_back(Dato("Curva di instabilità", "", k.curva, "", "ENV 1993-1-1 tab. 5.5.3"));
    p.push_back(Dato("Coefficiente d'imperfezione", "α{" + a + "}", Formato("0.0#", c.alfa), "",
                     "ENV 1993-1-1 tab. 5.5.1"));
    p.push_back(
        {.descrizione = "",
         .simbolo = "φ{" + a + "}",
         .formula = "0,5 [1 + α{" + a + "} (" + lamda + " − 0,2) + " + lamda + "^{2}]",
         .numeri = "0,5 · [1 + " + Formato("0.0#", c.alfa) + " · (" + ls + " − 0,2) + " + ls + "^{2}]",
         .valore = Rapporto(c.fi),
         .norma = "ENV 1993-1-1 5.5.1.2"});
    p.push_back({.descrizione = "Coefficiente di riduzione",
                 .simbolo = "χ{" + a + "}",
                 .formula = "1 / (φ{" + a + "} + √(φ{" + a + "}^{2} − " + lamda + "^{2})) ≤ 1",
                 .numeri = "1 / (" + Rapporto(c.fi) + " + √(" + Rapporto(c.fi) + "^{2} − " + ls + "^{2}))",
                 .valore = Rapporto(c.chi),
                 .norma = "ENV 1993-1-1 5.5.1.2"});
    p.push_back({.descrizione = "Resistenza all'instabilità",
                 .simbolo = "N{b," + a + ",Rd}",
                 .formula = "χ{" + a + "} β{A} A f{y} / γ{M1}",
                 .numeri = Rapporto(c.chi) + " · " + Rapporto(betaA) + " · " + Intero(area) + " · " +
                           Piano(Singolo(fy)) + " / " + Piano(GammaM1) + " · 10^{-3}",
                 .valore = Kilo(k.NbRd),
                 .unita = "kN",
                 .norma = "ENV 1993-1-1 5.5.1.1"});
}

constexpr double nessuno = std::numeric_limits<double>::quiet_NaN();

CapitoloRelazione CapitoloColonne() { return {.titolo = "Instabilità per compressione"}; }

/// mu, k and the resistance about one axis of the interaction.
struct AsseMembratura {
    std::string asse;
    double BetaM, mu, k, NbRd;
    bool elastico; ///< the moment is the elastic one
    double McRd;
    const TermineMomento& termine;
};

void Aggiunge(Passi& p, const SezioneDoppioT& s, const AsseMembratura& m) {
    const std::string& a = m.asse;
    const bool elastica = s.ClassePressoFlessione >= 3;
    p.push_back(Dato("Coefficiente di momento uniforme equivalente, " + a + "-" + a, "β{M," + a + "}",
                     Formato("0.0##", m.BetaM), "", "ENV 1993-1-1 fig. 5.5.3"));
    p.push_back({.descrizione = "",
                 .simbolo = "μ{" + a + "}",
                 .formula = "λ̅{" + a + "} (2 β{M," + a + "} − 4)" +
                            (elastica ? "" : " + (W{pl," + a + "} − W{el," + a + "}) / W{el," + a + "}") +
                            " ≤ 0,9",
                 .valore = Formato("0.0##", m.mu),
                 .norma = interazione});
    p.push_back({.descrizione = "",
                 .simbolo = "k{" + a + "}",
                 .formula = "1 − μ{" + a + "} N{Sd} / (γ{M1} N{b," + a + ",Rd}) ≤ 1,5",
                 .numeri = "1 − " + ConSegno(Formato("0.0##", m.mu)) + " · " + ConSegno(Kilo(s.NSd)) +
                           " / (" + Piano(GammaM1) + " · " + Kilo(m.NbRd) + ")",
                 .valore = Formato("0.0##", m.k),
                 .norma = interazione});
    const std::string momento = (m.elastico ? "M{el," : "M{c,") + a + ",Rd}";
    p.push_back({.descrizione = "Momento resistente della classe, con γ{M1}",
                 .simbolo = "M{" + a + ",Rd}",
                 .formula = "γ{M0} " + momento + " / γ{M1}",
                 .numeri = Piano(GammaM0) + " · " + KiloMetri(m.McRd) + " / " + Piano(GammaM1),
                 .valore = KiloMetri(m.termine.MRd),
                 .unita = "kNm",
                 .norma = interazione});
}

/// "ky My,Sd", of class 4 with the moment of the shifted centroid.
std::string Sopra(const std::string& k, const std::string& asse, bool classe4) {
    const std::string M = "M{" + asse + ",Sd}";
    return "k{" + k + "} " + (classe4 ? "(" + M + " + N{Sd} e{N" + asse + "})" : M);
}

std::string Numeri(const TermineMomento& t) {
    return Formato("0.0##", t.k) + " · " + ConSegno(KiloMetri(t.M())) + " / " + KiloMetri(t.MRd);
}

std::string NormaInterazione(int classe, const char* comma1, const char* comma3, const char* comma4) {
    return std::string(interazione) + " " + (classe < 3 ? comma1 : classe == 3 ? comma3 : comma4);
}

const char* FormaDiagramma(std::int16_t pict) {
    switch (pict) {
    case pictEstremitaConcordi:
        return "momenti di estremità concordi";
    case pictEstremitaDiscordi:
        return "momenti di estremità discordi";
    case pictDistribuitoContro:
        return "carico distribuito contro i momenti di estremità";
    case pictConcentratoContro:
        return "carico concentrato contro i momenti di estremità";
    case pictDistribuitoConcorde:
        return "carico distribuito concorde coi momenti di estremità";
    case pictConcentratoConcorde:
        return "carico concentrato concorde coi momenti di estremità";
    default:
        return "";
    }
}

void AggiungeMomenti(Passi& p, const std::string& asse, const MomentiMembratura& m, bool campata) {
    p.push_back(Dato("Momento maggiore di estremità, " + asse + "-" + asse, "M{" + asse + ",1}",
                     KiloMetri(m.M1), "kNm"));
    p.push_back(Dato("Momento all'altra estremità", "M{" + asse + ",2}", KiloMetri(m.M2), "kNm"));
    if (campata)
        p.push_back(Dato("Momento del carico in mezzeria", "M{" + asse + ",Q}", KiloMetri(m.MQ), "kNm"));
}

/// What follows from a critical moment that is no number is none either.
double Valido(const SezioneDoppioT& s, double valore) {
    return s.LLT > 0 && !std::isfinite(s.Mcr) ? nessuno : valore;
}

constexpr const char* normaMcr = "ENV 1993-1-1 F.1.2";

/// Height of the load above the shear centre [mm].
double AltezzaCarico(const SezioneDoppioT& s) { return s.h / 2 + s.za - s.zCentroTaglio(); }

std::string Quota(double mm) { return Formato("0.0##", mm); }

/// The load above the shear centre, and the asymmetry of the flanges.
void AggiungeAltezze(Passi& p, const SezioneDoppioT& s) {
    p.push_back(Dato("Altezza del carico sopra la mezzeria", "z{a}", Piano(s.za), "mm", normaMcr));
    p.push_back({.descrizione = "Altezza del centro di taglio sopra il lembo inferiore",
                 .simbolo = "z{S}",
                 .formula = s.SaldataAsimm ? "y{G} + [(h − y{G}) I{sup} − I{inf} y{G}] / i{z}" : "h / 2",
                 .valore = Quota(s.zCentroTaglio()),
                 .unita = "mm",
                 .norma = normaMcr});
    p.push_back({.descrizione = "Altezza del carico sopra il centro di taglio",
                 .simbolo = "z{g}",
                 .formula = "h / 2 + z{a} − z{S}",
                 .numeri = Piano(s.h) + " / 2 + " + ConSegno(Piano(s.za)) + " − " +
                           ConSegno(Quota(s.zCentroTaglio())),
                 .valore = Quota(AltezzaCarico(s)),
                 .unita = "mm",
                 .norma = normaMcr});
    p.push_back(Dato("Asimmetria delle ali", "z{j}", Quota(AsimmetriaAli(s)), "mm", normaMcr));
}

std::string NumeriMcr(const SezioneDoppioT& s) {
    const std::string E = Intero(E_acciaio), Jz = Intero(s.Jz), k = Piano(s.k), kL = k + " · " + Piano(s.LLT);
    const std::string D = ConSegno(Formato("0.0##", s.c2)) + " · " + ConSegno(Quota(AltezzaCarico(s))) +
                          " − " + ConSegno(Formato("0.0##", s.c3)) + " · " +
                          ConSegno(Quota(AsimmetriaAli(s)));
    return Formato("0.0##", s.C1) + " · π^{2} · " + E + " · " + Jz + " / (" + kL + ")^{2} · [√((" + k +
           " / " + Piano(s.Kw) + ")^{2} · " + Intero(s.Jw) + " / " + Jz + " + (" + kL + ")^{2} · " +
           Intero(G_acciaio) + " · " + Intero(s.JT) + " / (π^{2} · " + E + " · " + Jz + ") + (" + D +
           ")^{2}) − (" + D + ")] · 10^{-6}";
}

void AggiungeMcr(Passi& p, const SezioneDoppioT& s) {
    const char* norma = normaMcr;
    p.push_back(Dato("Distanza fra i vincoli torsionali", "L", s.LLT > 0 ? Metri(s.LLT) : "0", "m"));
    p.push_back(Dato("Vincolo alla rotazione nel piano", "k", Piano(s.k), "", norma));
    p.push_back(Dato("Vincolo all'ingobbamento", "k{w}", Piano(s.Kw), "", norma));
    p.push_back(Dato("Coefficienti del diagramma", "C{1}; C{2}; C{3}",
                     Formato("0.0##", s.C1) + "; " + Formato("0.0##", s.c2) + "; " + Formato("0.0##", s.c3),
                     "", norma));
    p.push_back(Dato("Modulo di elasticità", "E", Intero(E_acciaio), "N/mm^{2}"));
    p.push_back(Dato("Modulo di taglio", "G", Intero(G_acciaio), "N/mm^{2}"));
    AggiungeAltezze(p, s);
    p.push_back({.descrizione = "Momento critico elastico",
                 .simbolo = "M{cr}",
                 .formula = s.LLT > 0
                                ? "C{1} π^{2} E J{z} / (k L)^{2} · [√((k / k{w})^{2} J{w} / J{z} + (k L)^{2} "
                                  "G J{T} / (π^{2} E J{z}) + (C{2} z{g} − C{3} z{j})^{2}) − (C{2} z{g} − "
                                  "C{3} z{j})]"
                                : "L = 0: nessuno svergolamento",
                 .numeri = s.LLT > 0 && std::isfinite(s.Mcr) ? NumeriMcr(s) : std::string(),
                 .valore = s.LLT > 0 ? KiloMetri(s.Mcr) : "∞",
                 .unita = "kNm",
                 .norma = normaMcr});
}

void AggiungeMbRd(Passi& p, const SezioneDoppioT& s) {
    const char* norma = "ENV 1993-1-1 5.5.2";
    const std::string Mcr = s.LLT > 0 ? KiloMetri(s.Mcr) : "∞";
    const bool numero = std::isfinite(Valido(s, s.MbRd)); // what is no number is not put in
    p.push_back({.descrizione = "Snellezza relativa",
                 .simbolo = "λ̅{LT}",
                 .formula = "√(γ{M0} M{c,y,Rd} / M{cr})",
                 .numeri = numero ? "√(" + Piano(GammaM0) + " · " + KiloMetri(s.McyRd) + " / " + Mcr + ")"
                                  : std::string(),
                 .valore = Rapporto(Valido(s, s.LamdaLT)),
                 .norma = norma});
    p.push_back(
        Dato("Coefficiente d'imperfezione", "α{LT}", Formato("0.0#", s.Saldata ? 0.49 : 0.21), "", norma));
    const double alfa = s.Saldata ? 0.49 : 0.21;
    const double lamda = Valido(s, s.LamdaLT);
    const std::string ls = Rapporto(lamda);
    const std::string fi = Rapporto(Fi(alfa, lamda));
    const bool ridotto = std::isfinite(lamda) ? lamda > 0.4 : false;
    p.push_back({.descrizione = "",
                 .simbolo = "φ{LT}",
                 .formula = "0,5 [1 + α{LT} (λ̅{LT} − 0,2) + λ̅{LT}^{2}]",
                 .numeri = std::isfinite(lamda) ? "0,5 · [1 + " + Formato("0.0#", alfa) + " · (" + ls +
                                                      " − 0,2) + " + ls + "^{2}]"
                                                : std::string(),
                 .valore = fi,
                 .norma = norma});
    p.push_back({.descrizione = "Coefficiente di riduzione, 1 fino a λ̅{LT} = 0,4",
                 .simbolo = "χ{LT}",
                 .formula = "1 / (φ{LT} + √(φ{LT}^{2} − λ̅{LT}^{2})) ≤ 1",
                 .numeri = ridotto ? "1 / (" + fi + " + √(" + fi + "^{2} − " + ls + "^{2}))" : std::string(),
                 .valore = Formato("0.0##", Valido(s, s.ChiLT)),
                 .norma = norma});
    p.push_back({.descrizione = "Resistenza all'instabilità flesso-torsionale",
                 .simbolo = "M{b,Rd}",
                 .formula = "χ{LT} γ{M0} M{c,y,Rd} / γ{M1}",
                 .numeri = numero ? Formato("0.0##", s.ChiLT) + " · " + Piano(GammaM0) + " · " +
                                        KiloMetri(s.McyRd) + " / " + Piano(GammaM1)
                                  : std::string(),
                 .valore = KiloMetri(Valido(s, s.MbRd)),
                 .unita = "kNm",
                 .norma = norma});
}

void AggiungeNotaMcr(CapitoloRelazione& c, const SezioneDoppioT& s) {
    if (McrSiDiscosta(s))
        c.note.emplace_back(
            "Ali diverse e carico fuori dal baricentro: questo M{cr} si discosta da quello delle norme "
            "attuali anche di più ordini di grandezza e non va usato.");
}

} // namespace

CapitoloRelazione CapitoloInstabilita(const SezioneDoppioT& s, const CurveInstabilita& curve) {
    CapitoloRelazione c = CapitoloColonne();
    const double betaA = s.betaA();
    const bool errore = s.ErroreDatiDatabase;
    Aggiunge(c.passi, {"y", s.L0y, s.iY, s.LamdaY(), curve.y, errore ? nessuno : s.NbyRd}, s.fy, betaA,
             s.Area);
    Aggiunge(c.passi, {"z", s.L0z, s.iZ, s.LamdaZ(), curve.z, errore ? nessuno : s.NbzRd}, s.fy, betaA,
             s.Area);
    AdattaDecimali(c);
    return c;
}

CapitoloRelazione CapitoloInstabilita(const SezioneSagomoU& s, const CurveInstabilita& curve) {
    CapitoloRelazione c = CapitoloColonne();
    Aggiunge(c.passi, {"y", s.L0y, s.iY, s.LamdaY(), curve.y, s.NbyRd}, s.fy, s.betaA(), s.Area);
    Aggiunge(c.passi, {"z", s.L0z, s.Iz, s.LamdaZ(), curve.z, s.NbzRd}, s.fy, s.betaA(), s.Area);
    AdattaDecimali(c);
    return c;
}

CapitoloRelazione CapitoloInstabilita(const SezioneSagomoL& s, const CurveInstabilita& curve) {
    CapitoloRelazione c = CapitoloColonne();
    Aggiunge(c.passi, {"y", s.L0y, s.iY, s.LamdaY(), curve.y, s.NbyRd}, s.fy, s.betaA(), s.Area);
    Aggiunge(c.passi, {"z", s.L0z, s.Iz, s.LamdaZ(), curve.z, s.NbzRd}, s.fy, s.betaA(), s.Area);
    Aggiunge(c.passi, {"v", s.L0v, s.iV, s.LamdaV(), curve.z, s.NbvRd}, s.fy, s.betaA(), s.Area);
    AdattaDecimali(c);
    return c;
}

CapitoloRelazione CapitoloMomenti(const MomentiMembratura& y, const MomentiMembratura& z, std::int16_t tipo,
                                  std::int16_t pict) {
    CapitoloRelazione c{.titolo = "Diagramma dei momenti"};
    c.passi.push_back(Dato("Forma", "", FormaDiagramma(pict), "", "ENV 1993-1-1 fig. 5.5.3"));
    AggiungeMomenti(c.passi, "y", y, tipo == diagrammaCampata);
    AggiungeMomenti(c.passi, "z", z, tipo == diagrammaCampata);
    return c;
}

CapitoloRelazione CapitoloMembratura(const SezioneDoppioT& s) {
    CapitoloRelazione c{.titolo = "Verifica della membratura"};
    const TerminiInterazione t = s.TerminiMNInstab();
    const bool elastica = s.ClassePressoFlessione >= 3;
    const bool classe4 = s.ClassePressoFlessione > 3;
    Aggiunge(c.passi, s,
             {"y", s.BetaMy, s.muY(), s.kY(), s.NbyRd, elastica, elastica ? s.MelyRd : s.McyRd, t.y});
    Aggiunge(c.passi, s,
             {"z", s.BetaMz, s.muZ(), s.kZ(), s.NbzRd, elastica, elastica ? s.MelzRd : s.MczRd, t.z});
    if (classe4)
        AggiungeSpostamenti(c.passi, s);
    const Verdetto v = GiudicaInstabilita(s);
    const std::string norma = NormaInterazione(s.ClassePressoFlessione, "(1)", "(3)", "(5)");
    c.passi.push_back(
        {.descrizione = "Interazione",
         .simbolo = "",
         .formula = "N{Sd} / N{b,min,Rd} + " + Sopra("y", "y", classe4) + " / M{y,Rd} + " +
                    Sopra("z", "z", classe4) + " / M{z,Rd}",
         .numeri = Kilo(t.NSd) + " / " + Kilo(t.NRd) + " + " + Numeri(t.y) + " + " + Numeri(t.z),
         .valore = Rapporto(v.somma),
         .norma = norma});
    AdattaDecimali(c);
    c.verdetto = VerdettoDi(v, "Stabilità della membratura", norma);
    return c;
}

CapitoloRelazione CapitoloMomentoCritico(const SezioneDoppioT& s) {
    CapitoloRelazione c{.titolo = "Resistenza allo svergolamento"};
    AggiungeMcr(c.passi, s);
    AggiungeMbRd(c.passi, s);
    AdattaDecimali(c);
    AggiungeNotaMcr(c, s);
    return c;
}

CapitoloRelazione CapitoloSvergolamento(const SezioneDoppioT& s, bool conAsseZ) {
    CapitoloRelazione c{.titolo = "Verifica allo svergolamento"};
    AggiungeMcr(c.passi, s);
    AggiungeMbRd(c.passi, s);
    const TerminiInterazione t = s.TerminiFlessoTorsionale();
    const std::string norma = NormaInterazione(s.ClassePressoFlessione, "(2)", "(4)", "(6)");
    const bool classe4 = s.ClassePressoFlessione > 3;
    if (conAsseZ)
        Aggiunge(c.passi, s, {"z", s.BetaMz, s.muZ(), s.kZ(), s.NbzRd, false, s.MczRd, t.z});
    if (conAsseZ && classe4)
        AggiungeSpostamenti(c.passi, s);
    c.passi.push_back(Dato("Coefficiente di momento uniforme equivalente, svergolamento", "β{M,LT}",
                           Formato("0.0##", s.BetaMLT), "", "ENV 1993-1-1 fig. 5.5.3"));
    c.passi.push_back(
        {.descrizione = "",
         .simbolo = "μ{LT}",
         .formula = "0,15 λ̅{z} β{M,LT} − 0,15 ≤ 0,9",
         .numeri = "0,15 · " + Rapporto(s.LamdaSegnatoZ()) + " · " + Formato("0.0##", s.BetaMLT) + " − 0,15",
         .valore = Formato("0.0##", s.muLT()),
         .norma = norma});
    c.passi.push_back({.descrizione = "",
                       .simbolo = "k{LT}",
                       .formula = "1 − μ{LT} N{Sd} / (γ{M1} N{b,z,Rd}) ≤ 1",
                       .numeri = "1 − " + ConSegno(Formato("0.0##", s.muLT())) + " · " +
                                 ConSegno(Kilo(s.NSd)) + " / (" + Piano(GammaM1) + " · " + Kilo(s.NbzRd) +
                                 ")",
                       .valore = Formato("0.0##", s.kLT()),
                       .norma = norma});
    Verdetto v = GiudicaFlessoTorsionale(s);
    if (s.LLT > 0 && !std::isfinite(s.Mcr) && !v.assialeOltre)
        v = Verdetto(); // a resistance that is none has no verdict
    c.passi.push_back(
        {.descrizione = "Interazione",
         .simbolo = "",
         .formula = "N{Sd} / N{b,z,Rd} + " + Sopra("LT", "y", classe4) + " / M{b,Rd} + " +
                    Sopra("z", "z", classe4) + " γ{M1} / (γ{M0} M{c,z,Rd})",
         .numeri = std::isfinite(Valido(s, t.y.MRd))
                       ? Kilo(t.NSd) + " / " + Kilo(t.NRd) + " + " + Numeri(t.y) + " + " + Numeri(t.z)
                       : std::string(),
         .valore = Rapporto(v.somma),
         .norma = norma});
    AdattaDecimali(c);
    c.verdetto = VerdettoDi(v, "Stabilità flesso-torsionale", norma);
    AggiungeNotaMcr(c, s);
    return c;
}

} // namespace sagomi
