#include "composite/ProgettoConnettori.h"

#include <algorithm>
#include <cmath>

#include "composite/AcciaioCls.h"
#include "frame/Messaggi.h"
#include "frame/Unita.h"
#include "geometry/Matematica.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

constexpr double dMassimo = 20;  ///< mm, of studs welded through a deck
constexpr double haMassima = 85; ///< mm
constexpr const char* nervatureScarse = "connettori insufficienti: le nervature non bastano";

/// The limit of ribs across the beam that is not kept, EC4 6.3.3.2 (1).
const char* LimiteSuperato(const AcciaioCls& t) {
    if (t.TipoSoletta != nervatureTrasversali)
        return nullptr;
    if (t.dPiolo > dMassimo)
        return "Diametro dei connettori d > 20 mm !, EC4, # 6.3.3.2(1)";
    if (t.ha > haMassima)
        return "Altezza lamiera hp > 85 mm ! EC4, # 6.3.3.2(1)";
    if (t.b0 < t.ha)
        return "bo < hp !, EC4, # 6.3.3.2(1)";
    return nullptr;
}

void Azzera(AcciaioCls& t) {
    t.MessaggioPioli.clear();
    t.nConnCalc = 0;
    t.nConnettori = t.nParziale = 0;
    t.CalcolaPassoConnettori(0, t.Nr);
}

double PRdCon(const AcciaioCls& trave, std::int16_t Nr) {
    AcciaioCls t = trave;
    t.Nr = Nr;
    t.CalcolaPrd();
    return t.PRd;
}

/// Ribs that have to take two studs so that those of half the beam carry Vl; above N where all of them do
/// not.
double NervatureDoppie(const AcciaioCls& t, double N) {
    const double P1 = PRdCon(t, 1);
    const double guadagno = 2 * PRdCon(t, 2) - P1; // of a rib with two
    const double manca = t.Vl - N * P1;
    if (manca <= 0)
        return 0;
    return guadagno > 0 ? std::ceil(manca / guadagno) : N + 1;
}

/// More studs than ribs: pairs where the shear is greatest, if they are enough.
void Suggerisce(const AcciaioCls& t, EsitoConnettori& esito) {
    if (t.TipoSoletta != nervatureTrasversali || t.nNervaturePasso > 0 || !esito.Passo)
        return;
    const Singolo luce = m_a_mm(t.Luce); // 7.6 m are 7600 mm, not a hair less
    const double N = std::floor(luce / 2 / t.iNervature);
    const double n = t.Nr == 1 ? NervatureDoppie(t, N) : N + 1;
    if (n > N)
        esito.messaggio = nervatureScarse;
    else
        esito.nervatureDoppie = static_cast<int>(n);
}

/// Partial connection by pairs: the count of the beam, up to an even number.
bool ParzialeCoppie(AcciaioCls& t) {
    const double MplRd = std::abs(t.MplRd);
    const double Ma = t.Sezione->McyRd;
    const bool esiste = ContoParziale(t.nConnettori, MplRd, t.Msd, Ma).has_value();
    const int n = ParzRipCoppie(t.nConnettori, MplRd, t.Msd, Ma);
    t.nParziale = static_cast<std::int16_t>(n + n % 2);
    if (!esiste)
        t.MessaggioPioli = "Msd > MplRd";
    t.CalcolaPassoConnettori(t.nParziale, 2);
    return esiste;
}

/// Counts and spaces; false where there is no count.
bool Conta(AcciaioCls& t, bool parziale) {
    t.CalcolaNumeroConnettori();
    if (!t.MessaggioPioli.empty()) // more than can be counted
        return false;
    if (!parziale)
        return true;
    return t.Nr == 2 ? ParzialeCoppie(t) : t.ProgettaParzialeRipristino();
}

/// What the beam has got.
void Riporta(const AcciaioCls& t, bool parziale, EsitoConnettori& esito) {
    esito.n = parziale ? t.nParziale : t.nConnettori;
    if (!(t.Passo > 0))
        return;
    esito.Passo = std::floor(t.Passo);
    esito.Unita = t.Unita;
    if (t.TipoSoletta != solettaPiena)
        esito.nervature = t.nNervaturePasso;
}

} // namespace

std::optional<double> ContoParziale(double n, double MplRd, double Msd, double Ma) {
    if (std::abs(Msd) <= Ma)
        return 0;
    if (MplRd <= Ma || std::abs(Msd) > MplRd)
        return std::nullopt;
    return n * (std::abs(Msd) - Ma) / (MplRd - Ma);
}

ConnessioneParziale ConParziale(const AcciaioCls& trave, int n) {
    const double intera = trave.nConnCalc;
    const double grado = std::min(n / 2.0 / intera, 1.0);
    const double Ma = trave.Sezione->McyRd;
    return {grado, Ma + grado * (std::abs(trave.MplRd) - Ma)};
}

int ParzRipCoppie(int n, double MplRd, double Msd, double MaplRd) {
    return static_cast<int>(ArrotondaEccesso(ContoParziale(n, MplRd, Msd, MaplRd).value_or(0)));
}

EsitoConnettori ProgettaConnettori(AcciaioCls& t, bool parziale) {
    EsitoConnettori esito;
    Azzera(t);
    if (const char* limite = LimiteSuperato(t)) {
        Avvisa(limite, "Attenzione !", Icona::Stop);
        return esito;
    }
    t.CalcolaPrd();
    esito.messaggio = t.MessaggioPioli;
    if (!(t.PRd > 0))
        return esito;
    if (!(t.Vl > 0)) {
        esito.messaggio = "Vl non è maggiore di 0: nessun connettore";
        return esito;
    }
    esito.PRd = t.PRd;
    const bool contati = Conta(t, parziale);
    esito.messaggio = t.MessaggioPioli;
    if (contati && esito.messaggio.empty()) {
        Riporta(t, parziale, esito);
        Suggerisce(t, esito);
    }
    return esito;
}

std::string TestoSuggerimento(int n) {
    return n == 1 ? "Dove si ha taglio massimo disporre\n2 connettori per nervatura"
                  : "Dove si ha taglio massimo disporre\n2 connettori nelle prime " + std::to_string(n) +
                        " nervature";
}

} // namespace sagomi
