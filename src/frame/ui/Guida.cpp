#include "frame/ui/Guida.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QMainWindow>
#include <QTextBrowser>
#include <QWheelEvent>

#include <algorithm>

#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

QString fileInForce; // NOLINT: the help file set by the active screen

/// A window of its own, above whatever asked for it; Esc closes it.
class FinestraGuida : public QTextBrowser {
public:
    FinestraGuida() {
        setObjectName(QStringLiteral("FinestraGuida"));
        setWindowTitle(QObject::tr("Guida"));
        setOpenExternalLinks(false);
        resize(640, 560);
    }

protected:
    /// With Ctrl the wheel sizes the text, within what can be read and laid out.
    void wheelEvent(QWheelEvent* event) override {
        EventoProtetto([this, event] {
            if (event->modifiers().testFlag(Qt::ControlModifier)) {
                Ingrandisci(event->angleDelta().y());
                event->accept();
            } else {
                QTextBrowser::wheelEvent(event);
            }
        });
    }
    void keyPressEvent(QKeyEvent* event) override {
        EventoProtetto([this, event] {
            if (event->key() == Qt::Key_Escape)
                hide();
            else
                QTextBrowser::keyPressEvent(event);
        });
    }

private:
    /// @param giro  of the wheel, eighths of a degree: 120 in a notch, which is a point of the font
    void Ingrandisci(int giro) {
        constexpr double scatto = 120;
        constexpr double minimo = 6; // points
        constexpr double massimo = 40;
        const double now = font().pointSizeF();
        const double wanted = std::clamp(now + giro / scatto, minimo, massimo);
        if (const int points = static_cast<int>(wanted - now); points != 0)
            zoomIn(points);
    }
};

QString AccantoAlProgramma(const QString& file) {
    const QDir folder(QString::fromStdString(PathProgramma.string()));
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString& name : names)
        if (name.compare(file, Qt::CaseInsensitive) == 0)
            return folder.filePath(name);
    return {};
}

QTextBrowser& Finestra() {
    static auto* window = new FinestraGuida; // lives to the end of the run, like every screen
    return *window;
}

/// Screen and name of the control in hand, without the index of its array.
QString ArgomentoInMano() {
    const QWidget* w = QApplication::focusWidget();
    while (w != nullptr && w->objectName().isEmpty())
        w = w->parentWidget();
    if (w == nullptr)
        return {};
    const QString bare = w->objectName().section(u'_', 0, -2).isEmpty() || !w->objectName().back().isDigit()
                             ? w->objectName()
                             : w->objectName().section(u'_', 0, -2);
    return w->window()->objectName() + u'.' + bare;
}

/// The place of a topic "screen.control": the control's own paragraph where it stands in the part about the
/// screen, or later; else the screen's. A name of a control is often shared by several screens.
QString Ancora(const QString& text, const QString& topic) {
    const auto place = [&text](const QString& name) {
        return text.indexOf(QLatin1String("name=\"") + name + u'"');
    };
    const QString screen = topic.section(u'.', 0, -2);
    const QString control = topic.section(u'.', -1);
    const auto screenPlace = screen.isEmpty() ? -1 : place(screen);
    if (place(topic) >= 0)
        return topic;
    return place(control) > screenPlace || screenPlace < 0 ? control : screen;
}

} // namespace

void Guida::Installa() {
    static Guida filter;
    qApp->installEventFilter(&filter);
}

void Guida::ImpostaFile(const QString& file) { fileInForce = file; }

QString Guida::File() { return fileInForce; }

void Guida::Apri(const QString& file, const QString& argomento) {
    const QString path = AccantoAlProgramma(file);
    QFile help(path);
    if (path.isEmpty() || !help.open(QIODevice::ReadOnly)) {
        Avvisa("Il file della guida " + file.toStdString() + " non è accanto al programma.");
        return;
    }
    QTextBrowser& window = Finestra();
    const QString text = QString::fromUtf8(help.readAll());
    window.setHtml(text);
    window.show();
    window.raise();
    window.activateWindow();
    window.scrollToAnchor(Ancora(text, argomento));
}

bool Guida::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1)
        return QObject::eventFilter(object, event);
    if (QApplication::activeModalWidget() != nullptr &&
        qobject_cast<QMainWindow*>(QApplication::activeModalWidget()) == nullptr)
        return true; // a message box would keep the help from being used
    EventoProtetto(
        [] { Apri(fileInForce.isEmpty() ? QStringLiteral("Sagomi.hlp") : fileInForce, ArgomentoInMano()); });
    return true;
}

} // namespace sagomi
