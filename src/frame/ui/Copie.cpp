#include "frame/ui/Copie.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QRegularExpression>
#include <QTableView>

#include <algorithm>
#include <tuple>
#include <utility>

#include "frame/ui/EtichettaRisultato.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/TabellaCopiata.h"

namespace sagomi {

namespace {

QString Valore(const QWidget* w) {
    if (const auto* label = qobject_cast<const QLabel*>(w))
        return label->accessibleName().isEmpty() ? QString()
                                                 : label->text().trimmed().replace(u'¥', QChar(0x221E));
    if (const auto* box = qobject_cast<const QComboBox*>(w))
        return box->currentText().trimmed();
    const auto* box = qobject_cast<const QLineEdit*>(w);
    return box == nullptr || box->accessibleName().isEmpty() ? QString() : box->text().trimmed();
}

/// Room by room, in each line by line.
std::tuple<int, int, int, int> Posto(const QWidget* w, const QWidget& screen) {
    const QWidget* room = w;
    for (const QWidget* p = w; p != nullptr && p != &screen; p = p->parentWidget())
        if (qobject_cast<const QGroupBox*>(p) != nullptr)
            room = p;
    const QPoint corner = room->mapTo(&screen, QPoint());
    const QPoint own = w->mapTo(&screen, w->rect().center());
    return {corner.y(), corner.x(), own.y(), own.x()};
}

RigaDerivazione Riga(const QWidget* w, const QString& value) {
    static const QRegularExpression unit(QStringLiteral("\\s*[\\[(]([^\\])]*)[\\])]\\s*$"));
    static const QRegularExpression unitInTip(QStringLiteral("\\[([^\\]]*)\\]"));
    static const QRegularExpression clause(
        QStringLiteral("(?:EC\\d|ENV|EN |NTC|Ordinanza|CNR|D\\.?M\\.?)[^;\n]*"));
    const QString name = w->accessibleName();
    const auto found = unit.match(name);
    const QString tip = w->toolTip();
    return {found.hasMatch() ? name.left(found.capturedStart()) : name, value,
            found.hasMatch() ? found.captured(1) : unitInTip.match(tip).captured(1),
            clause.match(tip).captured(0).trimmed()};
}

bool QualcosaDiScelto(const QObject* object) {
    if (const auto* label = qobject_cast<const QLabel*>(object))
        return label->hasSelectedText();
    const auto* box = qobject_cast<const QLineEdit*>(object);
    return box != nullptr && box->hasSelectedText();
}

/// The rows that are selected, or all of them where it is one cell or none, under their heads.
QList<QStringList> RigheDi(const QTableView& table) {
    const QAbstractItemModel& model = *table.model();
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column)
        cells << model.headerData(column, Qt::Horizontal).toString().simplified();
    QList<QStringList> rows{cells};
    const QItemSelectionModel* chosen = table.selectionModel();
    const bool some = chosen != nullptr && chosen->selectedRows().size() > 1;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (some && !chosen->isRowSelected(row))
            continue;
        cells.clear();
        for (int column = 0; column < model.columnCount(); ++column)
            cells << model.index(row, column).data().toString().trimmed();
        rows << cells;
    }
    return rows;
}

/// A table that has no manner of copying of its own.
const QTableView* TabellaDi(QObject* object) {
    const auto* table = qobject_cast<const QTableView*>(object);
    return table == nullptr || table->model() == nullptr || table->inherits("sagomi::GrigliaCatalogo")
               ? nullptr
               : table;
}

/// Selects the text of a result but the blanks around it.
bool SceglieNumero(QObject* object) {
    auto* label = qobject_cast<QLabel*>(object);
    auto* box = qobject_cast<QLineEdit*>(object);
    const QString text = label != nullptr ? label->text() : box != nullptr ? box->text() : QString();
    const QString number = text.trimmed();
    if (number.isEmpty())
        return false;
    const auto start = static_cast<int>(text.indexOf(number));
    const auto length = static_cast<int>(number.size());
    if (label != nullptr) {
        if (!label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse))
            return false;
        label->setSelection(start, length);
    } else {
        box->setSelection(start, length);
    }
    return true;
}

} // namespace

QList<RigaDerivazione> Derivazione(const QWidget& schermo) {
    QList<std::pair<std::tuple<int, int, int, int>, RigaDerivazione>> found;
    for (const QWidget* w : schermo.findChildren<QWidget*>())
        if (const QString value = Valore(w); !value.isEmpty() && w->isVisibleTo(&schermo))
            found.append({Posto(w, schermo), Riga(w, value)});
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    QList<RigaDerivazione> rows;
    for (const auto& f : found)
        rows << f.second;
    return rows;
}

QMimeData* DerivazioneCopiata(const QWidget& schermo) {
    QList<QStringList> rows{
        {QObject::tr("Simbolo"), QObject::tr("Valore"), QObject::tr("Unità"), QObject::tr("Norma")}};
    for (const RigaDerivazione& r : Derivazione(schermo))
        rows.append({r.simbolo, r.valore, r.unita, r.norma});
    return TabellaCopiata(schermo.windowTitle(), rows);
}

Copie::Copie(QWidget* schermo, std::function<bool()> dettaglio)
    : QObject(schermo), schermo_(schermo), dettaglio_(std::move(dettaglio)) {
    schermo->installEventFilter(this);
    for (QWidget* w : schermo->findChildren<QWidget*>())
        if (qobject_cast<QLineEdit*>(w) != nullptr || qobject_cast<EtichettaRisultato*>(w) != nullptr ||
            TabellaDi(w) != nullptr)
            w->installEventFilter(this);
}

bool Copie::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::MouseButtonDblClick && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(object, event);
    return EventoProtetto([&] { return Filtra(object, event); });
}

bool Copie::Filtra(QObject* object, QEvent* event) const {
    if (event->type() == QEvent::MouseButtonDblClick)
        return object != schermo_ && TabellaDi(object) == nullptr && SceglieNumero(object);
    if (const QTableView* table = TabellaDi(object);
        table != nullptr && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        QApplication::clipboard()->setMimeData(TabellaCopiata(schermo_->windowTitle(), RigheDi(*table)));
        return true;
    }
    if (!dettaglio_() || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy) ||
        QualcosaDiScelto(object))
        return false;
    QApplication::clipboard()->setMimeData(DerivazioneCopiata(*schermo_));
    return true;
}

} // namespace sagomi
