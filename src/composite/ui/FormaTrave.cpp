#include "composite/ui/FormaTrave.h"

#include <QAction>
#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include <array>
#include <vector>

#include "drawing/ui/ImmagineDisegno.h"
#include "frame/ui/Casella.h"
#include "frame/ui/Schermo.h"
#include "frame/ui/UpDown.h"
#include "frame/ui/Voce.h"

namespace sagomi {

namespace {

constexpr QMargins margini(9, 4, 9, 7);
constexpr int spazio = 6;
constexpr int righe = 4; ///< between rows of fields [px]

constexpr auto risultato = Genere::risultato;

// Tool-tips are the names of the quantities; captions their symbols with the unit.

const std::vector<Voce> vociSagomo{
    {{"lblHsd_0", "b [mm]"}, "txtHsd_0", 6, "Larghezza dell'ala superiore", "b [mm]"},
    {{"lblHsd_1", "b{inf} [mm]"}, "txtHsd_1", 6, "Larghezza dell'ala inferiore", "b inf [mm]"},
    {{"lblHsd_2", "t{f} [mm]"}, "txtHsd_2", 6, "Spessore dell'ala superiore", "tf [mm]"},
    {{"lblHsd_3", "t{f,inf} [mm]"}, "txtHsd_3", 6, "Spessore dell'ala inferiore", "tf inf [mm]"},
    {{"lblHsd_4", "h [mm]"}, "txtHsd_4", 6, "Altezza del sagomo", "h [mm]"},
    {{"lblHsd_5", "t{w} [mm]"}, "txtHsd_5", 6, "Spessore dell'anima", "tw [mm]"},
    {{"lblHsd_6", "r{1} [mm]"}, "txtHsd_6", 6, "Raggio r1 del sagomo", "r1 [mm]"},
    {{"lblHsd_7", "r{2} [mm]"}, "txtHsd_7", 6, "Raggio r2 del sagomo", "r2 [mm]"},
    {{"lblHsd_8", "r [mm]"}, "txtHsd_8", 6, "Raggio di raccordo o cordone d'anima", "r [mm]"},
};

const std::vector<Voce> vociSoletta{
    {{"lblDati_1", "h{c} [mm]"},
     "txtDati_1",
     7,
     "Spessore totale della soletta, lamiera compresa; negativo solo per soletta piena",
     "hc [mm]"},
    {{"lblDati_2", "b{eff} [mm]"},
     "txtDati_2",
     7,
     "Larghezza efficace della soletta, EC4 4.2.2.1",
     "beff [mm]"},
    {{"lblDati_3", "A{s} [mm2]"}, "txtDati_3", 7, "Armatura al \"negativo\"", "As [mm2]"},
    {{"lblDati_4", "c [mm]"},
     "txtDati_4",
     7,
     "Distanza delle barre dal bordo superiore della soletta",
     "c [mm]"},
};

const std::vector<Voce> vociLamiera{
    {{"lblLam_0", "h{a} [mm]"}, "TxtLam_0", 6, "Altezza nervatura", "ha [mm]"},
    {{"lblLam_1", "b{b} [mm]"}, "TxtLam_1", 6, "Larghezza base inferiore nervatura", "bb [mm]"},
    {{"lblLam_2", "b{s} [mm]"}, "TxtLam_2", 6, "Larghezza base superiore nervatura", "bs [mm]"},
    {{"lblLam_3", "i [mm]"}, "TxtLam_3", 6, "Interasse nervature", "interasse [mm]"},
    {{"lblLam_4", "b{0t} [mm]"}, "TxtLam_4", 6, "Larghezza cls a contatto della trave", "b0t [mm]"},
};

const std::vector<Voce> vociMateriali{
    {{"lblfck", "f{ck} [N/mm2]"}, "Txt_fck", 7, "Rottura cilindrica cls", "fck [N/mm2]"},
    {{"lblfsk", "f{sk} [N/mm2]"}, "Txt_fsk", 7, "Snervamento barre", "fsk [N/mm2]"},
    {{"lblDati_5", "Es/Ec"}, "txtDati_5", 7, "Es/Ec", "Es/Ec"},
};

const std::vector<Voce> vociSLU{
    {{"lblMplRd", "M{pl,Rd} [kNm]"},
     "Txt_MplRd",
     9,
     "Momento plastico resistente di progetto sezione composta",
     "MplRd sezione composta [kNm]",
     risultato},
    {{"lblNeutroPlastico", "y{pl} [mm]"},
     "Txt_NeutroPlastico",
     9,
     "y asse neutro plastico da bordo sup.",
     "y asse neutro plastico [mm]",
     risultato},
};

const std::vector<Voce> vociMetodoN{
    {{"lblSigma_0", "σ{cls} [N/mm2]"},
     "Txt_Sigma_0",
     8,
     "Sigma max calcestruzzo (- compressioni)",
     "Sigma cls [N/mm2]",
     risultato},
    {{"lblSigma_1", "σ{barre} [N/mm2]"},
     "Txt_Sigma_1",
     8,
     "Sigma armatura soletta (+ trazioni)",
     "Sigma barre [N/mm2]",
     risultato},
    {{"lblSigma_2", "σ{sup} [N/mm2]"},
     "Txt_Sigma_2",
     8,
     "Sigma bordo superiore sagomo (+ trazioni)",
     "Sigma sup [N/mm2]",
     risultato},
    {{"lblSigma_3", "σ{inf} [N/mm2]"},
     "Txt_Sigma_3",
     8,
     "Sigma bordo inferiore sagomo (+ trazioni)",
     "Sigma inf [N/mm2]",
     risultato},
    {{"lblyG", "y{el} [mm]"},
     "Txt_yG",
     9,
     "y asse neutro elastico da bordo sup.",
     "y asse neutro elastico [mm]",
     risultato},
    {{"lblJid", "J{id} [cm4]"},
     "Txt_Jid",
     9,
     "Momento d'inerzia omogeneizzato all'acciaio",
     "Jid [cm4]",
     risultato},
    {{"lblJidJa", "J{id}/J{a}"}, "Txt_JidJa", 9, "Rapporto momenti d'inerzia", "Jid/Ja", risultato},
    {{"lblSs", "S{s} [cm3]"},
     "Txt_Ss",
     9,
     "Momento statico, rispetto all'asse baricentrico, della parte reagente di soletta, omogeneizzato "
     "all'acciaio",
     "Ss [cm3]",
     risultato},
};

struct Scelta {
    const char* testo;
    const char* aiuto;
};
constexpr std::array<Scelta, 3> scelteSoletta{
    {{"Piena", "Soletta piena"},
     {"Grecata trasv.", "Lamiera grecata con nervature trasversali alla trave"},
     {"Grecata paral.", "Lamiera grecata con nervature parallele alla trave"}}};
constexpr std::array<Scelta, 4> scelteVerifica{
    {{"S.L.U. M+", "Verifica allo Stato Limite Ultimo (EC4) - Momento positivo"},
     {"S.L.U. M-", "Verifica allo Stato Limite Ultimo (EC4) - Momento negativo"},
     {"Metodo n  M+", "Calcolo elastico - Momento positivo"},
     {"Metodo n  M-", "Calcolo elastico - Momento negativo"}}};

/// A group box with a grid, which gives its box as parent widget.
QGridLayout* Stanza(const char* nome, const char* titolo) {
    auto* box = new QGroupBox(QString::fromUtf8(titolo));
    box->setObjectName(QString::fromLatin1(nome));
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(margini);
    grid->setHorizontalSpacing(spazio);
    grid->setVerticalSpacing(righe);
    return grid;
}

QGridLayout* Stanza(QLayout& dove, const char* nome, const char* titolo) {
    QGridLayout* grid = Stanza(nome, titolo);
    dove.addWidget(grid->parentWidget());
    return grid;
}

/// Captions and fields, row by row from a cell.
void Posa(QGridLayout& grid, const std::vector<Voce>& voci, int riga, int colonna, int perRiga) {
    int i = 0;
    for (const Voce& v : voci) {
        const Coppia pair = CreaCoppia(v);
        const int row = riga + i / perRiga;
        const int column = colonna + 2 * (i % perRiga);
        PosaDicitura(grid, pair.etichetta, row, column, Qt::AlignRight | Qt::AlignVCenter);
        grid.addWidget(pair.campo, row, column + 1);
        ++i;
    }
}

Coppia Posa(QGridLayout& grid, const Voce& voce, int riga, int colonna) {
    const Coppia pair = CreaCoppia(voce);
    PosaDicitura(grid, pair.etichetta, riga, colonna, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(pair.campo, riga, colonna + 1);
    return pair;
}

template <std::size_t n>
void Opzioni(QGridLayout& grid, const char* nome, const std::array<Scelta, n>& scelte, int perRiga) {
    auto* group = new QButtonGroup(grid.parentWidget());
    for (std::size_t i = 0; i < n; ++i) {
        auto* option = new QRadioButton(QString::fromUtf8(scelte[i].testo));
        option->setObjectName(QString::fromLatin1(nome) + u'_' + QString::number(i));
        option->setToolTip(QString::fromUtf8(scelte[i].aiuto));
        option->setAccessibleName(QString::fromUtf8(scelte[i].testo));
        option->setChecked(i == 0);
        group->addButton(option);
        const int at = static_cast<int>(i);
        grid.addWidget(option, at / perRiga, at % perRiga);
    }
}

QPushButton* Bottone(const char* nome, const char* testo, const char* aiuto) {
    auto* button = new QPushButton(QString::fromUtf8(testo));
    button->setObjectName(QString::fromLatin1(nome));
    button->setToolTip(QString::fromUtf8(aiuto));
    return button;
}

UpDown* Passi(const char* nome, const char* letto, const char* aiuto) {
    auto* steps = new UpDown;
    steps->setObjectName(QString::fromLatin1(nome));
    steps->setAccessibleName(QString::fromUtf8(letto));
    steps->setToolTip(QString::fromUtf8(aiuto));
    return steps;
}

QLabel* Scritta(const char* nome, const char* letta) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(nome));
    label->setAccessibleName(QString::fromUtf8(letta));
    return label;
}

ImmagineDisegno* Immagine(const char* nome, const char* letta) {
    auto* picture = new ImmagineDisegno;
    picture->setObjectName(QString::fromLatin1(nome));
    picture->setAccessibleName(QString::fromUtf8(letta));
    return picture;
}

/// A box that holds words.
void DiParole(QWidget* campo) {
    campo->setProperty(proprietaParole, true);
    static_cast<Casella*>(campo)->setAlignment(Qt::AlignLeft);
}

void RigaTitolo(QVBoxLayout& colonna) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(9, 0, 9, 0);
    Coppia pair = CreaCoppia({{"lblTitolo", "Titolo"}, "txtTitolo", 30, "Titolo della trave", "Titolo"});
    DiParole(pair.campo);
    pair.campo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    row->addWidget(pair.etichetta);
    row->addWidget(pair.campo, 1);
    colonna.addLayout(row);
}

void StanzaSagomo(QVBoxLayout& colonna) {
    QGridLayout* grid = Stanza(colonna, "fraSagomo", "Dati Sagomo");
    auto* head = new QHBoxLayout;
    head->setSpacing(spazio);
    const auto pair = [head](const Voce& voce) {
        const Coppia made = CreaCoppia(voce);
        head->addWidget(made.etichetta);
        head->addWidget(made.campo);
        return made.campo;
    };
    DiParole(pair({{"lblProf", "Sagomo"}, "Txt_Prof_0", 16, "Nome del sagomo", "Sagomo"}));
    head->addWidget(Passi("UpDown1", "Cambia sagomo", "Sagomo precedente o seguente della tabella"));
    DiParole(pair({{"lblTipoAcciaio", "Tipo Acciaio"},
                   "Txt_TipoAcciaio",
                   12,
                   "Tipo Acciaio",
                   "Tipo Acciaio",
                   risultato}));
    head->addWidget(Passi("UpDown2", "Cambia acciaio", "Acciaio precedente o seguente"));
    pair({{"lblfy", "f{y} [N/mm2]"}, "Txt_fy", 6, "Snervamento putrella", "fy [N/mm2]"});
    head->addStretch(1);
    grid->addLayout(head, 0, 0, 1, 11);
    Posa(*grid, vociSagomo, 1, 0, 5);
    grid->addWidget(Scritta("lblSagomo", "Misure del sagomo"), 2, 8, 1, 3);
    grid->setColumnStretch(10, 1);
}

void StanzaLamiera(QLayout& riga) {
    QGridLayout* grid = Stanza(riga, "FrameLamiera", "Lamiera");
    QSizePolicy place = grid->parentWidget()->sizePolicy();
    place.setRetainSizeWhenHidden(true); // nothing jumps when the kind of slab changes
    place.setHorizontalStretch(1);
    grid->parentWidget()->setSizePolicy(place);
    Posa(*grid, vociLamiera, 0, 0, 1);
    grid->parentWidget()
        ->findChild<QLabel*>(QStringLiteral("lblLam_2"))
        ->setToolTip(QStringLiteral(
            "Greca superiore, fra due nervature: interasse meno la base superiore della nervatura"));
    ImmagineDisegno* deck = Immagine("pctLamiera", "Disegno della lamiera");
    deck->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding); // the section has the room
    grid->addWidget(deck, 0, 2, 4, 1);
    grid->addWidget(Bottone("cmdLamiera", "&Zoom", "Ingrandisce il disegno della lamiera"), 4, 2,
                    Qt::AlignRight);
    grid->setColumnStretch(2, 1);
}

void RigaSoletta(QVBoxLayout& colonna) {
    auto* row = new QHBoxLayout;
    row->setSpacing(spazio);
    QGridLayout* grid = Stanza(*row, "fraSoletta", "Soletta");
    Opzioni(*grid, "OptTipoSoletta", scelteSoletta, 1);
    Posa(*grid, vociSoletta, 0, 1, 1);
    grid->setRowStretch(5, 1);
    StanzaLamiera(*row);
    colonna.addLayout(row);
}

void RigaVerifica(QVBoxLayout& colonna) {
    auto* row = new QHBoxLayout;
    row->setSpacing(spazio);
    QGridLayout* materials = Stanza(*row, "fraMateriali", "Materiali");
    Posa(*materials, vociMateriali, 0, 0, 1);
    QGridLayout* check = Stanza(*row, "fraVerifica", "Verifica");
    Opzioni(*check, "OpTipoVerifica", scelteVerifica, 2);
    auto* moment = new QHBoxLayout;
    moment->setSpacing(spazio);
    const Coppia pair =
        CreaCoppia({{"lblM", "M{Sd} [kNm]"}, "Txt_M", 8, "Momento sollecitante di progetto", "MSd [kNm]"});
    moment->addWidget(pair.etichetta);
    moment->addWidget(pair.campo);
    moment->addWidget(Scritta("lblSegnoMsd", "Segno di MSd"), 1);
    check->addLayout(moment, 2, 0, 1, 2);
    check->setColumnStretch(1, 1);
    colonna.addLayout(row);
}

/// The results of both kinds of check in one place, one of them in sight.
QStackedWidget* Risultati() {
    auto* pages = new QStackedWidget;
    QGridLayout* slu = Stanza("frSLU", "S.L.U.");
    Posa(*slu, vociSLU, 0, 0, 1);
    slu->addWidget(Scritta("lblEquilibrio", "MplRd in equilibrio"), 0, 2);
    slu->setColumnStretch(2, 1);
    slu->setRowStretch(4, 1);
    pages->addWidget(slu->parentWidget());
    QGridLayout* n = Stanza("frMetodoN", "Metodo n");
    const std::vector<Voce> left(vociMetodoN.begin(), vociMetodoN.begin() + 4);
    const std::vector<Voce> right(vociMetodoN.begin() + 4, vociMetodoN.end());
    for (int i = 0; i < 4; ++i) {
        Posa(*n, left[static_cast<std::size_t>(i)], i, 0);
        Posa(*n, right[static_cast<std::size_t>(i)], i, 2);
    }
    n->setColumnStretch(4, 1);
    pages->addWidget(n->parentWidget());
    for (auto* box : pages->findChildren<Casella*>())
        box->resize(box->sizeHint()); // what is not in sight has not been laid out yet
    return pages;
}

void RigaRisultati(QVBoxLayout& colonna) {
    auto* row = new QHBoxLayout;
    row->setSpacing(spazio);
    QGridLayout* steel = Stanza(*row, "fraAcciaio", "Acciaio e scorrimento");
    Posa(*steel,
         {{"lblMaplRd", "M{a,pl,Rd} [kNm]"},
          "Txt_MaplRd",
          9,
          "Momento plastico resistente di progetto solo acciaio",
          "MplRd solo acciaio [kNm]",
          risultato},
         0, 0);
    Posa(*steel,
         {{"lblVl", "V{l} [kN]"},
          "Txt_Vl",
          9,
          "Forza di scorrimento di progetto (Taglio longitudinale)",
          "Vl [kN]",
          risultato},
         1, 0);
    QLabel* section = Scritta("lblMessaggioClasse", "Classe della sezione");
    section->setMinimumHeight(2 * section->fontMetrics().lineSpacing());
    steel->addWidget(section, 2, 0, 1, 2);
    steel->addWidget(Scritta("lblNormativa", "Normativa"), 3, 0, 1, 2);
    steel->setRowStretch(4, 1);
    row->addWidget(Risultati(), 1);
    colonna.addLayout(row);
}

void RigaComandi(QVBoxLayout& colonna) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(9, 0, 0, 0);
    row->addWidget(Scritta("lblNota", "Perché mancano i risultati"), 1);
    row->addWidget(Bottone("cmdCalcola", "&Calcola", "Calcola la sezione composta"));
    row->addWidget(Bottone("cmdConnessioni", "C&onnessioni", "Progetto delle connessioni a pioli"));
    row->addWidget(Bottone("CmdPlotta", "&Plotta", "Disegna la sezione composta: anteprima, stampa, file"));
    colonna.addLayout(row);
}

void Menu(Schermo& schermo) {
    QMenu* file = schermo.menuBar()->addMenu(QStringLiteral("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    AggiungeVoce(*file, "mnuFileNuovo", "&Nuovo", "Ctrl+N");
    AggiungeVoce(*file, "mnuFileItem_1", "&Apri", "Ctrl+O");
    QMenu* recent = file->addMenu(QStringLiteral("A&pri recente"));
    recent->setObjectName(QStringLiteral("mnuRecenti"));
    AggiungeVoce(*file, "mnuFileItem_2", "&Salva", "Ctrl+Shift+S");
    AggiungeVoce(*file, "mnuFileSubito", "Salva nel file in &uso", "Ctrl+S");
    file->addSeparator();
    AggiungeVoce(*file, "mnuFileItem_3", "&Ritorna", "Ctrl+R");
    AggiungeVoce(*file, "mnuFileItem_0", "&Esci", "Ctrl+Q");
    auto* rules = new QAction(QStringLiteral("Normativa"), schermo.menuBar());
    rules->setObjectName(QStringLiteral("NormativaMain"));
    rules->setMenuRole(QAction::NoRole);
    rules->setEnabled(false); // until its screen is known
    schermo.menuBar()->addAction(rules);
}

} // namespace

QAction* AggiungeVoce(QMenu& menu, const char* nome, const char* testo, const char* tasto) {
    QAction* entry = menu.addAction(QString::fromUtf8(testo));
    entry->setObjectName(QString::fromLatin1(nome));
    entry->setMenuRole(QAction::NoRole);
    entry->setShortcut(QKeySequence(QString::fromLatin1(tasto)));
    return entry;
}

void ComponeTrave(Schermo& schermo) {
    auto* content = new QWidget;
    auto* halves = new QHBoxLayout(content);
    halves->setContentsMargins(9, 9, 9, 9);
    halves->setSpacing(9);
    auto* column = new QVBoxLayout;
    column->setSpacing(spazio);
    RigaTitolo(*column);
    StanzaSagomo(*column);
    RigaSoletta(*column);
    RigaVerifica(*column);
    RigaRisultati(*column);
    column->addStretch(1);
    RigaComandi(*column);
    halves->addLayout(column);
    halves->addWidget(Immagine("pctSezione", "Disegno della sezione composta"), 1);
    schermo.setCentralWidget(content);
    Menu(schermo);
}

} // namespace sagomi
