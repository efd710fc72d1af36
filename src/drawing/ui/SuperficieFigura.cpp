#include "drawing/ui/SuperficieFigura.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

#include "frame/ui/Colori.h"

namespace sagomi {

namespace {

constexpr int opacitaFine = 170; ///< of the light ink, of 255
constexpr double minimo = 0.5;   ///< a picture is made so much smaller, with small texts

QColor Leggero(QColor ink) {
    ink.setAlpha(opacitaFine);
    return ink;
}

} // namespace

SuperficieFigura::SuperficieFigura(QPainter& pittore, const QSizeF& misura, const QFont& carattere,
                                   const QPalette& colori)
    : SuperficieQt(pittore, Carta{misura, 1, 1, carattere, colori.color(QPalette::WindowText),
                                  Leggero(colori.color(QPalette::WindowText)), colori.color(QPalette::Window),
                                  true, RossoSu(colori.color(QPalette::Window))}) {}

QSize InPixel(const Misura& misura, const QFont& carattere) {
    const int text = QFontMetrics(carattere).horizontalAdvance(QString::fromStdString(misura.campione));
    const double usual = QFontMetricsF(QApplication::font()).height();
    const double ratio = std::clamp(QFontMetricsF(carattere).height() / usual, minimo, 1.0);
    return {static_cast<int>(ratio * misura.larghezza) + text, static_cast<int>(ratio * misura.altezza)};
}

} // namespace sagomi
