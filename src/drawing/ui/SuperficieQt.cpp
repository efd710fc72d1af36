#include "drawing/ui/SuperficieQt.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

#include "frame/ui/Colori.h"

namespace sagomi {

namespace {

constexpr double corpoCampione = 100; ///< points; metrics of this size have no rounding to speak of
constexpr std::int16_t pennaRossa = 12;
constexpr int opacitaTenue = 38; ///< of a light fill, of 255
constexpr double lontano = 1e7;  ///< beyond it a painter would dash and clip for ever [its units]

bool Dipingibile(const QPointF& p) { return std::abs(p.x()) < lontano && std::abs(p.y()) < lontano; }

/// A pen of the table as it is seen on a dark ground: so much lighter that it can be told from it.
QColor SuScuro(QColor pen, const QColor& ground) {
    constexpr float passo = 0.1F;
    while (Contrasto(pen, ground) < contrastoLeggibile)
        pen = Velo(pen, Qt::white, passo);
    return pen;
}

QString Utf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

SuperficieQt::SuperficieQt(QPainter& pittore, Carta carta)
    : pittore_(pittore), carta_(std::move(carta)), scuro_(Scuro(carta_.sfondo)) {
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
    DrawCap = Estremi::Tondi;
    FontName.clear();
    FontSize = CorpoProprio();
}

double SuperficieQt::CorpoProprio() const {
    const double points = carta_.carattere.pointSizeF();
    return points > 0 ? points // else the font was given in pixels
                      : carta_.carattere.pixelSize() * 72.0 / pittore_.device()->logicalDpiY();
}

bool SuperficieQt::CarattereProprio() const {
    return carta_.testiDelWidget && FontName.empty() && FontSize == CorpoProprio();
}

QPointF SuperficieQt::Punto(double x, double y) const {
    const QPointF own((x - ScaleLeft) / ScaleWidth * carta_.misura.width(),
                      (y - ScaleTop) / ScaleHeight * carta_.misura.height());
    return ScaleMode == scalaUtente ? Vista(own) : own;
}

QPolygonF SuperficieQt::Punti(std::span<const double> x, std::span<const double> y) const {
    QPolygonF points;
    for (std::size_t i = 0; i < x.size(); ++i)
        points << Punto(x[i], y[i]);
    return points;
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
    if (ForeColor == pennaGrigia && carta_.grigio.isValid())
        return carta_.grigio;
    if (ForeColor == pennaRossa && carta_.rosso.isValid())
        return carta_.rosso;
    const ColoreRgb c = ColoreTabella(ForeColor);
    const QColor pen(c.rosso, c.verde, c.blu);
    return scuro_ ? SuScuro(pen, carta_.sfondo) : pen;
}

void SuperficieQt::Penna() {
    QPen pen(Colore(), DrawWidth * carta_.spessoreUnita, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (DrawCap != Estremi::Tondi) {
        pen.setCapStyle(DrawCap == Estremi::Quadri ? Qt::SquareCap : Qt::FlatCap);
        pen.setJoinStyle(Qt::MiterJoin);
    }
    if (const auto dashes = TrattiDi(DrawStyle); !dashes.empty()) {
        if (DrawCap == Estremi::Tondi)
            pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(QList<qreal>(dashes.begin(), dashes.end()));
    }
    pittore_.setPen(pen);
    pittore_.setBrush(Qt::NoBrush);
}

void SuperficieQt::Line(double x1, double y1, double x2, double y2) {
    QPointF a = Punto(x1, y1);
    QPointF b = Punto(x2, y2);
    if (!Dipingibile(a) || !Dipingibile(b))
        return;
    Assesta(a, b);
    Penna();
    pittore_.drawLine(a, b);
}

void SuperficieQt::Circle(double x, double y, double r) {
    const QPointF centre = Punto(x, y);
    const double radius = std::abs(Punto(x + r, y).x() - centre.x());
    if (!Dipingibile(centre) || !(radius < lontano))
        return;
    Penna();
    pittore_.drawEllipse(centre, radius, radius);
}

void SuperficieQt::Polyline(std::span<const double> x, std::span<const double> y, bool chiusa) {
    if (DrawCap == Estremi::Tondi) {
        Superficie::Polyline(x, y, chiusa);
        return;
    }
    const QPolygonF points = Punti(x, y);
    if (!std::all_of(points.begin(), points.end(), Dipingibile))
        return;
    Penna();
    chiusa ? pittore_.drawPolygon(points) : pittore_.drawPolyline(points);
}

void SuperficieQt::Fill(std::span<const double> x, std::span<const double> y, Fondo fondo) {
    const QPolygonF points = Punti(x, y);
    if (!std::all_of(points.begin(), points.end(), Dipingibile))
        return;
    QColor colour = fondo == Fondo::Sfondo ? carta_.sfondo : Colore();
    if (fondo == Fondo::Tenue) {
        colour = carta_.inchiostro;
        colour.setAlpha(opacitaTenue);
    }
    pittore_.setPen(Qt::NoPen);
    pittore_.setBrush(colour);
    pittore_.drawPolygon(points);
}

void SuperficieQt::Print(std::string_view testo) {
    const QPointF place = Punto(CurrentX, CurrentY);
    if (!(FontSize > 0) || !Dipingibile(place))
        return;
    pittore_.setFont(CarattereProprio() ? carta_.carattere : Carattere(FontSize));
    pittore_.setPen(Colore());
    pittore_.drawText(place, Utf8(testo));
}

double SuperficieQt::TextHeight(std::string_view /*testo*/) const {
    const QFontMetricsF metrics(Carattere(corpoCampione), pittore_.device());
    return metrics.capHeight() * FontSize / corpoCampione * FattoreTesto();
}

double SuperficieQt::FattoreTesto() const {
    return std::abs(ScaleHeight) / carta_.misura.height() / (ScaleMode == scalaUtente ? FattoreVista() : 1);
}

double SuperficieQt::TextWidth(std::string_view testo) const {
    const double scale = ScaleMode == scalaUtente ? FattoreVista() : 1;
    const double perUnit = std::abs(ScaleWidth) / carta_.misura.width() / scale;
    if (CarattereProprio())
        return QFontMetrics(carta_.carattere, pittore_.device()).horizontalAdvance(Utf8(testo)) * perUnit;
    const QFontMetricsF metrics(Carattere(corpoCampione), pittore_.device());
    return metrics.horizontalAdvance(Utf8(testo)) * FontSize / corpoCampione * perUnit;
}

RigaTesto SuperficieQt::TextLine() const {
    if (CarattereProprio()) {
        const QFontMetrics metrics(carta_.carattere, pittore_.device());
        return {metrics.ascent() * FattoreTesto(), metrics.descent() * FattoreTesto()};
    }
    const QFontMetricsF metrics(Carattere(corpoCampione), pittore_.device());
    const double perUnit = FontSize / corpoCampione * FattoreTesto();
    return {metrics.ascent() * perUnit, metrics.descent() * perUnit};
}

} // namespace sagomi
