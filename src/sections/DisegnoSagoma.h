#pragma once

#include <string>
#include <vector>

#include "drawing/Disegno.h"
#include "drawing/Grafica.h"
#include "drawing/Quadro.h"

namespace sagomi {

class SezioneDoppioT;
class SezioneSagomoL;
class SezioneSagomoU;

/// The name of a dimension in the picture.
struct NomeSagoma {
    std::string testo;
    double x = 0, y = 0;   ///< what it names [mm]
    double dx = 0, dy = 0; ///< from there to the text [lines of text], dy downwards
    Allinea allinea = Allinea::Sinistra;
    Posa posa = Posa::Mezzo;
    bool richiamo = false; ///< a line leads to it

    bool operator==(const NomeSagoma&) const = default;
};

/// What the picture of a section shows: its outline and the names of its dimensions. All in mm, y upwards.
struct SagomaDisegnata {
    std::string nome;                   ///< of the section
    std::vector<double> x, y;           ///< closed outline
    std::vector<double> xAltra, yAltra; ///< that of the second piece of a pair, else empty
    double h = 0;                       ///< overall height of one piece, from y = 0
    double b = 0;                       ///< flange width of one piece; of different flanges the lower one's
    std::string nomeB = "b";            ///< its name
    double xb = 0;                      ///< where this width begins
    double sinistra = 0, destra = 0;    ///< how far the horizontal axis goes
    double basso = 0, alto = 0;         ///< how far the upright one goes
    double xG = 0, yG = 0;              ///< where they cross
    std::vector<NomeSagoma> nomi;       ///< of what has no dimension line

    bool operator==(const SagomaDisegnata&) const = default;
};

/// The picture of a section: its outline, as computed last, and what its dimensions are called.
SagomaDisegnata SagomaDi(const SezioneDoppioT& sezione);
SagomaDisegnata SagomaDi(const SezioneSagomoU& sezione);
SagomaDisegnata SagomaDi(const SezioneSagomoL& sezione);

/// The picture of the section in hand, to its proportions, with its dimension names. An outline of fewer than
/// 3 points, or one that cannot be drawn, clears it.
Disegno DisegnoSagoma(const SagomaDisegnata& sagoma);

} // namespace sagomi
