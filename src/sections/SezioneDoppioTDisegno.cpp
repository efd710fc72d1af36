#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "drawing/Quote.h"
#include "frame/Numeri.h"
#include "sections/DisegnoQuotato.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

/// Sections built of plates: their r is the leg of the fillet, not the radius of a rolled root.
bool DiLamiere(const SezioneDoppioT& s) {
    static constexpr std::array<std::string_view, 4> famiglie{"HSH", "ISE", "HSA", "HSL"};
    return s.Saldata || std::any_of(famiglie.begin(), famiglie.end(),
                                    [&](std::string_view f) { return s.Designation.starts_with(f); });
}

Singolo Raccordo(const SezioneDoppioT& s) { return DiLamiere(s) ? s.r : s.r1; }

std::vector<std::string> Righe(const SezioneDoppioT& s) {
    const std::string r = RigaDato("r", Raccordo(s));
    if (s.SaldataAsimm)
        return {RigaDato("h", s.h),
                RigaDato("b1", s.b),
                RigaDato("b2", s.bAlaInf),
                RigaDato("tw", s.tw),
                RigaDato("tf1", s.tf),
                RigaDato("tf2", s.tAlaInf),
                r};
    return {RigaDato("h", s.h), RigaDato("b", s.b), RigaDato("tw", s.tw), RigaDato("tf", s.tf), r};
}

/// A leader into the root at the upper left.
void QuotaRaccordo(const SezioneDoppioT& s, const Quote& quote) {
    const double a = quote.Altezza();
    const double dentro = 0.3 * Raccordo(s);
    const double x = -s.tw / 2 - dentro;
    const double y = s.h - s.tf - dentro;
    quote.Richiamo(x, y, x - 1.5 * a, y - 2 * a, RigaDato("r", Raccordo(s)));
}

void Quotatura(const SezioneDoppioT& s, const Quote& quote, const PezzoQuotato::Riquadro& riquadro) {
    const auto [xMin, xMax, yMin, yMax] = riquadro;
    const double a = quote.Altezza();
    const double bInf = s.SaldataAsimm ? s.bAlaInf : s.b;
    quote.Verticale({bInf / 2, yMin}, {s.b / 2, yMax}, xMax + quotaEsterna * a, TestoPiano(s.h));
    quote.Orizzontale(-bInf / 2, bInf / 2, yMin, yMin - quotaEsterna * a, TestoPiano(Singolo(bInf)));
    const double xSpessore = xMin - quotaSpessore * a;
    // The thickness of a tapered flange counts at a quarter of its width.
    const double xTf = !DiLamiere(s) && s.r2 > 0 ? -s.b / 4 : -s.b / 2;
    quote.SpessoreVerticale({xTf, yMax - s.tf}, {-s.b / 2, yMax}, xSpessore, TestoPiano(s.tf));
    quote.SpessoreOrizzontale(-s.tw / 2, s.tw / 2, altezzaSpessore * s.h, TestoPiano(s.tw));
    if (s.SaldataAsimm) {
        quote.Orizzontale(-s.b / 2, s.b / 2, yMax, yMax + quotaOltreAsse * a, TestoPiano(s.b));
        quote.SpessoreVerticale({-bInf / 2, yMin}, {-bInf / 2, yMin + s.tAlaInf}, xSpessore,
                                TestoPiano(s.tAlaInf));
    }
    if (Raccordo(s) > 0)
        QuotaRaccordo(s, quote);
}

} // namespace

void SezioneDoppioT::PlottaSezione(Superficie* oggetto, std::string_view maschera,
                                   std::string_view dispositivo) const {
    PezzoQuotato pezzo = PezzoDi(*this, Righe(*this));
    pezzo.efficace = EfficaceChiesto(*this, maschera);
    if (SaldataAsimm)
        pezzo.sopra = quotaOltreAsse + 2; // the width of the upper flange stands there
    pezzo.quotatura = [this](const Quote& quote, const PezzoQuotato::Riquadro& riquadro) {
        Quotatura(*this, quote, riquadro);
    };
    DisegnaQuotato(pezzo, oggetto, dispositivo);
}

} // namespace sagomi
