#include "sections/SezioneDoppioT.h"

#include <cmath>
#include <numbers>

#include "frame/GeneraleSagomi.h"
#include "sections/ContornoEfficace.h"
#include "sections/Eurocod3.h"
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
    std::vector<double> x;
    std::vector<double> y;
    std::int16_t n = 0;
    s.Coordinate(x, y, n);
    const SezioneGenerica& contorno = CalcolaContorno(s.SezioneGenericaCorrente, x, y, n);
    s.xG = contorno.xG;
    s.yG = contorno.yG;
}

void Classi(SezioneDoppioT& s) {
    s.ClasseCompressione = s.ClasseCompressioneFunz();
    s.ClasseFlessioneY = s.ClasseFlessioneYfunz();
    s.ClasseFlessioneZ = s.ClasseFlessioneZfunz();
    s.ClassePressoFlessioneCalcola();
}

void MomentiPlasticiElastici(SezioneDoppioT& s) {
    s.MplyRd = s.Wply * s.fy / GammaM0;
    s.MplzRd = s.Wplz * s.fy / GammaM0;
    s.MelyRd = s.Wely * s.fy / GammaM0;
    s.MelzRd = s.Welz * s.fy / GammaM0;
}

// Class 4 is divided by GammaM1, the others by GammaM0.
void FlessioneY(SezioneDoppioT& s) {
    s.eNy = 0;
    if (s.ClasseFlessioneY < 3) {
        s.McyRd = s.MplyRd;
    } else if (s.ClasseFlessioneY == 3) {
        s.McyRd = s.MelyRd;
    } else {
        s.CoordinateWy4();
        s.WyEff = s.SezioneWy4->WxSuperiore;
        s.McyRd = s.fy * s.WyEff / GammaM1;
        s.eNy = s.h / 2 - s.SezioneWy4->yG;
    }
}

void FlessioneZ(SezioneDoppioT& s) {
    s.eNz = 0;
    if (s.ClasseFlessioneZ < 3) {
        s.MczRd = s.MplzRd;
    } else if (s.ClasseFlessioneZ == 3) {
        s.MczRd = s.MelzRd;
    } else {
        s.CoordinateWz4();
        s.WzEff = s.SezioneWz4->WyDestra;
        s.MczRd = s.fy * s.WzEff / GammaM1;
        s.eNz = -s.SezioneWz4->xG;
    }
}

void Taglio(SezioneDoppioT& s) {
    const double Av =
        s.Saldata ? (s.h - 2 * s.tf) * s.tw : s.Area - 2 * s.b * s.tf + (s.tw + 2 * s.r1) * s.tf;
    s.VplyRd = Av * s.fy / std::numbers::sqrt3 / GammaM0;
    s.VplzRd = 2 * s.b * s.tf * s.fy / std::numbers::sqrt3 / GammaM0;
}

// betaA speaks when it is above 1: it is asked once for both axes.
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

void SegnalaAnimaSnella(const SezioneDoppioT& s, MostraVplRd& schermo) {
    schermo.lblVplRd(false);
    if (s.d / s.tw > 69 * Epsilon(s.fy))
        schermo.lblVplRd(true);
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
        SegnalaAnimaSnella(*this, *schermo);
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
    const double anima = std::pow(tw, 3) * (h - 2 * tf) / 3;
    const double ali = std::pow(tf, 3) * (b - 0.63 * tf) * 2 / 3;
    // diameter of the circle inscribed in the junction of web and flange
    const double D = (std::pow(tw / 2 + r1, 2) + std::pow(r1 + tf, 2) - std::pow(r1, 2)) / (2 * r1 + tf);
    const double nodi = std::pow(D, 4) * (0.145 + 0.1 * r1 / tf) * (2 * tw / tf);
    return anima + ali + nodi;
}

} // namespace sagomi
