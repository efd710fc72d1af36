// Drawing: hatching against GEOS in the same run, its cost against the count of vertices, a whole section to
// a DXF file. The chords of a pair are compared before they are timed.

#include <geos_c.h>

#include <cmath>
#include <filesystem>
#include <memory>
#include <numbers>
#include <vector>

#include <benchmark/benchmark.h>

#include "drawing/Dxf.h"
#include "drawing/Grafica.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;

namespace {

constexpr double angolo = 45;
constexpr double lontano = 1e6; ///< beyond every outline here

/// A target that adds up what is drawn on it.
class SuperficieNulla : public Superficie {
public:
    void Scale() override { ScaleWidth = ScaleHeight = 1000; }
    void Predefiniti() override { FontSize = 10; }
    void Line(double x1, double y1, double x2, double y2) override {
        lunghezza += std::hypot(x2 - x1, y2 - y1);
    }
    void Circle(double /*x*/, double /*y*/, double /*r*/) override {}
    void Print(std::string_view /*testo*/) override {}
    [[nodiscard]] double TextHeight(std::string_view /*testo*/) const override { return FontSize; }
    [[nodiscard]] double TextWidth(std::string_view testo) const override {
        return FontSize * static_cast<double>(testo.size());
    }
    double lunghezza = 0;
};

/// IPN 300 of EN 10365: tapered flanges, 76 vertices.
SezioneDoppioT Rastremata() {
    SezioneDoppioT s;
    s.Designation = "IPN 300";
    s.fy = 235;
    s.h = 300;
    s.b = 125;
    s.tw = 10.8;
    s.tf = 16.2;
    s.r1 = 10.8;
    s.r2 = 6.5;
    s.InizializzaSezioneAcciaioCls();
    return s;
}

/// A wavy round outline of n vertices; 76 is the tapered section.
Poligono Contorno(int n) {
    if (n == 76)
        return *Rastremata().SezioneGenericaCorrente->Poligono;
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

void Vertici(benchmark::internal::Benchmark* b) { b->Arg(76)->RangeMultiplier(4)->Range(16, 4096); }

constexpr int linee = 50;

/// The same hatching by GEOS: all lines at once, intersected with the polygon; the length of what remains.
class TratteggioGeos {
public:
    explicit TratteggioGeos(const Poligono& p) : contesto_(GEOS_init_r()) {
        const auto n = static_cast<unsigned>(p.nVertici());
        GEOSCoordSequence* s = GEOSCoordSeq_create_r(contesto_, n + 1, 2);
        for (unsigned i = 0; i <= n; ++i)
            GEOSCoordSeq_setXY_r(contesto_, s, i, p.CoordX()[i % n], p.CoordY()[i % n]);
        poligono_ =
            GEOSGeom_createPolygon_r(contesto_, GEOSGeom_createLinearRing_r(contesto_, s), nullptr, 0);
        Estremi(p);
    }
    ~TratteggioGeos() {
        GEOSGeom_destroy_r(contesto_, poligono_);
        GEOS_finish_r(contesto_);
    }
    TratteggioGeos(const TratteggioGeos&) = delete;
    TratteggioGeos& operator=(const TratteggioGeos&) = delete;

    [[nodiscard]] double Lunghezza() const {
        std::vector<GEOSGeometry*> righe;
        righe.reserve(linee);
        for (int k = 0; k < linee; ++k)
            righe.push_back(Riga(vMin_ + (k + 0.5) * (vMax_ - vMin_) / linee));
        GEOSGeometry* tutte =
            GEOSGeom_createCollection_r(contesto_, GEOS_MULTILINESTRING, righe.data(), linee);
        GEOSGeometry* corde = GEOSIntersection_r(contesto_, poligono_, tutte);
        double lunghezza = 0;
        GEOSLength_r(contesto_, corde, &lunghezza);
        GEOSGeom_destroy_r(contesto_, corde);
        GEOSGeom_destroy_r(contesto_, tutte);
        return lunghezza;
    }

private:
    /// Extent of the outline across the lines.
    void Estremi(const Poligono& p) {
        for (int i = 1; i <= p.nVertici(); ++i) {
            const double v = -p.xi(i) * sinA_ + p.yi(i) * cosA_;
            vMin_ = std::min(vMin_, v);
            vMax_ = std::max(vMax_, v);
        }
    }

    [[nodiscard]] GEOSGeometry* Riga(double v) const {
        GEOSCoordSequence* s = GEOSCoordSeq_create_r(contesto_, 2, 2);
        for (unsigned i = 0; i < 2; ++i) {
            const double u = i == 0 ? -lontano : lontano;
            GEOSCoordSeq_setXY_r(contesto_, s, i, u * cosA_ - v * sinA_, u * sinA_ + v * cosA_);
        }
        return GEOSGeom_createLineString_r(contesto_, s);
    }

    GEOSContextHandle_t contesto_;
    GEOSGeometry* poligono_ = nullptr;
    double cosA_ = std::cos(std::numbers::pi / 4), sinA_ = std::sin(std::numbers::pi / 4);
    double vMin_ = lontano, vMax_ = -lontano;
};

void TratteggioSagomi(benchmark::State& state) {
    const Poligono p = Contorno(static_cast<int>(state.range(0)));
    SuperficieNulla superficie;
    const StatoUscita prima;
    OggettoGrafico = &superficie;
    p.Tratteggia(angolo, linee, pennaGrigia);
    const double attesa = TratteggioGeos(p).Lunghezza();
    if (std::abs(superficie.lunghezza - attesa) > 1e-9 * attesa)
        state.SkipWithError("hatching differs from the peer's");
    for (auto _ : state)
        benchmark::DoNotOptimize(p.Tratteggia(angolo, linee, pennaGrigia));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(TratteggioSagomi)->Apply(Vertici)->Complexity(benchmark::oN);

void TratteggioDiGeos(benchmark::State& state) {
    const TratteggioGeos geos(Contorno(static_cast<int>(state.range(0))));
    for (auto _ : state)
        benchmark::DoNotOptimize(geos.Lunghezza());
    state.SetComplexityN(state.range(0));
}
BENCHMARK(TratteggioDiGeos)->Apply(Vertici)->Complexity(benchmark::oN);

/// What a painting of the preview asks of the mechanics.
void SezioneIntera(benchmark::State& state) {
    const SezioneDoppioT s = Rastremata();
    SuperficieNulla superficie;
    const StatoUscita prima;
    for (auto _ : state)
        s.PlottaSezione(&superficie, "frmDoppioT", dispositivoVideo);
}
BENCHMARK(SezioneIntera);

void SezioneInDxf(benchmark::State& state) {
    const SezioneDoppioT s = Rastremata();
    const auto file = std::filesystem::temp_directory_path() / "sagomi_misura.dxf";
    const StatoUscita prima;
    for (auto _ : state) {
        std::int16_t n = 0;
        DxfApre(file, n);
        s.PlottaSezione(nullptr, "frmDoppioT", dispositivoDxf);
        DxfChiude();
    }
    std::filesystem::remove(file);
}
BENCHMARK(SezioneInDxf)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
