#pragma once

#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "geometry/Poligono.h"

/// Polygon cases kept as text: title, source of the values, outline, tolerances, expected values, cuts.
namespace sagomi::prove {

/// What a part of a cut polygon must measure.
struct ParteAttesa {
    double Area = 0, xG = 0, yG = 0;
};

struct TaglioAtteso {
    bool lungoX = false;
    double livello = 0;
    ParteAttesa sopra, sotto;
};

struct CasoPoligono {
    std::string titolo, fonte;
    std::vector<double> x, y;
    double tolleranza = 0, tolleranzaPlastica = 0;
    std::map<std::string, double> attesi;
    std::vector<TaglioAtteso> tagli;
};
void PrintTo(const CasoPoligono& c, std::ostream* os);

/// All cases of a file of tests/data/geometry; throws std::runtime_error on a line that it cannot read.
std::vector<CasoPoligono> LeggeCasiPoligono(const std::string& file);

/// A polygon from "0 0, 150 0, 150 10".
Poligono PoligonoDaTesto(std::string_view testo);
Poligono PoligonoDelCaso(const CasoPoligono& c);

/// Name of a case for the test list: letters and digits of its title.
std::string NomeCaso(const CasoPoligono& c);

/// Outline of a rolled I, h x b x tw x tf with fillets r of 8 chords: 44 vertices, counter-clockwise from the
/// bottom right corner, the web on the y axis.
Poligono ContornoDoppioT(double h, double b, double tw, double tf, double r);

} // namespace sagomi::prove
