#include "screens/RigaVerdetto.h"

#include <QHBoxLayout>
#include <QLabel>

#include <cmath>

#include "frame/Numeri.h"
#include "sections/Verdetto.h"

namespace sagomi {

namespace {

constexpr int stacco = 12; ///< between the two texts [px]

QString Governa(TermineVerifica termine) {
    switch (termine) {
    case TermineVerifica::N:
        return QStringLiteral(" (governa N)");
    case TermineVerifica::My:
        return QStringLiteral(" (governa My)");
    case TermineVerifica::Mz:
        return QStringLiteral(" (governa Mz)");
    case TermineVerifica::Nessuno:
        break;
    }
    return {};
}

QString Utilizzo(const Verdetto& v) {
    if (!std::isfinite(v.utilizzo))
        return {};
    constexpr double quasiUno = 1.0005; // would show as 100.0
    const std::string percento =
        v.utilizzo > 1 && v.utilizzo < quasiUno ? "> 100" : Formato("0.0", v.utilizzo * 100);
    return QStringLiteral("Utilizzo %1 %").arg(QString::fromStdString(percento)) + Governa(v.governa);
}

QLabel* CreaTesto(const char* nome, const QString& letta) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(nome));
    label->setAccessibleName(letta);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

RigaVerdetto::RigaVerdetto(QWidget* parent)
    : QWidget(parent), utilizzo_(CreaTesto("LblUtilizzo", QStringLiteral("Utilizzo"))),
      motivo_(CreaTesto("LblMotivo", QStringLiteral("Motivo dell'esito"))) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(stacco);
    row->addWidget(utilizzo_);
    row->addWidget(motivo_, 1);
    utilizzo_->setToolTip(
        QStringLiteral("Somma dei termini in valore assoluto e termine maggiore, passa fino al 100 %"));
    motivo_->setWordWrap(true);
    setMinimumHeight(fontMetrics().height()); // nothing jumps when the texts come
}

void RigaVerdetto::Mostra(const Verdetto& verdetto) {
    utilizzo_->setText(Utilizzo(verdetto));
    motivo_->setText(QString::fromStdString(verdetto.motivo));
}

} // namespace sagomi
