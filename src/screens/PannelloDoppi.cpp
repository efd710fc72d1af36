#include "screens/PannelloDoppi.h"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "frame/Messaggi.h"
#include "frame/ui/Protetto.h"
#include "screens/VociSezione.h"

namespace sagomi {

namespace {

constexpr int spazio = 6; ///< between controls [px]
constexpr int stacco = 9; ///< before the frame of what a pair asks for [px]

QCheckBox* CreaSpunta(const Voce& voce) {
    auto* box = new QCheckBox(QString::fromUtf8(voce.etichetta.testo));
    box->setObjectName(QString::fromUtf8(voce.nome));
    box->setToolTip(QString::fromUtf8(voce.aiuto));
    return box;
}

const Voce& Doppi() {
    static const Voce both{
        .etichetta = {"chkDoppi", "Doppi"}, .nome = "chkDoppi", .aiuto = "Due sagomi uguali accoppiati"};
    return both;
}

const Voce& Distanza() {
    static const Voce gap{.etichetta = {"LblDoppi", "d (mm)"},
                          .nome = "txtDoppi",
                          .caratteri = 5,
                          .aiuto = "Distanza netta fra i due sagomi",
                          .letta = "d (mm)"};
    return gap;
}

// EC3 6.4: built-up members have a shear stiffness that the slenderness here does not know.
void SpiegaDeformabilita() {
    Avvisa("Nel calcolo della resistenza all'instabilità\n"
           "per l'inflessione intorno all'asse z-z (Nbz,Rd),\n"
           "il programma non considera la deformabilità a taglio,\n"
           "che dipende dalla tipologia della connessione.");
}

QPushButton* CreaNota() {
    auto* note = new QPushButton(QStringLiteral("Dettagli"));
    note->setObjectName(QStringLiteral("lblMsgDoppi"));
    note->setToolTip(QObject::tr("Che cosa il calcolo dei sagomi doppi non considera"));
    note->setAccessibleName(QObject::tr("Dettagli dei doppi"));
    Collega(note, &QPushButton::clicked, note, [] { SpiegaDeformabilita(); });
    return note;
}

} // namespace

PannelloDoppi::PannelloDoppi(QWidget* parent) : QWidget(parent) {}

void PannelloDoppi::ImpostaSchermo(const QByteArray& nome) {
    schermo_ = nome;
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(stacco);
    row->addWidget(CreaSpunta(Doppi()));
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("fraDoppi"));
    frame->setAccessibleName(tr("Doppi"));
    row->addWidget(frame, 1);
    auto* inside = new QHBoxLayout(frame);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(spazio);
    inside->addWidget(CreaSpunta(VociDi(nome.toStdString()).accosta));
    const Coppia gap = CreaCoppia(Distanza());
    inside->addStretch();
    inside->addWidget(gap.etichetta);
    inside->addWidget(gap.campo);
    inside->addWidget(CreaNota());
    // What comes and goes moves nothing, at any size of the font.
    QSizePolicy kept = frame->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    frame->setSizePolicy(kept);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    frame->hide();
}

} // namespace sagomi
