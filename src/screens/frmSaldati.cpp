#include "screens/frmSaldati.h"

namespace sagomi {

frmSaldati::frmSaldati() : SchermoSaldati(QStringLiteral("frmSaldati"), RigheDoppioT::Saldate) {}

} // namespace sagomi
