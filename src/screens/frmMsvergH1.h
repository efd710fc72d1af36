#pragma once

#include <memory>

#include "frame/ui/Schermo.h"

namespace Ui {
class frmMsvergH1;
}

namespace sagomi {

class FrmMsverg;

/// Factors of the critical moment for linear moment diagrams, table F.1.1 of ENV 1993-1-1. A click on a C1
/// hands the factors of its row to the screen of lateral-torsional buckling and closes the table.
class frmMsvergH1 : public Schermo {
    Q_OBJECT
public:
    frmMsvergH1();
    ~frmMsvergH1() override;

    /// Shows the table in front of the screen that takes the factors.
    void Apri(FrmMsverg& da);

private:
    void RiempiRighe();
    void AllineaColonne();
    void Scegli(std::size_t riga);

    std::unique_ptr<Ui::frmMsvergH1> ui_;
    FrmMsverg* da_ = nullptr;
};

} // namespace sagomi
