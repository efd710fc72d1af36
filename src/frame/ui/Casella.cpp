#include "frame/ui/Casella.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>

#include "frame/ui/Protetto.h"

namespace sagomi {

Casella::Casella(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Casella::ImpostaCaratteri(int n) {
    caratteri_ = n;
    updateGeometry();
}

void Casella::ImpostaRisultato(bool risultato) {
    setReadOnly(risultato);
    setFocusPolicy(risultato ? Qt::ClickFocus : Qt::StrongFocus);
    Colora();
}

QSize Casella::sizeHint() const {
    const QSize line = QLineEdit::sizeHint();
    return {fontMetrics().horizontalAdvance(u'0') * caratteri_ + 14, line.height()};
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
    if (isReadOnly())
        colours.setBrush(QPalette::Base, QApplication::palette().brush(QPalette::Window));
    setPalette(colours);
}

} // namespace sagomi
