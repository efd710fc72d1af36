#include "sections/SezioneGenerica.h"

namespace sagomi {

sagomi::Poligono& SezioneGenerica::Contorno() {
    if (!Poligono)
        Poligono = std::make_shared<sagomi::Poligono>();
    return *Poligono;
}

void SezioneGenerica::CoordinateSezione(const std::vector<double>& x, const std::vector<double>& y,
                                        std::int16_t n) {
    if (Poligono.use_count() > 1)
        Poligono.reset(); // the other holder keeps what it has
    Contorno().Coordinate(x, y, n);
}

void SezioneGenerica::CaratteristicheStaticheSezione() {
    sagomi::Poligono& p = Contorno();
    p.CaratteristicheStatiche();
    WxSuperiore = p.WxSup;
    WxInferiore = p.WxInf;
    WyDestra = p.WyDes;
    WySinistra = p.WySin;
    Area = p.Area;
    xG = p.xG;
    yG = p.yG;
    JotaXG = p.IxG;
    JotaYG = p.IyG;
    JotaIG = p.I1;
    JotaIIG = p.I2;
    Rho1 = p.Rho1;
    Rho2 = p.Rho2;
    Alfa1 = p.Alfa1;
}

void SezioneGenerica::Wplastici() {
    sagomi::Poligono& p = Contorno();
    p.Wplastici();
    WplX = p.WplX;
    WplY = p.WplY;
}

} // namespace sagomi
