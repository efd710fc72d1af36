#pragma once

#include "frame/ui/StileCornici.h"

namespace sagomi {

/// The style in force, whose controls follow small texts: ticks and radio buttons, boxes, lists and step
/// buttons, and the frames of groups are no higher than the font of the control asks. Styles keep them at 13
/// or 14 pixels, which on a small desktop at a large scale takes the room of the figures. Texts of a usual
/// size change nothing.
class StileMinuto : public StileCornici {
    Q_OBJECT
public:
    using StileCornici::StileCornici;

    int pixelMetric(PixelMetric metrica, const QStyleOption* opzioni, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType tipo, const QStyleOption* opzioni, const QSize& contenuto,
                           const QWidget* widget) const override;
    /// The mark of a menu bar that has no room is read when such a bar is painted.
    QIcon standardIcon(StandardPixmap quale, const QStyleOption* opzioni,
                       const QWidget* widget) const override;
};

} // namespace sagomi
