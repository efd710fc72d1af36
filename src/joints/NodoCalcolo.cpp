// What a node computes for its current joint.
#include <cmath>

#include "frame/Errori.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "joints/Divisione.h"
#include "joints/Nodo.h"

namespace sagomi {

namespace {

constexpr double BetaMassimo = 2;
constexpr double gioco = 8;            ///< of a stiffener between the flanges of the column [mm]
constexpr double arretramento = 5;     ///< of a stiffener from the edge of the flange [mm]
constexpr std::int16_t golaMinima = 3; ///< EC3 6.6.5.2 (2) [mm]

double Braccio(const SezioneDoppioT& trave) { return trave.h - trave.tf; }

double AltezzaNetta(const SezioneDoppioT& s) { return s.h - 2 * s.tf; }

Giunto& Presente(const std::shared_ptr<Giunto>& giunto) {
    if (!giunto)
        throw ErroreNumerato("Nessun giunto corrente nel nodo");
    return *giunto;
}

const SezioneDoppioT& Presente(const std::shared_ptr<SezioneDoppioT>& colonna) {
    if (!colonna)
        throw ErroreNumerato("Sagomo non assegnato: colonna");
    return *colonna;
}

} // namespace

void Nodo::Beta_Calcola() {
    Giunto& g = Presente(ConnessioneCorrente);
    g.Beta = std::min(g.Beta_Cautel ? BetaCautelativo() : BetaAnalitico(), BetaMassimo);
}

/// ENV 1993-1-1 annex J, table of Beta.
double Nodo::BetaCautelativo() {
    if (!DueTravi())
        return 1;
    const double M1 = TraveDx->Mysd;
    const double M2 = TraveSx->Mysd;
    if (M1 == 0 || M2 == 0)
        return M1 == 0 && M2 == 0 ? 0 : 1;
    if ((M1 > 0) != (M2 > 0))
        return 2;
    return M1 == M2 ? 0 : 1;
}

/// Shear of the panel over the force of the current joint's flanges.
double Nodo::BetaAnalitico() {
    const double Vm = (VColSup - Presente(Colonnainf).Vsd()) / 2;
    if (DueTravi())
        return BetaDueTravi(Vm);
    const double M = TraveDx->Mysd;
    return M == 0 ? 0 : std::abs(Vm * ConnessioneCorrente->z / M + 1);
}

double Nodo::BetaDueTravi(double Vm) {
    const double M1 = m_a_mm(TraveDx->Mysd); // [kN mm]
    const double M2 = m_a_mm(TraveSx->Mysd);
    const double z1 = Braccio(*TraveDx);
    const double z2 = Braccio(*TraveSx);
    const bool sinistro = nGiunto == 2;
    if (M1 == 0 && M2 == 0)
        return 0;
    if (M1 == 0)
        return sinistro ? std::abs(Vm * z2 / M2 - 1) : 1;
    if (M2 == 0)
        return sinistro ? 1 : std::abs(Vm * z1 / M1 + 1);
    return sinistro ? std::abs((Diviso(M1, z1, "z1") + Vm) * z2 / M2 - 1)
                    : std::abs(1 - z1 / M1 * (Diviso(M2, z2, "z2") - Vm));
}

void Nodo::CalcolaIrrigidimenti() {
    Giunto& g = Presente(ConnessioneCorrente);
    if (g.Irrigidimenti == "No")
        return;
    const SezioneDoppioT& colonna = Presente(Colonnainf);
    const double tfSx = DueTravi() && TraveSx ? double(TraveSx->tf) : 0;
    g.Irr_Spessore = A16Bit(TraveDx->tf >= tfSx ? double(TraveDx->tf) : tfSx);
    g.Irr_B = A16Bit((colonna.b - colonna.tw) / 2 - arretramento);
    g.Irr_L1 = A16Bit(LunghezzaInclinata() - gioco);
    if (g.Irrigidimenti == "Si")
        g.Irr_L2 = A16Bit(AltezzaNetta(colonna) - gioco);
    if (!g.Trave)
        throw ErroreNumerato("Sagomo non assegnato: trave");
    const GoleAla gole(*g.Trave, g.Trave->r1, g.Fattori());
    g.Irr_a = std::max(A16Bit(std::max(gole.a1, gole.a2)), golaMinima);
}

/// Length of the lower stiffener between the flanges of the column [mm]: beams of different height put it on
/// a slope.
double Nodo::LunghezzaInclinata() {
    const double netta = AltezzaNetta(Presente(Colonnainf));
    const bool unaTrave = Tipovie == nodoT || Tipovie == nodoL || !DueTravi();
    const double delta = unaTrave ? 0 : std::abs(TraveDx->h - TraveSx->h);
    if (delta == 0)
        return netta;
    const double angolo = std::atan(Diviso(delta, netta, "h - 2tf"));
    return ParteIntera(netta / std::cos(angolo));
}

void Nodo::CollegaSezioni() {
    Colonnainf = Propria(Colonnainf, TraveDx.Riferimento(), TraveSx.Riferimento());
    TraveSx = Propria(TraveSx.Riferimento(), TraveDx.Riferimento(), Colonnainf);
    PuntatoreTraveDestra();
    if (DueTravi())
        PuntatoreTraveSinistra();
}

/// Sections and current joint of its own.
void Nodo::CopiaOggetti() {
    const bool sinistro = DueTravi() && ConnessioneCorrente == Giunti[2].Riferimento();
    ConnessioneCorrente = ConnessioneCorrente->CopiaDiLavoro();
    for (auto* trave : {&TraveDx, &TraveSx})
        if (*trave)
            *trave = std::make_shared<SezioneDoppioT>(**trave);
    Colonnainf = ConnessioneCorrente->Colonna;
    (sinistro ? TraveSx : TraveDx) = ConnessioneCorrente->Trave;
}

/// The joint gets at the end what became of the copy.
/// @param calcola  false where there are no results
bool Nodo::SullaCopia(const std::function<bool(Nodo& copia)>& calcola) {
    if (!ConnessioneCorrente)
        PreparaSalvataggio();
    const std::shared_ptr<Giunto> giunto = ConnessioneCorrente;
    CollegaSezioni();
    Nodo copia = *this;
    copia.CopiaOggetti();
    try {
        const bool esito = calcola(copia);
        if (esito)
            giunto->Riprende(*copia.ConnessioneCorrente);
        else
            giunto->RiprendeEsito(*copia.ConnessioneCorrente);
        return esito;
    } catch (...) {
        giunto->Acquisito = false;
        throw;
    }
}

bool Nodo::EsegueCalcolo(OsservatoreProgetto* osservatore) {
    return SullaCopia([osservatore](Nodo& copia) { return copia.Calcola(osservatore); });
}

void Nodo::EsegueSelezione(int riga) {
    SullaCopia([riga](Nodo& copia) {
        copia.Seleziona(riga);
        return true;
    });
}

/// The welds are those that the search had: sized for its thickest plate.
void Nodo::Seleziona(int riga) {
    Giunto& g = *ConnessioneCorrente;
    g.sTraveColonna_Calcola();
    if (g.nf == 1)
        g.AzzeraFilaEsterna();
    PreparaProgetto(g);
    CalcolaIrrigidimenti();
    g.DatiSelezione_Completa(g.RisultatiIntermedi_Estrai(), riga);
    g.Braccio_Calcola();
    Beta_Calcola();
    Risultati();
}

void Nodo::Risultati() {
    Giunto& g = *ConnessioneCorrente;
    g.Mrd_Giunto_Calcola();
    g.Limiti();
    g.Sj_Giunto_Calcola();
    g.Acquisito = true;
}

bool Nodo::Calcola(OsservatoreProgetto* osservatore) {
    Giunto& g = *ConnessioneCorrente;
    g.sTraveColonna_Calcola();
    if (g.nf == 1)
        g.AzzeraFilaEsterna();
    if (g.Criterio1)
        PreparaProgetto(g);
    else
        g.saldature(0);
    CalcolaIrrigidimenti();
    if (!g.Criterio1)
        g.Derivati_Calcola();
    g.Braccio_Calcola();
    Beta_Calcola();
    if (g.Criterio1 && !g.Mrd_Giunto_Ottimizza_M_MAX(osservatore))
        return false;
    Risultati();
    return true;
}

} // namespace sagomi
