#include "automation/ServizioSagomi.h"

#include <QApplication>
#include <QDBusError>
#include <QThread>

#include <chrono>
#include <memory>
#include <utility>

#include "automation/AdattatoreSezione.h"
#include "automation/NomiBus.h"
#include "frame/GeneraleSagomi.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

constexpr std::chrono::minutes attesaOggetto(2); ///< how long a started program waits for its first call
constexpr std::chrono::seconds attesaAvvio(2);   ///< then a client is answered before the screens stand
constexpr std::chrono::milliseconds pausa(5);    ///< between two looks at what is still open

QString Nome(const char* testo) { return QString::fromLatin1(testo); }

/// Whether the program is at rest: no box is open in front of a screen, no screen is being made.
bool Libero() { return !AvvioInCorso && QThread::currentThread()->loopLevel() <= 1; }

/// Those of the new values that differ from the old ones.
QVariantMap Cambiati(const QVariantMap& vecchi, const QVariantMap& nuovi) {
    QVariantMap changed;
    for (auto it = nuovi.begin(); it != nuovi.end(); ++it)
        if (vecchi.value(it.key()) != it.value())
            changed.insert(it.key(), it.value());
    return changed;
}

} // namespace

AdattatoreSezione::AdattatoreSezione(ServizioSagomi& servizio, const SezioneSagomi& sezione)
    : QDBusAbstractAdaptor(&servizio), servizio_(servizio), sezione_(sezione) {}

QVariantMap AdattatoreSezione::Valori() const {
    QVariantMap values;
    for (int i = metaObject()->propertyOffset(); i < metaObject()->propertyCount(); ++i)
        values.insert(QString::fromLatin1(metaObject()->property(i).name()),
                      metaObject()->property(i).read(this));
    return values;
}

void AdattatoreSezione::Class_Initialize(const QDBusMessage& chiamata) {
    EventoProtetto([&] { servizio_.Crea(chiamata); });
}

void AdattatoreSezione::Quit(const QDBusMessage& chiamata) {
    EventoProtetto([&] { servizio_.Chiude(chiamata); });
}

ServizioSagomi::ServizioSagomi(QObject* parent)
    : QObject(parent), bus_(QDBusConnection::sessionBus()),
      adattatore_(new AdattatoreSezione(*this, sezione_)) {
    sezione_.ComunicaSagomo = [this] { Comunica(); };
    sezione_.SagomiQuit = [this] { Manda("SagomiQuit"); };
    inutile_.setSingleShot(true);
    Collega(&inutile_, &QTimer::timeout, this, [this] {
        if (!creato_)
            QCoreApplication::quit();
    });
}

ServizioSagomi::~ServizioSagomi() {
    bus_.unregisterObject(Nome(bus::percorso));
    if (registrato_)
        bus_.unregisterService(
            Nome(bus::servizio)); // waits for the bus, which has then all that was sent before
}

QString ServizioSagomi::Registra() {
    if (!bus_.isConnected())
        return tr("non c'è un bus di sessione: %1").arg(bus_.lastError().message());
    if (!bus_.registerObject(Nome(bus::percorso), this, QDBusConnection::ExportAdaptors))
        return tr("il percorso %1 è occupato").arg(Nome(bus::percorso));
    if (!bus_.registerService(Nome(bus::servizio)))
        return tr("il nome %1 è già di un altro processo").arg(Nome(bus::servizio));
    registrato_ = true;
    inutile_.start(attesaOggetto);
    return {};
}

void ServizioSagomi::Crea(const QDBusMessage& chiamata) {
    if (!SenzaArgomenti(chiamata))
        return;
    creato_ = true; // also while the start lets other calls through
    const auto done = std::make_shared<bool>(false);
    const auto answer = [this, chiamata, done] {
        if (!std::exchange(*done, true))
            bus_.send(chiamata.createReply());
    };
    chiamata.setDelayedReply(true);
    QTimer::singleShot(attesaAvvio, this, answer); // a message of the start may wait for the user
    if (!ChiusuraInCorso && !inChiusura_ && sezione_.Class_Initialize())
        answer();
    else if (!std::exchange(*done, true))
        RispondeErrore(chiamata, Nome(bus::oggettoEsistente),
                       tr("L'oggetto SezioneSagomi esiste già: Sagomi è aperto sotto un altro programma"));
}

void ServizioSagomi::Chiude(const QDBusMessage& chiamata) {
    if (!SenzaArgomenti(chiamata))
        return;
    if (!creato_) {
        RispondeErrore(chiamata, Nome(bus::oggettoMancante),
                       tr("L'oggetto SezioneSagomi non esiste: chiamare prima Class_Initialize"));
        return;
    }
    if (std::exchange(inChiusura_, true))
        return;
    chiamata.setDelayedReply(true); // answered at once: the user may be asked before the program ends
    bus_.send(chiamata.createReply());
    ChiudeAppenaLibero();
}

// A box would be left without the screen that it belongs to: it is closed first, by what Esc does.
void ServizioSagomi::ProvaChiusura() {
    if (QWidget* menu = QApplication::activePopupWidget())
        menu->close();
    else if (QWidget* box = QApplication::activeModalWidget())
        box->close();
    if (Libero())
        inChiusura_ = sezione_.Quit();
    else
        QTimer::singleShot(pausa, this, &ServizioSagomi::ChiudeAppenaLibero);
}

void ServizioSagomi::ChiudeAppenaLibero() {
    const bool well = EventoProtetto([this] {
        ProvaChiusura();
        return true;
    });
    if (!well)
        inChiusura_ = false; // it may be asked for again
}

void ServizioSagomi::Comunica() {
    const QVariantMap values = adattatore_->Valori();
    if (const QVariantMap changed = Cambiati(mandati_, values); !changed.isEmpty()) {
        QDBusMessage signal =
            QDBusMessage::createSignal(Nome(bus::percorso), QStringLiteral("org.freedesktop.DBus.Properties"),
                                       QStringLiteral("PropertiesChanged"));
        signal << Nome(bus::servizio) << changed << QStringList();
        bus_.send(signal);
        mandati_ = values;
    }
    Manda("ComunicaSagomo");
}

void ServizioSagomi::Manda(const char* segnale) {
    bus_.send(QDBusMessage::createSignal(Nome(bus::percorso), Nome(bus::servizio), Nome(segnale)));
}

// A slot that takes the message is called whatever arguments come with it.
bool ServizioSagomi::SenzaArgomenti(const QDBusMessage& chiamata) {
    if (chiamata.arguments().isEmpty())
        return true;
    RispondeErrore(chiamata, QDBusError::errorString(QDBusError::InvalidArgs),
                   tr("%1 non ha argomenti").arg(chiamata.member()));
    return false;
}

void ServizioSagomi::RispondeErrore(const QDBusMessage& chiamata, const QString& nome, const QString& testo) {
    chiamata.setDelayedReply(true);
    bus_.send(chiamata.createErrorReply(nome, testo));
}

} // namespace sagomi
