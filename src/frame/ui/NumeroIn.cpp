#include "frame/ui/NumeroIn.h"

#include <QLineEdit>

#include "frame/Numeri.h"
#include "frame/NumeroPulito.h"

namespace sagomi {

double NumeroIn(const QLineEdit* casella) {
    return ValoreNumerico(NumeroRipulito(casella->text().toStdString()));
}

} // namespace sagomi
