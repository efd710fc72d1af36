#include "fasteners/ui/DisegnoForatura.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace sagomi {

namespace {

constexpr double spessoreContorno = 1.4;
constexpr double spessoreFine = 1.0;
constexpr double mezzaTacca = 3.5; ///< half of an oblique tick of a dimension line [px]
constexpr double punta = 6;        ///< length of the arrow's head [px]

/// Draws in pixels what is given in millimetres: x in the direction of the load, the plate's end at the
/// right.
class Tavola {
public:
    Tavola(QPainter& painter, const QRectF& area, const ForaturaDisegnata& f, const QPalette& colours)
        : p_(painter), f_(f), inchiostro_(colours.color(QPalette::WindowText)),
          sfondo_(colours.color(QPalette::Window)), testo_(painter.fontMetrics().height()) {
        x_ = {std::max(f.do_, f.p1 * 0.4), 0, 0};
        x_[1] = x_[0] + f.p1;
        x_[2] = x_[1] + f.e1;
        y_ = {f.e2, f.e2 + f.p2, 2 * f.e2 + f.p2};
        const QRectF frame = area.adjusted(4, 4, -testo_ * 2.2, -testo_ * 1.9);
        scala_ = std::min(frame.width() / x_[2], frame.height() / y_[2]);
        origine_ = frame.center() + QPointF(-x_[2] * scala_, y_[2] * scala_) / 2;
    }

    /// The plate is whole at its end and broken off at the other side.
    void Piastra() {
        QPainterPath outline(Punto(0, 0));
        outline.lineTo(Punto(x_[2], 0));
        outline.lineTo(Punto(x_[2], y_[2]));
        outline.lineTo(Punto(0, y_[2]));
        QPainterPath closed = outline;
        closed.connectPath(Rottura());
        QColor fill = inchiostro_;
        fill.setAlpha(38);
        p_.fillPath(closed, fill);
        p_.setBrush(Qt::NoBrush);
        p_.setPen(QPen(inchiostro_, spessoreContorno, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        p_.drawPath(outline);
        p_.setPen(QPen(Fine(), spessoreFine));
        p_.drawPath(Rottura());
    }

    void Fori() {
        for (const double x : {x_[0], x_[1]})
            for (const double y : {y_[0], y_[1]})
                Foro(Punto(x, y));
    }

    /// Between the two rows of bolts, towards the end that e1 is measured to.
    void Carico() {
        const QPointF from = Punto(x_[0], y_[2] / 2);
        const QPointF to = Punto(x_[1], y_[2] / 2);
        p_.setPen(QPen(inchiostro_, spessoreContorno));
        p_.drawLine(from, to - QPointF(punta, 0));
        p_.setBrush(inchiostro_);
        p_.setPen(Qt::NoPen);
        p_.drawPolygon(QPolygonF{to, to + QPointF(-punta, -punta * 0.4), to + QPointF(-punta, punta * 0.4)});
        Testo((from + to) / 2 - QPointF(0, 2), QStringLiteral("F"), Qt::AlignHCenter | Qt::AlignBottom);
    }

    void Quote() {
        const double below = Punto(0, 0).y() + testo_ * 0.7;
        Quota({Punto(x_[0], 0).x(), below}, {Punto(x_[1], 0).x(), below}, QStringLiteral("p1"));
        Quota({Punto(x_[1], 0).x(), below}, {Punto(x_[2], 0).x(), below}, QStringLiteral("e1"));
        const double beside = Punto(x_[2], 0).x() + testo_ * 0.7;
        Quota({beside, Punto(0, 0).y()}, {beside, Punto(0, y_[0]).y()}, QStringLiteral("e2"));
        Quota({beside, Punto(0, y_[0]).y()}, {beside, Punto(0, y_[1]).y()}, QStringLiteral("p2"));
    }

private:
    [[nodiscard]] QPointF Punto(double x, double y) const {
        return origine_ + QPointF(x * scala_, -y * scala_);
    }

    [[nodiscard]] QColor Fine() const {
        QColor thin = inchiostro_;
        thin.setAlpha(170);
        return thin;
    }

    /// The broken side, from top to bottom.
    [[nodiscard]] QPainterPath Rottura() const {
        const QPointF top = Punto(0, y_[2]);
        const QPointF bottom = Punto(0, 0);
        const QPointF swing(testo_ * 0.35, 0);
        QPainterPath path(top);
        path.cubicTo(top + (bottom - top) / 3 + swing, bottom + (top - bottom) / 3 - swing, bottom);
        return path;
    }

    /// The hole shows what lies behind the plate, with the bolt in it and its axes.
    void Foro(const QPointF& centre) {
        const double hole = f_.do_ / 2 * scala_;
        const double bolt = f_.d / 2 * scala_;
        p_.setPen(QPen(inchiostro_, spessoreContorno));
        p_.setBrush(sfondo_);
        p_.drawEllipse(centre, hole, hole);
        p_.setPen(QPen(Fine(), spessoreFine));
        p_.setBrush(Qt::NoBrush);
        p_.drawEllipse(centre, bolt, bolt);
        QPen chain(Fine(), spessoreFine);
        chain.setDashPattern({8, 2, 2, 2});
        p_.setPen(chain);
        const double reach = hole + 4;
        p_.drawLine(centre - QPointF(reach, 0), centre + QPointF(reach, 0));
        p_.drawLine(centre - QPointF(0, reach), centre + QPointF(0, reach));
    }

    /// A dimension line with oblique ticks; its name stands below a level one and to the right of an upright.
    void Quota(const QPointF& from, const QPointF& to, const QString& name) {
        p_.setPen(QPen(Fine(), spessoreFine));
        p_.drawLine(from, to);
        for (const QPointF& end : {from, to})
            p_.drawLine(end + QPointF(-mezzaTacca, mezzaTacca), end + QPointF(mezzaTacca, -mezzaTacca));
        const bool level = from.y() == to.y();
        Testo((from + to) / 2 + (level ? QPointF(0, 2) : QPointF(testo_ * 0.35, 0)), name,
              level ? Qt::AlignHCenter | Qt::AlignTop : Qt::AlignLeft | Qt::AlignVCenter);
    }

    void Testo(const QPointF& at, const QString& text, Qt::Alignment where) {
        QRectF box(QPointF(), QSizeF(p_.fontMetrics().horizontalAdvance(text), testo_));
        const bool centre = (where & Qt::AlignHCenter) != 0;
        const bool bottom = (where & Qt::AlignBottom) != 0;
        const bool middle = (where & Qt::AlignVCenter) != 0;
        box.moveLeft(at.x() - (centre ? box.width() / 2 : 0));
        box.moveTop(at.y() - (bottom ? box.height() : middle ? box.height() / 2 : 0));
        p_.setPen(inchiostro_);
        p_.drawText(box, Qt::AlignCenter | Qt::TextDontClip, text);
    }

    QPainter& p_;
    const ForaturaDisegnata& f_;
    QColor inchiostro_;
    QColor sfondo_;
    double testo_;              ///< height of a line of text [px]
    std::array<double, 3> x_{}; ///< bolts, bolts, end of the plate
    std::array<double, 3> y_{}; ///< bolts, bolts, upper edge
    double scala_ = 1;
    QPointF origine_;
};

bool Disegnabile(const ForaturaDisegnata& f) { return std::min({f.d, f.do_, f.e1, f.p1, f.e2, f.p2}) > 0; }

} // namespace

DisegnoForatura::DisegnoForatura(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DisegnoForatura::Mostra(const ForaturaDisegnata& foratura) {
    foratura_ = foratura;
    update();
}

void DisegnoForatura::paintEvent(QPaintEvent* /*event*/) {
    if (!Disegnabile(foratura_))
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    Tavola table(painter, rect(), foratura_, palette());
    table.Piastra();
    table.Fori();
    table.Carico();
    table.Quote();
}

} // namespace sagomi
