#pragma once

#include "frame/ui/EtichettaSimbolo.h"

namespace sagomi {

/// A label that shows a result: right-aligned in the thin frame of a box that is read only, at least as wide
/// as its content asks, its text to be copied from. It stands outside the tab order. In a column the decimals
/// of its numbers line up with those above and below.
class EtichettaRisultato : public EtichettaSimbolo {
    Q_OBJECT
    Q_PROPERTY(int caratteri READ Caratteri WRITE ImpostaCaratteri)
    Q_PROPERTY(int decimali READ Decimali WRITE ImpostaDecimali)
public:
    explicit EtichettaRisultato(QWidget* parent = nullptr);

    /// Least width in figures.
    [[nodiscard]] int Caratteri() const { return caratteri_; }
    void ImpostaCaratteri(int n);

    /// Places that are kept behind the decimal separator, whatever the number has; -1 for none.
    [[nodiscard]] int Decimali() const { return decimali_; }
    void ImpostaDecimali(int n);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    /// No frame of a label's own: it is painted as that of a box.
    void initStyleOption(QStyleOptionFrame* option) const override;

private:
    [[nodiscard]] int Rientro() const;
    [[nodiscard]] int AltezzaCasella() const;
    void DipingeCornice();

    int caratteri_ = 7;
    int decimali_ = -1;
};

} // namespace sagomi
