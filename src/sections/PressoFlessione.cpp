#include "sections/PressoFlessione.h"

#include "sections/SezioneDoppioT.h"

namespace sagomi {

EffettiDiagramma EffettiSullaSezione(const SezioneDoppioT& sezione, int asse, MomentiMembratura m,
                                     std::int16_t tipo, std::int16_t pict) {
    m.NeN = sezione.NSd * (asse == 0 ? sezione.eNy : sezione.eNz);
    return EffettiDelDiagramma(m, tipo, pict);
}

void ApplicaDiagrammi(SezioneDoppioT& sezione, const EffettiDiagramma& y, const EffettiDiagramma& z) {
    sezione.k = 1;
    sezione.Kw = 1;
    sezione.za = 0;
    sezione.c2 = 0;
    sezione.c3 = 0;
    sezione.C1 = y.C1;
    sezione.Mysd = y.M;
    sezione.BetaMLT = y.BetaM;
    sezione.BetaMy = y.BetaM;
    sezione.Mzsd = z.M;
    sezione.BetaMz = z.BetaM;
}

} // namespace sagomi
