#include "sections/DiagrammaMomenti.h"

#include <cmath>

#include "frame/Messaggi.h"
#include "sections/Eurocod3.h"
#include "sections/Limiti.h"

namespace sagomi {

namespace {

constexpr double C1massimo = 2.7;

/// Factor of end moments in a closed form of psi, annex F.1.1 (6).
double C1Estremita(double psi) { return AlPiu(1.88 - 1.4 * psi + 0.52 * psi * psi, C1massimo); }

/// Factor of the span load alone, figure 5.5.3: distributed or concentrated.
double BetaQ(std::int16_t pict) {
    return pict == pictDistribuitoContro || pict == pictDistribuitoConcorde ? 1.3 : 1.4;
}

/// Range of the diagram: from the largest to the smallest ordinate where it changes sign, else the largest.
double DeltaM(double M1e, double Mm) {
    if (!(Mm > 0))
        return M1e - Mm;
    return M1e > Mm ? M1e : Mm;
}

} // namespace

// ENV 1993-1-1 figure 5.5.3.
EffettiDiagramma EffettiDelDiagramma(const MomentiMembratura& m, std::int16_t tipo, std::int16_t pict) {
    const double M1e = m.M1 + m.NeN;
    const double M2e = m.M2 + m.NeN;
    const double psi = M1e > 0 ? M2e / M1e : 1;
    const double betaPsi = Psi2(psi);
    if (tipo == diagrammaEstremita)
        return {M1e, betaPsi, C1Estremita(psi)};

    const bool contro = pict == pictDistribuitoContro || pict == pictConcentratoContro;
    const double Mm = (M1e + M2e) / 2 + (contro ? -m.MQ : m.MQ);
    const double delta = DeltaM(M1e, Mm);
    EffettiDiagramma e{M1e, betaPsi, 1};
    if (delta > 0)
        e.BetaM = betaPsi + m.MQ / delta * (BetaQ(pict) - betaPsi);
    if (std::abs(Mm) >= M1e)
        e.M = std::abs(Mm);
    return e;
}

void CorreggeM1M2(double& M1, double& M2) {
    if (M1 < 0) {
        Avvisa("M1 deve essere positivo.\nIl segno viene automaticamente cambiato");
        M1 = -M1;
    }
    if (std::abs(M2) > M1) {
        Avvisa("M1 deve essere maggiore di M2 (in valore assoluto).\nM2 viene posto = 0");
        M2 = 0;
    }
}

void CorreggeMQ(double& MQ) {
    if (MQ < 0) {
        Avvisa("MQ deve essere positivo.\nIl segno viene automaticamente cambiato");
        MQ = -MQ;
    }
}

} // namespace sagomi
