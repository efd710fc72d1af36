// Plate, bolts and beam web, ENV 1993-1-1 annex J.
#include <stdexcept>

#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "joints/DiagrammaAlfa.h"
#include "joints/Divisione.h"
#include "joints/Giunto.h"

namespace sagomi {

namespace {

constexpr double dueGreco = 6.28318530717958;

/// Ratio of shear and tension resistances in the interaction of a bolt, ENV 1993-1-1 6.5.5 (5).
constexpr double quotaTaglio = 1.8 / 1.4;

} // namespace

void Giunto::LeffFlangia_Calcola() {
    const double lambda1 = Diviso(mf, mf + ef, "mf + ef");
    const double lambda2 = m2 / (mf + ef);
    if (!NelDiagrammaAlfa(lambda1, lambda2))
        throw std::out_of_range(lambda1 < 0 ? "mf = " + TestoPiano(mf) + " mm: fuori dal diagramma di alfa"
                                            : "m2 = " + TestoPiano(m2) + " mm: fuori dal diagramma di alfa");
    leffInterna_ = dueGreco * mf;
    const double lunghezza = AlfaDiagramma(lambda1, lambda2) * mf;
    if (lunghezza < leffInterna_)
        leffInterna_ = lunghezza;
    if (nf != 2)
        return;
    leffEsterna_ = 0.5 * bf;
    for (const double v : {0.5 * w + 2 * mx + 0.625 * ex, 4 * mx + 1.25 * ex, dueGreco * mx})
        if (v < leffEsterna_)
            leffEsterna_ = v;
}

double Giunto::nFlangia_Calcola(double e, double m) { return std::min(e, 1.25 * m); }

ModiTrattoT Giunto::ModiFlangiaInterna(double Bt) const {
    const double Mpl = Mpl_Calcola(leffInterna_, tf, t().fy, Fattori().GammaM0);
    return {leffInterna_, mf, nFlangia_Calcola(ef, mf), Mpl, 2, Bt};
}

ModiTrattoT Giunto::ModiFlangiaEsterna(double Bt) const {
    const double Mpl = Mpl_Calcola(leffEsterna_, tf, t().fy, Fattori().GammaM0);
    return {leffEsterna_, mx, nFlangia_Calcola(ex, mx), Mpl, 2, Bt};
}

void Giunto::Flangia(double Bt) {
    FtRd_FilaInf_f = ModiFlangiaInterna(Bt).Resistenza();
    if (nf == 2)
        FtRd_FilaSup_f = ModiFlangiaEsterna(Bt).Resistenza();
}

void Giunto::RottureFlangia_Calcola() {
    LeffFlangia_Calcola();
    Flangia(Bt_Rd());
}

// ENV 1993-1-1 table 6.5.3.
double Giunto::Bt_Rd() const { return 0.9 * fubl * Areares / (Fattori().GammaM2 * 1000); }

void Giunto::FtRdAnimaTrave_Calcola() {
    FtRd_Anima_t = t().tw * t().fy * leffInterna_ / (Fattori().GammaM0 * 1000);
}

// ENV 1993-1-1 table 6.5.3; the row in tension keeps what 6.5.5 (5) leaves to it.
void Giunto::Vrd_Calcola() {
    const double coefficiente = Classe == "10.9" ? 0.5 : 0.6;
    const double F = coefficiente * fubl * Areares / Fattori().GammaM2;
    Vrd0 = N_a_kN(2 * F);
    Vrd1 = N_a_kN(2 * quotaTaglio * F);
}

} // namespace sagomi
