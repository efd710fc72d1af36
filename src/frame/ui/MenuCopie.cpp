#include "frame/ui/MenuCopie.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

#include <memory>

#include "frame/ui/Protetto.h"
#include "frame/ui/StanzaCopiata.h"

namespace sagomi {

namespace {

/// Below another window there is nothing; with the menu key it is the control in use.
const QWidget& Sotto(QWidget& schermo, QWidget& ricevente, const QContextMenuEvent& evento) {
    if (&ricevente != &schermo)
        return ricevente;
    const QWidget* found = evento.reason() == QContextMenuEvent::Keyboard
                               ? schermo.focusWidget()
                               : schermo.childAt(schermo.mapFromGlobal(evento.globalPos()));
    return found == nullptr ? schermo : *found;
}

QAction* Aggiunge(QMenu& menu, const char* nome, const QString& testo) {
    QAction* entry = menu.addAction(testo);
    entry->setObjectName(QString::fromLatin1(nome));
    return entry;
}

void CopiaImmagine(const QWidget& stanza) {
    const std::unique_ptr<QMimeData> whole(StanzaCopiata(stanza));
    auto* picture = new QMimeData;
    picture->setImageData(whole->imageData());
    QApplication::clipboard()->setMimeData(picture);
}

/// A box has a menu of its own; a label would only have that of its selection.
QMenu* MenuDi(QWidget& ricevente) {
    if (auto* box = qobject_cast<QLineEdit*>(&ricevente))
        return box->createStandardContextMenu();
    auto* menu = new QMenu(&ricevente);
    const auto* label = qobject_cast<QLabel*>(&ricevente);
    if (label == nullptr || label->text().trimmed().isEmpty())
        return menu;
    const QString value = label->hasSelectedText() ? label->selectedText() : label->text().trimmed();
    QAction* entry = Aggiunge(*menu, "mnuCopiaValore", QObject::tr("&Copia il valore"));
    Collega(entry, &QAction::triggered, &ricevente, [value] { QApplication::clipboard()->setText(value); });
    return menu;
}

} // namespace

void AggiungeCopie(QMenu& menu, const QWidget& controllo, QWidget& schermo) {
    const QWidget& room = StanzaDi(controllo, schermo);
    if (&room != &schermo && RigheStanza(room).size() > 1) {
        const QString name = NomeStanza(room).replace(u'&', QStringLiteral("&&"));
        QAction* table = Aggiunge(menu, "mnuCopiaTabella", QObject::tr("Copia la ta&bella «%1»").arg(name));
        Collega(table, &QAction::triggered, &room,
                [&room] { QApplication::clipboard()->setMimeData(StanzaCopiata(room)); });
        QAction* picture =
            Aggiunge(menu, "mnuCopiaImmagine", QObject::tr("Copia l'&immagine di «%1»").arg(name));
        Collega(picture, &QAction::triggered, &room, [&room] { CopiaImmagine(room); });
    }
    if (RigheStanza(schermo).size() < 2)
        return;
    QAction* all =
        Aggiunge(menu, "mnuCopiaFinestra",
                 QObject::tr("Copia &tutta la finestra come tabella") + u'\t' +
                     QKeySequence(QStringLiteral("Ctrl+Shift+C")).toString(QKeySequence::NativeText));
    Collega(all, &QAction::triggered, &schermo,
            [&schermo] { QApplication::clipboard()->setMimeData(StanzaCopiata(schermo)); });
}

bool MostraMenuCopie(QWidget& schermo, QWidget& ricevente, const QContextMenuEvent& evento) {
    QMenu* menu = MenuDi(ricevente);
    menu->setParent(schermo.window(), menu->windowFlags()); // a control that is switched off takes it along
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!menu->isEmpty())
        menu->addSeparator();
    AggiungeCopie(*menu, Sotto(schermo, ricevente, evento), schermo);
    if (menu->isEmpty()) {
        delete menu;
        return false;
    }
    menu->popup(evento.globalPos());
    return true;
}

} // namespace sagomi
