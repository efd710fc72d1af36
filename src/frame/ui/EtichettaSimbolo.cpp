#include "frame/ui/EtichettaSimbolo.h"

#include <QPainter>
#include <QStyle>

#include "frame/ui/Protetto.h"

namespace sagomi {

void EtichettaSimbolo::paintEvent(QPaintEvent* event) {
    if (!text().contains(u'¥')) {
        QLabel::paintEvent(event);
        return;
    }
    DipintoProtetto(this, [this] {
        QPainter painter(this);
        drawFrame(&painter);
        QString shown = text();
        shown.replace(u'¥', QChar(0x221E));
        const QRect inside = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
        style()->drawItemText(&painter, inside, static_cast<int>(alignment()), palette(), isEnabled(), shown,
                              foregroundRole());
    });
}

} // namespace sagomi
