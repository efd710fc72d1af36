#include "frame/ui/Tasti.h"

#include <QAction>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QToolButton>

#include <array>

#include "frame/ui/Accessibilita.h"

namespace sagomi {

namespace {

/// F1 is the help, F5 reads a table anew, F10 belongs to the menus.
constexpr std::array funzioni{Qt::Key_F2, Qt::Key_F3, Qt::Key_F4,  Qt::Key_F6, Qt::Key_F7,
                              Qt::Key_F8, Qt::Key_F9, Qt::Key_F11, Qt::Key_F12};

/// Hands out function keys that the screen does not use yet; then the same with Shift.
class Liberi {
public:
    void Occupa(const QKeySequence& tasto) { presi_ << tasto; }
    QKeySequence Prossimo() {
        for (const auto shift : {Qt::NoModifier, Qt::ShiftModifier})
            for (const Qt::Key key : funzioni)
                if (const QKeySequence sequence(QKeyCombination(shift, key)); !presi_.contains(sequence)) {
                    Occupa(sequence);
                    return sequence;
                }
        return {};
    }

private:
    QList<QKeySequence> presi_;
};

/// "(F5)" at the end: the screen itself listens to that key.
bool GiaDetto(const QString& tip) {
    static const QRegularExpression key(QStringLiteral("\\((F\\d+|(Alt|Ctrl)\\+[^)]+)\\)"));
    return tip.contains(key);
}

QString ConTasto(const QString& tip, const QKeySequence& tasto) {
    const QString name = tasto.toString(QKeySequence::NativeText);
    if (name.isEmpty() || GiaDetto(tip))
        return tip;
    return tip.isEmpty() ? name : tip + QStringLiteral(" (") + name + u')';
}

QKeySequence TastoDi(const QAction& action) {
    return action.shortcut().isEmpty() ? QKeySequence::mnemonic(action.text()) : action.shortcut();
}

QList<QAction*> ComandiDiMenu(const QWidget& maschera) {
    QList<QAction*> commands;
    for (const QMenuBar* bar : maschera.findChildren<QMenuBar*>())
        for (QAction* action : bar->actions())
            if (action->menu() == nullptr && !action->isSeparator())
                commands << action;
    return commands;
}

} // namespace

bool Comando(const QAbstractButton& bottone) {
    if (bottone.objectName().startsWith(QStringLiteral("qt_")) || bottone.property(proprietaValore).toBool())
        return false;
    return qobject_cast<const QPushButton*>(&bottone) != nullptr ||
           qobject_cast<const QToolButton*>(&bottone) != nullptr;
}

void AssegnaTasti(QWidget& maschera) {
    Liberi keys;
    QList<QAbstractButton*> buttons;
    for (QAbstractButton* button : maschera.findChildren<QAbstractButton*>())
        if (Comando(*button))
            buttons << button;
    const QList<QAction*> actions = ComandiDiMenu(maschera);
    for (const QAbstractButton* button : buttons)
        keys.Occupa(button->shortcut());
    for (const QAction* action : maschera.findChildren<QAction*>())
        keys.Occupa(action->shortcut());
    for (QAbstractButton* button : buttons) {
        if (button->shortcut().isEmpty() && !GiaDetto(button->toolTip()))
            button->setShortcut(keys.Prossimo());
        const QString told = ConTasto(button->toolTip(), button->shortcut());
        if (button->property(proprietaSuggerimento).toBool())
            button->setStatusTip(told);
        else
            button->setToolTip(told);
    }
    for (QAction* action : actions) {
        if (TastoDi(*action).isEmpty())
            action->setShortcut(keys.Prossimo());
        action->setToolTip(ConTasto(action->toolTip(), TastoDi(*action)));
    }
}

} // namespace sagomi
