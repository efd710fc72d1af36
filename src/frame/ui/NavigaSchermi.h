#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <functional>

#include "frame/ui/Schermo.h"
#include "frame/ui/VoceSchermo.h"

namespace sagomi {

/// Owns the screens, knows the table of those that are opened by name, and activates them. A screen is
/// activated once when a navigation has made it visible, and once when the user brings another visible screen
/// of the program to the front. Message boxes, file and print dialogs, minimising, and leaving the program
/// for another never activate anything.
class NavigaSchermi : public QObject {
    Q_OBJECT
public:
    static NavigaSchermi& Unico();

    /// The screen of class T, created at its first use.
    template <typename T> T& Prende() {
        for (Schermo* s : schermi_)
            if (auto* found = dynamic_cast<T*>(s))
                return *found;
        return static_cast<T&>(Crea([] { return new T; }));
    }

    /// Adds a row to the table of screens; one of the same name is replaced.
    void Aggiunge(VoceSchermo voce);
    void Toglie(const QString& nome);
    [[nodiscard]] const QList<VoceSchermo>& Tavola() const { return tavola_; }

    /// The screen of that object name if it has been created, else nullptr.
    [[nodiscard]] Schermo* Trova(const QString& nome) const;

    /// The screen of that name, created from the table at its first use. A name that is not in the table
    /// throws std::out_of_range.
    Schermo& Prende(const QString& nome);

    /// The same as the kind T that its opener works with; another kind throws std::bad_cast.
    template <typename T> T& Prende(const QString& nome) { return dynamic_cast<T&>(Prende(nome)); }

    /// Opens the screen of that name as its row of the table says; without a row std::out_of_range.
    void Apre(const QString& nome, Schermo& da);

    /// Enables the menu entries of a window whose screens stand in the table; each opens its own.
    void CollegaMenu(Schermo& da);

    /// Shows a screen and activates it; then hides the one that it was reached from, with all that was opened
    /// from there: it comes back with it.
    void Passa(Schermo& a, Schermo* da);

    /// Shows a screen in front of the one that opens it, which stays visible; closing it goes back there.
    void Apre(Schermo& a, Schermo& da);

    /// The same for a dialog: it keeps its opener from being used until it closes.
    void ApreDialogo(Schermo& a, Schermo& da);

    /// Hides a screen and shows and activates the nearest one of those that it was opened from that is still
    /// visible; its own opener where none is.
    void Lascia(Schermo& s);

    /// Unloads all screens, the last opened first.
    void ScaricaTutti();

    /// The visible screens that were opened from one, by whatever way.
    [[nodiscard]] QList<Schermo*> VisibiliDa(const Schermo& s) const;

    /// The screen last activated.
    [[nodiscard]] Schermo* Attivo() const { return attivo_; }

signals:
    void schermoScaricato(const QString& nome);

private:
    NavigaSchermi();
    [[nodiscard]] const VoceSchermo& Voce(const QString& nome) const;
    Schermo& Crea(const std::function<Schermo*()>& crea);
    void ApertaPerUltima(Schermo& s);
    void Mostra(Schermo& s);
    void Sospende(const Schermo& da);
    void Riprende(const Schermo& s);
    void Affida(const Schermo& chiuso, const Schermo& a);
    void Attiva(Schermo& s);
    void FinestraInPrimoPiano();

    QList<VoceSchermo> tavola_;
    QList<Schermo*> schermi_; ///< in the order of their last opening
    QList<Schermo*> sospesi_; ///< hidden with the screen that they were opened from
    Schermo* attivo_ = nullptr;
    QPointer<QWindow> inPrimoPiano_; ///< has the focus since the last change
    QTimer riposo_;
    int attese_ = 0; ///< for the mouse to be up, since that change
    bool inNavigazione_ = false;
    bool inCreazione_ = false;
};

} // namespace sagomi
