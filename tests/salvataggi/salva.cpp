// Saves the files of the mechanics as the program does, for the script beside:
//   salva KIND FILE N [...]

#include <memory>
#include <string>

#include "Salvataggi.h"
#include "composite/AcciaioCls.h"
#include "drawing/Dxf.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieSvg.h"
#include "frame/FileAtomico.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "joints/Nodo.h"
#include "joints/RelazioneGiunto.h"

using namespace sagomi;

namespace {

using Percorso = std::filesystem::path;

std::shared_ptr<SezioneDoppioT> Sezione(int numero) {
    auto s = std::make_shared<SezioneDoppioT>();
    s->Designation = "IPE " + std::to_string(numero);
    s->h = numero;
    s->b = 150;
    s->tw = 7;
    s->tf = 10;
    return s;
}

bool SalvaImpostazioni(const Percorso& file, int numero) {
    PathProgramma = file.parent_path();
    fck = numero;
    return IniLeggeScrive("S");
}

bool SalvaTrave(const Percorso& file, int numero) {
    AcciaioCls t;
    t.Sezione = Sezione(numero);
    t.hc = 120;
    t.Msd = numero;
    const std::int16_t n = ApreFile(file, "S");
    return t.FileLeggeScrive("S", n) && ChiudeFile(n);
}

Nodo NodoDi(int numero) {
    Nodo nodo;
    nodo.ImpostaNodo();
    nodo.Tipovie = nodoT;
    nodo.NumeroGiunti = 1;
    nodo.TraveDx = Sezione(numero);
    nodo.Colonnainf = Sezione(300);
    nodo.CaratterizzaGiunti();
    nodo.PreparaSalvataggio();
    nodo.CollegaSezioni();
    nodo.VColSup = numero;
    return nodo;
}

bool SalvaNodo(const Percorso& file, int numero) {
    Nodo nodo = NodoDi(numero);
    const std::int16_t n = ApreFile(file, "S");
    return nodo.Input_Output("S", n) && ChiudeFile(n);
}

bool SalvaRelazione(const Percorso& file, int numero) {
    const Nodo nodo = NodoDi(numero);
    const std::int16_t n = ApreFile(file, "S");
    const TestaRelazione testa{.nomeFile = "nodo.gfl", .descrizione = "numero " + std::to_string(numero)};
    return StampaRelazione(nodo, testa, [n](std::string_view riga) { return ScriveRiga(n, riga); }) &&
           ChiudeFile(n);
}

bool SalvaDxf(const Percorso& file, int numero) {
    std::int16_t n = 0;
    if (!DxfApre(file, n))
        return false;
    for (int i = 0; i < 50; ++i)
        DxfLinea(0, i, numero, i);
    return DxfChiude();
}

bool SalvaSvg(const Percorso& file, int numero) {
    SuperficieSvg figura;
    Dispositivo = dispositivoSvg;
    OggettoGrafico = &figura;
    for (int i = 0; i < 50; ++i)
        LineaPlt(0, i, numero, i);
    return ScriveAtomico(file, figura.Documento());
}

} // namespace

int main(int argc, char** argv) {
    return prove::Salvataggi({{"ini", SalvaImpostazioni},
                              {"sco", SalvaTrave},
                              {"gfl", SalvaNodo},
                              {"txt", SalvaRelazione},
                              {"dxf", SalvaDxf},
                              {"svg", SalvaSvg}},
                             argc, argv);
}
