#include "sections/LarghezzeEfficaci.h"

#include <cmath>

#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

/// psi of a doubly symmetric outline is -1 but for rounding.
double Assesta(double psi) {
    for (const double esatto : {-1.0, 0.0, 1.0})
        if (std::abs(psi - esatto) < 1e-9)
            return esatto;
    return psi;
}

} // namespace

// ENV 1993-1-1 table 5.3.2.
double kSigmaPiatto(double psi) {
    const double p = Assesta(psi);
    if (p == 1)
        return 4.0;
    if (p > 0 && p < 1)
        return 8.2 / (p + 1.05);
    if (p == 0)
        return 7.81;
    if (p > -1 && p < 0)
        return 7.81 - 6.29 * p + 9.78 * p * p;
    if (p == -1)
        return 23.9;
    if (p > -2 && p < -1)
        return 5.98 * (1 - p) * (1 - p);
    Avvisa("psi = " + TestoPiano(psi) + " < -2. Caso non previsto da EC3 Prospetto 5.2.");
    return 0;
}

// ENV 1993-1-1 table 5.3.2.
StrisceEfficaci StrisceDelPiatto(double psi, double bp, double t, double fy) {
    psi = Assesta(psi);
    const double rho = Rho(bp, t, fy, kSigmaPiatto(psi));
    if (psi == 1)
        return {0.5 * rho * bp, 0.5 * rho * bp};
    if (psi >= 0 && psi < 1) {
        const double beff = rho * bp;
        const double be1 = 2 * beff / (5 - psi);
        return {be1, beff - be1};
    }
    if (psi < 0) {
        const double bc = bp / (1 - psi);
        const double beff = rho * bc;
        return {0.4 * beff, beff - 0.4 * beff};
    }
    Avvisa("Caso non previsto in Sub be1_be2Anima");
    return {};
}

double PsiAnima(const SezioneGenerica& contorno, double bp, double ySup) {
    const double yInf = ySup - bp;
    return Assesta(-(contorno.yG - yInf) / (ySup - contorno.yG));
}

// ENV 1993-1-1 5.3.5 and table 5.3.3.
double TaglioAla(double c, double t, double fy, double kSigma) { return (1 - Rho(c, t, fy, kSigma)) * c; }

} // namespace sagomi
