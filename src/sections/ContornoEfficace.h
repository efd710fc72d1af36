#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace sagomi {

class SezioneGenerica;

/// Hands an outline to a section and computes its static values. The section is created at first use, and
/// anew when something else holds it too: a copy of its owner keeps the outline that it was copied with.
/// @param x, y  vertices, vertex 1 at [0]
/// @param n     their number
SezioneGenerica& CalcolaContorno(std::shared_ptr<SezioneGenerica>& sezione, const std::vector<double>& x,
                                 const std::vector<double>& y, std::int16_t n);

/// Which vertices a cut may move: those above or below a level.
struct ParteContorno {
    double livello; ///< [mm]
    bool sopra;     ///< the part above the level, else the one below
};

/// Cuts a tip off an outline by a vertical line, in one part of it. The vertices beyond the line are drawn
/// back to where the outline crosses it, so their number stays and some fall together. The tip must be
/// convex there: one piece of outline beyond the line.
/// @param x, y   closed outline, changed in place
/// @param parte  the vertices that may move
/// @param xTaglio  the line [mm]
/// @param destra   what lies beyond is at greater x, else at smaller
void TagliaPunta(std::vector<double>& x, std::vector<double>& y, const ParteContorno& parte, double xTaglio,
                 bool destra);

/// Removes a strip of the web, but for the thread that holds the outline together; nothing without a height.
/// @param n     number of vertices, grows by those of the notch
/// @param y0    lower edge of the strip [mm]
/// @param H     its height [mm]
/// @param tipo  "DoppioT" or "SagomiU", as ForoSezione takes it
void ToglieAnima(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, double y0, double H,
                 std::string_view tipo);

/// An outline on its way to a section; the buffers are kept from one section to the next.
struct Bozza {
    std::vector<double> x, y;
    std::int16_t n = 0;
};
Bozza& BozzaContorno();

} // namespace sagomi
