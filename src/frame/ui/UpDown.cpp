#include "frame/ui/UpDown.h"

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>

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

QSize UpDown::sizeHint() const {
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QRect arrow = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    return {std::max(arrow.width(), fontMetrics().height()) + 4, QAbstractSpinBox::sizeHint().height()};
}

} // namespace sagomi
