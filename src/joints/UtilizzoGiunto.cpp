#include "joints/UtilizzoGiunto.h"

#include <cmath>

#include "joints/Giunto.h"

namespace sagomi {

namespace {

/// A resistance and the force that it stands against at Mj,Rd [kN].
struct Coppia {
    double forza = 0, resistenza = 0;
};

/// What all rows pass through.
Coppia Comune(const Giunto& g, std::string_view controllo) {
    const double tutte = g.FtRd_EffInf + (g.nf == 2 ? double(g.FtRd_EffSup) : 0.0);
    if (controllo == "txtF1")
        return {tutte, g.Beta > 0 ? double(g.VplRd_Pannello_c) : 0};
    if (controllo == "txtF2")
        return {tutte, g.ConIrrigidimenti() ? g.FcRd_AnimaIrrigidita_c : g.FcRd_Anima_c};
    if (controllo == "txtF3")
        return {tutte, g.ConIrrigidimenti() ? 0.0 : double(g.NbRd_Anima_c)};
    if (controllo == "txtF5")
        return {tutte, g.FtRd_Anima_c};
    if (controllo == "txtF4")
        return {std::max(g.FtRd_EffInf, g.nf == 2 ? g.FtRd_EffSup : Singolo(0)), 2 * g.Bt_Rd()};
    return {};
}

Coppia DiFila(const Giunto& g, std::string_view controllo) {
    const double interna = g.FtRd_EffInf;
    const double esterna = g.nf == 2 ? double(g.FtRd_EffSup) : 0.0;
    if (controllo == (g.nf == 2 ? "txtF6_0" : "txtF6"))
        return {interna, g.nf == 2 && g.Irrigidimenti != "Si" ? g.Ftrd_FilaInfRid_c : g.Ftrd_FilaInf_c};
    if (controllo == (g.nf == 2 ? "txtF7_0" : "txtF7"))
        return {interna, g.FtRd_FilaInf_f};
    if (controllo == "txtF8")
        return {interna, g.FtRd_Anima_t};
    if (controllo == "txtF6_1")
        return {esterna, g.Ftrd_FilaSup_c};
    if (controllo == "txtF7_1")
        return {esterna, g.FtRd_FilaSup_f};
    if (controllo == "txtFmin0")
        return {interna, interna};
    if (controllo == "txtFmin1")
        return {esterna, esterna};
    return {};
}

} // namespace

std::optional<double> Utilizzo(const Giunto& g, std::string_view controllo) {
    if (!g.Acquisito || !g.Trave || !(g.MplRdGIUNTO > 0))
        return {};
    Coppia c = Comune(g, controllo);
    if (c.resistenza == 0)
        c = DiFila(g, controllo);
    if (!(c.resistenza > 0))
        return {};
    return c.forza / c.resistenza * std::abs(g.Trave->Mysd) / g.MplRdGIUNTO;
}

} // namespace sagomi
