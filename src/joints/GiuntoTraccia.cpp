// The values of a check as data, in the order of the calculation.
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "joints/Giunto.h"

namespace sagomi {

namespace {

constexpr std::string_view appendiceJ = "ENV 1993-1-1 appendice J";
constexpr std::string_view trattoT = "ENV 1993-1-1 appendice J, elemento a T equivalente";

} // namespace

const PassoGiunto* Passo(const TracciaGiunto& traccia, std::string_view componente, std::string_view nome) {
    for (const PassoGiunto& p : traccia)
        if (p.componente == componente && p.nome == nome)
            return &p;
    return nullptr;
}

/// Writes the steps of one component.
class Tracciatore {
public:
    Tracciatore(TracciaGiunto& traccia, std::string_view componente, std::string_view norma)
        : traccia_(traccia), componente_(componente), norma_(norma) {}

    Tracciatore& operator()(std::string_view nome, double valore, std::string_view unita = {}) {
        traccia_.push_back({componente_, nome, valore, unita, norma_, {}});
        return *this;
    }
    Tracciatore& Testo(std::string_view nome, const std::string& testo) {
        traccia_.push_back({componente_, nome, 0, {}, norma_, testo});
        return *this;
    }
    Tracciatore& Modi(const ModiTrattoT& m, std::string_view nome, double resistenza) {
        (*this)("leff", m.leff, "mm")("m", m.m, "mm")("n", m.n, "mm")("Mpl", m.Mpl, "kNmm");
        (*this)("Modo 1", m.Modo1, "kN")("Modo 2", m.Modo2, "kN")("Modo 3", m.Modo3, "kN");
        return (*this)(nome, resistenza, "kN");
    }

    static void Saldature(const Giunto& g, TracciaGiunto& traccia);
    static void Irrigidimenti(const Giunto& g, TracciaGiunto& traccia);
    static void Ala(const Giunto& g, TracciaGiunto& traccia);
    static void Flangia(const Giunto& g, TracciaGiunto& traccia);
    static void Anima(const Giunto& g, TracciaGiunto& traccia);
    static void Compressione(const Giunto& g, TracciaGiunto& traccia);
    static void Instabilita(const Giunto& g, TracciaGiunto& traccia);
    static void Pannello(const Giunto& g, TracciaGiunto& traccia);
    static void Rigidezza(const Giunto& g, TracciaGiunto& traccia, std::string_view livello, double mu);

private:
    TracciaGiunto& traccia_;
    std::string_view componente_, norma_;
};

void Tracciatore::Saldature(const Giunto& g, TracciaGiunto& traccia) {
    const GoleAla gole(g.t(), Giunto::Radice(g.t()), g.Fattori());
    double massima = 0;
    g.CordoneAla(massima);
    Tracciatore ala(traccia, "Saldatura delle ali della trave", "EC3 6.6.5");
    ala("a1", gole.a1, "mm")("a2", gole.a2, "mm")("CordoneAla", massima, "mm")("Af", g.Af, "mm");
    if (g.Af > massima)
        ala.Testo("Nota", "gola massima " + Formato("0.0", massima) + " mm");
    Tracciatore(traccia, "Saldatura dell'anima della trave", "EC3 6.6.5.2")("aw", g.aw, "mm");
}

/// The stiffener counts as the flange of the beam, also where its whole millimetres are less.
void Tracciatore::Irrigidimenti(const Giunto& g, TracciaGiunto& traccia) {
    if (!g.Irrigidito() && !g.SoloCompressione())
        return;
    Tracciatore riga(traccia, "Irrigidimenti", appendiceJ);
    riga("Irr_Spessore", g.Irr_Spessore, "mm")("Irr_B", g.Irr_B, "mm")("Irr_L1", g.Irr_L1, "mm");
    if (g.Irrigidito())
        riga("Irr_L2", g.Irr_L2, "mm");
    riga("Irr_a", g.Irr_a, "mm");
    if (g.Irr_Spessore < g.t().tf)
        riga.Testo("Nota", "più sottile dell'ala della trave, la cui resistenza conta intera");
}

void Tracciatore::Ala(const Giunto& g, TracciaGiunto& traccia) {
    const double Bt = g.Bt_Rd();
    const std::string_view nome = "Ala della colonna a flessione";
    Tracciatore(traccia, nome, appendiceJ)("ec", g.ec, "mm")("mc", g.mc, "mm")("Kfc", g.Kfc);
    if (g.Irrigidito()) {
        Tracciatore(traccia, nome, appendiceJ)("m2c", g.m2c, "mm");
        Tracciatore(traccia, "Ala della colonna a flessione, fila interna", trattoT)
            .Modi(g.ModiAla(g.Beff(4), 2, Bt), "Ftrd_FilaInf_c", g.Ftrd_FilaInf_c);
        if (g.nf != 2)
            return;
        Tracciatore(traccia, nome, appendiceJ)("mxc", g.mxc, "mm");
        Tracciatore(traccia, "Ala della colonna a flessione, fila esterna", trattoT)
            .Modi(g.ModiAla(g.Beff(3), 2, Bt), "Ftrd_FilaSup_c", g.Ftrd_FilaSup_c);
        return;
    }
    Tracciatore(traccia, "Ala della colonna a flessione, fila singola", trattoT)
        .Modi(g.ModiAla(g.Beff(1), 2, Bt), "FtRd_Individuale", g.FtRd_Individuale);
    if (g.nf == 2)
        Tracciatore(traccia, "Ala della colonna a flessione, gruppo", trattoT)
            .Modi(g.ModiAla(g.Beff(2), 4, Bt), "FtRd_Gruppo", g.FtRd_Gruppo);
    Tracciatore riga(traccia, nome, appendiceJ);
    riga("Ftrd_FilaInf_c", g.Ftrd_FilaInf_c, "kN");
    if (g.nf == 2)
        riga("Ftrd_FilaSup_c", g.Ftrd_FilaSup_c, "kN");
}

void Tracciatore::Flangia(const Giunto& g, TracciaGiunto& traccia) {
    const double Bt = g.Bt_Rd();
    Tracciatore(traccia, "Flangia di estremità a flessione",
                appendiceJ)("ef", g.ef, "mm")("mf", g.mf, "mm")("m2", g.m2, "mm");
    Tracciatore(traccia, "Flangia di estremità a flessione, fila interna", trattoT)
        .Modi(g.ModiFlangiaInterna(Bt), "FtRd_FilaInf_f", g.FtRd_FilaInf_f);
    if (g.nf != 2)
        return;
    Tracciatore(traccia, "Flangia di estremità a flessione",
                appendiceJ)("ex", g.ex, "mm")("mx", g.mx, "mm")("w", g.w, "mm");
    Tracciatore(traccia, "Flangia di estremità a flessione, fila esterna", trattoT)
        .Modi(g.ModiFlangiaEsterna(Bt), "FtRd_FilaSup_f", g.FtRd_FilaSup_f);
}

void Tracciatore::Anima(const Giunto& g, TracciaGiunto& traccia) {
    Tracciatore(traccia, "Anima della colonna a trazione",
                appendiceJ)("beff", g.Beff(g.nf == 2 ? 2 : 1), "mm")("FtRd_Anima_c", g.FtRd_Anima_c, "kN");
}

void Tracciatore::Compressione(const Giunto& g, TracciaGiunto& traccia) {
    Tracciatore riga(traccia, "Anima della colonna a compressione (schiacciamento)", appendiceJ);
    riga("Kwc", g.Kwc)("beff", g.BeffCompressione_Calcola(), "mm")("FcRd_Anima_c", g.FcRd_Anima_c, "kN");
    if (g.Irrigidito() || g.SoloCompressione())
        riga("FcRd_AnimaIrrigidita_c", g.FcRd_AnimaIrrigidita_c, "kN");
    else
        Instabilita(g, traccia);
}

void Tracciatore::Instabilita(const Giunto& g, TracciaGiunto& traccia) {
    Tracciatore(traccia, "Anima della colonna a compressione (instabilità)", "ENV 1993-1-1 5.7.5")(
        "beff", g.LarghezzaInstabilita(), "mm")("fd", g.TensioneInstabilita(), "N/mm2")("NbRd_Anima_c",
                                                                                        g.NbRd_Anima_c, "kN");
}

void Tracciatore::Pannello(const Giunto& g, TracciaGiunto& traccia) {
    Tracciatore riga(traccia, "Pannello d'anima della colonna a taglio", appendiceJ);
    riga("Beta", g.Beta);
    if (g.Beta > 0)
        riga("Avc", Giunto::AreaTaglio_Calcola(g.c()), "mm2")("VplRd_Pannello_c", g.VplRd_Pannello_c, "kN");
}

/// Components before the rows give way to what both pass through.
void Giunto::TracciaComponenti() {
    Traccia.clear();
    Tracciatore::Saldature(*this, Traccia);
    Tracciatore::Irrigidimenti(*this, Traccia);
    Tracciatore(Traccia, "Colonna", appendiceJ)("sigma", TensioneColonna(), "N/mm2");
    Tracciatore(Traccia, "Bulloni a trazione", "ENV 1993-1-1 6.5.5")("Bt", Bt_Rd(), "kN");
    Tracciatore::Ala(*this, Traccia);
    Tracciatore::Flangia(*this, Traccia);
    Tracciatore interna(Traccia, "Fila interna", appendiceJ);
    interna("FtRd_EffInf", FtRd_EffInf, "kN").Testo("ComponenteDeboleFilaInf", ComponenteDeboleFilaInf);
    if (nf == 2)
        Tracciatore(Traccia, "Fila esterna", appendiceJ)("FtRd_EffSup", FtRd_EffSup, "kN")
            .Testo("ComponenteDeboleFilaSup", ComponenteDeboleFilaSup);
    if (nf == 2 && !Irrigidito())
        Tracciatore(Traccia, "Ala della colonna a flessione, gruppo", appendiceJ)(
            "Ftrd_FilaSupRid_c", Ftrd_FilaSupRid_c, "kN")("Ftrd_FilaInfRid_c", Ftrd_FilaInfRid_c, "kN");
    Tracciatore::Anima(*this, Traccia);
    Tracciatore::Compressione(*this, Traccia);
    Tracciatore::Pannello(*this, Traccia);
    Tracciatore(Traccia, "Componente debole", appendiceJ)("RDebole", RDebole, "kN")
        .Testo("ComponenteDebole", ComponenteDebole);
}

/// What follows from the rows.
void Giunto::TracciaMomento() {
    Tracciatore(Traccia, "Anima della trave a trazione",
                appendiceJ)("leffInterna", leffInterna_, "mm")("FtRd_Anima_t", FtRd_Anima_t, "kN");
    Tracciatore finale(Traccia, "Ridistribuzione", appendiceJ);
    finale("FtotFile", FtotFile_, "kN")("FtRd_EffInf", FtRd_EffInf, "kN")("zInt", zInt_, "mm");
    if (nf == 2)
        finale("FtRd_EffSup", FtRd_EffSup, "kN")("zEst", zEst_, "mm");
    // Where the inner row has taken all, the web of the column is the one of a single row.
    finale("FtRd_Anima_c", FtRd_Anima_c, "kN")("TipoMessaggio", TipoMessaggio);
    finale.Testo("ComponenteDebole", ComponenteDebole);
    Tracciatore(Traccia, "Momento resistente", appendiceJ)("MplRdGIUNTO", MplRdGIUNTO,
                                                           "kNm")("M_elastico", M_elastico, "kNm");
    Tracciatore(Traccia, "Ala e anima della trave", "EC3 6.9.6.3")("McyRd", Nmm_a_kNm(t().McyRd), "kNm")
        .Testo("ResistenzaGiunto", ResistenzaGiunto);
    Tracciatore(Traccia, "Bulloni a taglio", "ENV 1993-1-1 6.5.5")("Vrd0", Vrd0, "kN")("Vrd1", Vrd1, "kN");
    passiResistenza_ = Traccia.size();
}

void Tracciatore::Rigidezza(const Giunto& g, TracciaGiunto& traccia, std::string_view livello, double mu) {
    const TerminiRigidezza r = g.Termini(mu);
    Tracciatore riga(traccia, livello, appendiceJ);
    riga("mu", mu)("eta1", r.eta1)("eta2", r.eta2)("eta3", r.eta3)("eta4", r.eta4)("eta5", r.eta5);
    riga("eta6", r.eta6)("S", r.S);
    if (g.nf == 2)
        riga("eta5e", r.eta5e)("SEst", r.SEst);
}

void Giunto::TracciaRigidezza() {
    Traccia.resize(std::min(Traccia.size(), passiResistenza_));
    Tracciatore k(Traccia, "Coefficienti di rigidezza", appendiceJ);
    k("lb", lb, "mm")("k1", k1)("k2", k2)("k3", k3)("k4", k4)("k5", k5)("k6", k6);
    if (nf == 2)
        k("k6_Estesa", k6_Estesa);
    Tracciatore mu(Traccia, "Coefficienti correttivi", appendiceJ);
    mu("mu1", mu1)("mu2", mu2)("mu3", mu3)("mu4", mu4)("mu5", mu5)("mu6", mu6);
    if (nf == 2)
        mu("mu4_Estesa", mu4_Estesa)("mu5_Estesa", mu5_Estesa)("mu6_Estesa", mu6_Estesa);
    const std::string_view unita = "kNm/rad";
    Tracciatore::Rigidezza(*this, Traccia, "Rigidezza per Mj.Rd", 1);
    Tracciatore(Traccia, "Rigidezza per Mj.Rd", appendiceJ)("Sj_MjRd_", Sj_MjRd_, unita)(
        "Sj_MjRd_Estesa", Sj_MjRd_Estesa, unita)("Sj_MjRd", Sj_MjRd, unita);
    Tracciatore::Rigidezza(*this, Traccia, "Rigidezza per Mj.el", 1.5);
    Tracciatore(Traccia, "Rigidezza per Mj.el", appendiceJ)("Sj_Mela_", Sj_Mela_, unita)(
        "Sj_Mela_Estesa", Sj_Mela_Estesa, unita)("Sj_Mela", Sj_Mela, unita);
    if (t().Mysd != 0)
        Tracciatore::Rigidezza(*this, Traccia, "Rigidezza per Mj.Sd", MplRdGIUNTO / t().Mysd);
    Tracciatore(Traccia, "Rigidezza per Mj.Sd", appendiceJ)("Sj_MjSd_", Sj_MjSd_, unita)(
        "Sj_MjSd_Estesa", Sj_MjSd_Estesa, unita)("Sj_MjSd", Sj_MjSd, unita);
    Tracciatore(Traccia, "Classe di rigidezza", "EC3 6.9.6.2")("LimiteCerniera", LimiteCerniera, unita)(
        "LimiteRigido2", LimiteRigido2, unita)("LimiteRigido1", LimiteRigido1, unita)
        .Testo("RigidezzaGiunto1", RigidezzaGiunto1)
        .Testo("RigidezzaGiunto2", RigidezzaGiunto2);
}

} // namespace sagomi
