#pragma once

#include <map>
#include <string>

#include "frame/GeneraleSagomi.h"
#include "joints/Nodo.h"
#include "sections/CasiDaFile.h"

namespace sagomi::prove {

/// The numbers of a joint that a table names.
inline std::map<std::string, double> Valori(const Giunto& g) {
#define V(nome)                                                                                              \
    { #nome, double(g.nome) }
#define F(nome)                                                                                              \
    { #nome, double(g.nome()) }
    return {V(FtRd_Individuale),
            V(FtRd_Gruppo),
            V(Ftrd_FilaInf_c),
            V(Ftrd_FilaInfRid_c),
            V(Ftrd_FilaSup_c),
            V(Ftrd_FilaSupRid_c),
            V(NbRd_Anima_c),
            V(FcRd_Anima_c),
            V(FcRd_AnimaIrrigidita_c),
            V(FtRd_Anima_c),
            V(VplRd_Pannello_c),
            V(FtRd_FilaSup_f),
            V(FtRd_FilaInf_f),
            V(FtRd_Anima_t),
            V(FtRd_EffSup),
            V(FtRd_EffInf),
            V(RDebole),
            F(leffEsterna),
            F(leffInterna),
            F(FtotFile),
            F(zInt),
            F(zEst),
            F(sTrave),
            F(sColonna),
            V(ec),
            V(mc),
            V(mxc),
            V(m2c),
            V(ef),
            V(mf),
            V(w),
            V(ex),
            V(mx),
            V(dX),
            V(d2),
            V(m2),
            V(p),
            V(pint),
            V(tf),
            V(bf),
            V(L),
            V(u),
            V(hf),
            V(aw),
            V(Af),
            V(Diam),
            V(d0),
            V(lb),
            V(Areares),
            V(Vrd0),
            V(Vrd1),
            V(MplRdGIUNTO),
            V(M_elastico),
            V(Beta),
            V(Kwc),
            V(Kfc),
            V(k1),
            V(k2),
            V(k3),
            V(k4),
            V(k5),
            V(k6),
            V(k6_Estesa),
            V(mu1),
            V(mu2),
            V(mu3),
            V(mu4),
            V(mu5),
            V(mu6),
            V(mu4_Estesa),
            V(mu5_Estesa),
            V(mu6_Estesa),
            V(Sj_MjRd_),
            V(Sj_MjRd_Estesa),
            V(Sj_MjRd),
            V(Sj_Mela_),
            V(Sj_Mela_Estesa),
            V(Sj_Mela),
            V(Sj_MjSd_),
            V(Sj_MjSd_Estesa),
            V(Sj_MjSd),
            V(LimiteRigido1),
            V(LimiteRigido2),
            V(LimiteCerniera),
            V(z),
            F(Eq_Saldatura),
            V(Irr_Spessore),
            V(Irr_B),
            V(Irr_L1),
            V(Irr_L2),
            V(Irr_a),
            V(TipoMessaggio),
            V(Cambia_af),
            {"Beff1", double(g.Beff(1))},
            {"Beff2", double(g.Beff(2))},
            {"Beff3", double(g.Beff(3))},
            {"Beff4", double(g.Beff(4))}};
#undef V
#undef F
}

inline std::map<std::string, std::string> Testi(const Giunto& g) {
    return {{"ComponenteDeboleFilaSup", g.ComponenteDeboleFilaSup},
            {"ComponenteDeboleFilaInf", g.ComponenteDeboleFilaInf},
            {"ComponenteDebole", g.ComponenteDebole},
            {"ResistenzaGiunto", g.ResistenzaGiunto},
            {"RigidezzaGiunto1", g.RigidezzaGiunto1},
            {"RigidezzaGiunto2", g.RigidezzaGiunto2}};
}

/// A node of a case, its factors in force while it lives.
class NodoDaFile {
public:
    explicit NodoDaFile(const CasoDaFile& caso, bool progetto) { Assegna(caso, progetto); }
    ~NodoDaFile() { RipristinaGenerale(); }
    NodoDaFile(const NodoDaFile&) = delete;
    NodoDaFile& operator=(const NodoDaFile&) = delete;

    /// Enters what is given; the rest of the joint stays.
    void Assegna(const CasoDaFile& caso, bool progetto) {
        dati_ = caso.dati;
        GammaM0 = Numero("M0");
        GammaM1 = Numero("M1");
        GammaM2 = Numero("M2");
        nodo.Tipovie = std::int16_t(Numero("Tipovie"));
        nodo.NumeroGiunti = std::int16_t(Numero("NumeroGiunti"));
        nodo.nGiunto = std::int16_t(Numero("nGiunto"));
        nodo.VColSup = Numero("VColSup");
        nodo.Colonnainf = Sezione("c");
        nodo.TraveDx = Sezione("dx");
        if (nodo.NumeroGiunti == 2)
            nodo.TraveSx = Sezione("sx");
        nodo.CaratterizzaGiunti();
        nodo.PreparaSalvataggio();
        Riempie(*nodo.ConnessioneCorrente, progetto);
    }

    Giunto& giunto() { return *nodo.ConnessioneCorrente; }

    Nodo nodo;

private:
    [[nodiscard]] double Numero(const std::string& nome) const {
        const auto i = dati_.find(nome);
        return i == dati_.end() ? 0 : NumeroDaTesto(i->second);
    }

    [[nodiscard]] std::shared_ptr<SezioneDoppioT> Sezione(const std::string& ruolo) const {
        auto s = std::make_shared<SezioneDoppioT>();
        const auto v = [&](const char* nome) { return Numero(ruolo + "." + nome); };
        s->Designation = dati_.at(ruolo + ".nome");
        s->h = v("h");
        s->b = v("b");
        s->tw = v("tw");
        s->tf = v("tf");
        s->r1 = v("r1");
        s->r = v("r");
        s->Area = v("Area");
        s->Jy = v("Jy");
        s->fy = v("fy");
        s->fu = v("fu");
        s->Nsd() = v("NSd");
        s->Mysd = v("Mysd");
        s->Vsd() = v("Vsd");
        s->McyRd = v("McyRd");
        s->lunghezza() = v("lunghezza");
        s->Saldata = v("saldata") != 0;
        return s;
    }

    void Riempie(Giunto& g, bool progetto) const {
        g.Criterio1 = progetto;
        g.Criterio2 = !progetto;
        g.nf = std::int16_t(Numero("nf"));
        g.Irrigidimenti = dati_.at("Irrigidimenti");
        g.Beta_Cautel = Numero("Beta_Cautel") != 0;
        g.Classe = dati_.at("Classe");
        g.fubl = Numero("fubl");
        if (!progetto)
            g.IndiceBullone(std::int16_t(Numero("bullone")));
        g.tf = Numero("tf");
        g.bf = Numero("bf");
        g.ef = Numero("ef");
        g.d2 = Numero("d2");
        g.ex = Numero("ex");
        g.L = Numero("L");
        g.u = Numero("u");
        g.Af = Numero("Af");
        g.aw = Numero("aw");
        g.tf_max = Numero("tf_max");
        g.L_max = Numero("L_max");
        g.u_max = Numero("u_max");
        g.TipoProgetto = std::int16_t(Numero("TipoProgetto"));
        g.TipoUscitaProgetto = std::int16_t(Numero("TipoUscitaProgetto"));
    }

    std::map<std::string, std::string> dati_;
};

} // namespace sagomi::prove
