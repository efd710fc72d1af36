#include "frame/ui/PannelloConsiglio.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QToolButton>

#include "frame/ui/Colori.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

const QColor ambra(255, 176, 0);
constexpr float velo = 0.2F;

} // namespace

PannelloConsiglio::PannelloConsiglio(QWidget* parent)
    : QFrame(parent), testo_(new QLabel), corpo_(testo_), chiudi_(new QToolButton) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(9, 6, 6, 6);
    row->setSpacing(6);
    row->addWidget(testo_, 1);
    row->addWidget(chiudi_, 0, Qt::AlignTop);
    testo_->setTextFormat(Qt::PlainText);
    testo_->setWordWrap(true);
    testo_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    chiudi_->setText(QStringLiteral("×"));
    chiudi_->setAutoRaise(true);
    chiudi_->setFocusPolicy(Qt::StrongFocus);
    chiudi_->setToolTip(tr("Chiude il consiglio (Ctrl+W)"));
    chiudi_->setShortcut(QKeySequence(QStringLiteral("Ctrl+W")));
    Collega(chiudi_, &QToolButton::clicked, this, [this] {
        Appare(false);
        emit chiuso();
    });
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    Colora();
    Appare(false);
}

QString PannelloConsiglio::Nome() const { return testo_->objectName(); }

void PannelloConsiglio::ImpostaNome(const QString& nome) {
    testo_->setObjectName(nome);
    chiudi_->setObjectName(QStringLiteral("CmdChiudi") + nome);
    chiudi_->setAccessibleName(tr("Chiude il consiglio"));
}

QString PannelloConsiglio::Testo() const { return testo_->text(); }

void PannelloConsiglio::Mostra(const QString& testo) {
    if (testo == testo_->text())
        return;
    testo_->setText(testo);
    Apre(true);
}

void PannelloConsiglio::Ospita(QWidget* corpo) {
    testo_->hide();
    corpo_ = corpo;
    static_cast<QHBoxLayout*>(layout())->insertWidget(0, corpo, 1);
    Appare(false);
}

void PannelloConsiglio::Apre(bool aperto) {
    Appare(aperto && (corpo_ != testo_ || !testo_->text().isEmpty()));
}

void PannelloConsiglio::Appare(bool visibile) {
    corpo_->setVisible(visibile);
    setVisible(visibile);
}

void PannelloConsiglio::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    EventoProtetto([this, event] {
        if (event->type() == QEvent::ApplicationPaletteChange)
            Colora();
    });
}

void PannelloConsiglio::Colora() {
    if (colorando_)
        return; // setting the palette announces a change of palette
    const QScopedValueRollback guard(colorando_, true);
    QPalette colours;
    colours.setColor(QPalette::Window, Velo(QApplication::palette().color(QPalette::Window), ambra, velo));
    setPalette(colours);
}

} // namespace sagomi
