// Headed studs, EC4 6.3.

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "composite/AcciaioCls.h"
#include "composite/ProgettoConnettori.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "geometry/Matematica.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

/// What keeps a stud from being one, EC4 6.4.2; empty where it fits.
std::string PioloInadatto(const AcciaioCls& t) {
    if (t.hc < t.hPiolo)
        return "Il piolo esce dalla soletta!";
    if (t.hPiolo / t.dPiolo < 3)
        return "h/d < 3 (" + TestoPiano(Singolo(3 * t.dPiolo)) + " mm) EC4 #6.4.2.(1)";
    if (t.TipoSoletta != solettaPiena && t.hPiolo < t.ha)
        return "h deve essere maggiore di ha (" + TestoPiano(t.ha) + " mm)";
    return {};
}

/// Ribs across the beam, EC4 6.3.3.2.
double RiduzioneTrasversale(const AcciaioCls& t) {
    const double k = 0.7 / std::sqrt(t.Nr) * t.b0 / t.ha * (t.hPiolo / t.ha - 1);
    return std::min(k, t.Nr == 2 ? 0.8 : 1.0);
}

/// Ribs along the beam, EC4 6.3.3.1.
double RiduzioneParallela(const AcciaioCls& t) {
    const double h = std::min<double>(t.hPiolo, t.ha + 75);
    return std::min(0.6 * t.b0 / t.ha * (h / t.ha - 1), 1.0);
}

/// A number of studs as it is kept; 0, told, where 16 bits do not hold it.
std::int16_t Conta(AcciaioCls& t, double n) {
    if (n <= std::numeric_limits<std::int16_t>::max())
        return static_cast<std::int16_t>(n);
    t.MessaggioPioli = "troppi connettori";
    return 0;
}

} // namespace

double AcciaioCls::Riduzione() const {
    if (TipoSoletta == solettaPiena)
        return 1;
    return TipoSoletta == nervatureTrasversali ? RiduzioneTrasversale(*this) : RiduzioneParallela(*this);
}

void AcciaioCls::CalcolaPrd() {
    constexpr double Ecm1 = 9500; // of a cylinder strength of 1 N/mm2, ENV 1992-1-1 3.1.2.5.2
    Ecm = Ecm1 * std::cbrt(fck + 8);
    AreaPiolo = std::numbers::pi * dPiolo * dPiolo / 4;
    MessaggioPioli.clear();
    kRiduzione = PRd1 = PRd2 = PRd = 0;
    if (!(dPiolo > 0) || (TipoSoletta != solettaPiena && !(ha > 0)))
        return;
    MessaggioPioli = PioloInadatto(*this);
    if (!MessaggioPioli.empty())
        return;
    const double snellezza = hPiolo / dPiolo;
    const double alfa = snellezza >= 4 ? 1 : 0.2 * (snellezza + 1);
    PRd1 = 0.8 * fu * AreaPiolo / GammaV;
    PRd2 = alfa * 0.29 * dPiolo * dPiolo * std::sqrt(fck * Ecm) / GammaV;
    kRiduzione = Riduzione();
    PRd = kRiduzione * std::min(PRd1, PRd2);
    if (!std::isfinite(PRd)) // without a partial factor
        PRd = 0;
}

void AcciaioCls::CalcolaNumeroConnettori() {
    nConnCalc = PRd > 0 && Vl > 0 ? Vl / PRd : 0;
    nConnettori = Conta(*this, 2 * ArrotondaEccesso(nConnCalc));
    CalcolaPassoConnettori(nConnettori, Nr);
}

void AcciaioCls::CalcolaPassoConnettori(int n, int coppie) {
    if (SenzaPasso)
        return;
    Passo = 0;
    Unita.clear();
    nNervaturePasso = 0;
    if (n < 2)
        return;
    const bool inCoppia = coppie == 2;
    Passo = m_a_mm(Luce) / (n - 1) * (inCoppia ? 2 : 1);
    Unita = inCoppia ? "coppie conn." : "connettori";
    if (TipoSoletta != solettaPiena && iNervature > 0)
        nNervaturePasso = A16Bit(std::floor(Passo / iNervature));
}

bool AcciaioCls::ProgettaParzialeRipristino() {
    nParziale = 0;
    const std::optional<double> q = ContoParziale(nConnCalc, std::abs(MplRd), Msd, Sezione->McyRd);
    if (q)
        nParziale = Conta(*this, 2 * ArrotondaEccesso(*q));
    else
        MessaggioPioli = "Msd > MplRd";
    CalcolaPassoConnettori(nParziale, Nr);
    return q.has_value();
}

} // namespace sagomi
