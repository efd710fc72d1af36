#include "choice/ui/PannelliScelta.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "catalogue/Famiglie.h"
#include "choice/StampaScelta.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/GruppoVoci.h"
#include "frame/ui/Protetto.h"
#include "screens/PulsanteDiagramma.h"

namespace sagomi {

namespace {

constexpr QMargins margini(7, 4, 7, 7);
constexpr int fraRighe = 4;
constexpr int fraColonne = 5;
constexpr int righeMembratura = 4;

QString Testo(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A box of the forces with its caption, which may stand elsewhere.
Casella* Crea(QGridLayout& grid, int riga, int colonna, const char* nome, const char* aiuto,
              const char* letta) {
    auto* box =
        qobject_cast<Casella*>(CreaCampo({.nome = nome, .caratteri = 6, .aiuto = aiuto, .letta = letta}));
    grid.addWidget(box, riga, colonna);
    return box;
}

void Intesta(QGridLayout& grid, int riga, int colonna, const Dicitura& scritta, QWidget* campo = nullptr) {
    const bool sopra = campo == nullptr;
    QLabel* label = CreaDicitura(scritta, (sopra ? Qt::AlignHCenter : Qt::AlignRight) | Qt::AlignVCenter);
    label->setBuddy(campo);
    grid.addWidget(label, riga, colonna);
}

/// The user's own families by a name that says what they are.
QString NomeUtente(const FamigliaSchermo& famiglia) {
    return famiglia.schermo == "frmSaldati" ? QStringLiteral("utente sim.") : QStringLiteral("utente asim.");
}

} // namespace

PannelloForze::PannelloForze(QWidget* parent) : QGroupBox(tr("Azioni"), parent) {
    setObjectName(QStringLiteral("fraForze"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(margini);
    row->setSpacing(9);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(fraColonne);
    grid->setVerticalSpacing(fraRighe);
    row->addLayout(grid);
    TxtNsd =
        Crea(*grid, 0, 1, "TxtNsd", "Forza assiale di progetto, positiva se di compressione", "NSd [kN]");
    Intesta(*grid, 0, 0, {"LblTxtNsd", "N{Sd} [kN]"}, TxtNsd);
    Intesta(*grid, 1, 1, {"LblM1", "M{1}"});
    Intesta(*grid, 1, 2, {"LblM2", "M{2}"});
    Intesta(*grid, 1, 3, {"LblMQ", "M{Q}"});
    M1[0] = Crea(*grid, 2, 1, "TxtM1_0", "Momento di estremità maggiore intorno a y-y", "M1 y-y [kNm]");
    M2[0] = Crea(*grid, 2, 2, "TxtM2_0", "L'altro momento di estremità intorno a y-y, col suo segno",
                 "M2 y-y [kNm]");
    MQ[0] = Crea(*grid, 2, 3, "TxtMQ_0", "Momento del carico in campata intorno a y-y", "MQ y-y [kNm]");
    M1[1] = Crea(*grid, 3, 1, "TxtM1_1", "Momento di estremità maggiore intorno a z-z", "M1 z-z [kNm]");
    M2[1] = Crea(*grid, 3, 2, "TxtM2_1", "L'altro momento di estremità intorno a z-z, col suo segno",
                 "M2 z-z [kNm]");
    MQ[1] = Crea(*grid, 3, 3, "TxtMQ_1", "Momento del carico in campata intorno a z-z", "MQ z-z [kNm]");
    Intesta(*grid, 2, 0, {"LblMy", "M{y} [kNm]"}, M1[0]);
    Intesta(*grid, 3, 0, {"LblMz", "M{z} [kNm]"}, M1[1]);
    grid->setRowStretch(4, 1);
    row->addWidget(CreaDiagrammi());
    ImpostaPict(pict_);
}

QWidget* PannelloForze::CreaDiagrammi() {
    auto* pictures = new QWidget(this);
    auto* grid = new QGridLayout(pictures);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(fraRighe);
    auto* group = new QButtonGroup(this);
    for (int i = 1; i <= nPict; ++i) {
        auto* picture = new PulsanteDiagramma(pictures);
        picture->setObjectName(QStringLiteral("Picture1_%1").arg(i));
        picture->ImpostaPict(i);
        const QString name = Testo(NomeDiagramma(static_cast<std::int16_t>(i)));
        picture->setToolTip(name);
        picture->setAccessibleName(name);
        group->addButton(picture);
        grid->addWidget(picture, (i - 1) / 3, (i - 1) % 3);
        pulsanti_ << picture;
        Collega(picture, &QAbstractButton::clicked, this, [this, i] {
            ImpostaPict(static_cast<std::int16_t>(i));
            emit diagrammaScelto();
        });
    }
    return pictures;
}

void PannelloForze::ImpostaPict(std::int16_t pict) {
    pict_ = pict;
    const QSignalBlocker quiet(pulsanti_[pict - 1]);
    pulsanti_[pict - 1]->setChecked(true);
    for (PulsanteDiagramma* picture : pulsanti_) // Tab comes to the one that is chosen
        picture->setFocusPolicy(picture->Pict() == pict ? Qt::StrongFocus : Qt::ClickFocus);
    AbilitaCampata();
}

void PannelloForze::AbilitaCampata() {
    for (Casella* box : MQ)
        box->setEnabled(TipoDiPict(pict_) == diagrammaCampata);
}

MomentiMembratura PannelloForze::Momenti(int asse) const {
    const auto i = static_cast<std::size_t>(asse);
    const bool span = TipoDiPict(pict_) == diagrammaCampata;
    return {.M1 = kNm_a_Nmm(NumeroIn(M1.at(i))),
            .M2 = kNm_a_Nmm(NumeroIn(M2.at(i))),
            .MQ = span ? kNm_a_Nmm(NumeroIn(MQ.at(i))) : 0};
}

PannelloFamiglieScelta::PannelloFamiglieScelta(QWidget* parent) : QGroupBox(tr("Famiglie"), parent) {
    setObjectName(QStringLiteral("fraFamiglie"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(margini);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(1);
    for (const FamigliaSchermo& family : FamiglieSchermi())
        for (const std::string_view sheet : family.fogli)
            AggiungeSpunta(sheet, Testo(sheet));
    for (const FamigliaSchermo& family : FamiglieSchermi()) // the user's own behind all others
        if (!family.foglioUtente.empty())
            AggiungeSpunta(family.foglioUtente, NomeUtente(family));
    tutte_ = new QCheckBox(tr("tutte"), this);
    tutte_->setObjectName(QStringLiteral("ChkTutte"));
    tutte_->setToolTip(tr("Spunta tutte le famiglie, o nessuna"));
    tutte_->setAccessibleName(tr("Tutte le famiglie"));
    Posa(tutte_);
    Collega(tutte_, &QCheckBox::clicked, this, [this] { SpuntaTutte(!Tutte()); });
    MostraTutte();
}

void PannelloFamiglieScelta::Posa(QCheckBox* spunta) {
    constexpr int righe = 6;
    auto* grid = static_cast<QGridLayout*>(layout());
    const int i = grid->count();
    grid->addWidget(spunta, i % righe, i / righe);
}

void PannelloFamiglieScelta::AggiungeSpunta(std::string_view foglio, const QString& scritta) {
    auto* box = new QCheckBox(scritta, this);
    box->setObjectName(QStringLiteral("ChkTipo_%1").arg(spunte_.size()));
    box->setChecked(true);
    spunte_ << box;
    fogli_.emplace_back(foglio);
    Posa(box);
    Collega(box, &QCheckBox::toggled, this, [this] {
        MostraTutte();
        emit cambiate();
    });
}

void PannelloFamiglieScelta::SpuntaTutte(bool spunta) {
    for (QCheckBox* box : spunte_) {
        const QSignalBlocker quiet(box);
        box->setChecked(spunta);
    }
    MostraTutte();
    emit cambiate();
}

std::vector<std::string> PannelloFamiglieScelta::Scelte() const {
    std::vector<std::string> names;
    for (qsizetype k = 0; k < spunte_.size(); ++k)
        if (spunte_[k]->isChecked())
            names.push_back(fogli_[static_cast<std::size_t>(k)]);
    return names;
}

bool PannelloFamiglieScelta::Tutte() const { return Scelte().size() == fogli_.size(); }

void PannelloFamiglieScelta::MostraTutte() {
    const auto some = Scelte().size();
    tutte_->setCheckState(some == 0               ? Qt::Unchecked
                          : some == fogli_.size() ? Qt::Checked
                                                  : Qt::PartiallyChecked);
}

QGroupBox* CreaMembratura(QWidget* parent) {
    auto* room = new GruppoVoci(parent);
    room->setObjectName(QStringLiteral("fraMembratura"));
    room->setTitle(QObject::tr("Membratura"));
    room->InColonne(
        {{{"LblL0_0", "L{0y} [m]"},
          "Txt_L0_0",
          5,
          "Lunghezza di libera inflessione intorno a y-y, EC3 6.3.1",
          "L0 y-y [m]"},
         {{"LblL0_1", "L{0z} [m]"},
          "Txt_L0_1",
          5,
          "Lunghezza di libera inflessione intorno a z-z, EC3 6.3.1",
          "L0 z-z [m]"},
         {{"LblL0_2", "L{0v} [m]"},
          "Txt_L0_2",
          5,
          "Lunghezza di libera inflessione degli angolari intorno a v-v, EC3 6.3.1",
          "L0 v-v [m]"},
         {{"LblTxt_L", "L [m]"},
          "Txt_L",
          5,
          "Lunghezza fra i vincoli allo svergolamento; vuota: quella intorno a z-z",
          "L svergolamento [m]"},
         {{"LblTxt_k", "k"},
          "Txt_k",
          5,
          "Vincolo alla rotazione nel piano orizzontale, ENV 1993-1-1 F.1.2",
          "k"},
         {{"LblTxt_Kw", "k{w}"}, "Txt_Kw", 5, "Vincolo all'ingobbamento, ENV 1993-1-1 F.1.2", "kw"},
         {{"LblTxt_Zg", "z{g} [mm]"},
          "Txt_Zg",
          5,
          "Altezza del carico sul centro di taglio, ENV 1993-1-1 F.1.2",
          "zg [mm]"},
         {{"LblTxt_C1", "C{1}"},
          "Txt_C1",
          5,
          "Fattore del momento critico; vuoto: quello del diagramma intorno a y-y",
          "C1"},
         {{"LblTxt_C2", "C{2}"}, "Txt_C2", 5, "Fattore del momento critico, ENV 1993-1-1 F.1.2", "C2"},
         {{"LblTxt_C3", "C{3}"}, "Txt_C3", 5, "Fattore del momento critico, ENV 1993-1-1 F.1.2", "C3"}},
        righeMembratura, fraColonne);
    return room;
}

QGroupBox* CreaLimiti(QWidget* parent) {
    auto* room = new GruppoVoci(parent);
    room->setObjectName(QStringLiteral("fraLimiti"));
    room->setTitle(QObject::tr("Limiti"));
    room->InColonne(
        {{{"LblHMax", "h ≤ [mm]"}, "TxtHMax", 4, "Altezza massima; vuota: nessun limite", "h massima [mm]"},
         {{"LblBMax", "b ≤ [mm]"}, "TxtBMax", 4, "Larghezza massima; vuota: nessun limite", "b massima [mm]"},
         {{"LblGMin", "g ≥ [kg/m]"}, "TxtGMin", 4, "Massa minima; vuota: nessun limite", "g minima [kg/m]"},
         {{"LblGMax", "g ≤ [kg/m]"},
          "TxtGMax",
          4,
          "Massa massima; vuota: nessun limite",
          "g massima [kg/m]"}},
        righeMembratura, fraColonne);
    return room;
}

} // namespace sagomi
