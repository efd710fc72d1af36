// Plastic resistance, EC4 4.4.1. Moments are taken about the lower fibre of the steel.

#include <algorithm>

#include "composite/AcciaioCls.h"
#include "composite/ParteReagente.h"
#include "frame/Messaggi.h"
#include "geometry/Matematica.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

/// Share of an area that has to be cut off; 0 where there is nothing to cut.
double Quota(double parte, double intero) { return intero > 0 ? parte / intero : 0; }

/// Dividi that keeps the level in 32 bits.
void Taglia(Poligono& p, double quota, std::shared_ptr<Poligono>& sopra, std::shared_ptr<Poligono>& sotto,
            Singolo& livello) {
    double yN = 0;
    p.Dividi(quota, sopra, sotto, yN);
    livello = yN;
}

} // namespace

std::shared_ptr<Poligono> AcciaioCls::ContornoAcciaio() const {
    return Sezione->SezioneGenericaCorrente->Poligono;
}

double AcciaioCls::TolleranzaNeutro() const { return Sezione->h * ContornoAcciaio()->Area / 100000; }

void AcciaioCls::ToglieParti() {
    for (auto* parte : {&ClsCompresso, &ClsTeso, &AcciaioCompresso, &AcciaioTeso})
        parte->reset();
}

void AcciaioCls::CompletaParti() const {
    for (const auto* parte : {&ClsCompresso, &ClsTeso, &AcciaioCompresso, &AcciaioTeso})
        if (*parte)
            (*parte)->CaratteristicheStatiche();
}

void AcciaioCls::AzzeraRisultati() {
    for (Singolo* risultato : {&MplRd, &Vl, &yNeutro, &SigmaCls, &SigmaInf, &SigmaSup, &SigmaArm, &Jid, &Ss})
        *risultato = 0;
    ToglieParti();
}

/// Strengths, forces of the whole steel, the bars and the whole slab, level of the bars [N/mm2, N, mm].
struct AcciaioCls::Forze {
    ParteReagente acciaio;
    double fyd, fcd, Fa, Fs, Fc, yBarre;

    explicit Forze(const AcciaioCls& t)
        : acciaio(t.ContornoAcciaio()), fyd(t.fyd()), fcd(AcciaioCls::fcd()), Fa(fyd * acciaio.A),
          Fs(fsd() * t.As), Fc(fcd * t.Soletta->Area), yBarre(t.Sezione->h + t.hc - t.c) {}
};

void AcciaioCls::MplRdPositivo() {
    if (hc < 0) {
        MplRdSolettaSotto();
        return;
    }
    ToglieParti();
    const Forze f(*this);
    if (f.Fs > f.Fa)
        MplRdAssurdo(f);
    else if (f.Fc + f.Fs < f.Fa)
        PositivoAsseInAcciaio(f);
    else
        PositivoAsseInSoletta(f);
    CompletaParti();
}

void AcciaioCls::MplRdAssurdo(const Forze& f) {
    Avvisa("Resistenza barre > resistenza putrella !! Dati assurdi\n"
           "Il momento resistente di progetto è calcolato moltiplicando la resistenza\n"
           "a trazione della trave per la distanza fra baricentro-trave e armatura",
           {}, Icona::Avviso);
    MplRd = (f.yBarre - f.acciaio.yG) * f.Fa;
    yNeutro = Sezione->h;
}

void AcciaioCls::PositivoAsseInAcciaio(const Forze& f) {
    const double compressa = (f.Fa - (f.Fc + f.Fs)) / 2 / f.fyd;
    Taglia(*ContornoAcciaio(), Quota(compressa, f.acciaio.A), AcciaioCompresso, AcciaioTeso, yNeutro);
    ClsCompresso = Soletta;
    MplRd = f.yBarre * f.Fs + f.fcd * ParteReagente(Soletta).S() -
            f.fyd * (ParteReagente(AcciaioTeso).S() - ParteReagente(AcciaioCompresso).S());
    Vl = f.Fc + f.Fs;
}

void AcciaioCls::PositivoAsseInSoletta(const Forze& f) {
    const double compressa = Quota(f.Fa - f.Fs, f.fcd);
    Taglia(*Soletta, Quota(compressa, Soletta->Area), ClsCompresso, ClsTeso, yNeutro);
    AcciaioTeso = ContornoAcciaio();
    MplRd = -f.Fa * f.acciaio.yG + f.yBarre * f.Fs + f.fcd * ParteReagente(ClsCompresso).S();
    Vl = f.Fa;
}

void AcciaioCls::MplRdNegativo() {
    if (hc < 0) {
        MplRdSolettaSotto();
        return;
    }
    ToglieParti();
    const Forze f(*this);
    if (f.Fs < f.Fa)
        NegativoAsseInAcciaio(f);
    else
        NegativoAsseInSoletta(f);
    CompletaParti();
}

// All of the slab is in tension: it is not counted.
void AcciaioCls::NegativoAsseInAcciaio(const Forze& f) {
    const double tesa = (f.Fa - f.Fs) / 2 / f.fyd;
    Taglia(*ContornoAcciaio(), Quota(tesa, f.acciaio.A), AcciaioTeso, AcciaioCompresso, yNeutro);
    MplRd = f.fyd * (ParteReagente(AcciaioCompresso).S() - ParteReagente(AcciaioTeso).S()) - f.yBarre * f.Fs;
    Vl = f.Fs;
}

// The concrete counts against the steel, as the model has it; MomentoInEquilibrio counts it with the steel.
void AcciaioCls::NegativoAsseInSoletta(const Forze& f) {
    const double sottoBarre = Soletta->Area - beff * c;
    const double massima = f.fcd * sottoBarre + f.Fa; // what slab and steel can balance
    const double Fs = std::min(f.Fs, massima);
    const double compressa = f.Fs < massima ? Quota(Fs - f.Fa, f.fcd) : sottoBarre;
    Taglia(*Soletta, Quota(Soletta->Area - compressa, Soletta->Area), ClsTeso, ClsCompresso, yNeutro);
    AcciaioCompresso = ContornoAcciaio();
    const ParteReagente cls(ClsCompresso);
    MplRd = f.fyd * f.acciaio.S() - f.yBarre * Fs - f.fcd * cls.S();
    Vl = Fs - f.fcd * cls.A;
}

void AcciaioCls::MplRdSolettaSotto() {
    yNeutro = yNeutroPlasticoSezioneComposta();
    const ParteReagente cls(ClsCompresso);
    MplRd = -fyd() * (ParteReagente(AcciaioTeso).S() - ParteReagente(AcciaioCompresso).S()) +
            fcd() * cls.S() - fsd() * As * yArmatura;
    Vl = fcd() * cls.A + ForzaArmatura(yNeutro);
    CompletaParti();
}

double AcciaioCls::yNeutroPlasticoSezioneComposta() {
    double x1 = 0;
    double x2 = Sezione->h;
    return ZeroFunzione(*this, x1, x2, TolleranzaNeutro());
}

double AcciaioCls::yEquazione(double y) {
    return hc < 0 && TipoVerifica < metodoNPositivo ? EquazionePlastica(y) : EquazioneElastica(y);
}

double AcciaioCls::EquazionePlastica(double y) {
    if (TipoVerifica == sluPositivo) {
        Soletta->DividiY(y, ClsCompresso, ClsTeso);
        ContornoAcciaio()->DividiY(y, AcciaioCompresso, AcciaioTeso);
    } else {
        Soletta->DividiY(y, ClsTeso, ClsCompresso);
        ContornoAcciaio()->DividiY(y, AcciaioTeso, AcciaioCompresso);
    }
    return ForzaArmatura(y) + fcd() * ParteReagente(ClsCompresso).A +
           fyd() * (ParteReagente(AcciaioCompresso).A - ParteReagente(AcciaioTeso).A);
}

double AcciaioCls::ForzaArmatura(double y) const {
    const double d = Sezione->h / 1000;
    double tensione = fsd() * (y - yArmatura) / d;
    if (y < yArmatura - d)
        tensione = -fsd();
    else if (y > yArmatura + d)
        tensione = fsd();
    return (TipoVerifica == sluNegativo ? -tensione : tensione) * As;
}

} // namespace sagomi
