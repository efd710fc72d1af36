#include "drawing/Dxf.h"

#include <algorithm>
#include <string>

#include "drawing/Grafica.h"
#include "frame/FileDati.h"

namespace sagomi {

namespace {

constexpr std::string_view zeroZ = "0.0"; ///< everything lies in the plane
constexpr std::string_view strato = "0";  ///< the one layer

// The group codes of the DXF reference: 0 entity, 1 text, 8 layer, 10 20 30 point (11 21 31 the second one),
// 40 radius or height, 62 colour, 66 vertices follow.

/// A group is two lines: the code in three columns, then the value.
void Gruppo(std::string_view codice, std::string_view valore) {
    ScriveRiga(nFileDxf, codice);
    ScriveRiga(nFileDxf, valore);
}

/// Shortest text that reads back; a zero has no sign.
std::string Numero(double valore) { return valore == 0 ? "0" : NumeroFile(valore); }

/// An integer in the six columns that it has in these files.
std::string Intero(std::int16_t valore) {
    constexpr std::size_t colonne = 6;
    const std::string cifre = NumeroFile(double(valore));
    return std::string(colonne - std::min(colonne, cifre.size()), ' ') + cifre;
}

void Colore() { Gruppo(" 62", Intero(ColorePenna)); }

/// Point k of an entity, from 0: the codes of its coordinates end in that figure.
void Punto(char k, std::string_view x, std::string_view y) {
    using namespace std::string_literals;
    Gruppo(" 1"s + k, x);
    Gruppo(" 2"s + k, y);
    Gruppo(" 3"s + k, zeroZ);
}

void Punto(char k, double x, double y) { Punto(k, Numero(x), Numero(y)); }

void Inizio(std::string_view entita) {
    Gruppo("  0", entita);
    Gruppo("  8", strato);
}

void Vertice(double x, double y) {
    Inizio("VERTEX");
    Punto('0', x, y);
}

void Polilinea(std::int16_t n, std::span<const double> x, std::span<const double> y, bool chiusa) {
    if (n < 2)
        return;
    Inizio("POLYLINE");
    Gruppo(" 66", Intero(1)); // vertices follow
    Colore();
    Punto('0', zeroZ, zeroZ);
    for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i)
        Vertice(x[i], y[i]);
    if (chiusa)
        Vertice(x[0], y[0]);
    Inizio("SEQEND");
}

} // namespace

bool DxfApre(const std::filesystem::path& nomeFile, std::int16_t& nFile) {
    nFile = ApreFile(nomeFile, "S");
    nFileDxf = nFile;
    if (nFile == 0)
        return false;
    Gruppo("  0", "SECTION");
    Gruppo("  2", "ENTITIES");
    return true;
}

bool DxfChiude() {
    if (nFileDxf == 0)
        return false;
    Gruppo("  0", "ENDSEC");
    Gruppo("  0", "EOF");
    const bool riuscito = ChiudeFile(nFileDxf);
    nFileDxf = 0;
    return riuscito;
}

void DxfAbbandona() {
    AbbandonaFile(nFileDxf);
    nFileDxf = 0;
}

void DxfLinea(double x1, double y1, double x2, double y2) {
    Inizio("LINE");
    Colore();
    Punto('0', x1, y1);
    Punto('1', x2, y2);
}

void DxfCerchio(double x, double y, double r) {
    Inizio("CIRCLE");
    Colore();
    Punto('0', x, y);
    Gruppo(" 40", Numero(r));
}

void DxfPolilinea(std::int16_t n, std::span<const double> x, std::span<const double> y) {
    Polilinea(n, x, y, false);
}

void DxfPolilineaChiusa(std::int16_t n, std::span<const double> x, std::span<const double> y) {
    Polilinea(n, x, y, true);
}

void DxfTesto(double x, double y, double altezza, std::string_view testo) {
    std::string riga(testo);
    std::replace_if(
        riga.begin(), riga.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    Inizio("TEXT");
    Colore();
    Punto('0', x, y);
    Gruppo(" 40", Numero(altezza));
    Gruppo("  1", riga);
}

} // namespace sagomi
