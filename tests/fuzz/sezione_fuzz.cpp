// The bytes are numbers: steel, plates, table constants, lengths and forces of a section of any kind, alone
// or in a pair. It is computed, judged and drawn; a verdict that it holds stands on numbers.

#include <cmath>
#include <memory>

#include "NumeriArbitrari.h"
#include "catalogue/SagomoUtente.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieSvg.h"
#include "frame/Errori.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "sections/ColonnaInstabilita.h"
#include "sections/SezioneCorrente.h"
#include "sections/SezioneDoppia.h"
#include "sections/Verdetto.h"

using namespace sagomi;
using prove::NumeriArbitrari;
using prove::Pretende;

namespace {

void Riempie(NumeriArbitrari& numeri, std::initializer_list<Singolo*> campi, bool misure) {
    for (Singolo* campo : campi)
        *campo = misure ? numeri.Misura() : numeri.Numero();
}

/// The verdict "holds" is given for numbers only. (A negative moment may have no power, but it has a
/// magnitude.)
void Controlla(const Verdetto& v, const TerminiInterazione& t) {
    if (!(v.utilizzo <= 1))
        return;
    Pretende(v.utilizzo >= 0 && !v.assialeOltre && !std::isnan(t.NSd));
    for (const TermineMomento& m : {t.y, t.z})
        Pretende(!std::isnan(m.M()) && !std::isnan(m.MRd) && !std::isnan(m.k));
}

template <typename S> void Disegna(const S& s) {
    SuperficieSvg figura;
    s.PlottaSezione(&figura, "frm", dispositivoSvg);
}

void Giudizi(SezioneDoppioT& s) {
    Controlla(GiudicaResistenza(s), s.TerminiMNResistenza());
    Controlla(GiudicaInstabilita(s), s.TerminiMNInstab());
    s.McrFunz();
    s.MbRdSub();
    Controlla(GiudicaFlessoTorsionale(s), s.TerminiFlessoTorsionale());
    (void)McrSiDiscosta(s);
}

void DoppioT(NumeriArbitrari& numeri, bool misure) {
    auto s = std::make_shared<SezioneDoppioT>();
    SezioneCorrente = s;
    const int genere = numeri.Scelta(4);
    Riempie(numeri, {&s->fy, &s->fu, &s->h, &s->b, &s->tw, &s->tf, &s->r1, &s->r2, &s->r}, misure);
    s->Saldata = genere >= 1;
    s->SaldataAsimm = genere == 2;
    s->bAlaInf = s->b;
    s->tAlaInf = s->tf;
    if (s->SaldataAsimm)
        Riempie(numeri, {&s->bAlaInf, &s->tAlaInf}, misure);
    Riempie(numeri,
            {&s->Area, &s->iY, &s->iZ, &s->Jz, &s->JT, &s->Jw, &s->Jy, &s->L0y, &s->L0z, &s->Wely, &s->Welz,
             &s->Wply, &s->Wplz, &s->WelyInf},
            misure);
    Riempie(numeri,
            {&s->NSd, &s->Mysd, &s->Mzsd, &s->BetaMy, &s->BetaMz, &s->BetaMLT, &s->k, &s->Kw, &s->C1, &s->c2,
             &s->c3, &s->za, &s->LLT},
            false);
    if (genere == 3) // what the user types as plates
        InizializzaSaldata(*s, PiattiDi(*s));
    else
        s->InizializzaSezione();
    Giudizi(*s);
    Disegna(*s);
}

template <typename S> void InCoppia(NumeriArbitrari& numeri, S& s) {
    if (!numeri.Logico())
        return;
    RendeDoppia(s, SingoloDi(s), numeri.Numero(), numeri.Logico());
    s.InizializzaSezione();
    Disegna(s);
}

void Canale(NumeriArbitrari& numeri, bool misure) {
    auto s = std::make_shared<SezioneSagomoU>();
    SezioneCorrente = s;
    Riempie(numeri,
            {&s->fy, &s->fu,  &s->h,   &s->b,  &s->tw, &s->tf,   &s->r1,   &s->r2,   &s->Area, &s->iY,
             &s->Iz, &s->L0y, &s->L0z, &s->Jy, &s->Jz, &s->Wely, &s->Welz, &s->Wply, &s->Wplz, &s->NSd},
            misure);
    s->InizializzaSezione();
    Disegna(*s);
    InCoppia(numeri, *s);
}

void Angolare(NumeriArbitrari& numeri, bool misure) {
    auto s = std::make_shared<SezioneSagomoL>();
    SezioneCorrente = s;
    Riempie(numeri,
            {&s->fy, &s->fu, &s->h, &s->b, &s->t, &s->r1, &s->r2, &s->Area, &s->iY, &s->Iz, &s->L0y, &s->L0z,
             &s->L0v, &s->Jy, &s->Jz, &s->Wely, &s->Welz},
            misure);
    s->iV = numeri.Numero();
    s->InizializzaSezione();
    Disegna(*s);
    InCoppia(numeri, *s);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MessaggiTaciuti silenzio;
    NumeriArbitrari numeri(data, size);
    const int specie = numeri.Scelta(3);
    const bool misure = numeri.Logico();
    try {
        specie == 0   ? DoppioT(numeri, misure)
        : specie == 1 ? Canale(numeri, misure)
                      : Angolare(numeri, misure);
    } catch (const ErroreAritmetico&) { // what the guard of a screen turns into a message
    } catch (const ErroreNumerato&) {
    }
    return 0;
}
