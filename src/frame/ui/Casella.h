#pragma once

#include <QLineEdit>

namespace sagomi {

/// A text box of the screens, right-aligned, as wide as its content asks: an entry on the base colour, or a
/// result that is read only, on the window's colour, outside the tab order but still to be copied from.
class Casella : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(int caratteri READ Caratteri WRITE ImpostaCaratteri)
    Q_PROPERTY(bool risultato READ Risultato WRITE ImpostaRisultato)
public:
    explicit Casella(QWidget* parent = nullptr);

    /// Width in figures.
    [[nodiscard]] int Caratteri() const { return caratteri_; }
    void ImpostaCaratteri(int n);

    [[nodiscard]] bool Risultato() const { return isReadOnly(); }
    void ImpostaRisultato(bool risultato);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent* event) override;

private:
    void Colora();
    int caratteri_ = 7;
    bool colorando_ = false;
};

} // namespace sagomi
