#include "joints/ui/PagineRisultati.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <iterator>

#include "frame/ui/GruppoVoci.h"
#include "joints/ui/PezziPagina.h"

namespace sagomi {

namespace {

constexpr int sempre = 0; ///< a line that stands with one row of bolts and with two

Voce Misura(const char* nome, const char* testo, const char* aiuto, const char* letta = "") {
    return {.etichetta = {.testo = testo},
            .nome = nome,
            .caratteri = 8,
            .aiuto = aiuto,
            .letta = *letta != '\0' ? letta : aiuto,
            .genere = Genere::risultato};
}

QVBoxLayout* Colonna(QWidget* page) {
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(9, 9, 9, 9);
    column->setSpacing(6);
    return column;
}

GruppoVoci* Gruppo(const char* nome, const char* titolo, const std::vector<Voce>& voci, int righe) {
    auto* room = new GruppoVoci;
    room->setObjectName(QString::fromUtf8(nome));
    room->setTitle(QString::fromUtf8(titolo));
    QGridLayout* grid = room->InColonne(voci, righe);
    grid->setColumnStretch(grid->columnCount(), 1);
    return room;
}

/// A component: its boxes, its clause and its "?".
struct Componente {
    const char* nome;         ///< box
    const char* testo;        ///< as the report has it
    const char* simbolo;      ///< subscripts in braces
    int domanda;              ///< index of its "?"; below 0 none
    int file;                 ///< rows of bolts that it belongs to
    const char* ridotta = ""; ///< box of what redistribution leaves
};

constexpr Componente componenti[] = {
    {"txtF1", "Pannello d'anima della colonna a taglio", "V{wp,Rd}", 0, sempre},
    {"txtF2", "Anima della colonna a compressione (schiacciamento)", "F{c,wc,Rd}", 1, sempre},
    {"txtF3", "Anima della colonna a compressione (instabilità)", "F{b,wc,Rd}", 2, sempre},
    {"txtF5", "Anima della colonna a trazione", "F{t,wc,Rd}", 4, sempre},
    {"txtF6", "Ala della colonna a flessione", "F{t,fc,Rd}", 5, 1},
    {"txtF6_0", "Ala della colonna a flessione, fila int.", "F{t,fc,Rd}", 6, 2, "txtF6_0Ridistr"},
    {"txtF6_1", "Ala della colonna a flessione, fila est.", "F{t,fc,Rd}", 7, 2, "txtF6_1Ridistr"},
    {"txtF7", "Flangia d'estremità a flessione", "F{t,ep,Rd}", 8, 1},
    {"txtF7_0", "Flangia d'estremità a flessione, fila int.", "F{t,ep,Rd}", 9, 2},
    {"txtF7_1", "Flangia d'estremità a flessione, fila est.", "F{t,ep,Rd}", 10, 2},
    {"txtF8", "Anima della trave a trazione", "F{t,wb,Rd}", 11, sempre},
    {"txtF4", "Singola fila di bulloni a trazione", "2 F{t,Rd}", 3, sempre},
};

constexpr Componente fileEfficaci[] = {
    {"txtFmin0", "Resistenza efficace bulloni interni", "F{Rd.eff}", 12, sempre},
    {"txtFmin1", "Resistenza efficace bulloni esterni", "F{Rd.eff}", 13, 2},
};

QProgressBar* CreaBarra(const Componente& c) {
    auto* bar = new QProgressBar;
    bar->setObjectName(QStringLiteral("Bar") + QString::fromUtf8(c.nome));
    bar->setAccessibleName(QStringLiteral("Utilizzo: ") + QString::fromUtf8(c.testo));
    bar->setToolTip(QStringLiteral("Utilizzo per Mj,Sd"));
    bar->setRange(0, 100);
    bar->setFormat(QString());
    bar->setFixedWidth(90);
    bar->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    return bar;
}

QWidget* CreaForza(const char* nome, const QString& letta) {
    const QByteArray read = letta.toUtf8() + " [kN]";
    return CreaCampo({.nome = nome,
                      .caratteri = 8,
                      .aiuto = "Doppio clic sul nome: la formula",
                      .letta = read.constData(),
                      .genere = Genere::risultato});
}

/// The widgets of a line carry the rows of bolts that they belong to.
void PosaComponente(QGridLayout& grid, const Componente& c, int line) {
    const QString text = QString::fromUtf8(c.testo);
    QWidget* box = CreaForza(c.nome, text);
    QLabel* name = CreaScritta(c.testo, box);
    name->setObjectName(QStringLiteral("LblNome") + QString::fromUtf8(c.nome));
    QLabel* mark = CreaScritta("");
    mark->setObjectName(QStringLiteral("LblSegno") + QString::fromUtf8(c.nome));
    mark->setToolTip(QStringLiteral("Governa: ◆ colonna, ● trave, flangia o bulloni"));
    mark->setFixedWidth(mark->fontMetrics().horizontalAdvance(u'◆') + 2);
    QList<QWidget*> pieces{name, CreaDicitura({.testo = c.simbolo}), box};
    pieces << (*c.ridotta != '\0' ? CreaForza(c.ridotta, text + QStringLiteral(", ridistribuita")) : nullptr);
    pieces << mark << CreaBarra(c) << (c.domanda >= 0 ? CreaDomanda(c.domanda, c.testo) : nullptr);
    for (int i = 0; i < pieces.size(); ++i)
        if (pieces[i] != nullptr) {
            pieces[i]->setProperty("file", c.file);
            grid.addWidget(pieces[i], line, i);
        }
}

template <std::size_t n>
QWidget* CreaComponenti(const char* nome, const char* titolo, const Componente (&righe)[n]) {
    auto* room = new QGroupBox;
    QGridLayout* grid = CreaStanza(room, nome, titolo);
    grid->setVerticalSpacing(2);
    int line = 0;
    for (const Componente& c : righe)
        PosaComponente(*grid, c, line++);
    grid->setColumnStretch(0, 1);
    return room;
}

void MostraRighe(const QWidget& page, int nf) {
    for (QWidget* piece : page.findChildren<QWidget*>())
        if (const int rows = piece->property("file").toInt(); rows != sempre)
            piece->setVisible(rows == nf);
}

QWidget* CreaVerdetto() {
    auto* room = new QGroupBox;
    QGridLayout* grid = CreaStanza(room, "FrmRisultati", "Momento e taglio");
    const Voce voci[] = {
        Misura("TxtMjRd", "M{j,Rd} [kNm]", "Momento resistente ultimo del giunto [kNm]"),
        Misura("TxtMel", "M{j,el} [kNm]", "Momento resistente elastico del giunto [kNm]"),
        Misura("txtMrdTrave", "M{b,Rd} [kNm]", "Momento resistente della trave [kNm]"),
        Misura("TxtVrd0", "V{j,Rd} [kN]", "Taglio resistente, solo fila in zona compressa [kN]"),
        Misura("TxtVrd1", "V{j,Rd} [kN]", "Taglio resistente, fila compressa e fila tesa [kN]")};
    int i = 0;
    for (const Voce& v : voci) {
        const Coppia pair = CreaCoppia(v);
        grid->addWidget(pair.etichetta, i / 3, 2 * (i % 3));
        grid->addWidget(pair.campo, i / 3, 2 * (i % 3) + 1);
        ++i;
    }
    grid->addWidget(CreaDomanda(14, "momento resistente"), 0, 6);
    grid->addWidget(CreaEsposto("LblTaglio", "Verifica a taglio"), 1, 4, 1, 3);
    auto* verdict = CreaEsposto("ShapeResistenza", "Esito della verifica a momento");
    verdict->setAlignment(Qt::AlignCenter);
    verdict->setMinimumWidth(70);
    grid->addWidget(verdict, 2, 0);
    for (const auto& [name, read, line] :
         {std::tuple{"ResistenzaGiunto", "Classe di resistenza del giunto", 2},
          std::tuple{"LblGoverna", "Che cosa governa il momento resistente", 3},
          std::tuple{"LblNota", "Nota sui risultati", 4}}) {
        QLabel* label = CreaEsposto(name, read);
        label->setWordWrap(true);
        grid->addWidget(label, line, line == 2 ? 1 : 0, 1, line == 2 ? 6 : 7);
    }
    grid->setColumnStretch(7, 1);
    return room;
}

struct Coefficiente {
    const char* testo;
    const char* k; ///< symbols
    const char* mu;
    int domandaK = -1, domandaMu = -1;
    int file = sempre;
};

/// In the order of the report.
constexpr Coefficiente coefficienti[] = {
    {"Pannello d'anima della colonna a taglio", "k{1}", "μ{1}"},
    {"Anima della colonna a trazione", "k{2}", "μ{2}"},
    {"Ala della colonna a flessione", "k{4}", "μ{4}", 17, 20},
    {"Bulloni", "k{5}", "μ{5}", 16, 19},
    {"Flangia d'estremità a flessione", "k{6}", "μ{6}", 15, 18},
    {"Flangia d'estremità, fila est.", "k{6}", "μ{6}", -1, -1, 2},
    {"Anima della colonna a compressione", "k{3}", "μ{3}"},
};

void PosaCoefficiente(QGridLayout& grid, const char* array, int index, int column, const char* symbol,
                      int question) {
    const Coefficiente& c = coefficienti[index];
    const QByteArray name = QByteArray(array) + '_' + QByteArray::number(index);
    const bool mu = column > 1;
    const QByteArray what = mu ? "Coefficiente correttivo: " : "Coefficiente di rigidezza: ";
    const QByteArray read = what + c.testo;
    const Coppia pair = CreaCoppia(Misura(name.constData(), symbol, read.constData()));
    QList<QWidget*> pieces{pair.etichetta, pair.campo,
                           question >= 0 ? CreaDomanda(question, read.constData()) : nullptr};
    for (int i = 0; i < pieces.size(); ++i)
        if (pieces[i] != nullptr) {
            pieces[i]->setProperty("file", c.file);
            grid.addWidget(pieces[i], index, column + i);
        }
}

QWidget* CreaCoefficienti() {
    auto* room = new QGroupBox;
    QGridLayout* grid = CreaStanza(room, "fraCoefficienti", "Coefficienti di rigidezza e correttivi");
    grid->setVerticalSpacing(2);
    for (int i = 0; i < static_cast<int>(std::size(coefficienti)); ++i) {
        const Coefficiente& c = coefficienti[i];
        QLabel* name = CreaScritta(c.testo);
        name->setProperty("file", c.file);
        grid->addWidget(name, i, 0);
        PosaCoefficiente(*grid, "txtK", i, 1, c.k, c.domandaK);
        PosaCoefficiente(*grid, "txtmu", i, 4, c.mu, c.domandaMu);
    }
    grid->setColumnStretch(0, 1);
    return room;
}

} // namespace

PaginaGeometria::PaginaGeometria(QWidget* parent) : QWidget(parent) {
    QVBoxLayout* column = Colonna(this);
    column->addWidget(
        Gruppo("fraBulloni", "Bulloni [mm]",
               {Misura("Textd", "d", "Diametro del bullone"), Misura("Textd0", "d0", "Diametro del foro"),
                Misura("Textdw", "dw", "Diametro della rondella"),
                Misura("Textlb", "lb", "Lunghezza di allungamento del bullone")},
               2));
    column->addWidget(Gruppo("fraSaldature", "Saldature trave [mm]",
                             {Misura("Textaf", "af", "Gola della saldatura delle ali"),
                              Misura("Textaw", "aw", "Gola della saldatura dell'anima")},
                             1));
    column->addWidget(Gruppo(
        "fraFlangia", "Flangia [mm]",
        {Misura("Textw", "w", "Passo orizzontale fori"), Misura("Textp", "p", "Passo verticale fori interni"),
         Misura("Textec", "ec", "Distanza orizzontale del foro dal bordo (lato colonna)"),
         Misura("Textmc", "mc", "Distanza orizzontale del foro dall'anima della colonna"),
         Misura("Textmf", "mf", "Distanza orizzontale del foro dall'anima della trave"),
         Misura("Textm1", "m1", "Distanza verticale del foro interno dall'ala della trave"),
         Misura("Textm2", "m2", "Distanza verticale del foro esterno dall'ala della trave"),
         Misura("Texthf", "hf", "Altezza della flangia")},
        4));
    column->addWidget(
        Gruppo("fraIrrigidimenti", "Irrigidimenti [mm]",
               {Misura("Txt_S_Irr", "Spessore", "Spessore degli irrigidimenti"),
                Misura("Txt_B_Irr", "Larghezza: B", "Larghezza degli irrigidimenti"),
                Misura("Txt_L_Irr_0", "Lunghezza inferiore", "Lunghezza irrigidimento inferiore"),
                Misura("Txt_L_Irr_1", "Lunghezza superiore", "Lunghezza irrigidimento superiore"),
                Misura("Txt_Sal_Irr", "Gola", "Gola della saldatura degli irrigidimenti")},
               3));
    column->addStretch(1);
}

PaginaResistenza::PaginaResistenza(QWidget* parent) : QWidget(parent) {
    QVBoxLayout* column = Colonna(this);
    column->addWidget(CreaComponenti("FrmResistenza", "Resistenza dei singoli componenti [kN]", componenti));
    column->addWidget(CreaComponenti("FrmResEff", "Resistenza efficace delle file [kN]", fileEfficaci));
    column->addWidget(CreaVerdetto());
    column->addStretch(1);
}

void PaginaResistenza::MostraFile(int nf) { MostraRighe(*this, nf); }

PaginaRigidezza::PaginaRigidezza(QWidget* parent) : QWidget(parent) {
    QVBoxLayout* column = Colonna(this);
    column->addWidget(CreaCoefficienti());
    auto* reductions = new GruppoVoci;
    reductions->setTitle(QStringLiteral("Coefficienti riduttivi"));
    reductions->setObjectName(QStringLiteral("fraRiduttivi"));
    reductions->InRiga({Misura("TxtCoef_0", "beta", "Coefficiente riduttivo di taglio beta"),
                        Misura("TxtCoef_1", "K{wc}", "Coefficiente riduttivo Kwc"),
                        Misura("TxtCoef_2", "K{fc}", "Coefficiente riduttivo Kfc")});
    column->addWidget(reductions);
    auto* secants =
        Gruppo("fraSecanti", "Rigidezza rotazionale [kNm/rad]",
               {Misura("TxtSj_0", "S{j} per Mj,Rd", "Rigidezza rotazionale secante per Mj,Rd [kNm/rad]"),
                Misura("TxtSj_1", "S{j} per Mj,el", "Rigidezza rotazionale secante per Mj,el [kNm/rad]"),
                Misura("TxtSj_2", "S{j} per Mj,Sd", "Rigidezza rotazionale secante per Mj,Sd [kNm/rad]"),
                Misura("txtLimite_0", "Rigido, controventato",
                       "Limite Rigido - Semirigido telaio controventato [kNm/rad]"),
                Misura("txtLimite_1", "Rigido, non controventato",
                       "Limite Rigido - Semirigido telaio non controventato [kNm/rad]"),
                Misura("txtLimite_2", "Cerniera", "Limite Semirigido - Cerniera [kNm/rad]")},
               3);
    column->addWidget(secants);
    for (const auto& [name, read] : {std::pair{"LblNotaSj", "Nota sulla rigidezza per Mj,Sd"},
                                     std::pair{"RigidezzaGiunto1", "Classe di rigidezza"},
                                     std::pair{"RigidezzaGiunto2", "Classe di rigidezza, secondo limite"}})
        column->addWidget(CreaEsposto(name, read));
    auto* diagram = new QWidget;
    diagram->setObjectName(QStringLiteral("stanzaDiagramma"));
    auto* inside = new QVBoxLayout(diagram);
    inside->setContentsMargins(0, 0, 0, 0);
    column->addWidget(diagram, 1);
}

void PaginaRigidezza::MostraFile(int nf) { MostraRighe(*this, nf); }

} // namespace sagomi
