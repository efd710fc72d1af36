#include "screens/FrmInstabDoppioT.h"

#include <QRadioButton>
#include <QScopedValueRollback>

#include <limits>

#include "frame/Messaggi.h"
#include "frame/ui/Campi.h"
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
constexpr const char* motivoSnellezza = "La snellezza non può essere negativa";
constexpr const char* motivoBetaA = "BetaA deve essere <=1";
constexpr const char* nomeLamda = "lamda";
constexpr const char* nomeLamdaSegnato = "lamda segnato";

/// A row without a radius of gyration has no slenderness about that axis, nor has a negative length.
bool Calcolabile(const SezioneDoppioT& s, int axis) {
    return (axis == 0 ? s.iY : s.iZ) != 0 && !((axis == 0 ? s.L0y : s.L0z) < 0);
}

/// EC3 6.3.1, from the slenderness to the resistance.
const std::vector<Passo>& Derivazione() {
    static const std::vector<Passo> passi = {
        {{"", "lamda"}, "Lamda", "lamda", "λ = L0 / i", "Snellezza", "EC3 6.3.1.3"},
        {{"", "lamda segnato"},
         "LamdaS",
         "lamda segnato",
         "λ̄ = λ / λ1 · √βA",
         "Snellezza relativa",
         "EC3 6.3.1.3"},
        {{"", "curva"}, "Curva", "curva", "", "Curva d'instabilità", "EC3 tabella 6.2"},
        {{"", "alfa"}, "Alfa", "alfa", "α", "Fattore di imperfezione", "EC3 tabella 6.1"},
        {{"", "fi"},
         "Fi",
         "fi",
         "φ = ½ [1 + α (λ̄ − 0,2) + λ̄²]",
         "Termine del coefficiente di riduzione",
         "EC3 6.3.1.2"},
        {{"", "chi"},
         "chi",
         "chi",
         "χ = 1 / [φ + √(φ² − λ̄²)]",
         "Coefficiente di riduzione, al più 1",
         "EC3 6.3.1.2"},
        {{"", "N    [kN]", "cr"}, "Ncr", "Ncr", "π² E A / λ²", "Carico critico elastico", "EC3 6.3.1.2"},
        {{"", "N        [kN]", "b,Rd"},
         "NbRd",
         "NbRd",
         "χ βA A fy / γM1",
         "Resistenza di progetto all'instabilità",
         "EC3 6.3.1.1"},
    };
    return passi;
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
    ui_->colonne->Componi(Derivazione(), {QStringLiteral("y-y"), QStringLiteral("z-z")});
    CollegaControlli();
    optChi_ = Vettore<QRadioButton>(QStringLiteral("optChi"));
    optE0_ = Vettore<QRadioButton>(QStringLiteral("optE0"));
    txtChi_ = Vettore<QLineEdit>(QStringLiteral("txtChi"));
    CollegaRegole();
    CollegaCalcolo();
    DimensionaIniziale({});
}

FrmInstabDoppioT::~FrmInstabDoppioT() = default;

void FrmInstabDoppioT::CollegaRegole() {
    const auto results = Controlli({"txtChi_2", "txtChi_4", "txtChi_5"});
    regole_.Aggiungi({.caselle = {txtChi_[0]},
                      .motivo = [this] { return NumeroIn(txtChi_[0]) < 0 ? tr(motivoSnellezza) : QString(); },
                      .risultati = results});
    regole_.Aggiungi({.caselle = {txtChi_[1]},
                      .motivo = [this] { return NumeroIn(txtChi_[1]) > 1 ? tr(motivoBetaA) : QString(); },
                      .corregge = [this] { CorreggiBetaA(); },
                      .risultati = results});
}

void FrmInstabDoppioT::CollegaCalcolo() {
    for (QRadioButton* option : optChi_)
        Collega(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                CalcolaChi();
        });
    for (QRadioButton* option : optE0_)
        Collega(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                MostraFreccia();
        });
    Collega(txtChi_[0], &QLineEdit::textChanged, this, [this] { CalcolaChi(); });
    Collega(txtChi_[1], &QLineEdit::textChanged, this, [this] { CalcolaChi(); });
    Collega(ui_->ComboChi, &QComboBox::currentIndexChanged, this, [this] { CalcolaChi(); });
    Collega(ui_->LblNbRd, &QPushButton::clicked, this, [] { SpiegaFreccia(); });
}

void FrmInstabDoppioT::Calcola() {
    const SezioneDoppioT* s = Sezione();
    if (s == nullptr)
        return;
    Mostra(ui_->Lbl_eps, "0.0#", Epsilon(s->fy));
    Mostra(ui_->Lbl_Lamda1, "0.0#", Lamda1(Epsilon(s->fy)));
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
    ColonnaInstabilita(Calcolabile(*s, asse) ? lamda : nessunNumero, asse, *this);
}

void FrmInstabDoppioT::CorreggiBetaA() {
    const QScopedValueRollback guard(correggendo_, true);
    Avvisa(motivoBetaA);
    txtChi_[1]->setText(QStringLiteral("1"));
}

void FrmInstabDoppioT::CalcolaChi() {
    const SezioneDoppioT* s = Sezione();
    if (s == nullptr || correggendo_)
        return;
    const QScopedValueRollback guard(correggendo_, true);
    regole_.Applica();
    const bool relativa = optChi_[1]->isChecked();
    ui_->LblChi_0->setText(QString::fromLatin1(relativa ? nomeLamdaSegnato : nomeLamda));
    ui_->LblChi_2->setText(QString::fromLatin1(relativa ? nomeLamda : nomeLamdaSegnato));
    const auto r = CalcolaRiduzione(NumeroIn(txtChi_[0]), relativa, s->fy, NumeroIn(txtChi_[1]),
                                    ui_->ComboChi->currentText().toStdString());
    const auto show = [this](int i, std::string_view picture, double value) {
        txtChi_[i]->setText(QString::fromStdString(Formato(picture, value)));
    };
    show(2, relativa ? "0.0#" : "0.0###", r.altra);
    show(3, "0.0#", r.alfa);
    show(4, "0.0###", r.fi);
    show(5, "0.0###", r.chi);
    regole_.SvuotaRisultati();
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
