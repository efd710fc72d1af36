#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWindow>

#include <stdexcept>

#include "frame/GeneraleSagomi.h"
#include "frame/ui/Schermo.h"

namespace sagomi {

/// Owns the screens and their activation. A screen is activated once when a navigation has made it visible,
/// and once when the user brings another visible screen of the program to the front. Message boxes, file and
/// print dialogs, minimising, and leaving the program for another never activate anything.
class NavigaSchermi : public QObject {
    Q_OBJECT
public:
    static NavigaSchermi& Unico();

    /// The screen of class T, created at its first use.
    template <typename T> T& Prendi() {
        for (Schermo* s : schermi_)
            if (auto* found = dynamic_cast<T*>(s))
                return *found;
        if (ChiusuraInCorso || inCreazione_)
            throw std::logic_error("un altro schermo si sta aprendo o il programma si chiude");
        const QScopedValueRollback guard(inCreazione_, true);
        auto* s = new T; // its load lets events through
        schermi_.append(s);
        return *s;
    }

    /// The screen of that object name if it has been created, else nullptr.
    [[nodiscard]] Schermo* Trova(const QString& nome) const;

    /// Shows a screen and activates it; then hides the one that it was reached from.
    void Passa(Schermo& a, Schermo* da);

    /// Shows a screen in front of the one that opens it, which stays visible; closing it goes back there.
    void Apri(Schermo& a, Schermo& da);

    /// The same for a dialog: it keeps its opener from being used until it closes.
    void ApriDialogo(Schermo& a, Schermo& da);

    /// Hides a screen and shows and activates the one that it was opened from.
    void Lascia(Schermo& s);

    /// Unloads all screens, the last opened first.
    void ScaricaTutti();

    /// The screen last activated.
    [[nodiscard]] Schermo* Attivo() const { return attivo_; }

signals:
    void schermoScaricato(const QString& nome);

private:
    NavigaSchermi();
    void ApertaPerUltima(Schermo& s);
    void Mostra(Schermo& s);
    void Attiva(Schermo& s);
    void FinestraInPrimoPiano();

    QList<Schermo*> schermi_; ///< in the order of their last opening
    Schermo* attivo_ = nullptr;
    QPointer<QWindow> inPrimoPiano_; ///< has the focus since the last change
    QTimer riposo_;
    bool inNavigazione_ = false;
    bool inCreazione_ = false;
};

} // namespace sagomi
