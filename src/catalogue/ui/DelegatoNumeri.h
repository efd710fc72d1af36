#pragma once

#include <QStyledItemDelegate>

#include "catalogue/ui/CifreDipinte.h"

namespace sagomi {

/// Paints cells as the style does, but numbers without the text engine. Every other text, the cell with the
/// focus, a number that does not fit and a window with a style sheet are left to the style.
class DelegatoNumeri : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// @param tabella  the view that it paints for
    explicit DelegatoNumeri(QWidget* tabella) : QStyledItemDelegate(tabella) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    void Dipinge(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    mutable CifreDipinte cifre_;
};

} // namespace sagomi
