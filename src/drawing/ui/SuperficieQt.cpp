#include "drawing/ui/SuperficieQt.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>

#include <cmath>

namespace sagomi {

namespace {

constexpr double corpoCampione = 100; ///< points; metrics of this size have no rounding to speak of

QString Utf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

SuperficieQt::SuperficieQt(QPainter& pittore, Carta carta) : pittore_(pittore), carta_(std::move(carta)) {
    pittore_.setRenderHint(QPainter::Antialiasing);
    pittore_.setRenderHint(QPainter::TextAntialiasing);
    SuperficieQt::Scale();
    SuperficieQt::Predefiniti();
}

void SuperficieQt::Scale() {
    ScaleMode = scalaPropria;
    ScaleLeft = 0;
    ScaleTop = 0;
    ScaleWidth = carta_.misura.width() / carta_.unita;
    ScaleHeight = carta_.misura.height() / carta_.unita;
}

void SuperficieQt::Predefiniti() {
    ForeColor = pennaInchiostro;
    DrawWidth = spessoreFine;
    DrawStyle = TipoLinea::Continua;
    FontName.clear();
    FontSize = carta_.carattere.pointSizeF();
    if (FontSize <= 0) // the font was given in pixels
        FontSize = carta_.carattere.pixelSize() * 72.0 / pittore_.device()->logicalDpiY();
}

QPointF SuperficieQt::Punto(double x, double y) const {
    const QPointF own((x - ScaleLeft) / ScaleWidth * carta_.misura.width(),
                      (y - ScaleTop) / ScaleHeight * carta_.misura.height());
    return ScaleMode == scalaUtente ? Vista(own) : own;
}

QFont SuperficieQt::Carattere(double corpo) const {
    QFont font = carta_.carattere;
    if (!FontName.empty())
        font.setFamily(Utf8(FontName));
    font.setPointSizeF(corpo);
    font.setHintingPreference(QFont::PreferNoHinting); // sizes are any number, not whole pixels
    return font;
}

QColor SuperficieQt::Colore() const {
    if (ForeColor == pennaInchiostro)
        return carta_.inchiostro;
    const ColoreRgb c = ColoreTabella(ForeColor);
    return {c.rosso, c.verde, c.blu};
}

void SuperficieQt::Penna() {
    QPen pen(Colore(), DrawWidth * carta_.spessoreUnita, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (DrawStyle != TipoLinea::Continua) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(DrawStyle == TipoLinea::TrattoPunto ? QList<qreal>{12, 3, 2, 3}
                                                               : QList<qreal>{6, 4});
    }
    pittore_.setPen(pen);
    pittore_.setBrush(Qt::NoBrush);
}

void SuperficieQt::Line(double x1, double y1, double x2, double y2) {
    QPointF a = Punto(x1, y1);
    QPointF b = Punto(x2, y2);
    Assesta(a, b);
    Penna();
    pittore_.drawLine(a, b);
}

void SuperficieQt::Circle(double x, double y, double r) {
    const QPointF centre = Punto(x, y);
    const double radius = std::abs(Punto(x + r, y).x() - centre.x());
    Penna();
    pittore_.drawEllipse(centre, radius, radius);
}

void SuperficieQt::Print(std::string_view testo) {
    if (!(FontSize > 0))
        return;
    pittore_.setFont(Carattere(FontSize));
    pittore_.setPen(Colore());
    pittore_.drawText(Punto(CurrentX, CurrentY), Utf8(testo));
}

double SuperficieQt::TextHeight(std::string_view /*testo*/) const {
    const QFontMetricsF metrics(Carattere(corpoCampione), pittore_.device());
    const double onPainter = metrics.capHeight() * FontSize / corpoCampione;
    const double scale = ScaleMode == scalaUtente ? FattoreVista() : 1;
    return onPainter * std::abs(ScaleHeight) / carta_.misura.height() / scale;
}

double SuperficieQt::TextWidth(std::string_view testo) const {
    const QFontMetricsF metrics(Carattere(corpoCampione), pittore_.device());
    const double onPainter = metrics.horizontalAdvance(Utf8(testo)) * FontSize / corpoCampione;
    const double scale = ScaleMode == scalaUtente ? FattoreVista() : 1;
    return onPainter * std::abs(ScaleWidth) / carta_.misura.width() / scale;
}

} // namespace sagomi
