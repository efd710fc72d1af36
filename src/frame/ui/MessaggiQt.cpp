#include "frame/ui/MessaggiQt.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

#include "frame/Messaggi.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

QMessageBox::Icon IconaQt(Icona icona) {
    switch (icona) {
    case Icona::Informazione:
        return QMessageBox::Information;
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

/// The window that has the focus, else the screen in use.
QWidget* FinestraAlLavoro() {
    if (QWidget* active = QApplication::activeWindow())
        return active;
    Schermo* screen = NavigaSchermi::Unico().Attivo();
    return screen != nullptr && screen->isVisible() ? screen : nullptr;
}

/// A box breaks its lines beyond a width of its own choice: the text is given the width of its longest line,
/// where the desktop has it. Of a small desktop the toolkit lets a box take the whole width.
void LasciaIntereLeRighe(QMessageBox& box) {
    constexpr int attorno = 120; // icon and margins [px]
    auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (text == nullptr)
        return;
    int width = 0;
    for (const QString& line : box.text().split(u'\n'))
        width = std::max(width, text->fontMetrics().horizontalAdvance(line));
    const int desktop = box.screen()->availableGeometry().width();
    const int room = (desktop <= 1024 ? desktop : std::min(desktop - 480, 1000)) - attorno;
    text->setMinimumWidth(std::min(width + 2, std::max(room, 0)));
}

Risposta MostraSaltabile(QMessageBox& box) {
    box.addButton(QObject::tr("OK"), QMessageBox::AcceptRole);
    auto* skip = box.addButton(QObject::tr("&Salta gli altri"), QMessageBox::RejectRole);
    skip->setToolTip(QObject::tr("Esc: non mostra gli altri avvisi di questo sagomo"));
    box.setEscapeButton(skip);
    box.exec();
    return box.clickedButton() == skip ? Risposta::Salta : Risposta::Ok;
}

Risposta Mostra(const Messaggio& m) {
    const PausaTasti pause;
    QMessageBox box(FinestraAlLavoro());
    box.setWindowTitle(QString::fromStdString(m.titolo));
    box.setTextFormat(Qt::PlainText);
    box.setText(ConAcapi(QString::fromStdString(m.testo)));
    box.setIcon(IconaQt(m.icona));
    LasciaIntereLeRighe(box);
    if (m.bottoni == Bottoni::Ok) {
        box.addButton(QObject::tr("OK"), QMessageBox::AcceptRole);
        box.exec();
        return Risposta::Ok;
    }
    if (m.bottoni == Bottoni::OkSalta)
        return MostraSaltabile(box);
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

QString TestoDelMessaggio(const QWidget* w) {
    const auto* box = w == nullptr ? nullptr : qobject_cast<const QMessageBox*>(w->window());
    return box == nullptr ? QString() : box->text();
}

void CollegaMessaggiQt() { CollegaMessaggi(Mostra); }

} // namespace sagomi
