#include <string>
#include <vector>

#include "drawing/Quote.h"
#include "frame/Numeri.h"
#include "sections/DisegnoQuotato.h"
#include "sections/SezioneSagomoL.h"

namespace sagomi {

namespace {

constexpr double altezzaSpessoreLato =
    0.6; ///< of the thickness of the upright leg, in heights of the section

std::vector<std::string> Righe(const SezioneSagomoL& s) {
    std::vector<std::string> righe{RigaDato("h", s.h), RigaDato("b", s.b), RigaDato("t", s.t),
                                   RigaDato("r1", s.r1), RigaDato("r2", s.r2)};
    if (s.Doppi)
        righe.push_back(RigaDato("d", s.dDoppi));
    return righe;
}

ContornoEfficace Efficace(const SezioneSagomoL& s, std::string_view maschera) {
    if (maschera != "FrmClasseSagomiL" || s.ClasseCompressione != 4)
        return {};
    return {s.SezioneComp4.get(), "Aeff Comp."};
}

void QuotaDistanza(const SezioneSagomoL& s, const Quote& quote, const PezzoQuotato::Riquadro& riquadro) {
    const double a = quote.Altezza();
    const std::string testo = TestoPiano(s.dDoppi);
    if (s.DoppiCorto)
        quote.SpessoreVerticale({s.b, -s.dDoppi}, {s.b, 0}, riquadro[1] + quotaSpessore * a, testo);
    else
        quote.Orizzontale(-s.dDoppi, 0, riquadro[3], riquadro[3] + quotaOltreAsse * a, testo);
}

void Quotatura(const SezioneSagomoL& s, const Quote& quote, const PezzoQuotato::Riquadro& riquadro) {
    const double xMin = riquadro[0];
    const double yMin = riquadro[2];
    const double a = quote.Altezza();
    quote.Verticale({xMin, 0}, {xMin, s.h}, xMin - quotaOltreNome * a, TestoPiano(s.h));
    quote.Orizzontale(0, s.b, yMin, yMin - quotaEsterna * a, TestoPiano(s.b));
    quote.SpessoreOrizzontale(0, s.t, altezzaSpessoreLato * s.h, TestoPiano(s.t));
    if (s.Doppi && s.dDoppi > 0)
        QuotaDistanza(s, quote, riquadro);
    if (s.r1 > 0) {
        const double q = s.t + 0.3 * s.r1;
        quote.Richiamo(q, q, q + 1.5 * a, q + 2 * a, RigaDato("r1", s.r1));
    }
}

} // namespace

void SezioneSagomoL::PlottaSezione(Superficie* oggetto, std::string_view maschera,
                                   std::string_view dispositivo) const {
    PezzoQuotato pezzo = PezzoDi(*this, Righe(*this));
    pezzo.efficace = Efficace(*this, maschera);
    pezzo.quotatura = [this](const Quote& quote, const PezzoQuotato::Riquadro& riquadro) {
        Quotatura(*this, quote, riquadro);
    };
    DisegnaQuotato(pezzo, oggetto, dispositivo);
}

} // namespace sagomi
