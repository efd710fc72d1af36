#include "screens/FrmClasseSagomiL.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <vector>

#include "frame/ui/GruppoVoci.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/Protetto.h"
#include "screens/PlottaSezioneCorrente.h"
#include "screens/TestaDettaglio.h"
#include "sections/Eurocod3.h"
#include "sections/LunghezzePerse.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

constexpr int cifre = 4;

Voce CreaVoce(const Dicitura& etichetta, const char* nome, int caratteri, const char* aiuto,
              const char* letta) {
    return {etichetta, nome, caratteri, aiuto, letta, Genere::valore};
}

const std::vector<Voce>& VociClasse() {
    static const std::vector<Voce> values = {
        CreaVoce({"LblClasseC", "Classe"}, "Lbl_ClasseC", 2, "Classe della sezione compressa", "Classe"),
        CreaVoce({"LblH", "h [mm]"}, "Lbl_h", 6, "Lato lungo [mm]", "h"),
        CreaVoce({"LblT", "t [mm]"}, "Lbl_t", 6, "Spessore dei lati [mm]", "t"),
        CreaVoce({"LblNomeFy", "f{y} [N/mm^{2}]"}, "Lbl_fy", 5, "Tensione di snervamento [N/mm2], EC3 3.2.1",
                 "fy"),
        CreaVoce({"LblEps", "epsilon"}, "Lbl_eps", 6, "Radice di 235 / fy, EC3 tabella 5.2", "epsilon")};
    return values;
}

const std::vector<Voce>& VociCompressione() {
    static const std::vector<Voce> values = {
        CreaVoce({"LblSnellAla", "(b+h)/2/t/eps"}, "Lbl_SnellAla", 6,
                 "Snellezza che decide la classe, divisa per epsilon, EC3 tabella 5.2", "Snellezza"),
        CreaVoce({"LblLimite0Ala", "da"}, "Lbl_Limite0Ala", 5, "Limite inferiore della classe",
                 "Limite inferiore"),
        CreaVoce({"LblLimite1Ala", "a"}, "Lbl_Limite1Ala", 5, "Limite superiore della classe",
                 "Limite superiore"),
        CreaVoce({"LblClasse1", "classe"}, "Lbl_Classe", 2, "Classe in compressione, EC3 tabella 5.2",
                 "Classe in compressione")};
    return values;
}

/// What stands beside the effective outline.
const std::vector<Voce>& VociEfficaci() {
    static const std::vector<Voce> values = {
        CreaVoce({"LblAeff", "A{eff} [mm^{2}]"}, "Lbl_Aeff", 9, "Area efficace in compressione, EC3 6.2.4",
                 "Aeff [mm2]"),
        CreaVoce({"LblPersaH", "h persa [mm]"}, "Lbl_PersaH", 7,
                 "Lunghezza persa dal lato lungo, in punta, ENV 1993-1-1 5.3.5", "h persa [mm]"),
        CreaVoce({"LblPersaB", "b persa [mm]"}, "Lbl_PersaB", 7,
                 "Lunghezza persa dal lato corto, in punta, ENV 1993-1-1 5.3.5", "b persa [mm]"),
        CreaVoce({"LblENy", "e{Ny} [mm]"}, "Lbl_eNy", 7,
                 "Spostamento del baricentro lungo il lato lungo, EC3 6.2.9.3", "eNy [mm]"),
        CreaVoce({"LblENz", "e{Nz} [mm]"}, "Lbl_eNz", 7,
                 "Spostamento del baricentro lungo il lato corto, EC3 6.2.9.3", "eNz [mm]")};
    return values;
}

GruppoVoci* CreaStanza(const char* nome, const char* titolo, const std::vector<Voce>& voci) {
    auto* room = new GruppoVoci;
    room->setObjectName(QString::fromLatin1(nome));
    room->setTitle(QString::fromUtf8(titolo));
    room->InRiga(voci);
    return room;
}

QPushButton* CreaPlotta() {
    auto* plot = new QPushButton(QStringLiteral("Aeff Comp."));
    plot->setObjectName(QStringLiteral("pltAeff_0"));
    plot->setToolTip(QObject::tr("Area efficace per compressione semplice"));
    return plot;
}

} // namespace

FrmClasseSagomiL::FrmClasseSagomiL()
    : SchermoDettaglio(QStringLiteral("FrmClasseSagomiL")), pltAeff_(CreaPlotta()) {
    setWindowTitle(tr("Classificazione - EC3 #5.5.2  NTC2018 #4.2.3.1"));
    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(9, 9, 9, 9);
    column->setSpacing(6);
    auto* head = new TestaDettaglio;
    head->setObjectName(QStringLiteral("fraSezione"));
    column->addWidget(head);
    column->addWidget(CreaStanza("fraClasse", "Classe Sezione", VociClasse()));
    column->addWidget(CreaStanza("fraCompressione", "COMPRESSIONE", VociCompressione()));
    efficace_ = CreaStanza("fraEfficace", "Sezione efficace", VociEfficaci());
    efficace_->hide();
    column->addWidget(efficace_);
    auto* commands = new QHBoxLayout;
    commands->addStretch();
    commands->addWidget(pltAeff_);
    column->addLayout(commands);
    column->addStretch();
    setCentralWidget(centre);
    CollegaControlli();
    Collega(pltAeff_, &QPushButton::clicked, this, [this] { PlottaSezioneCorrente(*this); });
    DimensionaIniziale({});
}

QLabel* FrmClasseSagomiL::Valore(const char* nome) const {
    return findChild<QLabel*>(QString::fromLatin1(nome));
}

void FrmClasseSagomiL::MostraEfficaci(const SezioneSagomoL& s) {
    const bool some = s.ClasseCompressione == 4 && s.SezioneComp4;
    pltAeff_->setVisible(some);
    efficace_->setVisible(some);
    const LatiPersi lost = PerseDi(s);
    const auto show = [&](const char* name, double value) {
        Mostra(Valore(name), some ? FormatoCifre(cifre, value) : std::string());
    };
    show("Lbl_Aeff", s.betaA() * s.Area);
    show("Lbl_PersaH", lost.lungo);
    show("Lbl_PersaB", lost.corto);
    show("Lbl_eNy", lost.eNy);
    show("Lbl_eNz", lost.eNz);
}

void FrmClasseSagomiL::Calcola() {
    const auto* s = SezioneInUso<SezioneSagomoL>();
    if (s == nullptr)
        return;
    const bool mean = s->Classe4LarghezzaGovernante != "h";
    for (const char* name : {"Lbl_ClasseC", "Lbl_Classe"})
        Mostra(Valore(name), std::to_string(s->ClasseCompressione));
    Mostra(Valore("Lbl_h"), "0.0#", s->h);
    Mostra(Valore("Lbl_t"), "0.0#", s->t);
    Mostra(Valore("Lbl_fy"), TestoPiano(s->fy));
    Mostra(Valore("Lbl_eps"), "0.00#", Epsilon(s->fy));
    Mostra(Valore("LblSnellAla"), s->Classe4LarghezzaGovernante + "/t/eps");
    Mostra(Valore("Lbl_SnellAla"), "0.0#", mean ? s->SnellAla1 : s->SnellAla);
    Mostra(Valore("Lbl_Limite0Ala"), s->Limite0Ala);
    Mostra(Valore("Lbl_Limite1Ala"), s->Limite1Ala);
    MostraEfficaci(*s);
    if (!isMaximized())
        DimensionaIniziale(size()); // the button asks for room
}

} // namespace sagomi
