#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QList>
#include <QPointF>
#include <QRect>
#include <QString>

#include <optional>

class QPainter;

namespace sagomi {

/// Numbers composed of glyphs whose shape and way to the next one were asked of the text engine once: a text
/// of figures and signs takes one hundredth of a layout, and lands on the same pixels.
class CifreDipinte {
public:
    /// Lays out a text in a font. @return false for a text that is no number, or that the font cannot write
    bool Compone(const QFont& font, const QString& testo);

    /// Width of the text composed last [px].
    [[nodiscard]] double Larghezza() const { return larghezza_; }

    /// Draws it at the right edge of the room, in its middle, in the painter's pen.
    void Dipinge(QPainter& painter, const QRect& room);

private:
    /// A glyph and its way to the next, kerning included.
    struct Passo {
        quint32 glifo = 0;
        double avanti = 0;
        bool noto = false;
    };

    void CambiaFont(const QFont& font);
    const Passo& PassoFra(QChar questo, QChar dopo);
    [[nodiscard]] Passo Misura(QChar questo, QChar dopo) const;

    std::optional<QFont> font_;
    double altezza_ = 0; ///< of a line
    double base_ = 0;    ///< from its top to the base line
    QHash<quint32, Passo> passi_;
    QGlyphRun glifi_;
    QList<quint32> indici_;
    QList<QPointF> posti_;
    double larghezza_ = 0;
};

} // namespace sagomi
