#include "catalogue/ui/ModelloCatalogo.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/Numeri.h"

namespace sagomi {

namespace {

/// The least and the greatest of numbers; without any the least is above the greatest.
struct Estremi {
    double minimo = std::numeric_limits<double>::infinity();
    double massimo = -std::numeric_limits<double>::infinity();

    void Aggiunge(double v) {
        if (!std::isfinite(v))
            return;
        minimo = std::min(minimo, v);
        massimo = std::max(massimo, v);
    }
};

/// A cell whose text is shorter than the last of those kept: texts of no more bytes than that has letters.
bool PiuCorto(const Valore& cell, const QStringList& testi) {
    if (testi.isEmpty())
        return false;
    const std::string* text = std::get_if<std::string>(&cell);
    const std::string other = text == nullptr ? TestoDi(cell) : std::string();
    const std::string_view bytes = text == nullptr ? other : *text;
    if (static_cast<qsizetype>(bytes.size()) < testi.back().size())
        return true;
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size())).size() < testi.back().size();
}

} // namespace

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
    if (role == Qt::ToolTipRole && index.column() == 0)
        return TestoIntero(index.row(), 0); // a long name may be cut
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

const std::vector<QStringList>& ModelloCatalogo::TestiLunghi() const {
    if (!lunghi_ || letturaLunghi_ != lettore_.Lettura())
        lunghi_ = CercaTestiLunghi();
    letturaLunghi_ = lettore_.Lettura();
    return *lunghi_;
}

std::vector<QStringList> ModelloCatalogo::CercaTestiLunghi() const {
    const auto columns = static_cast<std::size_t>(lettore_.Campi());
    std::vector<Estremi> estremi(columns);
    std::vector<QStringList> testi(columns);
    std::vector<bool> conFigura(columns);
    for (std::size_t at = 0; at < columns; ++at)
        conFigura[at] = !FiguraDi(static_cast<int>(at)).empty();
    for (int row = 0; row < lettore_.Righe(); ++row) { // row by row, as they lie in memory
        const std::vector<Valore>& cells = lettore_.Riga(row);
        for (std::size_t at = 0; at < columns; ++at)
            if (const auto* number = std::get_if<double>(&cells[at]); number != nullptr && conFigura[at])
                estremi[at].Aggiunge(*number);
            else if (!PiuCorto(cells[at], testi[at]))
                testi[at] << TestoIntero(row, static_cast<int>(at));
    }
    for (std::size_t at = 0; at < columns; ++at)
        if (const Estremi& e = estremi[at]; e.minimo <= e.massimo)
            for (const double value : {e.minimo, e.massimo})
                testi[at] << QString::fromStdString(Formato(FiguraDi(static_cast<int>(at)), value));
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
    if (figure_[at] == figura)
        return;
    figure_[at] = figura;
    lunghi_.reset();
}

} // namespace sagomi
