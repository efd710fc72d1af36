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

/// The curves of one kind of section about both axes, ENV 1993-1-1 table 5.5.3.
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

/// A slenderness; 0 where the data of the row do not divide.
double Snellezza(double L0, double i) {
    const double lamda = L0 / i;
    return std::isfinite(lamda) ? lamda : 0;
}

/// The same, with data that do not divide flagged.
double Snellezza(SezioneDoppioT& s, double L0, double i) {
    if (!std::isfinite(L0 / i))
        s.ErroreDatiDatabase = true;
    return Snellezza(L0, i);
}

} // namespace

std::string SezioneDoppioT::CurvaInstabilita(std::string_view asse) const {
    const Curve curve = Saldata                         ? CurveSaldata(*this)
                        : Acciaio(*this) == acciaioS460 ? CurveS460(*this)
                                                        : CurveLaminata(*this);
    return asse == "yy" ? curve.yy : curve.zz;
}

// ENV 1993-1-1 5.4.4 (1). The initialiser asks for it before it classifies: the ratio of areas is that of the
// class which the section still has, not the one that betaA finds and tells later in the run.
double SezioneDoppioT::NplRdFunz() const { return Area * fy * betaA() / GammaM0; }

// ENV 1993-1-1 5.5.1.4, then 5.5.1.2.
double SezioneDoppioT::LamdaY() { return Snellezza(*this, L0y, iY); }

double SezioneDoppioT::LamdaZ() { return Snellezza(*this, L0z, iZ); }

double SezioneDoppioT::LamdaY() const { return Snellezza(L0y, iY); }

double SezioneDoppioT::LamdaZ() const { return Snellezza(L0z, iZ); }

double SezioneDoppioT::LamdaSegnatoY() const { return LamdaRelativa(LamdaY(), fy, betaA()); }

double SezioneDoppioT::LamdaSegnatoZ() const { return LamdaRelativa(LamdaZ(), fy, betaA()); }

// EC3 6.2.9.1 (5) and (6).
void SezioneDoppioT::MNRd(double& MNy, double& MNz, double& beta) const {
    const double n = NSd / NplRd;
    const double a = AlPiu((Area - 2 * b * tf) / Area, 0.5);
    MNy = AlPiu(McyRd * (1 - n) / (1 - 0.5 * a), McyRd);
    MNz = n > a ? MczRd * (1 - std::pow((n - a) / (1 - a), 2)) : MczRd;
    beta = Almeno(5 * n, 1);
}

// EC3 6.2.9.1 (6), 6.2.9.2 and 6.2.9.3.
TerminiInterazione SezioneDoppioT::TerminiMNResistenza() const {
    TerminiInterazione t{NSd, NplRd, {.MSd = Mysd}, {.MSd = Mzsd}};
    if (ClassePressoFlessione < 3) {
        t.assialeNeiMomenti = true;
        t.y.esponente = 2;
        MNRd(t.y.MRd, t.z.MRd, t.z.esponente);
    } else if (ClassePressoFlessione == 3) {
        t.y.MRd = MelyRd;
        t.z.MRd = MelzRd;
    } else {
        t.y.MRd = McyRd;
        t.z.MRd = MczRd;
        t.y.NeN = NSd * eNy;
        t.z.NeN = NSd * eNz;
    }
    return t;
}

double SezioneDoppioT::InterazioneMNResistenza() const { return TerminiMNResistenza().Somma(); }

// ENV 1993-1-1 5.5.4 (1), (3) and (5).
TerminiInterazione SezioneDoppioT::TerminiMNInstab() const {
    const bool elastica = ClassePressoFlessione >= 3;
    const double My = GammaM0 * (elastica ? MelyRd : McyRd) / GammaM1;
    const double Mz = GammaM0 * (elastica ? MelzRd : MczRd) / GammaM1;
    return {NSd,
            NbyRd < NbzRd ? NbyRd : NbzRd,
            {.MSd = Mysd, .NeN = NSd * eNy, .MRd = My, .k = kY()},
            {.MSd = Mzsd, .NeN = NSd * eNz, .MRd = Mz, .k = kZ()}};
}

double SezioneDoppioT::InterazioneMNInstab(double& Py, double& Pz) const {
    const TerminiInterazione t = TerminiMNInstab();
    Py = t.y.Valore();
    Pz = t.z.Valore();
    return t.Somma();
}

double SezioneDoppioT::muY() const { return Mu(LamdaSegnatoY(), BetaMy, Wely, Wply, ClassePressoFlessione); }

double SezioneDoppioT::muZ() const { return Mu(LamdaSegnatoZ(), BetaMz, Welz, Wplz, ClassePressoFlessione); }

// ENV 1993-1-1 5.5.4 (1).
double SezioneDoppioT::kY() const { return AlPiu(1 - muY() * NSd / (GammaM1 * NbyRd), 1.5); }

double SezioneDoppioT::kZ() const { return AlPiu(1 - muZ() * NSd / (GammaM1 * NbzRd), 1.5); }

double SezioneDoppioT::kYfunz() const { return kY(); }

double SezioneDoppioT::kZfunz() const { return kZ(); }

} // namespace sagomi
