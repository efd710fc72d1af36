#include "frame/ui/ColonnaDecimali.h"

#include <QLineEdit>

#include <algorithm>

#include "frame/Numeri.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

constexpr int bordi = 14; ///< between the text of a box and its edges, both sides together [px]

/// Width of a number from its decimal separator on.
int Coda(const QLineEdit* box) {
    const auto at = box->text().lastIndexOf(QChar(static_cast<ushort>(CarDecimale)));
    return at < 0 ? 0 : box->fontMetrics().horizontalAdvance(box->text().mid(at));
}

void Dispone(const QList<QLineEdit*>& column) {
    int widest = 0;
    for (const QLineEdit* box : column)
        widest = std::max(widest, Coda(box));
    for (QLineEdit* box : column) {
        const int room = box->width() - bordi - box->fontMetrics().horizontalAdvance(box->text());
        box->setTextMargins(0, 0, std::clamp(widest - Coda(box), 0, std::max(room, 0)), 0);
    }
}

} // namespace

void AllineaDecimali(const QList<QLineEdit*>& colonna) {
    for (QLineEdit* box : colonna)
        Collega(box, &QLineEdit::textChanged, box, [colonna] { Dispone(colonna); });
}

} // namespace sagomi
