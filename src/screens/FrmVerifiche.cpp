#include "screens/FrmVerifiche.h"
#include "screens/TermineSpostato.h"

#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/EtichettaRisultato.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/Protetto.h"
#include "report/RelazioneSagomo.h"
#include "report/ui/ComandoRelazione.h"
#include "sections/SezioneDoppioT.h"
#include "sections/Verdetto.h"
#include "ui_FrmVerifiche.h"

namespace sagomi {

namespace {

void MostraN(QLabel* label, double force) { Mostra(label, "0.0##", N_a_kN(force)); }

void MostraM(QLabel* label, double moment) { Mostra(label, "0.0##", Nmm_a_kNm(moment)); }

Formula FormulaPlastica() {
    return {
        .termini =
            {{.sopra = {{"", "M", "y,Sd"}, unitaM},
              .sotto = {{"", "M", "N,y,Rd"}, unitaM},
              .valoreSopra = VoceValore("LblMysd", "Momento di progetto intorno a y-y [kNm]", "My,Sd [kNm]"),
              .valoreSotto =
                  VoceValore("LblMNyRd", "Momento plastico ridotto da N intorno a y-y [kNm], EC3 6.2.9.1",
                             "MN,y,Rd [kNm]"),
              .esponente = {"LblSimAlfa", "α"},
              .valoreEsponente =
                  VoceValore("lblAlfa", "Esponente del termine di My, EC3 6.2.9.1", "alfa", 1)},
             {.sopra = {{"", "M", "z,Sd"}, unitaM},
              .sotto = {{"", "M", "N,z,Rd"}, unitaM},
              .valoreSopra = VoceValore("LblMzsd", "Momento di progetto intorno a z-z [kNm]", "Mz,Sd [kNm]"),
              .valoreSotto =
                  VoceValore("LblMNzRd", "Momento plastico ridotto da N intorno a z-z [kNm], EC3 6.2.9.1",
                             "MN,z,Rd [kNm]"),
              .esponente = {"LblSimBeta", "β"},
              .valoreEsponente =
                  VoceValore("lblBeta", "Esponente del termine di Mz: 5 n, almeno 1, EC3 6.2.9.1", "beta", 4),
              .piu = "LblValPiu1"}},
        .uguale = "LblValUguale1",
        .somma = VoceSomma("Lbl_Risult3_0", "Somma dei termini, passa se non supera 1, EC3 6.2.9.1 (6)"),
        .esito = VoceEsito("Lbl_Risultato3_0")};
}

Formula FormulaElastica() {
    return {.termini = {{.sopra = {{"", "N", "Sd"}, unitaN},
                         .sotto = {{"", "N", "pl,Rd"}, unitaN},
                         .valoreSopra = VoceValore("LblNsd", "Forza assiale di progetto [kN]", "NSd [kN]"),
                         .valoreSotto = VoceValore("LblNrd", "Resistenza a forza assiale [kN], EC3 6.2.4",
                                                   "Npl,Rd [kN]")},
                        {.sopra = {{"", "M", "y,Sd"}, unitaM},
                         .sotto = {{"", "M", "el,y,Rd"}, unitaM},
                         .valoreSopra =
                             VoceValore("LblMsdy", "Momento di progetto intorno a y-y [kNm]", "My,Sd [kNm]"),
                         .valoreSotto = VoceValore(
                             "LblMry", "Momento elastico intorno a y-y [kNm], EC3 6.2.5", "Mel,y,Rd [kNm]"),
                         .piu = "LblValPiu20"},
                        {.sopra = {{"", "M", "z,Sd"}, unitaM},
                         .sotto = {{"", "M", "el,z,Rd"}, unitaM},
                         .valoreSopra =
                             VoceValore("LblMsdz", "Momento di progetto intorno a z-z [kNm]", "Mz,Sd [kNm]"),
                         .valoreSotto = VoceValore(
                             "LblMrz", "Momento elastico intorno a z-z [kNm], EC3 6.2.5", "Mel,z,Rd [kNm]"),
                         .piu = "LblValPiu21"}},
            .uguale = "LblValUguale2",
            .somma = VoceSomma("Lbl_Risult3_1", "Somma dei termini, passa se non supera 1, EC3 6.2.9.2"),
            .esito = VoceEsito("Lbl_Risultato3_1")};
}

Formula FormulaEfficace() {
    return {
        .termini =
            {{.sopra = {{"", "N", "Sd"}, unitaN},
              .sotto = {{"", "N", "pl,Rd"}, unitaN},
              .valoreSopra = VoceValore("LblNsd4", "Forza assiale di progetto [kN]", "NSd [kN]"),
              .valoreSotto =
                  VoceValore("LblNrd4", "Resistenza a forza assiale con l'area efficace [kN], EC3 6.2.4",
                             "Npl,Rd [kN]")},
             {.sopra = Con(unitaM, MomentoSpostato(true)),
              .sotto = {{"", "M", "c,y,Rd"}, unitaM},
              .valoreSopra = VoceValore(
                  "LblMsdy4", "Momento intorno a y-y con lo spostamento del baricentro [kNm], EC3 6.2.9.3",
                  "My,Sd + NSd eNy [kNm]"),
              .valoreSotto = VoceValore(
                  "LblMry4",
                  "Momento resistente intorno a y-y della sezione nella sua classe [kNm], EC3 6.2.5",
                  "Mc,y,Rd [kNm]"),
              .piu = "LblValPiu31"},
             {.sopra = Con(unitaM, MomentoSpostato(false)),
              .sotto = {{"", "M", "c,z,Rd"}, unitaM},
              .valoreSopra = VoceValore(
                  "LblMsdz4", "Momento intorno a z-z con lo spostamento del baricentro [kNm], EC3 6.2.9.3",
                  "Mz,Sd + NSd eNz [kNm]"),
              .valoreSotto = VoceValore(
                  "LblMrz4",
                  "Momento resistente intorno a z-z della sezione nella sua classe [kNm], EC3 6.2.5",
                  "Mc,z,Rd [kNm]"),
              .piu = "LblValPiu32"}},
        .uguale = "LblValUguale3",
        .somma = VoceSomma("Lbl_Risult4", "Somma dei termini, passa se non supera 1, EC3 6.2.9.3"),
        .esito = VoceEsito("Lbl_Risultato4")};
}

} // namespace

FrmVerifiche::FrmVerifiche() : SchermoDettaglio(QStringLiteral("FrmVerifiche")), ui_(new Ui::FrmVerifiche) {
    ui_->setupUi(this);
    for (QWidget* frame : {ui_->Frame1, ui_->Frame2, ui_->Frame3}) {
        QSizePolicy policy = frame->sizePolicy();
        policy.setRetainSizeWhenHidden(true); // one room for all three
        frame->setSizePolicy(policy);
    }
    ui_->formula1->Compone(FormulaPlastica());
    ui_->formula2->Compone(FormulaElastica());
    ui_->formula3->Compone(FormulaEfficace());
    CollegaControlli();
    Lega(ui_->fraAzioni->TxtMysd, &SezioneDoppioT::Mysd, kNm_a_Nmm(1));
    Lega(ui_->fraAzioni->TxtMzsd, &SezioneDoppioT::Mzsd, kNm_a_Nmm(1));
    CalcolaA({ui_->fraAzioni->TxtNsd, ui_->fraAzioni->TxtMysd, ui_->fraAzioni->TxtMzsd});
    SceglieQuadro(1);
    AggiungeRelazione(*this, [this] {
        const SezioneDoppioT* s = Sezione();
        return s == nullptr || !regole_.Applica() ? Relazione()
                                                  : RelazioneSezione(*s, objectName().toStdString());
    });
    DimensionaIniziale({});
}

FrmVerifiche::~FrmVerifiche() = default;

void FrmVerifiche::RiempieDati() {
    if (const SezioneDoppioT* s = Sezione()) {
        Riempie(ui_->fraAzioni->TxtNsd, N_a_kN(s->NSd));
        Riempie(ui_->fraAzioni->TxtMysd, Nmm_a_kNm(s->Mysd));
        Riempie(ui_->fraAzioni->TxtMzsd, Nmm_a_kNm(s->Mzsd));
    }
    FuocoSu(ui_->fraAzioni->TxtNsd);
}

void FrmVerifiche::Calcola() {
    SezioneDoppioT* s = Sezione();
    if (s == nullptr)
        return;
    s->NSd = kN_a_N(NumeroIn(ui_->fraAzioni->TxtNsd));
    s->Mysd = kNm_a_Nmm(NumeroIn(ui_->fraAzioni->TxtMysd));
    s->Mzsd = kNm_a_Nmm(NumeroIn(ui_->fraAzioni->TxtMzsd));
    s->ClassePressoFlessioneCalcola();
    SceglieQuadro(s->ClassePressoFlessione);
    const Verdetto verdetto = GiudicaResistenza(*s);
    TerminiInterazione termini = s->TerminiMNResistenza();
    if (termini.assialeNeiMomenti && verdetto.assialeOltre)
        termini.y.MRd = termini.z.MRd = 0; // such a force leaves nothing to the moments
    if (s->ClassePressoFlessione < 3)
        MostraPlastica(termini, verdetto);
    else if (s->ClassePressoFlessione == 3)
        MostraElastica(termini, verdetto);
    else
        MostraEfficace(termini, verdetto);
    ui_->verdetto->Mostra(verdetto);
}

void FrmVerifiche::SceglieQuadro(int classe) {
    ui_->Frame1->setVisible(classe < 3);
    ui_->Frame2->setVisible(classe == 3);
    ui_->Frame3->setVisible(classe > 3);
}

// The axial force has reduced the moments.
void FrmVerifiche::MostraPlastica(const TerminiInterazione& t, const Verdetto& v) {
    const LineaFormula& f = *ui_->formula1;
    Mostra(f.Esponente(0), TestoPiano(t.y.esponente));
    Mostra(f.Esponente(1), "0.0##", t.z.esponente);
    MostraM(f.Sopra(0), t.y.MSd);
    MostraM(f.Sotto(0), t.y.MRd);
    MostraM(f.Sopra(1), t.z.MSd);
    MostraM(f.Sotto(1), t.z.MRd);
    ui_->formula1->MostraSomma(v.somma, v.utilizzo);
    ui_->formula1->Evidenzia(TermineDi(v) - 1); // the first term is that of My
}

void FrmVerifiche::MostraElastica(const TerminiInterazione& t, const Verdetto& v) {
    const LineaFormula& f = *ui_->formula2;
    MostraN(f.Sopra(0), t.NSd);
    MostraN(f.Sotto(0), t.NRd);
    MostraM(f.Sopra(1), t.y.MSd);
    MostraM(f.Sotto(1), t.y.MRd);
    MostraM(f.Sopra(2), t.z.MSd);
    MostraM(f.Sotto(2), t.z.MRd);
    ui_->formula2->MostraSomma(v.somma, v.utilizzo);
    ui_->formula2->Evidenzia(TermineDi(v));
}

// The moments carry the shift of the effective section's centroid.
void FrmVerifiche::MostraEfficace(const TerminiInterazione& t, const Verdetto& v) {
    const LineaFormula& f = *ui_->formula3;
    MostraN(f.Sopra(0), t.NSd);
    MostraN(f.Sotto(0), t.NRd);
    MostraM(f.Sopra(1), t.y.M());
    MostraM(f.Sotto(1), t.y.MRd);
    MostraM(f.Sopra(2), t.z.M());
    MostraM(f.Sotto(2), t.z.MRd);
    ui_->formula3->MostraSomma(v.somma, v.utilizzo);
    ui_->formula3->Evidenzia(TermineDi(v));
}

} // namespace sagomi
