#include "frame/ui/UpDown.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include "frame/ui/Protetto.h"

namespace sagomi {

UpDown::UpDown(QWidget* parent) : QAbstractSpinBox(parent) {
    lineEdit()->hide(); // nothing is typed here
    lineEdit()->setReadOnly(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void UpDown::stepBy(int steps) {
    for (int i = 0; i < std::abs(steps); ++i)
        emit passo(steps > 0);
}

// A message that the step has brought up takes the release of the mouse, and the steps would never end.
void UpDown::timerEvent(QTimerEvent* event) {
    EventoProtetto([this, event] {
        const QWidget* modal = QApplication::activeModalWidget();
        const bool held = (QGuiApplication::mouseButtons() & Qt::LeftButton) != 0;
        if (held && (modal == nullptr || modal == window())) {
            QAbstractSpinBox::timerEvent(event);
            return;
        }
        QMouseEvent up(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::LeftButton, Qt::NoButton,
                       Qt::NoModifier);
        QAbstractSpinBox::mouseReleaseEvent(&up);
    });
}

QSize UpDown::sizeHint() const {
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QRect arrow = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    return {std::max(arrow.width(), fontMetrics().height()) + 4, QAbstractSpinBox::sizeHint().height()};
}

} // namespace sagomi
