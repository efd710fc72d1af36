#pragma once

#include "screens/SchermoDoppi.h"

namespace sagomi {

/// Angles with equal and unequal legs under axial force, alone or in pairs.
class frmSagomiL : public SchermoDoppi<SezioneSagomoL> {
    Q_OBJECT
public:
    frmSagomiL();

    /// Where "Doppi" is ticked, makes the section in hand the pair and shows it.
    void LdoppiCalcola() { CalcolaDoppi(); }

protected:
    void LeggeSezione(const Lettore& riga, SezioneSagomoL& sezione) override;
    void ControllaSezione(const Lettore& riga, SezioneSagomoL& sezione) override;
};

} // namespace sagomi
