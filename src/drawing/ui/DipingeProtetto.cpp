#include "drawing/ui/DipingeProtetto.h"

#include <QObject>

#include "drawing/Grafica.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

bool DipingeProtetto(QObject* contesto, const std::function<void()>& dipinge) {
    const StatoUscita before;
    try {
        dipinge();
        return true;
    } catch (...) {
        const DescrizioneErrore error = ErroreInVolo();
        QMetaObject::invokeMethod(
            contesto, [error] { AvvisaErrore("Errore", error); }, Qt::QueuedConnection);
        return false;
    }
}

} // namespace sagomi
