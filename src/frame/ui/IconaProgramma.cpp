#include "frame/ui/IconaProgramma.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <map>
#include <utility>

namespace sagomi {

namespace {

const QColor fondo(0x1B, 0x4F, 0x72);
const QColor acciaio(0xF2, 0xF4, 0xF5);

// In units of the side of the icon.
constexpr double angolo = 0.18;                   ///< radius of the ground's corners
constexpr double sinistra = 0.22, alto = 0.16;    ///< of the section
constexpr double spessoreAla = 0.12, anima = 0.1; ///< thicknesses
constexpr double raccordo = 0.07;                 ///< root radius

/// A double-T: two flanges, a web, and the roots between them.
QPainterPath Profilo() {
    QPainterPath section;
    section.setFillRule(Qt::WindingFill);
    const double width = 1 - 2 * sinistra;
    const double below = alto + spessoreAla; // of the upper flange
    section.addRect(QRectF(sinistra, alto, width, spessoreAla));
    section.addRect(QRectF(sinistra, 1 - below, width, spessoreAla));
    section.addRect(QRectF(0.5 - anima / 2, below, anima, 1 - 2 * below));
    QPainterPath roots;
    const double out = anima / 2 + raccordo;
    roots.addRect(QRectF(0.5 - out, below, 2 * out, 1 - 2 * below));
    QPainterPath hollows;
    for (const double centre : {0.5 - out, 0.5 + out})
        hollows.addRoundedRect(QRectF(centre - raccordo, below, 2 * raccordo, 1 - 2 * below), raccordo,
                               raccordo);
    return section.united(roots.subtracted(hollows));
}

class Disegnatore : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        const double side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center() - QPointF(side, side) / 2);
        painter->scale(side, side);
        painter->setPen(Qt::NoPen);
        painter->setBrush(fondo);
        painter->drawRoundedRect(QRectF(0, 0, 1, 1), angolo, angolo);
        static const QPainterPath profile = Profilo();
        painter->fillPath(profile, acciaio);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap& picture = dipinte_[std::pair(size.width(), size.height())];
        if (picture.isNull() && !size.isEmpty()) {
            picture = QPixmap(size);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            paint(&painter, QRect(QPoint(), size), mode, state);
        }
        return picture;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new Disegnatore(*this); }

private:
    std::map<std::pair<int, int>, QPixmap> dipinte_; ///< a window asks twice for each size [px]
};

} // namespace

QIcon IconaProgramma() { return QIcon(new Disegnatore); }

} // namespace sagomi
