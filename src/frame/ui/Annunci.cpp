#include "frame/ui/Annunci.h"

#include <QAccessible>
#include <QWidget>

#include <utility>

namespace sagomi {

namespace {

AscoltoAnnunci& Ascolto() {
    static AscoltoAnnunci listener;
    return listener;
}

} // namespace

void ImpostaAscolto(AscoltoAnnunci ascolto) { Ascolto() = std::move(ascolto); }

void Annuncia(QWidget& widget, const QString& testo) {
    if (Ascolto()) {
        Ascolto()(widget, testo);
        return;
    }
    QAccessibleValueChangeEvent value(&widget, testo);
    QAccessible::updateAccessibility(&value);
    QAccessibleEvent alert(&widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace sagomi
