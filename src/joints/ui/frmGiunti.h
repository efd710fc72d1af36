#pragma once

#include <memory>

#include "frame/ui/Schermo.h"
#include "joints/Nodo.h"

namespace Ui {
class frmGiunti;
}

namespace sagomi {

/// The joints of a node, one at a time: sections and actions, design or check, parameters, geometry,
/// resistance and stiffness, with the drawing beside them. The node stays while the screen is hidden.
class frmGiunti : public Schermo {
    Q_OBJECT
public:
    frmGiunti();
    ~frmGiunti() override;

    /// Shows the screen in the place of the one that opens it, where closing goes back to.
    void Apri(Schermo& chiamante);

    void AllAttivazione() override;
    [[nodiscard]] QString FileGuida() const override { return QStringLiteral("GiuntoFlangiato.hlp"); }

    Nodo NodoCorrente;               ///< the node in hand
    bool InterrompiProgetto = false; ///< the running search is to stop
    bool CaricaForm = false;         ///< the screen fills itself: its handlers do nothing

private:
    std::unique_ptr<Ui::frmGiunti> ui_;
};

} // namespace sagomi
