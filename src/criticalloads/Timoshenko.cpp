#include "criticalloads/Timoshenko.h"

#include <array>
#include <cmath>

#include "frame/Messaggi.h"
#include "geometry/Matematica.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

constexpr int nRighe = 14;
using Colonna = std::array<float, nRighe>;

// Timoshenko and Gere, tables 6-3 (cantilever, end load), 6-4 and 6-5 (simply supported beam).
constexpr Colonna ascisseMensola = {0.1F, 1, 2, 3, 4, 6, 8, 10, 12, 14, 16, 24, 32, 40};
constexpr Colonna gammaMensola = {44.3F, 15.7F, 12.2F, 10.7F, 9.76F, 8.69F, 8.03F,
                                  7.58F, 7.2F,  6.96F, 6.73F, 6.19F, 5.87F, 5.64F};

constexpr Colonna ascisseAppoggiata = {0.4F, 4, 8, 16, 24, 32, 48, 64, 80, 96, 160, 240, 320, 400};
constexpr std::array<Colonna, 3> gammaConcentrato = {
    {{51.5F, 20.1F, 16.9F, 15.4F, 15.0F, 14.9F, 14.8F, 15, 15, 15.1F, 15.3F, 15.5F, 15.6F, 15.8F},
     {86.4F, 31.9F, 25.6F, 21.8F, 20.3F, 19.6F, 18.8F, 18.3F, 18.1F, 17.9F, 17.5F, 17.4F, 17.2F, 17.2F},
     {147, 50, 38.2F, 30.3F, 27.2F, 25.4F, 23.5F, 22.4F, 21.7F, 21.1F, 20, 19.3F, 19, 18.7F}}};
constexpr std::array<Colonna, 3> gammaDistribuito = {
    {{92.9F, 36.3F, 30.4F, 27.5F, 26.6F, 26.1F, 25.9F, 25.9F, 25.8F, 26, 26.4F, 26.5F, 26.6F, 26.7F},
     {143, 53, 42.6F, 36.3F, 33.8F, 32.6F, 31.5F, 30.5F, 30.1F, 29.4F, 29, 28.8F, 28.6F, 28.6F},
     {223, 77.4F, 59.6F, 48, 43.6F, 40.5F, 37.8F, 36.4F, 35.1F, 33.3F, 32.1F, 31.3F, 31, 30.7F}}};

void Riempie(std::vector<double>& v, const Colonna& colonna) { v.assign(colonna.begin(), colonna.end()); }

void RiempieQuota(std::vector<double>& v, const std::array<Colonna, 3>& quote, std::int16_t QuotaCarico) {
    if (QuotaCarico >= quotaEstradosso && QuotaCarico <= quotaIntradosso)
        Riempie(v, quote[static_cast<std::size_t>(QuotaCarico)]);
}

/// Straight line through the rows around x; the first two below the table, the last two at its end.
double Letta(const std::vector<double>& ascisse, const std::vector<double>& ordinate, double x) {
    int i = 1;
    while (i < nRighe && ascisse[static_cast<std::size_t>(i)] <= x)
        ++i;
    return yInterpolaTabella(i, ascisse, ordinate, x).value_or(std::nan(""));
}

/// gamma2 into the load.
double Carico(double gamma2, double L, double E, double Iz, double C) {
    return gamma2 * (std::sqrt(Iz * E * C) / (L * L));
}

} // namespace

// Theory of Elastic Stability, chapter 6: the rules below with their tables and equations.
Singolo Timoshenko::Rapporto(const Singolo& L, const Singolo& E, const Singolo& G, const Singolo& /*Iz*/,
                             const Singolo& IT) {
    return L * L * G * IT / E;
}

// Table 6-3; above it the asymptote of the cantilever.
Singolo Timoshenko::Gamma2Mens(const Singolo& L, const Singolo& E, const Singolo& G, const Singolo& Iz,
                               const Singolo& IT, const Singolo& Iw) {
    const Singolo R = Rapporto(L, E, G, Iz, IT);
    if (R > 40 * Iw)
        return 4.013 / std::pow(1 - std::sqrt(Iw / R), 2);
    std::vector<double> ascisse;
    std::vector<double> ordinate;
    TabellaMensola(ascisse, ordinate);
    return Letta(ascisse, ordinate, R / Iw);
}

// Tables 6-4 and 6-5.
Singolo Timoshenko::Gamma2App(const Singolo& L, const Singolo& E, const Singolo& G, const Singolo& Iz,
                              const Singolo& IT, const Singolo& Iw, std::int16_t TipoCarico,
                              std::int16_t QuotaCarico) {
    const Singolo R = Rapporto(L, E, G, Iz, IT);
    std::vector<double> ascisse;
    std::vector<double> ordinate(nRighe);
    TabellaAppoggiata(ascisse, ordinate, TipoCarico, QuotaCarico);
    if (R > 400 * Iw) {
        Avvisa("Rapporto L^2C/C1 > 400");
        return ordinate.back();
    }
    return Letta(ascisse, ordinate, R / Iw);
}

double Timoshenko::PcrMens(const Singolo& L, const Singolo& E, const Singolo& G, const Singolo& Iz,
                           const Singolo& IT, const Singolo& Iw, std::int16_t TipoCarico,
                           std::int16_t QuotaCarico, bool NoIw) {
    const double C = IT * G;
    const Singolo gamma2 =
        NoIw ? Gamma2MensNoIw(L, E, Iz, C, TipoCarico, QuotaCarico) : Gamma2Mens(L, E, G, Iz, IT, Iw);
    return Carico(gamma2, L, E, Iz, C);
}

double Timoshenko::PcrApp(const Singolo& L, const Singolo& E, const Singolo& G, const Singolo& Iz,
                          const Singolo& IT, const Singolo& Iw, std::int16_t TipoCarico,
                          std::int16_t QuotaCarico, bool NoIw) {
    const double C = IT * G;
    const Singolo gamma2 = NoIw ? Gamma2AppNoIw(L, E, Iz, C, TipoCarico, QuotaCarico)
                                : Gamma2App(L, E, G, Iz, IT, Iw, TipoCarico, QuotaCarico);
    return Carico(gamma2, L, E, Iz, C);
}

// Narrow rectangular cantilever, the load off the centroid by the first-order correction.
Singolo Timoshenko::Gamma2MensNoIw(const Singolo& L, const Singolo& E, const Singolo& Iz, double C,
                                   std::int16_t TipoCarico, std::int16_t QuotaCarico) {
    if (TipoCarico == caricoConcentrato)
        return 4.013 * (1 - a_QuotaCarico(QuotaCarico) / L * std::sqrt(E * Iz / C));
    if (QuotaCarico != quotaBaricentro)
        Avvisa("Solo carico baricentrico");
    return 12.85;
}

// Narrow rectangular beam on two supports, the same.
Singolo Timoshenko::Gamma2AppNoIw(const Singolo& L, const Singolo& E, const Singolo& Iz, double C,
                                  std::int16_t TipoCarico, std::int16_t QuotaCarico) {
    if (TipoCarico == caricoConcentrato)
        return 16.94 * (1 - 1.74 * (a_QuotaCarico(QuotaCarico) / L) * std::sqrt(E * Iz / C));
    if (QuotaCarico == quotaEstradosso)
        return 26.4;
    return QuotaCarico == quotaBaricentro ? 28.3 : 30.4;
}

Singolo Timoshenko::a_QuotaCarico(std::int16_t QuotaCarico) {
    if (QuotaCarico == quotaBaricentro)
        return 0;
    Singolo a = 0;
    SullaSezioneInUso(
        [&](const auto& section) { a = (QuotaCarico == quotaEstradosso ? 0.5 : -0.5) * section.h; });
    return a;
}

void Timoshenko::TabellaMensola(std::vector<double>& ascisse, std::vector<double>& ordinate) {
    Riempie(ascisse, ascisseMensola);
    Riempie(ordinate, gammaMensola);
}

void Timoshenko::TabellaAppoggiata(std::vector<double>& ascisse, std::vector<double>& ordinate,
                                   std::int16_t TipoCarico, std::int16_t QuotaCarico) {
    Riempie(ascisse, ascisseAppoggiata);
    if (TipoCarico == caricoDistribuito)
        TabellaAppoggiata1(ordinate, QuotaCarico);
    else
        RiempieQuota(ordinate, gammaConcentrato, QuotaCarico);
}

void Timoshenko::TabellaAppoggiata1(std::vector<double>& ordinate, std::int16_t QuotaCarico) {
    RiempieQuota(ordinate, gammaDistribuito, QuotaCarico);
}

bool Timoshenko::LunghezzaValida() const {
    if (L > 0)
        return true;
    Avvisa("L deve essere > 0", {}, Icona::Stop);
    return false;
}

std::optional<double> Timoshenko::McrAppoggiata(std::int16_t TipoCarico, std::int16_t QuotaCarico) const {
    if (!LunghezzaValida())
        return std::nullopt;
    const double P = PcrApp(L, E, G, Iz, IT, Iw, TipoCarico, QuotaCarico, NoIw);
    return TipoCarico == caricoConcentrato ? P * L / 4 : P * L / 8;
}

std::optional<double> Timoshenko::McrMensola(std::int16_t TipoCarico, std::int16_t QuotaCarico) const {
    if (!LunghezzaValida())
        return std::nullopt;
    const double P = PcrMens(L, E, G, Iz, IT, Iw, TipoCarico, QuotaCarico, NoIw);
    return TipoCarico == caricoDistribuito ? P * L / 2 : P * L;
}

} // namespace sagomi
