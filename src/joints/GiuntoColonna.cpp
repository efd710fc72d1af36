// The components of the column, ENV 1993-1-1 annex J.
#include <cmath>
#include <numbers>
#include <stdexcept>

#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "joints/DiagrammaAlfa.h"
#include "joints/Divisione.h"
#include "joints/Giunto.h"
#include "sections/Eurocod3.h"

namespace sagomi {

using std::numbers::sqrt2;
using std::numbers::sqrt3;

namespace {

constexpr double dueGreco = 6.28318530717958;
constexpr double sigmaAla = 180;        ///< stress above which the column flange is reduced [N/mm2]
constexpr double gambaUtile = 0.8;      ///< part of the leg of a weld that holds the bolt off
constexpr double diffusione = 5;        ///< spread of a force through the column flange, 1:2.5 to both sides
constexpr std::string_view curva = "c"; ///< buckling curve of a web in compression

/// Whether two factors differ as they are read, with 2 decimals.
bool Diversi(double a, double b) { return Formato("0.00", a) != Formato("0.00", b); }

} // namespace

double Giunto::TensioneColonna() const {
    const SezioneDoppioT& col = c();
    const double N = Diviso(kN_a_N(col.NSd), col.Area, "Area");
    const double M = Diviso(kNm_a_Nmm(col.Mysd) * col.h, 2 * col.Jy, "Jy");
    // The left joint of a cross sees the moment of the column reversed.
    const bool sinistro = TipiGiunto == "Croce_Sn" || TipiGiunto == "CroceSn";
    return sinistro ? N - M : N + M;
}

void Giunto::Kwc_Calcola() {
    Kwc = 1;
    const double sigma = TensioneColonna();
    const double fy = c().fy;
    if (0.5 * fy >= sigma)
        return;
    double x = 1.25 - Diviso(0.5 * sigma, fy, "fy");
    if (x < 0)
        x = 0.75;
    if (Diversi(x, Kwc))
        Kwc = x;
}

void Giunto::Kfc_Calcola() {
    Kfc = 1;
    const double sigma = TensioneColonna();
    const double fy = c().fy;
    if (!(sigma > sigmaAla))
        return;
    double x = Diviso(2 * fy - sigmaAla - sigma, 2 * fy - 2 * sigmaAla, "2fy - 360");
    if (x < 0)
        x = 0.5;
    if (Diversi(x, Kfc) && x <= 1)
        Kfc = x;
}

double Giunto::AreaTaglio_Calcola(const SezioneDoppioT& s) {
    if (s.Saldata || s.Designation.find('S') != std::string::npos)
        return (s.h - 2 * (s.a() + s.tf)) * s.tw;
    return s.Area - 2 * s.b * s.tf + (s.tw + 2 * s.r1) * s.tf;
}

/// A row beside a stiffener at the given distance.
double Giunto::LunghezzaIrrigidita(double distanza, const char* nome) const {
    const double lambda1 = Diviso(mc, mc + ec, "mc + ec");
    const double lambda2 = distanza / (mc + ec);
    if (!NelDiagrammaAlfa(lambda1, lambda2))
        throw std::out_of_range(std::string(lambda1 < 0 ? "mc" : nome) + " = " +
                                TestoPiano(lambda1 < 0 ? mc : distanza) + " mm: fuori dal diagramma di alfa");
    return AlfaDiagramma(lambda1, lambda2) * mc;
}

void Giunto::Beff_Calcola() {
    const double cerchio = dueGreco * mc;
    if (!Irrigidito()) {
        const double lato = 4 * mc + 1.25 * ec;
        beff_[0] = std::min(cerchio, lato);
        if (nf == 2)
            beff_[1] = Minimo3(2 * cerchio, 2 * lato, 2 * (0.5 * p + 2 * mc + 0.625 * ec));
        return;
    }
    const auto minore = [&](double distanza, const char* nome) -> Singolo {
        const double lunghezza = LunghezzaIrrigidita(distanza, nome);
        const Singolo intera = cerchio;
        return lunghezza < intera ? Singolo(lunghezza) : intera;
    };
    m2c = d2 - (Irr_Spessore - t().tf) - gambaUtile * sqrt2 * Irr_a;
    beff_[0] = beff_[3] = minore(m2c, "m2c");
    if (nf != 2)
        return;
    mxc = dX - gambaUtile * sqrt2 * Irr_a;
    beff_[2] = minore(mxc, "mxc");
    beff_[1] = beff_[2] + beff_[3];
}

double Giunto::nColonna_Calcola() const { return Minimo3(ec, 1.25 * mc, ef); }

ModiTrattoT Giunto::ModiAla(double leff, int nb, double Bt) const {
    const double Mpl = Mpl_Calcola(leff, c().tf, c().fy, Fattori().GammaM0) * Kfc;
    return {leff, mc, nColonna_Calcola(), Mpl, double(nb), Bt};
}

void Giunto::AlaColonna(double Bt) {
    const auto resistenza = [&](int i, int nb) { return ModiAla(Beff(i), nb, Bt).Resistenza(); };
    if (Irrigidito()) {
        Ftrd_FilaInf_c = resistenza(4, 2);
        if (nf == 2)
            Ftrd_FilaSup_c = resistenza(3, 2);
        return;
    }
    FtRd_Individuale = resistenza(1, 2);
    if (nf == 1)
        Ftrd_FilaInf_c = FtRd_Individuale;
    if (nf != 2)
        return;
    FtRd_Gruppo = resistenza(2, 4);
    Ftrd_FilaInf_c = FtRd_Gruppo - FtRd_Individuale;
    Ftrd_FilaSup_c = FtRd_Individuale;
}

void Giunto::RottureAlaColonna_Calcola() {
    Beff_Calcola();
    AlaColonna(Bt_Rd());
}

void Giunto::AnimaColonnaTesa(std::int16_t file) {
    FtRd_Anima_c = Beff(file == 2 ? 2 : 1) * c().tw * c().fy / (Fattori().GammaM0 * 1000);
}

void Giunto::FtRdAnimaColonna_Calcola(std::int16_t file) {
    Beff_Calcola();
    AnimaColonnaTesa(file);
}

/// The stiffener counts as a flange of the beam.
void Giunto::AggiungeAlaTrave(Singolo& resistenza) const {
    resistenza += t().tf * t().b * t().fy / (Fattori().GammaM0 * 1000);
}

void Giunto::FtRd_AnimaColonnaIrrigidita_Calcola() {
    FtRdAnimaColonna_Calcola(nf);
    AggiungeAlaTrave(FtRd_Anima_c);
}

/// What the spread through the plate adds below the flange: its thickness, where the plate reaches so far.
double Giunto::AggiuntaFlangia() const {
    const double x = u - sqrt2 * Af;
    return x >= tf ? tf : x;
}

double Giunto::BeffCompressione_Calcola() const {
    const double s = c().Saldata ? c().a() * sqrt2 : double(c().r1);
    return 2 * sqrt2 * Af + t().tf + tf + diffusione * (c().tf + s) + AggiuntaFlangia();
}

void Giunto::FcRdAnimaColonna_Calcola() {
    FcRd_Anima_c = Kwc * c().tw * c().fy * BeffCompressione_Calcola() / (Fattori().GammaM0 * 1000);
}

void Giunto::FcRd_AnimaColonnaIrrigidita_Calcola() {
    FcRdAnimaColonna_Calcola();
    FcRd_AnimaIrrigidita_c = FcRd_Anima_c;
    AggiungeAlaTrave(FcRd_AnimaIrrigidita_c);
}

/// Buckling stress of the web as a strut of half its clear depth [N/mm2], ENV 1993-1-1 5.5.1 and 5.7.5.
double Giunto::TensioneInstabilita() const {
    const double tw = c().tw;
    const double lambda = Diviso((c().h - 2 * c().tf) / 2, std::sqrt(tw * tw / 12), "tw");
    const double chi = Chi(AlfaCurva(curva), LamdaRelativa(lambda, c().fy, 1));
    return chi * c().fy / Fattori().GammaM1;
}

double Giunto::LarghezzaInstabilita() const {
    const double y = t().tf + tf + AggiuntaFlangia();
    return std::sqrt(c().h * c().h + y * y);
}

void Giunto::NbRdAnimaColonna_Calcola() {
    NbRd_Anima_c = N_a_kN(c().tw * LarghezzaInstabilita() * TensioneInstabilita());
}

/// Both checks of the web in compression, with its buckling stress.
void Giunto::AnimaCompressa(double instabilita) {
    FcRdAnimaColonna_Calcola();
    NbRd_Anima_c = N_a_kN(c().tw * LarghezzaInstabilita() * instabilita);
}

void Giunto::VplRdPannello_Calcola(double beta) {
    if (beta > 0)
        VplRd_Pannello_c = c().fy * AreaTaglio_Calcola(c()) / (sqrt3 * Fattori().GammaM0 * 1000 * beta);
}

} // namespace sagomi
