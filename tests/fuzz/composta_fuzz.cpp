// The bytes are numbers: a composite beam on a section of plates, checked in each way, its studs designed,
// drawn.

#include <cmath>
#include <memory>

#include "NumeriArbitrari.h"
#include "composite/AcciaioCls.h"
#include "composite/ProgettoConnettori.h"
#include "composite/VerificaTrave.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieSvg.h"
#include "frame/Errori.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "sections/SezioneCorrente.h"

using namespace sagomi;
using prove::NumeriArbitrari;
using prove::Pretende;

namespace {

void Sezione(NumeriArbitrari& numeri) {
    auto s = std::make_shared<SezioneDoppioT>();
    s->Saldata = numeri.Logico();
    s->SaldataAsimm = s->Saldata && numeri.Logico();
    const bool misure = numeri.Logico();
    for (Singolo* campo : {&s->fy, &s->h, &s->b, &s->tw, &s->tf, &s->r, &s->r1, &s->bAlaInf, &s->tAlaInf})
        *campo = misure ? numeri.Misura() : numeri.Numero();
    SezioneCorrente = s;
}

/// Results that are shown are numbers.
void Controlla(const AcciaioCls& t, const EsitoTrave& esito) {
    if (!esito.validi)
        return;
    for (const Singolo v : {t.MplRd, t.yNeutro, t.SigmaCls, t.SigmaInf, t.SigmaSup, t.SigmaArm, t.Vl})
        Pretende(!std::isnan(double(v)));
}

void Usa(NumeriArbitrari& numeri) {
    AcciaioCls t;
    for (Singolo* campo : {&t.ha, &t.hc, &t.c, &t.beff, &t.As, &t.bb, &t.bs, &t.iNervature, &t.b0t, &t.Msd,
                           &t.fu, &t.Luce, &t.dPiolo, &t.hPiolo, &t.GammaV})
        *campo = numeri.Numero();
    t.TipoSoletta = static_cast<std::int16_t>(numeri.Scelta(3));
    t.TipoVerifica = static_cast<std::int16_t>(numeri.Scelta(4));
    t.Nr = static_cast<std::int16_t>(1 + numeri.Scelta(2));
    Controlla(t, VerificaTrave(t));
    SuperficieSvg figura;
    t.PlottaAcciaioCls(&figura, "frmAcciaioCls", dispositivoSvg);
    const EsitoConnettori studs = ProgettaConnettori(t, numeri.Logico());
    Pretende(!studs.PRd || !std::isnan(*studs.PRd));
    Pretende(!studs.Passo || !std::isnan(*studs.Passo));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MessaggiTaciuti silenzio;
    NumeriArbitrari numeri(data, size);
    RipristinaGenerale();
    Sezione(numeri);
    if (numeri.Logico())
        for (Singolo* campo : {&fck, &fsk, &CoeffOmogeneizzazione})
            *campo = numeri.Numero();
    try {
        Usa(numeri);
    } catch (const ErroreAritmetico&) { // what the guard of a screen turns into a message
    }
    return 0;
}
