#include "frame/ui/AttesaQt.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

#include "frame/Attesa.h"
#include "frame/GeneraleSagomi.h"

namespace sagomi {

namespace {

int attese = 0; // NOLINT: one inside the other

}

void CollegaAttesaQt() {
    CollegaAttesa([] {
        if (ChiusuraInCorso)
            return false;
        const QScopedValueRollback deeper(attese, attese + 1);
        QCoreApplication::processEvents();
        return !ChiusuraInCorso;
    });
}

bool InAttesa() { return attese > 0; }

} // namespace sagomi
