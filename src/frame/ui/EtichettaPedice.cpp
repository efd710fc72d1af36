#include "frame/ui/EtichettaPedice.h"

#include <QEvent>

namespace sagomi {

namespace {

constexpr double corpoPedice = 0.72; ///< size of the subscript against the text

} // namespace

EtichettaPedice::EtichettaPedice(QWidget* parent) : QLabel(parent), pedice_(new QLabel(this)) {
    setTextFormat(Qt::PlainText);
    pedice_->setTextFormat(Qt::PlainText);
    pedice_->setAttribute(Qt::WA_TransparentForMouseEvents);
    pedice_->setMargin(0);
}

void EtichettaPedice::ImpostaPedice(const QString& testo) {
    pedice_->setText(testo);
    Disponi();
}

void EtichettaPedice::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    Disponi();
}

void EtichettaPedice::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        Disponi();
}

void EtichettaPedice::Disponi() {
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() * corpoPedice);
    if (pedice_->font() != small)
        pedice_->setFont(small);
    pedice_->adjustSize();
    const QFontMetrics big = fontMetrics();
    const int gap = static_cast<int>(text().indexOf(u' '));
    const int start = big.horizontalAdvance(text().left(gap < 0 ? text().size() : gap));
    const int slack = (alignment() & Qt::AlignRight) != 0 ? width() - big.horizontalAdvance(text()) - 1 : 0;
    const int baseline = (height() + big.ascent() - big.descent()) / 2;
    pedice_->move(slack + start + 1, baseline - pedice_->fontMetrics().ascent() + big.descent());
}

} // namespace sagomi
