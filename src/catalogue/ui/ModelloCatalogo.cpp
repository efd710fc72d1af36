#include "catalogue/ui/ModelloCatalogo.h"

#include <QFont>

#include "frame/Numeri.h"

namespace sagomi {

ModelloCatalogo::ModelloCatalogo(const Lettore& lettore, QObject* parent)
    : QAbstractTableModel(parent), lettore_(lettore) {}

int ModelloCatalogo::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : lettore_.Righe();
}

int ModelloCatalogo::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : lettore_.Campi();
}

QVariant ModelloCatalogo::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(index.column() == 0 ? Qt::AlignLeft | Qt::AlignVCenter
                                                    : Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const auto column = static_cast<std::size_t>(index.column());
    const auto* number = std::get_if<double>(&lettore_.Cella(index.row(), index.column()));
    if (number != nullptr && column < figure_.size() && !figure_[column].empty())
        return QString::fromStdString(Formato(figure_[column], *number));
    return TestoIntero(index.row(), index.column());
}

QString ModelloCatalogo::TestoIntero(int row, int column) const {
    return QString::fromStdString(TestoDi(lettore_.Cella(row, column)));
}

QVariant ModelloCatalogo::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= lettore_.Campi())
        return {};
    if (role == Qt::DisplayRole)
        return QString::fromStdString(lettore_.NomeCampo(section));
    return {};
}

void ModelloCatalogo::ImpostaFigura(int column, const std::string& figura) {
    const auto at = static_cast<std::size_t>(column);
    if (figure_.size() <= at)
        figure_.resize(at + 1);
    figure_[at] = figura;
}

} // namespace sagomi
