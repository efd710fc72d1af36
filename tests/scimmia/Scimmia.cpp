#include "Scimmia.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QTextEdit>
#include <QThread>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <array>

#include "Sorveglianza.h"
#include "frame/GeneraleSagomi.h"
#include "frame/ui/ChiudiProgramma.h"
#include "frame/ui/NavigaSchermi.h"

namespace sagomi::prove {

namespace {

const std::array<const char*, 26> testi{"1",     "2.5",    "2,5",   "100",   "1000", "-5",      "0",
                                        "1e300", "1E-300", "abc",   "",      "  7 ", "1.234,5", "\"",
                                        "12 kN", "0x10",   "1.2.3", "+3",    "nan",  "inf",     "99999999",
                                        "0.001", "30000",  "'; --", "3/4\t", "=1+1"};

constexpr std::array tasti{
    Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Up,     Qt::Key_Down,
    Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Home,      Qt::Key_End,     Qt::Key_PageUp, Qt::Key_PageDown,
    Qt::Key_Space,  Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Insert,  Qt::Key_Escape, Qt::Key_F1,
    Qt::Key_F2,     Qt::Key_F3,     Qt::Key_F4,        Qt::Key_F5,      Qt::Key_F6,     Qt::Key_F7,
    Qt::Key_F8,     Qt::Key_F9,     Qt::Key_F10,       Qt::Key_F11,     Qt::Key_F12,    Qt::Key_A,
    Qt::Key_C,      Qt::Key_I,      Qt::Key_P,         Qt::Key_S,       Qt::Key_V,      Qt::Key_X,
    Qt::Key_Z,      Qt::Key_5,      Qt::Key_Comma,     Qt::Key_Menu};

constexpr std::array modificatori{Qt::NoModifier,  Qt::NoModifier,      Qt::NoModifier,     Qt::ShiftModifier,
                                  Qt::AltModifier, Qt::ControlModifier, Qt::ControlModifier};

QString Nome(const QWidget& w) {
    const QString name =
        w.objectName().isEmpty() ? QString::fromLatin1(w.metaObject()->className()) : w.objectName();
    return &w == w.window() ? name : Nome(*w.window()) + u'.' + name;
}

/// What stands in a window and can be used, in the order of its making.
QList<QWidget*> Usabili(const QWidget& window) {
    QList<QWidget*> usable;
    for (QWidget* w : window.findChildren<QWidget*>())
        if (w->window() == &window && w->isVisible() && w->isEnabled() && !w->visibleRegion().isEmpty() &&
            qobject_cast<QLabel*>(w) == nullptr)
            usable << w;
    return usable;
}

/// Windows that can be used, in an order that does not hang on where they lie in memory.
QList<QWidget*> Finestre() {
    QList<QWidget*> windows;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->isWindow() && w->windowType() != Qt::ToolTip && w->windowType() != Qt::Popup)
            windows << w;
    std::ranges::sort(windows, {}, [](const QWidget* w) { return Nome(*w); });
    return windows;
}

QList<QAction*> Voci(const QMenu& menu) {
    QList<QAction*> entries;
    for (QAction* a : menu.actions())
        if (a->isVisible() && a->isEnabled() && !a->isSeparator())
            entries << a;
    return entries;
}

constexpr QLatin1String voceFine("&Esci"); ///< the entry that ends the program

/// Whether the program ends with this window.
bool FinisceConLei(const QWidget& window) {
    return std::ranges::any_of(window.findChildren<QMenu*>(), [](const QMenu* menu) {
        return std::ranges::any_of(menu->actions(), [](const QAction* a) { return a->text() == voceFine; });
    });
}

} // namespace

Scimmia::Scimmia(Sorveglianza& sorveglianza, int eventi, unsigned seme)
    : sorveglianza_(sorveglianza), generatore_(seme), eventi_(eventi) {}

void Scimmia::Vive(const std::function<void()>& avvia) {
    livello_ = 0;
    Comincia(); // the start may have boxes, too
    avvia();
    livello_ = 1;
    QApplication::exec();
}

void Scimmia::Comincia() {
    QTimer::singleShot(0, this, [this] { Passo(); });
}

/// The next turn is asked for before this one acts: what it opens runs a loop of its own.
void Scimmia::Passo() {
    if (ChiusuraInCorso)
        return; // the program ends; whoever starts it again begins anew
    Comincia();
    Finito() ? Chiude() : Agisce();
}

/// The one of three that has been used least, so that what only few controls lead to is come by, too.
template <typename L> const auto& Scimmia::MenoUsato(const L& lista, auto nome) {
    const auto* least = &Uno(lista);
    for (int i = 1; i < 3; ++i)
        if (const auto* other = &Uno(lista); usi_.value(nome(*other)) < usi_.value(nome(*least)))
            least = other;
    ++usi_[nome(*least)];
    return *least;
}

void Scimmia::Racconta(const QString& evento, const QWidget* w) {
    sorveglianza_.Annota(fatti_, w == nullptr ? evento : evento + u' ' + Nome(*w));
}

void Scimmia::Agisce() {
    const bool inFront =
        QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr;
    if (!inFront && QThread::currentThread()->loopLevel() > livello_)
        return; // a box has been answered, and is on its way out
    ++fatti_;
    if (const QWidget* window = QApplication::activeWindow();
        window != nullptr && !window->objectName().isEmpty())
        incontrate_ << window->objectName();
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
        SulMenu(*menu);
    else if (QWidget* popup = QApplication::activePopupWidget())
        Si(50) ? Preme(*popup) : Clicca(*popup);
    else if (QWidget* dialog = QApplication::activeModalWidget())
        SulDialogo(*dialog);
    else
        SulloSchermo();
}

/// Whatever is open is answered or closed, then the program.
void Scimmia::Chiude() {
    constexpr int pazienza = 300;
    sorveglianza_.Annota(fatti_, QStringLiteral("closes"));
    if (++inFondo_ == pazienza)
        sorveglianza_.Abbandona(QStringLiteral("the program does not close"));
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    else if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        QTest::mouseClick(Uno(box->buttons()), Qt::LeftButton);
    else if (QWidget* dialog = QApplication::activeModalWidget())
        dialog->close();
    else
        ChiudiProgramma();
}

/// One of the entries; none where there is none, and most times in the place of the end of the program.
QAction* Scimmia::Voce(const QList<QAction*>& voci, const QWidget& w) {
    if (voci.isEmpty())
        return nullptr;
    const QString place = Nome(w);
    QAction* entry = MenoUsato(voci, [&place](const QAction* a) { return place + u'/' + a->text(); });
    return Rimane(entry->text() == voceFine) ? nullptr : entry;
}

void Scimmia::SulMenu(QMenu& menu) {
    const QList<QAction*> entries = Voci(menu);
    if (entries.isEmpty() || Si(30)) {
        Racconta(QStringLiteral("leaves the menu"));
        QTest::keyClick(&menu, Qt::Key_Escape);
        return;
    }
    QAction* entry = Voce(entries, menu);
    if (entry == nullptr)
        return;
    Racconta(QStringLiteral("chooses ") + entry->text());
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(entry).center());
}

void Scimmia::SulDialogo(QWidget& dialogo) {
    if (auto* box = qobject_cast<QMessageBox*>(&dialogo)) {
        QAbstractButton* button = Uno(box->buttons());
        Racconta(QStringLiteral("answers ") + button->text());
        QTest::mouseClick(button, Qt::LeftButton);
        return;
    }
    if (Si(10)) {
        Racconta(QStringLiteral("closes"), &dialogo);
        dialogo.close();
    } else if (QWidget* w = Controllo(dialogo))
        Si(70) ? Clicca(*w) : Preme(*w);
}

QWidget* Scimmia::Finestra() {
    const QList<QWidget*> windows = Finestre();
    QWidget* active = QApplication::activeWindow();
    if (windows.isEmpty() || (active != nullptr && active->isVisible() && Si(85)))
        return active;
    return Uno(windows);
}

QWidget* Scimmia::Controllo(QWidget& finestra) {
    const QList<QWidget*> usable = Usabili(finestra);
    return usable.isEmpty() ? nullptr : MenoUsato(usable, [](const QWidget* w) { return Nome(*w); });
}

void Scimmia::SulloSchermo() {
    QWidget* window = Finestra();
    if (window == nullptr)
        return;
    const int what = Caso(100);
    QWidget* w = Controllo(*window);
    if (w == nullptr || what < 5)
        MuoveFinestre(*window);
    else if (what < 15)
        VoceDiMenu(*window);
    else if (what < 50)
        Clicca(*w);
    else if (what < 75)
        Scrive(*w);
    else if (what < 92)
        Preme(*w);
    else if (what < 97)
        Gira(*w);
    else
        MenuContestuale(*w);
}

void Scimmia::MuoveFinestre(QWidget& finestra) {
    const int what = Caso(20);
    if (what < 8 && Rimane(FinisceConLei(finestra)))
        return;
    Racconta(QStringLiteral("window, kind %1,").arg(what), &finestra);
    if (what < 8)
        finestra.close();
    else if (what < 10)
        finestra.showMaximized();
    else if (what < 12)
        finestra.showNormal();
    else if (what < 15)
        finestra.resize(100 + Caso(1800), 100 + Caso(1000));
    else
        finestra.activateWindow();
}

void Scimmia::Clicca(QWidget& w) {
    const int kind = Caso(20);
    const QPoint place(Caso(std::max(1, w.width())), Caso(std::max(1, w.height())));
    Racconta(QStringLiteral("click %1 at %2,%3").arg(kind).arg(place.x()).arg(place.y()), &w);
    if (kind < 16)
        QTest::mouseClick(&w, Qt::LeftButton, {}, place);
    else if (kind < 19)
        QTest::mouseDClick(&w, Qt::LeftButton, {}, place);
    else
        QTest::mouseClick(&w, Qt::LeftButton, Qt::ShiftModifier, place);
}

void Scimmia::Scrive(QWidget& w) {
    QWidget* target = &w;
    if (const QList<QLineEdit*> entries = w.window()->findChildren<QLineEdit*>(); !entries.isEmpty())
        if (QLineEdit* entry = Uno(entries); entry->isVisible() && entry->isEnabled())
            target = entry;
    const QString text = Si(3) ? QString(400, u'7') : QString::fromLatin1(Uno(testi));
    Racconta(QStringLiteral("types \"%1\" into").arg(text.left(20)), target);
    target->setFocus();
    if (auto* entry = qobject_cast<QLineEdit*>(target))
        entry->selectAll();
    const QPointer<QWidget> alive = target;
    for (const QChar c : text)
        if (alive)
            QTest::keyClick(alive.data(), c.toLatin1());
    if (alive && Si(60))
        QTest::keyClick(alive.data(), Si(50) ? Qt::Key_Return : Qt::Key_Tab);
}

void Scimmia::Preme(QWidget& w) {
    const Qt::Key key = Uno(tasti);
    const Qt::KeyboardModifier with = Uno(modificatori);
    QWidget* focus = QApplication::focusWidget();
    QWidget* target = focus != nullptr && focus->window() == w.window() && Si(60) ? focus : &w;
    Racconta(QStringLiteral("key %1 with %2 to").arg(key, 0, 16).arg(with, 0, 16), target);
    QTest::keyClick(target, key, with);
}

void Scimmia::Gira(QWidget& w) {
    const int steps = (Caso(7) - 3) * 120;
    const Qt::KeyboardModifier with = Uno(modificatori);
    Racconta(QStringLiteral("wheel %1").arg(steps), &w);
    const QPointF place(w.width() / 2.0, w.height() / 2.0);
    QWheelEvent event(place, w.mapToGlobal(place), {}, {0, steps}, Qt::NoButton, with, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&w, &event);
}

void Scimmia::MenuContestuale(QWidget& w) {
    Racconta(QStringLiteral("context menu of"), &w);
    const QPoint place = w.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, w.mapToGlobal(place));
    QApplication::sendEvent(&w, &event);
}

void Scimmia::VoceDiMenu(QWidget& finestra) {
    QList<QAction*> entries;
    for (QMenu* menu : finestra.findChildren<QMenu*>())
        for (QAction* a : Voci(*menu))
            if (a->menu() == nullptr)
                entries << a;
    QAction* entry = Voce(entries, finestra);
    if (entry == nullptr)
        return;
    Racconta(QStringLiteral("menu ") + entry->text(), &finestra);
    entry->trigger();
}

QString Scimmia::File(bool daLeggere, const QString& cartella) {
    static const QStringList read{QStringLiteral("trave.sco"), QStringLiteral("nodo.gfl"),
                                  QStringLiteral("rotto.sco"), QStringLiteral("rotto.gfl"),
                                  QStringLiteral("manca.sco"), QStringLiteral("cartella.sco"),
                                  QStringLiteral("fifo.gfl"),  QString()};
    static const QStringList written{QStringLiteral("salvato"),  QStringLiteral("trave.sco"),
                                     QStringLiteral("nodo.gfl"), QStringLiteral("disegno"),
                                     QStringLiteral("manca/x"),  QStringLiteral("cartella.sco"),
                                     QStringLiteral("fifo.gfl"), QString()};
    const QString name = Uno(daLeggere ? read : written);
    Racconta((daLeggere ? QStringLiteral("reads ") : QStringLiteral("writes ")) + name);
    return name.isEmpty() ? name : cartella + u'/' + name;
}

} // namespace sagomi::prove
