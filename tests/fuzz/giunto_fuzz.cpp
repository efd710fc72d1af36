// The bytes are numbers: sections, actions, bolts, plate of a joint, checked or designed with a bound.

#include "UsaNodo.h"

using namespace sagomi;
using prove::NumeriArbitrari;

namespace {

std::shared_ptr<SezioneDoppioT> Sezione(NumeriArbitrari& numeri, bool misure) {
    auto s = std::make_shared<SezioneDoppioT>();
    s->Designation = "X";
    s->Saldata = numeri.Logico();
    for (Singolo* campo : {&s->h, &s->b, &s->tw, &s->tf, &s->r1, &s->r, &s->Area, &s->Jy})
        *campo = misure ? numeri.Misura() : numeri.Numero();
    s->fy = numeri.Logico() ? 235 : numeri.Numero();
    s->fu = numeri.Logico() ? 360 : numeri.Numero();
    s->McyRd = numeri.Numero();
    s->NplRd = numeri.Numero();
    s->lunghezza() = numeri.Numero();
    return s;
}

void Riempie(Giunto& g, NumeriArbitrari& numeri) {
    g.Criterio1 = numeri.Logico();
    g.Criterio2 = !g.Criterio1;
    g.Beta_Cautel = numeri.Logico();
    g.nf = static_cast<std::int16_t>(1 + numeri.Scelta(2));
    constexpr const char* irrigidimenti[] = {"No", "Si", "Cp"};
    g.Irrigidimenti = irrigidimenti[numeri.Scelta(3)];
    g.IndiceBullone(static_cast<std::int16_t>(1 + numeri.Scelta(22)));
    g.fubl = numeri.Numero();
    for (double* campo :
         {&g.tf, &g.bf, &g.ef, &g.d2, &g.dX, &g.ex, &g.L, &g.u, &g.Af, &g.aw, &g.tf_max, &g.L_max, &g.u_max})
        *campo = numeri.Numero();
    g.TipoProgetto = static_cast<std::int16_t>(numeri.Scelta(2));
    g.TipoUscitaProgetto = static_cast<std::int16_t>(numeri.Scelta(3));
}

CasoAzioni Azioni(NumeriArbitrari& numeri) {
    CasoAzioni a;
    for (double* campo : {&a.MDx, &a.VDx, &a.NDx, &a.MSx, &a.VSx, &a.NSx, &a.MCol, &a.VCol, &a.NCol, &a.VSup})
        *campo = numeri.Numero();
    return a;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MessaggiTaciuti silenzio;
    NumeriArbitrari numeri(data, size);
    RipristinaGenerale();
    Nodo nodo;
    nodo.Tipovie = static_cast<std::int16_t>(numeri.Scelta(4));
    nodo.NumeroGiunti = nodo.Tipovie <= nodoCroceSenzaColonna ? 2 : 1;
    nodo.nGiunto = static_cast<std::int16_t>(1 + numeri.Scelta(nodo.NumeroGiunti));
    const bool misure = numeri.Logico();
    nodo.Colonnainf = Sezione(numeri, misure);
    nodo.TraveDx = Sezione(numeri, misure);
    if (nodo.NumeroGiunti == 2)
        nodo.TraveSx = Sezione(numeri, misure);
    nodo.CaratterizzaGiunti();
    nodo.PreparaSalvataggio();
    nodo.CollegaSezioni();
    nodo.Scrivi_Some_Load(Azioni(numeri));
    Riempie(*nodo.ConnessioneCorrente, numeri);
    prove::UsaNodo(nodo);
    return 0;
}
