// Forces of the rows and moment resistance, ENV 1993-1-1 annex J.
#include "frame/Unita.h"
#include "joints/Giunto.h"

namespace sagomi {

namespace {

constexpr const char* internaAla = " Fila int. dall'ala della colonna a flessione";
constexpr const char* internaAlaResto = " Fila int. dall'ala della colonna a flessione ";
constexpr const char* internaFlangia = " Fila int. dalla flangia di estremità a flessione";
constexpr const char* esternaAla = " Fila est. dall'ala della colonna a flessione";
constexpr const char* esternaAlaIrrigidita = " Fila est. ala della colonna a flessione";
constexpr const char* esternaFlangia = " Fila est. dalla flangia di estremità a flessione";

constexpr const char* animaTesa = " dall'anima della colonna a trazione";
constexpr const char* animaCompressa = " dall'anima della colonna a compressione";
constexpr const char* animaInstabile = " dall'anima della colonna a instabilità";
constexpr const char* pannello = " dal pannello della colonna a taglio";
constexpr const char* animaTrave = " dall'anima della trave a trazione";
constexpr const char* animaTesaRidotta = " dall'anima della colonna a trazione in zona tesa ridotta";

constexpr const char* avvisoAnimaTrave = "La resistenza è governata dall'anima della trave a trazione";
constexpr const char* avvisoAnimaRidotta =
    "La resistenza è governata dall'anima della colonna a trazione ridotta";

} // namespace

void Giunto::Mrd_Giunto_Calcola() {
    Kfc_Calcola();
    Kwc_Calcola();
    RottureAlaColonna_Calcola();
    RottureFlangia_Calcola();
    FtRd_EfficaciFile_Calcola();
    if (Irrigidito())
        FtRd_AnimaColonnaIrrigidita_Calcola();
    else
        FtRdAnimaColonna_Calcola(nf);
    if (Irrigidito() || SoloCompressione())
        FcRd_AnimaColonnaIrrigidita_Calcola();
    else
        AnimaCompressa(TensioneInstabilita());
    VplRdPannello_Calcola(Beta);
    RDebole_Calcola();
    TracciaComponenti();
    Mrd_Giunto_CompletaCalcolo();
    ClasseResistenza_Calcola();
    M_elastico = 2.0 / 3 * MplRdGIUNTO;
    Vrd_Calcola();
    TracciaMomento();
}

void Giunto::FtRd_EfficaciFile_Calcola() {
    if (nf == 2 && !Irrigidito())
        FileInGruppo();
    else if (nf == 2)
        FileConIrrigidimenti();
    else
        FilaInterna();
}

void Giunto::FilaInterna() {
    const bool ala = Ftrd_FilaInf_c < FtRd_FilaInf_f;
    FtRd_EffInf = ala ? Ftrd_FilaInf_c : FtRd_FilaInf_f;
    ComponenteDeboleFilaInf = ala ? internaAla : internaFlangia;
}

/// A stiffener between the rows makes each stand for itself.
void Giunto::FileConIrrigidimenti() {
    FilaInterna();
    const bool ala = Ftrd_FilaSup_c < FtRd_FilaSup_f;
    FtRd_EffSup = ala ? Ftrd_FilaSup_c : FtRd_FilaSup_f;
    ComponenteDeboleFilaSup = ala ? esternaAlaIrrigidita : esternaFlangia;
}

/// The outer row goes first, the inner one takes what it leaves of the group.
void Giunto::FileInGruppo() {
    const bool ala = FtRd_Individuale < FtRd_FilaSup_f;
    FtRd_EffSup = ala ? FtRd_Individuale : FtRd_FilaSup_f;
    ComponenteDeboleFilaSup = ala ? esternaAla : esternaFlangia;
    Ftrd_FilaSupRid_c = FtRd_EffSup;
    const Singolo resto = FtRd_Gruppo - FtRd_EffSup;
    FtRd_EffInf = resto > FtRd_Individuale ? FtRd_Individuale : resto;
    Ftrd_FilaInfRid_c = FtRd_EffInf;
    if (FtRd_EffInf < FtRd_FilaInf_f) {
        ComponenteDeboleFilaInf = ala ? internaAla : internaAlaResto;
        return;
    }
    FtRd_EffInf = FtRd_FilaInf_f;
    ComponenteDeboleFilaInf = internaFlangia;
}

void Giunto::RDebole_Calcola() {
    RDebole = FtRd_Anima_c;
    const char* debole = animaTesa;
    const auto cede = [&](Singolo resistenza, const char* testo) {
        if (resistenza < RDebole) {
            RDebole = resistenza;
            debole = testo;
        }
    };
    if (Irrigidito() || SoloCompressione()) {
        cede(FcRd_AnimaIrrigidita_c, animaCompressa);
    } else {
        cede(FcRd_Anima_c, animaCompressa);
        cede(NbRd_Anima_c, animaInstabile);
    }
    if (Beta > 0)
        cede(VplRd_Pannello_c, pannello);
    ComponenteDebole = debole;
}

void Giunto::Mrd_Giunto_CompletaCalcolo() {
    FtRdAnimaTrave_Calcola();
    if (nf == 2)
        Ridistribuisce2File();
    else
        Ridistribuisce1Fila();
    BracciLeva_Calcola();
    Momento();
}

void Giunto::Ridistribuisce1Fila() {
    FtRd_EffSup = 0;
    FtotFile_ = FtRd_EffInf;
    TipoMessaggio = 0;
    if (FtRd_EffInf > RDebole) {
        TipoMessaggio = 1;
        FtRd_EffInf = RDebole;
    }
    (void)CedeAnimaTrave();
}

/// The inner row, which has the shorter lever arm, gives way first.
void Giunto::Ridistribuisce2File() {
    FtotFile_ = FtRd_EffInf + FtRd_EffSup;
    TipoMessaggio = 0;
    if (FtotFile_ > RDebole) {
        TipoMessaggio = 1;
        FtRd_EffInf = RDebole - FtRd_EffSup;
        if (FtRd_EffInf < 0)
            SoloFilaEsterna();
    }
    if (CedeAnimaTrave())
        TipoMessaggio = 1;
}

void Giunto::SoloFilaEsterna() {
    FtRd_EffInf = 0;
    FtRd_EffSup = RDebole;
    if (Irrigidito())
        return;
    FtRdAnimaColonna_Calcola(1);
    if (!(FtRd_EffSup > FtRd_Anima_c))
        return;
    FtRd_EffSup = FtRd_Anima_c;
    ComponenteDebole = animaTesaRidotta;
    Avviso(avvisoAnimaRidotta);
}

bool Giunto::CedeAnimaTrave() {
    if (!(FtRd_EffInf > FtRd_Anima_t))
        return false;
    Avviso(avvisoAnimaTrave);
    FtRd_EffInf = FtRd_Anima_t;
    ComponenteDebole = animaTrave;
    return true;
}

// The centre of compression is the middle of the lower flange; the arm of the inner row has half a thickness
// less.
void Giunto::BracciLeva_Calcola() {
    zInt_ = t().h - d2 - 1.5 * t().tf;
    zEst_ = nf == 2 ? t().h + dX - 0.5 * t().tf : 0;
}

void Giunto::Momento() { MplRdGIUNTO = mm_a_m(zEst_ * FtRd_EffSup + zInt_ * FtRd_EffInf); }

// EC3 6.9.6.3.
void Giunto::ClasseResistenza_Calcola() {
    const double Mj = kNm_a_Nmm(MplRdGIUNTO);
    const double Mb = t().McyRd;
    ResistenzaGiunto = " Giunto ";
    if (Mj >= Mb)
        ResistenzaGiunto += "a completo ripristino di\r\n  resistenza (EC3-6.9.6.3)";
    else if (0.25 * Mb > Mj)
        ResistenzaGiunto += "con resistenza   a cerniera (EC3-6.9.6.3)";
    else
        ResistenzaGiunto += "a parziale ripristino di\r\n  resistenza (EC3-6.9.6.3)";
}

} // namespace sagomi
