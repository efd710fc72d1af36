#include "screens/PulsanteDiagramma.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "screens/DisegniMomento.h"

namespace sagomi {

namespace {

constexpr double larghezzaDiagramma = 56; ///< of the diagram between its names [px]
constexpr double altezzaDiagramma = 46;
constexpr int bordo = 5;

} // namespace

PulsanteDiagramma::PulsanteDiagramma(QWidget* parent) : QAbstractButton(parent) {
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PulsanteDiagramma::ImpostaPict(int pict) {
    pict_ = static_cast<std::int16_t>(pict);
    update();
}

QSize PulsanteDiagramma::sizeHint() const {
    const int names = 2 * fontMetrics().horizontalAdvance(QStringLiteral("M1 "));
    return {static_cast<int>(larghezzaDiagramma) + names + 2 * bordo,
            static_cast<int>(altezzaDiagramma) + 2 * bordo};
}

void PulsanteDiagramma::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

bool PulsanteDiagramma::event(QEvent* event) {
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave)
        update();
    return QAbstractButton::event(event);
}

void PulsanteDiagramma::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor edge = palette().color(isChecked() ? QPalette::Highlight : QPalette::Mid);
    painter.setPen(QPen(edge, isChecked() ? 2 : 1));
    painter.setBrush(palette().brush(QPalette::Base));
    painter.drawRoundedRect(frame, 3, 3);
    const double name = painter.fontMetrics().horizontalAdvance(QStringLiteral("M1 "));
    TavolaTrave table(painter, QRectF(rect()).adjusted(bordo + name, bordo, -bordo - name, -bordo),
                      palette());
    DisegnaPict(table, pict_);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(3, 3, -3, -3);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace sagomi
