#include "catalogue/ui/Intestazioni.h"

#include <QStyleOption>

namespace sagomi {

Intestazioni::Intestazioni(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
    setHighlightSections(false);
}

QSize Intestazioni::sectionSizeFromContents(int colonna) const {
    if (model() == nullptr)
        return QHeaderView::sectionSizeFromContents(colonna);
    QStyleOptionHeader heading;
    initStyleOption(&heading);
    heading.section = colonna;
    heading.text = model()->headerData(colonna, orientation()).toString();
    if (isSortIndicatorShown())
        heading.sortIndicator = QStyleOptionHeader::SortDown;
    return style()->sizeFromContents(QStyle::CT_HeaderSection, &heading, QSize(), this);
}

} // namespace sagomi
