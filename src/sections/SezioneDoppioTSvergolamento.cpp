#include "sections/SezioneDoppioT.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "sections/Eurocod3.h"
#include "sections/Limiti.h"
#include "sections/Svergolamento.h"

namespace sagomi {

namespace {

/// Second moments of the flanges about the web's axis [mm4].
struct InerzieAli {
    double sup, inf;
};

InerzieAli Ali(const SezioneDoppioT& s) {
    return {std::pow(s.b, 3) * s.tf / 12, std::pow(s.bAlaInf, 3) * s.tAlaInf / 12};
}

} // namespace

double AsimmetriaAli(const SezioneDoppioT& s) {
    const InerzieAli I = Ali(s);
    const double hs = s.h - s.tf / 2 - s.tAlaInf / 2;
    const double psi = I.sup / (I.sup + I.inf);
    const double base = (2 * psi - 1) * hs / 2;
    return psi >= 0.5 ? 0.8 * base : base;
}

// The divisor is the radius of gyration, so with different flanges this is no true height; with equal ones
// the bracket is zero and the result h/2.
double SezioneDoppioT::zCentroTaglio() const {
    const InerzieAli I = Ali(*this);
    return ((h - yG) * I.sup - I.inf * yG) / iZ + yG;
}

// ENV 1993-1-1 F.1.2 (1).
double SezioneDoppioT::McrFunz() {
    if (!(LLT > 0))
        return Mcr;
    const double pi2 = std::numbers::pi * std::numbers::pi;
    const double zg = h / 2 + za - zCentroTaglio();
    const double D = c2 * zg - c3 * AsimmetriaAli(*this);
    const double kL2 = std::pow(LLT * k, 2);
    const double T = std::pow(k / Kw, 2) * Jw / Jz + kL2 * G_acciaio * JT / (pi2 * E_acciaio * Jz);
    const double R = std::sqrt(D * D + T);
    const double S = D > 0 ? T / (R + D) : R - D; // a large D would cancel
    const double critical = S * pi2 * C1 * E_acciaio * Jz / kL2;
    // Kw or k of 0 would make an infinite moment, and that a resistance without any reduction.
    Mcr = std::isfinite(critical) ? critical : std::numeric_limits<double>::quiet_NaN();
    return Mcr;
}

// ENV 1993-1-1 5.5.2 (5).
double SezioneDoppioT::LamdaLTfunz() const { return LLT > 0 ? std::sqrt(GammaM0 * McyRd / Mcr) : 0; }

// ENV 1993-1-1 5.5.2 (2), (3) and (7).
double SezioneDoppioT::ChiLTfunz() {
    LamdaLT = LamdaLTfunz();
    if (LamdaLT.Stretto() <= 0.4F)
        return 1;
    return AlPiu(Chi(Saldata ? 0.49 : 0.21, LamdaLT), 1);
}

// ENV 1993-1-1 5.5.2 (1).
void SezioneDoppioT::MbRdSub() {
    ChiLT = ChiLTfunz();
    MbRd = ChiLT * McyRd * GammaM0 / GammaM1;
}

// ENV 1993-1-1 5.5.4 (2).
double SezioneDoppioT::muLT() const { return AlPiu(0.15 * LamdaSegnatoZ() * BetaMLT - 0.15, 0.9); }

double SezioneDoppioT::kLT() const { return AlPiu(1 - muLT() * NSd / (GammaM1 * NbzRd), 1); }

// ENV 1993-1-1 5.5.4 (2), (4) and (6).
TerminiInterazione SezioneDoppioT::TerminiFlessoTorsionale() const {
    return {NSd,
            NbzRd,
            {.MSd = Mysd, .NeN = NSd * eNy, .MRd = MbRd, .k = kLT()},
            {.MSd = Mzsd, .NeN = NSd * eNz, .MRd = GammaM0 * MczRd / GammaM1, .k = kZ()}};
}

double SezioneDoppioT::InterazioneFlessoTorsionale() const {
    if (MbRd == 0)
        Avvisa("MbRd = 0");
    return TerminiFlessoTorsionale().Somma();
}

} // namespace sagomi
