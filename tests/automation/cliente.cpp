/// A client in a process of its own. It is told what to do by lines on its input and tells what it hears, one
/// line each: the values that a section has by the changes heard so far ("sagomo"), that the user has closed
/// ("quittato"), how a call went.
#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QFile>
#include <QSocketNotifier>

#include <unistd.h>

#include <iostream>

#include "automation/NomiBus.h"

namespace {

using sagomi::bus::percorso;
using sagomi::bus::servizio;

const QString proprieta = QStringLiteral("org.freedesktop.DBus.Properties");

void Dice(const QString& line) { std::cout << line.toStdString() << std::endl; }

QString Elenco(const QVariantMap& values) {
    QStringList texts;
    for (auto it = values.begin(); it != values.end(); ++it)
        texts << it.key() + u'=' + it.value().toString();
    return texts.join(u'|');
}

class Cliente : public QObject {
    Q_OBJECT
public:
    explicit Cliente(QString ini) : ini_(std::move(ini)) {
        bus_.connect(servizio, percorso, proprieta, "PropertiesChanged", this,
                     SLOT(Cambiati(QString, QVariantMap, QStringList)));
        bus_.connect(servizio, percorso, servizio, "ComunicaSagomo", this, SLOT(Sagomo()));
        bus_.connect(servizio, percorso, servizio, "SagomiQuit", this, SLOT(Quittato()));
        connect(&ingresso_, &QSocketNotifier::activated, this, &Cliente::Legge);
        Dice("pronto");
    }

public slots:
    void Cambiati(const QString& interface, const QVariantMap& changed, const QStringList&) {
        if (interface == QLatin1String(servizio))
            valori_.insert(changed);
    }
    void Sagomo() { Dice("sagomo " + Elenco(valori_)); }
    void Quittato() { Dice(QFile::exists(ini_) ? "quittato con impostazioni" : "quittato senza"); }

private:
    void Legge() {
        char some[256];
        const auto n = read(STDIN_FILENO, some, sizeof some);
        if (n <= 0)
            QCoreApplication::quit();
        else
            comandi_.append(some, n);
        for (auto end = comandi_.indexOf('\n'); end >= 0; end = comandi_.indexOf('\n')) {
            const QString line = QString::fromLatin1(comandi_.first(end));
            comandi_.remove(0, end + 1);
            Esegue(line);
        }
    }

    void Esegue(const QString& command) {
        if (command == "storpia")
            Storpia();
        else if (command == "padrone")
            Dice(bus_.interface()->isServiceRegistered(servizio) ? "padrone" : "nessuno");
        else if (command == "tutti")
            Chiama(QDBusMessage::createMethodCall(servizio, percorso, proprieta, "GetAll") << servizio);
        else
            Chiama(QDBusMessage::createMethodCall(servizio, percorso, servizio, command));
    }

    void Chiama(const QDBusMessage& call) {
        auto* pending = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
        connect(pending, &QDBusPendingCallWatcher::finished, this, [call, pending] {
            const QDBusMessage reply = pending->reply();
            if (reply.type() == QDBusMessage::ErrorMessage)
                Dice(call.member() + " errore " + reply.errorName());
            else if (reply.arguments().isEmpty())
                Dice(call.member() + " fatto");
            else
                Dice(call.member() + " fatto " + Elenco(qdbus_cast<QVariantMap>(reply.arguments().first())));
            pending->deleteLater();
        });
    }

    /// Calls that cannot be meant, several hundred of them; each has to be refused.
    void Storpia() {
        QList<QVariantList> arguments{
            {1}, {"x"}, {1.5, true}, {QVariantMap{{"a", 1}}}, {QString(100000, u'x')}};
        int sent = 0;
        int refused = 0;
        const auto call = [&](const QString& path, const QString& interface, const QString& member,
                              const QVariantList& with) {
            QDBusMessage message = QDBusMessage::createMethodCall(servizio, path, interface, member);
            message.setArguments(with);
            ++sent;
            refused += bus_.call(message).type() == QDBusMessage::ErrorMessage ? 1 : 0;
        };
        for (int i = 0; i < 10; ++i)
            for (const QVariantList& with : arguments) {
                call(percorso, servizio, "Quit", with);
                call(percorso, servizio, "Class_Initialize", with);
                call(percorso, servizio, "SagomoCambiato", with);
                call(percorso, servizio, "quit", {});
                call(percorso, "Sagomi_v6.Altro", "Quit", {});
                call("/Altrove", servizio, "Quit", {});
                call(percorso, proprieta, "Get", with);
                call(percorso, proprieta, "Get", {servizio, "nessuna"});
                call(percorso, proprieta, "Set", {servizio, "h", QVariant::fromValue(QDBusVariant(with[0]))});
                call(percorso, proprieta, "Set", with);
            }
        Dice(QStringLiteral("storpiate %1 respinte %2").arg(sent).arg(refused));
    }

    QByteArray comandi_;
    QString ini_;
    QDBusConnection bus_ = QDBusConnection::sessionBus();
    QVariantMap valori_;
    QSocketNotifier ingresso_{STDIN_FILENO, QSocketNotifier::Read};
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const Cliente client(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    return QCoreApplication::exec();
}

#include "cliente.moc"
