#include "screens/frmSaldatiAsimm.h"

namespace sagomi {

frmSaldatiAsimm::frmSaldatiAsimm()
    : SchermoSaldati(QStringLiteral("frmSaldatiAsimm"), RigheDoppioT::SaldateAsimmetriche) {}

} // namespace sagomi
