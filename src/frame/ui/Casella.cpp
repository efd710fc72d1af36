#include "frame/ui/Casella.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>

#include <algorithm>

#include "frame/ui/Colori.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

constexpr int margine = 14;  ///< between text and edges, both sides together [px]
constexpr float velo = 0.3F; ///< of the tints: seen in light and dark palettes, the text stays readable

} // namespace

Casella::Casella(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textChanged, this, &Casella::MostraTesta);
    // The same text again is no change, but leaves the cursor at its end.
    connect(this, &QLineEdit::cursorPositionChanged, this, [this](int /*old*/, int now) {
        if (now != 0 && Risultato() && !hasFocus() && !hasSelectedText())
            setCursorPosition(0);
    });
}

void Casella::ImpostaCaratteri(int n) {
    caratteri_ = n;
    updateGeometry();
}

void Casella::ImpostaRisultato(bool risultato) {
    setReadOnly(risultato);
    setFocusPolicy(risultato ? Qt::ClickFocus : Qt::StrongFocus);
    Colora();
    MostraTesta();
}

void Casella::ImpostaSegno(Segno segno) {
    if (segno == segno_)
        return;
    segno_ = segno;
    Colora();
}

// The first figures of a number are the ones that count; a box left to itself shows the last ones.
void Casella::MostraTesta() {
    const int room = testAttribute(Qt::WA_Resized) ? width() : sizeHint().width(); // before it is laid out
    const bool cut = Risultato() && fontMetrics().horizontalAdvance(text()) > room - margine / 2;
    if (Risultato())
        setCursorPosition(0);
    if (intero_.isEmpty() || toolTip() != intero_)
        suggerimento_ = toolTip();
    intero_ = !cut ? QString() : suggerimento_.isEmpty() ? text() : text() + u'\n' + suggerimento_;
    setToolTip(cut ? intero_ : suggerimento_);
}

void Casella::resizeEvent(QResizeEvent* event) {
    EventoProtetto([this, event] {
        QLineEdit::resizeEvent(event);
        MostraTesta();
    });
}

QSize Casella::sizeHint() const {
    constexpr int rigaMinima = 14; // the toolkit takes no line for lower [px]
    const int lower = std::max(0, rigaMinima - fontMetrics().height());
    QFont upright = font(); // a value that becomes bold leaves its column as wide as it was
    upright.setBold(false);
    return {QFontMetrics(upright).horizontalAdvance(u'0') * caratteri_ + margine,
            QLineEdit::sizeHint().height() - lower};
}

void Casella::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    EventoProtetto([this, event] {
        if (event->type() == QEvent::FontChange)
            updateGeometry();
        if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange ||
            event->type() == QEvent::PaletteChange)
            Colora();
    });
}

void Casella::Colora() {
    if (colorando_)
        return; // setting the palette announces a change of palette
    const QScopedValueRollback guard(colorando_, true);
    QPalette colours;
    if (const auto ink = property("inchiostro").value<QColor>(); ink.isValid())
        colours.setColor(QPalette::Text, ink); // that a screen has given to the value
    const QColor ground = QApplication::palette().color(QPalette::Base);
    if (isReadOnly() && segno_ != DaAggiornare)
        colours.setBrush(QPalette::Base, QApplication::palette().brush(QPalette::Window));
    else if (segno_ != Nessuno)
        colours.setColor(
            QPalette::Base,
            Velo(ground, segno_ == Impossibile ? QColor(255, 64, 48) : QColor(255, 176, 0), velo));
    setPalette(colours);
}

} // namespace sagomi
