#include "report/PassiSagomo.h"

#include <cmath>

#include "frame/GeneraleSagomi.h"
#include "report/Figure.h"
#include "sections/Eurocod3.h"

namespace sagomi {

std::string Limiti(const std::string& da, const std::string& a) {
    const auto testo = [](const std::string& limite) { return limite == limiteInfinito ? "∞" : limite; };
    return da.empty() ? std::string() : " (limiti " + testo(da) + " - " + testo(a) + ")";
}

PassoRelazione Piatto(const std::string& descrizione, const char* simbolo, const std::string& numeri,
                      double snellezza, int classe, const std::string& limiti) {
    return {.descrizione = descrizione + ": classe " + std::to_string(classe) + limiti,
            .simbolo = std::string(simbolo) + " / ε",
            .numeri = numeri,
            .valore = Rapporto(snellezza),
            .norma = tabellaClassi};
}

PassoRelazione Classe(const char* descrizione, int classe, const char* norma) {
    return Dato(descrizione, "classe", std::to_string(classe), "", norma);
}

PassoRelazione PassoEpsilon(Singolo fy) {
    return {.descrizione = "Coefficiente dell'acciaio",
            .simbolo = "ε",
            .formula = "√(235 / f{y})",
            .numeri = "√(235 / " + Piano(fy) + ")",
            .valore = Rapporto(Epsilon(fy)),
            .norma = tabellaClassi};
}

PassoRelazione PassoBetaA(double betaA) {
    return {.descrizione = "Area efficace sull'area",
            .simbolo = "β{A}",
            .formula = "A{eff} / A",
            .valore = Rapporto(betaA),
            .norma = "ENV 1993-1-1 5.5.1.1"};
}

PassoRelazione PassoNplRd(int classe, double betaA, double area, Singolo fy, double NplRd) {
    const bool efficace = classe > 3;
    return {.descrizione = "Resistenza a forza assiale",
            .simbolo = "N{pl,Rd}",
            .formula = efficace ? "β{A} A f{y} / γ{M0}" : "A f{y} / γ{M0}",
            .numeri = (efficace ? Rapporto(betaA) + " · " : std::string()) + Intero(area) + " · " +
                      Piano(fy) + " / " + Piano(GammaM0) + " · 10^{-3}",
            .valore = Kilo(NplRd),
            .unita = "kN",
            .norma = "ENV 1993-1-1 5.4.4"};
}

PassoRelazione PassoMomento(bool y, int classe, const ModuliAsse& W, Singolo fy, double MRd) {
    const std::string asse = y ? "y" : "z";
    const double modulo = classe < 3 ? W.plastico : classe == 3 ? W.elastico : W.efficace;
    const std::string gamma = classe > 3 ? "γ{M1}" : "γ{M0}";
    const std::string pedice = classe < 3 ? "pl," : classe == 3 ? "el," : "eff,";
    const bool numero = std::isfinite(modulo) && std::isfinite(MRd);
    return {.descrizione = "Momento resistente intorno a " + asse + "-" + asse,
            .simbolo = "M{c," + asse + ",Rd}",
            .formula = "W{" + pedice + asse + "} f{y} / " + gamma,
            .numeri = numero ? Intero(modulo) + " · " + Piano(fy) + " / " +
                                   Piano(classe > 3 ? GammaM1 : GammaM0) + " · 10^{-6}"
                             : std::string(),
            .valore = numero ? KiloMetri(MRd) : std::string(),
            .unita = "kNm",
            .norma = "ENV 1993-1-1 5.4.5"};
}

Relazione SenzaCapitoliVuoti(Relazione r) {
    std::erase_if(r.capitoli, [](const CapitoloRelazione& c) {
        return c.passi.empty() && c.note.empty() && !c.verdetto;
    });
    return r;
}

} // namespace sagomi
