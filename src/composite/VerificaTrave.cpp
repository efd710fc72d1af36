#include "composite/VerificaTrave.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "composite/AcciaioCls.h"
#include "composite/ParteReagente.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

constexpr double scartoTaciuto = 0.01; ///< share of MplRd

/// Notices, while it lives, whether the solver has reported a failure; messages go their way.
class AscoltaSolutore {
public:
    AscoltaSolutore() {
        precedente_ = CollegaMessaggi([this](const Messaggio& m) {
            fallito = fallito || m.testo.starts_with("ERRORE!");
            return Inoltra(precedente_, m);
        });
    }
    ~AscoltaSolutore() { CollegaMessaggi(std::move(precedente_)); }
    AscoltaSolutore(const AscoltaSolutore&) = delete;
    AscoltaSolutore& operator=(const AscoltaSolutore&) = delete;

    bool fallito = false;

private:
    PortaMessaggi precedente_;
};

/// Sum of forces and of their moments about the lower fibre, compression positive.
struct Risultante {
    double N = 0, M = 0;

    void Aggiunge(double forza, double y) {
        N += forza;
        M += forza * y;
    }
    void Aggiunge(double tensione, const ParteReagente& parte) { Aggiunge(tensione * parte.A, parte.yG); }
};

bool Positivo(const AcciaioCls& t) {
    return t.TipoVerifica == sluPositivo || t.TipoVerifica == metodoNPositivo;
}
bool Plastica(const AcciaioCls& t) { return t.TipoVerifica == sluPositivo || t.TipoVerifica == sluNegativo; }

/// Steel and concrete with the plastic axis at y.
Risultante SenzaBarre(const AcciaioCls& t, double y) {
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    const std::shared_ptr<Poligono>& compressa = Positivo(t) ? sopra : sotto;
    const std::shared_ptr<Poligono>& tesa = Positivo(t) ? sotto : sopra;
    Risultante r;
    t.Soletta->DividiY(y, sopra, sotto);
    r.Aggiunge(AcciaioCls::fcd(), ParteReagente(compressa));
    t.Sezione->SezioneGenericaCorrente->Poligono->DividiY(y, sopra, sotto);
    r.Aggiunge(t.fyd(), ParteReagente(compressa));
    r.Aggiunge(-t.fyd(), ParteReagente(tesa));
    return r;
}

Risultante ConBarre(const AcciaioCls& t, double y, double barre) {
    Risultante r = SenzaBarre(t, y);
    r.Aggiunge(barre, t.yArmatura);
    return r;
}

/// The moment with the axis between two levels, bars at their full force. The sum of forces falls from one
/// end to the other.
double Equilibrio(const AcciaioCls& t, double piu, double meno, double barre) {
    constexpr int passi = 60;
    Risultante r;
    for (int i = 0; i < passi; ++i) {
        const double y = (piu + meno) / 2;
        r = ConBarre(t, y, barre);
        (r.N > 0 ? piu : meno) = y;
    }
    return r.M - r.N * piu; // polygons are cut at levels of 32 bits: what is left over acts at the axis
}

void Calcola(AcciaioCls& t) {
    if (t.TipoVerifica == sluPositivo)
        t.MplRdPositivo();
    else if (t.TipoVerifica == sluNegativo)
        t.MplRdNegativo();
    else
        t.SigmaCalcola();
}

/// All that a check shows is a number.
bool Finiti(const AcciaioCls& t) {
    const Singolo mostrati[] = {t.MplRd, t.yNeutro, t.SigmaCls, t.SigmaInf, t.SigmaSup, t.SigmaArm, t.Vl};
    return std::ranges::all_of(mostrati, [](double v) { return std::isfinite(v); });
}

/// The moment in equilibrium, where it is another.
std::optional<double> AltroMomento(const AcciaioCls& t) {
    if (!Plastica(t))
        return std::nullopt;
    const double M = MomentoInEquilibrio(t);
    if (!(std::abs(M - t.MplRd) > scartoTaciuto * std::abs(t.MplRd)))
        return std::nullopt;
    return M;
}

} // namespace

double MomentoInEquilibrio(const AcciaioCls& t) {
    const double Fs = AcciaioCls::fsd() * t.As;
    const Risultante alleBarre = SenzaBarre(t, t.yArmatura);
    if (std::abs(alleBarre.N) <= Fs)
        return alleBarre.M - alleBarre.N * t.yArmatura;
    const double segno = Positivo(t) ? 1 : -1;
    // What is compressed shrinks as the axis goes up in sagging, down in hogging.
    const double cima = t.Sommita();
    const bool sopra = alleBarre.N * segno > 0; // the axis lies above the bars
    const double limite = sopra ? cima : 0;
    const double barre = sopra ? -segno * Fs : segno * Fs;
    return alleBarre.N > 0 ? Equilibrio(t, t.yArmatura, limite, barre)
                           : Equilibrio(t, limite, t.yArmatura, barre);
}

std::string DatiFuorvianti(const AcciaioCls& t) {
    const bool lamiera = t.TipoSoletta != solettaPiena;
    if (lamiera && t.iNervature < t.bb + t.bs)
        return "interasse < bb + bs";
    if (t.hc == 0)
        return "hc = 0";
    if (lamiera && !(t.hc > t.ha))
        return "hc <= ha";
    if (!(t.beff > 0))
        return "beff <= 0";
    if (t.As < 0 || fck < 0 || fsk < 0)
        return "As, fck, fsk: non valori negativi";
    if (!(t.Sezione->Area > 0 && t.fyd() > 0))
        return "trave senza area o senza fy";
    // Of a slab below the top of the steel the formula of the level takes c of either sign.
    if (t.hc > 0 ? t.c < 0 || t.c > t.hc : std::abs(t.c) > -t.hc)
        return "c fuori dalla soletta";
    return {};
}

EsitoTrave VerificaTrave(AcciaioCls& t) {
    EsitoTrave esito;
    t.AzzeraRisultati();
    AcciaioCls::InizializzaTrave();
    esito.accettati = t.InizializzaAcciaioCls();
    if (!esito.accettati) {
        Avvisa("Errore! Controllare i dati");
        return esito;
    }
    esito.soloElastica = t.Sezione->ClasseFlessioneY >= 3;
    esito.segnoMsd = !Plastica(t) && (Positivo(t) ? t.Msd < 0 : t.Msd > 0);
    esito.nota = DatiFuorvianti(t);
    if (esito.nota.empty()) {
        const AscoltaSolutore solutore;
        Calcola(t);
        esito.validi = !solutore.fallito && Finiti(t) && (Plastica(t) || t.Jid > 0);
    }
    if (esito.validi)
        esito.equilibrio = AltroMomento(t);
    else
        t.AzzeraRisultati();
    return esito;
}

namespace {

VerdettoTrave GiudicaTensioni(const AcciaioCls& t) {
    struct Parte {
        const char* nome;
        double tensione, limite;
    };
    const Parte parti[] = {{"calcestruzzo", std::max(-double(t.SigmaCls), 0.0), AcciaioCls::fcd()},
                           {"armatura", t.As > 0 ? std::abs(double(t.SigmaArm)) : 0, AcciaioCls::fsd()},
                           {"lembo superiore dell'acciaio", std::abs(double(t.SigmaSup)), t.fyd()},
                           {"lembo inferiore dell'acciaio", std::abs(double(t.SigmaInf)), t.fyd()}};
    VerdettoTrave v{.utilizzo = 0, .governa = {}, .motivo = {}};
    for (const Parte& p : parti)
        if (p.tensione > 0 && !(p.tensione / p.limite <= v.utilizzo)) {
            v.utilizzo = p.tensione / p.limite;
            v.governa = p.nome;
        }
    return v;
}

std::string SenzaVerdetto(const AcciaioCls& t, const EsitoTrave& esito) {
    if (!esito.validi)
        return esito.nota.empty() ? "nessun risultato" : esito.nota;
    if (esito.soloElastica && Plastica(t))
        return "sezione di classe 3 o 4: solo verifica elastica";
    if (Positivo(t) ? t.Msd < 0 : t.Msd > 0)
        return "Msd ha il segno dell'altra verifica";
    return {};
}

} // namespace

// EC4 6.2.1.
VerdettoTrave Giudica(const AcciaioCls& t, const EsitoTrave& esito) {
    VerdettoTrave v;
    v.motivo = SenzaVerdetto(t, esito);
    if (!v.motivo.empty())
        return v;
    if (!Plastica(t))
        return GiudicaTensioni(t);
    const double proprio = std::abs(double(t.MplRd));
    const double minore = esito.equilibrio ? std::min(proprio, std::abs(*esito.equilibrio)) : proprio;
    if (minore > 0)
        v.utilizzo = std::abs(double(t.Msd)) / minore;
    return v;
}

std::string TestoEquilibrio(const EsitoTrave& esito) {
    if (!esito.equilibrio)
        return {};
    std::string valore = FormatoCifre(4, Nmm_a_kNm(*esito.equilibrio));
    valore.erase(0, valore.find_first_not_of(' '));
    return "in equilibrio: " + valore + " kNm";
}

std::string MessaggioClasse(const SezioneDoppioT& s) {
    const std::string classe = "Sezione di classe " + std::to_string(s.ClasseFlessioneY);
    return s.ClasseFlessioneY >= 3 ? classe + "\nSolo verifica elastica" : classe;
}

} // namespace sagomi
