// The bytes are the file of a joint: one that reads whole is checked, reported and drawn.

#include "FileDiProva.h"
#include "UsaNodo.h"
#include "frame/FileDati.h"

using namespace sagomi;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const prove::FileDiProva file("nodo.gfl");
    const MessaggiTaciuti silenzio;
    const PrimitiveSilenziose primitive;
    RipristinaGenerale();
    file.Scrive(data, size);
    Nodo nodo;
    const std::int16_t nFile = ApreFile(file.percorso, "L");
    const bool intero = nodo.AperturaFile(nFile);
    ChiudeFile(nFile);
    if (intero)
        prove::UsaNodo(nodo);
    return 0;
}
