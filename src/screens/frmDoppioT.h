#pragma once

#include <memory>

#include "screens/SchermoSezione.h"

namespace Ui {
class frmDoppioT;
}

namespace sagomi {

/// Rolled double-T sections: the first screen of every run.
class frmDoppioT : public SchermoSezione {
    Q_OBJECT
public:
    frmDoppioT();
    ~frmDoppioT() override;

    void Leggedati() override;
    void Risultati() override;
    void ControlloDati() override;
    void SvuotaRisultati() override;
    void SvuotaValori() override;

protected:
    bool Invio(QLineEdit* casella) override;

private:
    void Carica();
    void CollegaDettagli();
    void MostraClassi();
    void MostraResistenze();

    std::unique_ptr<Ui::frmDoppioT> ui_;
};

} // namespace sagomi
