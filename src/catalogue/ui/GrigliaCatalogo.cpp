#include "catalogue/ui/GrigliaCatalogo.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <initializer_list>
#include <numeric>

#include "catalogue/ui/ColonnaFerma.h"
#include "catalogue/ui/DelegatoNumeri.h"
#include "catalogue/ui/EtichettaRicerca.h"
#include "catalogue/ui/Intestazioni.h"
#include "catalogue/ui/LettoreDati.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/TabellaCopiata.h"
#include "frame/ui/Twips.h"

namespace sagomi {

namespace {

constexpr int larghezzaNome = 1520 / twipsAPixel;   ///< designation
constexpr int larghezzaNumero = 800 / twipsAPixel;  ///< every other column, at least
constexpr int ariaColonna = 10;                     ///< both sides of a text [px]
constexpr int ariaCeduta = 4;                       ///< of it, where the columns just do not fit [px]
constexpr int larghezzaMassima = 2 * larghezzaNome; ///< of a designation that nobody drew wider

/// Texts of one shape are as wide, for figures all are.
QString Forma(QString text) {
    for (QChar& c : text)
        if (c.isDigit())
            c = u'0';
    return text;
}

bool Ctrl(const QEvent* event) {
    return (static_cast<const QInputEvent*>(event)->modifiers() & Qt::ControlModifier) != 0;
}

bool Maiusc(const QEvent* event) {
    return (static_cast<const QInputEvent*>(event)->modifiers() & Qt::ShiftModifier) != 0;
}

/// The window has become the active one, or is no more.
bool CambiaAttivazione(const QEvent* event) {
    return event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate;
}

/// Whether these colours are the same in an active window and in another.
bool Uguali(const QPalette& colours, std::initializer_list<QPalette::ColorRole> roles) {
    return std::ranges::all_of(roles, [&colours](QPalette::ColorRole role) {
        return colours.brush(QPalette::Active, role) == colours.brush(QPalette::Inactive, role);
    });
}

} // namespace

GrigliaCatalogo::GrigliaCatalogo(QWidget* parent) : QTableView(parent) {
    setAutoFillBackground(true); // what whole rows leave looks like the table
    setBackgroundRole(QPalette::Base);
    setItemDelegate(new DelegatoNumeri(this));
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setHorizontalHeader(new Intestazioni(this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    altezzaRiga_ = fontMetrics().height() + 5;
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(altezzaRiga_);
    CollegaIntestazioni(horizontalHeader());
    horizontalHeader()->viewport()->installEventFilter(this);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* copy = new QAction(tr("&Copia") + u'\t' + QKeySequence(QKeySequence::Copy).toString(), this);
    copy->setObjectName(QStringLiteral("mnuCopia"));
    addAction(copy);
    ::sagomi::Collega(copy, &QAction::triggered, this, [this] { Copia(); });
    ricerca_ = new EtichettaRicerca(this);
    ferma_ = new ColonnaFerma(*this, [this](const QModelIndex& index, const QEvent* event) {
        return selectionCommand(index, event);
    });
    ferma_->addAction(copy);
    CollegaIntestazioni(ferma_->horizontalHeader());
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (!adattando_ && model() != nullptr && width > 0)
            larghezzeScelte_[model()->headerData(column, Qt::Horizontal).toString()] = width;
        if (const auto at = static_cast<std::size_t>(column); !adattando_ && at < larghezzePiene_.size())
            larghezzePiene_[at] = width;
    });
}

void GrigliaCatalogo::CollegaIntestazioni(QHeaderView* intestazioni) {
    // A column is nothing to select.
    disconnect(intestazioni, SIGNAL(sectionPressed(int)), nullptr, nullptr);
    disconnect(intestazioni, SIGNAL(sectionEntered(int)), nullptr, nullptr);
    ::sagomi::Collega(intestazioni, &QHeaderView::sectionClicked, this,
                      [this](int column) { emit ordineChiesto(column); });
}

void GrigliaCatalogo::Collega(LettoreDati* lettore) {
    lettore_ = lettore;
    Collega(static_cast<FonteRighe*>(lettore));
    connect(lettore, &LettoreDati::rigaCambiata, this, &GrigliaCatalogo::SegueRiga);
}

void GrigliaCatalogo::Collega(FonteRighe* fonte) {
    fonte_ = fonte;
    setModel(fonte->Modello());
    // Headings show nothing of the selection, and would be painted anew with every row.
    selectionModel()->disconnect(horizontalHeader());
    ferma_->Collega();
    connect(fonte->Modello(), &QAbstractItemModel::modelReset, this, &GrigliaCatalogo::SegueRiga);
}

void GrigliaCatalogo::FormatoGriglia(int count) {
    lettore_->Modello()->ImpostaFigura(1, "#,##0.0");
    lettore_->Modello()->ImpostaFigura(2, "#,##0");
    lettore_->Modello()->ImpostaFigura(3, "#,##0");
    for (int column = 4; column <= count; ++column)
        lettore_->Modello()->ImpostaFigura(column, "#,##0.00");
    AdattaColonne();
}

int LarghezzeMisurate::Di(const QFont& font, const QString& testo) {
    if (!font_ || (!font.isCopyOf(*font_) && font != *font_)) {
        font_ = font;
        note_.clear();
    }
    auto known = note_.find(testo);
    if (known == note_.end())
        known = note_.insert(testo, QFontMetrics(font).horizontalAdvance(testo));
    return *known;
}

int GrigliaCatalogo::LarghezzaColonna(int column, const QStringList& texts) const {
    const QString heading = model()->headerData(column, Qt::Horizontal).toString();
    if (const auto chosen = larghezzeScelte_.find(heading); chosen != larghezzeScelte_.end())
        return chosen->second;
    const int least = column == 0 ? larghezzaNome : larghezzaNumero;
    const QHeaderView* headings = horizontalHeader();
    const bool sorted = headings->isSortIndicatorShown() && headings->sortIndicatorSection() == column;
    int width =
        std::max(qRound(least * scalaLarghezza_),
                 larghezzeTitoli_.Di(headings->font(), heading) + ariaColonna +
                     (sorted ? style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, headings) : 0));
    for (const QString& text : texts)
        width = std::max(width, larghezzeTesti_.Di(font(), Forma(text)) + ariaColonna);
    return column == 0 ? std::min(width, qRound(larghezzaMassima * scalaLarghezza_)) : width;
}

int GrigliaCatalogo::Altezza(int rows) const {
    return horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize() +
           horizontalScrollBar()->sizeHint().height() + 2 * frameWidth();
}

void GrigliaCatalogo::AdattaColonne() {
    const std::vector<QStringList>& texts = fonte_->TestiLunghi();
    larghezzePiene_.clear();
    for (int column = 0; column < model()->columnCount(); ++column)
        larghezzePiene_.push_back(LarghezzaColonna(column, texts[static_cast<std::size_t>(column)]));
    RipartisceColonne();
}

bool GrigliaCatalogo::Disegnata(std::size_t colonna) const {
    return larghezzeScelte_.contains(
        model()->headerData(static_cast<int>(colonna), Qt::Horizontal).toString());
}

/// What each column gives up so that all of them fit; nothing where that is not enough.
std::vector<int> GrigliaCatalogo::LarghezzeCedute(int eccesso) const {
    std::vector<int> room;
    for (std::size_t column = 0; column < larghezzePiene_.size(); ++column) {
        const int least = qRound((column == 0 ? larghezzaNome : larghezzaNumero) * scalaLarghezza_);
        room.push_back(Disegnata(column) ? 0 : std::clamp(larghezzePiene_[column] - least, 0, ariaCeduta));
    }
    const int total = std::accumulate(room.begin(), room.end(), 0);
    if (eccesso <= 0 || eccesso > total)
        return std::vector<int>(room.size());
    int before = 0;
    for (int& give : room) {
        const int after = before + give;
        give = (after * eccesso / total) - (before * eccesso / total);
        before = after;
    }
    return room;
}

std::map<QString, int> GrigliaCatalogo::LarghezzeScelte() const {
    std::map<QString, int> widths = larghezzeScelte_;
    for (auto& [heading, width] : widths)
        width = qRound(width / scalaLarghezza_);
    return widths;
}

void GrigliaCatalogo::RiprendeLarghezze(std::map<QString, int> larghezze) {
    for (auto& [heading, width] : larghezze)
        width = qRound(width * scalaLarghezza_);
    larghezzeScelte_ = std::move(larghezze);
    AdattaColonne();
}

int GrigliaCatalogo::AltezzaIntera(int altezza) const {
    const int bar = horizontalScrollBar()->maximum() > 0 ? horizontalScrollBar()->sizeHint().height() : 0;
    const int around = horizontalHeader()->height() + bar + 2 * frameWidth();
    const int row = verticalHeader()->defaultSectionSize();
    return altezza < around + row ? altezza : around + (altezza - around) / row * row;
}

/// What each column takes of a spare width, as something given up below 0: all of it where that is little.
std::vector<int> GrigliaCatalogo::LarghezzePrese(int spazio) const {
    constexpr int parteMassima = 4; // of its own width
    std::vector<int> taken;
    int total = 1; // of the columns that nobody has drawn
    for (std::size_t column = 0; column < larghezzePiene_.size(); ++column)
        total += Disegnata(column) ? 0 : larghezzePiene_[column];
    spazio = riempie_ ? std::min(spazio, total / parteMassima) : 0;
    int before = 0;
    for (std::size_t column = 0; column < larghezzePiene_.size(); ++column) {
        const int after = before + (Disegnata(column) ? 0 : larghezzePiene_[column]);
        taken.push_back((before * spazio / total) - (after * spazio / total));
        before = after;
    }
    return taken;
}

int GrigliaCatalogo::LarghezzaIntera() const {
    const int columns = std::accumulate(larghezzePiene_.begin(), larghezzePiene_.end(), 0);
    return columns + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
}

void GrigliaCatalogo::RipartisceColonne() {
    if (adattando_ || model() == nullptr ||
        static_cast<int>(larghezzePiene_.size()) != model()->columnCount())
        return;
    if (!ImpostaLarghezze())
        return;
    ripartite_ = true;
    updateGeometries();
    viewport()->update();
}

// Told of the widths, the table would lay itself out when it has been painted, and be painted once more.
bool GrigliaCatalogo::ImpostaLarghezze() {
    const QScopedValueRollback guard(adattando_, true);
    const QSignalBlocker quiet(horizontalHeader());
    const int wanted = std::accumulate(larghezzePiene_.begin(), larghezzePiene_.end(), 0);
    const int spare = viewport()->width() - wanted;
    const std::vector<int> given = spare > 0 ? LarghezzePrese(spare) : LarghezzeCedute(-spare);
    bool changed = false;
    for (std::size_t i = 0; i < given.size(); ++i)
        if (const int width = larghezzePiene_[i] - given[i]; columnWidth(static_cast<int>(i)) != width) {
            setColumnWidth(static_cast<int>(i), width);
            changed = true;
        }
    return changed;
}

void GrigliaCatalogo::resizeEvent(QResizeEvent* event) {
    EventoProtetto([this, event] {
        QTableView::resizeEvent(event);
        RipartisceColonne();
    });
}

// The toolkit would paint all rows anew when the window becomes active and once more when the table gets the
// focus, right after the first time: what looks otherwise is the selection.
bool GrigliaCatalogo::viewportEvent(QEvent* event) {
    return EventoProtetto([this, event] {
        if (!CambiaAttivazione(event) ||
            !Uguali(palette(), {QPalette::Base, QPalette::AlternateBase, QPalette::Text}))
            return QTableView::viewportEvent(event);
        DipingeScelte();
        return QAbstractScrollArea::viewportEvent(event);
    });
}

void GrigliaCatalogo::focusInEvent(QFocusEvent* event) {
    EventoProtetto([this, event] {
        if (!currentIndex().isValid()) {
            QTableView::focusInEvent(event);
            return;
        }
        setAttribute(Qt::WA_InputMethodEnabled, false); // nothing is entered here
        update(QRegion(rect()).subtracted(contentsRect()));
        DipingeScelte();
    });
}

void GrigliaCatalogo::DipingeScelte() {
    QRegion rows = visualRect(currentIndex());
    for (int row = rowAt(0); row >= 0 && row < model()->rowCount(); ++row) {
        const QRect strip(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
        if (!strip.intersects(viewport()->rect()))
            break;
        if (row == currentIndex().row() || selectionModel()->isRowSelected(row))
            rows += strip;
    }
    viewport()->update(rows);
}

// Headings look the same in every window.
bool GrigliaCatalogo::eventFilter(QObject* object, QEvent* event) {
    return EventoProtetto([this, object, event] {
        if (object == horizontalHeader()->viewport() && CambiaAttivazione(event) &&
            Uguali(palette(), {QPalette::Button, QPalette::ButtonText, QPalette::Window}))
            return true;
        return QTableView::eventFilter(object, event);
    });
}

// A scroll bar that comes or goes can change the widths of the columns: then once more.
void GrigliaCatalogo::updateGeometries() {
    if (misurando_)
        return;
    const QScopedValueRollback guard(misurando_, true);
    for (int round = 0; round == 0 || (ripartite_ && round < 3); ++round) {
        ripartite_ = false;
        QTableView::updateGeometries();
        LasciaRigheIntere();
    }
    if (ferma_ != nullptr)
        ferma_->Allinea();
}

// The last row would be cut by the lower edge: the room of the rows ends with the last whole one.
void GrigliaCatalogo::LasciaRigheIntere() {
    const int row = verticalHeader()->defaultSectionSize();
    const int height = viewport()->height();
    if (height <= row)
        return;
    QMargins around = viewportMargins();
    around.setBottom(around.bottom() + height % row);
    setViewportMargins(around);
    FinisceConUnaRigaIntera();
}

// The hidden heading of the rows tells where they lie, by a room that ended below.
void GrigliaCatalogo::FinisceConUnaRigaIntera() {
    const QRect room = viewport()->geometry();
    verticalHeader()->setGeometry(room.left(), room.top(), 0, room.height());
    QMetaObject::invokeMethod(verticalHeader(), "updateGeometries");
    const QScrollBar* bar = verticalScrollBar();
    if (bar->maximum() > 0 && bar->value() == bar->maximum())
        verticalHeader()->setOffsetToLastSection();
}

// Sideways the user alone scrolls.
void GrigliaCatalogo::scrollTo(const QModelIndex& index, ScrollHint hint) {
    const int left = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    horizontalScrollBar()->setValue(left);
}

void GrigliaCatalogo::MostraOrdine(const QString& intestazione, Qt::SortOrder verso) {
    int sorted = -1;
    for (int column = 0; column < model()->columnCount(); ++column)
        if (model()
                ->headerData(column, Qt::Horizontal)
                .toString()
                .compare(intestazione, Qt::CaseInsensitive) == 0)
            sorted = column;
    horizontalHeader()->setSortIndicatorShown(sorted >= 0);
    horizontalHeader()->setSortIndicator(sorted, verso);
    ferma_->Allinea();
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

void GrigliaCatalogo::SegueRiga() {
    const QScopedValueRollback guard(seguendo_, true);
    const QModelIndex row = model()->index(fonte_->RigaInMano(), std::max(0, currentIndex().column()));
    if (row.isValid() && currentIndex().row() != row.row())
        setCurrentIndex(row);
}

void GrigliaCatalogo::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!seguendo_ && current.isValid() && current.row() != fonte_->RigaInMano())
        EventoProtetto([this, &current] { fonte_->MoveTo(current.row()); });
}

int GrigliaCatalogo::CercaIniziale(const QString& testo) const { return fonte_->CercaIniziale(testo); }

QModelIndex GrigliaCatalogo::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const int rows = model() == nullptr ? 0 : model()->rowCount();
    if (rows > 0 && (action == MoveHome || action == MoveEnd))
        return model()->index(action == MoveHome ? 0 : rows - 1, std::max(0, currentIndex().column()));
    return QTableView::moveCursor(action, modifiers);
}

// With Ctrl rows are added, never taken away: the row in hand would be one that is not selected.
QItemSelectionModel::SelectionFlags GrigliaCatalogo::selectionCommand(const QModelIndex& index,
                                                                      const QEvent* event) const {
    constexpr auto rows = QItemSelectionModel::Rows;
    if (event == nullptr)
        return QItemSelectionModel::ClearAndSelect | rows;
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate;
    const auto kind = event->type();
    const bool mouse = kind == QEvent::MouseButtonPress || kind == QEvent::MouseMove;
    const bool right = kind == QEvent::MouseButtonPress &&
                       static_cast<const QMouseEvent*>(event)->button() == Qt::RightButton;
    if (right)
        return selectionModel()->isSelected(index) ? QItemSelectionModel::SelectionFlags()
                                                   : QItemSelectionModel::ClearAndSelect | rows;
    if ((mouse || kind == QEvent::KeyPress) && Ctrl(event)) {
        if (Maiusc(event))
            return QItemSelectionModel::SelectCurrent | rows;
        const bool adds = mouse || static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Space;
        return (adds ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect) | rows;
    }
    return QTableView::selectionCommand(index, event);
}

bool GrigliaCatalogo::InRicerca() const {
    return !digitato_.isEmpty() && ultimoTasto_.isValid() &&
           ultimoTasto_.elapsed() <= QApplication::keyboardInputInterval() * 3LL;
}

void GrigliaCatalogo::keyboardSearch(const QString& search) {
    Cerca(InRicerca() ? digitato_ + search : search);
}

void GrigliaCatalogo::Cerca(const QString& testo) {
    ultimoTasto_.start();
    digitato_ = testo;
    if (testo.trimmed().isEmpty()) {
        ricerca_->hide();
        return;
    }
    const int row = CercaIniziale(testo);
    ricerca_->Mostra(testo, row >= 0);
    if (row >= 0)
        setCurrentIndex(model()->index(row, 0));
}

void GrigliaCatalogo::keyPressEvent(QKeyEvent* event) {
    EventoProtetto([this, event] { Tasto(event); });
}

void GrigliaCatalogo::Tasto(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        Copia();
        return;
    }
    const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    if (plain && !event->text().isEmpty() && event->text().front().isPrint()) {
        keyboardSearch(event->text());
        return;
    }
    if (event->key() == Qt::Key_Backspace && InRicerca()) {
        Cerca(digitato_.chopped(1));
        return;
    }
    if (Scorre(event->key()))
        return;
    QTableView::keyPressEvent(event);
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        event->accept(); // at the first and last row too: nobody else shall move it
}

/// A row is one thing: left and right scroll the columns.
bool GrigliaCatalogo::Scorre(int tasto) {
    if (tasto != Qt::Key_Left && tasto != Qt::Key_Right)
        return false;
    horizontalScrollBar()->triggerAction(tasto == Qt::Key_Left ? QScrollBar::SliderSingleStepSub
                                                               : QScrollBar::SliderSingleStepAdd);
    return true;
}

void GrigliaCatalogo::Copia() {
    const QString rows = RigheSelezionate();
    if (rows.isEmpty())
        return;
    QList<QStringList> table;
    for (const QString& line : rows.split(u'\n', Qt::SkipEmptyParts))
        table << line.split(u'\t');
    QApplication::clipboard()->setMimeData(TabellaCopiata(QString(), table));
}

QString GrigliaCatalogo::RigheSelezionate() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    const QModelIndex inHand = model()->index(fonte_->RigaInMano(), 0);
    if (inHand.isValid() && !rows.contains(inHand))
        rows << inHand;
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
            fields << fonte_->TestoIntero(row.row(), column);
        lines << fields.join(u'\t');
    }
    return lines.join(u'\n') + u'\n';
}

} // namespace sagomi
