#include "catalogue/ui/EtichettaRicerca.h"

#include <QApplication>

namespace sagomi {

namespace {

constexpr int durataTrovato = 3;  ///< keyboard intervals, as long as letters add to the search
constexpr int durataNessuno = 10; ///< keyboard intervals, long enough to be read

} // namespace

EtichettaRicerca::EtichettaRicerca(QWidget* tabella) : QLabel(tabella) {
    setObjectName(QStringLiteral("LblRicerca"));
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setMargin(3);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    fine_.setSingleShot(true);
    connect(&fine_, &QTimer::timeout, this, &QWidget::hide);
    hide();
}

void EtichettaRicerca::Mostra(const QString& testo, bool trovato) {
    setText(trovato ? tr("Cerca: %1").arg(testo) : tr("Nessun sagomo comincia per \"%1\"").arg(testo));
    adjustSize();
    const QRect room = parentWidget()->rect();
    move(room.left() + 6, room.bottom() - height() - 6);
    raise();
    show();
    fine_.start(QApplication::keyboardInputInterval() * (trovato ? durataTrovato : durataNessuno));
}

} // namespace sagomi
