#pragma once

#include <QObject>
#include <QString>

class QLineEdit;
class QStatusBar;

namespace sagomi {

/// What there is to know of an entry box for a number beside its text: whether the user is at it, how it was
/// read where that is not how it looks, why its number cannot stand. The latter two tint the box and are told
/// in its tool-tip, its accessible description and the status line of its window.
///
/// A box of which none is made behaves as a concluded one.
class Entrata : public QObject {
    Q_OBJECT
public:
    /// Watches a box from now on, as its child. What is pasted is trimmed; a typographic minus and blanks
    /// that do not break are understood.
    explicit Entrata(QLineEdit* casella);

    /// What watches a box; nullptr when nothing does.
    static Entrata* Di(const QLineEdit* casella);

    /// The text has been typed, or pasted, and not been concluded since.
    [[nodiscard]] bool InDigitazione() const;

    /// Ends the typing: a text that is no clean number becomes the number that was read. Announces nothing.
    /// @return whether there was typing to end
    bool Conclude();

    /// Marks the box with the reason why its number cannot stand; an empty one takes the mark away.
    void Segna(const QString& motivo);
    [[nodiscard]] QString Motivo() const { return motivo_; }

    /// Shows in the status line what there is to be said of the box.
    void Dice() const;

private:
    void Aggiorna();
    void MostraSegni(const QString& detto);
    [[nodiscard]] QString Lettura() const;
    [[nodiscard]] QStatusBar* Barra() const;

    QLineEdit* casella_;
    bool digitata_ = false;
    QString testoDigitato_;
    QString motivo_;
    QString detto_;                      ///< what the box says of itself now
    QString suggerimento_, descrizione_; ///< its own ones, while it says something
};

/// Whether the user is at a box: what is computed with it keeps quiet and mends nothing.
bool InDigitazione(const QLineEdit* casella);

/// Marks a watched box with the reason why its number cannot stand; an empty one takes the mark away.
void SegnaEntrata(QLineEdit* casella, const QString& motivo);

} // namespace sagomi
