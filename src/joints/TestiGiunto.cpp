#include "joints/TestiGiunto.h"

#include <algorithm>
#include <cmath>

#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "joints/Nodo.h"

namespace sagomi {

namespace {

constexpr double rigido = 1e9; ///< coefficient of a component that does not give way
constexpr std::string_view animaTrave = " dall'anima della trave a trazione";

using Mappa = TestiGiunto::Mappa;

std::string Cifre(const NumeroMostrato& valore) { return FormatoCifre(4, valore); }

std::string Coefficiente(double k) { return k >= rigido ? testoInfinito : Cifre(k); }

void Azioni(Mappa& testi, const SezioneDoppioT& s, bool destra) {
    testi[destra ? "TxtM_Dx" : "TxtM_Sn"] = TestoPiano(s.Mysd);
    testi[destra ? "TxtT_T" : "TxtV_Sn"] = TestoPiano(s.Vsd());
    testi[destra ? "TxtN_Dx" : "TxtN_Sn"] = TestoPiano(s.Nsd());
    testi[destra ? "TxtL_Dx" : "TxtL_Sn"] = TestoPiano(s.lunghezza());
}

void Parametri(Mappa& testi, const Giunto& g) {
    testi["Texttf"] = TestoPiano(Singolo(g.tf));
    testi["Textbf"] = TestoPiano(Singolo(g.bf));
    testi["Textef"] = TestoPiano(Singolo(g.ef));
    testi["Textd2"] = TestoPiano(Singolo(g.d2));
    testi["Texttf_1"] = TestoPiano(Singolo(g.tf_max));
    testi["Textu_1"] = TestoPiano(Singolo(g.u_max));
    testi["TextL"] = TestoPiano(Singolo(g.L_max));
    if (g.nf != 2)
        return;
    testi["Textex"] = TestoPiano(Singolo(g.ex));
    testi["Textdx"] = TestoPiano(Singolo(g.dX));
    testi["Textu"] = TestoPiano(Singolo(g.u));
}

void Bullone(Mappa& testi, const Giunto& g) {
    testi["Textd"] = Cifre(g.Diam);
    testi["Textd0"] = Cifre(g.d0);
    testi["Textdw"] = Cifre(g.rond_d2);
}

void Geometria(Mappa& testi, const Giunto& g) {
    testi["Textlb"] = Cifre(g.lb);
    testi["Textaf"] = Cifre(g.Af);
    testi["Textaw"] = Cifre(g.aw);
    testi["Textec"] = Cifre(g.ec);
    testi["Textmc"] = Cifre(g.mc);
    testi["Textmf"] = Cifre(g.mf);
    testi["Textm1"] = Cifre(g.m2);
    testi["Textw"] = Cifre(g.w);
    testi["Textp"] = Cifre(g.pint);
    testi["Texthf"] = Cifre(g.hf);
    if (g.nf == 2)
        testi["Textm2"] = Cifre(g.mx);
}

void Irrigidimenti(Mappa& testi, const Giunto& g) {
    if (!g.ConIrrigidimenti())
        return;
    testi["Txt_L_Irr_0"] = Cifre(g.Irr_L1);
    testi["Txt_S_Irr"] = Cifre(g.Irr_Spessore);
    testi["Txt_B_Irr"] = Cifre(g.Irr_B);
    testi["Txt_Sal_Irr"] = Cifre(g.Irr_a);
    if (g.Irrigidimenti == "Si")
        testi["Txt_L_Irr_1"] = Cifre(g.Irr_L2);
}

void UnaFila(Mappa& testi, const Giunto& g) {
    testi["txtF6"] = Cifre(g.Ftrd_FilaInf_c);
    testi["txtF7"] = Cifre(g.FtRd_FilaInf_f);
}

void DueFile(Mappa& testi, const Giunto& g) {
    testi["txtF6_0"] = Cifre(g.Ftrd_FilaInf_c);
    testi["txtF6_1"] = Cifre(g.Ftrd_FilaSup_c);
    testi["txtF7_0"] = Cifre(g.FtRd_FilaInf_f);
    testi["txtF7_1"] = Cifre(g.FtRd_FilaSup_f);
    testi["txtFmin1"] = Cifre(g.FtRd_EffSup);
    if (g.Irrigidimenti == "Si")
        return; // each row stands for itself: nothing is redistributed
    testi["txtF6_0Ridistr"] = Cifre(g.Ftrd_FilaInfRid_c);
    testi["txtF6_1Ridistr"] = Cifre(g.Ftrd_FilaSupRid_c);
}

void Resistenze(Mappa& testi, const Giunto& g) {
    testi["txtF1"] = g.Beta > 0 ? Cifre(g.VplRd_Pannello_c) : testoInfinito;
    testi["txtF2"] = Cifre(g.ConIrrigidimenti() ? g.FcRd_AnimaIrrigidita_c : g.FcRd_Anima_c);
    if (!g.ConIrrigidimenti())
        testi["txtF3"] = Cifre(g.NbRd_Anima_c);
    testi["txtF4"] = Cifre(2 * g.Bt_Rd());
    testi["txtF5"] = Cifre(g.FtRd_Anima_c);
    testi["txtF8"] = Cifre(g.FtRd_Anima_t);
    testi["txtFmin0"] = Cifre(g.FtRd_EffInf);
    if (g.nf == 2)
        DueFile(testi, g);
    else
        UnaFila(testi, g);
}

void Coefficienti(Mappa& testi, const Giunto& g) {
    const bool due = g.nf == 2;
    testi["txtK_0"] = Coefficiente(g.k1);
    testi["txtK_1"] = Coefficiente(g.k2);
    testi["txtK_2"] = Coefficiente(g.k4);
    testi["txtK_3"] = Coefficiente(g.k5);
    testi["txtK_4"] = Coefficiente(g.k6);
    testi["txtK_5"] = due ? Coefficiente(g.k6_Estesa) : "";
    testi["txtK_6"] = Coefficiente(g.k3);
    testi["txtmu_0"] = Cifre(g.mu1);
    testi["txtmu_1"] = Cifre(g.mu2);
    testi["txtmu_2"] = Cifre(g.mu4);
    testi["txtmu_3"] = Cifre(g.mu5);
    testi["txtmu_4"] = Cifre(g.mu6);
    testi["txtmu_5"] = due ? Cifre(g.mu6_Estesa) : "";
    testi["txtmu_6"] = Cifre(g.mu3);
    testi["TxtCoef_0"] = Cifre(g.Beta);
    testi["TxtCoef_1"] = Cifre(g.Kwc);
    testi["TxtCoef_2"] = Cifre(g.Kfc);
}

void Rigidezze(Mappa& testi, const Giunto& g, bool luce) {
    testi["TxtSj_0"] = Cifre(g.Sj_MjRd);
    testi["TxtSj_1"] = Cifre(g.Sj_Mela);
    testi["TxtSj_2"] = Cifre(g.Sj_MjSd);
    testi["RigidezzaGiunto1"] = luce ? g.RigidezzaGiunto1 : testoLuceNonData;
    if (!luce)
        return; // the limits are those of another span
    testi["RigidezzaGiunto2"] = g.RigidezzaGiunto2;
    testi["txtLimite_0"] = Cifre(g.LimiteRigido2);
    testi["txtLimite_1"] = Cifre(g.LimiteRigido1);
    testi["txtLimite_2"] = Cifre(g.LimiteCerniera);
}

void Momenti(Mappa& testi, const Giunto& g, double Mb) {
    testi["TxtMjRd"] = Cifre(g.MplRdGIUNTO);
    testi["TxtMel"] = Cifre(g.M_elastico);
    testi["txtMrdTrave"] = Cifre(Nmm_a_kNm(Mb));
    testi["TxtVrd0"] = Cifre(g.Vrd0);
    testi["TxtVrd1"] = Cifre(g.Vrd1);
    testi["ResistenzaGiunto"] = g.ResistenzaGiunto;
}

void Risultati(Mappa& testi, const Giunto& g, const SezioneDoppioT& trave) {
    Geometria(testi, g);
    Irrigidimenti(testi, g);
    Resistenze(testi, g);
    Momenti(testi, g, trave.McyRd);
    Coefficienti(testi, g);
    Rigidezze(testi, g, trave.lunghezza() != 0);
}

bool GovernaUnaComponente(const Giunto& g) {
    return g.TipoMessaggio == 1 || g.ComponenteDebole == animaTrave;
}

std::string_view ComponenteFila(const Giunto& g, const std::string& testo, bool interna) {
    const bool flangia = testo.find("flangia") != std::string::npos;
    if (g.nf == 1)
        return flangia ? "txtF7" : "txtF6";
    if (flangia)
        return interna ? "txtF7_0" : "txtF7_1";
    if (g.Irrigidimenti == "Si" || !interna)
        return interna ? "txtF6_0" : "txtF6_1";
    return "txtF6_0Ridistr";
}

std::string_view ComponenteComune(const std::string& testo) {
    const auto parla = [&](std::string_view parte) { return testo.find(parte) != std::string::npos; };
    if (parla("pannello"))
        return "txtF1";
    if (parla("trave"))
        return "txtF8";
    if (parla("compressione"))
        return "txtF2";
    return parla("instabilità") ? "txtF3" : "txtF5";
}

} // namespace

TestiGiunto::TestiGiunto(const Nodo& nodo, int indice) {
    if (indice < 1 || indice > nodo.NumeroGiunti || indice > nodo.Giunti.n())
        return;
    const auto& giunto = nodo.Giunti[indice].Riferimento();
    if (!giunto)
        return;
    Bullone(testi_, *giunto);
    Parametri(testi_, *giunto);
    if (!giunto->Trave)
        return;
    Azioni(testi_, *giunto->Trave, indice == 1);
    if (giunto->Acquisito)
        Risultati(testi_, *giunto, *giunto->Trave);
}

const std::string& TestiGiunto::operator[](std::string_view controllo) const {
    static const std::string vuoto;
    const auto trovato = testi_.find(controllo);
    return trovato == testi_.end() ? vuoto : trovato->second;
}

std::string TestiGiunto::Valore(std::string_view controllo) const {
    const std::string& testo = (*this)[controllo];
    return testo.starts_with(' ') ? testo.substr(1) : testo;
}

std::string TestoGovernante(const Giunto& g) {
    if (!g.Acquisito)
        return {};
    const std::string inizio = " Il momento resistente del giunto è governato ";
    return GovernaUnaComponente(g) ? inizio + "da : " + g.ComponenteDebole : inizio;
}

VerdettoGiunto Giudica(const Giunto& g) {
    VerdettoGiunto v;
    if (!g.Acquisito || !g.Trave)
        return v;
    const double M = g.Trave->Mysd;
    const double V = std::abs(g.Trave->Vsd());
    v.presente = true;
    v.resiste = std::abs(M) <= g.MplRdGIUNTO; // not of what is no number
    if (!(V <= g.Vrd1))
        v.taglio = "V > Vj,Rd";
    else if (V > g.Vrd0)
        v.notaTaglio = "V > Vj,Rd della sola fila in zona compressa";
    if (v.resiste && !v.taglio.empty())
        v.forma = "solo M";
    if (g.nf == 2 && M < 0)
        v.notaMomento = "M negativo: la fila esterna non conta";
    if (!v.resiste)
        v.notaRigidezza = "Mj,Sd > Mj,Rd";
    return v;
}

std::vector<ComponenteGovernante> ComponentiGovernanti(const Giunto& g) {
    std::vector<ComponenteGovernante> r;
    if (!g.Acquisito)
        return r;
    r.push_back({ComponenteFila(g, g.ComponenteDeboleFilaInf, true), "txtFmin0"});
    if (g.nf == 2)
        r.push_back({ComponenteFila(g, g.ComponenteDeboleFilaSup, false), "txtFmin1"});
    if (GovernaUnaComponente(g))
        r.push_back({ComponenteComune(g.ComponenteDebole), "TxtMjRd"});
    return r;
}

} // namespace sagomi
