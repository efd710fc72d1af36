#include "frame/ui/Guida.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStringList>
#include <QWindow>

#include "frame/Messaggi.h"
#include "frame/ui/FinestraGuida.h"
#include "frame/ui/IndiceGuida.h"
#include "frame/ui/MessaggiQt.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

QString fileInForce; // NOLINT: the help file set by the active screen

QString Generale() { return QStringLiteral("Sagomi.hlp"); }
QString DelGiunto() { return QStringLiteral("GiuntoFlangiato.hlp"); }

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
    if (const QWidget* focus = QApplication::focusWidget())
        return focus;
    const QWidget* active = QApplication::activeWindow();
    return active != nullptr ? active : QApplication::activeModalWidget();
}

/// The window that keeps the viewer from being used, if it stood by itself.
QWidget* Modale(const QWidget* w) {
    QWidget* modal = QApplication::activeModalWidget();
    const bool all = modal != nullptr && modal->windowModality() == Qt::ApplicationModal;
    return all || (w != nullptr && w->window() == modal) ? modal : nullptr;
}

/// A box that has come up over the viewer: this cannot stand over it in turn.
bool SopraGuida(const QWidget* modal) {
    const QWindow* viewer = Finestra().windowHandle();
    return viewer != nullptr && modal != nullptr && modal->windowHandle() != nullptr &&
           viewer->isAncestorOf(modal->windowHandle());
}

/// Help for a message: the row that says most of it, in whatever file.
bool SpiegaMessaggio(const QString& message, const QStringList& files) {
    if (message.isEmpty())
        return false;
    PostoMessaggio nearest;
    QString in;
    for (const QString& file : files)
        if (PostoMessaggio place = PostoDelMessaggio(LeggeGuida(file), message);
            place.lettere > nearest.lettere) {
            nearest = std::move(place);
            in = file;
        }
    if (in.isEmpty())
        return false;
    Finestra().Mostra(in, nearest.ancora, nearest.parole, nearest.cella);
    return true;
}

/// Help for a control; the viewer's own stands in the general file.
void AprePer(const QWidget* w) {
    const bool viewer = w != nullptr && qobject_cast<const FinestraGuida*>(w->window()) != nullptr;
    const QString file = viewer || fileInForce.isEmpty() ? Generale() : fileInForce;
    if (!viewer) {
        QWidget* modal = Modale(w);
        if (SopraGuida(modal))
            return;
        Finestra().StaSopra(modal);
    }
    if (SpiegaMessaggio(TestoDelMessaggio(w), {file, Generale(), DelGiunto()}))
        return;
    const QString text = Letta(file);
    if (text.isEmpty())
        return;
    for (const QString& other : {file, Generale(), DelGiunto()}) // windows of both
        if (const QString place = AncoraDi(other == file ? text : LeggeGuida(other), w); !place.isEmpty()) {
            Finestra().Mostra(other, place);
            return;
        }
    Finestra().Mostra(file, {});
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
    EventoProtetto([object] { AprePer(InMano(object)); });
    return true;
}

} // namespace sagomi
