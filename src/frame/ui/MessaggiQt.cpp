#include "frame/ui/MessaggiQt.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QMessageBox>
#include <QPushButton>

#include "frame/Messaggi.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

QMessageBox::Icon IconaQt(Icona icona) {
    switch (icona) {
    case Icona::Avviso:
        return QMessageBox::Warning;
    case Icona::Stop:
        return QMessageBox::Critical;
    case Icona::Domanda:
        return QMessageBox::Question;
    default:
        return QMessageBox::NoIcon;
    }
}

/// While a box has just come up, keys do nothing: they were on their way to an entry, and must not answer a
/// message that nobody has read.
class PausaTasti : public QObject {
public:
    PausaTasti() {
        daQuando_.start();
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* /*object*/, QEvent* event) override {
        return EventoProtetto([this, event] { return Trattiene(*event); });
    }

private:
    [[nodiscard]] bool Trattiene(const QEvent& event) const {
        constexpr qint64 pausa = 400; // [ms]
        const bool key = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
                         event.type() == QEvent::ShortcutOverride;
        return key && daQuando_.elapsed() < pausa;
    }

    QElapsedTimer daQuando_;
};

Risposta Mostra(const Messaggio& m) {
    const PausaTasti pause;
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(QString::fromStdString(m.titolo));
    box.setTextFormat(Qt::PlainText);
    box.setText(ConAcapi(QString::fromStdString(m.testo)));
    box.setIcon(IconaQt(m.icona));
    if (m.bottoni == Bottoni::Ok) {
        box.addButton(QObject::tr("OK"), QMessageBox::AcceptRole);
        box.exec();
        return Risposta::Ok;
    }
    const auto* yes = box.addButton(QObject::tr("&Sì"), QMessageBox::YesRole);
    auto* no = box.addButton(QObject::tr("&No"), QMessageBox::NoRole);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes ? Risposta::Si : Risposta::No;
}

} // namespace

QString ConAcapi(QString testo) {
    testo.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    while (testo.endsWith(u'\n'))
        testo.chop(1);
    return testo;
}

void CollegaMessaggiQt() { CollegaMessaggi(Mostra); }

} // namespace sagomi
