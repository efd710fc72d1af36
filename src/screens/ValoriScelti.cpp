#include "screens/ValoriScelti.h"

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

void ValoriScelti::MetteFattori(SezioneDoppioT& sezione) const {
    sezione.k = k;
    sezione.Kw = Kw;
    sezione.c2 = c2;
    sezione.c3 = c3;
    sezione.za = za;
}

} // namespace sagomi
