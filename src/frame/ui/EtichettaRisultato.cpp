#include "frame/ui/EtichettaRisultato.h"

#include <QStyleOptionFrame>
#include <QStylePainter>

#include <algorithm>

#include "frame/Numeri.h"
#include "frame/ui/Accessibilita.h"
#include "frame/ui/Protetto.h"

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

void EtichettaRisultato::ImpostaDecimali(int n) {
    decimali_ = n;
    updateGeometry();
    update();
}

/// Room of the places that the number does not have. What is no number stands at the edge.
int EtichettaRisultato::Rientro() const {
    const QString shown = text().trimmed();
    if (decimali_ < 0 || shown.isEmpty() || !shown.back().isDigit())
        return 0;
    const QChar separator(static_cast<ushort>(CarDecimale));
    const auto at = shown.lastIndexOf(separator);
    const auto places = at < 0 ? 0 : shown.size() - at - 1;
    const int missing = std::max(0, decimali_ - static_cast<int>(places));
    return missing * fontMetrics().horizontalAdvance(u'0') +
           (at < 0 && decimali_ > 0 ? fontMetrics().horizontalAdvance(separator) : 0);
}

// The text of a label changes without a word to it: the indent follows when it is painted.
void EtichettaRisultato::paintEvent(QPaintEvent* event) {
    DipintoProtetto(this, [this] {
        if (indent() != Rientro())
            setIndent(Rientro());
        if (frameShape() != QFrame::NoFrame)
            DipingeCornice();
    });
    EtichettaSimbolo::paintEvent(event);
}

void EtichettaRisultato::initStyleOption(QStyleOptionFrame* option) const {
    EtichettaSimbolo::initStyleOption(option);
    option->frameShape = QFrame::NoFrame;
}

// Results look alike, whether they stand in a label or in a box that is read only.
void EtichettaRisultato::DipingeCornice() {
    QStylePainter painter(this);
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, this);
    frame.state.setFlag(QStyle::State_HasFocus, false);
    frame.state |= QStyle::State_Sunken | QStyle::State_ReadOnly;
    frame.palette.setBrush(QPalette::Base, palette().brush(QPalette::Window));
    painter.drawPrimitive(QStyle::PE_PanelLineEdit, frame);
}

QSize EtichettaRisultato::sizeHint() const {
    const int border = 2 * (margine + frameWidth());
    QFont upright = font(); // a value that becomes bold leaves its column as wide as it was
    upright.setBold(false);
    const int figures = QFontMetrics(upright).horizontalAdvance(u'0') * caratteri_ + border;
    const int content = EtichettaSimbolo::sizeHint().width() - std::max(indent(), 0) + Rientro();
    const bool bare = frameShape() == QFrame::NoFrame;
    return {std::max(content, figures), bare ? fontMetrics().height() + border : AltezzaCasella()};
}

/// Height of a box: a line, which the toolkit takes for no lower than an icon, and what the style puts round.
int EtichettaRisultato::AltezzaCasella() const {
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, this);
    constexpr int rigaMinima = 14;
    constexpr int margineRiga = 1;
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const int least = std::max(rigaMinima, icon - 2);
    const int line = std::max(fontMetrics().height(), least) + 2 * margineRiga;
    const int lower = std::max(0, rigaMinima - fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_LineEdit, &frame, {0, line}, this).height() - lower;
}

} // namespace sagomi
