#pragma once

#include <memory>

#include "frame/ui/Schermo.h"
#include "joints/ui/ServiziGiunto.h"

namespace Ui {
class FrmInfoGiunti;
}

namespace sagomi {

/// What explains a joint: the formula of a quantity, or the notes on the stiffeners with their picture.
class FrmInfoGiunti : public Schermo, public SchermoInfoGiunti {
    Q_OBJECT
public:
    FrmInfoGiunti();
    ~FrmInfoGiunti() override;

    /// A formula that cannot be read is told; the screen then stays as it was.
    void MostraFormula(Schermo& da, const std::string& id) override;
    void MostraIrrigidimenti(Schermo& da) override;

    /// The notes follow the node of the opener.
    void AllAttivazione() override;
    void Aggiorna() override;
    [[nodiscard]] QString FileGuida() const override { return QStringLiteral("GiuntoFlangiato.hlp"); }

private:
    void ScriveNote();
    void Apre(Schermo& da, bool conFigura);

    std::unique_ptr<Ui::FrmInfoGiunti> ui_;
    bool note_ = false; ///< they are shown, no formula
};

} // namespace sagomi
