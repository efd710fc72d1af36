#pragma once

#include <QAbstractTableModel>

#include "joints/ParametriSelezione.h"

namespace sagomi {

/// The improvements of a search as a grid has them: a row each, under the names of the screen.
class ModelloSelezione : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ModelloSelezione(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

    /// Takes the rows; those that are there already stay, where the table has only grown.
    /// @param file  rows of bolts, 1 or 2, where the table has no row that tells
    void Mostra(const TabellaSelezione& tabella, int file);

    /// Rows of bolts that the improvements are of.
    [[nodiscard]] int FileBulloni() const { return file_; }
    /// What stands in the first column of a row, from 0; empty without such a row.
    [[nodiscard]] QString Indice(int riga) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] bool Cresciuta(const TabellaSelezione& nuova, int file) const;

    TabellaSelezione tabella_;
    int file_ = 1;
};

} // namespace sagomi
