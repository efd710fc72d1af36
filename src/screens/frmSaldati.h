#pragma once

#include "screens/SchermoSaldati.h"

namespace sagomi {

/// Welded double-T sections with equal flanges.
class frmSaldati : public SchermoSaldati {
    Q_OBJECT
public:
    frmSaldati();
};

} // namespace sagomi
