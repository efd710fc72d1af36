#include "sections/FibraInferiore.h"

#include <algorithm>

#include "frame/GeneraleSagomi.h"
#include "sections/PassiSezione.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

// ENV 1993-1-1 5.4.5.2 (1).
std::optional<double> McyRdInferiore(const SezioneDoppioT& s) {
    if (!s.SaldataAsimm)
        return {};
    if (s.ClasseFlessioneY == 3 && s.WelyInf > 0 && s.WelyInf < s.Wely)
        return s.WelyInf * s.fy / GammaM0;
    if (s.ClasseFlessioneY == 4 && s.SezioneWy4 && s.SezioneWy4->WxInferiore > 0 &&
        s.SezioneWy4->WxInferiore < s.WyEff)
        return s.SezioneWy4->WxInferiore * s.fy / GammaM1;
    return {};
}

// ENV 1993-1-1 5.4.6 (1).
std::optional<double> VplzRdInferiore(const SezioneDoppioT& s) {
    if (!s.SaldataAsimm || s.ErroreDatiDatabase)
        return {};
    const double V = ResistenzaTaglio(s.b * s.tf + s.bAlaInf * s.tAlaInf, s.fy);
    return V < s.VplzRd ? std::optional(V) : std::nullopt;
}

double QuotaElastica(const SezioneDoppioT& s) {
    if (!s.SaldataAsimm || !(s.WelyInf > 0))
        return 1;
    double W = std::min<double>(s.Wely, s.WelyInf);
    if (s.ClasseFlessioneY == 4 && s.SezioneWy4 && s.SezioneWy4->WxInferiore > 0)
        W = std::min(W, s.SezioneWy4->WxInferiore);
    return W / s.Wely;
}

double QuotaMcyRd(const SezioneDoppioT& s) {
    const auto M = McyRdInferiore(s);
    return M ? *M / s.McyRd : 1;
}

} // namespace sagomi
