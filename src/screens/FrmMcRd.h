#pragma once

#include <memory>

#include "screens/SchermoDettaglio.h"

class QLabel;

namespace Ui {
class FrmMcRd;
}

namespace sagomi {

struct Relazione;

/// How the bending resistances of a double-T or channel come about, EC3 6.2.5, and the ductility parameter of
/// the section under axial force, Ordinanza 3274-2003 6.5.3.1.
class FrmMcRd : public SchermoDettaglio {
    Q_OBJECT
public:
    FrmMcRd();
    ~FrmMcRd() override;

    /// Shows the ductility parameter and its limit, the smaller of the two in red.
    /// @param N      axial force [N]
    /// @param Lstar  shear length [mm]; not above 0: unknown
    void CalcolaDuttilita(double N, double Lstar);

protected:
    /// Shows class, modulus and moment about both axes, then the ductility parameter.
    void Calcola() override;
    /// The axial force of the section goes into its entry.
    void RiempieDati() override;
    void Riporta() override { RiportaAlChiamante(); }

private:
    void Duttilita();
    [[nodiscard]] Relazione DaRiportare();

    std::unique_ptr<Ui::FrmMcRd> ui_;
    QLabel* nota_ = nullptr; ///< what the lower fibre bears, where that is less
};

} // namespace sagomi
