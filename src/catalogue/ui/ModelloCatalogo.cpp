#include "catalogue/ui/ModelloCatalogo.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

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
    const std::string& figura = FiguraDi(index.column());
    const auto* number = std::get_if<double>(&lettore_.Cella(index.row(), index.column()));
    if (number != nullptr && !figura.empty())
        return QString::fromStdString(Formato(figura, *number));
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

const std::string& ModelloCatalogo::FiguraDi(int column) const {
    static const std::string nessuna;
    const auto at = static_cast<std::size_t>(column);
    return at < figure_.size() ? figure_[at] : nessuna;
}

QStringList ModelloCatalogo::TestiLunghi(int column) const {
    const std::string& figura = FiguraDi(column);
    std::optional<std::pair<double, double>> estremi;
    QStringList testi;
    qsizetype longest = 0;
    for (int row = 0; row < lettore_.Righe(); ++row) {
        const Valore& cell = lettore_.Cella(row, column);
        const auto* number = figura.empty() ? nullptr : std::get_if<double>(&cell);
        if (number != nullptr) {
            if (std::isfinite(*number))
                estremi = {std::min(*number, estremi ? estremi->first : *number),
                           std::max(*number, estremi ? estremi->second : *number)};
        } else if (const QString text = TestoIntero(row, column); text.size() >= longest) {
            longest = text.size();
            testi << text;
        }
    }
    if (estremi)
        for (const double value : {estremi->first, estremi->second})
            testi << QString::fromStdString(Formato(figura, value));
    return testi;
}

int ModelloCatalogo::CercaIniziale(const QString& testo) const {
    if (nomi_.Numero() == 0)
        for (int row = 0; row < lettore_.Righe(); ++row)
            nomi_.Aggiunge(TestoDi(lettore_.Cella(row, 0)));
    return nomi_.CercaIniziale(testo);
}

void ModelloCatalogo::CominciaCambio() {
    beginResetModel();
    nomi_.Svuota();
}

void ModelloCatalogo::ImpostaFigura(int column, const std::string& figura) {
    const auto at = static_cast<std::size_t>(column);
    if (figure_.size() <= at)
        figure_.resize(at + 1);
    figure_[at] = figura;
}

} // namespace sagomi
