// The polygon against GEOS and Boost.Geometry in the same run: static values, cuts, plastic moduli, and cost
// against vertex count. Every pair is compared before it is timed; a disagreement is an error, not a number.

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>
#include <geos_c.h>

#include <cmath>
#include <cstdarg>
#include <memory>
#include <numbers>
#include <vector>

#include <benchmark/benchmark.h>

#include "geometry/Matematica.h"
#include "geometry/Poligono.h"

using namespace sagomi;

namespace {

constexpr double lontano = 1e6; ///< beyond every outline here

// Outlines
// ----------------------------------------------------------------------------------------------------

/// Rolled I 200x100x5.6x8.5 with fillets of 12 in 8 chords: 44 vertices.
Poligono DoppioT() {
    constexpr double h = 200;
    constexpr double b = 100;
    constexpr double tw = 5.6;
    constexpr double tf = 8.5;
    constexpr double r = 12;
    std::vector<double> x{b / 2, b / 2};
    std::vector<double> y{0, tf};
    for (int k = 0; k <= 8; ++k) {
        const double a = k * std::numbers::pi / 16;
        x.push_back(tw / 2 + r - r * std::sin(a));
        y.push_back(tf + r - r * std::cos(a));
    }
    for (std::size_t i = x.size(); i-- > 0;) {
        x.push_back(x[i]);
        y.push_back(h - y[i]);
    }
    for (std::size_t i = x.size(); i-- > 0;) {
        x.push_back(-x[i]);
        y.push_back(y[i]);
    }
    Poligono p;
    p.Coordinate(x, y, static_cast<std::int16_t>(x.size()));
    return p;
}

/// A wavy round outline of n vertices.
Poligono Ondulato(int n) {
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 0; i < n; ++i) {
        const double a = 2 * std::numbers::pi * i / n;
        const double r = 100 + 15 * std::sin(7 * a);
        x.push_back(r * std::cos(a));
        y.push_back(r * std::sin(a));
    }
    Poligono p;
    p.Coordinate(x, y, static_cast<std::int16_t>(n));
    return p;
}

Poligono Contorno(const benchmark::State& state) {
    return state.range(0) == 44 ? DoppioT() : Ondulato(static_cast<int>(state.range(0)));
}

void Vertici(benchmark::internal::Benchmark* b) { b->Arg(44)->RangeMultiplier(4)->Range(16, 4096); }

// GEOS
// -----------------------------------------------------------------------------------------------------------

class Geos {
public:
    Geos() : contesto_(GEOS_init_r()) {}
    ~Geos() { GEOS_finish_r(contesto_); }
    Geos(const Geos&) = delete;
    Geos& operator=(const Geos&) = delete;

    struct Distrugge {
        GEOSContextHandle_t contesto;
        void operator()(GEOSGeometry* g) const { GEOSGeom_destroy_r(contesto, g); }
    };
    using Forma = std::unique_ptr<GEOSGeometry, Distrugge>;

    Forma DaPoligono(const Poligono& p) const {
        const auto n = static_cast<unsigned>(p.nVertici());
        GEOSCoordSequence* s = GEOSCoordSeq_create_r(contesto_, n + 1, 2);
        for (unsigned i = 0; i <= n; ++i)
            GEOSCoordSeq_setXY_r(contesto_, s, i, p.CoordX()[i % n], p.CoordY()[i % n]);
        GEOSGeometry* anello = GEOSGeom_createLinearRing_r(contesto_, s);
        return Tiene(GEOSGeom_createPolygon_r(contesto_, anello, nullptr, 0));
    }

    double Area(const Forma& f) const {
        double a = 0;
        GEOSArea_r(contesto_, f.get(), &a);
        return a;
    }

    void Baricentro(const Forma& f, double& x, double& y) const {
        const Forma g = Tiene(GEOSGetCentroid_r(contesto_, f.get()));
        GEOSGeomGetX_r(contesto_, g.get(), &x);
        GEOSGeomGetY_r(contesto_, g.get(), &y);
    }

    /// Part above the level (right of it), by the clip to a box.
    Forma Sopra(const Forma& f, double y, bool lungoX) const {
        return Tiene(GEOSClipByRect_r(contesto_, f.get(), lungoX ? y : -lontano, lungoX ? -lontano : y,
                                      lontano, lontano));
    }
    Forma Sotto(const Forma& f, double y, bool lungoX) const {
        return Tiene(GEOSClipByRect_r(contesto_, f.get(), -lontano, -lontano, lungoX ? y : lontano,
                                      lungoX ? lontano : y));
    }

    /// The same by the general overlay.
    Forma Intersezione(const Forma& f, const Forma& g) const {
        return Tiene(GEOSIntersection_r(contesto_, f.get(), g.get()));
    }
    Forma Inviluppo(const Forma& f) const { return Tiene(GEOSConvexHull_r(contesto_, f.get())); }
    Forma Rettangolo(double y1, double y2) const {
        return Tiene(GEOSGeom_createRectangle_r(contesto_, -lontano, y1, lontano, y2));
    }

private:
    Forma Tiene(GEOSGeometry* g) const { return {g, Distrugge{contesto_}}; }
    GEOSContextHandle_t contesto_;
};

bool Vicini(double a, double b, double tolleranza) { return std::abs(a - b) <= tolleranza * std::abs(b); }

/// The plastic modulus with the same search, every area and centroid from GEOS.
double ModuloGeos(const Geos& geos, const Geos::Forma& f, double minimo, double massimo, bool lungoX) {
    const double area = geos.Area(f);
    const double livello = CercaZero([&](double y) { return geos.Area(geos.Sopra(f, y, lungoX)) - area / 2; },
                                     minimo, massimo, area / 10000);
    double alto[2];
    double basso[2];
    geos.Baricentro(geos.Sopra(f, livello, lungoX), alto[0], alto[1]);
    geos.Baricentro(geos.Sotto(f, livello, lungoX), basso[0], basso[1]);
    const int asse = lungoX ? 0 : 1;
    return area / 2 * (alto[asse] - basso[asse]);
}

// Static values
// ------------------------------------------------------------------------------------------------

void StaticaSagomi(benchmark::State& state) {
    Poligono p = Contorno(state);
    const Geos geos;
    p.CaratteristicheStatiche();
    if (!Vicini(p.Area, geos.Area(geos.DaPoligono(p)), 1e-9))
        state.SkipWithError("area differs from the peer's");
    for (auto _ : state) {
        p.CaratteristicheStatiche();
        benchmark::DoNotOptimize(p.IxG);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(StaticaSagomi)->Apply(Vertici)->Complexity(benchmark::oN);

/// Area and centroid only: GEOS has no moments.
void StaticaGeos(benchmark::State& state) {
    const Geos geos;
    const Geos::Forma f = geos.DaPoligono(Contorno(state));
    double x = 0;
    double y = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(geos.Area(f));
        geos.Baricentro(f, x, y);
        benchmark::DoNotOptimize(x);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(StaticaGeos)->Apply(Vertici)->Complexity(benchmark::oN);

// Cuts
// -------------------------------------------------------------------------------------------------------------

constexpr double livelloTaglio = 33.5;

void DividiYSagomi(benchmark::State& state) {
    Poligono p = Contorno(state);
    const Geos geos;
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    p.DividiY(livelloTaglio, sopra, sotto);
    sopra->AreaCalcola();
    if (!Vicini(sopra->Area, geos.Area(geos.Sopra(geos.DaPoligono(p), livelloTaglio, false)), 1e-9))
        state.SkipWithError("cut differs from the peer's");
    for (auto _ : state) {
        p.DividiY(livelloTaglio, sopra, sotto);
        benchmark::DoNotOptimize(sopra.get());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(DividiYSagomi)->Apply(Vertici)->Complexity(benchmark::oN);

void DividiYGeosClip(benchmark::State& state) {
    const Geos geos;
    const Geos::Forma f = geos.DaPoligono(Contorno(state));
    for (auto _ : state) {
        benchmark::DoNotOptimize(geos.Sopra(f, livelloTaglio, false).get());
        benchmark::DoNotOptimize(geos.Sotto(f, livelloTaglio, false).get());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(DividiYGeosClip)->Apply(Vertici)->Complexity(benchmark::oN);

void DividiYGeosOverlay(benchmark::State& state) {
    const Geos geos;
    const Geos::Forma f = geos.DaPoligono(Contorno(state));
    const Geos::Forma alto = geos.Rettangolo(livelloTaglio, lontano);
    const Geos::Forma basso = geos.Rettangolo(-lontano, livelloTaglio);
    for (auto _ : state) {
        benchmark::DoNotOptimize(geos.Intersezione(f, alto).get());
        benchmark::DoNotOptimize(geos.Intersezione(f, basso).get());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(DividiYGeosOverlay)->Apply(Vertici)->Complexity();

// Plastic moduli
// ----------------------------------------------------------------------------------------------

void WplasticiSagomi(benchmark::State& state) {
    Poligono p = Contorno(state);
    const Geos geos;
    p.CaratteristicheStatiche();
    p.Wplastici();
    const auto [xMin, xMax, yMin, yMax] = p.BoundingBox();
    const Geos::Forma f = geos.DaPoligono(p);
    if (!Vicini(p.WplX, ModuloGeos(geos, f, yMin, yMax, false), 4e-4) ||
        !Vicini(p.WplY, ModuloGeos(geos, f, xMin, xMax, true), 4e-4))
        state.SkipWithError("plastic moduli differ from the peer's");
    for (auto _ : state) {
        p.Wplastici();
        benchmark::DoNotOptimize(p.WplY);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(WplasticiSagomi)->Apply(Vertici)->Complexity(benchmark::oN);

void WplasticiGeos(benchmark::State& state) {
    const Poligono p = Contorno(state);
    const Geos geos;
    const Geos::Forma f = geos.DaPoligono(p);
    const auto [xMin, xMax, yMin, yMax] = p.BoundingBox();
    for (auto _ : state) {
        benchmark::DoNotOptimize(ModuloGeos(geos, f, yMin, yMax, false));
        benchmark::DoNotOptimize(ModuloGeos(geos, f, xMin, xMax, true));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(WplasticiGeos)->Apply(Vertici)->Complexity(benchmark::oN);

// What the drawing and the checks call besides
// -------------------------------------------------------------------

void Discretizza(benchmark::State& state) {
    Poligono p = Contorno(state);
    for (auto _ : state) {
        p.DiscretizzaPoligono(100);
        benchmark::DoNotOptimize(p.nStrisce);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(Discretizza)->Apply(Vertici)->Complexity(benchmark::oN);

void Inviluppo(benchmark::State& state) {
    const Poligono p = Contorno(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(p.PoligonoConvessoCircoscritto());
    state.SetComplexityN(state.range(0));
}
BENCHMARK(Inviluppo)->Apply(Vertici)->Complexity();

void InviluppoGeos(benchmark::State& state) {
    const Poligono p = Contorno(state);
    const Geos geos;
    const Geos::Forma f = geos.DaPoligono(p);
    const auto nostro = p.PoligonoConvessoCircoscritto();
    nostro->AreaCalcola();
    if (!Vicini(nostro->Area, geos.Area(geos.Inviluppo(f)), 1e-9))
        state.SkipWithError("hull differs from the peer's");
    for (auto _ : state)
        benchmark::DoNotOptimize(geos.Inviluppo(f).get());
    state.SetComplexityN(state.range(0));
}
BENCHMARK(InviluppoGeos)->Apply(Vertici)->Complexity();

// Boost.Geometry
// --------------------------------------------------------------------------------------------------

namespace bg = boost::geometry;
using PuntoBoost = bg::model::d2::point_xy<double>;
using PoligonoBoost = bg::model::polygon<PuntoBoost>;

PoligonoBoost DaPoligono(const Poligono& p) {
    PoligonoBoost f;
    for (std::size_t i = 0; i < p.CoordX().size(); ++i)
        bg::append(f, PuntoBoost(p.CoordX()[i], p.CoordY()[i]));
    bg::correct(f);
    return f;
}

void StaticaBoost(benchmark::State& state) {
    Poligono p = Contorno(state);
    const PoligonoBoost f = DaPoligono(p);
    p.CaratteristicheStatiche();
    if (!Vicini(p.Area, bg::area(f), 1e-9))
        state.SkipWithError("area differs from the peer's");
    for (auto _ : state) {
        PuntoBoost baricentro;
        bg::centroid(f, baricentro);
        benchmark::DoNotOptimize(bg::area(f));
        benchmark::DoNotOptimize(baricentro);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(StaticaBoost)->Apply(Vertici)->Complexity(benchmark::oN);

/// Both parts of the cut at mid-height.
void DividiYBoost(benchmark::State& state) {
    const PoligonoBoost f = DaPoligono(Contorno(state));
    const auto scatola = bg::return_envelope<bg::model::box<PuntoBoost>>(f);
    const double livello = (scatola.min_corner().y() + scatola.max_corner().y()) / 2;
    const bg::model::box<PuntoBoost> sopra({-lontano, livello}, {lontano, lontano});
    const bg::model::box<PuntoBoost> sotto({-lontano, -lontano}, {lontano, livello});
    for (auto _ : state)
        for (const auto& meta : {sopra, sotto}) {
            bg::model::multi_polygon<PoligonoBoost> parti;
            bg::intersection(f, meta, parti);
            benchmark::DoNotOptimize(parti.data());
        }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(DividiYBoost)->Apply(Vertici)->Complexity();

using PartiBoost = bg::model::multi_polygon<PoligonoBoost>;

/// The part of the outline between two levels (abscissas with lungoX).
PartiBoost FraLivelli(const PoligonoBoost& f, double da, double a, bool lungoX) {
    bg::model::box<PuntoBoost> banda({-lontano, da}, {lontano, a});
    if (lungoX)
        banda = {{da, -lontano}, {a, lontano}};
    PartiBoost parti;
    bg::intersection(f, banda, parti);
    return parti;
}

/// The plastic modulus with the same search, every area and centroid from Boost.Geometry.
double ModuloBoost(const PoligonoBoost& f, double minimo, double massimo, bool lungoX) {
    const double area = bg::area(f);
    const auto sbilancio = [&](double y) { return bg::area(FraLivelli(f, y, lontano, lungoX)) - area / 2; };
    const double livello = CercaZero(sbilancio, minimo, massimo, area / 10000);
    const auto baricentro = [&](double da, double a) {
        PuntoBoost g(0, 0);
        bg::centroid(FraLivelli(f, da, a, lungoX), g);
        return lungoX ? g.x() : g.y();
    };
    return area / 2 * (baricentro(livello, lontano) - baricentro(-lontano, livello));
}

void WplasticiBoost(benchmark::State& state) {
    Poligono p = Contorno(state);
    const PoligonoBoost f = DaPoligono(p);
    const auto [xMin, xMax, yMin, yMax] = p.BoundingBox();
    p.CaratteristicheStatiche();
    p.Wplastici();
    if (!Vicini(p.WplX, ModuloBoost(f, yMin, yMax, false), 4e-4) ||
        !Vicini(p.WplY, ModuloBoost(f, xMin, xMax, true), 4e-4))
        state.SkipWithError("plastic moduli differ from the peer's");
    for (auto _ : state) {
        benchmark::DoNotOptimize(ModuloBoost(f, yMin, yMax, false));
        benchmark::DoNotOptimize(ModuloBoost(f, xMin, xMax, true));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(WplasticiBoost)->Apply(Vertici)->Complexity();

void InviluppoBoost(benchmark::State& state) {
    const PoligonoBoost f = DaPoligono(Contorno(state));
    for (auto _ : state) {
        PoligonoBoost inviluppo;
        bg::convex_hull(f, inviluppo);
        benchmark::DoNotOptimize(inviluppo.outer().data());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(InviluppoBoost)->Apply(Vertici)->Complexity();

} // namespace

BENCHMARK_MAIN();
