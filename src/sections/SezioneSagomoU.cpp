#include "sections/SezioneSagomoU.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/GeneraleSagomi.h"
#include "sections/ContornoEfficace.h"
#include "sections/Eurocod3.h"
#include "sections/LimitiClasse.h"
#include "sections/PassiSezione.h"

namespace sagomi {

namespace {

constexpr double nessunNumero = std::numeric_limits<double>::quiet_NaN();

/// A slenderness; no number where the data of the row do not divide.
double Snellezza(double L0, double i) {
    const double lamda = L0 / i;
    return std::isfinite(lamda) ? lamda : nessunNumero;
}

void Contorno(SezioneSagomoU& s) {
    Bozza& bozza = BozzaContorno();
    s.Coordinate(bozza.x, bozza.y, bozza.n);
    CalcolaContorno(s.SezioneGenericaCorrente, bozza.x, bozza.y, bozza.n);
}

/// The effective outlines are those of one channel: they say nothing of the moduli of a pair.
void ToglieModuliDellaCoppia(SezioneSagomoU& s) {
    if (s.ClasseFlessioneY == 4)
        s.WyEff = s.McyRd = nessunNumero;
    if (s.ClasseFlessioneZ == 4)
        s.WzEff = s.MczRd = nessunNumero;
}

// ENV 1993-1-1 5.5.1.
void Instabilita(SezioneSagomoU& s) {
    const double betaA = s.betaA();
    s.NbyRd = ChiFyM1(s.LamdaY(), s.fy, betaA, s.CurvaInstabilita("yy")) * s.Area * betaA;
    s.NbzRd = ChiFyM1(s.LamdaZ(), s.fy, betaA, s.CurvaInstabilita("zz")) * s.Area * betaA;
}

// Shear areas of ENV 1993-1-1 5.4.6 (2), of each channel.
void Taglio(SezioneSagomoU& s) {
    const double quanti = s.Doppi ? 2 : 1;
    const double Av = s.Area / quanti - 2 * s.b * s.tf + (s.tw + s.r1) * s.tf;
    s.VplzRd = quanti * ResistenzaTaglio(Av, s.fy);
    s.VplyRd = quanti * ResistenzaTaglio(2 * s.b * s.tf, s.fy);
}

} // namespace

void SezioneSagomoU::InizializzaSezione(MostraVplRd* schermo) {
    MiaForm = schermo;
    d = dFunz();
    c = b - tw - r1;
    Contorno(*this);
    NplRd = NplRdFunz();
    NtrascurabileFunz();
    Classi(*this);
    if (ClasseCompressione == 4)
        CoordinateComp4();
    FlessioneY(*this);
    FlessioneZ(*this);
    if (Doppi)
        ToglieModuliDellaCoppia(*this);
    Instabilita(*this);
    Taglio(*this);
    if (MiaForm != nullptr)
        SegnalaAnimaSnella(d, tw, fy, *MiaForm);
}

// ENV 1993-1-1 5.5.1.4.
double SezioneSagomoU::LamdaY() const { return Snellezza(L0y, iY); }

double SezioneSagomoU::LamdaZ() const { return Snellezza(L0z, Iz); }

// Vlasov's sectorial moment of the centre lines about the shear centre.
double SezioneSagomoU::JotaOmega() const {
    const double hf = h - tf;
    return hf * hf * std::pow(b, 3) * tf / 12 * (3 * b * tf + 2 * hf * tw) / (6 * b * tf + tw * hf);
}

double SezioneSagomoU::JotaT() const { return TorsioneLaminata(h, b, tw, tf, r1, 1); }

double SezioneSagomoU::SnellWeb() const { return d / tw / Epsilon(fy); }

double SezioneSagomoU::SnellAla() const { return c / tf / Epsilon(fy); }

// ENV 1993-1-1 table 5.3.1, here and below: the least favourable plate counts.
std::int16_t SezioneSagomoU::ClasseCompressioneFunz() {
    ClasseWebC = LimitiAnimaCompressa().Classe(SnellWeb(), Limite0WebC, Limite1WebC);
    ClasseAlaC = LimitiAlaCompressa().Classe(SnellAla(), Limite0AlaC, Limite1AlaC);
    return std::max(ClasseWebC, ClasseAlaC);
}

std::int16_t SezioneSagomoU::ClasseFlessioneYfunz() {
    ClasseWebF = LimitiAnimaInflessa().Classe(SnellWeb(), Limite0WebF, Limite1WebF);
    return std::max(ClasseWebF, ClasseAlaC);
}

std::int16_t SezioneSagomoU::ClasseFlessioneZfunz() {
    ClasseAlaF = LimitiAlaInflessa().Classe(SnellAla(), Limite0AlaF, Limite1AlaF);
    return ClasseAlaF;
}

// After EC3 6.2.9.1 (4).
void SezioneSagomoU::ClassePressoFlessioneCalcola() {
    ClassePressoFlessione = ClasseConAssiale(NSd, Ntrascurabile, ClasseCompressione, ClasseFlessioneY);
}

// ENV 1993-1-1 5.5.1.1 (1).
double SezioneSagomoU::betaA() const { return RapportoAree(ClasseCompressione, SezioneComp4.get(), Area); }

// ENV 1993-1-1 table 5.5.3: U, L, T and solid sections.
std::string SezioneSagomoU::CurvaInstabilita(std::string_view /*asse*/) { return "c"; }

// ENV 1993-1-1 5.4.4 (1).
double SezioneSagomoU::NplRdFunz() const { return betaA() * Area * fy / GammaM0; }

double SezioneSagomoU::NtrascurabileFunz() {
    Ntrascurabile = AssialeTrascurabile(tw, d, fy, NplRd);
    return Ntrascurabile;
}

} // namespace sagomi
