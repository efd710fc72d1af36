#include "report/CapitoliSagomo.h"

#include <algorithm>
#include <cmath>

#include "frame/Acciaio.h"
#include "frame/GeneraleSagomi.h"
#include "report/Figure.h"
#include "report/PassiSagomo.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"
#include "sections/Verdetto.h"

namespace sagomi {

namespace {

using Passi = std::vector<PassoRelazione>;

std::string Nome(TermineVerifica termine) {
    switch (termine) {
    case TermineVerifica::N:
        return "N";
    case TermineVerifica::My:
        return "M{y}";
    case TermineVerifica::Mz:
        return "M{z}";
    case TermineVerifica::Nessuno:
        break;
    }
    return {};
}

template <typename S> void AggiungeAcciaio(Passi& p, const S& s) {
    p.push_back(Dato("Acciaio", "", AcciaioMostrato(s.TipoAcciaio, s.fy)));
    p.push_back(Dato("Tensione di snervamento", "f{y}", Piano(s.fy), "N/mm^{2}"));
    if (s.fu > 0)
        p.push_back(Dato("Tensione di rottura", "f{u}", Piano(s.fu), "N/mm^{2}"));
    p.push_back(Dato("Normativa", "", NomeNormativa()));
    p.push_back(Dato("Coefficiente parziale, resistenza", "γ{M0}", Piano(GammaM0)));
    p.push_back(Dato("Coefficiente parziale, instabilità", "γ{M1}", Piano(GammaM1)));
}

void AggiungeMisura(Passi& p, const char* descrizione, const char* simbolo, Singolo mm) {
    if (mm > 0)
        p.push_back(Dato(descrizione, simbolo, Piano(mm), "mm"));
}

/// Area, second moments, radii of gyration and elastic moduli, which all kinds have.
template <typename S> void AggiungeCostanti(Passi& p, const S& s, double iz) {
    p.push_back(Dato("Area", "A", Cifre(Singolo(mm2_a_cm2(s.Area))), "cm^{2}"));
    p.push_back(Dato("Momento d'inerzia intorno a y-y", "J{y}", Cifre(Singolo(mm4_a_cm4(s.Jy))), "cm^{4}"));
    p.push_back(Dato("Momento d'inerzia intorno a z-z", "J{z}", Cifre(Singolo(mm4_a_cm4(s.Jz))), "cm^{4}"));
    p.push_back(Dato("Raggio d'inerzia intorno a y-y", "i{y}", Cifre(Singolo(mm_a_cm(s.iY))), "cm"));
    p.push_back(Dato("Raggio d'inerzia intorno a z-z", "i{z}", Cifre(Singolo(mm_a_cm(iz))), "cm"));
    p.push_back(
        Dato("Modulo elastico intorno a y-y", "W{el,y}", Cifre(Singolo(mm3_a_cm3(s.Wely))), "cm^{3}"));
    p.push_back(
        Dato("Modulo elastico intorno a z-z", "W{el,z}", Cifre(Singolo(mm3_a_cm3(s.Welz))), "cm^{3}"));
}

template <typename S> void AggiungePlastiche(Passi& p, const S& s) {
    p.push_back(
        Dato("Modulo plastico intorno a y-y", "W{pl,y}", Cifre(Singolo(mm3_a_cm3(s.Wply))), "cm^{3}"));
    p.push_back(
        Dato("Modulo plastico intorno a z-z", "W{pl,z}", Cifre(Singolo(mm3_a_cm3(s.Wplz))), "cm^{3}"));
    p.push_back(Dato("Costante di torsione primaria", "J{T}", Cifre(Singolo(mm4_a_cm4(s.JT))), "cm^{4}"));
    p.push_back(Dato("Costante di ingobbamento", "J{w}", Cifre(Singolo(mm6_a_cm6(s.Jw))), "cm^{6}"));
}

template <typename S> void AggiungeCoppia(Passi& p, const S& s) {
    if (s.Doppi)
        p.push_back(Dato("Due sagomi alla distanza", "d", Piano(s.dDoppi), "mm"));
}

/// What channels and angles are checked under.
template <typename S> CapitoloRelazione AzioneAssiale(const S& s, double NSd) {
    CapitoloRelazione c{.titolo = "Azioni e lunghezze"};
    c.passi = {Dato("Forza assiale, di compressione se positiva", "N{Sd}", Kilo(NSd), "kN"),
               Dato("Lunghezza di libera inflessione intorno a y-y", "L{0,y}", Metri(s.L0y), "m"),
               Dato("Lunghezza di libera inflessione intorno a z-z", "L{0,z}", Metri(s.L0z), "m")};
    return c;
}

/// Classes 1 and 2: the moments that the axial force leaves, EC3 6.2.9.1 (5) and (6).
void AggiungePlastica(Passi& p, const SezioneDoppioT& s, const TerminiInterazione& t, const Verdetto& v) {
    const std::string norma = "EC3 6.2.9.1";
    const double n = s.NSd / s.NplRd;
    const double a = std::min((s.Area - 2 * s.b * s.tf) / s.Area, 0.5);
    p.push_back({.descrizione = "Forza assiale relativa",
                 .simbolo = "n",
                 .formula = "N{Sd} / N{pl,Rd}",
                 .numeri = Kilo(s.NSd) + " / " + Kilo(s.NplRd),
                 .valore = Rapporto(n),
                 .norma = norma});
    p.push_back({.descrizione = "Quota dell'area dell'anima",
                 .simbolo = "a",
                 .formula = "(A − 2 b t{f}) / A ≤ 0,5",
                 .valore = Rapporto(a),
                 .norma = norma});
    p.push_back(
        {.descrizione = "Momento plastico ridotto da N intorno a y-y",
         .simbolo = "M{N,y,Rd}",
         .formula = "M{c,y,Rd} (1 − n) / (1 − 0,5 a) ≤ M{c,y,Rd}",
         .numeri = KiloMetri(s.McyRd) + " · (1 − " + Rapporto(n) + ") / (1 − 0,5 · " + Rapporto(a) + ")",
         .valore = v.assialeOltre ? std::string() : KiloMetri(t.y.MRd),
         .unita = "kNm",
         .norma = norma});
    p.push_back({.descrizione = "Momento plastico ridotto da N intorno a z-z",
                 .simbolo = "M{N,z,Rd}",
                 .formula = n > a ? "M{c,z,Rd} [1 − ((n − a) / (1 − a))^{2}]" : "M{c,z,Rd}",
                 .valore = v.assialeOltre ? std::string() : KiloMetri(t.z.MRd),
                 .unita = "kNm",
                 .norma = norma});
    p.push_back(Dato("Esponente del termine di M{y}", "α", Piano(t.y.esponente), "", norma));
    p.push_back({.descrizione = "Esponente del termine di M{z}",
                 .simbolo = "β",
                 .formula = "5 n ≥ 1",
                 .valore = Rapporto(t.z.esponente),
                 .norma = norma});
    p.push_back({.descrizione = "Interazione",
                 .simbolo = "",
                 .formula = "(M{y,Sd} / M{N,y,Rd})^{α} + (M{z,Sd} / M{N,z,Rd})^{β}",
                 .numeri = v.assialeOltre ? std::string()
                                          : "(" + KiloMetri(t.y.MSd) + " / " + KiloMetri(t.y.MRd) + ")^{" +
                                                Piano(t.y.esponente) + "} + (" + KiloMetri(t.z.MSd) + " / " +
                                                KiloMetri(t.z.MRd) + ")^{" + Rapporto(t.z.esponente) + "}",
                 .valore = Rapporto(v.somma),
                 .norma = norma + " (6)"});
}

PassoRelazione MomentoElastico(const std::string& asse, double Wel, Singolo fy, double MRd) {
    return {.descrizione = "Momento elastico intorno a " + asse + "-" + asse,
            .simbolo = "M{el," + asse + ",Rd}",
            .formula = "W{el," + asse + "} f{y} / γ{M0}",
            .numeri = Intero(Wel) + " · " + Piano(fy) + " / " + Piano(GammaM0) + " · 10^{-6}",
            .valore = KiloMetri(MRd),
            .unita = "kNm",
            .norma = "EC3 6.2.5"};
}

/// Shear areas of ENV 1993-1-1 5.4.6 (2).
PassoRelazione TaglioAnima(const SezioneDoppioT& s) {
    const std::string h = Piano(s.h), b = Piano(s.b), tw = Piano(s.tw), tf = Piano(s.tf);
    return {.descrizione = "Resistenza a taglio dell'anima",
            .simbolo = "V{pl,y,Rd}",
            .formula = std::string(s.Saldata ? "(h − 2 t{f}) t{w}" : "[A − 2 b t{f} + (t{w} + 2 r) t{f}]") +
                       " f{y} / (√3 γ{M0})",
            .numeri = (s.Saldata ? "(" + h + " − 2 · " + tf + ") · " + tw
                                 : "[" + Intero(s.Area) + " − 2 · " + b + " · " + tf + " + (" + tw +
                                       " + 2 · " + Piano(s.r1) + ") · " + tf + "]") +
                      " · " + Piano(s.fy) + " / (√3 · " + Piano(GammaM0) + ") · 10^{-3}",
            .valore = Kilo(s.VplyRd),
            .unita = "kN",
            .norma = "ENV 1993-1-1 5.4.6"};
}

PassoRelazione TaglioAli(const SezioneDoppioT& s) {
    return {.descrizione = "Resistenza a taglio delle ali",
            .simbolo = "V{pl,z,Rd}",
            .formula = "2 b t{f} f{y} / (√3 γ{M0})",
            .numeri = "2 · " + Piano(s.b) + " · " + Piano(s.tf) + " · " + Piano(s.fy) + " / (√3 · " +
                      Piano(GammaM0) + ") · 10^{-3}",
            .valore = Kilo(s.VplzRd),
            .unita = "kN",
            .norma = "ENV 1993-1-1 5.4.6"};
}

/// A shift; of a section that is whole in bending about that axis it is 0.
PassoRelazione Spostamento(const char* descrizione, const char* simbolo, bool efficace, const char* formula,
                           double mm) {
    return {.descrizione = descrizione,
            .simbolo = simbolo,
            .formula = efficace ? formula : "",
            .valore = Cifre(mm),
            .unita = "mm",
            .norma = "EC3 6.2.9.3"};
}

/// Classes 3 and 4: the terms add up; of class 4 the moments have that of the shifted centroid.
void AggiungeElastica(Passi& p, const SezioneDoppioT& s, const TerminiInterazione& t, const Verdetto& v) {
    const bool classe4 = s.ClassePressoFlessione > 3;
    if (classe4) {
        AggiungeSpostamenti(p, s);
    } else {
        p.push_back(MomentoElastico("y", s.Wely, s.fy, t.y.MRd));
        p.push_back(MomentoElastico("z", s.Welz, s.fy, t.z.MRd));
    }
    const std::string formula = classe4
                                    ? "N{Sd} / N{pl,Rd} + (M{y,Sd} + N{Sd} e{Ny}) / M{c,y,Rd} + (M{z,Sd} + "
                                      "N{Sd} e{Nz}) / M{c,z,Rd}"
                                    : "N{Sd} / N{pl,Rd} + M{y,Sd} / M{el,y,Rd} + M{z,Sd} / M{el,z,Rd}";
    p.push_back({.descrizione = "Interazione",
                 .simbolo = "",
                 .formula = formula,
                 .numeri = Kilo(t.NSd) + " / " + Kilo(t.NRd) + " + " + KiloMetri(t.y.M()) + " / " +
                           KiloMetri(t.y.MRd) + " + " + KiloMetri(t.z.M()) + " / " + KiloMetri(t.z.MRd),
                 .valore = Rapporto(v.somma),
                 .norma = classe4 ? "EC3 6.2.9.3" : "EC3 6.2.9.2"});
}

} // namespace

void AggiungeSpostamenti(Passi& p, const SezioneDoppioT& s) {
    p.push_back(Spostamento("Baricentro della sezione efficace, spostamento lungo l'anima", "e{Ny}",
                            s.ClasseFlessioneY > 3, "h / 2 − y{G,eff}", s.eNy));
    p.push_back(Spostamento("Baricentro della sezione efficace, spostamento lungo le ali", "e{Nz}",
                            s.ClasseFlessioneZ > 3, "−x{G,eff}", s.eNz));
}

CapitoloRelazione CapitoloDati(const SezioneDoppioT& s) {
    CapitoloRelazione c{.titolo = "Dati del sagomo"};
    AggiungeAcciaio(c.passi, s);
    AggiungeMisura(c.passi, "Altezza", "h", s.h);
    AggiungeMisura(c.passi, s.SaldataAsimm ? "Larghezza dell'ala superiore" : "Larghezza", "b", s.b);
    AggiungeMisura(c.passi, "Spessore dell'anima", "t{w}", s.tw);
    AggiungeMisura(c.passi, s.SaldataAsimm ? "Spessore dell'ala superiore" : "Spessore dell'ala", "t{f}",
                   s.tf);
    if (s.SaldataAsimm) {
        AggiungeMisura(c.passi, "Larghezza dell'ala inferiore", "b{inf}", s.bAlaInf);
        AggiungeMisura(c.passi, "Spessore dell'ala inferiore", "t{f,inf}", s.tAlaInf);
    }
    AggiungeMisura(c.passi, "Raggio di raccordo", "r", s.Saldata ? s.r : s.r1);
    AggiungeCostanti(c.passi, s, s.iZ);
    AggiungePlastiche(c.passi, s);
    return c;
}

CapitoloRelazione CapitoloDati(const SezioneSagomoU& s) {
    CapitoloRelazione c{.titolo = "Dati del sagomo"};
    AggiungeAcciaio(c.passi, s);
    AggiungeMisura(c.passi, "Altezza", "h", s.h);
    AggiungeMisura(c.passi, "Larghezza", "b", s.b);
    AggiungeMisura(c.passi, "Spessore dell'anima", "t{w}", s.tw);
    AggiungeMisura(c.passi, "Spessore dell'ala", "t{f}", s.tf);
    AggiungeCoppia(c.passi, s);
    AggiungeCostanti(c.passi, s, s.Iz);
    AggiungePlastiche(c.passi, s);
    return c;
}

CapitoloRelazione CapitoloDati(const SezioneSagomoL& s) {
    CapitoloRelazione c{.titolo = "Dati del sagomo"};
    AggiungeAcciaio(c.passi, s);
    AggiungeMisura(c.passi, "Lato lungo", "h", s.h);
    AggiungeMisura(c.passi, "Lato corto", "b", s.b);
    AggiungeMisura(c.passi, "Spessore", "t", s.t);
    AggiungeCoppia(c.passi, s);
    AggiungeCostanti(c.passi, s, s.Iz);
    c.passi.push_back(Dato("Raggio d'inerzia minimo", "i{v}", Cifre(Singolo(mm_a_cm(s.iV))), "cm"));
    return c;
}

CapitoloRelazione CapitoloAzioni(const SezioneDoppioT& s) {
    CapitoloRelazione c{.titolo = "Azioni e lunghezze"};
    c.passi = {Dato("Forza assiale, di compressione se positiva", "N{Sd}", Kilo(s.NSd), "kN"),
               Dato("Momento intorno a y-y", "M{y,Sd}", KiloMetri(s.Mysd), "kNm"),
               Dato("Momento intorno a z-z", "M{z,Sd}", KiloMetri(s.Mzsd), "kNm"),
               Dato("Lunghezza di libera inflessione intorno a y-y", "L{0,y}", Metri(s.L0y), "m"),
               Dato("Lunghezza di libera inflessione intorno a z-z", "L{0,z}", Metri(s.L0z), "m")};
    return c;
}

CapitoloRelazione CapitoloAzioni(const SezioneSagomoU& s, double NSd) { return AzioneAssiale(s, NSd); }

CapitoloRelazione CapitoloAzioni(const SezioneSagomoL& s, double NSd) {
    CapitoloRelazione c = AzioneAssiale(s, NSd);
    c.passi.push_back(Dato("Lunghezza di libera inflessione intorno a v-v", "L{0,v}", Metri(s.L0v), "m"));
    return c;
}

// Unequal legs above class 2 are held against the limits of h and of the mean leg.
CapitoloRelazione CapitoloClassi(const SezioneSagomoL& s) {
    CapitoloRelazione c{.titolo = "Classificazione", .passi = {PassoEpsilon(s.fy)}};
    const bool media = s.Classe4LarghezzaGovernante != "h";
    const std::string sotto = " / (" + Piano(s.t) + " · " + Rapporto(Epsilon(s.fy)) + ")";
    c.passi.push_back(Piatto("Lato lungo", "h / t", Piano(s.h) + sotto, s.SnellAla, s.ClasseCompressione,
                             media ? " (limite della classe 3: 15)" : Limiti(s.Limite0Ala, s.Limite1Ala)));
    if (media)
        c.passi.push_back(Piatto("Media dei lati", "(b + h) / (2 t)",
                                 "(" + Piano(s.b) + " + " + Piano(s.h) + ") / 2" + sotto, s.SnellAla1,
                                 s.ClasseCompressione, " (limite della classe 3: 11,5)"));
    c.passi.push_back(Classe("Sezione compressa", s.ClasseCompressione));
    for (PassoRelazione& p : c.passi) // an angle keeps its limits with a point
        if (const std::size_t i = p.descrizione.find("11.5"); i != std::string::npos)
            p.descrizione[i + 2] = ',';
    AdattaDecimali(c);
    return c;
}

CapitoloRelazione CapitoloResistenze(const SezioneSagomoL& s) {
    CapitoloRelazione c{.titolo = "Resistenza della sezione"};
    const double betaA = s.betaA();
    if (s.ClasseCompressione > 3)
        c.passi.push_back(PassoBetaA(betaA));
    const double NplRd = s.Area * s.fy * betaA / GammaM0;
    c.passi.push_back(PassoNplRd(s.ClasseCompressione, betaA, s.Area, s.fy, NplRd));
    return c;
}

CapitoloRelazione CapitoloClassi(const SezioneDoppioT& s) {
    CapitoloRelazione c{.titolo = "Classificazione"};
    const std::string epsilon = Rapporto(Epsilon(s.fy));
    const std::string web = Piano(Singolo(s.d)) + " / (" + Piano(s.tw) + " · " + epsilon + ")";
    const std::string ala = Piano(Singolo(s.c)) + " / (" + Piano(s.tf) + " · " + epsilon + ")";
    c.passi = {PassoEpsilon(s.fy),
               Piatto("Anima, compressione", "d / t{w}", web, s.SnellWeb(), s.ClasseWebC,
                      Limiti(s.Limite0WebC, s.Limite1WebC)),
               Piatto("Anima, flessione", "d / t{w}", web, s.SnellWeb(), s.ClasseWebF,
                      Limiti(s.Limite0WebF, s.Limite1WebF)),
               Piatto("Ala, compressione", "c / t{f}", ala, s.SnellAla(), s.ClasseAlaC,
                      s.SaldataAsimm ? std::string() : Limiti(s.Limite0AlaC, s.Limite1AlaC))};
    if (s.SaldataAsimm)
        c.passi.push_back(
            Piatto("Ala inferiore, compressione", "c{inf} / t{f,inf}",
                   Piano(Singolo(s.cAlaInf)) + " / (" + Piano(s.tAlaInf) + " · " + epsilon + ")",
                   s.SnellAlaInf(), s.ClasseAlaInfC, Limiti(s.Limite0AlaC, s.Limite1AlaC)));
    c.passi.push_back(Classe("Sezione compressa", s.ClasseCompressione));
    c.passi.push_back(Classe("Sezione inflessa intorno a y-y", s.ClasseFlessioneY));
    c.passi.push_back(Classe("Sezione inflessa intorno a z-z", s.ClasseFlessioneZ));
    c.passi.push_back({.descrizione = "Forza assiale trascurabile",
                       .simbolo = "N{tr}",
                       .formula = "min(d t{w} f{y} / (2 γ{M0}); N{pl,Rd} / 4)",
                       .valore = Kilo(s.Ntrascurabile),
                       .unita = "kN",
                       .norma = "EC3 6.2.9.1 (4)"});
    c.passi.push_back(Classe("Sezione pressoinflessa", s.ClassePressoFlessione));
    return c;
}

CapitoloRelazione CapitoloResistenze(const SezioneDoppioT& s) {
    CapitoloRelazione c{.titolo = "Resistenza della sezione"};
    AggiungeForzaEMomenti(c, s);
    c.passi.push_back(TaglioAnima(s));
    c.passi.push_back(TaglioAli(s));
    return c;
}

CapitoloRelazione CapitoloSezione(const SezioneDoppioT& s) {
    CapitoloRelazione c{.titolo = "Verifica della sezione"};
    const TerminiInterazione t = s.TerminiMNResistenza();
    const Verdetto v = GiudicaResistenza(s);
    if (s.ClassePressoFlessione < 3)
        AggiungePlastica(c.passi, s, t, v);
    else
        AggiungeElastica(c.passi, s, t, v);
    AdattaDecimali(c);
    c.verdetto = VerdettoDi(v, "Resistenza della sezione", "EC3 6.2.9");
    return c;
}

VerdettoRelazione VerdettoDi(const Verdetto& v, std::string verifica, std::string norma) {
    return {.verifica = std::move(verifica),
            .esito = VerdettoRelazione::Da(v.utilizzo),
            .utilizzo = v.utilizzo,
            .governa = Nome(v.governa),
            .motivo = v.motivo,
            .norma = std::move(norma)};
}

} // namespace sagomi
