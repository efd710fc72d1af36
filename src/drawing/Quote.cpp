#include "drawing/Quote.h"

#include <cmath>

#include "drawing/Grafica.h"

namespace sagomi {

namespace {

// In heights of the text. Extension lines pass a little beyond the dimension line, ISO 129-1.
constexpr double stacco = 0.4;     ///< between the piece and the extension line, and between line and text
constexpr double sporgenza = 0.5;  ///< of the extension line beyond the dimension line
constexpr double mezzaTacca = 0.4; ///< of the oblique tick
constexpr double codolo = 1.6;     ///< of the lines that point at a thickness from outside

double Verso(double da, double a) { return a >= da ? 1 : -1; }

} // namespace

void Quote::Linea(double x1, double y1, double x2, double y2) const {
    PennaPlt(pennaGrigia);
    LineaStilePlt(spessoreFine);
    LineaPlt(x1, y1, x2, y2);
}

// The oblique stroke at the end of a dimension line, at 45 degrees, ISO 129-1.
void Quote::Tacca(double x, double y) const {
    const double t = mezzaTacca * a_;
    PennaPlt(pennaInchiostro);
    LineaStilePlt(spessoreFine);
    LineaPlt(x - t, y - t, x + t, y + t);
}

// Text above its dimension line and readable from below, ISO 129-1.
void Quote::Orizzontale(double x1, double x2, double yPezzo, double y, std::string_view testo) const {
    const double verso = Verso(yPezzo, y);
    Linea(x1, y, x2, y);
    for (const double x : {x1, x2}) {
        Linea(x, yPezzo + verso * stacco * a_, x, y + verso * sporgenza * a_);
        Tacca(x, y);
    }
    PennaPlt(pennaInchiostro);
    TestoPlt((x1 + x2) / 2, y + (verso > 0 ? stacco : -1 - stacco) * a_, a_, testo, Allinea::Centro);
}

void Quote::Riferimento(const Estremo& punto, double x) const {
    const double verso = Verso(punto.x, x);
    Linea(punto.x + verso * stacco * a_, punto.y, x + verso * sporgenza * a_, punto.y);
    Tacca(x, punto.y);
}

void Quote::TestoAccanto(const Estremo& basso, const Estremo& alto, double x, std::string_view testo) const {
    const double verso = Verso(basso.x, x);
    PennaPlt(pennaInchiostro);
    TestoPlt(x + verso * 2 * stacco * a_, (basso.y + alto.y - a_) / 2, a_, testo,
             verso > 0 ? Allinea::Sinistra : Allinea::Destra);
}

void Quote::Verticale(const Estremo& basso, const Estremo& alto, double x, std::string_view testo) const {
    Linea(x, basso.y, x, alto.y);
    Riferimento(basso, x);
    Riferimento(alto, x);
    TestoAccanto(basso, alto, x, testo);
}

// Where there is no room between them, the terminations point from outside, ISO 129-1.
void Quote::SpessoreVerticale(const Estremo& basso, const Estremo& alto, double x,
                              std::string_view testo) const {
    Riferimento(basso, x);
    Riferimento(alto, x);
    Linea(x, alto.y, x, alto.y + codolo * a_);
    Linea(x, basso.y, x, basso.y - codolo * a_);
    TestoAccanto(basso, alto, x, testo);
}

void Quote::SpessoreOrizzontale(double x1, double x2, double y, std::string_view testo) const {
    Linea(x1 - codolo * a_, y, x1, y);
    Linea(x2, y, x2 + codolo * a_, y);
    Tacca(x1, y);
    Tacca(x2, y);
    PennaPlt(pennaInchiostro);
    TestoPlt(x2 + (codolo + stacco) * a_, y - a_ / 2, a_, testo);
}

void Quote::Richiamo(double x, double y, double xTesto, double yTesto, std::string_view testo) const {
    const double verso = Verso(x, xTesto);
    Linea(x, y, xTesto, yTesto);
    PennaPlt(pennaInchiostro);
    TestoPlt(xTesto + verso * stacco * a_, yTesto - a_ / 2, a_, testo,
             verso > 0 ? Allinea::Sinistra : Allinea::Destra);
}

// Centre line: narrow, long dash and dot, ISO 128-2 line type 04.1.
void Quote::Asse(double x1, double y1, double x2, double y2, std::string_view nome) const {
    PennaPlt(pennaGrigia);
    LineaStilePlt(spessoreFine, TipoLinea::TrattoPunto);
    LineaPlt(x1, y1, x2, y2);
    LineaStilePlt(spessoreFine);
    const double lunghezza = std::hypot(x2 - x1, y2 - y1);
    if (!(lunghezza > 0))
        return;
    const double ux = (x1 - x2) / lunghezza;
    const double uy = (y1 - y2) / lunghezza;
    PennaPlt(pennaInchiostro);
    TestoPlt(x1 + ux * a_, y1 + uy * a_ - a_ / 2, a_, nome, Allinea::Centro);
}

void Quote::Baricentro(double x, double y) const {
    const double r = 0.35 * a_;
    PennaPlt(pennaInchiostro);
    LineaStilePlt(spessoreFine);
    CerchioPlt(x, y, r);
    LineaPlt(x - 2 * r, y, x + 2 * r, y);
    LineaPlt(x, y - 2 * r, x, y + 2 * r);
}

} // namespace sagomi
