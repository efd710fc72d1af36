#include "drawing/ui/FrmPltSezione.h"

#include <QPrinter>

#include "drawing/Grafica.h"
#include "drawing/ui/AnteprimaPagine.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "ui_FrmPltSezione.h"

namespace sagomi {

namespace {

constexpr double passoVista = 1.25;

} // namespace

FrmPltSezione::FrmPltSezione() : Schermo(QStringLiteral("FrmPltSezione")) {}

void FrmPltSezione::Compone() {
    if (ui_)
        return;
    ui_ = std::make_unique<Ui::FrmPltSezione>();
    ui_->setupUi(this);
    PreparaContenuto();
    DimensionaIniziale({});
    Collega(ui_->CmdPlotta, &QPushButton::clicked, this, [this] { Ridisegna(); });
    const auto items = Vettore<QAction>(QStringLiteral("mnuFileItem"));
    for (int i = 0; i < items.size(); ++i)
        Collega(items[i], &QAction::triggered, this, [this, i] { SceltaMenu(i); });
    Collega(ui_->mnuAnteprima, &QAction::triggered, this, [this] { AnteprimaDiStampa(); });
    Collega(ui_->mnuVistaItem_0, &QAction::triggered, this, [this] { ui_->Picture1->Adatta(); });
    Collega(ui_->mnuVistaItem_1, &QAction::triggered, this,
            [this] { ui_->Picture1->Ingrandisce(passoVista); });
    Collega(ui_->mnuVistaItem_2, &QAction::triggered, this,
            [this] { ui_->Picture1->Ingrandisce(1 / passoVista); });
    Collega(ui_->Picture1, &AreaDisegno::vistaCambiata, this, [this](double zoom) {
        ui_->LblZoom->setText(QString::number(qRound(zoom * 100)) + QStringLiteral(" %"));
    });
}

FrmPltSezione::~FrmPltSezione() = default;

void FrmPltSezione::Mostra(Schermo& da, const QString& nomeChiamante, SorgenteDisegno sorgente) {
    auto& preview = NavigaSchermi::Unico().Prende<FrmPltSezione>();
    preview.Compone();
    preview.nomeChiamante_ = nomeChiamante;
    preview.sorgente_ = std::move(sorgente);
    preview.ui_->LblEsito->clear();
    preview.ui_->Picture1->Adatta();
    NavigaSchermi::Unico().Apre(preview, da);
}

void FrmPltSezione::AllAttivazione() {
    Compone();
    Ridisegna();
}

void FrmPltSezione::Ridisegna() {
    disegno_ = sorgente_ ? sorgente_() : Disegno{};
    const bool something = bool(disegno_.PlottaInOggetto);
    setWindowTitle(tr("Plotta") +
                   (something ? QStringLiteral(" - ") + QString::fromStdString(disegno_.nome) : QString()));
    for (QAction* action : {ui_->mnuFileItem_0, ui_->mnuFileItem_1, ui_->mnuFileItem_2, ui_->mnuFileItem_4,
                            ui_->mnuFileItem_5, ui_->mnuFileItem_6, ui_->mnuFileItem_7, ui_->mnuAnteprima})
        action->setEnabled(something);
    if (!something) {
        ui_->Picture1->Mostra({});
        return;
    }
    ui_->Picture1->Mostra([drawing = disegno_, caller = nomeChiamante_.toStdString()](Superficie& surface) {
        Dispositivo = dispositivoVideo;
        ColorePenna = pennaInchiostro;
        OggettoGrafico = &surface;
        drawing.PlottaInOggetto(&surface, caller);
    });
}

void FrmPltSezione::SceltaMenu(int indice) {
    constexpr int chiudi = 3;
    if (indice == chiudi) {
        close();
        return;
    }
    QString outcome;
    ScegliDispositivo(indice, QString::fromStdString(disegno_.nome), disegno_, nomeChiamante_, this,
                      &outcome);
    ui_->LblEsito->setText(outcome);
}

void FrmPltSezione::AnteprimaDiStampa() {
    AnteprimaPagine(
        QString::fromStdString(disegno_.nome),
        [this](QPrinter& page) { StampaSu(page, disegno_, nomeChiamante_); }, this);
}

} // namespace sagomi
