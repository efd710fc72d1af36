#include "criticalloads/ui/TavolaTrave.h"

#include <cmath>

namespace sagomi {

namespace {

constexpr double spessoreContorno = 1.4;
constexpr double spessoreFine = 1.0;
constexpr double lato = 7;  ///< of a support triangle [px]
constexpr double punta = 3; ///< half width of an arrow's head [px]
constexpr int opacitaFondo = 38;
constexpr int opacitaFine = 170;

} // namespace

TavolaTrave::TavolaTrave(QPainter& painter, const QRectF& campo, const QPalette& colori)
    : p_(painter), campo_(campo), inchiostro_(colori.color(QPalette::WindowText)) {
    p_.setRenderHint(QPainter::Antialiasing);
}

QPointF TavolaTrave::Punto(double x, double y) const {
    return {campo_.left() + x * campo_.width(), campo_.center().y() - y * campo_.height() / 2};
}

QPen TavolaTrave::Penna(double spessore) const {
    QColor colour = inchiostro_;
    if (spessore < spessoreContorno)
        colour.setAlpha(opacitaFine);
    return {colour, spessore, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

void TavolaTrave::Asse() {
    p_.setPen(Penna(spessoreContorno));
    p_.drawLine(Punto(0, 0), Punto(1, 0));
}

void TavolaTrave::Profilo(double altezza) {
    const QPointF half(0, altezza / 2);
    QColor fill = inchiostro_;
    fill.setAlpha(opacitaFondo);
    p_.setPen(Qt::NoPen);
    p_.setBrush(fill);
    p_.drawRect(QRectF(Punto(0, 0) - half, Punto(1, 0) + half));
    p_.setPen(Penna(spessoreContorno));
    p_.drawLine(Punto(0, 0) - half, Punto(1, 0) - half);
    p_.drawLine(Punto(0, 0) + half, Punto(1, 0) + half);
    QPen chain = Penna(spessoreFine);
    chain.setDashPattern({12, 3, 2, 3});
    p_.setPen(chain);
    p_.drawLine(Punto(0, 0), Punto(1, 0));
}

void TavolaTrave::Appoggio(double x, double sotto) {
    const QPointF top = Punto(x, 0) + QPointF(0, sotto);
    p_.setPen(Penna(spessoreFine));
    p_.setBrush(Qt::NoBrush);
    p_.drawPolygon(QPolygonF{top, top + QPointF(lato * 0.6, lato), top + QPointF(-lato * 0.6, lato)});
}

void TavolaTrave::Incastro(double x, double mezza) {
    const double outwards = x < 0.5 ? -1 : 1;
    const QPointF wall = Punto(x, 0);
    p_.setPen(Penna(spessoreContorno));
    p_.drawLine(wall - QPointF(0, mezza), wall + QPointF(0, mezza));
    p_.setPen(Penna(spessoreFine));
    constexpr double passo = 4;
    for (double y = -mezza; y < mezza - passo / 2; y += passo)
        p_.drawLine(wall + QPointF(0, y), wall + QPointF(outwards * passo, y + passo));
}

void TavolaTrave::Freccia(const QPointF& da, const QPointF& a) {
    p_.setPen(Penna(spessoreFine));
    p_.drawLine(da, a - QPointF(0, punta));
    p_.setBrush(p_.pen().color());
    p_.setPen(Qt::NoPen);
    p_.drawPolygon(QPolygonF{a, a + QPointF(punta * 0.8, -2 * punta), a + QPointF(-punta * 0.8, -2 * punta)});
    p_.setBrush(Qt::NoBrush);
}

void TavolaTrave::Forza(double x, double sopra) { Freccia(Punto(x, 1), Punto(x, 0) - QPointF(0, sopra)); }

void TavolaTrave::CaricoDistribuito(double sopra) {
    constexpr double passo = 12;
    const int arrows = std::max(4, static_cast<int>(std::lround(campo_.width() / passo)));
    for (int i = 0; i <= arrows; ++i) {
        const double x = static_cast<double>(i) / arrows;
        Freccia(Punto(x, 1), Punto(x, 0) - QPointF(0, sopra));
    }
    p_.setPen(Penna(spessoreFine));
    p_.drawLine(Punto(0, 1), Punto(1, 1));
}

void TavolaTrave::Diagramma(const std::function<double(double)>& f) {
    constexpr int corde = 48;
    QPolygonF line;
    for (int i = 0; i <= corde; ++i) {
        const double x = static_cast<double>(i) / corde;
        line << Punto(x, f(x));
    }
    QPolygonF area = line;
    area << Punto(1, 0) << Punto(0, 0);
    QColor fill = inchiostro_;
    fill.setAlpha(opacitaFondo);
    p_.setPen(Qt::NoPen);
    p_.setBrush(fill);
    p_.drawPolygon(area);
    p_.setBrush(Qt::NoBrush);
    p_.setPen(Penna(spessoreFine));
    p_.drawLine(Punto(0, 0), line.first());
    p_.drawLine(Punto(1, 0), line.last());
    p_.drawLine(Punto(0, 0), Punto(1, 0));
    p_.setPen(Penna(spessoreContorno));
    p_.drawPolyline(line);
}

void TavolaTrave::Nome(const QPointF& punto, const QString& testo, int dx, int dy) {
    const QFontMetricsF metrics(p_.font(), p_.device());
    QRectF box(QPointF(), QSizeF(metrics.horizontalAdvance(testo), metrics.height()));
    constexpr double distacco = 2;
    box.moveCenter(punto);
    box.translate(dx * (box.width() / 2 + distacco), dy * (box.height() / 2 + distacco));
    p_.setPen(inchiostro_);
    p_.drawText(box, Qt::AlignCenter | Qt::TextDontClip, testo);
}

} // namespace sagomi
