#include "drawing/ui/SuperficieImmagine.h"

#include <QApplication>
#include <QPainter>

#include "drawing/Grafica.h"
#include "drawing/ui/SuperficieFigura.h"
#include "drawing/ui/SuperficieSchermo.h"

namespace sagomi {

namespace {

constexpr double densita = 3;
constexpr QSize misuraTavola{640, 520};

QPalette NeroSuBianco() {
    QPalette colours(Qt::white);
    colours.setColor(QPalette::Window, Qt::white);
    colours.setColor(QPalette::WindowText, Qt::black);
    return colours;
}

void DisegnaSu(Superficie& surface, const Disegno& drawing, const QString& maschera) {
    const StatoUscita before;
    Dispositivo = dispositivoVideo;
    ColorePenna = pennaInchiostro;
    OggettoGrafico = &surface;
    drawing.PlottaInOggetto(&surface, maschera.toStdString());
}

} // namespace

QImage ImmagineDi(const Disegno& disegno, const QString& maschera) {
    const QFont font = QApplication::font();
    const bool small = disegno.misura.larghezza > 0;
    const QSize size = small ? InPixel(disegno.misura, font) : misuraTavola;
    QImage picture((QSizeF(size) * densita).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(densita);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    if (small) {
        SuperficieFigura surface(painter, size, font, NeroSuBianco());
        DisegnaSu(surface, disegno, maschera);
    } else {
        SuperficieSchermo surface(painter, size, font, Qt::black);
        DisegnaSu(surface, disegno, maschera);
    }
    return picture;
}

} // namespace sagomi
