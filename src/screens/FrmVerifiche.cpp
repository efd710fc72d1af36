#include "screens/FrmVerifiche.h"

#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/Esito.h"
#include "frame/ui/Protetto.h"
#include "screens/Mostra.h"
#include "screens/Unita.h"
#include "sections/SezioneDoppioT.h"
#include "ui_FrmVerifiche.h"

namespace sagomi {

namespace {

void MostraN(QLabel* label, double force) { Mostra(label, "0.0##", force / NInkN); }

void MostraM(QLabel* label, double moment) { Mostra(label, "0.0##", moment / NmmInkNm); }

void MostraSomma(QLabel* sum, QLabel* verdict, double value) {
    Mostra(sum, "0.0##", value);
    MostraEsito(verdict, value);
}

} // namespace

FrmVerifiche::FrmVerifiche() : SchermoDettaglio(QStringLiteral("FrmVerifiche")), ui_(new Ui::FrmVerifiche) {
    ui_->setupUi(this);
    for (QWidget* frame : {ui_->Frame1, ui_->Frame2, ui_->Frame3}) {
        QSizePolicy policy = frame->sizePolicy();
        policy.setRetainSizeWhenHidden(true); // one room for all three
        frame->setSizePolicy(policy);
    }
    CollegaControlli();
    for (QLineEdit* box : {ui_->fraAzioni->TxtNsd, ui_->fraAzioni->TxtMysd, ui_->fraAzioni->TxtMzsd})
        Collega(box, &QLineEdit::textChanged, this, [this] { Ricalcola(); });
    ScegliQuadro(1);
    DimensionaIniziale({});
}

FrmVerifiche::~FrmVerifiche() = default;

void FrmVerifiche::RiempiDati() {
    if (const SezioneDoppioT* s = Sezione()) {
        Riempi(ui_->fraAzioni->TxtNsd, s->NSd / NInkN);
        Riempi(ui_->fraAzioni->TxtMysd, s->Mysd / NmmInkNm);
        Riempi(ui_->fraAzioni->TxtMzsd, s->Mzsd / NmmInkNm);
    }
    FuocoSu(ui_->fraAzioni->TxtNsd);
}

void FrmVerifiche::CompletaForm(SchermoSezione& /*chiamante*/) {
    SezioneDoppioT* s = Sezione();
    if (s == nullptr)
        return;
    s->NSd = NumeroIn(ui_->fraAzioni->TxtNsd) * NInkN;
    s->Mysd = NumeroIn(ui_->fraAzioni->TxtMysd) * NmmInkNm;
    s->Mzsd = NumeroIn(ui_->fraAzioni->TxtMzsd) * NmmInkNm;
    s->ClassePressoFlessioneCalcola();
    ScegliQuadro(s->ClassePressoFlessione);
    if (s->ClassePressoFlessione < 3)
        MostraPlastica(*s);
    else if (s->ClassePressoFlessione == 3)
        MostraElastica(*s);
    else
        MostraEfficace(*s);
}

void FrmVerifiche::ScegliQuadro(int classe) {
    ui_->Frame1->setVisible(classe < 3);
    ui_->Frame2->setVisible(classe == 3);
    ui_->Frame3->setVisible(classe > 3);
}

void FrmVerifiche::MostraPlastica(const SezioneDoppioT& s) {
    double MNy = 0;
    double MNz = 0;
    double beta = 0;
    s.MNRd(MNy, MNz, beta);
    ui_->lblAlfa->setText(QStringLiteral("2"));
    Mostra(ui_->lblBeta, "0.0##", beta);
    MostraM(ui_->LblMysd, s.Mysd);
    MostraM(ui_->LblMNyRd, MNy);
    MostraM(ui_->LblMzsd, s.Mzsd);
    MostraM(ui_->LblMNzRd, MNz);
    MostraSomma(ui_->Lbl_Risult3_0, ui_->Lbl_Risultato3_0, s.InterazioneMNResistenza());
}

void FrmVerifiche::MostraElastica(const SezioneDoppioT& s) {
    MostraN(ui_->LblNsd, s.NSd);
    MostraN(ui_->LblNrd, s.NplRd);
    MostraM(ui_->LblMsdy, s.Mysd);
    MostraM(ui_->LblMry, s.MelyRd);
    MostraM(ui_->LblMsdz, s.Mzsd);
    MostraM(ui_->LblMrz, s.MelzRd);
    MostraSomma(ui_->Lbl_Risult3_1, ui_->Lbl_Risultato3_1, s.InterazioneMNResistenza());
}

// The moments carry the shift of the effective section's centroid.
void FrmVerifiche::MostraEfficace(const SezioneDoppioT& s) {
    MostraN(ui_->LblNsd4, s.NSd);
    MostraN(ui_->LblNrd4, s.NplRd);
    MostraM(ui_->LblMsdy4, s.Mysd + s.NSd * s.eNy);
    MostraM(ui_->LblMry4, s.McyRd);
    MostraM(ui_->LblMsdz4, s.Mzsd + s.NSd * s.eNz);
    MostraM(ui_->LblMrz4, s.MczRd);
    MostraSomma(ui_->Lbl_Risult4, ui_->Lbl_Risultato4, s.InterazioneMNResistenza());
}

} // namespace sagomi
