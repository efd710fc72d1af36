#include "sections/Duttilita.h"

#include <cmath>

#include "sections/Eurocod3.h"
#include "sections/Limiti.h"

namespace sagomi {

// Ordinanza 3274-2003 6.5.3.1.
DuttilitaCalcolata CalcolaDuttilita(const SezioneDuttile& sezione, double N, double Lstar) {
    const SezioneDuttile& z = sezione;
    DuttilitaCalcolata r;
    const double e = std::sqrt(z.fy / E_acciaio);
    r.lamdaF = z.b / 2 / z.tf * e;
    const double dw = z.h - 2 * z.tf;
    const double rho = N / z.area / z.fy;
    const double Aw = z.tw * dw;
    r.dwe = AlPiu(dw / 2 * (1 + rho * z.area / Aw), dw);
    r.lamdaW = r.dwe / z.tw * e;
    r.s = Lstar > 0
              ? 1 / (0.695 + 1.632 * r.lamdaF * r.lamdaF + 0.062 * r.lamdaW * r.lamdaW - 0.602 * z.b / Lstar)
              : sSenzaLuce;
    r.limite = AlPiu(z.fu / z.fy, limiteDuttilita);
    return r;
}

} // namespace sagomi
