#pragma once

#include <QHash>
#include <QPixmap>
#include <QProxyStyle>

namespace sagomi {

/// The style in force, whose frames of line edits and group boxes are kept where it is Fusion. They are the
/// dearest things that it paints: round corners with antialiasing, a picture stretched over the whole group.
/// A frame is painted by the style once, narrow, and then put together of its ends and of what runs between
/// them; on the same pixels.
class StileCornici : public QProxyStyle {
    Q_OBJECT
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opzioni, QPainter* pittore,
                       const QWidget* widget) const override;

private:
    /// A stretch of rows of one colour between the ends.
    struct Fascia {
        int da, righe; ///< [device pixels]
        QColor colore;
    };
    /// A frame of some height and colours, for any width.
    struct Cornice {
        QPixmap sinistra, destra;
        QList<Fascia> fasce;
        bool intera = false; ///< between its ends each row has one colour
    };

    const Cornice& CorniceDi(PrimitiveElement elemento, const QStyleOption& opzione, const QPainter& pittore,
                             const QWidget* widget) const;
    Cornice Prepara(PrimitiveElement elemento, const QStyleOption& opzione, const QPainter& pittore,
                    const QWidget* widget) const;

    mutable QHash<QByteArray, Cornice> cornici_;
};

} // namespace sagomi
