// A node in a data file, and what two joints of a node must agree on.
#include "fasteners/Bullone.h"
#include "frame/FileDati.h"
#include "frame/Messaggi.h"
#include "joints/Nodo.h"

namespace sagomi {

namespace {

constexpr const char* titolo = "Giunto Flangiato";

/// The flanges of a section in a node are alike; its record has one.
void AliUguali(SezioneDoppioT& s) {
    s.bAlaInf = s.b;
    s.tAlaInf = s.tf;
}

const char* Lato(bool destro) { return destro ? "destro" : "sinistro"; }

} // namespace

bool Nodo::Input_Output(std::string_view modo, std::int16_t nFile) {
    if (modo == "L")
        CancellaMemoria();
    if (!FileInOut(modo, nFile, {&Tipovie}))
        return false;
    if (!Colonnainf)
        Colonnainf = std::make_shared<SezioneDoppioT>();
    const bool lati = Colonnainf->FileSagomoInOut(modo, nFile) && GiuntiInOut(modo, nFile);
    return lati && FileInOut(modo, nFile, {&nGiunto}) && FileInOut(modo, nFile, {&NumeroGiunti}) &&
           FileInOut(modo, nFile, {&VColSup});
}

/// Joints, then beams; of a node with one beam there is no second one in the file.
bool Nodo::GiuntiInOut(std::string_view modo, std::int16_t nFile) {
    const bool due = Tipovie == nodoCroce || Tipovie == nodoCroceSenzaColonna;
    if (!Giunti[1]->FileInOutGiunto(modo, nFile) || (due && !Giunti[2]->FileInOutGiunto(modo, nFile)))
        return false;
    if (!TraveDx->FileSagomoInOut(modo, nFile) || (due && !TraveSx->FileSagomoInOut(modo, nFile)))
        return false;
    if (modo != "L")
        return true;
    AliUguali(*Colonnainf);
    AliUguali(*TraveDx);
    if (due)
        AliUguali(*TraveSx);
    PuntatoreTraveDestra();
    if (due)
        PuntatoreTraveSinistra();
    for (int i = 1; i <= (due ? 2 : 1); ++i)
        Giunti[i]->Letto();
    return true;
}

/// What the rest of the program relies on; a file is not believed.
bool Nodo::Valido() {
    const bool due = Tipovie == nodoCroce || Tipovie == nodoCroceSenzaColonna;
    bool valido = (due || Tipovie == nodoT || Tipovie == nodoL) && NumeroGiunti == (due ? 2 : 1);
    for (int i = 1; valido && i <= NumeroGiunti; ++i) {
        const Giunto& g = *Giunti[i];
        valido =
            (g.nf == 1 || g.nf == 2) && g.IndiceBullone() >= 0 && g.IndiceBullone() <= TabellaBulloni().n();
    }
    return valido;
}

bool Nodo::AperturaFile(std::int16_t nFile) {
    bool letto = Input_Output("L", nFile);
    if (letto && !Valido()) {
        Avvisa("Il file non contiene un nodo valido", titolo, Icona::Stop);
        letto = false;
    }
    ConnessioneCorrente = Giunti[1].Usa();
    nGiunto = 1;
    return letto;
}

bool Nodo::Controllafile() {
    if (!DueTravi() || Giunti[1]->nf == Giunti[2]->nf)
        return true;
    const bool destro = nGiunto != 2; // the current one is told last
    return Chiede(std::string("Il giunto ") + Lato(!destro) +
                      " ha un numero di file di bulloni diverso da quello " + Lato(destro) +
                      ".\r\nContinuare?",
                  titolo);
}

bool Nodo::ControllaGiunti(std::string_view tipo) {
    if (!DueTravi())
        return true;
    const Giunto& altro = *Giunti[nGiunto == 2 ? 1 : 2];
    if (!altro.Acquisito || altro.Irrigidimenti == tipo)
        return true;
    return Chiede(
        "Il giunto calcolato precedentemente presenta una diversa soluzione nel pannello d'anima della "
        "colonna.\r\nContinuare?",
        titolo);
}

} // namespace sagomi
