#include "sections/SezioneDoppioT.h"

#include <cmath>
#include <string>

#include "frame/GeneraleSagomi.h"
#include "sections/Eurocod3.h"
#include "sections/Limiti.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

constexpr const char* acciaioS460 = "S460 (Fe540)";

/// The curves of one kind of section about both axes.
struct Curve {
    const char* yy;
    const char* zz;
};

Curve CurveSaldata(const SezioneDoppioT& s) { return s.tf > 40 ? Curve{"c", "d"} : Curve{"b", "c"}; }

// The ratio is taken and compared in single precision, so that 360/300 is not above 1.2.
bool Alta(const SezioneDoppioT& s) { return s.h.Stretto() / s.b.Stretto() > 1.2F; }

Curve CurveS460(const SezioneDoppioT& s) {
    if (Alta(s))
        return s.tf > 40 ? Curve{"a", "a"} : Curve{"a0", "a0"};
    return s.tf > 100 ? Curve{"c", "c"} : Curve{"a", "a"};
}

Curve CurveLaminata(const SezioneDoppioT& s) {
    if (Alta(s))
        return s.tf > 40 ? Curve{"b", "c"} : Curve{"a", "b"};
    return s.tf > 100 ? Curve{"d", "d"} : Curve{"b", "c"};
}

const std::string& Acciaio(const SezioneDoppioT& s) {
    const std::string* tipo = &s.TipoAcciaio;
    SullaSezioneInUso([&tipo](const auto& inUso) { tipo = &inUso.TipoAcciaio; });
    return *tipo;
}

/// A slenderness; data of the row that do not divide are flagged.
double Snellezza(SezioneDoppioT& s, double L0, double i) {
    const double lamda = L0 / i;
    if (std::isfinite(lamda))
        return lamda;
    s.ErroreDatiDatabase = true;
    return 0;
}

} // namespace

std::string SezioneDoppioT::CurvaInstabilita(std::string_view asse) const {
    const Curve curve = Saldata                         ? CurveSaldata(*this)
                        : Acciaio(*this) == acciaioS460 ? CurveS460(*this)
                                                        : CurveLaminata(*this);
    return asse == "yy" ? curve.yy : curve.zz;
}

double SezioneDoppioT::NplRdFunz() { return Area * fy * betaA() / GammaM0; }

double SezioneDoppioT::LamdaY() { return Snellezza(*this, L0y, iY); }

double SezioneDoppioT::LamdaZ() { return Snellezza(*this, L0z, iZ); }

double SezioneDoppioT::LamdaSegnatoY() { return LamdaRelativa(LamdaY(), fy, betaA()); }

double SezioneDoppioT::LamdaSegnatoZ() { return LamdaRelativa(LamdaZ(), fy, betaA()); }

void SezioneDoppioT::MNRd(double& MNy, double& MNz, double& beta) const {
    const double n = NSd / NplRd;
    const double a = AlPiu((Area - 2 * b * tf) / Area, 0.5);
    MNy = AlPiu(McyRd * (1 - n) / (1 - 0.5 * a), McyRd);
    MNz = n > a ? MczRd * (1 - std::pow((n - a) / (1 - a), 2)) : MczRd;
    beta = Almeno(5 * n, 1);
}

double SezioneDoppioT::InterazioneMNResistenza() const {
    if (ClassePressoFlessione < 3) {
        double MNy = 0;
        double MNz = 0;
        double beta = 0;
        MNRd(MNy, MNz, beta);
        return std::pow(Mysd / MNy, 2) + std::pow(Mzsd / MNz, beta);
    }
    if (ClassePressoFlessione == 3)
        return NSd / NplRd + Mysd / MelyRd + Mzsd / MelzRd;
    return NSd / NplRd + (Mysd + NSd * eNy) / McyRd + (Mzsd + NSd * eNz) / MczRd;
}

// Class 4 is checked here with the elastic moments of the whole section.
double SezioneDoppioT::InterazioneMNInstab(double& Py, double& Pz) {
    const bool elastica = ClassePressoFlessione >= 3;
    const double Nmin = NbyRd < NbzRd ? NbyRd : NbzRd;
    const double My = GammaM0 * (elastica ? MelyRd : McyRd) / GammaM1;
    const double Mz = GammaM0 * (elastica ? MelzRd : MczRd) / GammaM1;
    Py = kY() * (Mysd + NSd * eNy) / My;
    Pz = kZ() * (Mzsd + NSd * eNz) / Mz;
    return NSd / Nmin + Py + Pz;
}

double SezioneDoppioT::muY() { return Mu(LamdaSegnatoY(), BetaMy, Wely, Wply, ClassePressoFlessione); }

double SezioneDoppioT::muZ() { return Mu(LamdaSegnatoZ(), BetaMz, Welz, Wplz, ClassePressoFlessione); }

double SezioneDoppioT::kY() { return AlPiu(1 - muY() * NSd / (GammaM1 * NbyRd), 1.5); }

double SezioneDoppioT::kZ() { return AlPiu(1 - muZ() * NSd / (GammaM1 * NbzRd), 1.5); }

double SezioneDoppioT::kYfunz() { return kY(); }

double SezioneDoppioT::kZfunz() { return kZ(); }

} // namespace sagomi
