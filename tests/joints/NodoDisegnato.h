#pragma once

#include <memory>
#include <string>

#include "Sezioni.h"
#include "joints/Nodo.h"

namespace sagomi::prove {

inline Sezione HEB200() { return Laminato("HE 200 B", 200, 200, 9, 15, 18, 7808, 56960000); }
inline Sezione IPE270() { return Laminato("IPE 270", 270, 135, 6.6, 10.2, 15, 4595, 57900000); }
inline Sezione IPE330() { return Laminato("IPE 330", 330, 160, 7.5, 11.5, 18, 6261, 117700000); }

/// The geometry of one joint as a check would leave it, with round figures: bolts M18, plate 20 mm.
inline void Disegnabile(Giunto& g, int nf, const char* irrigidimenti) {
    g.IndiceBullone(6);
    g.nf = std::int16_t(nf);
    g.Irrigidimenti = irrigidimenti;
    g.tf = 20;
    g.bf = 160;
    g.ef = 30;
    g.d2 = 35;
    g.Af = nf == 2 ? 7 : 4;
    g.aw = 4;
    if (nf == 2) {
        g.ex = 30;
        g.L = 65;
        g.u = 15;
    }
    g.sTraveColonna_Calcola();
    g.Derivati_Calcola();
}

/// A node of HE 200 B with IPE 270 at the right and IPE 330 at the left where there are two beams.
/// @param sinistro  the left joint is the current one
inline Nodo NodoDisegnato(std::int16_t tipo, int nf, const char* irrigidimenti = "No", bool sinistro = false,
                          Sezione destra = IPE270(), Sezione colonna = HEB200()) {
    Nodo n;
    n.ImpostaNodo();
    n.Tipovie = tipo;
    n.NumeroGiunti = tipo <= nodoCroceSenzaColonna ? 2 : 1;
    n.CaratterizzaGiunti();
    n.PuntatoreTraveDestra(std::move(destra));
    if (n.NumeroGiunti == 2)
        n.PuntatoreTraveSinistra(IPE330());
    n.PuntatoreColonna(std::move(colonna));
    for (std::int16_t i = n.NumeroGiunti; i >= 1; --i) {
        n.ConnessioneCorrente = n.Giunti[i].Usa();
        Disegnabile(*n.ConnessioneCorrente, nf, irrigidimenti);
        n.CalcolaIrrigidimenti();
    }
    n.nGiunto = sinistro ? 2 : 1;
    n.ConnessioneCorrente = n.Giunti[n.nGiunto].Usa();
    return n;
}

} // namespace sagomi::prove
