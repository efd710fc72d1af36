// Plastic resistance, EC4 4.4.1. Moments are taken about the lower fibre of the steel.

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

/// Strengths and forces of the whole steel, the bars and the whole slab [N/mm2, N].
struct Forze {
    double fyd, fcd, fsd, Fa, Fs, Fc;

    Forze(const AcciaioCls& t, double Aa)
        : fyd(t.fyd()), fcd(AcciaioCls::fcd()), fsd(AcciaioCls::fsd()), Fa(fyd * Aa), Fs(fsd * t.As),
          Fc(fcd * t.Soletta->Area) {}
};

} // namespace

std::shared_ptr<Poligono> AcciaioCls::ContornoAcciaio() const {
    return Sezione->SezioneGenericaCorrente->Poligono;
}

double AcciaioCls::LivelloArmatura() const { return Sezione->h + hc - c; }

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

void AcciaioCls::MplRdPositivo() {
    if (hc < 0) {
        MplRdSolettaSotto();
        return;
    }
    ToglieParti();
    const ParteReagente acciaio(ContornoAcciaio());
    const Forze f(*this, acciaio.A);
    const double ySbarre = LivelloArmatura();
    if (f.Fs > f.Fa) {
        Avvisa("Resistenza barre > resistenza putrella !! Dati assurdi\n"
               "Il momento resistente di progetto è calcolato moltiplicando la resistenza\n"
               "a trazione della trave per la distanza fra baricentro-trave e armatura",
               {}, Icona::Avviso);
        MplRd = (ySbarre - acciaio.yG) * f.Fa;
        yNeutro = Sezione->h;
        return;
    }
    if (f.Fc + f.Fs < f.Fa) { // axis in the steel
        const double compressa = (f.Fa - (f.Fc + f.Fs)) / 2 / f.fyd;
        Taglia(*ContornoAcciaio(), Quota(compressa, acciaio.A), AcciaioCompresso, AcciaioTeso, yNeutro);
        ClsCompresso = Soletta;
        MplRd = ySbarre * f.Fs + f.fcd * ParteReagente(Soletta).S() -
                f.fyd * (ParteReagente(AcciaioTeso).S() - ParteReagente(AcciaioCompresso).S());
        Vl = f.Fc + f.Fs;
        CompletaParti();
        return;
    }
    const double compressa = Quota(f.Fa - f.Fs, f.fcd);
    Taglia(*Soletta, Quota(compressa, Soletta->Area), ClsCompresso, ClsTeso, yNeutro);
    AcciaioTeso = ContornoAcciaio();
    MplRd = -f.Fa * acciaio.yG + ySbarre * f.Fs + f.fcd * ParteReagente(ClsCompresso).S();
    Vl = f.Fa;
    CompletaParti();
}

void AcciaioCls::MplRdNegativo() {
    if (hc < 0) {
        MplRdSolettaSotto();
        return;
    }
    ToglieParti();
    const ParteReagente acciaio(ContornoAcciaio());
    const Forze f(*this, acciaio.A);
    const double ySbarre = LivelloArmatura();
    if (f.Fs < f.Fa) { // axis in the steel; the concrete is in tension
        const double tesa = (f.Fa - f.Fs) / 2 / f.fyd;
        Taglia(*ContornoAcciaio(), Quota(tesa, acciaio.A), AcciaioTeso, AcciaioCompresso, yNeutro);
        MplRd =
            f.fyd * (ParteReagente(AcciaioCompresso).S() - ParteReagente(AcciaioTeso).S()) - ySbarre * f.Fs;
        Vl = f.Fs;
        return;
    }
    const double sottoBarre = Soletta->Area - beff * c;
    const double massima = f.fcd * sottoBarre + f.Fa; // what slab and steel can balance
    const double Fs = f.Fs < massima ? f.Fs : massima;
    const double compressa = f.Fs < massima ? Quota(Fs - f.Fa, f.fcd) : sottoBarre;
    Taglia(*Soletta, Quota(Soletta->Area - compressa, Soletta->Area), ClsTeso, ClsCompresso, yNeutro);
    AcciaioCompresso = ContornoAcciaio();
    const ParteReagente cls(ClsCompresso);
    MplRd = f.fyd * acciaio.S() - ySbarre * Fs - f.fcd * cls.S();
    Vl = Fs - f.fcd * cls.A;
    CompletaParti();
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
