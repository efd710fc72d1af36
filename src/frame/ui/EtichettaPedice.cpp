#include "frame/ui/EtichettaPedice.h"

#include <QEvent>

#include <algorithm>

#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

constexpr double corpoPedice = 0.72; ///< size of the subscript against the text
constexpr double alzata = 0.4;       ///< rise of the superscript, in ascents of the text

QLabel* Piccola(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setMargin(0);
    return label;
}

} // namespace

EtichettaPedice::EtichettaPedice(QWidget* parent)
    : QLabel(parent), pedice_(Piccola(this)), apice_(Piccola(this)) {
    setTextFormat(Qt::PlainText);
    AdattaCorpo();
}

void EtichettaPedice::ImpostaPedice(const QString& testo) {
    pedice_->setText(testo);
    updateGeometry();
    Dispone();
}

void EtichettaPedice::ImpostaApice(const QString& testo) {
    apice_->setText(testo);
    updateGeometry();
    Dispone();
}

QSize EtichettaPedice::sizeHint() const { return Contenuto().expandedTo(QLabel::sizeHint()); }

void EtichettaPedice::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    EventoProtetto([this] { Dispone(); });
}

void EtichettaPedice::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    EventoProtetto([this, event] {
        if (event->type() != QEvent::FontChange)
            return;
        AdattaCorpo();
        Dispone();
    });
}

int EtichettaPedice::InizioPedice() const {
    const auto gap = text().indexOf(u' ');
    return fontMetrics().horizontalAdvance(text().left(gap < 0 ? text().size() : gap));
}

int EtichettaPedice::InizioApice() const {
    auto gap = text().lastIndexOf(u' ');
    while (gap > 0 && text().at(gap - 1) == u' ')
        --gap;
    return fontMetrics().horizontalAdvance(text().left(gap < 0 ? text().size() : gap));
}

/// Room of the text with what stands over its gaps.
QSize EtichettaPedice::Contenuto() const {
    const QFontMetrics small = pedice_->fontMetrics();
    const auto end = [&small](int start, const QString& t) {
        return t.isEmpty() ? 0 : start + 2 + small.horizontalAdvance(t);
    };
    const int width = std::max({fontMetrics().horizontalAdvance(text()) + 1,
                                end(InizioPedice(), pedice_->text()), end(InizioApice(), apice_->text())});
    const bool low = !pedice_->text().isEmpty();
    return {width, fontMetrics().height() + (low ? 2 * small.descent() : 0)};
}

void EtichettaPedice::AdattaCorpo() {
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() * corpoPedice);
    pedice_->setFont(small);
    apice_->setFont(small);
}

void EtichettaPedice::Dispone() {
    pedice_->adjustSize();
    apice_->adjustSize();
    const QFontMetrics big = fontMetrics();
    const int spare = width() - Contenuto().width();
    const int slack = (alignment() & Qt::AlignRight) != 0     ? spare
                      : (alignment() & Qt::AlignHCenter) != 0 ? spare / 2
                                                              : 0;
    const int baseline = (height() + big.ascent() - big.descent()) / 2;
    const int ascent = pedice_->fontMetrics().ascent();
    pedice_->move(slack + InizioPedice() + 1, baseline - ascent + big.descent());
    apice_->move(slack + InizioApice() + 1, baseline - ascent - static_cast<int>(alzata * big.ascent()));
}

} // namespace sagomi
