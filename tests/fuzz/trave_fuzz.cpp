// The bytes are the file of a composite beam: one that reads whole is checked, its studs designed, drawn.

#include <cstdint>
#include <string>

#include "FileDiProva.h"
#include "composite/AcciaioCls.h"
#include "composite/ProgettoConnettori.h"
#include "composite/VerificaTrave.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieSvg.h"
#include "frame/Errori.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"

using namespace sagomi;

namespace {

void Usa(AcciaioCls& t) {
    SezioneCorrente = t.Sezione;
    for (std::int16_t verifica = sluPositivo; verifica <= metodoNNegativo; ++verifica) {
        t.TipoVerifica = verifica;
        VerificaTrave(t);
        SuperficieSvg figura;
        t.PlottaAcciaioCls(&figura, "frmAcciaioCls", dispositivoSvg);
    }
    t.fu = 450;
    t.GammaV = 1.25;
    for (std::int16_t Nr = 1; Nr <= 2; ++Nr) {
        t.Nr = Nr;
        ProgettaConnettori(t, Nr == 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const prove::FileDiProva file("trave.sco");
    const MessaggiTaciuti silenzio;
    const PrimitiveSilenziose primitive;
    file.Scrive(data, size);
    AcciaioCls t;
    const std::int16_t nFile = ApreFile(file.percorso, "L");
    const bool intera = t.FileLeggeScrive("L", nFile);
    ChiudeFile(nFile);
    if (!intera)
        return 0;
    try {
        Usa(t);
    } catch (const ErroreAritmetico&) { // what the guard of a screen turns into a message
    }
    return 0;
}
