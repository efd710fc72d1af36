#pragma once

#include <functional>

#include "frame/ui/Schermo.h"

namespace sagomi {

/// A row of a table of factors of the critical moment, all without unit.
struct FattoriScelti {
    double k = 1;
    double C1 = 1;
    double C2 = 0;
    double C3 = 0;
};

/// A table from which one row is picked. It knows nothing of the screen that opens it but what to call.
class TavolaFattori : public Schermo {
    Q_OBJECT
public:
    using Schermo::Schermo;

    std::function<void(const FattoriScelti&)> alScelta; ///< takes the picked row; set at each opening

protected:
    /// Hands a row over and goes back to the opener.
    void Consegna(const FattoriScelti& fattori);
};

} // namespace sagomi
