#include "frame/ui/EtichettaSimbolo.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

#include "frame/ui/Colori.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

void EtichettaSimbolo::paintEvent(QPaintEvent* event) {
    const QColor ink = palette().color(foregroundRole());
    const QColor shown = Leggibile(ink, palette().color(backgroundRole()));
    if (!text().contains(u'¥') && (shown == ink || hasSelectedText())) {
        QLabel::paintEvent(event);
        return;
    }
    DipintoProtetto(this, [this, &shown] {
        QPainter painter(this);
        drawFrame(&painter);
        const QString read = QString(text()).replace(u'¥', QChar(0x221E));
        const int behind = alignment().testFlag(Qt::AlignRight) ? std::max(indent(), 0) : 0;
        const QRect inside = contentsRect().adjusted(margin(), margin(), -margin() - behind, -margin());
        QPalette colours = palette();
        colours.setColor(foregroundRole(), shown);
        style()->drawItemText(&painter, inside, static_cast<int>(alignment()), colours, isEnabled(), read,
                              foregroundRole());
    });
}

} // namespace sagomi
