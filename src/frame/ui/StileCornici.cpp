#include "frame/ui/StileCornici.h"

#include <QGroupBox>
#include <QImage>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace sagomi {

namespace {

constexpr int capo = 8;                  ///< width of an end: corners are rounder nowhere [px]
constexpr int provino = 3 * capo;        ///< width at which the style paints a frame once [px]
constexpr qsizetype massimeCornici = 64; ///< heights and colours of several screens

constexpr int sottoTitolo = 3; ///< from a group's title to its frame, as in Fusion [px]
constexpr int tonoLinea = 15;  ///< of the text's colour in a group's frame [%]

QColor TraColori(const QColor& ground, const QColor& text) {
    const auto between = [](int a, int b) { return a + (b - a) * tonoLinea / 100; };
    return {between(ground.red(), text.red()), between(ground.green(), text.green()),
            between(ground.blue(), text.blue())};
}

bool Intero(double v) { return v == std::floor(v); }

/// A widget's own painting: no scale but that of the device, whole pixels.
bool SuiPixel(const QPainter& painter) {
    const QTransform& t = painter.worldTransform();
    return t.type() <= QTransform::TxTranslate && Intero(t.dx()) && Intero(t.dy()) &&
           Intero(painter.device()->devicePixelRatioF()) && painter.opacity() == 1 &&
           painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

int Rapporto(const QPainter& painter) { return int(painter.device()->devicePixelRatioF()); }

template <typename T> void Aggiunge(QByteArray& key, const T& value) {
    key.append(reinterpret_cast<const char*>(&value), sizeof value);
}

/// What the look of a frame depends on, but for its width.
QByteArray ChiaveDi(const QStyleOption& option, const QPainter& painter) {
    QByteArray key;
    Aggiunge(key, Rapporto(painter));
    Aggiunge(key, int(painter.renderHints()));
    Aggiunge(key, option.rect.height());
    Aggiunge(key, int(option.state));
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Highlight, QPalette::Button})
        Aggiunge(key, option.palette.color(role).rgba());
    return key;
}

} // namespace

void StileCornici::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opzioni, QPainter* pittore,
                                 const QWidget* widget) const {
    const bool fusion = (elemento == PE_FrameLineEdit || elemento == PE_FrameGroupBox) &&
                        opzioni != nullptr && baseStyle()->inherits("QFusionStyle");
    if (fusion && elemento == PE_FrameGroupBox) {
        DipingeGruppo(*opzioni, *pittore, widget);
        return;
    }
    if (!fusion || opzioni->rect.width() < provino || !SuiPixel(*pittore) ||
        opzioni->palette.window().style() != Qt::SolidPattern) {
        QProxyStyle::drawPrimitive(elemento, opzioni, pittore, widget);
        return;
    }
    const int ratio = Rapporto(*pittore);
    const Cornice& cornice = CorniceDi(*opzioni, *pittore, widget);
    if (!cornice.intera) {
        QProxyStyle::drawPrimitive(elemento, opzioni, pittore, widget);
        return;
    }
    const QRect& room = opzioni->rect;
    pittore->drawPixmap(room.topLeft(), cornice.sinistra);
    pittore->drawPixmap(room.left() + room.width() - capo, room.top(), cornice.destra);
    for (const Fascia& band : cornice.fasce)
        pittore->fillRect(QRectF(room.left() + capo, room.top() + double(band.da) / ratio,
                                 room.width() - 2 * capo, double(band.righe) / ratio),
                          band.colore);
}

const StileCornici::Cornice& StileCornici::CorniceDi(const QStyleOption& opzione, const QPainter& pittore,
                                                     const QWidget* widget) const {
    const QByteArray key = ChiaveDi(opzione, pittore);
    auto known = cornici_.constFind(key);
    if (known == cornici_.constEnd()) {
        if (cornici_.size() >= massimeCornici)
            cornici_.clear();
        known = cornici_.insert(key, Prepara(opzione, pittore, widget));
    }
    return *known;
}

StileCornici::Cornice StileCornici::Prepara(const QStyleOption& opzione, const QPainter& pittore,
                                            const QWidget* widget) const {
    const int rapporto = Rapporto(pittore);
    QImage image(provino * rapporto, opzione.rect.height() * rapporto, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(rapporto);
    image.fill(Qt::transparent);
    {
        QStyleOption narrow = opzione; // the frame asks for no more
        narrow.type = QStyleOption::SO_Default;
        narrow.rect = QRect(0, 0, provino, opzione.rect.height());
        QPainter painter(&image);
        painter.setRenderHints(pittore.renderHints());
        QProxyStyle::drawPrimitive(PE_FrameLineEdit, &narrow, &painter, widget);
    }
    const int end = capo * rapporto;
    Cornice cornice;
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = end; x < image.width() - end; ++x)
            if (row[x] != row[end])
                return {};
        const QColor colour = image.pixelColor(end, y);
        if (!cornice.fasce.isEmpty() && cornice.fasce.back().colore == colour &&
            cornice.fasce.back().da + cornice.fasce.back().righe == y)
            ++cornice.fasce.back().righe;
        else if (colour.alpha() > 0)
            cornice.fasce.append({y, 1, colour});
    }
    cornice.sinistra = QPixmap::fromImage(image.copy(0, 0, end, image.height()));
    cornice.destra = QPixmap::fromImage(image.copy(image.width() - end, 0, end, image.height()));
    cornice.intera = true;
    return cornice;
}

// Opaque stretches of whole pixels: what is translucent or round goes through the toolkit's threads.
void StileCornici::DipingeGruppo(const QStyleOption& opzione, QPainter& pittore,
                                 const QWidget* widget) const {
    const auto* group = qobject_cast<const QGroupBox*>(widget);
    const bool untitled = group != nullptr && !group->isCheckable() && group->title().isEmpty();
    const int title =
        untitled ? 0
                 : std::max(pixelMetric(PM_IndicatorHeight, &opzione, widget), opzione.fontMetrics.height());
    const QRect frame = opzione.rect.adjusted(0, title + sottoTitolo, 0, 0);
    if (frame.width() < 2 || frame.height() < 2)
        return;
    const QColor line = TraColori(opzione.palette.window().color(), opzione.palette.windowText().color());
    pittore.fillRect(frame.left() + 1, frame.top(), frame.width() - 2, 1, line);
    pittore.fillRect(frame.left() + 1, frame.bottom(), frame.width() - 2, 1, line);
    pittore.fillRect(frame.left(), frame.top() + 1, 1, frame.height() - 2, line);
    pittore.fillRect(frame.right(), frame.top() + 1, 1, frame.height() - 2, line);
}

} // namespace sagomi
