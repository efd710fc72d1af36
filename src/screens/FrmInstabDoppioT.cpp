#include "screens/FrmInstabDoppioT.h"

#include <QRadioButton>

#include <cmath>
#include <limits>

#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/Protetto.h"
#include "screens/ColonnaInstabilita.h"
#include "sections/ColonnaInstabilita.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneDoppioT.h"
#include "ui_FrmInstabDoppioT.h"

namespace sagomi {

namespace {

constexpr double nessunNumero = std::numeric_limits<double>::quiet_NaN();

constexpr const char* motivoLunghezza = "La lunghezza di libera inflessione non può essere negativa";

/// A row without a radius of gyration has no slenderness about that axis, nor has a negative length.
bool Calcolabile(const SezioneDoppioT& s, int axis) {
    return (axis == 0 ? s.iY : s.iZ) != 0 && !((axis == 0 ? s.L0y : s.L0z) < 0);
}

void SpiegaFreccia() {
    Avvisa("Imperfezione di freccia iniziale equivalente\n"
           "per la verifica all'instabilità usando l'analisi del secondo ordine\n"
           "EC3 # 5.5.1. figura 5.5.1.\n"
           "Deve essere inclusa nell'analisi globale del secondo ordine del telaio quando\n"
           "il moltiplicatore critico è minore di 4 [#5.2.4.2. (4)].\n"
           "Valore da adottare con analisi globale elastica e verifica di resistenza elastica.");
}

} // namespace

FrmInstabDoppioT::FrmInstabDoppioT()
    : SchermoDettaglio(QStringLiteral("FrmInstabDoppioT")), ui_(new Ui::FrmInstabDoppioT) {
    ui_->setupUi(this);
    CollegaControlli();
    optE0_ = Vettore<QRadioButton>(QStringLiteral("optE0"));
    CollegaDati();
    CollegaFreccia();
    DimensionaIniziale({});
}

FrmInstabDoppioT::~FrmInstabDoppioT() = default;

void FrmInstabDoppioT::CollegaDati() {
    const QList<QLineEdit*> lengths{ui_->fraAzioni->Txt_L0_0, ui_->fraAzioni->Txt_L0_1};
    for (QLineEdit* box : lengths)
        regole_.Aggiunge({.caselle = {box}, .motivo = [box] {
                              const double L = NumeroIn(box);
                              return L >= 0 && std::isfinite(L) ? QString() : tr(motivoLunghezza);
                          }});
    CalcolaA(lengths + QList<QLineEdit*>{ui_->fraAzioni->TxtNsd});
}

void FrmInstabDoppioT::RiempieDati() {
    if (const SezioneDoppioT* s = Sezione()) {
        Riempie(ui_->fraAzioni->TxtNsd, N_a_kN(s->NSd));
        Riempie(ui_->fraAzioni->Txt_L0_0, mm_a_m(s->L0y));
        Riempie(ui_->fraAzioni->Txt_L0_1, mm_a_m(s->L0z));
    }
    FuocoSu(ui_->fraAzioni->TxtNsd);
}

void FrmInstabDoppioT::CollegaFreccia() {
    for (QRadioButton* option : optE0_)
        Collega(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                MostraFreccia();
        });
    Collega(ui_->LblNbRd, &QPushButton::clicked, this, [] { SpiegaFreccia(); });
}

void FrmInstabDoppioT::Calcola() {
    SezioneDoppioT* s = Sezione();
    if (s == nullptr)
        return;
    s->NSd = kN_a_N(NumeroIn(ui_->fraAzioni->TxtNsd)); // another detail may have left its own
    ui_->fraColonne->MostraAcciaio(s->fy);
    CompletaForm1(0);
    CompletaForm1(1);
    CalcolaChi();
    MostraFreccia();
}

void FrmInstabDoppioT::CompletaForm1(int asse) {
    const SezioneDoppioT* s = Sezione();
    if (s == nullptr)
        return;
    const double lamda = asse == 0 ? s->LamdaY() : s->LamdaZ();
    const bool some = Calcolabile(*s, asse);
    ColonnaInstabilita(some ? lamda : nessunNumero, asse, *this);
    const double NbRd = asse == 0 ? s->NbyRd : s->NbzRd;
    ui_->fraColonne->MostraAsse(asse, asse == 0 ? s->iY : s->iZ, s->NSd, some ? NbRd : nessunNumero);
}

// The curve of the axis that governs.
void FrmInstabDoppioT::CalcolaChi() {
    const SezioneDoppioT* s = Sezione();
    if (s == nullptr)
        return;
    ui_->FrmChi->ProponeCurva(s->CurvaInstabilita(s->NbzRd < s->NbyRd ? "zz" : "yy"));
    ui_->FrmChi->Calcola(s->fy);
}

void FrmInstabDoppioT::MostraFreccia() {
    const SezioneDoppioT* s = Sezione();
    if (s == nullptr)
        return;
    const int axis = optE0_[0]->isChecked() ? 0 : 1;
    const double bow = Calcolabile(*s, axis) ? FrecciaIniziale(*s, axis == 0 ? "yy" : "zz") : nessunNumero;
    ui_->txtE0->setText(QString::fromStdString(FormatoCifre(4, bow)));
}

} // namespace sagomi
