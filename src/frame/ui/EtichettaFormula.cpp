#include "frame/ui/EtichettaFormula.h"

#include <QPainter>
#include <QStyle>

#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

constexpr double corpoPedice = 0.72; ///< size of a subscript against the text
constexpr int spazio = 1;            ///< before and behind a subscript [px]

enum class Quota { Testo, Pedice, Apice };

/// A stretch of a formula in one size.
struct Tratto {
    QString testo;
    Quota quota = Quota::Testo;
};

QList<Tratto> Tratti(const QString& markup) {
    QList<Tratto> parts;
    bool small = false;
    bool high = false;
    for (QString piece : QString(markup).replace(u'}', u'{').split(u'{')) {
        const Quota at = !small ? Quota::Testo : high ? Quota::Apice : Quota::Pedice;
        high = !small && piece.endsWith(u'^');
        if (high)
            piece.chop(1);
        if (!piece.isEmpty())
            parts.append({piece, at});
        small = !small;
    }
    return parts;
}

QString Testo(const QString& markup) {
    QString text;
    for (const Tratto& t : Tratti(markup))
        text += t.testo;
    return text;
}

QFont Piccolo(QFont font) {
    font.setPointSizeF(font.pointSizeF() * corpoPedice);
    return font;
}

int Larghezza(const Tratto& t, const QFontMetrics& big, const QFontMetrics& small) {
    return t.quota == Quota::Testo ? big.horizontalAdvance(t.testo)
                                   : small.horizontalAdvance(t.testo) + 2 * spazio;
}

int Larghezza(const QList<Tratto>& parts, const QFont& font) {
    int width = 0;
    for (const Tratto& t : parts)
        width += Larghezza(t, QFontMetrics(font), QFontMetrics(Piccolo(font)));
    return width;
}

/// @param x         left end [px]
/// @param baseline  of the text [px]
void Dipinge(QPainter& painter, const QList<Tratto>& parts, int x, int baseline) {
    const QFont font = painter.font();
    const QFontMetrics big(font);
    for (const Tratto& t : parts) {
        const bool text = t.quota == Quota::Testo;
        const int drop = text ? 0 : t.quota == Quota::Pedice ? big.descent() : -big.ascent() / 2;
        painter.setFont(text ? font : Piccolo(font));
        painter.drawText(x + (text ? 0 : spazio), baseline + drop, t.testo);
        x += Larghezza(t, big, QFontMetrics(Piccolo(font)));
    }
}

} // namespace

EtichettaFormula::EtichettaFormula(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void EtichettaFormula::ImpostaFormula(const QString& markup) {
    formula_ = markup;
    setText(Testo(markup));
}

void EtichettaFormula::ImpostaSimbolo(const QString& markup) {
    simbolo_ = markup;
    updateGeometry();
    update();
}

QString EtichettaFormula::Markup() const {
    const QString body = text() == Testo(formula_) ? formula_ : text(); // a word can take its place
    return simbolo_.isEmpty() ? body : body + QStringLiteral("  ") + simbolo_;
}

QSize EtichettaFormula::sizeHint() const {
    const QFontMetrics small(Piccolo(font()));
    const bool low = Markup().contains(u'{');
    return {Larghezza(Tratti(Markup()), font()) + 1,
            fontMetrics().height() + (low ? 2 * small.descent() : 0)};
}

void EtichettaFormula::paintEvent(QPaintEvent* /*event*/) {
    DipintoProtetto(this, [this] {
        QPainter painter(this);
        painter.setPen(
            palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
        const auto parts = Tratti(Markup());
        const QSize content(Larghezza(parts, font()), fontMetrics().height());
        const QRect place = QStyle::alignedRect(layoutDirection(), alignment(), content, contentsRect());
        Dipinge(painter, parts, place.left(), place.top() + fontMetrics().ascent());
    });
}

} // namespace sagomi
