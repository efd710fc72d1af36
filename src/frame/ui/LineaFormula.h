#pragma once

#include <QList>
#include <QWidget>

#include <string>
#include <vector>

#include "frame/ui/Voce.h"

class QGridLayout;
class QHBoxLayout;
class QLabel;

namespace sagomi {

class EtichettaRisultato;

/// A term of a formula: a fraction of symbols and, under it, of values. Fields without a name are not there.
struct Termine {
    std::vector<Dicitura> sopra = {}; ///< symbols of the numerator
    std::vector<Dicitura> sotto = {}; ///< symbols of the denominator
    Voce valoreSopra = {};            ///< value of the numerator, or of the whole term
    Voce valoreSotto = {};            ///< value of the denominator
    std::vector<Dicitura> altro = {}; ///< symbols of a longer numerator that can take the first one's place
    Voce valoreAltro = {};            ///< its value
    Dicitura esponente = {};          ///< puts the term into brackets
    Voce valoreEsponente = {};
    const char* piu = ""; ///< object name of the plus sign before the value; the first term has none
};

/// A sum that a check holds against 1.
struct Formula {
    std::vector<Termine> termini = {};
    const char* uguale = ""; ///< object name of the equals sign before the sum
    Voce somma = {};
    Voce esito = {}; ///< verdict behind the sum; without a name it stands elsewhere
};

/// A value of a formula: object name, tool-tip, accessible name, width in figures.
Voce VoceValore(const char* nome, const char* aiuto, const char* letta, int caratteri = 8);
/// The sum of a formula.
Voce VoceSomma(const char* nome, const char* aiuto);
/// The verdict of a formula.
Voce VoceEsito(const char* nome);

/// The line of a check as the code of rules prints it: terms in a row, each value under its symbol, the sum
/// and the verdict at the end.
class LineaFormula : public QWidget {
    Q_OBJECT
public:
    explicit LineaFormula(QWidget* parent = nullptr);

    /// Builds the line; to be called once.
    void Compone(const Formula& formula);

    /// Shows the longer numerators, or the shorter ones.
    void MostraAltro(bool altro);

    /// Value labels by term from 0; nullptr where the term has none.
    [[nodiscard]] EtichettaRisultato* Sopra(int termine) const { return sopra_[termine]; }
    [[nodiscard]] EtichettaRisultato* Sotto(int termine) const { return sotto_[termine]; }
    [[nodiscard]] EtichettaRisultato* Altro(int termine) const { return altro_[termine]; }
    [[nodiscard]] EtichettaRisultato* Esponente(int termine) const { return esponente_[termine]; }
    [[nodiscard]] EtichettaRisultato* Somma() const { return somma_; }

    /// Marks the term that governs, for the eye in bold, for the ear in the description of its values.
    /// @param termine  from 0; -1 for none
    void Evidenzia(int termine);

    /// Shows the sum by the picture "0.0##", and its verdict where the line has one.
    void MostraSomma(double somma) { MostraSomma(somma, somma); }
    /// The same with a verdict on another value than the sum.
    void MostraSomma(double somma, double giudizio);

private:
    void PosaTermine(const Termine& termine, int& colonna);
    void PosaSegno(const char* segno, const char* nome, int colonna);
    QHBoxLayout* CreaSimboli(const std::vector<Dicitura>& simboli);
    void PosaSimboli(const Termine& termine, int colonna);
    void Segna(int termine, bool governa);
    void PosaValori(const Termine& termine, int colonna);
    void PosaParentesi(int colonna, bool destra);
    void PosaEsponente(const Termine& termine, int colonna);
    void PosaSomma(const Formula& formula, int colonna);

    [[nodiscard]] int RigheValori() const;

    QGridLayout* griglia_;
    bool valoriDoppi_ = false;      ///< values are fractions too
    int governa_ = -1;              ///< the term that is marked
    QList<QList<QLabel*>> simboli_; ///< of each term
    QList<EtichettaRisultato*> sopra_, sotto_, altro_, esponente_;
    QList<QWidget*> soloPrimo_, soloAltro_;
    EtichettaRisultato* somma_ = nullptr;
    EtichettaRisultato* esito_ = nullptr;
};

} // namespace sagomi
