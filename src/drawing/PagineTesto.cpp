#include "drawing/PagineTesto.h"

#include <algorithm>
#include <string_view>

#include "drawing/Superficie.h"

namespace sagomi {

namespace {

constexpr double margine = 10;     ///< inside of what can be printed [mm]
constexpr double interlinea = 1.1; ///< in heights of a line

bool InizioCarattere(char ch) { return (static_cast<unsigned char>(ch) & 0xC0U) != 0x80U; }

/// Bytes of the longest beginning, of whole characters and at least one, that fits.
std::size_t Entra(const Superficie& foglio, std::string_view riga, double larghezza) {
    if (foglio.TextWidth(riga) <= larghezza)
        return riga.size();
    std::size_t entra = 0;
    for (std::size_t i = 1; i <= riga.size(); ++i) {
        if (i < riga.size() && !InizioCarattere(riga[i]))
            continue;
        if (entra > 0 && foglio.TextWidth(riga.substr(0, i)) > larghezza)
            break;
        entra = i;
    }
    return entra;
}

} // namespace

std::vector<std::string> PagineTesto::Spezzate(const Superficie& foglio, double larghezza) const {
    std::vector<std::string> spezzate;
    for (std::string_view riga : righe_) {
        do {
            const std::size_t entra = Entra(foglio, riga, larghezza);
            spezzate.emplace_back(riga.substr(0, entra));
            riga.remove_prefix(entra);
        } while (!riga.empty());
    }
    return spezzate;
}

bool PagineTesto::Pagina(Superficie& foglio, int numero) {
    foglio.Scale();
    foglio.FontName = carattereElenchi;
    foglio.FontSize = corpo_;
    if (numero == 0) {
        sulFoglio_ = Spezzate(foglio, foglio.ScaleWidth - 2 * margine);
        prossima_ = 0;
    }
    const RigaTesto riga = foglio.TextLine();
    const double passo = interlinea * (riga.sopra + riga.sotto);
    const auto quante = static_cast<std::size_t>(std::max(1.0, (foglio.ScaleHeight - 2 * margine) / passo));
    const std::size_t ultima = std::min(sulFoglio_.size(), prossima_ + quante);
    double y = margine + riga.sopra;
    for (; prossima_ < ultima; ++prossima_, y += passo) {
        foglio.CurrentX = margine;
        foglio.CurrentY = y;
        foglio.Print(sulFoglio_[prossima_]);
    }
    return prossima_ < sulFoglio_.size();
}

} // namespace sagomi
