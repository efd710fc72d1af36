#pragma once

#include <QHash>
#include <QPixmap>
#include <QProxyStyle>

namespace sagomi {

/// The style in force, with cheaper frames where it is Fusion, whose frames are the dearest things that it
/// paints. Line edits have round corners with antialiasing: the style paints such a frame once, narrow, and
/// it is then put together of its ends and of what runs between them; on the same pixels. The frame of a
/// group is a picture stretched over the whole group, for which plugins are loaded: here it is a thin line of
/// one colour.
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

    /// Both ask the style as PE_FrameLineEdit.
    const Cornice& CorniceDi(const QStyleOption& opzione, const QPainter& pittore,
                             const QWidget* widget) const;
    Cornice Prepara(const QStyleOption& opzione, const QPainter& pittore, const QWidget* widget) const;
    /// Around the contents of a group: the title stands above it.
    void DipingeGruppo(const QStyleOption& opzione, QPainter& pittore, const QWidget* widget) const;

    mutable QHash<QByteArray, Cornice> cornici_;
};

} // namespace sagomi
