#include "frame/ui/EtichettaValori.h"

#include <QPainter>
#include <QStyle>

#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

const QString piu = QStringLiteral(" + ");
const QString uguale = QStringLiteral(" = ");

/// The terms and, last, the sum.
QStringList Pezzi(const QString& testo) {
    const QStringList sides = testo.split(uguale);
    return sides.size() == 2 ? sides[0].split(piu) << sides[1] : QStringList();
}

} // namespace

EtichettaValori::EtichettaValori(QWidget* parent) : EtichettaRisultato(parent) {
    setFrameShape(QFrame::NoFrame);
    setTextInteractionFlags(Qt::NoTextInteraction); // a selection would stand elsewhere than its text
}

void EtichettaValori::Evidenzia(int termine, const QString& nome) {
    governa_ = termine;
    setAccessibleDescription(termine < 0 ? QString() : tr("Termine che governa: ") + nome);
    for (int i = 0; i + 1 < simboli_.size(); ++i) {
        QFont font = simboli_[i]->font();
        font.setBold(i == termine);
        simboli_[i]->setFont(font);
    }
    update();
}

void EtichettaValori::paintEvent(QPaintEvent* event) {
    const QStringList pieces = Pezzi(text());
    if (pieces.isEmpty() || pieces.size() != simboli_.size())
        EtichettaRisultato::paintEvent(event);
    else
        DipintoProtetto(this, [this] { Dipinge(); });
}

void EtichettaValori::Dipinge() {
    QPainter painter(this);
    const auto write = [&](const QString& t, int left, int right, Qt::Alignment where) {
        style()->drawItemText(&painter, QRect(left, 0, right - left, height()),
                              static_cast<int>(where | Qt::AlignVCenter), palette(), isEnabled(), t,
                              foregroundRole());
    };
    const QStringList pieces = Pezzi(text());
    int end = 0; // of the symbol before
    for (int i = 0; i + 1 < pieces.size(); ++i) {
        const int start = Inizio(simboli_[i]);
        if (i > 0)
            write(piu.trimmed(), end, start, Qt::AlignHCenter);
        end = start + simboli_[i]->width();
        QFont font = this->font();
        font.setBold(i == governa_);
        painter.setFont(font);
        write(pieces[i].trimmed(), start, end, Qt::AlignHCenter);
        painter.setFont(this->font());
    }
    write(uguale.mid(1) + pieces.last().trimmed(), Inizio(simboli_.last()), width(), Qt::AlignLeft);
}

} // namespace sagomi
