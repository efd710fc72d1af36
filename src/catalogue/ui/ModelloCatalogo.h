#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <optional>
#include <vector>

#include "catalogue/Lettore.h"
#include "catalogue/ui/NomiPiegati.h"

namespace sagomi {

/// The rows of a reader as a table model: every row, with numbers in the picture of their column.
class ModelloCatalogo : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ModelloCatalogo(const Lettore& lettore, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Picture of a column's numbers ("#,##0.00"); an empty one shows the text of the field.
    void ImpostaFigura(int column, const std::string& figura);

    /// A field with all its figures, for other programs to read: no grouping, the decimal separator in use.
    [[nodiscard]] QString TestoIntero(int row, int column) const;

    /// Texts among which the longest of each column stands: of the numbers in a picture the greatest and the
    /// least, of all else those that none before was longer than.
    [[nodiscard]] const std::vector<QStringList>& TestiLunghi() const;

    /// First row whose designation begins with the text, blanks and case ignored; -1 if none does.
    [[nodiscard]] int CercaIniziale(const QString& testo) const;

    /// To be called around a change of the rows.
    void CominciaCambio();
    void FinisceCambio() { endResetModel(); }

private:
    const Lettore& lettore_;
    [[nodiscard]] const std::string& FiguraDi(int column) const;

    std::vector<std::string> figure_;
    [[nodiscard]] std::vector<QStringList> CercaTestiLunghi() const;

    mutable NomiPiegati nomi_; ///< of the rows in force, made when somebody types
    mutable std::optional<std::vector<QStringList>> lunghi_;
    mutable int letturaLunghi_ = 0; ///< the reading whose texts they are
};

} // namespace sagomi
