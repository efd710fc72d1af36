#include "frame/ui/EtichettaRisultato.h"

#include <algorithm>

#include "frame/ui/Accessibilita.h"

namespace sagomi {

namespace {

constexpr int margine = 3; ///< between text and frame [px]

} // namespace

EtichettaRisultato::EtichettaRisultato(QWidget* parent) : EtichettaSimbolo(parent) {
    InstallaAccessibilita();
    setFrameShape(QFrame::StyledPanel);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setMargin(margine);
    setIndent(0); // the same room for texts that the label paints itself
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void EtichettaRisultato::ImpostaCaratteri(int n) {
    caratteri_ = n;
    updateGeometry();
}

QSize EtichettaRisultato::sizeHint() const {
    const int border = 2 * (margine + frameWidth());
    const int figures = fontMetrics().horizontalAdvance(u'0') * caratteri_ + border;
    return {std::max(EtichettaSimbolo::sizeHint().width(), figures), fontMetrics().height() + border};
}

} // namespace sagomi
