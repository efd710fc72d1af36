#include "report/ui/PagineRelazione.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>

namespace sagomi {

namespace {

// Of a page A4 [mm].
constexpr double sinistra = 20;
constexpr double alto = 14;
constexpr double testata = 13;
constexpr double scritto = 297 - alto - testata - 12; ///< height of what is written

} // namespace

PagineRelazione::PagineRelazione(const Relazione& relazione, const QPaintDevice& carta)
    : relazione_(relazione), stile_(carta), blocchi_(BlocchiDi(relazione_, stile_)) {
    Impagina();
}

/// A piece with those that do not stand without it.
double PagineRelazione::AltezzaGruppo(qsizetype da) const {
    double height = 0;
    for (qsizetype i = da; i < blocchi_.size(); ++i) {
        height += blocchi_[i].altezza;
        if (!blocchi_[i].conIlSeguente)
            break;
    }
    return height;
}

void PagineRelazione::Impagina() {
    const double room = stile_.mm(scritto);
    double used = 0;
    pagine_.append(QList<qsizetype>());
    for (qsizetype i = 0; i < blocchi_.size(); ++i) {
        if (used > 0 && used + AltezzaGruppo(i) > room) {
            pagine_.append(QList<qsizetype>());
            used = 0;
        }
        pagine_.last().append(i);
        used += blocchi_[i].altezza;
    }
}

void PagineRelazione::Testata(QPainter& pittore, int pagina) const {
    const double line = stile_.mm(4);
    const QRectF above(stile_.mm(sinistra), stile_.mm(alto), stile_.larghezza, line);
    const QRectF below = above.translated(0, line);
    const QString object = QString::fromStdString(relazione_.titolo + ": " + relazione_.oggetto);
    const QString project = QString::fromStdString(relazione_.progetto);
    const QString dated = QString::fromStdString(
        relazione_.data.empty() ? ProgrammaRelazione() : relazione_.data + "  ·  " + ProgrammaRelazione());
    const double wide = above.width() * 0.7;
    const auto cut = [&](const QFont& font, const QString& text) {
        return QFontMetricsF(font, stile_.carta).elidedText(text, Qt::ElideRight, wide);
    };
    pittore.setPen(stile_.inchiostro);
    pittore.setFont(stile_.grassetto);
    pittore.drawText(above, Qt::AlignLeft, cut(stile_.grassetto, project.isEmpty() ? object : project));
    pittore.setFont(stile_.nota);
    pittore.drawText(above, Qt::AlignRight, QStringLiteral("pagina %1 di %2").arg(pagina + 1).arg(Numero()));
    pittore.setPen(stile_.grigio);
    if (!project.isEmpty())
        pittore.drawText(below, Qt::AlignLeft, cut(stile_.nota, object));
    pittore.drawText(below, Qt::AlignRight, dated);
    pittore.setPen(QPen(stile_.accento, stile_.mm(0.35)));
    const double y = below.bottom() + stile_.mm(1);
    pittore.drawLine(QPointF(above.left(), y), QPointF(above.right(), y));
}

void PagineRelazione::Dipinge(QPainter& pittore, int pagina) const {
    Testata(pittore, pagina);
    QPointF at(stile_.mm(sinistra), stile_.mm(alto + testata));
    for (const qsizetype i : pagine_.at(pagina)) {
        blocchi_[i].dipinge(pittore, at);
        at.ry() += blocchi_[i].altezza;
    }
}

} // namespace sagomi
