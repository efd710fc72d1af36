// Elastic check with the modular ratio n; the concrete reacts in compression only.

#include <cmath>

#include "composite/AcciaioCls.h"
#include "composite/ParteReagente.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "geometry/Matematica.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

double AcciaioCls::yNeutroElasticoSezioneComposta() {
    double x1 = 0;
    double x2 = Sezione->h + hc;
    return ZeroFunzione(*this, x1, x2, TolleranzaNeutro());
}

double AcciaioCls::EquazioneElastica(double y) {
    const ParteReagente acciaio(ContornoAcciaio());
    const double S = acciaio.A * (acciaio.yG - y) + As * (yArmatura - y);
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    Soletta->DividiY(y, sopra, sotto);
    const bool positivo = TipoVerifica == metodoNPositivo;
    const bool attraversata = sopra && sotto;
    if (!attraversata && !positivo)
        return S;
    const ParteReagente cls(!attraversata ? Soletta : positivo ? sopra : sotto);
    return S + cls.A * (cls.yG - y) / CoeffOmogeneizzazione;
}

double AcciaioCls::MomInerziaSezioneComposta(double y) const {
    const ParteReagente acciaio(ContornoAcciaio());
    const ParteReagente cls(ClsCompresso);
    const auto trasporto = [y](const ParteReagente& p) { return p.I + p.A * (y - p.yG) * (y - p.yG); };
    return trasporto(acciaio) + As * (y - yArmatura) * (y - yArmatura) +
           trasporto(cls) / CoeffOmogeneizzazione;
}

void AcciaioCls::DivideParti() {
    const bool positivo = TipoVerifica == metodoNPositivo;
    ContornoAcciaio()->DividiY(yNeutro, positivo ? AcciaioCompresso : AcciaioTeso,
                               positivo ? AcciaioTeso : AcciaioCompresso);
    Soletta->DividiY(yNeutro, positivo ? ClsCompresso : ClsTeso, positivo ? ClsTeso : ClsCompresso);
}

void AcciaioCls::SigmaCalcola() {
    const double Ht = Sommita();
    const double n = CoeffOmogeneizzazione;
    if (!(n > 0)) {
        Avvisa("Es/Ec deve essere >0", {}, Icona::Stop);
        return;
    }
    yNeutro = yNeutroElasticoSezioneComposta();
    DivideParti();
    Jid = MomInerziaSezioneComposta(yNeutro);
    const double z = hc < 0 && TipoVerifica != metodoNPositivo ? -((yNeutro - Ht) - hc) : Ht - yNeutro;
    SigmaCls = -Msd * z / Jid / n;
    SigmaInf = Msd * yNeutro / Jid;
    SigmaSup = (yNeutro - Sezione->h) * Msd / Jid;
    SigmaArm = (yNeutro - yArmatura) * Msd / Jid;
    const ParteReagente cls(ClsCompresso);
    Ss = (cls.yG - yNeutro) * cls.A / n + (yArmatura - yNeutro) * As;
    Vl = Ss * Msd / Jid;
    Ss = std::abs(Ss);
    CompletaParti();
}

std::int16_t AcciaioCls::ColoreSigma(double valore) { return valore > 0 ? 9 : 12; }

} // namespace sagomi
