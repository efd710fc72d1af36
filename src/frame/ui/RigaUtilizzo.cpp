#include "frame/ui/RigaUtilizzo.h"

#include <QHBoxLayout>
#include <QLabel>

#include <cmath>

#include "frame/Percento.h"

namespace sagomi {

namespace {

constexpr int stacco = 12; ///< between the two texts [px]

QLabel* CreaTesto(const char* nome, const QString& letta) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(nome));
    label->setAccessibleName(letta);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

RigaUtilizzo::RigaUtilizzo(QWidget* parent)
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
}

// Nothing jumps when the texts come.
QSize RigaUtilizzo::minimumSizeHint() const {
    return QWidget::minimumSizeHint().expandedTo({0, fontMetrics().height()});
}

void RigaUtilizzo::Mostra(double utilizzo, const QString& governa, const QString& motivo) {
    QString text = std::isnan(utilizzo)
                       ? QString()
                       : QStringLiteral("Utilizzo %1 %").arg(QString::fromStdString(Percento(utilizzo)));
    if (!text.isEmpty() && !governa.isEmpty())
        text += QStringLiteral(" (governa %1)").arg(governa);
    utilizzo_->setText(text);
    motivo_->setText(motivo);
}

} // namespace sagomi
