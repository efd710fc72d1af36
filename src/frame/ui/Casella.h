#pragma once

#include <QLineEdit>

namespace sagomi {

/// A text box of the screens, right-aligned, as wide as its content asks: an entry on the base colour, or a
/// result that is read only, on the window's colour, outside the tab order but still to be copied from. A
/// result longer than the box shows its head, and the whole in the tool-tip. An entry that has something to
/// tell is tinted.
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

    /// What the tint of an entry or a result says.
    enum Segno {
        Nessuno,
        Riletta,     ///< it was read otherwise than it looks
        Impossibile, ///< its number cannot stand
        DaAggiornare ///< a result: an entry that it hangs on has changed since
    };
    void ImpostaSegno(Segno segno);
    [[nodiscard]] Segno SegnoMostrato() const { return segno_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Colora();
    void MostraTesta();
    int caratteri_ = 7;
    Segno segno_ = Nessuno;
    QString intero_;       ///< the tool-tip that shows the whole text, while it does
    QString suggerimento_; ///< the box's own one meanwhile
    bool colorando_ = false;
};

} // namespace sagomi
