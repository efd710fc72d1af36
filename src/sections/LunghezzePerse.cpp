#include "sections/LunghezzePerse.h"

#include <cmath>
#include <memory>
#include <vector>

#include "sections/ContornoEfficace.h"
#include "sections/Eurocod3.h"
#include "sections/LarghezzeEfficaci.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

namespace sagomi {

namespace {

double AnimaInflessa(const SezioneDoppioT& s) {
    const double psi = PsiAnimaInflessa(s);
    if (!(psi <= 1))
        return 0;
    const StrisceEfficaci strisce = StrisceDelPiatto(psi, s.d, s.tw, s.fy);
    return (psi < 0 ? s.d / (1 - psi) : s.d) - strisce.be1 - strisce.be2;
}

} // namespace

double PsiAnimaInflessa(const SezioneDoppioT& s) {
    std::vector<double> x;
    std::vector<double> y;
    std::int16_t n = 0;
    s.Coordinate(x, y, n);
    if (s.ClasseAlaC == 4)
        s.AlaEfficace(x, y, kSigmaAlaCompressa, s.tf, s.c, s.h - s.tf / 2, true, true);
    std::shared_ptr<SezioneGenerica> contorno;
    const double ySup = s.h - s.tf - (s.Saldata ? s.r : s.r1);
    return PsiAnima(CalcolaContorno(contorno, x, y, n), s.d, ySup);
}

LunghezzePerse PerseDi(const SezioneDoppioT& s) {
    LunghezzePerse lost;
    if (s.ClasseWebC == 4)
        lost.animaCompressa = (1 - Rho(s.d, s.tw, s.fy, kSigmaAnimaCompressa)) * s.d;
    if (s.ClasseWebF == 4)
        lost.animaInflessa = AnimaInflessa(s);
    if (s.ClasseAlaC == 4)
        lost.ala = TaglioAla(s.c, s.tf, s.fy, kSigmaAlaCompressa);
    return lost;
}

// The web of a channel in bending has its axis in the middle.
LunghezzePerse PerseDi(const SezioneSagomoU& s) {
    LunghezzePerse lost;
    if (s.ClasseWebC == 4)
        lost.animaCompressa = (1 - Rho(s.d, s.tw, s.fy, kSigmaAnimaCompressa)) * s.d;
    if (s.ClasseWebF == 4) {
        const StrisceEfficaci strisce = StrisceDelPiatto(-1, s.d, s.tw, s.fy);
        lost.animaInflessa = s.d / 2 - strisce.be1 - strisce.be2;
    }
    if (s.ClasseAlaC == 4)
        lost.ala = TaglioAla(s.c, s.tf, s.fy, kSigmaAlaCompressa);
    return lost;
}

LatiPersi PerseDi(const SezioneSagomoL& s) {
    LatiPersi lost;
    const SezioneGenerica* left = s.SezioneComp4.get();
    if (s.ClasseCompressione != 4 || left == nullptr || s.SezioneGenericaCorrente == nullptr)
        return lost;
    const SezioneGenerica& whole = *s.SezioneGenericaCorrente;
    lost.lungo = TaglioAla(s.h, s.t, s.fy, kSigmaAlaCompressa);
    lost.corto = TaglioAla(s.b, s.t, s.fy, kSigmaAlaCompressa);
    lost.eNy = s.Doppi && s.DoppiCorto ? 0 : std::abs(whole.yG - left->yG);
    lost.eNz = s.Doppi && !s.DoppiCorto ? 0 : std::abs(whole.xG - left->xG);
    return lost;
}

} // namespace sagomi
