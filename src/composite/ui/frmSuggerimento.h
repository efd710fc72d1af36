#pragma once

#include "frame/ui/Schermo.h"

namespace sagomi {

/// The advice on pairs of studs, where there are more studs than ribs.
class frmSuggerimento : public Schermo {
    Q_OBJECT
public:
    frmSuggerimento();

    /// Shows the advice of the screen that opens it, or that for one rib.
    void Apre(Schermo& da);
};

} // namespace sagomi
