#pragma once

#include <cmath>
#include <memory>
#include <stdexcept>

#include "NumeriArbitrari.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieSvg.h"
#include "frame/Errori.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "joints/FiguraGiunto.h"
#include "joints/LimitiGiunto.h"
#include "joints/MascheraGiunti.h"
#include "joints/Nodo.h"
#include "joints/OsservatoreProgetto.h"
#include "joints/RelazioneGiunto.h"
#include "joints/TestiGiunto.h"

namespace sagomi::prove {

/// Lets a search try so many joints.
class Limitata : public OsservatoreProgetto {
public:
    bool InterrompiProgetto() override { return --rimasti_ <= 0; }

private:
    int rimasti_ = 60;
};

inline void Calcola(Nodo& nodo) {
    try {
        if (nodo.ConnessioneCorrente)
            ParametriControlla(*nodo.ConnessioneCorrente);
        Limitata limitata;
        nodo.EsegueCalcolo(&limitata);
    } catch (const ErroreAritmetico&) {  // what the guard of a screen turns into a message
    } catch (const std::out_of_range&) { // "fuori dal diagramma di alfa"
    } catch (const ErroreNumerato&) {
    }
}

/// A verdict that a joint holds stands on numbers.
inline void ControllaVerdetto(const Giunto& g) {
    const VerdettoGiunto v = Giudica(g);
    if (!v.presente || !v.resiste)
        return;
    Pretende(!std::isnan(g.MplRdGIUNTO) && !std::isnan(double(g.Trave->Mysd)));
    Pretende(!v.taglio.empty() || (!std::isnan(g.Vrd1) && !std::isnan(double(g.Trave->Vsd()))));
}

/// All that a screen does with a node: calculation, texts, report, drawings.
inline void UsaNodo(Nodo& nodo) {
    Calcola(nodo);
    for (int i = 1; i <= 2; ++i)
        (void)TestiGiunto(nodo, i).Tutti();
    (void)RigheRelazione(nodo, {"nodo.gfl", "descrizione"});
    try {
        if (nodo.ConnessioneCorrente)
            ControllaVerdetto(*nodo.ConnessioneCorrente);
        SuperficieSvg figura;
        const MascheraGiunti maschera{};
        nodo.Uscita = dispositivoSvg;
        nodo.PlottaInOggetto(&figura, maschera);
        (void)DescrizioneGiunto(nodo, nullptr, {});
    } catch (const ErroreAritmetico&) {
    } catch (const ErroreNumerato&) {
    }
}

} // namespace sagomi::prove
