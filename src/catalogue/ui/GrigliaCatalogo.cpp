#include "catalogue/ui/GrigliaCatalogo.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSet>

#include <algorithm>

#include "catalogue/ui/DelegatoNumeri.h"
#include "catalogue/ui/LettoreDati.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/Twips.h"

namespace sagomi {

namespace {

constexpr int larghezzaNome = 1520 / twipsAPixel;  ///< designation
constexpr int larghezzaNumero = 800 / twipsAPixel; ///< every other column, at least
constexpr int ariaColonna = 10;                    ///< both sides of a text [px]

/// Texts of one shape are as wide, for figures all are.
QString Forma(QString text) {
    for (QChar& c : text)
        if (c.isDigit())
            c = u'0';
    return text;
}

} // namespace

GrigliaCatalogo::GrigliaCatalogo(QWidget* parent) : QTableView(parent) {
    setItemDelegate(new DelegatoNumeri(this));
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    altezzaRiga_ = fontMetrics().height() + 5;
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(altezzaRiga_);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsMovable(false);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (!adattando_ && model() != nullptr && width > 0)
            larghezzeScelte_[model()->headerData(column, Qt::Horizontal).toString()] = width;
    });
}

void GrigliaCatalogo::Collega(LettoreDati* lettore) {
    lettore_ = lettore;
    setModel(lettore->Modello());
    connect(lettore, &LettoreDati::rigaCambiata, this, &GrigliaCatalogo::SegueLettore);
    connect(lettore->Modello(), &QAbstractItemModel::modelReset, this, &GrigliaCatalogo::SegueLettore);
}

void GrigliaCatalogo::FormatoGriglia(int count) {
    for (int column = 1; column <= count; ++column)
        lettore_->Modello()->ImpostaFigura(column, "#,##0.00");
    lettore_->Modello()->ImpostaFigura(1, "#,##0.0");
    lettore_->Modello()->ImpostaFigura(2, "#,##0");
    lettore_->Modello()->ImpostaFigura(3, "#,##0");
    AdattaColonne();
}

int GrigliaCatalogo::LarghezzaColonna(int column, const QStringList& texts) const {
    const QString heading = model()->headerData(column, Qt::Horizontal).toString();
    if (const auto chosen = larghezzeScelte_.find(heading); chosen != larghezzeScelte_.end())
        return chosen->second;
    const int least = column == 0 ? larghezzaNome : larghezzaNumero;
    int width = std::max(qRound(least * scalaLarghezza_),
                         horizontalHeader()->fontMetrics().horizontalAdvance(heading) + ariaColonna);
    QSet<QString> measured;
    for (const QString& text : texts)
        if (const QString shape = Forma(text); !measured.contains(shape)) {
            measured.insert(shape);
            width = std::max(width, fontMetrics().horizontalAdvance(text) + ariaColonna);
        }
    return width;
}

int GrigliaCatalogo::Altezza(int rows) const {
    return horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize() +
           horizontalScrollBar()->sizeHint().height() + 2 * frameWidth();
}

void GrigliaCatalogo::AdattaColonne() {
    const QScopedValueRollback guard(adattando_, true);
    const std::vector<QStringList> texts = lettore_->Modello()->TestiLunghi();
    for (int column = 0; column < model()->columnCount(); ++column)
        setColumnWidth(column, LarghezzaColonna(column, texts[static_cast<std::size_t>(column)]));
}

void GrigliaCatalogo::Scala(double larghezza, double altezza) {
    const double step = larghezza / scalaLarghezza_;
    for (auto& [heading, width] : larghezzeScelte_)
        width = qRound(width * step);
    scalaLarghezza_ = larghezza;
    scalaAltezza_ = altezza;
    verticalHeader()->setDefaultSectionSize(qRound(altezzaRiga_ * scalaAltezza_));
    AdattaColonne();
}

void GrigliaCatalogo::SegueLettore() {
    const QScopedValueRollback guard(seguendo_, true);
    const Lettore& rows = lettore_->Recordset();
    if (!rows.BOF() && !rows.EOF_() && currentIndex().row() != rows.RigaCorrente())
        setCurrentIndex(model()->index(rows.RigaCorrente(), std::max(0, currentIndex().column())));
}

void GrigliaCatalogo::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!seguendo_ && current.isValid() && current.row() != lettore_->Recordset().RigaCorrente())
        EventoProtetto([this, &current] { lettore_->MoveTo(current.row()); });
}

int GrigliaCatalogo::CercaIniziale(const QString& testo) const {
    return lettore_->Modello()->CercaIniziale(testo);
}

void GrigliaCatalogo::keyboardSearch(const QString& search) {
    if (!ultimoTasto_.isValid() || ultimoTasto_.elapsed() > QApplication::keyboardInputInterval() * 3LL)
        digitato_.clear();
    ultimoTasto_.start();
    digitato_ += search;
    if (digitato_.count(u' ') == digitato_.size())
        return;
    if (const int row = CercaIniziale(digitato_); row >= 0)
        setCurrentIndex(model()->index(row, 0));
}

void GrigliaCatalogo::keyPressEvent(QKeyEvent* event) {
    EventoProtetto([this, event] { Tasto(event); });
}

void GrigliaCatalogo::Tasto(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        if (const QString rows = RigheSelezionate(); !rows.isEmpty())
            QApplication::clipboard()->setText(rows);
        return;
    }
    const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    if (plain && !event->text().isEmpty() && event->text().front().isPrint()) {
        keyboardSearch(event->text());
        return;
    }
    QTableView::keyPressEvent(event);
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        event->accept(); // at the first and last row too: nobody else shall move it
}

QString GrigliaCatalogo::RigheSelezionate() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty())
        return {};
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    QStringList fields;
    for (int column = 0; column < model()->columnCount(); ++column)
        fields << model()->headerData(column, Qt::Horizontal).toString();
    lines << fields.join(u'\t');
    for (const QModelIndex& row : rows) {
        fields.clear();
        for (int column = 0; column < model()->columnCount(); ++column)
            fields << lettore_->Modello()->TestoIntero(row.row(), column);
        lines << fields.join(u'\t');
    }
    return lines.join(u'\n') + u'\n';
}

} // namespace sagomi
