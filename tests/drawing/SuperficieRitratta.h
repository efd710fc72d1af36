#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <span>
#include <string>
#include <string_view>

#include "Approvato.h"
#include "SuperficieFinta.h"
#include "drawing/Disegno.h"

namespace sagomi::prove {

/// A fake surface that writes what is drawn on it as SVG, a shape a line, places in its own unit to 0.01:
/// what a person has looked at can be held against what comes out.
class SuperficieRitratta : public SuperficieFinta {
public:
    using SuperficieFinta::SuperficieFinta;

    void Line(double x1, double y1, double x2, double y2) override {
        SuperficieFinta::Line(x1, y1, x2, y2);
        svg_ += "<path d=\"M" + Punto(x1, y1) + "L" + Punto(x2, y2) + "\"" + Penna() + "/>\n";
    }
    void Circle(double x, double y, double r) override {
        SuperficieFinta::Circle(x, y, r);
        svg_ += "<circle cx=\"" + Cifra(InX(x)) + "\" cy=\"" + Cifra(InY(y)) + "\" r=\"" +
                Cifra(r / std::abs(ScaleWidth) * InX(ScaleLeft + ScaleWidth)) + "\"" + Penna() + "/>\n";
    }
    void Fill(std::span<const double> x, std::span<const double> y, Fondo fondo) override {
        constexpr std::array colori{"#ddd", "#888", "#fff"};
        svg_ += "<path d=\"";
        for (std::size_t i = 0; i < x.size(); ++i)
            svg_ += (i == 0 ? "M" : "L") + Punto(x[i], y[i]);
        svg_ += std::string("Z\" fill=\"") + colori[static_cast<std::size_t>(fondo)] + "\"/>\n";
    }
    void Print(std::string_view testo) override {
        SuperficieFinta::Print(testo);
        svg_ += "<text x=\"" + Cifra(InX(CurrentX)) + "\" y=\"" + Cifra(InY(CurrentY)) + "\" font-size=\"" +
                Cifra(FontSize / 0.7) + "\" fill=\"" + Colore() + "\">" + Protetto(testo) + "</text>\n";
    }

    [[nodiscard]] std::string Svg() const {
        const Misure s(*this);
        return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + s.l + "\" height=\"" + s.h +
               "\" font-family=\"DejaVu Sans\" fill=\"none\">\n" + svg_ + "</svg>\n";
    }

private:
    struct Misure {
        std::string l, h;
        explicit Misure(SuperficieRitratta s) {
            s.Scale();
            l = Cifra(s.ScaleWidth);
            h = Cifra(s.ScaleHeight);
        }
    };
    static std::string Cifra(double v) {
        std::array<char, 40> c{};
        const double intorno = std::round(v * 100) / 100 + 0.0; // no negative zero
        const auto fine = std::to_chars(c.data(), c.data() + c.size(), intorno, std::chars_format::fixed, 2);
        return {c.data(), fine.ptr};
    }
    [[nodiscard]] std::string Punto(double x, double y) const { return Cifra(InX(x)) + " " + Cifra(InY(y)); }
    [[nodiscard]] std::string Colore() const {
        const ColoreRgb c = ForeColor == pennaInchiostro ? ColoreRgb{} : ColoreTabella(ForeColor);
        return "rgb(" + std::to_string(c.rosso) + "," + std::to_string(c.verde) + "," +
               std::to_string(c.blu) + ")";
    }
    [[nodiscard]] std::string Penna() const {
        constexpr std::array tratti{"", " stroke-dasharray=\"12 3 2 3\"", " stroke-dasharray=\"6 3\"",
                                    " stroke-dasharray=\"6 2 1 2\""};
        return " stroke=\"" + Colore() + "\" stroke-width=\"" + Cifra(DrawWidth) + "\"" +
               tratti[static_cast<std::size_t>(DrawStyle)];
    }
    static std::string Protetto(std::string_view testo) {
        std::string t;
        for (const char c : testo)
            t += c == '<' ? "&lt;" : c == '&' ? "&amp;" : std::string(1, c);
        return t;
    }

    std::string svg_;
};

/// A drawing as SVG, on a surface of that size.
inline std::string InSvg(const Disegno& disegno, double larghezza, double altezza, std::string_view maschera,
                         std::string_view dispositivo = dispositivoVideo) {
    SuperficieRitratta s(larghezza, altezza);
    const SuUscita uscita(&s, dispositivo);
    disegno.PlottaInOggetto(&s, maschera);
    return s.Svg();
}

} // namespace sagomi::prove
