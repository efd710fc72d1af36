#pragma once

#include "screens/SchermoSaldati.h"

namespace sagomi {

/// Welded double-T sections with two different flanges.
class frmSaldatiAsimm : public SchermoSaldati {
    Q_OBJECT
public:
    frmSaldatiAsimm();
};

} // namespace sagomi
