#include "sections/SezioneDoppioT.h"

#include <algorithm>
#include <cmath>

#include "sections/Eurocod3.h"
#include "sections/LimitiClasse.h"
#include "sections/PassiSezione.h"

namespace sagomi {

double SezioneDoppioT::SnellWeb() const { return d / tw / Epsilon(fy); }

double SezioneDoppioT::SnellAla() const { return c / tf / Epsilon(fy); }

double SezioneDoppioT::SnellAlaInf() const { return SaldataAsimm ? cAlaInf / tAlaInf / Epsilon(fy) : 0; }

// ENV 1993-1-1 table 5.3.1, here and below: the least favourable plate counts.
std::int16_t SezioneDoppioT::ClasseCompressioneFunz() {
    const LimitiClasse& limitiAla = LimitiAlaCompressa();
    ClasseWebC = LimitiAnimaCompressa().Classe(SnellWeb(), Limite0WebC, Limite1WebC);
    ClasseAlaC = limitiAla.Classe(SnellAla(), Limite0AlaC, Limite1AlaC);
    ClasseAlaInfC = SaldataAsimm ? limitiAla.Classe(SnellAlaInf(), Limite0AlaC, Limite1AlaC) : ClasseAlaC;
    return std::max({ClasseWebC, ClasseAlaC, ClasseAlaInfC});
}

std::int16_t SezioneDoppioT::ClasseAlaCompressione(double s, double l1, double l2, double l3) {
    return LimitiClasse(l1, l2, l3).Classe(s, Limite0AlaC, Limite1AlaC);
}

std::int16_t SezioneDoppioT::ClasseFlessioneYfunz() {
    ClasseWebF = LimitiAnimaInflessa().Classe(SnellWeb(), Limite0WebF, Limite1WebF);
    return std::max(ClasseWebF, ClasseAlaC);
}

std::int16_t SezioneDoppioT::ClasseFlessioneZfunz() {
    const LimitiClasse& limiti = LimitiAlaInflessa();
    ClasseAlaF = limiti.Classe(SnellAla(), Limite0AlaF, Limite1AlaF);
    ClasseAlaInfF = 0; // of equal flanges there is no other one
    if (SaldataAsimm)
        ClasseAlaInfF = limiti.Classe(SnellAlaInf(), Limite0AlaF, Limite1AlaF);
    return std::max(ClasseAlaF, ClasseAlaInfF);
}

std::int16_t SezioneDoppioT::ClasseAlaFlessione(double s, double l1, double l2, double a, double kS,
                                                double bLim) {
    return LimitiAlaInflessa(l1, l2, a, kS, bLim).Classe(s, Limite0AlaF, Limite1AlaF);
}

double SezioneDoppioT::NtrascurabileFunz() {
    Ntrascurabile = AssialeTrascurabile(tw, d, fy, NplRd);
    return Ntrascurabile;
}

// After EC3 6.2.9.1 (4).
void SezioneDoppioT::ClassePressoFlessioneCalcola() {
    ClassePressoFlessione = ClasseConAssiale(NSd, Ntrascurabile, ClasseCompressione, ClasseFlessioneY);
}

// ENV 1993-1-1 5.5.1.1 (1).
double SezioneDoppioT::betaA() {
    const double beta = RapportoAree(ClasseCompressione, SezioneComp4.get(), Area);
    if (std::isfinite(beta)) {
        SegnalaRapportoAree(beta);
        return beta;
    }
    ErroreDatiDatabase = true;
    return 0;
}

double SezioneDoppioT::betaA() const {
    const double beta = RapportoAree(ClasseCompressione, SezioneComp4.get(), Area);
    return std::isfinite(beta) ? beta : 0;
}

} // namespace sagomi
