#include "screens/FrmMcRd.h"

#include <cmath>

#include "frame/GeneraleSagomi.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Esito.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/Protetto.h"
#include "report/RelazioneSagomo.h"
#include "report/ui/ComandoRelazione.h"
#include "screens/NoteSezione.h"
#include "sections/DisegnoSagoma.h"
#include "sections/Duttilita.h"
#include "sections/SezioneCorrente.h"
#include "ui_FrmMcRd.h"

namespace sagomi {

namespace {

constexpr int cifre = 4;
constexpr int cifreLimite = 3;

/// The moduli among which a class chooses.
struct Moduli {
    double plastico, elastico, efficace;
};

double InForza(int classe, const Moduli& w) {
    return classe < 3 ? w.plastico : classe == 3 ? w.elastico : w.efficace;
}

std::string Modulo(int classe, const Moduli& w) {
    if (classe < 3)
        return "Plastico " + FormatoCifreEsp(cifre, Singolo(w.plastico));
    if (classe == 3)
        return "Elastico " + FormatoCifreEsp(cifre, Singolo(w.elastico));
    return "Effettivo " + FormatoCifreEsp(cifre, w.efficace);
}

/// The numbers put in: W [mm3] times fy [N/mm2] over the factor, N mm in kNm.
std::string Numeri(double W, Singolo fy, Singolo gamma) {
    if (!std::isfinite(W))
        return {};
    return Formato("#,##0", W) + " · " + TestoPiano(fy) + " / (" + TestoPiano(gamma) + " · 10⁶)";
}

/// ENV 1993-1-1 5.4.5.2: W fy over the factor of the class.
void MostraDerivazione(QLabel* factor, EtichettaFormula* formula, QLabel* numbers, int classe,
                       const Moduli& w, Singolo fy) {
    const bool efficace = classe > 3;
    const Singolo gamma = efficace ? GammaM1 : GammaM0;
    Mostra(factor, TestoPiano(gamma));
    Mostra(numbers, Numeri(InForza(classe, w), fy, gamma));
    formula->ImpostaFormula(efficace ? QStringLiteral("W{eff} f{y} / γ{M1}")
                                     : QStringLiteral("W f{y} / γ{M0}"));
}

std::string Momento(double m) { return FormatoCifreEsp(cifre, Nmm_a_kNm(m)); }

std::string Uguale(int figures, double value) {
    return std::isfinite(value) ? "=" + FormatoCifreEsp(figures, value) : std::string();
}

} // namespace

FrmMcRd::FrmMcRd() : SchermoDettaglio(QStringLiteral("FrmMcRd")), ui_(new Ui::FrmMcRd) {
    ui_->setupUi(this);
    ui_->Picture1->Mostra(DisegnoSagoma({}));
    nota_ = CreaNota("LblFibraInferiore");
    ui_->loMomento->addWidget(nota_, ui_->loMomento->rowCount(), 0, 1, -1);
    CollegaControlli();
    regole_.Aggiunge({.caselle = {ui_->txtLstar}, .motivo = [this] {
                          return NumeroIn(ui_->txtLstar) < 0 ? tr("L* non può essere negativa") : QString();
                      }});
    CalcolaA({ui_->TxtNsd});
    Collega(ui_->txtLstar, &QLineEdit::textChanged, this, [this] { Duttilita(); });
    AggiungeRelazione(*this, [this] { return DaRiportare(); });
    DimensionaIniziale({});
}

FrmMcRd::~FrmMcRd() = default;

Relazione FrmMcRd::DaRiportare() {
    Relazione report;
    if (regole_.Applica())
        SullaSezioneInUso([&](const ConMomenti auto& s) {
            report = RelazioneResistenze(s, objectName().toStdString(),
                                         {kN_a_N(NumeroIn(ui_->TxtNsd)), NumeroIn(ui_->txtLstar)});
        });
    return report;
}

void FrmMcRd::RiempieDati() {
    SullaSezioneInUso([this](const ConMomenti auto& s) { Riempie(ui_->TxtNsd, N_a_kN(s.NSd)); });
    FuocoSu(ui_->TxtNsd);
}

void FrmMcRd::Calcola() {
    SullaSezioneInUso([this](const ConMomenti auto& s) {
        ui_->Lbl_Classe_0->setText(QString::number(s.ClasseFlessioneY));
        ui_->Lbl_Classe_1->setText(QString::number(s.ClasseFlessioneZ));
        const Moduli y{s.Wply, s.Wely, s.WyEff};
        const Moduli z{s.Wplz, s.Welz, s.WzEff};
        Mostra(ui_->Lbl_W_0, Modulo(s.ClasseFlessioneY, y));
        Mostra(ui_->Lbl_W_1, Modulo(s.ClasseFlessioneZ, z));
        MostraDerivazione(ui_->Lbl_GammaM_0, ui_->LblFormulaMcRd_0, ui_->Lbl_Numeri_0, s.ClasseFlessioneY, y,
                          s.fy);
        MostraDerivazione(ui_->Lbl_GammaM_1, ui_->LblFormulaMcRd_1, ui_->Lbl_Numeri_1, s.ClasseFlessioneZ, z,
                          s.fy);
        Mostra(ui_->Lbl_McRd_0, Momento(s.McyRd));
        Mostra(ui_->Lbl_McRd_1, Momento(s.MczRd));
        ui_->Picture1->Mostra(DisegnoSagoma(SagomaDi(s)));
    });
    const SezioneDoppioT* section = Sezione();
    MostraNota(nota_, section == nullptr ? std::string() : NotaMcyRd(*section));
    Duttilita();
}

void FrmMcRd::Duttilita() {
    regole_.Applica();
    CalcolaDuttilita(kN_a_N(NumeroIn(ui_->TxtNsd)), NumeroIn(ui_->txtLstar));
}

void FrmMcRd::CalcolaDuttilita(double N, double Lstar) {
    SullaSezioneInUso([&]<ConMomenti S>(const S& s) requires ConAnimaEAli<S> {
        const SezioneDuttile section{s.h, s.b, s.tw, s.tf, s.Area, s.fy, s.fu};
        const DuttilitaCalcolata r = sagomi::CalcolaDuttilita(section, N, Lstar);
        Mostra(ui_->Lbl_s_0, Lstar > 0 ? Uguale(cifre, r.s) : "L* ?");
        Mostra(ui_->Lbl_s_1, Uguale(cifreLimite, r.limite));
        MostraGoverna(ui_->Lbl_s_0, r.s <= r.limite);
        MostraGoverna(ui_->Lbl_s_1, r.s > r.limite);
    });
}

} // namespace sagomi
