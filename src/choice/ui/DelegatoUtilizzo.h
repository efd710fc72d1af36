#pragma once

#include <QStyledItemDelegate>

namespace sagomi {

/// Paints a utilisation: a bar, full at 100 %, the verdict, the per cent and what governs.
class DelegatoUtilizzo : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit DelegatoUtilizzo(QWidget* tabella) : QStyledItemDelegate(tabella) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    void Dipinge(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
};

} // namespace sagomi
