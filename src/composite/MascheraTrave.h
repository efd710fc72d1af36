#pragma once

#include "frame/CampiMaschera.h"

namespace sagomi {

/// The composite screen as the beam knows it: its text fields, and its groups of options.
class MascheraTrave : public CampiMaschera {
public:
    /// Sets element `indice` of a group of options.
    virtual void Opzione(std::string_view controllo, int indice) = 0;
};

} // namespace sagomi
