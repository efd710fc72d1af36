#include <string>
#include <vector>

#include "drawing/Quote.h"
#include "frame/Numeri.h"
#include "sections/DisegnoQuotato.h"
#include "sections/SezioneSagomoU.h"

namespace sagomi {

namespace {

std::vector<std::string> Righe(const SezioneSagomoU& s) {
    std::vector<std::string> righe{RigaDato("h", s.h), RigaDato("b", s.b), RigaDato("tw", s.tw),
                                   RigaDato("tf", s.tf), RigaDato("r", s.r1)};
    if (s.Doppi)
        righe.push_back(RigaDato("d", s.dDoppi));
    return righe;
}

/// The outlines are where Coordinate puts them, but for that of bending about z-z, which counts from the
/// gross centroid.
ContornoEfficace Efficace(const SezioneSagomoU& s, std::string_view maschera) {
    ContornoEfficace efficace = EfficaceChiesto(s, maschera);
    if (efficace.sezione != nullptr && efficace.sezione == s.SezioneWz4.get())
        efficace.dx = s.SezioneGenericaCorrente->xG;
    return efficace;
}

/// Beside the flange; between two channels whose tips are together there is room for a leader alone.
void QuotaAla(const SezioneSagomoU& s, const Quote& quote, const PezzoQuotato::Riquadro& riquadro) {
    const double a = quote.Altezza();
    const double yMax = riquadro[3];
    if (s.Doppi && s.DoppiCorto) {
        const double x = 0.6 * s.b;
        quote.Richiamo(x, yMax - s.tf / 2, x - a, yMax - s.tf - 2.5 * a, RigaDato("tf", s.tf));
        return;
    }
    const double xTf = s.pendenza > 0 ? s.b / 2 : double(s.b); // a tapered flange has tf at its middle
    quote.SpessoreVerticale({xTf, yMax - s.tf}, {s.b, yMax}, riquadro[1] + quotaSpessore * a,
                            TestoPiano(s.tf));
}

void QuotaDistanza(const SezioneSagomoU& s, const Quote& quote, double yMax) {
    const double x1 = s.DoppiCorto ? double(s.b) : -s.dDoppi;
    quote.Orizzontale(x1, x1 + s.dDoppi, yMax, yMax + quotaOltreAsse * quote.Altezza(), TestoPiano(s.dDoppi));
}

void Quotatura(const SezioneSagomoU& s, const Quote& quote, const PezzoQuotato::Riquadro& riquadro) {
    const auto [xMin, xMax, yMin, yMax] = riquadro;
    const double a = quote.Altezza();
    quote.Verticale({xMin, yMin}, {xMin, yMax}, xMin - quotaOltreNome * a, TestoPiano(s.h));
    quote.Orizzontale(0, s.b, yMin, yMin - quotaEsterna * a, TestoPiano(s.b));
    quote.SpessoreOrizzontale(0, s.tw, altezzaSpessore * s.h, TestoPiano(s.tw));
    QuotaAla(s, quote, riquadro);
    if (s.Doppi && s.dDoppi > 0)
        QuotaDistanza(s, quote, yMax);
    if (s.r1 > 0) {
        const double x = s.tw + 0.3 * s.r1;
        const double y = s.tf2() + 0.3 * s.r1;
        quote.Richiamo(x, y, x + 1.5 * a, y + 2 * a, RigaDato("r", s.r1));
    }
}

} // namespace

void SezioneSagomoU::PlottaSezione(Superficie* oggetto, std::string_view maschera,
                                   std::string_view dispositivo) const {
    PezzoQuotato pezzo = PezzoDi(*this, Righe(*this));
    pezzo.efficace = Efficace(*this, maschera);
    pezzo.quotatura = [this](const Quote& quote, const PezzoQuotato::Riquadro& riquadro) {
        Quotatura(*this, quote, riquadro);
    };
    DisegnaQuotato(pezzo, oggetto, dispositivo);
}

} // namespace sagomi
