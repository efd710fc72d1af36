#include "screens/TestaDettaglio.h"

#include "frame/GeneraleSagomi.h"
#include "frame/ui/Mostra.h"
#include "ui_TestaDettaglio.h"

namespace sagomi {

TestaDettaglio::TestaDettaglio(QWidget* parent) : QGroupBox(parent), ui_(new Ui::TestaDettaglio) {
    ui_->setupUi(this);
    Txt_Prof = ui_->Txt_Prof;
    UpDown1 = ui_->UpDown1;
    Txt_TipoAcciaio = ui_->Txt_TipoAcciaio;
    UpDown2 = ui_->UpDown2;
    Txt_fy = ui_->Txt_fy;
    MostraNormativa();
}

TestaDettaglio::~TestaDettaglio() = default;

bool TestaDettaglio::FyModificabile() const { return !Txt_fy->Risultato(); }

void TestaDettaglio::ImpostaFyModificabile(bool modificabile) { Txt_fy->ImpostaRisultato(!modificabile); }

void TestaDettaglio::MostraNormativa() {
    Mostra(ui_->Lbl_Normativa, NomeNormativa());
    Mostra(ui_->Lbl_GammaM0, TestoPiano(GammaM0));
    Mostra(ui_->Lbl_GammaM1, TestoPiano(GammaM1));
}

} // namespace sagomi
