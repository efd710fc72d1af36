#include "choice/ui/DelegatoUtilizzo.h"

#include <QPainter>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <cmath>

#include "choice/ui/ModelloScelta.h"
#include "frame/ui/Colori.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

constexpr int margine = 4;      ///< [px]
constexpr int barraMinima = 24; ///< below it the text alone is painted [px]
constexpr int barraMassima = 260;

/// Muted, so that a column of bars stays calm; the bar of one that does not hold is full.
QColor ColoreBarra(const QPalette& palette, bool verificato) {
    const bool dark = Scuro(palette.color(QPalette::Base));
    if (verificato)
        return dark ? QColor(98, 150, 98) : QColor(104, 151, 104);
    return dark ? QColor(205, 92, 82) : QColor(190, 62, 52);
}

void DipingeBarra(QPainter& painter, const QRect& room, const QPalette& palette, double utilizzo,
                  bool verificato) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(palette.color(QPalette::Mid));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRect(room.adjusted(0, 0, -1, -1));
    const QRect inside = room.adjusted(1, 1, -1, -1);
    const int length = qRound(std::clamp(utilizzo, 0.0, 1.0) * inside.width());
    painter.fillRect(inside.left(), inside.top(), length, inside.height(), ColoreBarra(palette, verificato));
}

} // namespace

void DelegatoUtilizzo::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    DipintoProtetto(static_cast<QWidget*>(parent()), [&] { Dipinge(*painter, option, index); });
}

void DelegatoUtilizzo::Dipinge(QPainter& painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle* style = cell.widget->style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, &painter, cell.widget);
    const double utilizzo = index.data(ModelloScelta::ruoloUtilizzo).toDouble();
    const bool verificato = index.data(ModelloScelta::ruoloVerificato).toBool();
    QRect room = cell.rect.adjusted(margine, 0, -margine, 0);
    const int text = cell.fontMetrics.horizontalAdvance(QString::fromUtf8("OK  1.000,0 %  svergolamento"));
    const int bar = std::min(barraMassima, room.width() - text - 2 * margine);
    if (bar >= barraMinima && !cell.text.isEmpty()) {
        const int height = std::max(6, cell.rect.height() / 2);
        const QRect where(room.left(), cell.rect.center().y() - height / 2, bar, height);
        if (std::isfinite(utilizzo))
            DipingeBarra(painter, where, cell.palette, utilizzo, verificato);
        room.setLeft(where.right() + 2 * margine);
    }
    const bool selected = (cell.state & QStyle::State_Selected) != 0;
    const auto group = (cell.state & QStyle::State_Active) != 0 ? QPalette::Normal : QPalette::Inactive;
    painter.setPen(cell.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    painter.setFont(cell.font);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, room.width()));
}

} // namespace sagomi
