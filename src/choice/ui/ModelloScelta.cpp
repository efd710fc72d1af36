#include "choice/ui/ModelloScelta.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "frame/ui/Colori.h"

namespace sagomi {

namespace {

constexpr float parteSpenta = 0.68F; ///< of the ink of rows that do not hold

QString Utf8(const std::string& testo) { return QString::fromStdString(testo); }

QColor InchiostroSpento() {
    const QPalette palette = QApplication::palette();
    return Velo(palette.color(QPalette::Base), palette.color(QPalette::Text), parteSpenta);
}

} // namespace

ModelloScelta::ModelloScelta(const SceltaInCorso& scelta, QObject* parent)
    : QAbstractTableModel(parent), scelta_(scelta) {}

int ModelloScelta::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(posti_.size());
}

int ModelloScelta::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(ColonneScelta().size());
}

bool ModelloScelta::Leggero(std::uint32_t posto) const { return std::ranges::binary_search(leggeri_, posto); }

QVariant ModelloScelta::Testo(std::uint32_t posto, int colonna) const {
    if (!scelta_.Valida(posto) && colonna > colonnaFamiglia)
        return {};
    return Utf8(TestoScelta(scelta_.Riga(posto), scelta_.Sagomi()[posto], colonna));
}

QVariant ModelloScelta::Suggerimento(std::uint32_t posto, int colonna) const {
    const SagomoInGara& sagomo = scelta_.Sagomi()[posto];
    if (colonna == colonnaNome)
        return Utf8(sagomo.Designazione()) +
               (Leggero(posto) ? tr(": il più leggero verificato di ") + Utf8(sagomo.famiglia) : QString());
    if (colonna == ColonnaUtilizzo() && scelta_.Valida(posto) && !scelta_.Riga(posto).motivo.empty())
        return Utf8(scelta_.Riga(posto).motivo);
    return {};
}

QVariant ModelloScelta::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const std::uint32_t posto = posti_[static_cast<std::size_t>(index.row())];
    const int column = index.column();
    const bool valid = scelta_.Valida(posto);
    switch (role) {
    case Qt::DisplayRole:
        return Testo(posto, column);
    case Qt::ToolTipRole:
        return Suggerimento(posto, column);
    case Qt::TextAlignmentRole: {
        const bool left = column <= colonnaFamiglia || column == ColonnaUtilizzo();
        return static_cast<int>((left ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    }
    case Qt::ForegroundRole:
        return valid && !scelta_.Riga(posto).verificato ? QVariant(InchiostroSpento()) : QVariant();
    case Qt::FontRole:
        if (column == colonnaNome && Leggero(posto)) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    case Qt::AccessibleTextRole:
        return column == colonnaNome && Leggero(posto) ? Suggerimento(posto, column) : Testo(posto, column);
    case ruoloUtilizzo:
        return valid ? scelta_.Riga(posto).massimo : RigaScelta::nessuno;
    case ruoloVerificato:
        return valid && scelta_.Riga(posto).verificato;
    default:
        return {};
    }
}

QVariant ModelloScelta::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const ColonnaScelta& column = ColonneScelta()[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return QString::fromUtf8(column.titolo);
    if (role == Qt::ToolTipRole)
        return QString::fromUtf8(column.aiuto);
    return {};
}

QString ModelloScelta::TestoIntero(int riga, int colonna) const {
    const std::uint32_t posto = posti_.at(static_cast<std::size_t>(riga));
    if (!scelta_.Valida(posto) && colonna > colonnaFamiglia)
        return {};
    return Utf8(TestoInteroScelta(scelta_.Riga(posto), scelta_.Sagomi()[posto], colonna));
}

// Fixed ones: the columns keep their widths while the user types, and nothing is searched.
const std::vector<QStringList>& ModelloScelta::TestiLunghi() const {
    static const std::vector<QStringList> texts = [] {
        std::vector<QStringList> samples;
        for (const ColonnaScelta& column : ColonneScelta())
            samples.push_back({QString::fromUtf8(column.campione)});
        return samples;
    }();
    return texts;
}

int ModelloScelta::CercaIniziale(const QString& testo) const {
    if (nomi_.Numero() == 0)
        for (const std::uint32_t posto : posti_)
            nomi_.Aggiunge(scelta_.Sagomi()[posto].Designazione());
    return nomi_.CercaIniziale(testo);
}

bool ModelloScelta::InMano(std::uint32_t& posto) const {
    if (inMano_ < 0 || inMano_ >= rowCount())
        return false;
    posto = posti_[static_cast<std::size_t>(inMano_)];
    return true;
}

void ModelloScelta::MoveTo(int riga) {
    if (riga < 0 || riga >= rowCount())
        throw std::out_of_range("riga " + std::to_string(riga) + " fuori dalla tabella");
    dellUtente_ = true;
    inMano_ = riga;
    emit rigaInMano();
}

bool ModelloScelta::VaiA(std::uint32_t posto) {
    const auto at = std::ranges::find(posti_, posto);
    if (at == posti_.end())
        return false;
    MoveTo(static_cast<int>(at - posti_.begin()));
    return true;
}

// Rows come and go at the end: the view keeps its place, and does not lay itself out anew.
void ModelloScelta::CambiaNumero(int righe) {
    const int before = rowCount();
    if (righe < before) {
        beginRemoveRows({}, righe, before - 1);
        posti_.resize(static_cast<std::size_t>(righe));
        endRemoveRows();
    } else if (righe > before) {
        beginInsertRows({}, before, righe - 1);
        posti_.resize(static_cast<std::size_t>(righe), 0);
        endInsertRows();
    }
}

void ModelloScelta::Mostra(std::vector<std::uint32_t> posti, std::vector<std::uint32_t> leggeri) {
    std::uint32_t held = 0;
    const bool keeps = dellUtente_ && InMano(held);
    std::ranges::sort(leggeri);
    leggeri_ = std::move(leggeri);
    CambiaNumero(static_cast<int>(posti.size()));
    posti_ = std::move(posti);
    nomi_.Svuota();
    const auto at = keeps ? std::ranges::find(posti_, held) : posti_.end();
    dellUtente_ = at != posti_.end();
    inMano_ = dellUtente_ ? static_cast<int>(at - posti_.begin()) : posti_.empty() ? -1 : 0;
    Rinnova(0, rowCount() - 1);
    emit rigaInMano();
}

void ModelloScelta::Rinnova(int da, int a) {
    if (a >= da && a >= 0)
        emit dataChanged(index(std::max(0, da), 0), index(std::min(a, rowCount() - 1), columnCount() - 1));
}

} // namespace sagomi
