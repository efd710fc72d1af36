// The whole catalogue checked for one set of forces, against two peers in the same run: the bare initialiser
// on the same sections (what the checks and their verdicts cost beyond it), and the plain formulas of all
// checks on constants that stand in the table, without outlines (the limit). The same rows through the
// screens are in misura_schermo.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "CelleFreexl.h"
#include "choice/Scelta.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

std::vector<SagomoInGara> DoppiT() {
    std::vector<SagomoInGara> some;
    for (SagomoInGara& s : LeggeGara(SAGOMI_BIN).sagomi)
        if (std::holds_alternative<SezioneDoppioT>(s.sezione))
            some.push_back(std::move(s));
    return some;
}

Richiesta Forze() {
    Richiesta r;
    r.TipoAcciaio = NomeAcciaio[3];
    r.fy = fyAcciaio[3];
    r.fu = fuAcciaio[3];
    r.NSd = 250e3;
    r.y.M1 = 60e6;
    r.z.M1 = 5e6;
    r.L0y = 5000;
    r.L0z = 2500;
    return r;
}

void Scelta(benchmark::State& state) {
    ImpostaGamma();
    const std::vector<SagomoInGara> sagomi = DoppiT();
    const Richiesta forze = Forze();
    std::int64_t n = 0;
    for (auto _ : state) {
        std::vector<std::string> messaggi;
        std::vector<RigaScelta> righe = Valuta(sagomi, forze, {}, messaggi);
        OrdinaPerPeso(righe);
        benchmark::DoNotOptimize(righe.data());
        n += static_cast<std::int64_t>(righe.size());
    }
    state.SetItemsProcessed(n);
}
BENCHMARK(Scelta)->Unit(benchmark::kMillisecond);

void SoloInizializzaSezione(benchmark::State& state) {
    ImpostaGamma();
    const std::vector<SagomoInGara> sagomi = DoppiT();
    const Richiesta forze = Forze();
    std::int64_t n = 0;
    for (auto _ : state)
        for (const SagomoInGara& sagomo : sagomi) {
            SezioneDoppioT s = std::get<SezioneDoppioT>(sagomo.sezione);
            s.fy = forze.fy;
            s.NSd = forze.NSd;
            s.L0y = forze.L0y;
            s.L0z = forze.L0z;
            s.InizializzaSezione();
            benchmark::DoNotOptimize(s.NbyRd);
            ++n;
        }
    state.SetItemsProcessed(n);
}
BENCHMARK(SoloInizializzaSezione)->Unit(benchmark::kMillisecond);

/// Constants of a row as the catalogue gives them [mm and its powers].
struct Costanti {
    double A, iy, iz, Wy, Wz, Jz, JT, Jw, h, b, tf, tw;
};

std::vector<Costanti> Tabella() {
    std::vector<Costanti> tabella;
    for (const SagomoInGara& sagomo : DoppiT()) {
        const auto& s = std::get<SezioneDoppioT>(sagomo.sezione);
        tabella.push_back({s.Area, s.iY, s.iZ, s.Wply, s.Wplz, s.Jz, s.JT, s.Jw, s.h, s.b, s.tf, s.tw});
    }
    return tabella;
}

/// Reduction factor, ENV 1993-1-1 5.5.1.2.
double Chi(double lamda, double alfa) {
    const double fi = 0.5 * (1 + alfa * (lamda - 0.2) + lamda * lamda);
    return std::min(1.0, 1 / (fi + std::sqrt(std::max(0.0, fi * fi - lamda * lamda))));
}

/// All three checks in classes 1 and 2: class, resistances, interactions.
double Piana(const Costanti& c, const Richiesta& r) {
    constexpr double E = 210000;
    constexpr double G = 80769;
    constexpr double beta = 1.8; // equivalent uniform moment factor
    const double epsilon = std::sqrt(235 / r.fy);
    const bool compatta = c.b / 2 / c.tf < 10 * epsilon && (c.h - 2 * c.tf) / c.tw < 38 * epsilon;
    const double lamda1 = std::numbers::pi * std::sqrt(E / r.fy);
    const double ly = r.L0y / c.iy / lamda1;
    const double lz = r.L0z / c.iz / lamda1;
    const double chiY = Chi(ly, c.h / c.b > 1.2 ? 0.21 : 0.34);
    const double chiZ = Chi(lz, c.h / c.b > 1.2 ? 0.34 : 0.49);
    const double Npl = c.A * r.fy / GammaM0;
    const double My = c.Wy * r.fy / GammaM0;
    const double Mz = c.Wz * r.fy / GammaM0;
    const double euler = std::numbers::pi * std::numbers::pi * E * c.Jz / (r.L0z * r.L0z);
    const double Mcr = euler * std::sqrt(c.Jw / c.Jz + G * c.JT / euler);
    const double chiLT = Chi(std::sqrt(c.Wy * r.fy / Mcr), 0.21);
    const double n = r.NSd / Npl;
    const auto fattore = [&](double lamda, double chi) {
        const double mu = std::min(0.9, lamda * (2 * beta - 4));
        return std::min(1.5, 1 - mu * r.NSd / (chi * c.A * r.fy));
    };
    const double sezione = std::pow(r.y.M1 / (My * (1 - n)), 2) + std::pow(r.z.M1 / Mz, std::max(1.0, 5 * n));
    const double kz = fattore(lz, chiZ);
    const double membratura = n / std::min(chiY, chiZ) + fattore(ly, chiY) * r.y.M1 / My + kz * r.z.M1 / Mz;
    const double svergolamento = n / chiZ + r.y.M1 / (chiLT * My) + kz * r.z.M1 / Mz;
    return (compatta ? 1 : 2) * std::max({sezione, membratura, svergolamento});
}

void FormulePiane(benchmark::State& state) {
    ImpostaGamma();
    const std::vector<Costanti> tabella = Tabella();
    const Richiesta forze = Forze();
    std::int64_t n = 0;
    for (auto _ : state)
        for (const Costanti& c : tabella) {
            benchmark::DoNotOptimize(Piana(c, forze));
            ++n;
        }
    state.SetItemsProcessed(n);
}
BENCHMARK(FormulePiane)->Unit(benchmark::kMillisecond);

/// What reading the workbook takes, which comes before all of that.
void FreexlIntera(benchmark::State& state) {
    for (auto _ : state)
        CelleFreexl(std::filesystem::path(SAGOMI_BIN) / "Sagomi.xls");
}
BENCHMARK(FreexlIntera)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
