#include "geometry/ForoSezione.h"

#include <array>
#include <cstddef>
#include <string>

#include "frame/Messaggi.h"
#include "geometry/LineeGeometria.h"

namespace sagomi {

namespace {

constexpr double mezzoLegamento = 0.01; ///< mm; half the thread of web that holds the outline together

/// Inserts the four points of a notch after vertex s (from 1).
void Inserisce(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, int s,
               const std::array<double, 4>& xN, const std::array<double, 4>& yN) {
    x.insert(x.begin() + s, xN.begin(), xN.end());
    y.insert(y.begin() + s, yN.begin(), yN.end());
    n = static_cast<std::int16_t>(n + 4);
}

} // namespace

void ForoSezione(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, double y0, double H,
                 std::string_view tipo) {
    const auto vertici = static_cast<std::size_t>(n > 0 ? n : 0);
    x.resize(vertici);
    y.resize(vertici);
    static thread_local std::vector<double> xI; // kept: a section has several outlines
    static thread_local std::vector<std::int16_t> iLato;
    AttraversamentiLivello(x, y, n, y0, xI, iLato);
    if (xI.size() < 2)
        return;
    const double faccia = xI[0];
    const double cima = y0 + H;
    Inserisce(x, y, n, iLato[0], {faccia, mezzoLegamento, mezzoLegamento, faccia}, {y0, y0, cima, cima});
    if (tipo == "SagomiU")
        return;
    if (tipo != "DoppioT") {
        Avvisa("tipo di sagomo non previsto: " + std::string(tipo));
        return;
    }
    Inserisce(x, y, n, iLato[1] + 4, {-faccia, -mezzoLegamento, -mezzoLegamento, -faccia},
              {cima, cima, y0, y0});
}

} // namespace sagomi
