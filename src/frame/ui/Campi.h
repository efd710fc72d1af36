#pragma once

#include <QLineEdit>
#include <QList>
#include <QObject>

#include <functional>
#include <string_view>

#include "frame/ui/NumeroIn.h"

class QKeyEvent;

namespace sagomi {

/// Moves the focus to the next control in tab order that takes it, and selects its text. Controls that refuse
/// are skipped; at the end of the order the focus stays.
void FuocoSuccessivo(QWidget* maschera);

/// Selects a text box's whole contents.
void SelezionaTesto(QLineEdit* casella);

/// Gives the focus to a box and selects its text.
void FuocoSu(QLineEdit* casella);

/// What to hand on to another box: the text, or the plain number where the text is no clean one.
QString TestoPulito(const QLineEdit* casella);

/// Moves a number between a box and a variable: "L" reads the box, any other mode writes the plain number.
void LeggeScriveTesto(std::string_view modo, QLineEdit* controllo, double& valore);

/// The same for a text, without conversion.
void LeggeScriveTesto(std::string_view modo, QLineEdit* controllo, std::string& valore);

/// The manners of a screen's entry boxes for numbers: entering one selects its text (by mouse too), Enter
/// goes on, and the keypad's decimal key types the decimal separator in use. Every other character passes.
///
/// Typing is concluded by Enter, by leaving the box, by a button or a step of the screen; where a click does
/// it, once the mouse is up again. Then a text that is
/// no clean number is rewritten as it was read, and the screen may speak and mend. Until then, and not when
/// the program has written the text, InDigitazione tells it to keep quiet.
class FiltroCampi : public QObject {
    Q_OBJECT
public:
    /// What Enter does in a box; false leaves it to FuocoSuccessivo.
    using RegolaInvio = std::function<bool(QLineEdit*)>;

    /// @param maschera the screen whose tab order Enter follows; owns the filter
    explicit FiltroCampi(QWidget* maschera, RegolaInvio invio = {});

    /// Takes care of a box from now on. Call it before the box's own handlers are connected.
    void Osserva(QLineEdit* casella);

    /// Whether the user is at one of the boxes.
    [[nodiscard]] bool InDigitazione() const;
    /// Ends the typing in all boxes.
    void Conclude();

signals:
    /// What was typed into a box stands; it has not been checked yet.
    void conclusa(QLineEdit* casella);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool Filtra(QObject* object, QEvent* event);
    void AttendeRilascio();
    void Rilasciato(const QObject* bersaglio);
    void ConcludeDopoIlClic();
    void ConcludeCasella(QLineEdit* casella);
    void Entra(QLineEdit* casella, Qt::FocusReason ragione);
    bool Tasto(QLineEdit* casella, const QKeyEvent& tasto);

    QWidget* maschera_;
    RegolaInvio invio_;
    QList<QLineEdit*> caselle_;
    bool attendeRilascio_ = false;         ///< a box was left by a click that is not over yet
    QLineEdit* entrataColMouse_ = nullptr; ///< got the focus by a click that is not over yet
};

/// Checks the separators of the system's locale with a hidden box, once at the start, and takes them over.
/// @param silenzioso leaves the warning about comma and point out
/// @param esito receives whether the check passed
void SeparatoriControlla(QLineEdit* casella, bool silenzioso = false, bool* esito = nullptr);

} // namespace sagomi
