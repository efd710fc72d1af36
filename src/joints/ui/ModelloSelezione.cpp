#include "joints/ui/ModelloSelezione.h"

#include <QStringList>

#include "frame/Numeri.h"

namespace sagomi {

namespace {

constexpr int colonneUnaFila = 7;

const QStringList& Titoli(int file) {
    static const QStringList one{QStringLiteral(" Indice "),  QStringLiteral(" M [kNm] "),
                                 QStringLiteral(" d [mm] "),  QStringLiteral(" tf [mm] "),
                                 QStringLiteral(" bf [mm] "), QStringLiteral(" ef [mm] "),
                                 QStringLiteral(" d1 [mm] ")};
    static const QStringList two{QStringLiteral(" Indice "),  QStringLiteral(" M [kNm] "),
                                 QStringLiteral(" d [mm] "),  QStringLiteral(" tf [mm] "),
                                 QStringLiteral(" bf [mm] "), QStringLiteral(" ef [mm] "),
                                 QStringLiteral(" ex [mm] "), QStringLiteral(" d2 [mm] "),
                                 QStringLiteral(" d1 [mm] "), QStringLiteral(" u [mm] ")};
    return file == 2 ? two : one;
}

QString Testo(const ValoreSelezione& value) {
    const auto* number = std::get_if<double>(&value);
    return QString::fromStdString(number != nullptr ? TestoPiano(*number) : std::get<std::string>(value));
}

} // namespace

bool ModelloSelezione::Cresciuta(const TabellaSelezione& nuova, int file) const {
    if (file != file_ || nuova.n() < tabella_.n())
        return false;
    for (int i = 1; i <= tabella_.n(); ++i)
        if (nuova[i] != tabella_[i])
            return false;
    return true;
}

void ModelloSelezione::Mostra(const TabellaSelezione& tabella, int file) {
    const int rows = tabella.n() > 0 ? (tabella[1].n() > colonneUnaFila ? 2 : 1) : file;
    if (!Cresciuta(tabella, rows)) {
        beginResetModel();
        tabella_ = tabella;
        file_ = rows;
        endResetModel();
    } else if (tabella.n() > tabella_.n()) {
        beginInsertRows({}, tabella_.n(), tabella.n() - 1);
        tabella_ = tabella;
        endInsertRows();
    }
}

QString ModelloSelezione::Indice(int riga) const {
    return riga >= 0 && riga < tabella_.n() ? Testo(tabella_[riga + 1][1]) : QString();
}

int ModelloSelezione::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : tabella_.n();
}

int ModelloSelezione::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Titoli(file_).size());
}

QVariant ModelloSelezione::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? QVariant(Testo(tabella_[index.row() + 1][index.column() + 1]))
                                   : QVariant();
}

QVariant ModelloSelezione::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return Titoli(file_).value(section);
}

} // namespace sagomi
