#include "composite/AcciaioCls.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "geometry/Poligono.h"
#include "sections/AreaEfficace.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

/// Points of half an outline: both halves, cut on every side, are counted in 16 bits.
constexpr std::size_t puntiMassimi = 8000;

double MaggioreLarghezza(const AcciaioCls& t) { return std::max<double>(t.bb, t.bs); }

/// The other half of an outline, back from its last point.
void AggiungeSpeculare(std::vector<double>& xs, std::vector<double>& ys) {
    for (std::size_t i = xs.size(); i-- > 0;) {
        xs.push_back(-xs[i]);
        ys.push_back(ys[i]);
    }
}

} // namespace

// A section that is or was of class 4 is prepared once more, for its resistance rests on the effective area
// found first.
void AcciaioCls::InizializzaTrave() {
    auto* sezione = SezioneInUso<SezioneDoppioT>();
    if (sezione == nullptr)
        return;
    const bool era4 = sezione->ClasseCompressione == 4;
    sezione->InizializzaSezioneAcciaioCls();
    if (era4 || sezione->ClasseCompressione == 4)
        InizializzaConAreaEfficace(*sezione);
}

bool AcciaioCls::InizializzaAcciaioCls() {
    if (TipoSoletta != solettaPiena && hc < 0) {
        Avvisa("hc < 0 ammesso solo per soletta piena", {}, Icona::Stop);
        return false;
    }
    CorreggeGrecata();
    std::visit(
        [this](const auto& inUso) { // of another kind the beam keeps its own
            if constexpr (requires { Sezione = inUso; })
                Sezione = inUso;
        },
        SezioneCorrente);
    if (!Sezione || !Sezione->SezioneGenericaCorrente)
        return false;
    SolettaOggettoCrea();
    return true;
}

// The width of a rib is taken before its spacing is corrected.
void AcciaioCls::CorreggeGrecata() {
    if (TipoSoletta == nervatureTrasversali)
        b0 = (iNervature + bb - bs) / 2;
    if (TipoSoletta == nervatureParallele) {
        if (b0t < bb) {
            Avvisa("b0t deve essere >= bb");
            b0t = bb;
        }
        b0 = (iNervature - bb - bs) / 2 + b0t;
    }
    if (TipoSoletta != solettaPiena && iNervature < MaggioreLarghezza(*this)) {
        Avvisa("L'interasse delle nervature deve essere > bs, bb");
        iNervature = MaggioreLarghezza(*this) + 1;
    }
}

bool AcciaioCls::DatiGrecataAccettabili() const {
    if (TipoSoletta == solettaPiena)
        return true;
    return iNervature >= MaggioreLarghezza(*this) && (TipoSoletta != nervatureParallele || b0t >= bb);
}

void AcciaioCls::SolettaOggettoCrea() {
    const double mezza = beff / 2;
    std::vector<double> xs{0, mezza};
    std::vector<double> ys(2, TipoSoletta == nervatureTrasversali ? double(ha) : 0.0);
    if (TipoSoletta == nervatureParallele)
        CoordinateGrecata(xs, ys);
    xs.push_back(mezza);
    ys.push_back(hc);
    AggiungeSpeculare(xs, ys);
    nVerticiSoletta = static_cast<std::int16_t>(xs.size());
    Soletta = std::make_shared<Poligono>();
    Soletta->Coordinate(xs, ys, nVerticiSoletta);
    Soletta->Trasla(0, -Sezione->h);
    Soletta->CaratteristicheStatiche();
    yArmatura = Sezione->h + hc - c;
    yInfSoletta = Soletta->BoundingBox()[2];
}

void AcciaioCls::CoordinateGrecata(std::vector<double>& xs, std::vector<double>& ys) const {
    const double r = (iNervature - bs - bb) / 2; // run of a sloped side
    const std::array<double, 4> dx{r, bs, r, bb};
    const std::array<double, 4> dy{ha, 0, -ha, 0};
    double x = 0;
    double y = 0;
    xs.assign(1, x);
    ys.assign(1, y);
    bool continua = true;
    CoordinataGrecataSuccessiva(x, y, b0t / 2, 0, xs, ys, continua);
    // Ribs without a spacing, or as narrow as dust, would never reach the end.
    const bool avanza = iNervature > 0;
    for (std::size_t i = 0; continua && avanza && xs.size() < puntiMassimi; ++i)
        CoordinataGrecataSuccessiva(x, y, dx[i % 4], dy[i % 4], xs, ys, continua);
    if (continua)
        CoordinataGrecataSuccessiva(x, y, beff, 0, xs, ys, continua);
}

void AcciaioCls::CoordinataGrecataSuccessiva(double& x, double& y, double dx, double dy,
                                             std::vector<double>& xs, std::vector<double>& ys,
                                             bool& continua) const {
    const double fine = beff / 2;
    const double prima = x;
    x += dx;
    continua = x < fine;
    if (continua) {
        y += dy;
    } else {
        if (dy != 0)
            y += dy / dx * (fine - prima);
        x = fine;
    }
    xs.push_back(x);
    ys.push_back(y);
}

void AcciaioCls::DatoLamiera(std::string_view testo, int indice) {
    const std::array<Singolo*, 5> dati{&ha, &bb, &bs, &iNervature, &b0t};
    if (indice >= 0 && indice < static_cast<int>(dati.size()))
        *dati[static_cast<std::size_t>(indice)] = ValoreNumerico(testo);
}

double AcciaioCls::fyd() const { return Sezione->fy / GammaM0; }
double AcciaioCls::fcd() { return 0.85 * fck / 1.5; }
double AcciaioCls::fsd() { return fsk / 1.15; }

double AcciaioCls::Sommita() const {
    if (!Sezione)
        return 0;
    return hc < 0 ? double(Sezione->h) : Sezione->h + hc;
}

} // namespace sagomi
