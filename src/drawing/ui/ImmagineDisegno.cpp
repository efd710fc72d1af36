#include "drawing/ui/ImmagineDisegno.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "drawing/Grafica.h"
#include "drawing/ui/DipingeProtetto.h"
#include "drawing/ui/MenuDisegno.h"
#include "drawing/ui/SuperficieFigura.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

ImmagineDisegno::ImmagineDisegno(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ImmagineDisegno::Mostra(Disegno disegno) {
    const QSize before = sizeHint();
    disegno_ = std::move(disegno);
    setFocusPolicy(disegno_.PlottaInOggetto ? Qt::TabFocus : Qt::NoFocus);
    if (sizeHint() != before)
        updateGeometry();
    update();
}

QSize ImmagineDisegno::sizeHint() const { return InPixel(disegno_.misura, font()); }

QSize ImmagineDisegno::minimumSizeHint() const {
    return disegno_.minima.larghezza > 0 ? InPixel(disegno_.minima, font()) : sizeHint();
}

void ImmagineDisegno::paintEvent(QPaintEvent* /*event*/) {
    if (!disegno_.PlottaInOggetto)
        return;
    DipintoProtetto(this, [this] {
        QPainter painter(this);
        if (!DipingeDisegno(painter, *this, disegno_))
            disegno_.PlottaInOggetto = {};
        if (hasFocus()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    });
}

void ImmagineDisegno::contextMenuEvent(QContextMenuEvent* event) {
    EventoProtetto([&] { MostraMenuDisegno(*this, disegno_, event->globalPos()); });
}

bool DipingeDisegno(QPainter& pittore, QWidget& widget, const Disegno& disegno) {
    SuperficieFigura surface(pittore, widget.size(), widget.font(), widget.palette());
    return DipingeProtetto(&widget, [&] {
        Dispositivo = dispositivoVideo;
        ColorePenna = pennaInchiostro;
        OggettoGrafico = &surface;
        disegno.PlottaInOggetto(&surface, widget.window()->objectName().toStdString());
    });
}

} // namespace sagomi
