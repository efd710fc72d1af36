#pragma once

#include <memory>

#include "screens/TavolaFattori.h"

namespace Ui {
class frmMsvergH2;
}

namespace sagomi {

/// Factors of the critical moment for transverse loads, table F.1.2 of ENV 1993-1-1. A click on a C1 hands
/// the factors of its row to the screen of lateral-torsional buckling and closes the table.
class frmMsvergH2 : public TavolaFattori {
    Q_OBJECT
public:
    frmMsvergH2();
    ~frmMsvergH2() override;

private:
    void PosaCasi();
    void RiempieRighe();
    void Sceglie(std::size_t riga);

    std::unique_ptr<Ui::frmMsvergH2> ui_;
};

} // namespace sagomi
