#pragma once

#include "catalogue/RigaDoppioT.h"
#include "screens/SchermoDi.h"

namespace sagomi {

/// A screen of welded double-T sections: the shipped families, or the user's own workbook.
class SchermoSaldati : public SchermoDi<SezioneDoppioT> {
    Q_OBJECT
public:
    /// @param righe  what the rows of its tables are: with equal or with different flanges
    SchermoSaldati(const QString& nome, RigheDoppioT righe);

protected:
    void LeggeSezione(const Lettore& riga, SezioneDoppioT& sezione) override;
    void ControllaSezione(const Lettore& riga, SezioneDoppioT& sezione) override;

private:
    RigheDoppioT righe_;
};

} // namespace sagomi
