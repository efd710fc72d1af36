#pragma once

#include <QTableView>

#include <functional>

namespace sagomi {

/// The designations of a table that is scrolled sideways: its first column, over its left edge, with the
/// rows, the selection and the row in hand of the table.
class ColonnaFerma : public QTableView {
    Q_OBJECT
public:
    /// How an event changes the selection.
    using Comando = std::function<QItemSelectionModel::SelectionFlags(const QModelIndex&, const QEvent*)>;

    ColonnaFerma(QTableView& griglia, Comando seleziona);

    /// To be called once the table has its rows.
    void Collega();

    /// Lies where it belongs; seen only while the table's own first column is not.
    void Allinea();

    void scrollTo(const QModelIndex&, ScrollHint = EnsureVisible) override {}

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    void MostraPrimaColonna();

    QTableView& griglia_;
    Comando seleziona_;
    bool allineando_ = false;
};

} // namespace sagomi
