#include "frame/ui/Copie.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTableView>

#include <utility>

#include "frame/ui/EtichettaRisultato.h"
#include "frame/ui/MenuCopie.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/StanzaCopiata.h"

namespace sagomi {

namespace {

/// A result, or a label whose text can be selected.
bool DaLeggere(const QObject* object) {
    const auto* label = qobject_cast<const QLabel*>(object);
    return label != nullptr && (qobject_cast<const EtichettaRisultato*>(label) != nullptr ||
                                label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
}

bool QualcosaDiScelto(const QObject* object) {
    if (const auto* label = qobject_cast<const QLabel*>(object))
        return label->hasSelectedText();
    const auto* box = qobject_cast<const QLineEdit*>(object);
    return box != nullptr && box->hasSelectedText();
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
        if (qobject_cast<EtichettaRisultato*>(label) == nullptr)
            return false; // of a sentence the word
        label->setSelection(start, length);
    } else {
        box->setSelection(start, length);
    }
    return true;
}

} // namespace

Copie::Copie(QWidget* schermo, std::function<bool()> dettaglio)
    : QObject(schermo), schermo_(schermo), dettaglio_(std::move(dettaglio)) {
    schermo->installEventFilter(this);
    for (QWidget* w : schermo->findChildren<QWidget*>())
        if (qobject_cast<QLineEdit*>(w) != nullptr || DaLeggere(w) ||
            qobject_cast<QComboBox*>(w) != nullptr || TabellaDi(w) != nullptr)
            w->installEventFilter(this);
}

bool Copie::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::MouseButtonDblClick && event->type() != QEvent::KeyPress &&
        event->type() != QEvent::ContextMenu)
        return QObject::eventFilter(object, event);
    return EventoProtetto([&] { return Filtra(object, event); });
}

bool Copie::Filtra(QObject* object, QEvent* event) const {
    if (event->type() == QEvent::MouseButtonDblClick)
        return object != schermo_ && qobject_cast<QComboBox*>(object) == nullptr &&
               TabellaDi(object) == nullptr && SceglieNumero(object);
    if (event->type() == QEvent::ContextMenu)
        return MostraMenuCopie(*schermo_, *static_cast<QWidget*>(object),
                               *static_cast<QContextMenuEvent*>(event));
    return Tasto(object, *static_cast<QKeyEvent*>(event));
}

bool Copie::Tasto(QObject* object, const QKeyEvent& event) const {
    const bool all =
        event.key() == Qt::Key_C && event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    if (!all && (!const_cast<QKeyEvent&>(event).matches(QKeySequence::Copy) || QualcosaDiScelto(object)))
        return false;
    const auto* from = object == schermo_ ? schermo_->focusWidget() : qobject_cast<QWidget*>(object);
    const QWidget& what = all ? *schermo_ : DaCopiare(from);
    if (TabellaDi(&what) == nullptr && RigheStanza(what).size() < 2)
        return false; // heads alone are nothing to lose the clipboard for
    QApplication::clipboard()->setMimeData(StanzaCopiata(what));
    return true;
}

/// A table for itself; of a detail everything, else the room, where it shows anything.
const QWidget& Copie::DaCopiare(const QWidget* controllo) const {
    if (controllo == nullptr || controllo == schermo_)
        return *schermo_;
    if (TabellaDi(controllo) != nullptr)
        return *controllo;
    const QWidget& room = StanzaDi(*controllo, *schermo_);
    return dettaglio_() || RigheStanza(room).size() < 2 ? *schermo_ : room;
}

} // namespace sagomi
