#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QTimer>
#include <QVariantMap>

#include "automation/SezioneSagomi.h"

namespace sagomi {

class AdattatoreSezione;

/// The object on the user's session bus. No window is shown before a client creates the object; there is one
/// of them for all clients, whichever called first. Properties go out (PropertiesChanged, those that have
/// changed) before the event that tells of them. It outlives its clients: the screens are the user's. When it
/// is destroyed all that it has sent has left the process.
class ServizioSagomi : public QObject {
    Q_OBJECT
public:
    explicit ServizioSagomi(QObject* parent = nullptr);
    ~ServizioSagomi() override;

    /// Takes name and path on the session bus.
    /// @return empty, or in Italian why the object cannot stand there
    [[nodiscard]] QString Registra();

    /// The call of a client that creates the object; a second one is answered with an error. The answer comes
    /// when the screens stand, or after a while where a message of the start waits for the user.
    void Crea(const QDBusMessage& chiamata);

    /// The call of a client that ends the program. What is open in front of the screens is closed before; who
    /// has work that is not saved is asked, and may keep the program open. A running search is broken off.
    void Chiude(const QDBusMessage& chiamata);

private:
    void Comunica();
    void Manda(const char* segnale);
    bool SenzaArgomenti(const QDBusMessage& chiamata);
    void RispondeErrore(const QDBusMessage& chiamata, const QString& nome, const QString& testo);
    void ChiudeAppenaLibero();
    void ProvaChiusura();

    QDBusConnection bus_;
    SezioneSagomi sezione_;
    AdattatoreSezione* adattatore_;
    QVariantMap mandati_; ///< the values that clients have been sent
    QTimer inutile_;      ///< ends a program that was started and never asked for the object
    bool registrato_ = false;
    bool creato_ = false;
    bool inChiusura_ = false;
};

} // namespace sagomi
