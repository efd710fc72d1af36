#pragma once

#include <QStyledItemDelegate>

#include "catalogue/ui/CifreDipinte.h"

namespace sagomi {

/// Paints cells as the style does, but numbers without the text engine. Every other text, the cell with the
/// focus, a number that does not fit and a window with a style sheet are left to the style.
class DelegatoNumeri : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    mutable CifreDipinte cifre_;
};

} // namespace sagomi
