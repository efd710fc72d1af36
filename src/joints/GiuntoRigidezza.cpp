// Rotational stiffness and its classes, ENV 1993-1-1 annex J and 6.9.6.2.
#include <algorithm>

#include "frame/Unita.h"
#include "joints/Divisione.h"
#include "joints/Giunto.h"
#include "joints/RigidezzaGiunto.h"
#include "sections/Eurocod3.h"

namespace sagomi {

namespace {

constexpr double rigido = 1e9;   ///< coefficient of a component that does not give way
constexpr double elastico = 1.5; ///< resistance over the elastic moment

/// Below two thirds of the resistance the stiffness does not rise further.
constexpr double etaMinimo = (1 / elastico) * (1 / elastico);

double Cubo(double v) { return v * v * v; }

double Eta(double F, double R) {
    const double rapporto = Diviso(F, R, "R·mu");
    return std::max(rapporto * rapporto, etaMinimo);
}

/// Flange in bending, the greater of a corner's by lambda = m2 / (m + e) and of a plain one.
double FlangiaInflessa(double t, double lambda, double m, double tw) {
    const double piana = Diviso(Cubo(t), 4 * (m * m) * tw, "m");
    const double angolo = Diviso(Cubo(t), 12 * lambda * (m * m) * tw, "lambda");
    return std::max(angolo, piana);
}

} // namespace

void Giunto::Limiti() {
    const double L_ = t().lunghezza();
    if (L_ == 0)
        return;
    const double J = t().Jy;
    const auto limite = [&](double volte) { return Nmm_a_kNm(volte * E_acciaio * J / m_a_mm(L_)); };
    LimiteCerniera = limite(0.5);
    LimiteRigido2 = limite(8);
    LimiteRigido1 = limite(25);
}

void Giunto::CoefficentiRigidezza_Calcola() {
    const double tw = c().tw;
    const double tfc = c().tf;
    (void)Diviso(1, tw, "tw");
    k1 = Beta > 0 ? 0.38 : rigido;
    k3 = Irrigidito() || SoloCompressione() ? rigido : 0.8;
    k2 = Irrigidito() ? rigido : 0.8;
    k4 = Irrigidito() ? FlangiaInflessa(tfc, Diviso(m2c, ec + mc, "mc + ec"), mc, tw)
                      : Diviso(Cubo(tfc), 4 * (mc * mc) * tw, "mc");
    k5 = Diviso(2 * Areares, tw * lb, "lb");
    k6 = FlangiaInflessa(tf, Diviso(m2, ef + mf, "mf + ef"), mf, tw);
    if (nf == 2)
        k6_Estesa = Diviso(Cubo(tf), 4 * (mx * mx) * tw, "mx");
}

void Giunto::CoefficientiCorrettivi_Calcola() {
    mu1 = mu2 = mu3 = 1;
    mu4 = mu5 = mu6 = Diviso(zInt_ * FtRd_EffInf, m_a_mm(MplRdGIUNTO), "Mj");
    if (nf == 2)
        mu4_Estesa = mu5_Estesa = mu6_Estesa = Diviso(zEst_ * FtRd_EffSup, m_a_mm(MplRdGIUNTO), "Mj");
}

TerminiRigidezza Giunto::Termini(double mu) const {
    TerminiRigidezza r;
    const double F = FtotFile_;
    const double bulloni = Bt_Rd() * 2 * mu;
    if (Beta > 0)
        r.eta1 = Eta(F, VplRd_Pannello_c * mu);
    if (!Irrigidito())
        r.eta2 = Eta(F, FtRd_Anima_c * mu);
    if (!Irrigidito() && !SoloCompressione())
        r.eta3 = Eta(F, std::min(FcRd_Anima_c.Stretto(), NbRd_Anima_c.Stretto()) * mu);
    r.eta4 = Eta(F, (Ftrd_FilaInf_c + Ftrd_FilaSup_c) * mu);
    r.eta5 = Eta(FtRd_EffInf, bulloni);
    if (nf == 2)
        r.eta5e = Eta(FtRd_EffSup, bulloni);
    r.eta6 = Eta(F, (FtRd_FilaSup_f + FtRd_FilaInf_f) * mu);
    const double comuni = r.eta1 * mu1 / k1 + r.eta2 * mu2 / k2 + r.eta3 * mu3 / k3;
    r.S = comuni + r.eta4 * mu4 / k4 + r.eta5 * mu5 / k5 + r.eta6 * mu6 / k6;
    if (nf == 2)
        r.SEst =
            comuni + r.eta4 * mu4_Estesa / k4 + r.eta5e * mu5_Estesa / k5 + r.eta6 * mu6_Estesa / k6_Estesa;
    return r;
}

void Giunto::Rigidezza_Calcola(double mu, double& SInt, double& SEst, double& Sj) {
    const TerminiRigidezza r = Termini(mu);
    // No component gives way where no force is: that path has no stiffness of its own.
    const auto percorso = [&](double z_, double S) {
        return S == 0 ? 0 : z_ * z_ * E_acciaio * c().tw / S * 1e-6;
    };
    SInt = percorso(zInt_, r.S);
    Sj = SInt;
    if (nf != 2)
        return;
    SEst = percorso(zEst_, r.SEst);
    Sj = std::max(SInt, SEst);
}

void Giunto::Sj_Giunto_Calcola() {
    CoefficentiRigidezza_Calcola();
    CoefficientiCorrettivi_Calcola();
    FtotFile_ = nf == 2 ? FtRd_EffInf + FtRd_EffSup : double(FtRd_EffInf);
    Rigidezza_Calcola(1, Sj_MjRd_, Sj_MjRd_Estesa, Sj_MjRd);
    Rigidezza_Calcola(elastico, Sj_Mela_, Sj_Mela_Estesa, Sj_Mela);
    const double M = t().Mysd;
    if (M == 0)
        Sj_MjSd_ = Sj_MjSd_Estesa = Sj_MjSd = 0;
    else
        Rigidezza_Calcola(MplRdGIUNTO / M, Sj_MjSd_, Sj_MjSd_Estesa, Sj_MjSd);
    ClasseRigidezza_Calcola();
    TracciaRigidezza();
}

// EC3 6.9.6.2.
void Giunto::ClasseRigidezza_Calcola() {
    constexpr const char* cerniera = "a cerniera (EC3-6.9.6.2)";
    const auto classe = [&](double limite) {
        return Sj_Mela >= limite ? "rigido (EC3-6.9.6.2)" : "semirigido (EC3-6.9.6.2)";
    };
    if (Sj_Mela < LimiteCerniera) {
        RigidezzaGiunto1 = std::string(" Giunto ") + cerniera;
        RigidezzaGiunto2.clear();
        return;
    }
    RigidezzaGiunto1 = std::string(" Telaio controventato:Giunto ") + classe(LimiteRigido2);
    RigidezzaGiunto2 = std::string(" Telaio non controventato:Giunto ") + classe(LimiteRigido1);
}

} // namespace sagomi
