#include <cmath>

#include "frame/GeneraleSagomi.h"
#include "frame/Unita.h"
#include "sections/ContornoEfficace.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

constexpr double densitaAcciaio = 7850; ///< kg/m3

/// Which routine of the section gives its outline.
using Tracciato = void (SezioneDoppioT::*)(std::vector<double>&, std::vector<double>&, std::int16_t&, double,
                                           double, double) const;

SezioneGenerica& CalcolaTutto(SezioneDoppioT& s, Tracciato tracciato) {
    std::vector<double> x;
    std::vector<double> y;
    std::int16_t n = 0;
    (s.*tracciato)(x, y, n, 0, 0, 1);
    SezioneGenerica& contorno = CalcolaContorno(s.SezioneGenericaCorrente, x, y, n);
    contorno.Wplastici();
    return contorno;
}

void Costanti(SezioneDoppioT& s, const SezioneGenerica& contorno) {
    s.Area = contorno.Area;
    s.Jy = contorno.JotaXG;
    s.Jz = contorno.JotaYG;
    s.Wely = contorno.WxSuperiore;
    s.WelyInf = contorno.WxInferiore;
    s.Welz = contorno.WyDestra;
    s.Wply = contorno.WplX;
    s.Wplz = contorno.WplY;
    s.iY = std::sqrt(contorno.JotaXG / contorno.Area);
    s.iZ = std::sqrt(contorno.JotaYG / contorno.Area);
}

void TorsioneEPeso(SezioneDoppioT& s) {
    s.JT = s.JotaT();
    s.Jw = s.JotaOmega();
    s.g = mm2_a_m2(s.Area * densitaAcciaio);
}

} // namespace

void SezioneDoppioT::InizializzaSezioneUtente(MostraVplRd* schermo, double h_, double b_, double tw_,
                                              double tf_, double r_, std::optional<double> bAlaInf_,
                                              std::optional<double> tAlaInf_) {
    h = h_;
    b = b_;
    tw = tw_;
    tf = tf_;
    r = r_;
    bAlaInf = bAlaInf_.value_or(b_);
    tAlaInf = tAlaInf_.value_or(tf_);
    SaldataAsimm = bAlaInf_.has_value() || tAlaInf_.has_value();
    Saldata = true;
    Costanti(*this, CalcolaTutto(*this, &SezioneDoppioT::CoordinateSaldata));
    TorsioneEPeso(*this);
    InizializzaSezione(schermo);
}

void SezioneDoppioT::InizializzaSezioneAcciaioCls() {
    const SezioneGenerica& contorno = CalcolaTutto(*this, &SezioneDoppioT::Coordinate);
    Costanti(*this, contorno);
    xG = contorno.xG;
    yG = contorno.yG;
    MplyRd = fy * Wply / GammaM0;
    McyRd = MplyRd;
    TorsioneEPeso(*this);
    InizializzaSezione();
}

} // namespace sagomi
