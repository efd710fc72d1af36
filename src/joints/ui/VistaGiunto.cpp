#include "joints/ui/VistaGiunto.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPolygonF>
#include <QToolTip>

#include <algorithm>
#include <vector>

#include "frame/ui/Protetto.h"
#include "joints/FiguraGiunto.h"
#include "joints/Nodo.h"

namespace sagomi {

namespace {

/// The components in sight, each once, from the last that is hit to the first.
std::vector<ComponenteGiunto> InVista(const TracciatoNodo& t) {
    std::vector<ComponenteGiunto> seen;
    for (const ZonaNodo& z : t.zone)
        if (std::find(seen.begin(), seen.end(), z.quale.componente) == seen.end())
            seen.push_back(z.quale.componente);
    return seen;
}

} // namespace

VistaGiunto::VistaGiunto(QWidget* parent)
    : ImmagineDisegno(parent), tracciato_(std::make_shared<TracciatoNodo>()) {
    setAccessibleName(QStringLiteral("Disegno del giunto"));
}

void VistaGiunto::Mostra(const Nodo& nodo, const Giunto* giunto, const EvidenzaGiunto& evidenza) {
    ImmagineDisegno::Mostra(FiguraGiunto(nodo, giunto, evidenza, tracciato_));
    const QString words = QString::fromStdString(DescrizioneGiunto(nodo, giunto, evidenza));
    if (words == accessibleDescription())
        return;
    setAccessibleDescription(words);
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

void VistaGiunto::paintEvent(QPaintEvent* event) {
    DipintoProtetto(this, [&] {
        tracciato_->scelto.componente = hasFocus() ? scelto_ : ComponenteGiunto::Nessuno;
        tracciato_->attivo = true;
        ImmagineDisegno::paintEvent(event);
        tracciato_->attivo = false;
    });
}

ComponenteFila VistaGiunto::Componente(const QPointF& punto) const {
    const TracciatoNodo& t = *tracciato_;
    for (const ZonaNodo& z : t.zone) {
        QPolygonF outline;
        for (const PuntoNodo& p : z.contorno)
            outline << QPointF((p.x - t.sinistra) / t.larghezza * width(),
                               (p.y - t.alto) / t.altezza * height());
        constexpr qreal thin = 8; // pixels
        constexpr qreal around = 2;
        const QRectF box = outline.boundingRect();
        const bool near = std::min(box.width(), box.height()) < thin &&
                          box.adjusted(-around, -around, around, around).contains(punto);
        if (near || outline.containsPoint(punto, Qt::OddEvenFill))
            return z.quale;
    }
    return {};
}

void VistaGiunto::mousePressEvent(QMouseEvent* event) {
    EventoProtetto([&] {
        ImmagineDisegno::mousePressEvent(event);
        if (event->button() != Qt::LeftButton)
            return;
        const ComponenteGiunto hit = Componente(event->position()).componente;
        if (hit == ComponenteGiunto::Nessuno)
            return;
        event->accept();
        scelto_ = hit;
        update();
        emit ComponenteScelto(hit);
    });
}

/// To the next component in sight, round and round.
void VistaGiunto::Passa(int passi) {
    const auto seen = InVista(*tracciato_);
    if (seen.empty())
        return;
    const auto n = static_cast<int>(seen.size());
    const auto here = std::find(seen.begin(), seen.end(), scelto_);
    const int at = here == seen.end() ? (passi > 0 ? -1 : 0) : static_cast<int>(here - seen.begin());
    scelto_ = seen[static_cast<std::size_t>((at + passi + n) % n)];
    setToolTip(QString::fromStdString(NomeComponente({scelto_, FilaGiunto::Nessuna})));
    QAccessibleEvent changed(this, QAccessible::NameChanged);
    setAccessibleName(QStringLiteral("Disegno del giunto: ") + toolTip());
    QAccessible::updateAccessibility(&changed);
    update();
}

void VistaGiunto::keyPressEvent(QKeyEvent* event) {
    EventoProtetto([&] {
        switch (event->key()) {
        case Qt::Key_Right:
        case Qt::Key_Down:
            Passa(1);
            break;
        case Qt::Key_Left:
        case Qt::Key_Up:
            Passa(-1);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (scelto_ != ComponenteGiunto::Nessuno)
                emit ComponenteScelto(scelto_);
            break;
        default:
            ImmagineDisegno::keyPressEvent(event);
        }
    });
}

bool VistaGiunto::event(QEvent* event) {
    return EventoProtetto([&] {
        if (event->type() != QEvent::ToolTip)
            return ImmagineDisegno::event(event);
        const auto* help = static_cast<QHelpEvent*>(event);
        const ComponenteFila hit = Componente(help->pos());
        if (hit.componente == ComponenteGiunto::Nessuno)
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(), QString::fromStdString(NomeComponente(hit)), this);
        return true;
    });
}

} // namespace sagomi
