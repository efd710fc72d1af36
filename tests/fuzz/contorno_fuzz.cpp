// The bytes are numbers: the vertices of an outline, then lines that cut it. Outlines of plausible measures
// have finite values and the area of a cut's two parts.

#include <cmath>
#include <memory>
#include <vector>

#include "NumeriArbitrari.h"
#include "geometry/Poligono.h"

using namespace sagomi;
using prove::Pretende;

namespace {

constexpr int verticiMassimi = 48;
constexpr double plausibile = 1e5; ///< [mm]
constexpr double minima = 1e-6;    ///< area of an outline that its values can be divided by [mm2]

bool Finite(const Poligono& p) {
    for (const double v : {p.Area, p.xG, p.yG, p.Sx, p.Sy, p.Ix, p.Iy, p.Ixy, p.IxG, p.IyG, p.IxyG, p.I1,
                           p.I2, p.Alfa1, p.Alfa2, p.Rho1, p.Rho2, p.WplX, p.WplY})
        if (!std::isfinite(v))
            return false;
    return true;
}

std::shared_ptr<Poligono> Contorno(prove::NumeriArbitrari& numeri, bool& plausibili) {
    auto p = std::make_shared<Poligono>();
    const bool misure = numeri.Logico();
    const int n = numeri.Scelta(verticiMassimi);
    std::vector<double> x, y;
    plausibili = true;
    for (int i = 0; i < n; ++i)
        for (auto* coordinate : {&x, &y}) {
            coordinate->push_back(misure ? numeri.Misura() : numeri.Numero());
            plausibili = plausibili && std::abs(coordinate->back()) < plausibile;
        }
    p->Coordinate(x, y, static_cast<std::int16_t>(n));
    return p;
}

void Divide(Poligono& p, double livello, bool lungoX, bool plausibili) {
    std::shared_ptr<Poligono> sopra, sotto;
    p.DividiY(livello, sopra, sotto, lungoX);
    for (const auto& parte : {sopra, sotto})
        if (parte && plausibili) {
            parte->AreaCalcola();
            Pretende(std::isfinite(parte->Area) && parte->Area >= 0);
        }
    double yN = 0;
    p.Dividi(0.5, sopra, sotto, yN, lungoX);
    Pretende(!plausibili || std::isfinite(yN));
}

void Taglia(Poligono& p, prove::NumeriArbitrari& numeri) {
    const double a = numeri.Numero(), b = numeri.Numero(), c = numeri.Numero();
    std::int16_t segno = 0;
    (void)p.PoligonoReagente(numeri.Numero(), numeri.Numero(), segno, a, b, c);
    (void)p.PoligonoIntersezione(a, b, c, numeri.Numero(), numeri.Numero());
    std::vector<double> xI, yI;
    std::vector<std::int16_t> lati;
    std::int16_t nI = 0, tolti = 0;
    p.IntersezioneConRetta(a, b, c, xI, yI, lati, nI, &tolti);
    std::vector<bool> nuovi;
    (void)p.PoligonoConIntersezioni(xI, yI, lati, nI, nuovi);
}

void Percorre(Poligono& p, prove::NumeriArbitrari& numeri) {
    (void)p.PoligonoConvessoCircoscritto();
    std::vector<double> x, y;
    std::int16_t n = 0;
    p.VistaDaDestra(x, y, n);
    std::shared_ptr<Poligono> parallelo;
    (void)p.OffsetPerPunto(numeri.Numero(), numeri.Numero(), parallelo);
    std::int16_t esito = 0;
    p.PuntoInPoligono(numeri.Numero(), numeri.Numero(), 1, 1e-9, esito);
    p.DiscretizzaPoligono(static_cast<std::int16_t>(numeri.Scelta(64)));
    for (int i = 1; i <= p.nStrisce; ++i)
        (void)p.RettangolinoMomenti(i, numeri.Numero(), numeri.Numero());
    p.RuotaVertici(0, 0, numeri.Numero());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    prove::NumeriArbitrari numeri(data, size);
    bool plausibili = false;
    const auto p = Contorno(numeri, plausibili);
    p->AreaCalcola();
    p->CaratteristicheStatiche();
    p->Wplastici();
    Pretende(!(p->Area < 0));
    Pretende(!plausibili || !(p->Area > minima) || Finite(*p));
    Divide(*p, numeri.Numero(), numeri.Logico(), plausibili);
    Taglia(*p, numeri);
    Percorre(*p, numeri);
    return 0;
}
