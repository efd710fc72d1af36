#include <cmath>

#include "sections/ContornoEfficace.h"
#include "sections/Eurocod3.h"
#include "sections/LarghezzeEfficaci.h"
#include "sections/SezioneGenerica.h"
#include "sections/SezioneSagomoU.h"
#include "sections/TracciaContorno.h"

namespace sagomi {

namespace {

constexpr std::string_view tipoForo = "SagomiU"; ///< the web is cut from its inner face

// Slopes of DIN 1026-1.
constexpr double altezzaPendenza = 300; ///< mm; up to here the flanges slope more
constexpr double pendenzaBassi = 0.08;
constexpr double pendenzaAlti = 0.05;

bool Rastremata(const SezioneSagomoU& s) { return s.pendenza > 0; }

/// From the corner of the lower flange round its toe and its root to the inner face of the web.
Profilo AlaLaminata(const SezioneSagomoU& s) {
    const ArchiAla& archi = ArchiDiPendenza(s.pf());
    Profilo ala;
    ala.Punto(s.b, 0);
    if (Rastremata(s))
        ala.Arco(s.b - s.pendenza, s.tf1() - s.pendenza * archi.tangenteMezza, s.pendenza, archi.punta);
    else
        ala.Punto(s.b, s.tf);
    ala.Arco(s.tw + s.r1, s.tf2() + s.r1 * archi.coseno, s.r1, archi.raccordo);
    return ala;
}

/// Cuts what of an outstand does not resist off the tip of one flange.
void TagliaAla(const SezioneSagomoU& s, Bozza& bozza, double kSigma, bool sopra, double x0 = 0) {
    const double punta = s.b + x0 - TaglioAla(s.c, s.tf, s.fy, kSigma);
    TagliaPunta(bozza.x, bozza.y, {s.h / 2, sopra}, punta, true);
}

} // namespace

double SezioneSagomoU::pf() const {
    if (!Rastremata(*this))
        return 0;
    return h > altezzaPendenza ? pendenzaAlti : pendenzaBassi;
}

// The mean thickness is found at u from the tip.
double SezioneSagomoU::tf1() const {
    if (!Rastremata(*this))
        return tf;
    const double u = h > altezzaPendenza ? (b - tf) / 2 : b / 2;
    return tf - u * pf();
}

double SezioneSagomoU::tf2() const {
    if (!Rastremata(*this))
        return tf;
    const ArchiAla& archi = ArchiDiPendenza(pf());
    return tf1() + pf() * ((b - tw) - r1 * archi.tangenteMezza * archi.coseno);
}

double SezioneSagomoU::dFunz() const { return h - 2 * (tf2() + r1 * ArchiDiPendenza(pf()).coseno); }

void SezioneSagomoU::Coordinate(std::vector<double>& x, std::vector<double>& y, std::int16_t& n,
                                double x0) const {
    const Profilo ala = AlaLaminata(*this);
    Profilo dorso;
    dorso.Punto(0, 0);
    Percorso percorso(x, y, {h, x0, 0, 1}, 2 * (ala.Numero() + dorso.Numero()));
    percorso.InBasso(ala);
    percorso.InAlto(ala);
    percorso.InAlto(dorso);
    percorso.InBasso(dorso);
    n = static_cast<std::int16_t>(x.size());
}

// ENV 1993-1-1 5.3.5 in uniform compression.
void SezioneSagomoU::CoordinateComp4() {
    Bozza& bozza = BozzaContorno();
    Coordinate(bozza.x, bozza.y, bozza.n);
    if (ClasseAlaC == 4)
        for (const bool sopra : {true, false})
            TagliaAla(*this, bozza, kSigmaAlaCompressa, sopra);
    if (ClasseWebC == 4) {
        const double beff = Rho(d, tw, fy, kSigmaAnimaCompressa) * d;
        ToglieAnima(bozza.x, bozza.y, bozza.n, h / 2 - d / 2 + beff / 2, d - beff, tipoForo);
    }
    SezioneGenerica& efficace = CalcolaContorno(SezioneComp4, bozza.x, bozza.y, bozza.n);
    if (Doppi)
        efficace.Area *= 2;
}

// ENV 1993-1-1 5.3.5, the web as in pure bending: its neutral axis stays at mid-height.
void SezioneSagomoU::CoordinateWy4() {
    Bozza& bozza = BozzaContorno();
    Coordinate(bozza.x, bozza.y, bozza.n);
    if (ClasseAlaC == 4)
        TagliaAla(*this, bozza, kSigmaAlaCompressa, true);
    if (ClasseWebF == 4) {
        const StrisceEfficaci strisce = StrisceDelPiatto(-1, d, tw, fy);
        ToglieAnima(bozza.x, bozza.y, bozza.n, h / 2 + strisce.be2, d / 2 - strisce.be1 - strisce.be2,
                    tipoForo);
    }
    CalcolaContorno(SezioneWy4, bozza.x, bozza.y, bozza.n);
}

// ENV 1993-1-1 5.3.5, the tips in compression. Abscissas count from the gross centroid.
void SezioneSagomoU::CoordinateWz4() {
    Bozza& bozza = BozzaContorno();
    const double x0 = SezioneGenericaCorrente ? -SezioneGenericaCorrente->xG : 0;
    Coordinate(bozza.x, bozza.y, bozza.n, x0);
    if (ClasseAlaC == 4)
        for (const bool sopra : {true, false})
            TagliaAla(*this, bozza, kSigmaAlaInflessa, sopra, x0);
    CalcolaContorno(SezioneWz4, bozza.x, bozza.y, bozza.n);
}

} // namespace sagomi
