#include "sections/SezioneDoppioT.h"

#include <cmath>

#include "frame/GeneraleSagomi.h"
#include "sections/ContornoEfficace.h"
#include "sections/Eurocod3.h"
#include "sections/PassiSezione.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

// The steps of the initialiser, in its order.

void Piatti(SezioneDoppioT& s) {
    const double raccordo = s.Saldata ? s.r : s.r1;
    s.d = s.h - 2 * s.tf - 2 * raccordo;
    s.c = s.b / 2 - s.tw / 2 - raccordo;
    if (s.SaldataAsimm) {
        s.d = s.h - s.tf - s.tAlaInf - 2 * s.r;
        s.cAlaInf = s.bAlaInf / 2 - s.tw / 2 - s.r;
    } else {
        s.cAlaInf = s.c;
        s.bAlaInf = s.b;
        s.tAlaInf = s.tf;
    }
}

void Contorno(SezioneDoppioT& s) {
    Bozza& bozza = BozzaContorno();
    s.Coordinate(bozza.x, bozza.y, bozza.n);
    const SezioneGenerica& contorno = CalcolaContorno(s.SezioneGenericaCorrente, bozza.x, bozza.y, bozza.n);
    s.xG = contorno.xG;
    s.yG = contorno.yG;
}

// ENV 1993-1-1 5.4.5.
void MomentiPlasticiElastici(SezioneDoppioT& s) {
    s.MplyRd = s.Wply * s.fy / GammaM0;
    s.MplzRd = s.Wplz * s.fy / GammaM0;
    s.MelyRd = s.Wely * s.fy / GammaM0;
    s.MelzRd = s.Welz * s.fy / GammaM0;
}

// Shear areas of ENV 1993-1-1 5.4.6 (2).
void Taglio(SezioneDoppioT& s) {
    const double Av =
        s.Saldata ? (s.h - 2 * s.tf) * s.tw : s.Area - 2 * s.b * s.tf + (s.tw + 2 * s.r1) * s.tf;
    s.VplyRd = ResistenzaTaglio(Av, s.fy);
    s.VplzRd = ResistenzaTaglio(2 * s.b * s.tf, s.fy);
}

// ENV 1993-1-1 5.5.1. betaA speaks when it is above 1: it is asked once for both axes.
void InstabilitaETaglio(SezioneDoppioT& s) {
    s.ErroreDatiDatabase = false;
    const double lamdaY = s.LamdaY();
    const double betaA = s.betaA();
    s.NbyRd = ChiFyM1(lamdaY, s.fy, betaA, s.CurvaInstabilita("yy")) * s.Area * betaA;
    if (s.ErroreDatiDatabase)
        return;
    s.NbzRd = ChiFyM1(s.LamdaZ(), s.fy, betaA, s.CurvaInstabilita("zz")) * s.Area * betaA;
    Taglio(s);
}

} // namespace

void SezioneDoppioT::InizializzaSezione(MostraVplRd* schermo) {
    Piatti(*this);
    Contorno(*this);
    NplRd = NplRdFunz();
    NtrascurabileFunz();
    Classi(*this);
    if (ClasseCompressione == 4)
        CoordinateComp4();
    MomentiPlasticiElastici(*this);
    FlessioneY(*this);
    FlessioneZ(*this);
    InstabilitaETaglio(*this);
    if (schermo)
        SegnalaAnimaSnella(d, tw, fy, *schermo);
}

Singolo SezioneDoppioT::JotaOmega() {
    if (SaldataAsimm) {
        const double I1 = std::pow(b, 3) * tf / 12;
        const double I2 = std::pow(bAlaInf, 3) * tAlaInf / 12;
        const double p = I1 / (I1 + I2);
        return (1 - p) * p * Jz * std::pow(h - tf - tAlaInf, 2);
    }
    if (!SezioneGenericaCorrente)
        Contorno(*this);
    return SezioneGenericaCorrente->JotaYG / 4 * std::pow(h - tf, 2);
}

Singolo SezioneDoppioT::JotaT() const {
    if (Saldata) {
        const double tf_i = SaldataAsimm ? tAlaInf : tf;
        const double b_i = SaldataAsimm ? bAlaInf : b;
        return (std::pow(tf, 3) * b + std::pow(tf_i, 3) * b_i + std::pow(tw, 3) * (h - tf - tf_i)) / 3;
    }
    return TorsioneLaminata(h, b, tw, tf, r1, 2);
}

} // namespace sagomi
