#include "drawing/ui/AnteprimaPagine.h"

#include <QAction>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScreen>

#include "frame/ui/Protetto.h"

namespace sagomi {

void AnteprimaPagine(const QString& nome, const std::function<void(QPrinter&)>& stampa, QWidget* sopra) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(nome);
    QPrintPreviewDialog dialog(&printer, sopra);
    dialog.setObjectName(QStringLiteral("AnteprimaDiStampa"));
    if (printer.outputFormat() !=
        QPrinter::NativeFormat) // without a printer the toolkit has no page to set up
        for (QAction* a : dialog.findChildren<QAction*>())
            if (a->text() == QPrintPreviewDialog::tr("Page setup"))
                a->setVisible(false);
    dialog.resize(QSize(900, 720).boundedTo(dialog.screen()->availableGeometry().size() * 0.9));
    Collega(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
            [&stampa](QPrinter* page) { stampa(*page); });
    dialog.exec();
}

} // namespace sagomi
