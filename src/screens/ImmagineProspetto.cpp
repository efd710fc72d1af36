#include "screens/ImmagineProspetto.h"

#include <QPainter>

#include "screens/DisegniMomento.h"

namespace sagomi {

namespace {

constexpr double bordo = 10; ///< free between two bands [px]
constexpr double trave = 84; ///< length of a beam [px]

} // namespace

ImmagineProspetto::ImmagineProspetto(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

void ImmagineProspetto::ImpostaProspetto(int prospetto) {
    prospetto_ = prospetto;
    updateGeometry();
    update();
}

int ImmagineProspetto::Fasce() const { return static_cast<int>(prospetto_ == 1 ? psiF11 : casiF12); }

QSize ImmagineProspetto::sizeHint() const {
    const double text = fontMetrics().horizontalAdvance(QStringLiteral("ψ = +3/4  "));
    const double width = prospetto_ == 1 ? trave + text : 2 * trave + 3 * bordo;
    return {static_cast<int>(width + 2 * bordo), Fasce() * (prospetto_ == 1 ? 48 : 60)};
}

void ImmagineProspetto::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const double height = static_cast<double>(this->height()) / Fasce();
    for (int i = 0; i < Fasce(); ++i)
        DisegnaFascia(painter, QRectF(0, i * height, width(), height), static_cast<std::size_t>(i));
}

void ImmagineProspetto::DisegnaFascia(QPainter& painter, const QRectF& fascia, std::size_t i) {
    const QRectF inside = fascia.adjusted(bordo, bordo, -bordo, -bordo);
    if (prospetto_ == 1) {
        const double psi = ProspettoF11()[3 * i].psi;
        TavolaTrave table(painter, QRectF(inside.left(), inside.top(), trave, inside.height()), palette());
        DisegnaPsi(table, psi);
        table.Nome(QPointF(inside.left() + trave + bordo, inside.center().y()),
                   QStringLiteral("ψ = ") + TestoPsi(psi), 1, 0);
        return;
    }
    TavolaTrave load(painter, QRectF(inside.left(), inside.top(), trave, inside.height()), palette());
    TavolaTrave diagram(
        painter, QRectF(inside.left() + trave + 2 * bordo, inside.top(), trave, inside.height()), palette());
    DisegnaCaso(load, diagram, ProspettoF12()[2 * i].caso);
}

} // namespace sagomi
