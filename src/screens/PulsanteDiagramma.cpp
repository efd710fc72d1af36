#include "screens/PulsanteDiagramma.h"

#include <QButtonGroup>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "drawing/ui/ImmagineDisegno.h"
#include "drawing/ui/MenuDisegno.h"
#include "drawing/ui/SuperficieFigura.h"
#include "frame/ui/Protetto.h"
#include "sections/DisegniMomento.h"

namespace sagomi {

PulsanteDiagramma::PulsanteDiagramma(QWidget* parent) : QAbstractButton(parent) {
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PulsanteDiagramma::ImpostaPict(int pict) {
    pict_ = static_cast<std::int16_t>(pict);
    update();
}

QSize PulsanteDiagramma::sizeHint() const { return InPixel(DisegnoPict(pict_).misura, font()); }

void PulsanteDiagramma::contextMenuEvent(QContextMenuEvent* event) {
    EventoProtetto([&] { MostraMenuDisegno(*this, DisegnoPict(pict_), event->globalPos()); });
}

void PulsanteDiagramma::keyPressEvent(QKeyEvent* event) {
    EventoProtetto([this, event] {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else if (!FrecciaFra(event->key()))
            QAbstractButton::keyPressEvent(event);
    });
}

/// An arrow goes to the next picture of the group, or to the one before, and chooses it.
bool PulsanteDiagramma::FrecciaFra(int key) {
    const bool forward = key == Qt::Key_Right || key == Qt::Key_Down;
    if (group() == nullptr || (!forward && key != Qt::Key_Left && key != Qt::Key_Up))
        return false;
    const auto all = group()->buttons();
    const auto next = (all.indexOf(this) + (forward ? 1 : -1) + all.size()) % all.size();
    all[next]->setFocusPolicy(Qt::StrongFocus);
    all[next]->setFocus(Qt::TabFocusReason);
    all[next]->click();
    return true;
}

bool PulsanteDiagramma::event(QEvent* event) {
    return EventoProtetto([this, event] {
        if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave)
            update();
        return QAbstractButton::event(event);
    });
}

void PulsanteDiagramma::paintEvent(QPaintEvent* /*event*/) {
    DipintoProtetto(this, [this] { Dipinge(); });
}

void PulsanteDiagramma::Dipinge() {
    QPainter painter(this);
    const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor edge = palette().color(isChecked() ? QPalette::Highlight : QPalette::Mid);
    painter.setPen(QPen(edge, isChecked() ? 2 : 1));
    painter.setBrush(palette().brush(QPalette::Base));
    painter.drawRoundedRect(frame, 3, 3);
    DipingeDisegno(painter, *this, DisegnoPict(pict_));
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(3, 3, -3, -3);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace sagomi
