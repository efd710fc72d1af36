#include "frame/ui/LineaFormula.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>

#include <algorithm>

#include "frame/Numeri.h"
#include "frame/ui/Esito.h"
#include "frame/ui/EtichettaRisultato.h"
#include "frame/ui/Parentesi.h"

namespace sagomi {

namespace {

// Rows of the grid: a fraction of symbols, a gap, a fraction of values.
constexpr int rigaSimboli = 0;
constexpr int rigaStacco = 3;
constexpr int rigaValori = 4;
constexpr int righeFrazione = 3;

bool Manca(const Voce& voce) { return *voce.nome == '\0'; }

QFrame* CreaLinea() {
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    return line;
}

QWidget* InUnWidget(QHBoxLayout* row) {
    auto* widget = new QWidget;
    widget->setLayout(row);
    return widget;
}

EtichettaRisultato* CreaNudo(const Voce& voce, Qt::Alignment alignment) {
    EtichettaRisultato* value = CreaValore(voce);
    value->setFrameShape(QFrame::NoFrame);
    value->setAlignment(alignment);
    return value;
}

void Ingrassa(QWidget* label, bool bold) {
    QFont font = label->font();
    font.setBold(bold);
    label->setFont(font);
}

QString NomeSimbolo(const char* valore) {
    return QString::fromUtf8(valore).replace(QStringLiteral("Val"), QStringLiteral("Sim"));
}

} // namespace

Voce VoceValore(const char* nome, const char* aiuto, const char* letta, int caratteri) {
    return {.nome = nome, .caratteri = caratteri, .aiuto = aiuto, .letta = letta};
}

Voce VoceSomma(const char* nome, const char* aiuto) { return VoceValore(nome, aiuto, "Somma", 7); }

Voce VoceEsito(const char* nome) { return VoceValore(nome, "Esito della verifica", "Esito", 4); }

LineaFormula::LineaFormula(QWidget* parent) : QWidget(parent), griglia_(new QGridLayout(this)) {
    griglia_->setContentsMargins(0, 0, 0, 0);
    griglia_->setHorizontalSpacing(4);
    griglia_->setVerticalSpacing(2);
}

void LineaFormula::Compone(const Formula& formula) {
    valoriDoppi_ = std::any_of(formula.termini.begin(), formula.termini.end(),
                               [](const Termine& t) { return !Manca(t.valoreSotto); });
    int column = 0;
    for (const Termine& t : formula.termini)
        PosaTermine(t, column);
    PosaSomma(formula, column);
    const int gap = valoriDoppi_ ? 6 : 4;
    griglia_->addItem(new QSpacerItem(0, gap, QSizePolicy::Minimum, QSizePolicy::Fixed), rigaStacco, 0);
    MostraAltro(false);
}

void LineaFormula::PosaTermine(const Termine& termine, int& colonna) {
    if (colonna > 0)
        PosaSegno(" + ", termine.piu, colonna++);
    const bool brackets = !Manca(termine.valoreEsponente);
    if (brackets)
        PosaParentesi(colonna++, false);
    PosaSimboli(termine, colonna);
    PosaValori(termine, colonna++);
    if (brackets)
        PosaParentesi(colonna++, true);
    esponente_.append(nullptr);
    if (brackets)
        PosaEsponente(termine, colonna++);
}

/// A sign between the terms, once among the symbols and once among the values.
void LineaFormula::PosaSegno(const char* segno, const char* nome, int colonna) {
    QLabel* symbol = CreaDicitura({"", segno}, Qt::AlignCenter);
    symbol->setObjectName(NomeSimbolo(nome));
    griglia_->addWidget(symbol, rigaSimboli, colonna, righeFrazione, 1);
    griglia_->addWidget(CreaDicitura({nome, segno}, Qt::AlignCenter), rigaValori, colonna, RigheValori(), 1);
}

/// Symbols side by side; signs and brackets are centred in their room.
QHBoxLayout* LineaFormula::CreaSimboli(const std::vector<Dicitura>& simboli) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    for (const Dicitura& s : simboli) {
        QLabel* symbol =
            CreaDicitura(s, *s.pedice == '\0' ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
        row->addWidget(symbol);
        simboli_.last() << symbol;
    }
    return row;
}

void LineaFormula::PosaSimboli(const Termine& termine, int colonna) {
    simboli_.append(QList<QLabel*>());
    if (termine.altro.empty())
        griglia_->addLayout(CreaSimboli(termine.sopra), rigaSimboli, colonna, Qt::AlignCenter);
    else {
        soloPrimo_.append(InUnWidget(CreaSimboli(termine.sopra)));
        soloAltro_.append(InUnWidget(CreaSimboli(termine.altro)));
        auto* both = new QHBoxLayout;
        both->setSpacing(0);
        both->addWidget(soloPrimo_.last());
        both->addWidget(soloAltro_.last());
        griglia_->addLayout(both, rigaSimboli, colonna, Qt::AlignCenter);
    }
    griglia_->addWidget(CreaLinea(), rigaSimboli + 1, colonna);
    griglia_->addLayout(CreaSimboli(termine.sotto), rigaSimboli + 2, colonna, Qt::AlignCenter);
}

void LineaFormula::PosaValori(const Termine& termine, int colonna) {
    sopra_.append(CreaNudo(termine.valoreSopra, Qt::AlignCenter));
    griglia_->addWidget(sopra_.last(), rigaValori, colonna);
    altro_.append(nullptr);
    if (!Manca(termine.valoreAltro)) {
        altro_.last() = CreaNudo(termine.valoreAltro, Qt::AlignCenter);
        griglia_->addWidget(altro_.last(), rigaValori, colonna);
        soloPrimo_.append(sopra_.last());
        soloAltro_.append(altro_.last());
    }
    sotto_.append(nullptr);
    if (Manca(termine.valoreSotto))
        return;
    sotto_.last() = CreaNudo(termine.valoreSotto, Qt::AlignCenter);
    griglia_->addWidget(CreaLinea(), rigaValori + 1, colonna);
    griglia_->addWidget(sotto_.last(), rigaValori + 2, colonna);
}

void LineaFormula::PosaParentesi(int colonna, bool destra) {
    for (const int row : {rigaSimboli, rigaValori}) {
        auto* bracket = new Parentesi;
        bracket->ImpostaDestra(destra);
        griglia_->addWidget(bracket, row, colonna, righeFrazione, 1);
    }
}

void LineaFormula::PosaEsponente(const Termine& termine, int colonna) {
    const Qt::Alignment corner = Qt::AlignLeft | Qt::AlignTop;
    const Qt::Alignment text = Qt::AlignLeft | Qt::AlignVCenter;
    esponente_.last() = CreaNudo(termine.valoreEsponente, text);
    griglia_->addWidget(CreaDicitura(termine.esponente, text), rigaSimboli, colonna, corner);
    griglia_->addWidget(esponente_.last(), rigaValori, colonna, corner);
}

void LineaFormula::PosaSomma(const Formula& formula, int colonna) {
    const Qt::Alignment middle = RigheValori() > 1 ? Qt::AlignVCenter : Qt::Alignment();
    QLabel* limit = CreaDicitura({"", " ≤ 1"});
    limit->setObjectName(
        NomeSimbolo(formula.uguale).replace(QStringLiteral("Uguale"), QStringLiteral("Limite")));
    griglia_->addWidget(limit, rigaSimboli, colonna, righeFrazione, 2);
    griglia_->addWidget(CreaDicitura({formula.uguale, " = "}, Qt::AlignCenter), rigaValori, colonna,
                        RigheValori(), 1);
    somma_ = CreaValore(formula.somma);
    griglia_->addWidget(somma_, rigaValori, colonna + 1, RigheValori(), 1, middle);
    if (Manca(formula.esito))
        return;
    esito_ = CreaValore(formula.esito);
    esito_->setAlignment(Qt::AlignCenter);
    QFont bold = esito_->font();
    bold.setBold(true);
    esito_->setFont(bold);
    griglia_->addWidget(esito_, rigaValori, colonna + 2, RigheValori(), 1, middle);
    griglia_->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum), rigaSimboli,
                      colonna + 3);
}

void LineaFormula::MostraAltro(bool altro) {
    for (QWidget* part : soloPrimo_)
        part->setVisible(!altro);
    for (QWidget* part : soloAltro_)
        part->setVisible(altro);
}

void LineaFormula::Evidenzia(int termine) {
    if (termine == governa_)
        return;
    Segna(governa_, false);
    Segna(termine, true);
    governa_ = termine;
}

void LineaFormula::Segna(int termine, bool governa) {
    if (termine < 0 || termine >= simboli_.size())
        return;
    for (QLabel* symbol : simboli_[termine])
        Ingrassa(symbol, governa);
    for (EtichettaRisultato* value : {sopra_[termine], altro_[termine], sotto_[termine], esponente_[termine]})
        if (value != nullptr) {
            Ingrassa(value, governa);
            value->setAccessibleDescription(governa ? tr("Termine che governa. ") + value->toolTip()
                                                    : QString());
        }
}

void LineaFormula::MostraSomma(double somma, double giudizio) {
    somma_->setText(QString::fromStdString(Formato("0.0##", somma)));
    if (esito_ != nullptr)
        MostraEsito(esito_, giudizio);
}

int LineaFormula::RigheValori() const { return valoriDoppi_ ? righeFrazione : 1; }

} // namespace sagomi
