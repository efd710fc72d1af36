#include "criticalloads/ui/DisegnoTrave.h"

#include <QPainter>

#include "criticalloads/ui/TavolaTrave.h"

namespace sagomi {

DisegnoTrave::DisegnoTrave(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DisegnoTrave::Mostra(bool mensola, bool distribuito, int quota) {
    mensola_ = mensola;
    distribuito_ = distribuito;
    quota_ = quota;
    update();
}

void DisegnoTrave::paintEvent(QPaintEvent* /*event*/) {
    constexpr double altezza = 22; // of the beam [px]
    constexpr double bordo = 14;
    QPainter painter(this);
    const QRectF frame = QRectF(rect()).adjusted(bordo, 4, -bordo, -4);
    TavolaTrave table(painter, frame, palette());
    table.Profilo(altezza);
    if (mensola_) {
        table.Incastro(0, altezza);
    } else {
        table.Appoggio(0, altezza / 2);
        table.Appoggio(1, altezza / 2);
    }
    const double above = (1 - quota_) * altezza / 2;
    if (distribuito_)
        table.CaricoDistribuito(above);
    else
        table.Forza(mensola_ ? 1 : 0.5, above);
    // clear of the load: beside a single arrow, under the beam for a row of them
    if (distribuito_)
        table.Nome(table.Punto(0.5, 0) + QPointF(0, altezza / 2), QStringLiteral("q"), 0, 1);
    else
        table.Nome(table.Punto(mensola_ ? 1 : 0.5, 1), QStringLiteral("P"), mensola_ ? -1 : 1, 1);
}

} // namespace sagomi
