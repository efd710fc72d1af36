// The bytes are a settings file. Whatever they are, the settings can be used afterwards, and come back as
// they are from the file that is written of them.

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "FileDiProva.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/Messaggi.h"

using namespace sagomi;

namespace {

void Verifica(bool giusto) {
    if (!giusto)
        std::abort();
}

bool Tutte(const Tabella1<Singolo>& tabella, int n, const Limiti& limiti) {
    return tabella.n() == n && std::all_of(tabella.begin(), tabella.end(),
                                           [&limiti](double valore) { return limiti.Comprende(valore); });
}

void VerificaUsabili() {
    Verifica(Tutte(fyAcciaio, NumAcciai, limitiResistenza) && Tutte(fuAcciaio, NumAcciai, limitiResistenza) &&
             Tutte(ClasseBullone, NumClassiBulloni, limitiRapporto));
    Verifica(NomeAcciaio.n() == NumAcciai && IndiceAcciaio >= 0 && IndiceAcciaio < NumAcciai &&
             IndiceClasseBullone >= 0 && IndiceClasseBullone < NumClassiBulloni);
    Verifica(limitiResistenza.Comprende(fck) && limitiResistenza.Comprende(fsk) &&
             limitiRapporto.Comprende(CoeffOmogeneizzazione));
    ImpostaGamma();
    Verifica(limitiGamma.Comprende(GammaM0) && limitiGamma.Comprende(GammaM1) &&
             limitiGamma.Comprende(GammaM2));
}

/// The settings without what a file cannot hold: a quote in a name, and a factor that was never given.
Impostazioni Confrontabili() {
    Impostazioni i = generale;
    i.NomeAcciaio = {};
    for (Singolo* fattore : {&i.GammaM0Altro, &i.GammaM1Altro, &i.GammaM2Altro})
        *fattore = *fattore == 0 ? Singolo(1) : *fattore;
    return i;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const prove::FileDiProva file("Sagomi.ini");
    RipristinaGenerale();
    PathProgramma = file.cartella;
    file.Scrive(data, size);
    IniLeggeScrive("L");
    VerificaUsabili();
    const Impostazioni lette = Confrontabili();
    Verifica(IniLeggeScrive("S") && IniLeggeScrive("L"));
    Verifica(Confrontabili() == lette && AvvisoImpostazioni().empty());
    Verifica(MessaggiRaccolti().empty());
    return 0;
}
