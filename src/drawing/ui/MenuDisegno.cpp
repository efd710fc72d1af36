#include "drawing/ui/MenuDisegno.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>

#include <utility>

#include "drawing/ui/FrmPltSezione.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/StanzaCopiata.h"

namespace sagomi {

namespace {

constexpr std::pair<int, const char*> voci[] = {{sceltaAppunti, "C&opia"}, {sceltaStampante, "&Stampa"},
                                                {sceltaDxf, "File &DXF"},  {sceltaSvg, "File S&VG"},
                                                {sceltaPdf, "File &PDF"},  {sceltaPng, "File P&NG"},
                                                {sceltaCad, "&CAD"}};

} // namespace

std::unique_ptr<QMenu> MenuDisegno(QWidget& widget, const Disegno& disegno) {
    auto menu = std::make_unique<QMenu>(&widget);
    const QString screen = widget.window()->objectName();
    for (const auto& [choice, text] : voci) {
        QAction* action = menu->addAction(QString::fromUtf8(text));
        action->setObjectName(QStringLiteral("mnuImmagineItem_%1").arg(choice));
        Collega(action, &QAction::triggered, &widget, [choice = choice, disegno, screen, &widget] {
            ScegliDispositivo(choice, QString::fromStdString(disegno.nome), disegno, screen, &widget);
        });
    }
    if (widget.property(proprietaTabella).isValid()) {
        QAction* table = menu->addAction(QStringLiteral("Copia i &valori come tabella"));
        table->setObjectName(QStringLiteral("mnuCopiaTabella"));
        Collega(table, &QAction::triggered, &widget,
                [&widget] { QApplication::clipboard()->setMimeData(StanzaCopiata(widget)); });
    }
    if (auto* caller = qobject_cast<Schermo*>(widget.window())) {
        menu->addSeparator();
        QAction* preview = menu->addAction(QStringLiteral("&Anteprima"));
        preview->setObjectName(QStringLiteral("mnuImmagineAnteprima"));
        Collega(preview, &QAction::triggered, &widget, [disegno, screen, caller] {
            FrmPltSezione::Mostra(*caller, screen, [disegno] { return disegno; });
        });
    }
    return menu;
}

void MostraMenuDisegno(QWidget& widget, const Disegno& disegno, const QPoint& dove) {
    if (disegno.PlottaInOggetto)
        MenuDisegno(widget, disegno)->exec(dove);
}

} // namespace sagomi
