#pragma once

#include "screens/SchermoDi.h"

namespace sagomi {

/// Rolled double-T sections: the first screen of every run.
class frmDoppioT : public SchermoDi<SezioneDoppioT> {
    Q_OBJECT
public:
    frmDoppioT();

    void Risultati() override;

protected:
    void LeggeSezione(const Lettore& riga, SezioneDoppioT& sezione) override;
    void ControllaSezione(const Lettore& riga, SezioneDoppioT& sezione) override;
};

} // namespace sagomi
