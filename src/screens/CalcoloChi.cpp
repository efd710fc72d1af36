#include "screens/CalcoloChi.h"

#include <QScopedValueRollback>

#include <cmath>

#include "frame/Messaggi.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/Protetto.h"
#include "sections/ColonnaInstabilita.h"
#include "ui_CalcoloChi.h"

namespace sagomi {

namespace {

constexpr const char* motivoSnellezza = "La snellezza non può essere negativa";
constexpr const char* motivoBetaA = "BetaA deve essere <=1";
constexpr const char* nomeLamda = "lamda";
constexpr const char* nomeLamdaSegnato = "lamda segnato";
constexpr const char* simboloLamda = "λ";
constexpr const char* simboloLamdaSegnato = "λ̄";

void Scrive(QLineEdit* box, std::string_view picture, double value) {
    box->setText(QString::fromStdString(Formato(picture, value)));
}

} // namespace

CalcoloChi::CalcoloChi(QWidget* parent) : QGroupBox(parent), ui_(new Ui::CalcoloChi) {
    ui_->setupUi(this);
    txtChi_ = {ui_->txtChi_0, ui_->txtChi_1, ui_->txtChi_2, ui_->txtChi_3, ui_->txtChi_4, ui_->txtChi_5};
    CollegaRegole();
    CollegaDati();
}

CalcoloChi::~CalcoloChi() = default;

void CalcoloChi::CollegaRegole() {
    const QList<QWidget*> results{txtChi_[2], txtChi_[4], txtChi_[5]};
    regole_.Aggiunge({.caselle = {txtChi_[0]},
                      .motivo = [this] { return NumeroIn(txtChi_[0]) < 0 ? tr(motivoSnellezza) : QString(); },
                      .risultati = results});
    regole_.Aggiunge({.caselle = {txtChi_[1]},
                      .motivo = [this] { return NumeroIn(txtChi_[1]) > 1 ? tr(motivoBetaA) : QString(); },
                      .corregge = [this] { CorreggeBetaA(); },
                      .risultati = results});
}

void CalcoloChi::CollegaDati() {
    Collega(ui_->optChi_0, &QRadioButton::toggled, this, [this](bool on) { Converte(!on); });
    for (QLineEdit* box : {txtChi_[0], txtChi_[1]})
        Collega(box, &QLineEdit::textChanged, this, [this] { Ricalcola(); });
    Collega(ui_->ComboChi, &QComboBox::currentIndexChanged, this, [this] { Ricalcola(); });
}

void CalcoloChi::Calcola(double fy) {
    fy_ = fy;
    Ricalcola();
}

void CalcoloChi::ProponeCurva(const std::string& curva) {
    if (curva == proposta_)
        return;
    proposta_ = curva;
    ui_->ComboChi->setCurrentText(QString::fromStdString(curva));
}

void CalcoloChi::CorreggeBetaA() {
    Avvisa(motivoBetaA);
    txtChi_[1]->setText(QStringLiteral("1"));
}

// The member stays the same one, said in the other slenderness.
void CalcoloChi::Converte(bool aRelativa) {
    const auto r = CalcolaRiduzione(NumeroIn(txtChi_[0]), !aRelativa, fy_, NumeroIn(txtChi_[1]),
                                    ui_->ComboChi->currentText().toStdString());
    const bool given = !txtChi_[0]->text().trimmed().isEmpty();
    if (given && fy_ > 0 && std::isfinite(r.altra)) {
        const QScopedValueRollback guard(correggendo_, true);
        Riempie(txtChi_[0], r.altra);
    }
    Ricalcola();
}

void CalcoloChi::MostraSimboli(bool relativa) {
    ui_->LblChi_0->setText(QString::fromLatin1(relativa ? nomeLamdaSegnato : nomeLamda));
    ui_->LblChi_2->setText(QString::fromLatin1(relativa ? nomeLamda : nomeLamdaSegnato));
    ui_->LblChi_0->ImpostaSimbolo(QString::fromUtf8(relativa ? simboloLamdaSegnato : simboloLamda));
    ui_->LblChi_2->ImpostaSimbolo(QString::fromUtf8(relativa ? simboloLamda : simboloLamdaSegnato));
}

void CalcoloChi::Ricalcola() {
    if (correggendo_ || !(fy_ > 0))
        return;
    const QScopedValueRollback guard(correggendo_, true);
    regole_.Applica();
    const bool relativa = ui_->optChi_1->isChecked();
    MostraSimboli(relativa);
    const auto r = CalcolaRiduzione(NumeroIn(txtChi_[0]), relativa, fy_, NumeroIn(txtChi_[1]),
                                    ui_->ComboChi->currentText().toStdString());
    Scrive(txtChi_[2], relativa ? "0.0#" : "0.0###", r.altra);
    Scrive(txtChi_[3], "0.0#", r.alfa);
    Scrive(txtChi_[4], "0.0###", r.fi);
    Scrive(txtChi_[5], "0.0###", r.chi);
    regole_.SvuotaRisultati();
}

} // namespace sagomi
