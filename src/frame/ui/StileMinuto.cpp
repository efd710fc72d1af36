#include "frame/ui/StileMinuto.h"

#include <QPointer>
#include <QStyleOption>
#include <QWidget>

#include <algorithm>

#include "frame/ui/IconaRinviata.h"

namespace sagomi {

namespace {

constexpr int rigaMinima = 14;  ///< the toolkit takes no line for lower [px]
constexpr int bordoCasella = 2; ///< of a box, both sides together, that small texts do without [px]

/// What a line of the widget's text is lower than that.
int Avanzo(const QWidget* widget) {
    return widget == nullptr ? 0 : std::max(0, rigaMinima - widget->fontMetrics().height());
}

bool Segno(QStyle::PixelMetric metric) {
    return metric == QStyle::PM_IndicatorWidth || metric == QStyle::PM_IndicatorHeight ||
           metric == QStyle::PM_ExclusiveIndicatorWidth || metric == QStyle::PM_ExclusiveIndicatorHeight;
}

} // namespace

int StileMinuto::pixelMetric(PixelMetric metrica, const QStyleOption* opzioni, const QWidget* widget) const {
    const int usual = StileCornici::pixelMetric(metrica, opzioni, widget);
    return Segno(metrica) && Avanzo(widget) > 0 ? std::min(usual, widget->fontMetrics().height()) : usual;
}

QSize StileMinuto::sizeFromContents(ContentsType tipo, const QStyleOption* opzioni, const QSize& contenuto,
                                    const QWidget* widget) const {
    QSize size = StileCornici::sizeFromContents(tipo, opzioni, contenuto, widget);
    if (tipo == CT_ComboBox || tipo == CT_SpinBox)
        size.rheight() -= Avanzo(widget);
    if (tipo == CT_SizeGrip) // which makes the status line as high
        size -= QSize(Avanzo(widget), Avanzo(widget));
    if (tipo == CT_LineEdit)
        size.rheight() -= std::clamp(Avanzo(widget) - bordoCasella, 0, bordoCasella);
    return size;
}

// It is the same for all bars: without option and widget, which may be gone by then.
QIcon StileMinuto::standardIcon(StandardPixmap quale, const QStyleOption* opzioni,
                                const QWidget* widget) const {
    if (quale != SP_ToolBarHorizontalExtensionButton)
        return StileCornici::standardIcon(quale, opzioni, widget);
    return IconaRinviata([quale, stile = QPointer<QStyle>(baseStyle())] {
        return stile ? stile->standardIcon(quale) : QIcon();
    });
}

} // namespace sagomi
