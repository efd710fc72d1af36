#include "frame/ui/AttesaQt.h"

#include <QCoreApplication>

#include "frame/Attesa.h"
#include "frame/GeneraleSagomi.h"

namespace sagomi {

void CollegaAttesaQt() {
    CollegaAttesa([] {
        QCoreApplication::processEvents();
        return !ChiusuraInCorso;
    });
}

} // namespace sagomi
