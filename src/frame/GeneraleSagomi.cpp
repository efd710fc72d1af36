#include "frame/GeneraleSagomi.h"

#include <vector>

#include "frame/Ripristino.h"

namespace sagomi {

namespace {

double FattoreAltro(Singolo fattore) { return fattore == 0 ? 1.0 : double(fattore); }

FattoriParziali Fattori() {
    switch (Normativa) {
    case normativaEC3:
        return fattoriEC3;
    case normativaAltro:
        return {FattoreAltro(GammaM0Altro), FattoreAltro(GammaM1Altro), FattoreAltro(GammaM2Altro)};
    default:
        return fattoriNTC;
    }
}

std::vector<void (*)()>& DaSvuotare() {
    static std::vector<void (*)()> elenco;
    return elenco;
}

} // namespace

bool AggiungeRipristino(void (*svuota)()) {
    DaSvuotare().push_back(svuota);
    return true;
}

void ImpostaGamma() {
    const FattoriParziali fattori = Fattori();
    GammaM0 = fattori.GammaM0;
    GammaM1 = fattori.GammaM1;
    GammaM2 = fattori.GammaM2;
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

void ImpostazioniPredefinite() { static_cast<Impostazioni&>(generale) = {}; }

void RipristinaGenerale() {
    generale = {};
    for (void (*svuota)() : DaSvuotare())
        svuota();
}

} // namespace sagomi
