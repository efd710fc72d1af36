#pragma once

#include <memory>
#include <string>
#include <vector>

#include "drawing/Disegno.h"
#include "joints/ComponentiGiunto.h"
#include "joints/FoglioNodo.h"

namespace sagomi {

/// Where the components of a picture lie on its surface, since it was painted.
struct TracciatoNodo {
    bool attivo = false;                                       ///< the next drawing is the one that counts
    double sinistra = 0, alto = 0, larghezza = 0, altezza = 0; ///< user scale of the surface
    std::vector<ZonaNodo> zone;                                ///< those in front first
    ComponenteFila scelto;                                     ///< framed
};

/// The joint beside the figures of its screen: side view, front view, the data that matter, what governs and
/// what is missing. Its texts are those of the target. Nothing is kept of node and joint.
/// @param giunto     null for the current one of the node
/// @param tracciato  told where the components lie; may be null
Disegno FiguraGiunto(const Nodo& nodo, const Giunto* giunto, const EvidenzaGiunto& evidenza,
                     const std::shared_ptr<TracciatoNodo>& tracciato = nullptr);

/// The same in words, for those who do not see it.
std::string DescrizioneGiunto(const Nodo& nodo, const Giunto* giunto, const EvidenzaGiunto& evidenza);

} // namespace sagomi
