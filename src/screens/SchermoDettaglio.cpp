#include "screens/SchermoDettaglio.h"

#include <QRegularExpression>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "frame/Acciaio.h"
#include "frame/Attesa.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/EtichettaRisultato.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/UpDown.h"
#include "screens/AggiornaVisibili.h"
#include "screens/SchermoSezione.h"
#include "screens/TestaDettaglio.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

/// Forces and moments, by their names.
bool EAzione(const QString& nome) { return nome.startsWith(u"TxtN") || nome.startsWith(u"TxtM"); }

/// Why an action cannot be: in N or N mm it is beyond what a section holds.
QString MotivoAzione(const QLineEdit* box) {
    const double value = NumeroIn(box);
    const double inSection = box->objectName().startsWith(u"TxtN") ? kN_a_N(value) : kNm_a_Nmm(value);
    return std::isfinite(Singolo(inSection).Stretto()) ? QString() : QObject::tr("Il numero è troppo grande");
}

/// Numbers that differ by more than the boxes show, which are filled with seven figures.
bool Diversi(double a, double b) {
    constexpr double cifreSingolo = 5e-7;
    return !(std::abs(a - b) <= cifreSingolo * std::max(std::abs(a), std::abs(b)));
}

} // namespace

SchermoDettaglio::SchermoDettaglio(const QString& nome) : Schermo(nome) {}

void SchermoDettaglio::ApreDa(SchermoSezione& chiamante, Schermo& da) {
    chiamante_ = &chiamante;
    {
        const QScopedValueRollback guard(inCalcolo_, true);
        CopiaIntestazione();
        RiempieDati();
    }
    if (chiamante.valoriScelti)
        presaVista_ = chiamante.valoriScelti->presa;
    RicordaChiamante();
    NavigaSchermi::Unico().Apre(*this, da);
}

void SchermoDettaglio::Apre(Schermo& da) {
    const auto* detail = dynamic_cast<SchermoDettaglio*>(&da);
    auto* main = detail != nullptr ? detail->chiamante_ : dynamic_cast<SchermoSezione*>(&da);
    if (main == nullptr)
        throw std::logic_error(da.objectName().toStdString() + " non ha sagomi");
    ApreDa(*main, da);
}

void SchermoDettaglio::AllAttivazione() {
    if (chiamante_ != nullptr)
        Ricalcola();
}

// N and the buckling lengths, under the names that they have on both screens.
QList<QLineEdit*> SchermoDettaglio::CaselleDelChiamante() const {
    QList<QLineEdit*> boxes = chiamante_->Txt_L0;
    if (chiamante_->TxtNsd != nullptr)
        boxes << chiamante_->TxtNsd;
    return boxes;
}

void SchermoDettaglio::RicordaChiamante() {
    visti_.clear();
    for (const QLineEdit* box : CaselleDelChiamante())
        visti_ << NumeroIn(box);
}

void SchermoDettaglio::Aggiorna() {
    if (inCalcolo_ || chiamante_ == nullptr)
        return;
    {
        const QScopedValueRollback guard(inCalcolo_, true);
        const auto boxes = CaselleDelChiamante();
        for (int i = 0; i < boxes.size() && i < visti_.size(); ++i) {
            auto* own = findChild<QLineEdit*>(boxes[i]->objectName());
            const bool alike = own != nullptr && !sagomi::InDigitazione(own) && NumeroIn(own) == visti_[i];
            if (alike && NumeroIn(boxes[i]) != visti_[i])
                own->setText(TestoPulito(boxes[i]));
        }
    }
    RicordaChiamante();
    const QScopedValueRollback copy(suCopia_, true);
    Ricalcola();
}

bool SchermoDettaglio::RiportaAlChiamante() {
    bool some = false;
    for (QLineEdit* box : CaselleDelChiamante()) {
        const auto* own = findChild<QLineEdit*>(box->objectName());
        if (own != nullptr && !own->isReadOnly() && Diversi(NumeroIn(own), NumeroIn(box))) {
            some = true;
            box->setText(TestoPulito(own));
        }
    }
    RicordaChiamante();
    return some;
}

// The caller shows its results for N; the section in hand keeps what this screen has made of it.
void SchermoDettaglio::Riporta() {
    const QScopedValueRollback own(SezioneCorrente, CopiaSezione());
    RiportaAlChiamante();
}

void SchermoDettaglio::Lega(QLineEdit* casella, Singolo SezioneDoppioT::*valore, double unita) {
    legami_.append({casella, valore, unita});
}

bool SchermoDettaglio::StessaSezione() const {
    return Sezione() != nullptr && SezioneInUso<SezioneDoppioT>(sezioneVista_) == Sezione();
}

// The entries of a screen that stands open were another row's; before the caller has computed there is
// nothing to take.
void SchermoDettaglio::PrendeDallaScelta() {
    const auto& scelti = chiamante_->valoriScelti;
    if (!scelti || scelti->presa == presaVista_ || chiamante_->CaricaForm || Sezione() == nullptr)
        return;
    presaVista_ = scelti->presa;
    RiempieDaScelta(*scelti);
}

void SchermoDettaglio::PrendeDallaSezione() {
    if (!StessaSezione())
        return;
    for (const Legame& l : legami_) {
        const double given = Sezione()->*l.valore;
        if (!sagomi::InDigitazione(l.casella) && std::isfinite(given) && Diversi(given, l.visto))
            Riempie(l.casella, given / l.unita);
    }
}

void SchermoDettaglio::RicordaSezione() {
    if (suCopia_ || Sezione() == nullptr)
        return;
    for (Legame& l : legami_)
        l.visto = Sezione()->*l.valore;
    sezioneVista_ = SezioneCorrente;
}

void SchermoDettaglio::CollegaControlli(std::function<bool(QLineEdit*)> invio) {
    PreparaContenuto();
    entrate_ = new FiltroCampi(this, std::move(invio));
    for (QLineEdit* box : findChildren<QLineEdit*>())
        if (!box->isReadOnly())
            entrate_->Osserva(box);
    Collega(entrate_, &FiltroCampi::conclusa, this, [this](QLineEdit* box) { Conclusa(box); });
    CollegaFy();
    if (auto* rows = findChild<UpDown*>(QStringLiteral("UpDown1")))
        Collega(rows, &UpDown::passo, this, [this](bool su) { PassoDiRiga(su); });
    if (auto* steel = findChild<UpDown*>(QStringLiteral("UpDown2")))
        Collega(steel, &UpDown::passo, this, [this](bool su) { PassoDiAcciaio(su); });
}

// The strength belongs to the caller: its box takes what is typed here, and its reaction puts it into the
// section.
void SchermoDettaglio::CollegaFy() {
    auto* fy = findChild<QLineEdit*>(QStringLiteral("Txt_fy"));
    if (fy == nullptr || fy->isReadOnly())
        return;
    regole_.Aggiunge(
        {.caselle = {fy},
         .motivo = [fy] { return FyPossibile(NumeroIn(fy)) ? QString() : tr("fy deve essere > 0"); },
         .corregge = [this] { CopiaIntestazione(); },
         .risultati = TuttiRisultati()});
    Collega(fy, &QLineEdit::textChanged, this, [this, fy] { FyCambiato(fy); });
}

void SchermoDettaglio::FyCambiato(QLineEdit* fy) {
    if (inCalcolo_ || chiamante_ == nullptr)
        return;
    const AggiornamentoRinviato filling(*this);
    const bool typed = InDigitazione(fy);
    const double value = NumeroIn(fy);
    if (value != NumeroIn(chiamante_->Txt_fy) && (!typed || FyPossibile(value))) {
        const MessaggiTaciuti quiet(typed);
        chiamante_->Txt_fy->setText(TestoPulito(fy));
        daRipetere_ = daRipetere_ || quiet.Trattenuti();
    }
    Ricalcola();
}

// What the caller would have said while the user typed, it says now.
void SchermoDettaglio::Conclusa(QLineEdit* casella) {
    if (std::exchange(daRipetere_, false) && chiamante_ != nullptr && chiamante_->RigaInMano())
        chiamante_->Risultati();
    if (casella->objectName() == u"Txt_fy")
        FyCambiato(casella);
    else
        Ricalcola();
}

void SchermoDettaglio::CalcolaA(const QList<QLineEdit*>& caselle) {
    for (QLineEdit* box : caselle) {
        Collega(box, &QLineEdit::textChanged, this, [this] { Ricalcola(); });
        if (EAzione(box->objectName()))
            regole_.Aggiunge({.caselle = {box},
                              .motivo = [box] { return MotivoAzione(box); },
                              .risultati = TuttiRisultati()});
    }
}

QList<QWidget*> SchermoDettaglio::TuttiRisultati() const {
    static const QRegularExpression verdicts(QStringLiteral("^(Lbl_Risult|LblUtilizzo|LblMotivo)"));
    QList<QWidget*> all;
    for (EtichettaRisultato* result : findChildren<EtichettaRisultato*>())
        all << result;
    for (QLabel* label : findChildren<QLabel*>(verdicts))
        if (!all.contains(label))
            all << label;
    if (auto* bow = findChild<QLineEdit*>(QStringLiteral("txtE0")))
        all << bow;
    return all;
}

QList<QWidget*> SchermoDettaglio::Controlli(std::initializer_list<const char*> nomi) const {
    QList<QWidget*> controls;
    for (const char* name : nomi)
        if (auto* control = findChild<QWidget*>(QString::fromLatin1(name)))
            controls << control;
    return controls;
}

void SchermoDettaglio::CompletaForm(SchermoSezione& chiamante) {
    const AggiornamentoRinviato filling(*this);
    chiamante_ = &chiamante;
    const QScopedValueRollback guard(inCalcolo_, true); // the corrections write into their boxes
    regole_.Applica();
    const MessaggiTaciuti quiet(entrate_->InDigitazione());
    if (!suCopia_)
        Riporta();
    PrendeDallaSezione();
    Calcola();
    RicordaSezione();
    regole_.SvuotaRisultati();
    if (!FyPossibile(NumeroIn(chiamante.Txt_fy))) // it is being typed there
        Svuota();
    daRipetere_ = daRipetere_ || quiet.Trattenuti();
}

void SchermoDettaglio::Ricalcola() {
    if (inCalcolo_ || chiamante_ == nullptr)
        return;
    const QScopedValueRollback guard(inCalcolo_, true);
    CopiaIntestazione();
    if (!chiamante_->RigaInMano() || !chiamante_->SezioneMia()) {
        Svuota();
        return;
    }
    PrendeDallaScelta();
    CompletaForm(*chiamante_);
}

void SchermoDettaglio::Svuota() {
    for (QWidget* result : TuttiRisultati())
        SvuotaRisultato(result);
}

void SchermoDettaglio::CopiaIntestazione() {
    const auto copy = [this](const char* name, const QString& text) {
        if (auto* box = findChild<QLineEdit*>(QString::fromLatin1(name));
            box != nullptr && !InDigitazione(box))
            box->setText(text);
    };
    copy("Txt_Prof", chiamante_->TxtProf[0]->text());
    copy("Txt_TipoAcciaio",
         QString::fromStdString(AcciaioMostrato(chiamante_->ComboTipoAcciaio->currentText().toStdString(),
                                                NumeroIn(chiamante_->Txt_fy))));
    copy("Txt_fy", chiamante_->Txt_fy->text());
    if (auto* head = findChild<TestaDettaglio*>())
        head->MostraNormativa();
}

void SchermoDettaglio::PassoDiRiga(bool su) {
    const AggiornamentoRinviato filling(*this);
    const auto old = SezioneCorrente; // keeps the old section alive while the new one takes its place
    MuoviRecord(chiamante_->Data1->Recordset(), su);
    Prosegue();
    const auto* before = SezioneInUso<SezioneDoppioT>(old);
    if (before != nullptr && Sezione() != nullptr && before != Sezione())
        RiportaValori(*before, *Sezione());
    Ricalcola();
}

void SchermoDettaglio::PassoDiAcciaio(bool su) {
    const AggiornamentoRinviato filling(*this);
    MuoviAcciaio(su, *chiamante_, findChild<QLineEdit*>(QStringLiteral("Txt_TipoAcciaio")),
                 findChild<QLineEdit*>(QStringLiteral("Txt_fy")));
    Ricalcola();
}

void SchermoDettaglio::RiportaValori(const SezioneDoppioT& /*vecchia*/, SezioneDoppioT& /*nuova*/) {}

SezioneDoppioT* SchermoDettaglio::Sezione() { return SezioneInUso<SezioneDoppioT>(); }

void MuoviAcciaio(bool su, SchermoSezione& chiamante, QLineEdit* tipo, QLineEdit* fy) {
    const int index = chiamante.ComboTipoAcciaio->currentIndex() + (su ? 1 : -1);
    if (index >= 0 && index < chiamante.ComboTipoAcciaio->count()) {
        chiamante.ComboTipoAcciaio->setCurrentIndex(index);
        chiamante.AcciaioScelto();
    }
    if (tipo != nullptr)
        tipo->setText(chiamante.ComboTipoAcciaio->currentText());
    if (fy != nullptr)
        fy->setText(chiamante.Txt_fy->text());
}

} // namespace sagomi
