#include "screens/frmDoppioT.h"

#include "catalogue/Catalogo.h"
#include "catalogue/ControlloDati.h"
#include "catalogue/Famiglie.h"
#include "catalogue/RigaDoppioT.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/Twips.h"
#include "sections/DisegnoSagoma.h"
#include "sections/SezioneCorrente.h"
#include "ui_frmDoppioT.h"

namespace sagomi {

namespace {

constexpr int larghezzaInizialeTwips = 9600;
constexpr int altezzaInizialeTwips = 7680;

SezioneDoppioT* Sezione() { return SezioneInUso<SezioneDoppioT>(); }

void Mostra(QLineEdit* box, double value) { box->setText(QString::fromStdString(FormatoCifre(4, value))); }

} // namespace

frmDoppioT::frmDoppioT() : SchermoSezione(QStringLiteral("frmDoppioT")), ui_(new Ui::frmDoppioT) {
    ui_->setupUi(this);
    ui_->Picture1->Mostra(DisegnoSagoma({}));
    CollegaControlli();
    Collega(TxtNsd, &QLineEdit::textChanged, this, [this] {
        if (CaricaForm || !RigaInMano() || Sezione() == nullptr)
            return;
        Sezione()->NSd = kN_a_N(NumeroIn(TxtNsd));
        Risultati();
    });
    Collega(ui_->lblVplRd, &QPushButton::clicked, this,
            [] { Avvisa("d/tw > 69 epsilon. Verificare instabilità per taglio EC3 #5.4.6.(7)"); });
    ui_->lblVplRd->hide();
    CollegaDettagli();
    Carica();
}

frmDoppioT::~frmDoppioT() = default;

void frmDoppioT::CollegaDettagli() {
    const std::pair<QPushButton*, const char*> details[] = {{ui_->LblClasse, "FrmClasseDoppioTU"},
                                                            {ui_->LblNbRd, "FrmInstabDoppioT"},
                                                            {ui_->LblMcRd, "FrmMcRd"},
                                                            {ui_->Command1, "FrmPresFless"}};
    for (const auto& [button, name] : details)
        Collega(button, &QPushButton::clicked, this,
                [this, name = QString::fromLatin1(name)] { ApriDettaglio(name); });
    Collega(ui_->Command2, &QPushButton::clicked, this, [this] {
        if (SezioneDoppioT* s = Sezione()) {
            s->k = 1;
            s->Kw = 1;
            s->C1 = 1;
        }
        ApriDettaglio(QStringLiteral("FrmMsverg"));
    });
}

void frmDoppioT::Carica() {
    SeparatoriControlla(ui_->txtNascosto);
    const auto workbook = FileAccanto(PathProgramma, "Sagomi.xls");
    RendiSolaLettura(workbook);
    Data1->DatabaseName(workbook);
    SQLstring = FamigliaDi("frmDoppioT").primaQuery;
    DimensionaIniziale(QSize(larghezzaInizialeTwips, altezzaInizialeTwips) / twipsAPixel);
    WidthIni = width() * twipsAPixel;
    HeightIni = height() * twipsAPixel;
    CaricaFormComune(*this);
    AggiornaCaptionNormativa(*this);
    DBGrid1->setFocus();
}

void frmDoppioT::Leggedati() {
    if (!RigaInMano())
        return;
    auto section = std::make_shared<SezioneDoppioT>();
    LeggeRiga(Data1->Recordset(), *section);
    section->TipoAcciaio = ComboTipoAcciaio->currentText().toStdString();
    section->L0y = m_a_mm(NumeroIn(Txt_L0[0]));
    section->L0z = m_a_mm(NumeroIn(Txt_L0[1]));
    section->fy = NumeroIn(Txt_fy);
    section->fu = NumeroIn(Txt_fu);
    section->NSd = kN_a_N(NumeroIn(TxtNsd));
    SezioneCorrente = std::move(section);
}

void frmDoppioT::Risultati() {
    if (!RigaInMano() || Sezione() == nullptr) {
        SvuotaRisultati();
        return;
    }
    Sezione()->Saldata = false;
    Sezione()->InizializzaSezione(this);
    MostraClassi();
    MostraResistenze();
    ui_->Picture1->Mostra(DisegnoSagoma(SagomaDi(*Sezione())));
}

void frmDoppioT::MostraClassi() {
    const SezioneDoppioT& s = *Sezione();
    ui_->TxtClasseCompressione->setText(QString::number(s.ClasseCompressione));
    ui_->TxtClasseFlessioneY->setText(QString::number(s.ClasseFlessioneY));
    ui_->TxtClasseFlessioneZ->setText(QString::number(s.ClasseFlessioneZ));
    ui_->TxtClassePressFless->setText(QString::number(s.ClassePressoFlessione));
}

void frmDoppioT::MostraResistenze() {
    const SezioneDoppioT& s = *Sezione();
    Mostra(ui_->TxtNbRd_0, N_a_kN(s.NbyRd));
    Mostra(ui_->TxtNbRd_1, N_a_kN(s.NbzRd));
    Mostra(ui_->TxtMcRd_0, Nmm_a_kNm(s.McyRd));
    Mostra(ui_->TxtMcRd_1, Nmm_a_kNm(s.MczRd));
    Mostra(ui_->TxtVplRd_0, N_a_kN(s.VplyRd));
    Mostra(ui_->TxtVplRd_1, N_a_kN(s.VplzRd));
    if (!s.ErroreDatiDatabase)
        return;
    // A row whose data do not compute has no buckling resistance, and what follows from it was not reached.
    for (QLineEdit* box : {ui_->TxtNbRd_0, ui_->TxtNbRd_1, ui_->TxtVplRd_0, ui_->TxtVplRd_1})
        box->clear();
}

void frmDoppioT::SvuotaRisultati() {
    for (QLineEdit* box : {ui_->TxtClasseCompressione, ui_->TxtClasseFlessioneY, ui_->TxtClasseFlessioneZ,
                           ui_->TxtClassePressFless, ui_->TxtNbRd_0, ui_->TxtNbRd_1, ui_->TxtMcRd_0,
                           ui_->TxtMcRd_1, ui_->TxtVplRd_0, ui_->TxtVplRd_1})
        box->clear();
    ui_->lblVplRd->hide();
    ui_->Picture1->Mostra({});
}

void frmDoppioT::ControlloDati() {
    if (RigaInMano() && Sezione() != nullptr)
        ControlloDatiLaminati(Data1->Recordset(), *Sezione());
}

bool frmDoppioT::Invio(QLineEdit* casella) {
    if (casella == Txt_fy)
        FuocoSu(Txt_L0[0]);
    else if (casella == Txt_L0[0])
        FuocoSu(Txt_L0[1]);
    else if (casella == Txt_L0[1])
        FuocoSu(TxtNsd);
    else if (casella == TxtNsd)
        ui_->Command1->setFocus(Qt::TabFocusReason); // a disabled button refuses and the focus stays
    else
        return false;
    return true;
}

} // namespace sagomi
