#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>

#include <utility>

#include "catalogue/ui/GrigliaCatalogo.h"
#include "choice/ui/DelegatoUtilizzo.h"
#include "choice/ui/FrmScelta.h"
#include "choice/ui/ModelloScelta.h"
#include "choice/ui/PannelliScelta.h"
#include "choice/ui/VistaGrafico.h"
#include "frame/ui/Casella.h"
#include "frame/ui/Voce.h"
#include "screens/StanzaTabella.h"

// What stands in the window of the choice, in reading order.
namespace sagomi {

namespace {

constexpr int spazio = 6; ///< [px]

} // namespace

void FrmScelta::Compone() {
    auto* room = new QWidget(this);
    room->setObjectName(QStringLiteral("centrale"));
    auto* column = new QVBoxLayout(room);
    column->setContentsMargins(9, 6, 9, 6);
    column->setSpacing(spazio);
    PosaScelte(*column);
    PosaOpzioni(*column);
    grafico_ = new VistaGrafico(room);
    grafico_->setObjectName(QStringLiteral("Grafico"));
    grafico_->setAccessibleName(tr("Grafico: utilizzo secondo la massa"));
    column->addWidget(grafico_, 5);
    PosaTabella(*column);
    PosaComandi(*column);
    setCentralWidget(room);
    barra_ = new QLabel(this);
    barra_->setObjectName(QStringLiteral("LblBarra"));
    barra_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->setObjectName(QStringLiteral("statusbar"));
    statusBar()->addWidget(barra_, 1);
}

void FrmScelta::PosaScelte(QBoxLayout& colonna) {
    auto* row = new QHBoxLayout;
    row->setSpacing(spazio);
    colonna.addLayout(row);
    row->addWidget(forze_ = new PannelloForze(this));
    row->addWidget(CreaMembratura(this));
    row->addWidget(CreaLimiti(this));
    row->addWidget(famiglie_ = new PannelloFamiglieScelta(this), 1);
    for (const auto& [name, text] : {std::pair{"Txt_k", "1"}, {"Txt_Kw", "1"}})
        CasellaDi(name)->setText(QString::fromLatin1(text));
}

// One line: the steel, which is the caller's, what is shown, how channels and angles stand.
void FrmScelta::PosaOpzioni(QBoxLayout& colonna) {
    auto* row = new QHBoxLayout;
    row->setSpacing(spazio);
    colonna.addLayout(row);
    const auto field = [&](const Voce& voce) {
        const Coppia pair = CreaCoppia(voce);
        row->addWidget(pair.etichetta);
        row->addWidget(pair.campo);
        return qobject_cast<Casella*>(pair.campo);
    };
    const auto tick = [&](const char* name, const QString& text, const QString& tip) {
        auto* box = new QCheckBox(text, this);
        box->setObjectName(QString::fromLatin1(name));
        box->setToolTip(tip);
        row->addWidget(box);
        return box;
    };
    acciaioMostrato_ = field({{"LblTipoAcciaio", "Acciaio"},
                              "Txt_TipoAcciaio",
                              14,
                              "Acciaio dello schermo da cui si viene",
                              "Acciaio",
                              Genere::risultato});
    fyMostrata_ = field({{"LblTxt_fy", "f{y} [N/mm^{2}]"},
                         "Txt_fy",
                         5,
                         "Tensione di snervamento, dello schermo da cui si viene",
                         "fy [N/mm2]",
                         Genere::risultato});
    row->addSpacing(12);
    soloVerificati_ = tick("ChkSoloVerificati", tr("solo &verificati"),
                           tr("Lascia nella tabella i sagomi che passano ogni verifica"));
    row->addSpacing(12);
    doppi_ = tick("chkDoppi", tr("canali e angolari &doppi"), tr("Canali e angolari a coppie"));
    dDoppi_ = field({{"LblDoppi", "d [mm]"}, "txtDoppi", 4, "Distanza netta fra i due sagomi", "d [mm]"});
    accostati_ = tick("ChkAccosta", tr("accosta ali o lati corti"),
                      tr("Canali con le ali accostate, angolari con i lati corti accostati"));
    row->addStretch(1);
}

void FrmScelta::PosaTabella(QBoxLayout& colonna) {
    auto* box = new QVBoxLayout;
    box->setSpacing(0);
    avanzamento_ = new QProgressBar(this);
    avanzamento_->setObjectName(QStringLiteral("Avanzamento"));
    avanzamento_->setAccessibleName(tr("Avanzamento del calcolo"));
    avanzamento_->setTextVisible(false);
    avanzamento_->setRange(0, 1000);
    avanzamento_->setFixedHeight(3);
    QSizePolicy kept = avanzamento_->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    avanzamento_->setSizePolicy(kept);
    avanzamento_->hide();
    box->addWidget(avanzamento_);
    tabella_ = new GrigliaCatalogo;
    tabella_->setObjectName(QStringLiteral("DBGrid1"));
    tabella_->setAccessibleName(tr("Tabella della scelta"));
    tabella_->ImpostaRiempie(true);
    tabella_->Collega(modello_);
    tabella_->setItemDelegateForColumn(ColonnaUtilizzo(), new DelegatoUtilizzo(tabella_));
    tabella_->AdattaColonne();
    box->addWidget(new StanzaTabella(tabella_, this), 1);
    colonna.addLayout(box, 7);
}

QPushButton* FrmScelta::Comando(const char* nome, const QString& testo, const QString& aiuto) {
    auto* command = new QPushButton(testo, this);
    command->setObjectName(QString::fromLatin1(nome));
    command->setToolTip(aiuto);
    return command;
}

void FrmScelta::PosaComandi(QBoxLayout& colonna) {
    auto* row = new QHBoxLayout;
    row->setSpacing(spazio);
    colonna.addLayout(row);
    riassunto_ = new QLabel(this);
    riassunto_->setObjectName(QStringLiteral("LblRiassunto"));
    riassunto_->setAccessibleName(tr("Il più leggero"));
    riassunto_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // its text moves nothing
    row->addWidget(riassunto_, 1);
    row->addWidget(prendi_ =
                       Comando("CmdPrendi", tr("&Prendi"),
                               tr("Porta il sagomo e le azioni nel suo schermo (Invio nella tabella)")));
    row->addWidget(confronta_ = Comando("CmdConfronta", tr("&Confronta"),
                                        tr("Mette fianco a fianco fino a quattro righe selezionate")));
    row->addWidget(
        copia_ = Comando("CmdCopia", tr("C&opia"), tr("Copia le righe selezionate, con le intestazioni")));
    row->addWidget(stampa_ = Comando("CmdStampa", tr("&Stampa"), tr("Stampa la tabella")));
    row->addWidget(esporta_ = Comando("CmdEsporta", tr("&Esporta"),
                                      tr("Scrive la tabella in un file CSV, JSON o di testo")));
}

} // namespace sagomi
