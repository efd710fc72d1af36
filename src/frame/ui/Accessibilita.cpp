#include "frame/ui/Accessibilita.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>
#include <iterator>

#include "frame/ui/EtichettaPedice.h"

namespace sagomi {

namespace {

using Legami = QList<std::pair<QAccessibleInterface*, QAccessible::Relation>>;

/// A label. Whether it shows a result is asked each time: the toolkit makes this while the label is being
/// made.
class EtichettaAccessibile : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit EtichettaAccessibile(QLabel* label) : QAccessibleWidget(label, QAccessible::StaticText) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return Risultato() ? QAccessible::EditableText : QAccessible::StaticText;
    }
    [[nodiscard]] QString text(QAccessible::Text what) const override {
        const QString given = QAccessibleWidget::text(what);
        if (what == QAccessible::Value && Risultato())
            return Etichetta()->text();
        return what == QAccessible::Name && given.isEmpty() && !Risultato() ? Dicitura() : given;
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.readOnly = true;
        return s;
    }
    [[nodiscard]] int childCount() const override { return 0; } // its parts are read with it
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] Legami relations(QAccessible::Relation match) const override {
        Legami all = QAccessibleWidget::relations(match);
        QWidget* buddy = Etichetta()->buddy();
        if (buddy != nullptr && match.testFlag(QAccessible::Labelled))
            all.append({QAccessible::queryAccessibleInterface(buddy), QAccessible::Labelled});
        return all;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface && Risultato())
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    void selection(int index, int* start, int* end) const override {
        const int first = index == 0 ? Etichetta()->selectionStart() : -1;
        *start = std::max(first, 0);
        *end = *start + (first < 0 ? 0 : static_cast<int>(Etichetta()->selectedText().size()));
    }
    [[nodiscard]] int selectionCount() const override { return Etichetta()->hasSelectedText() ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int /*index*/) override { Etichetta()->setSelection(0, 0); }
    void setSelection(int /*index*/, int start, int end) override {
        Etichetta()->setSelection(start, end - start);
    }
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override {}
    [[nodiscard]] QString text(int start, int end) const override {
        return Mostrato().mid(start, end < 0 ? -1 : end - start);
    }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(Mostrato().size()); }
    [[nodiscard]] QRect characterRect(int /*offset*/) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint& /*point*/) const override { return 0; }
    void scrollToSubstring(int /*start*/, int /*end*/) override {}
    QString attributes(int /*offset*/, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    [[nodiscard]] bool Risultato() const {
        return widget()->inherits("sagomi::EtichettaRisultato") || // by name: that label installs this
               !widget()->accessibleName().isEmpty();
    }
    /// What a caption says: a subscript that stands over a gap belongs into it.
    [[nodiscard]] QString Dicitura() const {
        const auto* label = qobject_cast<const EtichettaPedice*>(widget());
        if (label == nullptr)
            return Etichetta()->text();
        const QString whole = label->text();
        const auto gap = whole.indexOf(u' ') < 0 ? whole.size() : whole.indexOf(u' ');
        return (whole.left(gap) + label->Pedice() + whole.mid(gap)).simplified() + label->Apice();
    }
    [[nodiscard]] QLabel* Etichetta() const { return static_cast<QLabel*>(widget()); }
    /// As it is painted: "¥" is the models' mark for "no limit".
    [[nodiscard]] QString Mostrato() const { return Etichetta()->text().replace(u'¥', QChar(0x221E)); }
};

/// A button that shows a result.
class PulsanteAccessibile : public QAccessibleWidget {
public:
    explicit PulsanteAccessibile(QPushButton* button) : QAccessibleWidget(button, QAccessible::Button) {}

    [[nodiscard]] QString text(QAccessible::Text what) const override {
        return what == QAccessible::Value ? Pulsante()->text() : QAccessibleWidget::text(what);
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == pressAction())
            Pulsante()->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    [[nodiscard]] QPushButton* Pulsante() const { return static_cast<QPushButton*>(widget()); }
};

QAccessibleInterface* Crea(const QString& key, QObject* object) {
    if (auto* button = qobject_cast<QPushButton*>(object))
        return key == u"QPushButton" && button->property(proprietaValore).toBool()
                   ? new PulsanteAccessibile(button)
                   : nullptr;
    auto* label = qobject_cast<QLabel*>(object);
    return label != nullptr && key == u"QLabel" ? new EtichettaAccessibile(label) : nullptr;
}

/// A value of a formula often has the name of the entry or the result that it repeats.
void DistingueFormule(const QWidget& maschera) {
    QStringList names;
    const QList<QWidget*> all = maschera.findChildren<QWidget*>();
    QList<QWidget*> formulas;
    std::copy_if(all.begin(), all.end(), std::back_inserter(formulas),
                 [](const QWidget* w) { return w->inherits("sagomi::LineaFormula"); });
    const auto inside = [&formulas](const QWidget* w) {
        return std::any_of(formulas.begin(), formulas.end(),
                           [w](const QWidget* f) { return f->isAncestorOf(w); });
    };
    for (const QWidget* w : all)
        if (!w->accessibleName().isEmpty() && !inside(w))
            names << w->accessibleName();
    for (QWidget* w : all)
        if (inside(w) && names.contains(w->accessibleName()))
            w->setAccessibleName(w->accessibleName() + QObject::tr(", nella formula"));
}

} // namespace

void InstallaAccessibilita() { QAccessible::installFactory(Crea); }

void NominaParti(QWidget& maschera) {
    for (auto* area : maschera.findChildren<QAbstractScrollArea*>()) {
        const QString name =
            area->accessibleName().isEmpty() ? QObject::tr("finestra") : area->accessibleName();
        area->verticalScrollBar()->setAccessibleName(QObject::tr("Scorrimento verticale, ") + name);
        area->horizontalScrollBar()->setAccessibleName(QObject::tr("Scorrimento orizzontale, ") + name);
        if (auto* table = qobject_cast<QTableView*>(area))
            table->horizontalHeader()->setAccessibleName(QObject::tr("Intestazioni, ") + name);
    }
    DistingueFormule(maschera);
}

} // namespace sagomi
