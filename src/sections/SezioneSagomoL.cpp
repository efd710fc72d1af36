#include "sections/SezioneSagomoL.h"

#include <cmath>
#include <limits>

#include "frame/GeneraleSagomi.h"
#include "sections/ContornoEfficace.h"
#include "sections/Eurocod3.h"
#include "sections/LarghezzeEfficaci.h"
#include "sections/PassiSezione.h"
#include "sections/SezioneGenerica.h"
#include "sections/TracciaContorno.h"

namespace sagomi {

namespace {

// Upper limits in epsilon, ENV 1993-1-1 table 5.3.1: outstands of classes 1 and 2, angles of class 3.
constexpr double limite1 = 9;
constexpr double limite2 = 10;
constexpr double limite3 = 15;
constexpr double limiteMedia3 = 11.5; ///< of the mean leg
constexpr std::string_view testo1 = "9";
constexpr std::string_view testo2 = "10";
constexpr std::string_view testoMedia3 = "11.5";

/// A slenderness; no number where the data of the row do not divide.
double Snellezza(double L0, double i) {
    const double lamda = L0 / i;
    return std::isfinite(lamda) ? lamda : std::numeric_limits<double>::quiet_NaN();
}

struct Limiti {
    std::string_view da, a;
};

std::int16_t ConLimiti(SezioneSagomoL& s, std::int16_t classe, const Limiti& limiti) {
    s.Limite0Ala = limiti.da;
    s.Limite1Ala = limiti.a;
    return classe;
}

/// Unequal legs above class 2.
std::int16_t ClasseLatiDisuguali(SezioneSagomoL& s) {
    s.Classe4LarghezzaGovernante = "(b+h)/2";
    if (s.SnellAla <= limite3 && s.SnellAla1 <= limiteMedia3)
        return 3;
    s.Limite1Ala = limiteInfinito;
    return 4;
}

} // namespace

void SezioneSagomoL::InizializzaSezione(MostraVplRd* schermo) {
    Form = schermo;
    Bozza& bozza = BozzaContorno();
    Coordinate(bozza.x, bozza.y, bozza.n);
    CalcolaContorno(SezioneGenericaCorrente, bozza.x, bozza.y, bozza.n);
    ClasseCompressione = ClasseCompressioneFunz();
    if (ClasseCompressione == 4)
        CoordinateComp4();
    const double beta = betaA();
    const auto resistenza = [&](double lamda, const char* asse) {
        return ChiFyM1(lamda, fy, beta, CurvaInstabilita(asse)) * Area * beta;
    };
    NbyRd = resistenza(LamdaY(), "yy");
    NbzRd = resistenza(LamdaZ(), "zz");
    NbvRd = resistenza(LamdaV(), "zz");
}

// ENV 1993-1-1 5.5.1.4.
double SezioneSagomoL::LamdaY() const { return Snellezza(L0y, iY); }

double SezioneSagomoL::LamdaZ() const { return Snellezza(L0z, Iz); }

double SezioneSagomoL::LamdaV() const { return Snellezza(L0v, iV); }

std::int16_t SezioneSagomoL::ClasseCompressioneFunz() {
    Classe4LarghezzaGovernante = "h";
    SnellAla = h / t / Epsilon(fy);
    SnellAla1 = (h + b) / 2 / t / Epsilon(fy);
    if (SnellAla <= limite1)
        return ConLimiti(*this, 1, {"0", testo1});
    if (SnellAla <= limite2)
        return ConLimiti(*this, 2, {testo1, testo2});
    if (SnellAla.Stretto() == SnellAla1.Stretto()) {
        if (SnellAla <= limiteMedia3)
            return ConLimiti(*this, 3, {testo2, testoMedia3});
        return ConLimiti(*this, 4, {testoMedia3, limiteInfinito});
    }
    return ClasseLatiDisuguali(*this);
}

// ENV 1993-1-1 5.5.1.1 (1).
double SezioneSagomoL::betaA() const { return RapportoAree(ClasseCompressione, SezioneComp4.get(), Area); }

void SezioneSagomoL::Coordinate(std::vector<double>& x, std::vector<double>& y, std::int16_t& n) const {
    const ArchiAla& archi = ArchiDiPendenza(0);
    Profilo profilo;
    profilo.Punto(b, 0);
    profilo.Arco(b - r2, t - r2, r2, archi.punta);
    profilo.Arco(t + r1, t + r1, r1, archi.raccordo);
    profilo.Arco(t - r2, h - r2, r2, archi.punta);
    profilo.Punto(0, h);
    profilo.Punto(0, 0);
    Percorso(x, y, {}, profilo.Numero()).InBasso(profilo);
    n = static_cast<std::int16_t>(x.size());
}

// ENV 1993-1-1 5.3.5, each leg as an outstand on its whole width.
void SezioneSagomoL::CoordinateComp4() {
    Bozza& bozza = BozzaContorno();
    const ParteContorno tutto{-1, true};
    Coordinate(bozza.x, bozza.y, bozza.n);
    TagliaPunta(bozza.x, bozza.y, tutto, b - TaglioAla(b, t, fy, kSigmaAlaCompressa), true);
    TagliaPunta(bozza.y, bozza.x, tutto, h - TaglioAla(h, t, fy, kSigmaAlaCompressa), true);
    SezioneGenerica& efficace = CalcolaContorno(SezioneComp4, bozza.x, bozza.y, bozza.n);
    if (Doppi)
        efficace.Area *= 2;
}

// ENV 1993-1-1 table 5.5.3.
std::string SezioneSagomoL::CurvaInstabilita(std::string_view /*asse*/) { return "b"; }

} // namespace sagomi
