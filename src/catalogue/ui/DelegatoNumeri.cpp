#include "catalogue/ui/DelegatoNumeri.h"

#include <QPainter>
#include <QStyle>
#include <QWidget>

#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

bool LasciatoAlloStile(const QStyleOptionViewItem& cell) {
    constexpr auto marks = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDecoration;
    return (cell.features & marks) != 0 || (cell.state & QStyle::State_HasFocus) != 0 ||
           cell.direction != Qt::LeftToRight ||
           cell.displayAlignment != (Qt::AlignRight | Qt::AlignVCenter) || cell.widget == nullptr ||
           cell.widget->style()->inherits("QStyleSheetStyle");
}

QPalette::ColorGroup Gruppo(const QStyleOptionViewItem& cell) {
    if ((cell.state & QStyle::State_Enabled) == 0)
        return QPalette::Disabled;
    return (cell.state & QStyle::State_Active) != 0 ? QPalette::Normal : QPalette::Inactive;
}

} // namespace

void DelegatoNumeri::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    DipintoProtetto(static_cast<QWidget*>(parent()), [&] { Dipinge(*painter, option, index); });
}

void DelegatoNumeri::Dipinge(QPainter& painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle* style = cell.widget == nullptr ? nullptr : cell.widget->style();
    const bool left = LasciatoAlloStile(cell) || !cifre_.Compone(cell.font, cell.text);
    const int margin = left ? 0 : style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, cell.widget) + 1;
    const QRect room = cell.rect.adjusted(margin, 0, -margin, 0);
    if (left || cifre_.Larghezza() > room.width()) {
        QStyledItemDelegate::paint(&painter, option, index);
        return;
    }
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, &painter, cell.widget);
    const bool selected = (cell.state & QStyle::State_Selected) != 0;
    painter.setPen(cell.palette.color(Gruppo(cell), selected ? QPalette::HighlightedText : QPalette::Text));
    cifre_.Dipinge(painter, room);
}

} // namespace sagomi
