#include "frame/ui/MessaggiQt.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "frame/Messaggi.h"

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

Risposta Mostra(const Messaggio& m) {
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
