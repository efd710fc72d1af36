#include "choice/ui/VistaGrafico.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <utility>

#include "frame/ui/Protetto.h"

namespace sagomi {

VistaGrafico::VistaGrafico(QWidget* parent) : ImmagineDisegno(parent) {
    Mostra(DisegnoGrafico(dati_)); // its room counts from the start
}

void VistaGrafico::MostraDati(std::shared_ptr<const DatiGrafico> dati) {
    dati_ = std::move(dati);
    Mostra(DisegnoGrafico(dati_));
}

double VistaGrafico::Riga() const {
    const QFontMetricsF metrics(font());
    return metrics.ascent() + metrics.descent();
}

ScalaGrafico VistaGrafico::Scala() const {
    return ScalaDi(*dati_, {0, 0, double(width()), double(height())}, Riga());
}

QPointF VistaGrafico::DoveLaMarca(std::uint32_t punto) const {
    const PuntoGrafico& p = dati_->punti.at(punto);
    const PuntoQuadro where = Scala().In(p.g, p.u);
    return {where.x, where.y};
}

std::optional<std::uint32_t> VistaGrafico::PuntoIn(const QPointF& dove) const {
    const auto point = PuntoVicino(*dati_, Scala(), {dove.x(), dove.y()}, Riga());
    return point ? std::optional(dati_->punti[*point].posto) : std::nullopt;
}

void VistaGrafico::mousePressEvent(QMouseEvent* event) {
    EventoProtetto([&] {
        ImmagineDisegno::mousePressEvent(event);
        if (event->button() != Qt::LeftButton)
            return;
        if (const auto row = PuntoIn(event->position()))
            emit scelto(*row);
    });
}

bool VistaGrafico::event(QEvent* event) {
    return EventoProtetto([&] {
        if (event->type() != QEvent::ToolTip || !suggerimento)
            return ImmagineDisegno::event(event);
        const auto* help = static_cast<QHelpEvent*>(event);
        if (const auto row = PuntoIn(help->pos()))
            QToolTip::showText(help->globalPos(), suggerimento(*row), this);
        else
            QToolTip::hideText();
        return true;
    });
}

} // namespace sagomi
