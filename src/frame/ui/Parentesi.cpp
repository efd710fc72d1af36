#include "frame/ui/Parentesi.h"

#include <QPainter>
#include <QPainterPath>

#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

constexpr double spessore = 1.2;

} // namespace

Parentesi::Parentesi(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Parentesi::ImpostaDestra(bool destra) {
    destra_ = destra;
    update();
}

QSize Parentesi::sizeHint() const { return {fontMetrics().horizontalAdvance(u'('), fontMetrics().height()}; }

void Parentesi::paintEvent(QPaintEvent* /*event*/) {
    DipintoProtetto(this, [this] { Dipinge(); });
}

void Parentesi::Dipinge() {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::WindowText), spessore));
    const QRectF room = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    const double tips = destra_ ? room.left() : room.right();
    const double belly = destra_ ? 2 * room.right() - tips : 2 * room.left() - tips; // of the curve's control
    QPainterPath arc(QPointF(tips, room.top()));
    arc.quadTo(QPointF(belly, room.center().y()), QPointF(tips, room.bottom()));
    painter.drawPath(arc);
}

} // namespace sagomi
