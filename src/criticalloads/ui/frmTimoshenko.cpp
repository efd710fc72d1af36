#include "criticalloads/ui/frmTimoshenko.h"

#include <QRadioButton>
#include <QTimer>

#include <utility>

#include "criticalloads/DisegnoTrave.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneCorrente.h"
#include "ui_frmTimoshenko.h"

namespace sagomi {

namespace {

const SezioneDoppioT* Sezione() { return SezioneInUso<SezioneDoppioT>(); }

std::array<double, 3> Costanti(const SezioneDoppioT& s) { return {s.Jz, s.JT, s.Jw}; }

} // namespace

frmTimoshenko::frmTimoshenko() : Schermo(QStringLiteral("frmTimoshenko")), ui_(new Ui::frmTimoshenko) {
    ui_->setupUi(this);
    ui_->Picture1->Mostra(DisegnoTrave({}));
    PreparaContenuto();
    E = E_acciaio;
    G = G_acciaio;
    ui_->Lbl_E->setText(QString::fromStdString(TestoPiano(E)));
    ui_->Lbl_G->setText(QString::fromStdString(TestoPiano(G)));
    Option1_ = Vettore<QRadioButton>(QStringLiteral("Option1"));
    optTipoCarico_ = Vettore<QRadioButton>(QStringLiteral("optTipoCarico"));
    optQuotaCarico_ = Vettore<QRadioButton>(QStringLiteral("optQuotaCarico"));
    auto* entries = new FiltroCampi(this, [this](QLineEdit* /*box*/) {
        Protetto("Errore", [this] { Calcolo(); });
        return true;
    });
    for (QLineEdit* box : {ui_->Txt_L, ui_->TxtIz, ui_->TxtIT, ui_->TxtIw}) {
        entries->Osserva(box);
        Collega(box, &QLineEdit::textChanged, this, [this, box] {
            ui_->Lbl_Mcr->clear(); // it was another beam's
            SegnaEntrata(box, NumeroIn(box) < 0 ? tr("Il valore non può essere negativo") : QString());
        });
    }
    Collega(entries, &FiltroCampi::conclusa, this, [this](QLineEdit* box) {
        if (box == ui_->Txt_L)
            LasciaLunghezza();
    });
    CollegaOpzioni();
    Collega(ui_->Command1, &QPushButton::clicked, this, [this] { Calcolo(); });
    DimensionaIniziale({});
}

frmTimoshenko::~frmTimoshenko() = default;

void frmTimoshenko::CollegaOpzioni() {
    Collega(Option1_[0], &QRadioButton::clicked, this, [this] {
        optTipoCarico_[1]->setEnabled(true);
        optQuotaCarico_[0]->setEnabled(true);
        optQuotaCarico_[2]->setEnabled(true);
        Calcolo();
    });
    Collega(Option1_[1], &QRadioButton::clicked, this, [this] {
        OpzioniMensola();
        Calcolo();
    });
    for (QRadioButton* option : optTipoCarico_)
        Collega(option, &QRadioButton::clicked, this, [this] {
            if (Mensola())
                OpzioniMensola();
            Calcolo();
        });
    for (QRadioButton* option : optQuotaCarico_)
        Collega(option, &QRadioButton::clicked, this, [this] { Calcolo(); });
    // Unticking leaves the options of a cantilever as they are.
    Collega(ui_->chkNoIw, &QCheckBox::clicked, this, [this](bool on) {
        NoIw = on;
        if (on && Mensola())
            OpzioniMensola();
        Calcolo();
    });
    for (const auto* group : {&Option1_, &optTipoCarico_, &optQuotaCarico_})
        for (QRadioButton* option : *group)
            Collega(option, &QRadioButton::toggled, this, [this] { Disegna(); });
}

bool frmTimoshenko::Mensola() const { return Option1_[1]->isChecked(); }

std::int16_t frmTimoshenko::TipoCarico() const {
    return optTipoCarico_[1]->isChecked() ? caricoDistribuito : caricoConcentrato;
}

std::int16_t frmTimoshenko::QuotaCarico() const {
    for (int i = 0; i < optQuotaCarico_.size(); ++i)
        if (optQuotaCarico_[i]->isChecked())
            return static_cast<std::int16_t>(i);
    return quotaEstradosso;
}

void frmTimoshenko::OpzioniMensola() {
    if (!NoIw)
        optTipoCarico_[0]->setChecked(true);
    const bool estremita = optTipoCarico_[0]->isChecked();
    if (estremita)
        optTipoCarico_[1]->setEnabled(NoIw);
    const bool ali = NoIw && estremita;
    optQuotaCarico_[0]->setEnabled(ali);
    optQuotaCarico_[2]->setEnabled(ali);
    if (!ali)
        optQuotaCarico_[1]->setChecked(true);
}

void frmTimoshenko::Carica() {
    const SezioneDoppioT* s = Sezione();
    if (s == nullptr)
        return;
    prese_ = Costanti(*s);
    Iz = s->Jz;
    IT = s->JT;
    Iw = s->Jw;
    ui_->Txt_Prof->setText(QString::fromStdString(s->Designation));
    Riempie(ui_->TxtIz, mm4_a_cm4(Iz));
    Riempie(ui_->TxtIT, mm4_a_cm4(IT));
    Riempie(ui_->TxtIw, mm6_a_cm6(Iw));
    ui_->Lbl_Mcr->clear(); // it was another section's
}

void frmTimoshenko::Apre(Schermo& da) {
    Carica();
    Disegna();
    NavigaSchermi::Unico().Apre(*this, da);
}

void frmTimoshenko::AllAttivazione() {
    if (const SezioneDoppioT* s = Sezione()) {
        L = s->LLT;
        Riempie(ui_->Txt_L, mm_a_m(L));
    }
    FuocoSu(ui_->Txt_L);
}

void frmTimoshenko::Aggiorna() {
    const SezioneDoppioT* s = Sezione();
    if (s == nullptr || (Costanti(*s) == prese_ && ui_->Txt_Prof->text().toStdString() == s->Designation))
        return;
    const bool shown = !ui_->Lbl_Mcr->text().isEmpty();
    Carica();
    if (shown)
        Calcolo();
}

/// A length that is none is told on leaving it; the calculation that the same key or click asks for does not
/// tell it a second time.
void frmTimoshenko::LasciaLunghezza() {
    L = m_a_mm(NumeroIn(ui_->Txt_L));
    if (LunghezzaValida())
        return;
    lunghezzaDetta_ = true;
    QTimer::singleShot(0, this, [this] { lunghezzaDetta_ = false; });
}

void frmTimoshenko::Calcolo() {
    ui_->Lbl_Mcr->clear();
    L = m_a_mm(NumeroIn(ui_->Txt_L));
    if (std::exchange(lunghezzaDetta_, false) && !(L > 0))
        return;
    Iz = cm4_a_mm4(NumeroIn(ui_->TxtIz));
    IT = cm4_a_mm4(NumeroIn(ui_->TxtIT));
    Iw = cm6_a_mm6(NumeroIn(ui_->TxtIw));
    if (Iz < 0 || IT < 0 || Iw < 0)
        return; // the box is marked
    const auto Mcr =
        Mensola() ? McrMensola(TipoCarico(), QuotaCarico()) : McrAppoggiata(TipoCarico(), QuotaCarico());
    if (Mcr)
        ui_->Lbl_Mcr->setText(QString::fromStdString(FormatoCifre(4, Nmm_a_kNm(*Mcr))));
}

void frmTimoshenko::Disegna() {
    ui_->Picture1->Mostra(DisegnoTrave({Mensola(), TipoCarico() == caricoDistribuito, QuotaCarico()}));
}

} // namespace sagomi
