#pragma once

#include <QList>
#include <QObject>

#include <functional>

class QMimeData;
class QWidget;

namespace sagomi {

/// A line of a derivation as it is copied.
struct RigaDerivazione {
    QString simbolo, valore, unita, norma;
};

/// What a screen shows, entries and results in the order of reading: the symbol and the unit come from the
/// accessible name, the clause from the tool-tip. What is hidden or empty is left out.
QList<RigaDerivazione> Derivazione(const QWidget& schermo);

/// The same as a table for the clipboard: text with tabs, HTML and a picture. The caller takes it over.
QMimeData* DerivazioneCopiata(const QWidget& schermo);

/// The manners of copying of a screen: a double click takes the whole number of a result, without blanks;
/// Ctrl+C with nothing selected copies the derivation of a screen that was opened from another, in a table
/// its rows with their heads.
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

    QWidget* schermo_;
    std::function<bool()> dettaglio_;
};

} // namespace sagomi
