#include "report/CapitoliMomento.h"

#include <cmath>
#include <string>

#include "frame/GeneraleSagomi.h"
#include "report/Figure.h"
#include "report/PassiSagomo.h"
#include "sections/Duttilita.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneSagomoU.h"

namespace sagomi {

namespace {

constexpr const char* taglio = "ENV 1993-1-1 5.4.6";
constexpr const char* duttilita = "Ordinanza 3274-2003 6.5.3.1";

/// Shear area of ENV 1993-1-1 5.4.6 (2); a pair has it twice.
PassoRelazione TaglioAnima(const SezioneSagomoU& s) {
    const std::string tf = Piano(s.tf);
    const std::string area = s.Doppi ? "A / 2" : "A";
    return {.descrizione = "Resistenza a taglio dell'anima",
            .simbolo = "V{pl,z,Rd}",
            .formula = (s.Doppi ? "2 [" : "[") + area + " − 2 b t{f} + (t{w} + r) t{f}] f{y} / (√3 γ{M0})",
            .numeri = (s.Doppi ? "2 · [" + InFormula(s.Area) + " / 2" : "[" + InFormula(s.Area)) + " − 2 · " +
                      Piano(s.b) + " · " + tf + " + (" + Piano(s.tw) + " + " + Piano(s.r1) + ") · " + tf +
                      "] · " + Piano(s.fy) + " / (√3 · " + Piano(GammaM0) + ") · 10^{-3}",
            .valore = Kilo(s.VplzRd),
            .unita = "kN",
            .norma = taglio};
}

PassoRelazione TaglioAli(const SezioneSagomoU& s) {
    return {.descrizione = "Resistenza a taglio delle ali",
            .simbolo = "V{pl,y,Rd}",
            .formula = std::string(s.Doppi ? "4" : "2") + " b t{f} f{y} / (√3 γ{M0})",
            .numeri = std::string(s.Doppi ? "4" : "2") + " · " + Piano(s.b) + " · " + Piano(s.tf) + " · " +
                      Piano(s.fy) + " / (√3 · " + Piano(GammaM0) + ") · 10^{-3}",
            .valore = Kilo(s.VplyRd),
            .unita = "kN",
            .norma = taglio};
}

} // namespace

CapitoloRelazione CapitoloClassi(const SezioneSagomoU& s) {
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
                      Limiti(s.Limite0AlaC, s.Limite1AlaC)),
               Piatto("Ala, flessione intorno a z-z", "c / t{f}", ala, s.SnellAla(), s.ClasseAlaF,
                      Limiti(s.Limite0AlaF, s.Limite1AlaF)),
               Classe("Sezione compressa", s.ClasseCompressione),
               Classe("Sezione inflessa intorno a y-y", s.ClasseFlessioneY),
               Classe("Sezione inflessa intorno a z-z", s.ClasseFlessioneZ)};
    return c;
}

CapitoloRelazione CapitoloResistenze(const SezioneSagomoU& s) {
    CapitoloRelazione c{.titolo = "Resistenza della sezione"};
    AggiungeForzaEMomenti(c, s);
    c.passi.push_back(TaglioAnima(s));
    c.passi.push_back(TaglioAli(s));
    if (!std::isfinite(s.McyRd) || !std::isfinite(s.MczRd))
        c.note.emplace_back("Due sagomi di classe 4: il momento resistente non è determinato.");
    return c;
}

CapitoloRelazione CapitoloDuttilita(const SezioneDuttile& z, const RichiestaDuttilita& richiesta) {
    const DuttilitaCalcolata r = CalcolaDuttilita(z, richiesta.N, richiesta.Lstar);
    CapitoloRelazione c{.titolo = "Duttilità"};
    const auto figura = [](double v) { return InFormula(v); };
    const std::string snello = "√(" + Piano(Singolo(z.fy)) + " / " + Intero(E_acciaio) + ")";
    c.passi = {
        Dato("Forza assiale, di compressione se positiva", "N{Sd}", Kilo(richiesta.N), "kN"),
        Dato("Distanza fra cerniera plastica e momento nullo", "L*", Piano(Singolo(richiesta.Lstar)), "mm"),
        {.descrizione = "Snellezza dell'ala",
         .simbolo = "λ{f}",
         .formula = "[b / (2 t{f})] √(f{y} / E)",
         .numeri = figura(z.b) + " / (2 · " + figura(z.tf) + ") · " + snello,
         .valore = Rapporto(r.lamdaF),
         .norma = duttilita},
        {.descrizione = "Altezza compressa dell'anima",
         .simbolo = "d{w,e}",
         .formula = "(d{w} / 2) (1 + A N{Sd} / (A f{y} A{w})) ≤ d{w}",
         .valore = Cifre(r.dwe),
         .unita = "mm",
         .norma = duttilita},
        {.descrizione = "Snellezza dell'anima",
         .simbolo = "λ{w}",
         .formula = "(d{w,e} / t{w}) √(f{y} / E)",
         .numeri = figura(r.dwe) + " / " + figura(z.tw) + " · " + snello,
         .valore = Rapporto(r.lamdaW),
         .norma = duttilita},
        {.descrizione = "Parametro di duttilità",
         .simbolo = "s",
         .formula = "1 / (0,695 + 1,632 λ{f}^{2} + 0,062 λ{w}^{2} − 0,602 b / L*)",
         .numeri = "1 / (0,695 + 1,632 · " + Rapporto(r.lamdaF) + "^{2} + 0,062 · " + Rapporto(r.lamdaW) +
                   "^{2} − 0,602 · " + figura(z.b) + " / " + Piano(Singolo(richiesta.Lstar)) + ")",
         .valore = Rapporto(r.s),
         .norma = duttilita},
        {.descrizione = "Limite del parametro",
         .simbolo = "s{max}",
         .formula = "f{u} / f{y} ≤ 1,25",
         .numeri = Piano(Singolo(z.fu)) + " / " + Piano(Singolo(z.fy)),
         .valore = Rapporto(r.limite),
         .norma = duttilita}};
    AdattaDecimali(c);
    return c;
}

} // namespace sagomi
