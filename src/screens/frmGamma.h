#pragma once

#include <QList>

#include <cstdint>
#include <memory>

#include "frame/ui/Schermo.h"

class QLineEdit;
class QRadioButton;

namespace Ui {
class frmGamma;
}

namespace sagomi {

/// The partial safety factors and the code of rules that sets them.
class frmGamma : public Schermo {
    Q_OBJECT
public:
    frmGamma();
    ~frmGamma() override;

    /// Shows the dialog in front of a main screen, which recalculates when it closes.
    void Apre(Schermo& chiamante);

protected:
    /// The window's own close button is "Annulla".
    void closeEvent(QCloseEvent* event) override;
    /// Enter presses OK, wherever the focus is but on "Annulla".
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Riempie();
    void Scelta(std::int16_t normativa);
    void Accetta();
    void Annulla();

    std::unique_ptr<Ui::frmGamma> ui_;
    QList<QRadioButton*> optNormativa_;
    QList<QLineEdit*> txtGamma_;
    std::int16_t normativaPrima_ = 0; ///< put back by "Annulla"
};

} // namespace sagomi
