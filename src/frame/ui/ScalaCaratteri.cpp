#include "frame/ui/ScalaCaratteri.h"

#include <QFont>
#include <QGridLayout>
#include <QMenu>
#include <QRect>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace sagomi {

namespace {

constexpr const char* corpoIniziale = "corpoIniziale"; ///< size at ratio 1 [pt]
constexpr const char* scalaInForza = "scalaInForza";

/// Fonts of old screens that are drawn for small sizes only.
bool SoloPiccolo(const QFont& font) {
    return font.family() == QLatin1String("Small Fonts") || font.family() == QLatin1String("ScriptS");
}

double CorpoScalato(const QFont& font, double initial, double ratio) {
    const double size = initial * ratio;
    return SoloPiccolo(font) && ratio != 1 ? std::clamp(size, 2.0, 7.0) : size;
}

/// A menu is a window of its own and takes nothing over.
bool HaCorpoProprio(const QWidget& w) {
    return qobject_cast<const QMenu*>(&w) != nullptr ||
           (w.testAttribute(Qt::WA_SetFont) && (w.font().resolveMask() & QFont::SizeResolved) != 0);
}

/// Keeps the size of the first time; false for a font that is measured otherwise.
bool Annota(QWidget& w, double before) {
    const double size = w.font().pointSizeF();
    if (size > 0 && !w.property(corpoIniziale).isValid())
        w.setProperty(corpoIniziale, size / before);
    return size > 0;
}

constexpr const char* marginiIniziali = "marginiIniziali";
constexpr const char* passiIniziali = "passiIniziali";

int Ridotto(int initial, double ratio) { return initial < 0 ? initial : qRound(initial * ratio); }

QSize Passi(const QLayout& layout) {
    if (const auto* grid = qobject_cast<const QGridLayout*>(&layout))
        return {grid->horizontalSpacing(), grid->verticalSpacing()};
    return {layout.spacing(), layout.spacing()};
}

void ImpostaPassi(QLayout& layout, QSize steps) {
    if (auto* grid = qobject_cast<QGridLayout*>(&layout)) {
        grid->setHorizontalSpacing(steps.width());
        grid->setVerticalSpacing(steps.height());
    } else
        layout.setSpacing(steps.width());
}

void ScalaSpazi(QLayout& layout, double ratio) {
    if (!layout.property(passiIniziali).isValid()) {
        const QMargins m = layout.contentsMargins();
        layout.setProperty(marginiIniziali, QRect(m.left(), m.top(), m.right(), m.bottom()));
        layout.setProperty(passiIniziali, Passi(layout));
    }
    const QRect m = layout.property(marginiIniziali).toRect();
    layout.setContentsMargins(Ridotto(m.x(), ratio), Ridotto(m.y(), ratio), Ridotto(m.width(), ratio),
                              Ridotto(m.height(), ratio));
    const QSize steps = layout.property(passiIniziali).toSize();
    ImpostaPassi(layout, {Ridotto(steps.width(), ratio), Ridotto(steps.height(), ratio)});
}

void Scala(QWidget& w, double ratio) {
    QFont font = w.font();
    font.setPointSizeF(CorpoScalato(font, w.property(corpoIniziale).toDouble(), ratio));
    w.setFont(font);
}

} // namespace

void ScalaCaratteri(QWidget& finestra, double rapporto) {
    const QVariant known = finestra.property(scalaInForza);
    const double before = known.isValid() ? known.toDouble() : 1;
    if (rapporto == before)
        return;
    QList<QWidget*> own;
    for (QWidget* w : finestra.findChildren<QWidget*>())
        if (HaCorpoProprio(*w) && Annota(*w, before))
            own << w;
    finestra.setProperty(scalaInForza, rapporto);
    if (Annota(finestra, before))
        Scala(finestra, rapporto);
    for (QWidget* w : own)
        Scala(*w, rapporto);
}

void ScalaSpazi(QWidget& finestra, double rapporto) {
    constexpr const char* spaziInForza = "spaziInForza";
    const double ratio = std::min(rapporto, 1.0);
    const QVariant known = finestra.property(spaziInForza);
    if (ratio == (known.isValid() ? known.toDouble() : 1))
        return;
    finestra.setProperty(spaziInForza, ratio);
    for (QLayout* layout : finestra.findChildren<QLayout*>())
        ScalaSpazi(*layout, ratio);
}

} // namespace sagomi
