#include <cmath>

#include "geometry/Matematica.h"
#include "geometry/Poligono.h"

namespace sagomi {

double Poligono::yEquazione(double y, bool lungoX) {
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    DividiY(y, sopra, sotto, lungoX);
    if (!sopra)
        return -rapportoArea_ * Area;
    sopra->AreaCalcola();
    return sopra->Area - rapportoArea_ * Area;
}

void Poligono::Dividi(double rapporto, std::shared_ptr<Poligono>& sopra, std::shared_ptr<Poligono>& sotto,
                      double& yN, bool lungoX) {
    rapportoArea_ = rapporto;
    AreaCalcola();
    auto [xMin, xMax, yMin, yMax] = BoundingBox();
    double& minimo = lungoX ? xMin : yMin;
    double& massimo = lungoX ? xMax : yMax;
    yN = ZeroFunzione(*this, minimo, massimo, Area / 10000, lungoX);
    DividiY(yN, sopra, sotto, lungoX);
}

void Poligono::WplasticoCerchio(double De, double Di, double& W) { W = (De * De * De - Di * Di * Di) / 6; }

double Poligono::Wplastico(double* yN, bool attornoY, bool cerchio, double De, double Di) {
    double W = 0;
    if (cerchio) {
        WplasticoCerchio(De, Di, W);
        return W;
    }
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    double livello = 0;
    Dividi(0.5, sopra, sotto, livello, attornoY);
    if (yN)
        *yN = livello;
    // A search that failed may leave one half only: no couple of forces.
    if (!sopra || !sotto)
        return 0;
    sopra->CaratteristicheStatiche();
    sotto->CaratteristicheStatiche();
    return Area / 2 * (attornoY ? sopra->xG - sotto->xG : sopra->yG - sotto->yG);
}

void Poligono::Wplastici() {
    WplX = Area != 0 ? Wplastico() : 0;
    WplY = Area != 0 ? Wplastico(nullptr, true) : 0;
}

} // namespace sagomi
