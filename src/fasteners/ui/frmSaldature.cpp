#include "fasteners/ui/frmSaldature.h"

#include "fasteners/ui/GeneraleCollegamenti.h"
#include "frame/Errori.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "frame/ui/Campi.h"
#include "frame/ui/ColonnaDecimali.h"
#include "frame/ui/Guida.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "report/RelazioneCollegamenti.h"
#include "report/ui/ComandoRelazione.h"
#include "ui_frmSaldature.h"

namespace sagomi {

namespace {

constexpr int cifreRisultati = 4;
constexpr int larghezzaTitolo = 640; ///< shows the whole caption [px]

/// The formula in numbers.
std::string Valori(const Saldatura& s, Singolo beta) {
    return TestoPiano(s.fu) + " / (√3 · " + TestoPiano(beta) + " · " + TestoPiano(GammaM2) + ")";
}

} // namespace

frmSaldature::frmSaldature() : Schermo(QStringLiteral("frmSaldature")), ui_(new Ui::frmSaldature) {
    ui_->setupUi(this);
    AllineaDecimali({ui_->Txt_betaw, ui_->Txt_fvwd});
    PreparaContenuto();
    AggiungeRelazione(*this, [this] {
        return saldatura_ ? RelazioneSaldatura(*saldatura_, ui_->Txt_TipoAcciaio->text().toStdString())
                          : Relazione();
    });
    DimensionaIniziale({larghezzaTitolo, 0});
    DisponeInAlto(this);
    Collega(ui_->UpDown2, &UpDown::passo, this, [this](bool su) {
        PassoAcciaioCorrente(su);
        MostraAcciaio();
    });
}

frmSaldature::~frmSaldature() = default;

void frmSaldature::Apre(Schermo& chiamante) {
    origine = &chiamante;
    NavigaSchermi::Unico().Passa(*this, &chiamante);
    ui_->UpDown2->setFocus();
}

void frmSaldature::AllAttivazione() {
    Guida::ImpostaFile(FileGuida());
    ui_->testa->Mostra();
    MostraAcciaio();
}

void frmSaldature::MostraAcciaio() {
    MostraAcciaioCorrente(ui_->Txt_TipoAcciaio, ui_->Txt_fu);
    Aggiorna();
}

void frmSaldature::Aggiorna() {
    if (!saldatura_)
        saldatura_.emplace();
    ui_->Txt_betaw->clear(); // nothing old, and nothing new, beside a message
    ui_->Txt_fvwd->clear();
    ui_->Lbl_Valori->clear();
    saldatura_->fu = NumeroIn(ui_->Txt_fu);
    const Singolo beta = saldatura_->betaW();
    try {
        const std::string strength = FormatoCifre(cifreRisultati, saldatura_->fvwd());
        ui_->Txt_betaw->setText(QString::fromStdString(TestoPiano(beta)));
        ui_->Txt_fvwd->setText(QString::fromStdString(strength));
        Mostra(ui_->Lbl_Valori, Valori(*saldatura_, beta) + " =" + strength);
    } catch (const ErroreAritmetico&) { // no correlation factor, as the message has just said
    }
}

} // namespace sagomi
