#include "composite/DisegnoVivo.h"

#include <algorithm>
#include <memory>
#include <string>

#include "composite/AcciaioCls.h"
#include "composite/VerificaTrave.h"
#include "drawing/Grafica.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/Messaggi.h"
#include "sections/DisegnoSagoma.h"
#include "sections/SezioneInForza.h"

namespace sagomi {

namespace {

/// While one lives, materials are those in force.
class MaterialiInForza {
public:
    explicit MaterialiInForza(const MaterialiTrave& materiali) { materiali.Imposta(); }
    ~MaterialiInForza() { prima_.Imposta(); }
    MaterialiInForza(const MaterialiInForza&) = delete;
    MaterialiInForza& operator=(const MaterialiInForza&) = delete;

private:
    MaterialiTrave prima_;
};

/// A copy with a section of its own, checked in silence; without results where that cannot be.
std::shared_ptr<AcciaioCls> Provata(const AcciaioCls& trave) {
    auto copy = std::make_shared<AcciaioCls>(trave);
    copy->Sezione = std::make_shared<SezioneDoppioT>(*trave.Sezione);
    const MessaggiTaciuti quiet;
    const SezioneInForza own(copy->Sezione);
    if (trave.DatiGrecataAccettabili() && VerificaTrave(*copy).accettati)
        return copy;
    copy->AzzeraRisultati();
    AcciaioCls::InizializzaTrave();
    copy->SolettaOggettoCrea();
    return copy;
}

constexpr const char* nomeVuoto = "Sezione composta";

/// Whether there is a slab that can be drawn.
bool ConSoletta(const AcciaioCls& t) {
    const bool deck = t.TipoSoletta != solettaPiena;
    return t.beff > 0 && t.hc != 0 &&
           !(deck && (t.hc <= t.ha || (t.iNervature > 0 && t.iNervature < t.bb + t.bs)));
}

Disegno SoloAcciaio(const AcciaioCls& trave) {
    SezioneDoppioT steel = *trave.Sezione;
    const MessaggiTaciuti quiet;
    steel.InizializzaSezioneAcciaioCls();
    return DisegnoSagoma(SagomaDi(steel));
}

} // namespace

MaterialiTrave::MaterialiTrave() : fck_(fck), fsk_(fsk), n_(CoeffOmogeneizzazione), GammaM0_(GammaM0) {}

void MaterialiTrave::Imposta() const {
    fck = fck_;
    fsk = fsk_;
    CoeffOmogeneizzazione = n_;
    GammaM0 = GammaM0_;
}

void MaterialiTrave::RimetteImpossibili() const {
    if (!limitiResistenza.Comprende(fck))
        fck = fck_;
    if (!limitiResistenza.Comprende(fsk))
        fsk = fsk_;
    if (!limitiRapporto.Comprende(CoeffOmogeneizzazione))
        CoeffOmogeneizzazione = n_;
}

bool SezionePossibile(const AcciaioCls& trave) {
    if (!trave.Sezione)
        return false;
    const SezioneDoppioT& s = *trave.Sezione;
    const double tInf = s.SaldataAsimm ? s.tAlaInf : s.tf;
    const double bInf = s.SaldataAsimm ? s.bAlaInf : s.b;
    return s.fy > 0.001 && std::min({double(s.h), double(s.b), double(s.tw), double(s.tf), tInf, bInf}) > 0 &&
           s.tw < std::min<double>(s.b, bInf) && s.tf + tInf + 2 * s.r < s.h &&
           std::min({double(s.r), double(s.r1), double(s.r2)}) >= 0;
}

Disegno DisegnoVivo(const AcciaioCls& trave) {
    Disegno drawing{nomeVuoto, {}, {560, 460}, {200, 160}};
    if (!SezionePossibile(trave))
        return drawing;
    drawing.nome = trave.TitoloFunz().empty() ? trave.Sezione->Designation : trave.TitoloFunz();
    if (!ConSoletta(trave))
        drawing.PlottaInOggetto = SoloAcciaio(trave).PlottaInOggetto;
    else
        drawing.PlottaInOggetto = [shown = Provata(trave), materials = MaterialiTrave()](
                                      Superficie* target, std::string_view screen) {
            const MaterialiInForza inForce(materials);
            shown->PlottaAcciaioCls(target, screen, Dispositivo);
        };
    return drawing;
}

} // namespace sagomi
