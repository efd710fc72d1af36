#include "sections/SezioneDoppioT.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

using Limiti = std::array<double, 3>; ///< upper limits of classes 1, 2 and 3

/// The class whose limit the slenderness does not pass; a slenderness that is no number passes all.
std::int16_t Classe(double s, const Limiti& limiti) {
    std::int16_t classe = 1;
    for (const double limite : limiti) {
        if (s <= limite)
            break;
        ++classe;
    }
    return classe;
}

/// Lower and upper limit of a class as texts; the picture `terzo`, where given, draws the third one.
void ScriviLimiti(std::int16_t classe, const Limiti& limiti, std::string& limite0, std::string& limite1,
                  std::string_view terzo = {}) {
    const auto testo = [&](int i) {
        const double limite = limiti[static_cast<std::size_t>(i - 1)];
        return i == 3 && !terzo.empty() ? Formato(terzo, limite) : TestoPiano(limite);
    };
    limite0 = classe == 1 ? "0" : testo(classe - 1);
    limite1 = classe == 4 ? std::string(limiteInfinito) : testo(classe);
}

} // namespace

double SezioneDoppioT::SnellWeb() const { return d / tw / Epsilon(fy); }

double SezioneDoppioT::SnellAla() const { return c / tf / Epsilon(fy); }

double SezioneDoppioT::SnellAlaInf() const { return SaldataAsimm ? cAlaInf / tAlaInf / Epsilon(fy) : 0; }

std::int16_t SezioneDoppioT::ClasseCompressioneFunz() {
    const Limiti limiti = {33, 38, 42};
    ClasseWebC = Classe(SnellWeb(), limiti);
    ScriviLimiti(ClasseWebC, limiti, Limite0WebC, Limite1WebC);
    ClasseAlaC = ClasseAlaCompressione(SnellAla(), 9, 10, 14);
    ClasseAlaInfC = SaldataAsimm ? ClasseAlaCompressione(SnellAlaInf(), 9, 10, 14) : ClasseAlaC;
    return std::max({ClasseWebC, ClasseAlaC, ClasseAlaInfC});
}

std::int16_t SezioneDoppioT::ClasseAlaCompressione(double s, double l1, double l2, double l3) {
    const Limiti limiti = {l1, l2, l3};
    const std::int16_t classe = Classe(s, limiti);
    ScriviLimiti(classe, limiti, Limite0AlaC, Limite1AlaC);
    return classe;
}

std::int16_t SezioneDoppioT::ClasseFlessioneYfunz() {
    const Limiti limiti = {72, 83, 124};
    ClasseWebF = Classe(SnellWeb(), limiti);
    ScriviLimiti(ClasseWebF, limiti, Limite0WebF, Limite1WebF);
    return std::max(ClasseWebF, ClasseAlaC);
}

std::int16_t SezioneDoppioT::ClasseFlessioneZfunz() {
    ClasseAlaF = ClasseAlaFlessione(SnellAla(), 9, 10, 21, 0.57, 21);
    if (SaldataAsimm)
        ClasseAlaInfF = ClasseAlaFlessione(SnellAlaInf(), 9, 10, 21, 0.57, 21);
    return std::max(ClasseAlaF, ClasseAlaInfF);
}

std::int16_t SezioneDoppioT::ClasseAlaFlessione(double s, double l1, double l2, double a, double kS,
                                                double bLim) {
    const double radice = std::sqrt(kS);
    const std::int16_t classe = Classe(s, {l1, l2, radice * a});
    ScriviLimiti(classe, {l1, l2, bLim * radice}, Limite0AlaF, Limite1AlaF, "0.0");
    return classe;
}

double SezioneDoppioT::NtrascurabileFunz() {
    const double Nw = tw * fy * d / GammaM0;
    Ntrascurabile = std::min(Nw / 2, NplRd / 4);
    return Ntrascurabile;
}

void SezioneDoppioT::ClassePressoFlessioneCalcola() {
    const bool compressione = Singolo(Ntrascurabile).Stretto() <= NSd.Stretto();
    ClassePressoFlessione = compressione ? ClasseCompressione : ClasseFlessioneY;
}

double SezioneDoppioT::betaA() {
    if (ClasseCompressione <= 3)
        return 1;
    const double Aeff = SezioneComp4 ? SezioneComp4->Area : 0;
    const double beta = Aeff / Area;
    if (!std::isfinite(beta)) {
        ErroreDatiDatabase = true;
        return 0;
    }
    if (beta > 1)
        Avvisa("Errore! betaA = " + TestoPiano(beta) + " Segnalare a Prof. Tarvisi.");
    return beta;
}

} // namespace sagomi
