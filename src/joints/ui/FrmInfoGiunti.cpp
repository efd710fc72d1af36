#include "joints/ui/FrmInfoGiunti.h"

#include "frame/Cartelle.h"
#include "frame/ui/Guida.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "joints/FormuleGiunto.h"
#include "joints/NoteIrrigidimenti.h"
#include "joints/RtfInHtml.h"
#include "ui_FrmInfoGiunti.h"

namespace sagomi {

namespace {

constexpr QSize almeno(620, 380);

} // namespace

FrmInfoGiunti::FrmInfoGiunti() : Schermo(QStringLiteral("FrmInfoGiunti")), ui_(new Ui::FrmInfoGiunti) {
    ui_->setupUi(this);
    ui_->Figura->Mostra(DisegnoIrrigidimenti({}));
    PreparaContenuto();
    DimensionaIniziale(almeno);
}

FrmInfoGiunti::~FrmInfoGiunti() = default;

void FrmInfoGiunti::MostraFormula(Schermo& da, const std::string& id) {
    std::string rtf;
    if (!Protetto("Errore", [&] { rtf = LeggeFormula(CartellaInstallata(), id); }))
        return;
    note_ = false;
    ui_->RichTextBox4->setHtml(QString::fromStdString(HtmlDaRtf(rtf)));
    Apre(da, false);
}

void FrmInfoGiunti::MostraIrrigidimenti(Schermo& da) {
    note_ = true;
    Apre(da, true);
    ScriveNote();
}

void FrmInfoGiunti::Apre(Schermo& da, bool conFigura) {
    ui_->Figura->setVisible(conFigura);
    NavigaSchermi::Unico().Apre(*this, da);
    ui_->RichTextBox4->setFocus();
}

void FrmInfoGiunti::ScriveNote() {
    const auto* joint = dynamic_cast<const ServiziGiunto*>(origine);
    const IrrigidimentiNodo stiffeners =
        joint != nullptr ? IrrigidimentiNodo(joint->NodoInMano()) : IrrigidimentiNodo();
    QString html = QStringLiteral("<p><b>Irrigidimenti della colonna</b></p>");
    for (const std::string& note : NoteIrrigidimenti(stiffeners))
        html += QStringLiteral("<p>") + QString::fromStdString(note).toHtmlEscaped() + QStringLiteral("</p>");
    ui_->RichTextBox4->setHtml(html);
    ui_->Figura->Mostra(DisegnoIrrigidimenti(stiffeners));
}

void FrmInfoGiunti::AllAttivazione() {
    Guida::ImpostaFile(FileGuida());
    Aggiorna();
}

void FrmInfoGiunti::Aggiorna() {
    if (note_)
        ScriveNote();
}

} // namespace sagomi
