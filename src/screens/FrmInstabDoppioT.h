#pragma once

#include <QList>

#include <memory>

#include "screens/SchermoDettaglio.h"

class QRadioButton;

namespace Ui {
class FrmInstabDoppioT;
}

namespace sagomi {

/// How the buckling resistances of a double-T come about, EC3 6.3.1, a calculator of the reduction factor,
/// and the equivalent initial bow.
class FrmInstabDoppioT : public SchermoDettaglio {
    Q_OBJECT
public:
    FrmInstabDoppioT();
    ~FrmInstabDoppioT() override;

    /// The column of one axis: 0 y-y, 1 z-z.
    void CompletaForm1(int asse);

protected:
    /// Shows the derivation about both axes, the calculator's results and the bow.
    void Calcola() override;
    /// Axial force and lengths of the section go into their entries.
    void RiempieDati() override;
    void Riporta() override { RiportaAlChiamante(); }

private:
    void CollegaDati();
    void CollegaFreccia();
    void CalcolaChi();
    void MostraFreccia();

    std::unique_ptr<Ui::FrmInstabDoppioT> ui_;
    QList<QRadioButton*> optE0_;
};

} // namespace sagomi
