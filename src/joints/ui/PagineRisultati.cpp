#include "joints/ui/PagineRisultati.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

#include "frame/ui/GruppoVoci.h"
#include "joints/ui/PezziPagina.h"

namespace sagomi {

namespace {

constexpr const char* rigaPropria = "rigaPropria"; ///< of a name: nothing else stands in its line
constexpr int passoRighe = 2;                      ///< between two lines [px]
constexpr int sempre = 0;                          ///< a line that stands with one row of bolts and with two

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
    int passo = 1;            ///< lines to the next component
};

constexpr int stessaRiga = 0; ///< the next one stands in its place, with the other number of rows

constexpr Componente componenti[] = {
    {"txtF1", "Pannello d'anima della colonna a taglio", "V{wp,Rd}", 0, sempre},
    {"txtF2", "Anima della colonna a compressione (schiacciamento)", "F{c,wc,Rd}", 1, sempre},
    {"txtF3", "Anima della colonna a compressione (instabilità)", "F{b,wc,Rd}", 2, sempre},
    {"txtF5", "Anima della colonna a trazione", "F{t,wc,Rd}", 4, sempre},
    {"txtF6", "Ala della colonna a flessione", "F{t,fc,Rd}", 5, 1, "", stessaRiga},
    {"txtF6_0", "Ala della colonna a flessione, fila int.", "F{t,fc,Rd}", 6, 2, "txtF6_0Ridistr"},
    {"txtF6_1", "Ala della colonna a flessione, fila est.", "F{t,fc,Rd}", 7, 2, "txtF6_1Ridistr"},
    {"txtF7", "Flangia d'estremità a flessione", "F{t,ep,Rd}", 8, 1, "", stessaRiga},
    {"txtF7_0", "Flangia d'estremità a flessione, fila int.", "F{t,ep,Rd}", 9, 2},
    {"txtF7_1", "Flangia d'estremità a flessione, fila est.", "F{t,ep,Rd}", 10, 2},
    {"txtF8", "Anima della trave a trazione", "F{t,wb,Rd}", 11, sempre},
    {"txtF4", "Singola fila di bulloni a trazione", "2 F{t,Rd}", 3, sempre},
};

constexpr Componente fileEfficaci[] = {
    {"txtFmin0", "Resistenza efficace bulloni interni", "F{Rd.eff}", 12, sempre},
    {"txtFmin1", "Resistenza efficace bulloni esterni", "F{Rd.eff}", 13, 2},
};

class Barra : public QProgressBar {
public:
    using QProgressBar::QProgressBar;
    [[nodiscard]] QSize sizeHint() const override {
        constexpr int caratteri = 12;
        return {fontMetrics().averageCharWidth() * caratteri, fontMetrics().height() + 2};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

QProgressBar* CreaBarra(const Componente& c) {
    auto* bar = new Barra;
    bar->setObjectName(QStringLiteral("Bar") + QString::fromUtf8(c.nome));
    bar->setAccessibleName(QStringLiteral("Utilizzo: ") + QString::fromUtf8(c.testo));
    bar->setToolTip(QStringLiteral("Utilizzo per Mj,Sd"));
    bar->setRange(0, 100);
    bar->setFormat(QString());
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

/// @param posto  kept while the box is hidden: its line is in sight all the same, so no column changes its
/// width
QWidget* CreaRidotta(const Componente& c, bool posto) {
    QWidget* box = CreaForza(c.ridotta, QString::fromUtf8(c.testo) + QStringLiteral(", ridistribuita"));
    QSizePolicy policy = box->sizePolicy();
    policy.setRetainSizeWhenHidden(posto);
    box->setSizePolicy(policy);
    return box;
}

/// The widgets of a line carry the rows of bolts that they belong to.
void PosaComponente(QGridLayout& grid, const Componente& c, int line) {
    const bool shared = grid.itemAtPosition(line, 0) != nullptr;
    const QString text = QString::fromUtf8(c.testo);
    QWidget* box = CreaForza(c.nome, text);
    QLabel* name = CreaScritta(c.testo, box);
    name->setObjectName(QStringLiteral("LblNome") + QString::fromUtf8(c.nome));
    QLabel* mark = CreaScritta("");
    mark->setObjectName(QStringLiteral("LblSegno") + QString::fromUtf8(c.nome));
    mark->setToolTip(QStringLiteral("Governa: ◆ colonna, ● trave, flangia o bulloni"));
    mark->setFixedWidth(mark->fontMetrics().horizontalAdvance(u'◆') + 2);
    QList<QWidget*> pieces{name, CreaDicitura({.testo = c.simbolo}), box};
    pieces << (*c.ridotta != '\0' ? CreaRidotta(c, shared) : nullptr);
    pieces << mark << CreaBarra(c) << (c.domanda >= 0 ? CreaDomanda(c.domanda, c.testo, c.nome) : nullptr);
    name->setProperty(rigaPropria, !shared && c.passo > stessaRiga);
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
    grid->setVerticalSpacing(passoRighe);
    int line = 0;
    for (const Componente& c : righe) {
        PosaComponente(*grid, c, line);
        line += c.passo;
    }
    grid->setColumnStretch(0, 1);
    return room;
}

/// A page out of sight keeps the measures that it had, and so does what holds it.
void RinnovaMisure(QWidget& page) {
    for (QWidget* room : page.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        room->updateGeometry();
    for (QWidget* up = &page; up != nullptr && !up->isWindow(); up = up->parentWidget()) {
        if (up->layout() != nullptr)
            up->layout()->invalidate();
        up->updateGeometry();
    }
}

void MostraRighe(QWidget& page, int nf) {
    for (QWidget* piece : page.findChildren<QWidget*>())
        if (const int rows = piece->property("file").toInt(); rows != sempre)
            piece->setVisible(rows == nf);
    RinnovaMisure(page);
}

/// The height of the lines that do not show.
QSize RigheNascoste(const QWidget& page) {
    const int line = std::max(page.findChild<QLineEdit*>()->sizeHint().height(),
                              page.findChild<QPushButton*>()->sizeHint().height());
    const int step = page.findChild<QGridLayout*>()->verticalSpacing();
    int height = 0;
    for (const QLabel* name : page.findChildren<QLabel*>())
        if (name->property(rigaPropria).toBool() && name->isHidden())
            height += line + step;
    return {0, height};
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
    grid->addWidget(CreaDomanda(14, "momento resistente", "TxtMjRd"), 0, 6);
    grid->addWidget(CreaNota("LblTaglio", "Verifica a taglio", 1), 1, 4, 1, 4);
    auto* verdict = CreaEsposto("ShapeResistenza", "Esito della verifica a momento");
    verdict->setAlignment(Qt::AlignCenter);
    grid->addWidget(verdict, 2, 0);
    grid->addWidget(CreaNota("ResistenzaGiunto", "Classe di resistenza del giunto", 2), 2, 1, 1, 3);
    grid->addWidget(CreaNota("LblGoverna", "Che cosa governa il momento resistente", 2), 2, 4, 1, 4);
    grid->addWidget(CreaNota("LblNota", "Nota sui risultati", 1), 3, 0, 1, 8);
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
                           question >= 0 ? CreaDomanda(question, read.constData(), name.constData())
                                         : nullptr};
    for (int i = 0; i < pieces.size(); ++i)
        if (pieces[i] != nullptr) {
            pieces[i]->setProperty("file", c.file);
            grid.addWidget(pieces[i], index, column + i);
        }
}

QWidget* CreaCoefficienti() {
    auto* room = new QGroupBox;
    QGridLayout* grid = CreaStanza(room, "fraCoefficienti", "Coefficienti di rigidezza e correttivi");
    grid->setVerticalSpacing(passoRighe);
    for (int i = 0; i < static_cast<int>(std::size(coefficienti)); ++i) {
        const Coefficiente& c = coefficienti[i];
        QLabel* name = CreaScritta(c.testo);
        name->setProperty("file", c.file);
        name->setProperty(rigaPropria, true);
        grid->addWidget(name, i, 0);
        PosaCoefficiente(*grid, "txtK", i, 1, c.k, c.domandaK);
        PosaCoefficiente(*grid, "txtmu", i, 4, c.mu, c.domandaMu);
    }
    grid->setColumnStretch(0, 1);
    return room;
}

QWidget* CreaRiduttivi() {
    auto* room = Gruppo("fraRiduttivi", "Coefficienti riduttivi",
                        {Misura("TxtCoef_0", "beta", "Coefficiente riduttivo di taglio beta"),
                         Misura("TxtCoef_1", "K{wc}", "Coefficiente riduttivo Kwc"),
                         Misura("TxtCoef_2", "K{fc}", "Coefficiente riduttivo Kfc")},
                        3);
    auto* grid = static_cast<QGridLayout*>(room->layout());
    grid->setRowStretch(grid->rowCount(), 1);
    return room;
}

QWidget* CreaSecanti() {
    return Gruppo("fraSecanti", "Rigidezza rotazionale [kNm/rad]",
                  {Misura("TxtSj_0", "S{j} per Mj,Rd", "Rigidezza rotazionale secante per Mj,Rd [kNm/rad]"),
                   Misura("TxtSj_1", "S{j} per Mj,el", "Rigidezza rotazionale secante per Mj,el [kNm/rad]"),
                   Misura("TxtSj_2", "S{j} per Mj,Sd", "Rigidezza rotazionale secante per Mj,Sd [kNm/rad]"),
                   Misura("txtLimite_0", "Rigido, controventato",
                          "Limite Rigido - Semirigido telaio controventato [kNm/rad]"),
                   Misura("txtLimite_1", "Rigido, non controventato",
                          "Limite Rigido - Semirigido telaio non controventato [kNm/rad]"),
                   Misura("txtLimite_2", "Cerniera", "Limite Semirigido - Cerniera [kNm/rad]")},
                  3);
}

/// What the stiffness says of the joint.
QWidget* CreaClassi() {
    auto* room = new QWidget;
    auto* column = new QVBoxLayout(room);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addStretch(1);
    column->addWidget(CreaNota("LblNotaSj", "Nota sulla rigidezza per Mj,Sd", 1));
    column->addWidget(CreaNota("RigidezzaGiunto1", "Classe di rigidezza", 2));
    column->addWidget(CreaNota("RigidezzaGiunto2", "Classe di rigidezza, secondo limite", 2));
    column->addStretch(1);
    return room;
}

/// @param largo  index of the piece that takes the spare room
QHBoxLayout* Accanto(const QList<QWidget*>& pezzi, int largo) {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (QWidget* piece : pezzi)
        row->addWidget(piece);
    row->setStretch(largo, 1);
    return row;
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

QSize PaginaResistenza::sizeHint() const { return QWidget::sizeHint() + RigheNascoste(*this); }

QSize PaginaResistenza::minimumSizeHint() const { return QWidget::minimumSizeHint() + RigheNascoste(*this); }

PaginaRigidezza::PaginaRigidezza(QWidget* parent) : QWidget(parent) {
    QVBoxLayout* column = Colonna(this);
    column->addLayout(Accanto({CreaCoefficienti(), CreaRiduttivi()}, 0));
    column->addLayout(Accanto({CreaSecanti(), CreaClassi()}, 1));
    auto* diagram = new QWidget;
    diagram->setObjectName(QStringLiteral("stanzaDiagramma"));
    auto* inside = new QVBoxLayout(diagram);
    inside->setContentsMargins(0, 0, 0, 0);
    column->addWidget(diagram, 1);
}

void PaginaRigidezza::MostraFile(int nf) { MostraRighe(*this, nf); }

QSize PaginaRigidezza::sizeHint() const { return QWidget::sizeHint() + RigheNascoste(*this); }

QSize PaginaRigidezza::minimumSizeHint() const { return QWidget::minimumSizeHint() + RigheNascoste(*this); }

} // namespace sagomi
