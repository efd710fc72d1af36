#include "report/CapitoloEfficace.h"

#include <cmath>
#include <string>
#include <vector>

#include "report/Figure.h"
#include "sections/Eurocod3.h"
#include "sections/LarghezzeEfficaci.h"
#include "sections/LunghezzePerse.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

namespace sagomi {

namespace {

constexpr const char* efficaci = "ENV 1993-1-1 5.3.5";
constexpr const char* sporgenti = "ENV 1993-1-1 tab. 5.3.3";
constexpr const char* interni = "ENV 1993-1-1 tab. 5.3.2";

using Passi = std::vector<PassoRelazione>;

/// A plate of class 4.
struct PiattoSnello {
    std::string nome;
    std::string simboloB, simboloT;
    double b, t; ///< mm
    double fy;   ///< N/mm2
    double kSigma;
    const char* tabella;
    /// The compressed width [mm] with its symbol, where it is not all of b.
    std::string simboloCompressa{};
    double compressa = 0;
};

std::string Lungo(double mm) { return Formato("0.0##", mm); }

void AggiungeSnellezza(Passi& p, const PiattoSnello& k, double lamda) {
    const std::string fattore = Formato("0.0###", k.kSigma);
    p.push_back(Dato(k.nome + ", fattore d'imbozzamento", "k{σ}", fattore, "", k.tabella));
    p.push_back({.descrizione = "Snellezza del piatto",
                 .simbolo = "λ̅{p}",
                 .formula = k.simboloB + " / " + k.simboloT + " / (28,4 ε √k{σ})",
                 .numeri = std::isfinite(lamda) ? Lungo(k.b) + " / " + Lungo(k.t) + " / (28,4 · " +
                                                      Rapporto(Epsilon(k.fy)) + " · √" + fattore + ")"
                                                : std::string(),
                 .valore = Rapporto(lamda),
                 .norma = efficaci});
}

/// From the slenderness to what the plate loses; one without a buckling factor has no numbers and loses all.
void Aggiunge(Passi& p, const PiattoSnello& k) {
    const double lamda = k.b / k.t / (28.4 * Epsilon(k.fy) * std::sqrt(k.kSigma));
    const double rho = Rho(k.b, k.t, k.fy, k.kSigma);
    const std::string b = k.simboloCompressa.empty() ? k.simboloB : k.simboloCompressa;
    const double larghezza = k.simboloCompressa.empty() ? k.b : k.compressa;
    const std::string ls = Rapporto(lamda);
    AggiungeSnellezza(p, k, lamda);
    p.push_back(
        {.descrizione = "Quota efficace, 1 fino a λ̅{p} = 0,673",
         .simbolo = "ρ",
         .formula = "(λ̅{p} − 0,22) / λ̅{p}^{2}",
         .numeri = rho < 1 && std::isfinite(lamda) ? "(" + ls + " − 0,22) / " + ls + "^{2}" : std::string(),
         .valore = Rapporto(rho),
         .norma = efficaci});
    p.push_back({.descrizione = "Larghezza efficace",
                 .simbolo = "b{eff}",
                 .formula = "ρ " + b,
                 .numeri = Rapporto(rho) + " · " + Lungo(larghezza),
                 .valore = Lungo(rho * larghezza),
                 .unita = "mm",
                 .norma = k.tabella});
    p.push_back({.descrizione = "Larghezza persa",
                 .simbolo = "",
                 .formula = b + " − b{eff}",
                 .numeri = Lungo(larghezza) + " − " + Lungo(rho * larghezza),
                 .valore = Lungo(larghezza - rho * larghezza),
                 .unita = "mm",
                 .norma = efficaci});
}

/// A web in bending: the part in compression, and the strips of it that stay.
void AggiungeAnimaInflessa(Passi& p, double d, double tw, double fy, double psi) {
    if (!(psi <= 1))
        return;
    const bool tesa = psi < 0;
    const double compressa = tesa ? d / (1 - psi) : d;
    p.push_back(
        Dato("Anima inflessa, rapporto delle tensioni agli estremi", "ψ", Rapporto(psi), "", interni));
    if (tesa)
        p.push_back({.descrizione = "Altezza compressa dell'anima",
                     .simbolo = "b{c}",
                     .formula = "d / (1 − ψ)",
                     .numeri = Lungo(d) + " / (1 − " + ConSegno(Rapporto(psi)) + ")",
                     .valore = Lungo(compressa),
                     .unita = "mm",
                     .norma = interni});
    Aggiunge(p, {"Anima inflessa", "d", "t{w}", d, tw, fy, kSigmaPiatto(psi), interni, tesa ? "b{c}" : "",
                 compressa});
    const StrisceEfficaci strisce = StrisceDelPiatto(psi, d, tw, fy);
    p.push_back({.descrizione = "Striscia efficace al bordo compresso",
                 .simbolo = "b{e1}",
                 .formula = tesa ? "0,4 b{eff}" : "",
                 .valore = Lungo(strisce.be1),
                 .unita = "mm",
                 .norma = interni});
    p.push_back({.descrizione = tesa ? "Striscia efficace all'asse neutro" : "Striscia all'altro bordo",
                 .simbolo = "b{e2}",
                 .formula = tesa ? "0,6 b{eff}" : "",
                 .valore = Lungo(strisce.be2),
                 .unita = "mm",
                 .norma = interni});
}

/// What plates lose in compression: how many of them, the lost width and the thickness [mm].
struct Perdita {
    int quanti;
    double larghezza, spessore;
};

/// The effective area; its numbers where the plates are rectangles, as the flanges of most sections are.
void AggiungeArea(Passi& p, double area, double Aeff, const std::vector<Perdita>& perdite) {
    constexpr double scarto = 2e-3;
    double resta = area;
    std::string numeri = Intero(area);
    for (const Perdita& k : perdite) {
        resta -= k.quanti * k.larghezza * k.spessore;
        if (k.larghezza > 0)
            numeri += " − " + (k.quanti > 1 ? std::to_string(k.quanti) + " · " : std::string()) +
                      Lungo(k.larghezza) + " · " + Lungo(k.spessore);
    }
    p.push_back({.descrizione = "Area efficace, compressione",
                 .simbolo = "A{eff}",
                 .formula = "A − Σ (b − b{eff}) t",
                 .numeri = std::abs(resta - Aeff) <= scarto * Aeff ? numeri : std::string(),
                 .valore = Cifre(Aeff),
                 .unita = "mm^{2}",
                 .norma = efficaci});
}

/// Modulus of the compressed edge and shift, of the effective outline in bending about y-y.
void AggiungeFlessioneY(Passi& p, const SezioneGenerica& efficace, double h, double Weff, double eNy) {
    p.push_back(Dato("Baricentro della sezione efficace, flessione intorno a y-y", "y{G,eff}",
                     Lungo(efficace.yG), "mm", efficaci));
    p.push_back(Dato("Momento d'inerzia efficace", "J{eff,y}", Intero(efficace.JotaXG), "mm^{4}", efficaci));
    p.push_back({.descrizione = "Modulo efficace del lembo compresso",
                 .simbolo = "W{eff,y}",
                 .formula = "J{eff,y} / (h − y{G,eff})",
                 .numeri = Intero(efficace.JotaXG) + " / (" + Lungo(h) + " − " + Lungo(efficace.yG) + ")",
                 .valore = Intero(Weff),
                 .unita = "mm^{3}",
                 .norma = efficaci});
    p.push_back({.descrizione = "Spostamento del baricentro lungo l'anima",
                 .simbolo = "e{N,y}",
                 .formula = "h / 2 − y{G,eff}",
                 .numeri = Lungo(h) + " / 2 − " + Lungo(efficace.yG),
                 .valore = Lungo(eNy),
                 .unita = "mm",
                 .norma = "EC3 6.2.9.3"});
}

/// The same about z-z.
void AggiungeFlessioneZ(Passi& p, const SezioneGenerica& efficace, double Weff, double eNz) {
    p.push_back(Dato("Baricentro della sezione efficace, flessione intorno a z-z", "x{G,eff}",
                     Lungo(efficace.xG), "mm", efficaci));
    p.push_back(Dato("Momento d'inerzia efficace", "J{eff,z}", Intero(efficace.JotaYG), "mm^{4}", efficaci));
    p.push_back({.descrizione = "Modulo efficace del lembo compresso",
                 .simbolo = "W{eff,z}",
                 .formula = "J{eff,z} / (x{max} − x{G,eff})",
                 .valore = Intero(Weff),
                 .unita = "mm^{3}",
                 .norma = efficaci});
    p.push_back({.descrizione = "Spostamento del baricentro attraverso l'anima",
                 .simbolo = "e{N,z}",
                 .formula = "−x{G,eff}",
                 .valore = Lungo(eNz),
                 .unita = "mm",
                 .norma = "EC3 6.2.9.3"});
}

PiattoSnello AnimaCompressa(double d, double tw, double fy) {
    return {"Anima compressa", "d", "t{w}", d, tw, fy, kSigmaAnimaCompressa, interni};
}

PiattoSnello Ala(const char* nome, double c, double tf, double fy, double kSigma) {
    return {nome, "c", "t{f}", c, tf, fy, kSigma, sporgenti};
}

PiattoSnello AlaInferiore(const SezioneDoppioT& s, const char* nome, double kSigma) {
    return {nome, "c{inf}", "t{f,inf}", s.cAlaInf, s.tAlaInf, s.fy, kSigma, sporgenti};
}

} // namespace

CapitoloRelazione CapitoloEfficace(const SezioneDoppioT& s) {
    CapitoloRelazione c{.titolo = "Sezione efficace"};
    const bool inferiore = s.SaldataAsimm && s.ClasseAlaInfC == 4;
    if (s.ClasseCompressione == 4) {
        if (s.ClasseWebC == 4)
            Aggiunge(c.passi, AnimaCompressa(s.d, s.tw, s.fy));
        if (s.ClasseAlaC == 4)
            Aggiunge(c.passi, Ala("Ala compressa", s.c, s.tf, s.fy, kSigmaAlaCompressa));
        if (inferiore)
            Aggiunge(c.passi, AlaInferiore(s, "Ala inferiore compressa", kSigmaAlaCompressa));
        const LunghezzePerse perse = PerseDi(s);
        const double inf = inferiore ? TaglioAla(s.cAlaInf, s.tAlaInf, s.fy, kSigmaAlaCompressa) : 0;
        AggiungeArea(c.passi, s.Area, s.betaA() * s.Area,
                     {{1, perse.animaCompressa, s.tw},
                      {s.SaldataAsimm ? 2 : 4, perse.ala, s.tf},
                      {2, inf, s.tAlaInf}});
    }
    if (s.ClasseFlessioneY == 4 && s.SezioneWy4) {
        if (s.ClasseWebF == 4)
            AggiungeAnimaInflessa(c.passi, s.d, s.tw, s.fy, PsiAnimaInflessa(s));
        AggiungeFlessioneY(c.passi, *s.SezioneWy4, s.h, s.WyEff, s.eNy);
    }
    if (s.ClasseFlessioneZ == 4 && s.SezioneWz4) {
        if (s.ClasseAlaC == 4)
            Aggiunge(c.passi, Ala("Ala inflessa intorno a z-z", s.c, s.tf, s.fy, kSigmaAlaInflessa));
        if (inferiore)
            Aggiunge(c.passi, AlaInferiore(s, "Ala inferiore inflessa intorno a z-z", kSigmaAlaInflessa));
        AggiungeFlessioneZ(c.passi, *s.SezioneWz4, s.WzEff, s.eNz);
    }
    AdattaDecimali(c);
    return c;
}

CapitoloRelazione CapitoloEfficace(const SezioneSagomoU& s) {
    CapitoloRelazione c{.titolo = "Sezione efficace"};
    if (s.ClasseCompressione == 4) {
        if (s.ClasseWebC == 4)
            Aggiunge(c.passi, AnimaCompressa(s.d, s.tw, s.fy));
        if (s.ClasseAlaC == 4)
            Aggiunge(c.passi, Ala("Ala compressa", s.c, s.tf, s.fy, kSigmaAlaCompressa));
        const LunghezzePerse perse = PerseDi(s);
        const int quanti = s.Doppi ? 2 : 1;
        AggiungeArea(c.passi, s.Area, s.betaA() * s.Area,
                     {{quanti, perse.animaCompressa, s.tw}, {2 * quanti, perse.ala, s.tf}});
    }
    if (s.ClasseFlessioneY == 4 && s.SezioneWy4 && !s.Doppi) {
        if (s.ClasseWebF == 4)
            AggiungeAnimaInflessa(c.passi, s.d, s.tw, s.fy, -1);
        AggiungeFlessioneY(c.passi, *s.SezioneWy4, s.h, s.WyEff, s.eNy);
    }
    if (s.ClasseFlessioneZ == 4 && s.SezioneWz4 && !s.Doppi) {
        if (s.ClasseAlaC == 4)
            Aggiunge(c.passi, Ala("Ala inflessa intorno a z-z", s.c, s.tf, s.fy, kSigmaAlaInflessa));
        AggiungeFlessioneZ(c.passi, *s.SezioneWz4, s.WzEff, s.eNz);
    }
    AdattaDecimali(c);
    return c;
}

CapitoloRelazione CapitoloEfficace(const SezioneSagomoL& s) {
    CapitoloRelazione c{.titolo = "Sezione efficace"};
    if (s.ClasseCompressione != 4)
        return c;
    Aggiunge(c.passi, {"Lato lungo", "h", "t", s.h, s.t, s.fy, kSigmaAlaCompressa, sporgenti});
    Aggiunge(c.passi, {"Lato corto", "b", "t", s.b, s.t, s.fy, kSigmaAlaCompressa, sporgenti});
    const LatiPersi persi = PerseDi(s);
    const int quanti = s.Doppi ? 2 : 1;
    AggiungeArea(c.passi, s.Area, s.betaA() * s.Area,
                 {{quanti, persi.lungo, s.t}, {quanti, persi.corto, s.t}});
    c.passi.push_back(
        Dato("Spostamento del baricentro lungo il lato lungo", "e{N,y}", Lungo(persi.eNy), "mm", efficaci));
    c.passi.push_back(
        Dato("Spostamento del baricentro lungo il lato corto", "e{N,z}", Lungo(persi.eNz), "mm", efficaci));
    AdattaDecimali(c);
    return c;
}

} // namespace sagomi
