// The bytes are numbers: a bolt in a plate with its forces, and a weld. A verdict that they hold stands on
// numbers.

#include <cmath>

#include "NumeriArbitrari.h"
#include "fasteners/Bullone.h"
#include "fasteners/Saldatura.h"
#include "fasteners/VerdettoBullone.h"
#include "frame/Errori.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"

using namespace sagomi;
using prove::Pretende;

namespace {

void Verifica(Bullone& b) {
    b.CalcolaResistenzaTaglio();
    b.RifollamentoCalcola();
    const VerdettoBullone v = Giudica(b);
    if (v.utilizzo <= 1) {
        Pretende(v.utilizzo >= 0 || b.FvSd < 0 || b.FtSd < 0);
        Pretende(!(b.t > 0 && b.fu > 0 && std::isnan(double(b.FbRd))));
        Pretende(!std::isnan(double(b.FvSd)) && !std::isnan(double(b.FtSd)));
        Pretende(!std::isnan(double(b.FvRd)) && !std::isnan(double(b.FtRd)));
    }
    std::string testo;
    b.Osservazioni(testo);
    (void)v.Motivo();
    (void)b.TerminiInterazione();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MessaggiTaciuti silenzio;
    prove::NumeriArbitrari numeri(data, size);
    Bullone b;
    constexpr double classi[] = {4.6, 4.8, 5.6, 5.8, 6.8, 8.8, 10.9};
    b.d(static_cast<std::int16_t>(1 + numeri.Scelta(22)));
    b.Classe(numeri.Logico() ? classi[numeri.Scelta(7)] : numeri.Numero());
    b.Gambo = numeri.Logico();
    for (Singolo* campo : {&b.fu, &b.FvSd, &b.FtSd, &b.t, &b.e1, &b.p1, &b.e2, &b.p2, &b.fub, &b.do_})
        *campo = numeri.Numero();
    try {
        Verifica(b);
    } catch (const ErroreAritmetico&) { // what the guard of a screen turns into a message
    }
    Saldatura s;
    s.fu = numeri.Logico() ? 430 : numeri.Numero();
    try {
        (void)s.fvwd();
    } catch (const ErroreAritmetico&) {
    }
    return 0;
}
