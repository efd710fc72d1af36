// How many sections a second the initialiser computes: the rows of the IPE and HE families as a whole-sheet
// search meets them, and welded ones whose plates are of class 4, with two or three outlines each.

#include <geos_c.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "frame/GeneraleSagomi.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;

namespace {

using Riga = std::map<std::string, double>;

std::vector<std::string> Campi(const std::string& linea) {
    std::vector<std::string> campi;
    std::istringstream testo(linea);
    for (std::string campo; std::getline(testo, campo, ',');)
        campi.push_back(campo);
    return campi;
}

std::vector<Riga> LeggeFamiglia(const std::string& file) {
    std::ifstream testo(SAGOMI_CATALOGUE_DATA "/" + file + ".csv");
    std::string linea;
    std::getline(testo, linea);
    const auto colonne = Campi(linea);
    std::vector<Riga> righe;
    while (std::getline(testo, linea)) {
        const auto campi = Campi(linea);
        Riga riga;
        for (std::size_t i = 1; i < campi.size(); ++i)
            std::from_chars(campi[i].data(), campi[i].data() + campi[i].size(), riga[colonne[i]]);
        righe.push_back(riga);
    }
    return righe;
}

SezioneDoppioT Sezione(Riga v, double fy) {
    SezioneDoppioT s;
    s.fy = fy;
    s.TipoAcciaio = "S355 (Fe510)";
    s.Saldata = v.contains("r_mm");
    s.h = v["h_mm"];
    s.b = v["b_mm"];
    s.tw = v["tw_mm"];
    s.tf = v["tf_mm"];
    s.r1 = v["r1_mm"];
    s.r2 = v["r2_mm"];
    s.r = v["r_mm"];
    s.Area = v["A_cm2"] * 100;
    s.Wely = v["Wy_cm3"] * 1000;
    s.Wply = v["Wply_cm3"] * 1000;
    s.iY = v["iy_cm"] * 10;
    s.Jz = v["Iz_cm4"] * 1e4;
    s.Welz = v["Wz_cm3"] * 1000;
    s.Wplz = v["Wplz_cm3"] * 1000;
    s.iZ = v["iz_cm"] * 10;
    s.L0y = 6000;
    s.L0z = 3000;
    s.NSd = 200000;
    return s;
}

std::vector<SezioneDoppioT> Sezioni(const std::vector<std::string>& famiglie, double fy) {
    std::vector<SezioneDoppioT> sezioni;
    for (const auto& famiglia : famiglie)
        for (const Riga& riga : LeggeFamiglia(famiglia))
            sezioni.push_back(Sezione(riga, fy));
    return sezioni;
}

void Inizializza(benchmark::State& stato, const std::vector<std::string>& famiglie, double fy) {
    const std::vector<SezioneDoppioT> sezioni = Sezioni(famiglie, fy);
    if (sezioni.empty()) {
        stato.SkipWithError("no catalogue");
        return;
    }
    for (auto _ : stato) {
        for (const SezioneDoppioT& modello : sezioni) {
            SezioneDoppioT s = modello; // a new row is a new object, without outlines
            s.InizializzaSezione();
            benchmark::DoNotOptimize(s.NbzRd);
        }
    }
    stato.SetItemsProcessed(stato.iterations() * static_cast<std::int64_t>(sezioni.size()));
}

BENCHMARK_CAPTURE(Inizializza, IPE_HE_S235, {"IPE", "IPEA", "IPEO", "HEA", "HEB", "HEM", "HEAA"}, 235);
BENCHMARK_CAPTURE(Inizializza, IPE_HE_S355, {"IPE", "IPEA", "IPEO", "HEA", "HEB", "HEM", "HEAA"}, 355);
BENCHMARK_CAPTURE(Inizializza, IPN_tapered, {"IPN"}, 235);
BENCHMARK_CAPTURE(Inizializza, HSL_HSA_class4, {"HSL", "HSA"}, 355);

/// The yardstick of the initialiser: what GEOS takes for area and centroid of the same outlines, made once.
void ContorniDiGeos(benchmark::State& stato, const std::vector<std::string>& famiglie) {
    GEOSContextHandle_t contesto = GEOS_init_r();
    std::vector<GEOSGeometry*> contorni;
    for (SezioneDoppioT& s : Sezioni(famiglie, 235)) {
        s.InizializzaSezione();
        const Poligono& p = *s.SezioneGenericaCorrente->Poligono;
        const auto n = static_cast<unsigned>(p.nVertici());
        GEOSCoordSequence* punti = GEOSCoordSeq_create_r(contesto, n + 1, 2);
        for (unsigned i = 0; i <= n; ++i)
            GEOSCoordSeq_setXY_r(contesto, punti, i, p.CoordX()[i % n], p.CoordY()[i % n]);
        contorni.push_back(
            GEOSGeom_createPolygon_r(contesto, GEOSGeom_createLinearRing_r(contesto, punti), nullptr, 0));
    }
    for (auto _ : stato)
        for (const GEOSGeometry* contorno : contorni) {
            double area = 0;
            GEOSArea_r(contesto, contorno, &area);
            GEOSGeometry* baricentro = GEOSGetCentroid_r(contesto, contorno);
            benchmark::DoNotOptimize(area);
            GEOSGeom_destroy_r(contesto, baricentro);
        }
    for (GEOSGeometry* contorno : contorni)
        GEOSGeom_destroy_r(contesto, contorno);
    GEOS_finish_r(contesto);
    stato.SetItemsProcessed(stato.iterations() * static_cast<std::int64_t>(contorni.size()));
}
BENCHMARK_CAPTURE(ContorniDiGeos, IPE_HE, {"IPE", "IPEA", "IPEO", "HEA", "HEB", "HEM", "HEAA"});

/// What a section's resistances are computed from where only its table is known.
struct Tabellata {
    double A, Wy, Wz, iY, iZ, h, tw, alfaY, alfaZ, NbyRd, NbzRd;
    bool intera; ///< not of class 4 in compression: its resistances need no outline
};

std::vector<Tabellata> Tabellate(const std::vector<std::string>& famiglie, double fy) {
    std::vector<Tabellata> righe;
    for (SezioneDoppioT& s : Sezioni(famiglie, fy)) {
        s.InizializzaSezione();
        righe.push_back({s.Area, s.Wply, s.Wplz, s.iY, s.iZ, s.h, s.tw, AlfaCurva(s.CurvaInstabilita("yy")),
                         AlfaCurva(s.CurvaInstabilita("zz")), s.NbyRd, s.NbzRd, s.ClasseCompressione < 4});
    }
    return righe;
}

/// The plain formulas, ENV 1993-1-1 5.4 and 5.5.1, written down as a handbook does: axial force, moments,
/// shear and buckling about both axes. The same resistances as the initialiser's, without outline, classes
/// and texts.
void SoloFormule(benchmark::State& stato, const std::vector<std::string>& famiglie, double fy) {
    const std::vector<Tabellata> righe = Tabellate(famiglie, fy);
    const auto instabilita = [fy](const Tabellata& r, double lamda, double alfa) {
        const double relativa = lamda / (93.9 * std::sqrt(235 / fy));
        const double fi = 0.5 * (1 + alfa * (relativa - 0.2) + relativa * relativa);
        const double chi = std::min(1.0, 1 / (fi + std::sqrt(fi * fi - relativa * relativa)));
        return chi * fy / GammaM1 * r.A;
    };
    for (const Tabellata& r : righe)
        if (r.intera && (std::abs(instabilita(r, 6000 / r.iY, r.alfaY) - r.NbyRd) > 1e-6 * r.NbyRd ||
                         std::abs(instabilita(r, 3000 / r.iZ, r.alfaZ) - r.NbzRd) > 1e-6 * r.NbzRd))
            stato.SkipWithError("the resistances differ");
    for (auto _ : stato)
        for (const Tabellata& r : righe) {
            benchmark::DoNotOptimize(r.A * fy / GammaM0);
            benchmark::DoNotOptimize(r.Wy * fy / GammaM0);
            benchmark::DoNotOptimize(r.Wz * fy / GammaM0);
            benchmark::DoNotOptimize(1.04 * r.h * r.tw * fy / std::sqrt(3.0) / GammaM0);
            benchmark::DoNotOptimize(instabilita(r, 6000 / r.iY, r.alfaY));
            benchmark::DoNotOptimize(instabilita(r, 3000 / r.iZ, r.alfaZ));
        }
    stato.SetItemsProcessed(stato.iterations() * static_cast<std::int64_t>(righe.size()));
}
BENCHMARK_CAPTURE(SoloFormule, IPE_HE_S235, {"IPE", "IPEA", "IPEO", "HEA", "HEB", "HEM", "HEAA"}, 235);

} // namespace

BENCHMARK_MAIN();
