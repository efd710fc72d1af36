#include "frame/ui/StanzaCopiata.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTableView>

#include <algorithm>
#include <tuple>
#include <utility>

#include "frame/ui/GrigliaDerivazione.h"
#include "frame/ui/GrigliaFattori.h"
#include "frame/ui/TabellaCopiata.h"

namespace sagomi {

namespace {

QString Valore(const QWidget* w) {
    if (const auto* label = qobject_cast<const QLabel*>(w))
        return label->accessibleName().isEmpty() ? QString()
                                                 : label->text().trimmed().replace(u'¥', QChar(0x221E));
    if (const auto* box = qobject_cast<const QComboBox*>(w))
        return box->currentText().trimmed();
    if (const auto* bar = qobject_cast<const QProgressBar*>(w))
        return bar->accessibleName().isEmpty() ? QString() : bar->text().trimmed();
    if (const auto* button = qobject_cast<const QPushButton*>(w)) // the factor of a table that is pressed
        return qobject_cast<const GrigliaFattori*>(w->parentWidget()) == nullptr ? QString()
                                                                                 : button->text().trimmed();
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

/// A unit in brackets at the end, as names and captions have it; what else stands in brackets is none.
const QRegularExpression& UnitaInFondo() {
    static const QRegularExpression unit(QStringLiteral(
        "\\s*[\\[(]((?:[mc]?m[2346²³⁴⁶]?|k?Nm?(?:/(?:[mc]?m[2²]?|rad))?|[kK]g/m|m?rad|%))[\\])]:?"
        "\\s*$"));
    return unit;
}

/// The label that names a control: its own, or that of the line of a grid.
QString Dicitura(const QWidget* w) {
    static const QRegularExpression cell(QStringLiteral("^Lbl_(.+)_\\d+$"));
    const auto inGrid = cell.match(w->objectName());
    const QString line = inGrid.hasMatch() ? QStringLiteral("LblNome") + inGrid.captured(1) : QString();
    for (const auto* caption : w->window()->findChildren<QLabel*>())
        if (caption->buddy() == w || (!line.isEmpty() && caption->objectName() == line))
            return caption->text();
    return {};
}

/// Of the room, where its title says one for all.
QString UnitaStanza(const QWidget* w) {
    for (const QWidget* p = w; p != nullptr; p = p->parentWidget())
        if (const auto* room = qobject_cast<const QGroupBox*>(p))
            return UnitaInFondo().match(room->title()).captured(1);
    return {};
}

QString Unita(const QWidget* w) {
    static const QRegularExpression inTip(QStringLiteral("\\[([^\\]\\s]*)\\]"));
    for (const QString& text : {w->accessibleName(), Dicitura(w)})
        if (const auto found = UnitaInFondo().match(text); found.hasMatch())
            return found.captured(1);
    const QString told = inTip.match(w->toolTip()).captured(1);
    return told.isEmpty() ? UnitaStanza(w) : told;
}

RigaDerivazione Riga(const QWidget* w, const QString& value) {
    static const QRegularExpression clause(
        QStringLiteral("(?:EC\\d|ENV|EN |NTC|Ordinanza|CNR|D\\.?M\\.?)[^;\n]*"));
    return {w->accessibleName().remove(UnitaInFondo()), value, Unita(w),
            clause.match(w->toolTip()).captured(0).trimmed()};
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

} // namespace

const QTableView* TabellaDi(const QObject* object) {
    const auto* table = qobject_cast<const QTableView*>(object);
    return table == nullptr || table->model() == nullptr || table->inherits("sagomi::GrigliaCatalogo")
               ? nullptr
               : table;
}

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

const QWidget& StanzaDi(const QWidget& controllo, const QWidget& schermo) {
    for (const QWidget* w = &controllo; w != nullptr && w != &schermo; w = w->parentWidget())
        if (qobject_cast<const QGroupBox*>(w) != nullptr ||
            qobject_cast<const GrigliaFattori*>(w) != nullptr ||
            qobject_cast<const GrigliaDerivazione*>(w) != nullptr || TabellaDi(w) != nullptr ||
            w->property(proprietaTabella).isValid())
            return *w;
    return schermo;
}

QString NomeStanza(const QWidget& stanza) {
    const auto* room = qobject_cast<const QGroupBox*>(&stanza);
    QString name = stanza.isWindow() ? stanza.windowTitle()
                   : room != nullptr ? room->title().remove(u'&')
                                     : stanza.accessibleName();
    if (name.isEmpty())
        name = stanza.accessibleName().isEmpty() ? stanza.window()->windowTitle() : stanza.accessibleName();
    return stanza.isWindow() ? name : name.remove(UnitaInFondo());
}

QList<QStringList> RigheStanza(const QWidget& stanza) {
    if (const QVariant table = stanza.property(proprietaTabella); table.isValid())
        return table.value<QList<QStringList>>();
    if (const QTableView* table = TabellaDi(&stanza))
        return RigheDi(*table);
    QList<QStringList> rows{
        {QObject::tr("Simbolo"), QObject::tr("Valore"), QObject::tr("Unità"), QObject::tr("Norma")}};
    for (const RigaDerivazione& r : Derivazione(stanza))
        rows.append({r.simbolo, r.valore, r.unita, r.norma});
    return rows;
}

QMimeData* StanzaCopiata(const QWidget& stanza) {
    const QString window = stanza.window()->windowTitle();
    const QString name = NomeStanza(stanza);
    const QString title =
        stanza.isWindow() || name == window ? window : name + QStringLiteral(" - ") + window;
    return TabellaCopiata(title, RigheStanza(stanza));
}

} // namespace sagomi
