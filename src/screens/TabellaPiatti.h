#pragma once

#include <QList>
#include <QWidget>

#include <vector>

#include "frame/ui/Voce.h"

class QGridLayout;
class QLabel;

namespace sagomi {

/// A plate of a section in the table of its classes. Texts are UTF-8.
struct Piatto {
    const char* nome = "";       ///< "Anima"
    const char* delPiatto = "";  ///< "dell'anima"
    const char* didascalie = ""; ///< root of the object names of what is only read: "lblAnima"
    Voce lunghezza = {};         ///< the caption stands over the value
    Voce spessore = {};
    Voce snellezza = {};
    const char* limiti = "";     ///< root of the object names of the limits: "Lbl_LimiteWeb"
    bool limitiFlessione = true; ///< limits in bending, then in compression; else in compression alone
    const char* classeF = "";    ///< object name of the class in bending
    const char* classeC = "";    ///< object name of the class in compression
};

/// How each plate of a section was classified: sizes, slenderness, and, in bending and in compression, the
/// limits of the class found and the class.
class TabellaPiatti : public QWidget {
    Q_OBJECT
public:
    explicit TabellaPiatti(QWidget* parent = nullptr);

    /// Builds the table; to be called once.
    void Compone(const std::vector<Piatto>& piatti);

    /// A value by its object name; a name that the table does not have throws std::out_of_range.
    [[nodiscard]] QLabel* Valore(const char* nome) const;

    /// Shows or hides the rows of a plate.
    void MostraPiatto(int indice, bool visibile);

private:
    void PosaTeste();
    void PosaPiatto(const Piatto& piatto, int indice);
    void PosaDimensioni(const Piatto& piatto, int riga);
    void PosaLimiti(const Piatto& piatto, int riga);
    void PosaClassi(const Piatto& piatto, int riga);
    QLabel* PosaTesto(const char* testo, int riga, int colonna, int colonne = 1);
    void Posa(QWidget* parte, int riga, int colonna);

    QGridLayout* griglia_;
    QList<QWidgetList> piatti_; ///< what belongs to each plate
};

} // namespace sagomi
