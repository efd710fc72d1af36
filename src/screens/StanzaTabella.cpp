#include "screens/StanzaTabella.h"

#include <QEvent>

#include "catalogue/ui/GrigliaCatalogo.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

StanzaTabella::StanzaTabella(GrigliaCatalogo* tabella, QWidget* parent) : QWidget(parent), tabella_(tabella) {
    tabella->setParent(this);
    setFocusProxy(tabella);
}

QSize StanzaTabella::sizeHint() const { return tabella_->sizeHint(); }

QSize StanzaTabella::minimumSizeHint() const { return tabella_->minimumSizeHint(); }

void StanzaTabella::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    EventoProtetto([this] { Posa(); });
}

// The table has other rows or heads.
bool StanzaTabella::event(QEvent* event) {
    return EventoProtetto([this, event] {
        if (event->type() == QEvent::LayoutRequest) {
            Posa();
            updateGeometry();
        }
        return QWidget::event(event);
    });
}

void StanzaTabella::Posa() { tabella_->setGeometry(0, 0, width(), tabella_->AltezzaIntera(height())); }

} // namespace sagomi
