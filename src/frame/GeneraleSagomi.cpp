#include "frame/GeneraleSagomi.h"

#include <vector>

#include "frame/Ripristino.h"

namespace sagomi {

namespace {

Singolo FattoreAltro(Singolo stored) { return stored == 0 ? Singolo(1) : stored; }

std::vector<void (*)()>& DaSvuotare() {
    static std::vector<void (*)()> elenco;
    return elenco;
}

} // namespace

bool AggiungiRipristino(void (*svuota)()) {
    DaSvuotare().push_back(svuota);
    return true;
}

Tabella1<std::string> NomiAcciaiPredefiniti() { return {"S235 (Fe360)", "S275 (Fe430)", "S355 (Fe510)"}; }
Tabella1<Singolo> fyPredefinite() { return {235, 275, 355}; }
Tabella1<Singolo> fuPredefinite() { return {360, 430, 510}; }
Tabella1<Singolo> ClassiBulloniPredefinite() { return {4.6, 4.8, 5.6, 5.8, 6.8, 8.8, 10.9}; }

void ImpostaGamma() {
    switch (Normativa) {
    case normativaEC3:
        GammaM0 = 1.0;
        GammaM1 = 1.0;
        GammaM2 = 1.25;
        break;
    case normativaAltro:
        GammaM0 = FattoreAltro(GammaM0Altro);
        GammaM1 = FattoreAltro(GammaM1Altro);
        GammaM2 = FattoreAltro(GammaM2Altro);
        break;
    default:
        GammaM0 = 1.05;
        GammaM1 = 1.05;
        GammaM2 = 1.25;
    }
}

std::string NomeNormativa() {
    switch (Normativa) {
    case normativaEC3:
        return "EC3";
    case normativaAltro:
        return "Altro";
    default:
        return "NTC";
    }
}

void ImpostazioniPredefinite() {
    NumAcciai = 3;
    NomeAcciaio = NomiAcciaiPredefiniti();
    fyAcciaio = fyPredefinite();
    fuAcciaio = fuPredefinite();
    IndiceAcciaio = 0;
    NumClassiBulloni = 7;
    ClasseBullone = ClassiBulloniPredefinite();
    IndiceClasseBullone = 0;
    fck = 25;
    fsk = 430;
    CoeffOmogeneizzazione = 15;
    Normativa = normativaNTC;
    GammaM0Altro = 0;
    GammaM1Altro = 0;
    GammaM2Altro = 0;
}

void RipristinaGenerale() {
    ImpostazioniPredefinite();
    ImpostaGamma();
    PathProgramma.clear();
    PathLavoro.clear();
    Versione.clear();
    ScreenAttivo.clear();
    SuggerimentoBulloni = true;
    SceltaSagomoGiunto = false;
    ServerAttivo = false;
    OggettoServer = nullptr;
    ChiusuraInCorso = false;
    AvvioInCorso = false;
    for (void (*svuota)() : DaSvuotare())
        svuota();
}

} // namespace sagomi
