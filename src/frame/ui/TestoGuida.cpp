#include "frame/ui/TestoGuida.h"

#include <QImage>
#include <QWheelEvent>

#include <algorithm>

#include "frame/ui/IndiceGuida.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

/// A picture no wider than the page, which has a width before it is seen as well.
QImage NellaPagina(const QImage& picture, int pagina) {
    constexpr int stretta = 560; // [px]
    constexpr int margini = 24;
    const int room = std::max(pagina, stretta) - margini;
    if (picture.deviceIndependentSize().width() <= room)
        return picture;
    return picture.scaledToWidth(qRound(room * picture.devicePixelRatio()), Qt::SmoothTransformation);
}

} // namespace

TestoGuida::TestoGuida(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("TestoGuida"));
    setAccessibleName(tr("Testo della guida"));
    setOpenExternalLinks(false);
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
        return NellaPagina(figura(name.path()), viewport()->width());
    if (type != QTextDocument::HtmlResource)
        return {};
    return LeggeGuida(name.path().section(u'/', -1));
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
