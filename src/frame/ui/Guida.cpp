#include "frame/ui/Guida.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>

#include "frame/Messaggi.h"
#include "frame/ui/FinestraGuida.h"
#include "frame/ui/IndiceGuida.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

QString fileInForce; // NOLINT: the help file set by the active screen

QString Generale() { return QStringLiteral("Sagomi.hlp"); }

FinestraGuida& Finestra() {
    static auto* window = new FinestraGuida; // lives to the end of the run, like every screen
    return *window;
}

/// The text of a help file; one that is missing or empty is told.
QString Letta(const QString& file) {
    QString text = LeggeGuida(file);
    if (text.isEmpty())
        Avvisa("Il file della guida " + file.toStdString() + " non è accanto al programma.");
    return text;
}

/// The control in hand when a key reaches an object: a window hands it on to that with the focus.
const QWidget* InMano(QObject* object) {
    if (const auto* w = qobject_cast<QWidget*>(object))
        return w;
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()
                                                  : QApplication::activeWindow();
}

/// Help for a control; the viewer's own stands in the general file.
void AprePer(const QWidget* w) {
    const bool viewer = w != nullptr && qobject_cast<const FinestraGuida*>(w->window()) != nullptr;
    const QString file = viewer || fileInForce.isEmpty() ? Generale() : fileInForce;
    if (const QString text = Letta(file); !text.isEmpty())
        Finestra().Mostra(file, AncoraDi(text, w));
}

} // namespace

void Guida::Installa() {
    static Guida filter;
    qApp->installEventFilter(&filter);
}

void Guida::ImpostaFile(const QString& file) { fileInForce = file; }

QString Guida::File() { return fileInForce; }

void Guida::Apre(const QString& file, const QString& argomento) {
    if (const QString text = Letta(file); !text.isEmpty())
        Finestra().Mostra(file, AncoraDi(text, argomento));
}

bool Guida::eventFilter(QObject* object, QEvent* event) {
    const auto* key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    constexpr auto others = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    if (key == nullptr || key->key() != Qt::Key_F1 || (key->modifiers() & others) != 0)
        return QObject::eventFilter(object, event);
    if (QApplication::activeModalWidget() != nullptr &&
        qobject_cast<QMainWindow*>(QApplication::activeModalWidget()) == nullptr)
        return true; // a message box would keep the help from being used
    EventoProtetto([object] { AprePer(InMano(object)); });
    return true;
}

} // namespace sagomi
