#pragma once

#include "frame/ui/EtichettaSimbolo.h"

namespace sagomi {

/// A label that shows a result: right-aligned in a thin frame, at least as wide as its content asks, its text
/// to be copied from. It stands outside the tab order.
class EtichettaRisultato : public EtichettaSimbolo {
    Q_OBJECT
    Q_PROPERTY(int caratteri READ Caratteri WRITE ImpostaCaratteri)
public:
    explicit EtichettaRisultato(QWidget* parent = nullptr);

    /// Least width in figures.
    [[nodiscard]] int Caratteri() const { return caratteri_; }
    void ImpostaCaratteri(int n);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

private:
    int caratteri_ = 7;
};

} // namespace sagomi
