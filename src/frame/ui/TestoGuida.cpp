#include "frame/ui/TestoGuida.h"

#include <QImage>
#include <QResizeEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

#include "frame/ui/IndiceGuida.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

/// The width that a picture may have; a page has one before it is seen as well. [px]
int Posto(int pagina) {
    constexpr int stretta = 560;
    constexpr int margini = 24;
    return std::max(pagina, stretta) - margini;
}

QImage NelPosto(const QImage& picture, int posto) {
    if (picture.deviceIndependentSize().width() <= posto)
        return picture;
    return picture.scaledToWidth(qRound(posto * picture.devicePixelRatio()), Qt::SmoothTransformation);
}

} // namespace

TestoGuida::TestoGuida(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("TestoGuida"));
    setAccessibleName(tr("Testo della guida"));
    setOpenExternalLinks(false);
    constexpr int fermo = 100; // ms without a change: whoever drags an edge does not wait for the pictures
    adatta_.setSingleShot(true);
    adatta_.setInterval(fermo);
    Collega(&adatta_, &QTimer::timeout, this, [this] { AdattaFigure(); });
}

QUrl TestoGuida::Indirizzo(const QString& file, const QString& ancora) {
    QUrl url;
    url.setScheme(QStringLiteral("guida"));
    url.setPath(u'/' + file);
    url.setFragment(ancora);
    return url;
}

QVariant TestoGuida::loadResource(int type, const QUrl& name) {
    if (type == QTextDocument::ImageResource && name.scheme() == QLatin1String("figura") && figura)
        return Figura(name);
    if (type != QTextDocument::HtmlResource)
        return {};
    for (const auto& [picture, width] : larghezze_.asKeyValueRange()) // they would outlive the text
        document()->addResource(QTextDocument::ImageResource, picture, {});
    larghezze_.clear();
    return LeggeGuida(name.path().section(u'/', -1));
}

QImage TestoGuida::Figura(const QUrl& name) {
    const QImage picture = figura(name.path());
    if (larghezze_.isEmpty())
        posto_ = Posto(viewport()->width());
    larghezze_.insert(name, picture.deviceIndependentSize().width());
    return NelPosto(picture, posto_);
}

/// Those that the old width or the new one is too narrow for are drawn anew; the line on top stays there.
void TestoGuida::AdattaFigure() {
    const int before = std::exchange(posto_, Posto(viewport()->width()));
    const QTextCursor top = cursorForPosition({0, 0});
    bool changed = false;
    for (const auto& [name, width] : larghezze_.asKeyValueRange())
        if (posto_ != before && width > std::min(posto_, before)) {
            document()->addResource(QTextDocument::ImageResource, name,
                                    NelPosto(figura(name.path()), posto_));
            changed = true;
        }
    if (!changed)
        return;
    document()->markContentsDirty(0, document()->characterCount());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(top).top());
}

void TestoGuida::resizeEvent(QResizeEvent* event) {
    EventoProtetto([this, event] {
        QTextBrowser::resizeEvent(event);
        if (!larghezze_.isEmpty() && event->size().width() != event->oldSize().width())
            adatta_.start();
    });
}

void TestoGuida::wheelEvent(QWheelEvent* event) {
    EventoProtetto([this, event] {
        if (event->modifiers().testFlag(Qt::ControlModifier)) {
            Ingrandisce(event->angleDelta().y());
            event->accept();
        } else {
            QTextBrowser::wheelEvent(event);
        }
    });
}

/// @param giro  of the wheel, eighths of a degree: 120 in a notch, which is a point of the font
void TestoGuida::Ingrandisce(int giro) {
    constexpr double scatto = 120;
    constexpr double minimo = 6; // points
    constexpr double massimo = 40;
    const double now = font().pointSizeF();
    const double wanted = std::clamp(now + giro / scatto, minimo, massimo);
    if (const int points = static_cast<int>(wanted - now); points != 0)
        zoomIn(points);
}

} // namespace sagomi
