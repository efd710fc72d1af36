#include "drawing/ui/SuperficieSchermo.h"

#include <QPainter>

#include <cmath>

namespace sagomi {

SuperficieSchermo::SuperficieSchermo(QPainter& pittore, const QSizeF& misura, const QFont& carattere,
                                     const QColor& inchiostro, const VistaSchermo& vista)
    : SuperficieQt(pittore, Carta{misura, 1, 1, carattere, inchiostro}), vista_(vista),
      pixel_(pittore.device()->devicePixelRatioF()) {}

QPointF SuperficieSchermo::Vista(const QPointF& punto) const {
    const QPointF middle(carta().misura.width() / 2, carta().misura.height() / 2);
    return (punto - middle) * vista_.zoom + middle + vista_.spostamento;
}

void SuperficieSchermo::Assesta(QPointF& a, QPointF& b) const {
    constexpr double dritto = 0.01; // of a pixel
    const auto onPixel = [this](double v) { return (std::floor(v * pixel_) + 0.5) / pixel_; };
    if (std::abs(a.x() - b.x()) < dritto) {
        a.setX(onPixel(a.x()));
        b.setX(a.x());
    }
    if (std::abs(a.y() - b.y()) < dritto) {
        a.setY(onPixel(a.y()));
        b.setY(a.y());
    }
}

} // namespace sagomi
