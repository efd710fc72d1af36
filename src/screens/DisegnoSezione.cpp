#include "screens/DisegnoSezione.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace sagomi {

namespace {

constexpr double spessoreContorno = 1.4;
constexpr double spessoreFine = 1.0;
constexpr double mezzaTacca = 3.5; ///< half of an oblique tick of a dimension line [px]

/// Draws in pixels what is given in millimetres, inside a frame kept free for the dimension lines.
class Tavola {
public:
    Tavola(QPainter& painter, const QRectF& area, const SagomaDisegnata& s, const QPalette& colours)
        : p_(painter), s_(s), inchiostro_(colours.color(QPalette::WindowText)) {
        const QRectF box = s.contorno.boundingRect();
        const double text = p_.fontMetrics().height();
        const QRectF frame = area.adjusted(text * 1.2, text * 1.1, -text * 1.9, -text * 1.9);
        scala_ = std::min(frame.width() / box.width(), frame.height() / box.height());
        origine_ = frame.center() + QPointF(-box.center().x() * scala_, box.center().y() * scala_);
    }

    [[nodiscard]] QPointF Punto(double x, double y) const {
        return origine_ + QPointF(x * scala_, -y * scala_);
    }

    void Contorno() {
        QPolygonF outline;
        for (const QPointF& v : s_.contorno)
            outline << Punto(v.x(), v.y());
        QColor fill = inchiostro_;
        fill.setAlpha(38);
        p_.setPen(QPen(inchiostro_, spessoreContorno, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        p_.setBrush(fill);
        p_.drawPolygon(outline);
    }

    void Assi() {
        QPen chain(Fine(), spessoreFine);
        chain.setDashPattern({12, 3, 2, 3});
        p_.setPen(chain);
        const double text = p_.fontMetrics().height();
        const double half = s_.b / 2;
        const QPointF left = Punto(-half, s_.yG) - QPointF(text * 0.7, 0);
        p_.drawLine(left, Punto(half, s_.yG) + QPointF(text * 0.4, 0));
        const QPointF top = Punto(0, s_.h) - QPointF(0, text * 0.5);
        p_.drawLine(top, Punto(0, 0) + QPointF(0, text * 0.4));
        p_.setPen(inchiostro_);
        Testo(left + QPointF(0, -text * 0.1), QStringLiteral("y"), Qt::AlignLeft | Qt::AlignBottom);
        Testo(top + QPointF(text * 0.25, text * 0.35), QStringLiteral("z"), Qt::AlignLeft | Qt::AlignBottom);
    }

    /// Dimension of the height, to the right of the section.
    void QuotaVerticale(const QString& name) {
        const double text = p_.fontMetrics().height();
        const double x = Punto(s_.b / 2, 0).x() + text * 0.9;
        const double bottom = Punto(0, 0).y();
        const double top = Punto(0, s_.h).y();
        p_.setPen(QPen(Fine(), spessoreFine));
        p_.drawLine(QPointF(x, bottom), QPointF(x, top));
        p_.drawLine(QPointF(Punto(s_.b / 2, 0).x() + 3, bottom), QPointF(x + 3, bottom));
        p_.drawLine(QPointF(Punto(s_.b / 2, 0).x() + 3, top), QPointF(x + 3, top));
        Tacca({x, bottom});
        Tacca({x, top});
        Testo({x + text * 0.3, (bottom + top) / 2}, name, Qt::AlignLeft | Qt::AlignVCenter);
    }

    /// Dimension of a width, below the section.
    void QuotaOrizzontale(double width, const QString& name) {
        const double text = p_.fontMetrics().height();
        const double y = Punto(0, 0).y() + text * 0.8;
        const double left = Punto(-width / 2, 0).x();
        const double right = Punto(width / 2, 0).x();
        p_.setPen(QPen(Fine(), spessoreFine));
        p_.drawLine(QPointF(left, y), QPointF(right, y));
        for (const double x : {left, right}) {
            p_.drawLine(QPointF(x, Punto(0, 0).y() + 3), QPointF(x, y + 3));
            Tacca({x, y});
        }
        Testo({(left + right) / 2, y + 1}, name, Qt::AlignHCenter | Qt::AlignTop);
    }

    /// Names of the thicknesses and of the fillet, beside what they measure.
    void Nomi() {
        const double text = p_.fontMetrics().height();
        p_.setPen(QPen(Fine(), spessoreFine));
        const double web = Punto(s_.tw / 2, 0).x();
        const double low = Punto(0, s_.h * 0.28).y();
        Testo({web + text * 0.35, low}, QStringLiteral("tw"), Qt::AlignLeft | Qt::AlignVCenter);
        const QPointF flange = Punto(-s_.b / 2, s_.h);
        Testo(flange + QPointF(0, -2), QStringLiteral("tf"), Qt::AlignLeft | Qt::AlignBottom);
        const double fillet = s_.h - s_.tf - s_.raggio;
        const QPointF root = Punto(-s_.tw / 2 - s_.raggio * 0.3, fillet + s_.raggio * 0.7);
        const QPointF name = root + QPointF(-text * 0.9, text * 0.9);
        p_.drawLine(root, name);
        Testo(name, s_.nomeRaggio, Qt::AlignRight | Qt::AlignTop);
    }

private:
    [[nodiscard]] QColor Fine() const {
        QColor thin = inchiostro_;
        thin.setAlpha(170);
        return thin;
    }

    void Tacca(const QPointF& at) {
        p_.drawLine(at + QPointF(-mezzaTacca, mezzaTacca), at + QPointF(mezzaTacca, -mezzaTacca));
    }

    void Testo(const QPointF& at, const QString& text, Qt::Alignment where) {
        QRectF box(QPointF(), QSizeF(p_.fontMetrics().horizontalAdvance(text), p_.fontMetrics().height()));
        const bool right = (where & Qt::AlignRight) != 0;
        const bool centre = (where & Qt::AlignHCenter) != 0;
        const bool bottom = (where & Qt::AlignBottom) != 0;
        const bool middle = (where & Qt::AlignVCenter) != 0;
        box.moveLeft(at.x() - (right ? box.width() : centre ? box.width() / 2 : 0));
        box.moveTop(at.y() - (bottom ? box.height() : middle ? box.height() / 2 : 0));
        p_.save();
        p_.setPen(inchiostro_);
        p_.drawText(box, Qt::AlignCenter | Qt::TextDontClip, text);
        p_.restore();
    }

    QPainter& p_;
    const SagomaDisegnata& s_;
    QColor inchiostro_;
    double scala_ = 1;
    QPointF origine_;
};

} // namespace

DisegnoSezione::DisegnoSezione(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void DisegnoSezione::Mostra(const SagomaDisegnata& sagoma) {
    sagoma_ = sagoma;
    update();
}

void DisegnoSezione::paintEvent(QPaintEvent* /*event*/) {
    if (sagoma_.contorno.size() < 3 || sagoma_.h <= 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    Tavola table(painter, rect(), sagoma_, palette());
    table.Contorno();
    table.Assi();
    table.QuotaVerticale(QStringLiteral("h"));
    table.QuotaOrizzontale(sagoma_.b, QStringLiteral("b"));
    table.Nomi();
}

} // namespace sagomi
