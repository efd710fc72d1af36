#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "choice/Scelta.h"
#include "drawing/Disegno.h"
#include "drawing/Quadro.h"

/// The chart of a choice: weight against utilisation, a mark for each section.
namespace sagomi {

/// A section in the chart.
struct PuntoGrafico {
    double g = 0, u = 0;        ///< weight [kg/m] and utilisation [-]
    std::uint16_t famiglia = 0; ///< place among the families
    bool verificato = false;
    std::uint32_t posto = 0; ///< of its row
};

/// What the chart shows.
struct DatiGrafico {
    std::vector<PuntoGrafico> punti;
    std::vector<std::string> famiglie;  ///< those that have a mark
    std::vector<std::uint32_t> fronte;  ///< of `punti`: each utilised less than all lighter ones that hold
    std::vector<std::uint32_t> leggeri; ///< of `punti`: the lightest that holds of each family
    std::optional<std::uint32_t>
        scelto; ///< of `punti`: the row in hand; outside of the axes it is shown at their edge
    std::string nomeScelto;
    std::string avviso; ///< what is written between the axes where there are no marks
};

/// The points of rows, their front and the lightest of each family. Rows without a verdict have no
/// mark; where nothing acts, that is said.
DatiGrafico DatiGraficoDi(std::span<const std::uint32_t> posti, std::span<const RigaScelta> righe,
                          std::span<const SagomoInGara> sagomi);

/// The sections that hold, each utilised less than all lighter ones: places in `punti`, by weight.
std::vector<std::uint32_t> FronteLeggeri(std::span<const PuntoGrafico> punti);

/// Where the chart lies on its sheet, and its scales.
struct ScalaGrafico {
    CampoQuadro campo;                 ///< between the axes
    double gMassimo = 1, uMassimo = 1; ///< at their ends
    double gPasso = 1, uPasso = 1;     ///< between two values that are written

    [[nodiscard]] PuntoQuadro In(double g, double u) const {
        return {campo.sinistra + g / gMassimo * campo.larghezza,
                campo.Basso() - u / uMassimo * campo.altezza};
    }
    [[nodiscard]] bool Dentro(const PuntoGrafico& p) const { return p.g <= gMassimo && p.u <= uMassimo; }
};

/// @param tutto  the sheet
/// @param riga   height of a line of text on it
ScalaGrafico ScalaDi(const DatiGrafico& dati, const CampoQuadro& tutto, double riga);

/// The mark that lies nearest to a point of the sheet, not farther than half a line of text beside its edge.
/// @return its place in `punti`
std::optional<std::uint32_t> PuntoVicino(const DatiGrafico& dati, const ScalaGrafico& scala, PuntoQuadro dove,
                                         double riga);

/// The chart; without data its axes alone.
Disegno DisegnoGrafico(std::shared_ptr<const DatiGrafico> dati);

} // namespace sagomi
