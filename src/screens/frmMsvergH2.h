#pragma once

#include <memory>

#include "frame/ui/Schermo.h"

namespace Ui {
class frmMsvergH2;
}

namespace sagomi {

class FrmMsverg;

/// Factors of the critical moment for transverse loads, table F.1.2 of ENV 1993-1-1. A click on a C1 hands
/// the factors of its row to the screen of lateral-torsional buckling and closes the table.
class frmMsvergH2 : public Schermo {
    Q_OBJECT
public:
    frmMsvergH2();
    ~frmMsvergH2() override;

    /// Shows the table in front of the screen that takes the factors.
    void Apri(FrmMsverg& da);

private:
    void RiempiRighe();
    void Scegli(std::size_t riga);

    std::unique_ptr<Ui::frmMsvergH2> ui_;
    FrmMsverg* da_ = nullptr;
};

} // namespace sagomi
