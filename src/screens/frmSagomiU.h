#pragma once

#include "screens/SchermoDoppi.h"

namespace sagomi {

/// Channels: UPN and UAP, alone or in pairs.
class frmSagomiU : public SchermoDoppi<SezioneSagomoU> {
    Q_OBJECT
public:
    frmSagomiU();

    /// Where "Doppi" is ticked, makes the section in hand the pair and shows it.
    void UdoppiCalcola() { CalcolaDoppi(); }

protected:
    void LeggeSezione(const Lettore& riga, SezioneSagomoU& sezione) override;
    void ControllaSezione(const Lettore& riga, SezioneSagomoU& sezione) override;
};

} // namespace sagomi
