#include "sections/ColonnaInstabilita.h"

#include <numbers>

#include "sections/Eurocod3.h"

namespace sagomi {

// ENV 1993-1-1 5.5.1.
ColonnaCalcolata CalcolaColonna(double lamda, double fy, double betaA, double area, std::string_view curva) {
    ColonnaCalcolata c;
    c.lamdaSegnato = LamdaRelativa(lamda, fy, betaA);
    c.alfa = AlfaCurva(curva);
    c.fi = Fi(c.alfa, c.lamdaSegnato);
    c.chi = Chi(c.alfa, c.lamdaSegnato);
    c.Ncr = ForzaCritica(lamda, area);
    c.NbRd = ChiFyM1(lamda, fy, betaA, curva) * area * betaA;
    return c;
}

// EC3 6.3.1.2 (1).
double ForzaCritica(double lamda, double area) {
    return std::numbers::pi * std::numbers::pi * E_acciaio * area / (lamda * lamda);
}

// ENV 1993-1-1 5.5.1.2.
RiduzioneCalcolata CalcolaRiduzione(double snellezza, bool relativa, double fy, double betaA,
                                    std::string_view curva) {
    RiduzioneCalcolata r;
    r.altra = relativa ? LamdaDaRelativa(snellezza, fy, betaA) : LamdaRelativa(snellezza, fy, betaA);
    const double lamda = relativa ? snellezza : r.altra;
    r.alfa = AlfaCurva(curva);
    r.fi = Fi(r.alfa, lamda);
    r.chi = Chi(r.alfa, lamda);
    return r;
}

} // namespace sagomi
