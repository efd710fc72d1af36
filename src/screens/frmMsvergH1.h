#pragma once

#include <memory>

#include "screens/TavolaFattori.h"

namespace Ui {
class frmMsvergH1;
}

namespace sagomi {

/// Factors of the critical moment for linear moment diagrams, table F.1.1 of ENV 1993-1-1. A click on a C1
/// hands the factors of its row to the screen that opened the table and closes it.
class frmMsvergH1 : public TavolaFattori {
    Q_OBJECT
public:
    frmMsvergH1();
    ~frmMsvergH1() override;

protected:
    void ScalaContenuto(double rapporto) override;

private:
    void PosaDiagrammi();
    void RiempieRighe();
    void AllineaColonne();
    void Sceglie(std::size_t riga);

    std::unique_ptr<Ui::frmMsvergH1> ui_;
};

} // namespace sagomi
