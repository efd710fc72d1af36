#include "screens/frmDoppioT.h"

#include "catalogue/Catalogo.h"
#include "catalogue/ControlloDati.h"
#include "catalogue/Famiglie.h"
#include "catalogue/RigaDoppioT.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/Twips.h"
#include "sections/AreaEfficace.h"
#include "sections/DisegnoSagoma.h"
#include "sections/SezioneCorrente.h"
#include "ui_frmDoppioT.h"

namespace sagomi {

namespace {

constexpr int larghezzaInizialeTwips = 9600;
constexpr int altezzaInizialeTwips = 7680;

SezioneDoppioT* Sezione() { return SezioneInUso<SezioneDoppioT>(); }

QString Cifre(double value) { return QString::fromStdString(FormatoCifre(4, value)); }

} // namespace

frmDoppioT::frmDoppioT() : SchermoSezione(QStringLiteral("frmDoppioT")), ui_(new Ui::frmDoppioT) {
    ui_->setupUi(this);
    ui_->Picture1->Mostra(DisegnoSagoma({}));
    CollegaControlli();
    Collega(TxtNsd, &QLineEdit::textChanged, this, [this] {
        if (CaricaForm || !RigaInMano() || Sezione() == nullptr)
            return;
        Sezione()->NSd = kN_a_N(NumeroIn(TxtNsd));
        const MessaggiTaciuti quiet(InDigitazione(TxtNsd));
        Risultati();
    });
    Collega(Pulsante("lblVplRd"), &QPushButton::clicked, this,
            [] { Avvisa("d/tw > 69 epsilon. Verificare instabilità per taglio EC3 #5.4.6.(7)"); });
    Pulsante("lblVplRd")->hide();
    CollegaDettagli();
    Carica();
}

frmDoppioT::~frmDoppioT() = default;

void frmDoppioT::CollegaDettagli() {
    const std::pair<QPushButton*, const char*> details[] = {{Pulsante("LblClasse"), "FrmClasseDoppioTU"},
                                                            {Pulsante("LblNbRd"), "FrmInstabDoppioT"},
                                                            {Pulsante("LblMcRd"), "FrmMcRd"},
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
    SeparatoriControlla(findChild<QLineEdit*>(QStringLiteral("txtNascosto")));
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
    section->L0y = Lunghezza(0);
    section->L0z = Lunghezza(1);
    section->fy = FyInForza();
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
    InizializzaConAreaEfficace(*Sezione(), this);
    MostraClassi();
    MostraResistenze();
    ApplicaRegole();
    ui_->Picture1->Mostra(DisegnoSagoma(SagomaDi(*Sezione())));
}

void frmDoppioT::MostraClassi() {
    const SezioneDoppioT& s = *Sezione();
    ui_->risultati->Mostra("TxtClasseCompressione", QString::number(s.ClasseCompressione));
    ui_->risultati->Mostra("TxtClasseFlessioneY", QString::number(s.ClasseFlessioneY));
    ui_->risultati->Mostra("TxtClasseFlessioneZ", QString::number(s.ClasseFlessioneZ));
    ui_->risultati->Mostra("TxtClassePressFless", QString::number(s.ClassePressoFlessione));
}

void frmDoppioT::MostraResistenze() {
    const SezioneDoppioT& s = *Sezione();
    ui_->risultati->Mostra("TxtNbRd_0", Cifre(N_a_kN(s.NbyRd)));
    ui_->risultati->Mostra("TxtNbRd_1", Cifre(N_a_kN(s.NbzRd)));
    ui_->risultati->Mostra("TxtMcRd_0", Cifre(Nmm_a_kNm(s.McyRd)));
    ui_->risultati->Mostra("TxtMcRd_1", Cifre(Nmm_a_kNm(s.MczRd)));
    ui_->risultati->Mostra("TxtVplRd_0", Cifre(N_a_kN(s.VplyRd)));
    ui_->risultati->Mostra("TxtVplRd_1", Cifre(N_a_kN(s.VplzRd)));
    if (!s.ErroreDatiDatabase)
        return;
    // A row whose data do not compute has no buckling resistance, and what follows from it was not reached.
    ui_->risultati->Svuota(QStringLiteral("TxtNbRd"));
    ui_->risultati->Svuota(QStringLiteral("TxtVplRd"));
}

void frmDoppioT::SvuotaValori() { ui_->risultati->Svuota(); }

void frmDoppioT::SvuotaRisultati() {
    SvuotaValori();
    Pulsante("lblVplRd")->hide();
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
