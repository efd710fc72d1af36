#pragma once

#include "drawing/ui/SuperficieQt.h"

namespace sagomi {

/// How a picture on the screen is looked at: magnified about the middle of its surface, then moved.
struct VistaSchermo {
    double zoom = 1;
    QPointF spostamento; ///< pixels
};

/// A window as surface: its own scale is pixels, antialiased; level and plumb lines sit on the pixels. The
/// view magnifies what is drawn in the user scale; texts of the surface's own font keep their size on the
/// screen, as their height in the user scale is measured through the view.
class SuperficieSchermo : public SuperficieQt {
public:
    SuperficieSchermo(QPainter& pittore, const QSizeF& misura, const QFont& carattere,
                      const QColor& inchiostro, const VistaSchermo& vista = {});

protected:
    [[nodiscard]] QPointF Vista(const QPointF& punto) const override;
    [[nodiscard]] double FattoreVista() const override { return vista_.zoom; }
    void Assesta(QPointF& a, QPointF& b) const override;

private:
    VistaSchermo vista_;
    double pixel_; ///< device pixels in one of the painter
};

} // namespace sagomi
