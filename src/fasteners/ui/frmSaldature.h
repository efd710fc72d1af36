#pragma once

#include <memory>
#include <optional>

#include "fasteners/Saldatura.h"
#include "frame/ui/Schermo.h"

namespace Ui {
class frmSaldature;
}

namespace sagomi {

/// Design strength of fillet welds for the steel in use.
class frmSaldature : public Schermo {
    Q_OBJECT
public:
    frmSaldature();
    ~frmSaldature() override;

    /// Shows the screen in the place of the one that opens it, where closing goes back to.
    void Apre(Schermo& chiamante);

    void AllAttivazione() override;

private:
    void MostraAcciaio();
    void Aggiorna() override;

    std::unique_ptr<Ui::frmSaldature> ui_;
    std::optional<Saldatura> saldatura_; ///< made at first use
};

} // namespace sagomi
