#pragma once

#include <QObject>

#include <functional>

#include "frame/ui/StanzaCopiata.h"

class QKeyEvent;
class QWidget;

namespace sagomi {

/// The manners of copying of a screen: a double click takes the whole number of a result, without blanks;
/// Ctrl+C with nothing selected copies the derivation of a screen that was opened from another, the room of
/// the control in any other, in a table its rows with their heads; Ctrl+Shift+C the whole screen. The context
/// menu of every room says what it copies.
class Copie : public QObject {
    Q_OBJECT
public:
    /// Watches the controls that the screen has now; the screen owns it.
    /// @param dettaglio  whether the screen was opened from another
    Copie(QWidget* schermo, std::function<bool()> dettaglio);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] bool Filtra(QObject* object, QEvent* event) const;
    [[nodiscard]] bool Tasto(QObject* object, const QKeyEvent& event) const;
    [[nodiscard]] const QWidget& DaCopiare(const QWidget* controllo) const;

    QWidget* schermo_;
    std::function<bool()> dettaglio_;
};

} // namespace sagomi
