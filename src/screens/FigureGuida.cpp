#include "screens/FigureGuida.h"

#include "drawing/ui/SuperficieImmagine.h"
#include "screens/DisegniGuida.h"

namespace sagomi {

QImage FiguraGuida(const QString& nome) {
    const Disegno drawing = DisegnoGuida(nome.toStdString());
    return drawing.PlottaInOggetto ? ImmagineDi(drawing, QStringLiteral("FinestraGuida")) : QImage();
}

} // namespace sagomi
