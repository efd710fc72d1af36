#include "screens/ValoriScelti.h"

#include "sections/PressoFlessione.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

void ValoriScelti::MetteIn(SezioneDoppioT& sezione) const {
    sezione.Mysd = Mysd;
    sezione.Mzsd = Mzsd;
    sezione.C1 = C1;
    MetteFattori(sezione);
    if (LLT)
        sezione.LLT = *LLT;
}

void ValoriScelti::MetteMembratura(SezioneDoppioT& sezione) const {
    const std::int16_t tipo = TipoDiPict(pict);
    EffettiDiagramma effettiY = EffettiSullaSezione(sezione, 0, y, tipo, pict);
    effettiY.C1 = C1Proprio ? C1 : effettiY.C1;
    ApplicaDiagrammi(sezione, effettiY, EffettiSullaSezione(sezione, 1, z, tipo, pict));
    MetteFattori(sezione);
    if (LLT)
        sezione.LLT = *LLT;
}

void ValoriScelti::MetteFattori(SezioneDoppioT& sezione) const {
    sezione.k = k;
    sezione.Kw = Kw;
    sezione.c2 = c2;
    sezione.c3 = c3;
    sezione.za = za;
}

} // namespace sagomi
