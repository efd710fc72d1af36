#include "drawing/SuperficieSvg.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "frame/FileDati.h"

namespace sagomi {

namespace {

constexpr double testiPerLinea = 10;        ///< lines of DrawWidth 1 in the height of a text
constexpr double lineePerLato = 500;        ///< the same in the longer side, where there is no text
constexpr double maiuscole = 0.73;          ///< height of the capitals over the size of the font
constexpr double discendenti = 0.3;         ///< below the base line, over the height of the capitals
constexpr std::string_view chiaro = "0.15"; ///< opacity of a light fill

/// To a ten-thousandth of a millimetre; a zero has no sign.
std::string Numero(double valore) {
    constexpr double parti = 1e4;
    const double tondo = std::round(valore * parti) / parti;
    return tondo == 0 ? "0" : NumeroFile(tondo);
}

std::string Attributo(std::string_view nome, double valore) {
    return " " + std::string(nome) + "=\"" + Numero(valore) + "\"";
}

std::string Attributo(std::string_view nome, std::string_view valore) {
    return " " + std::string(nome) + "=\"" + std::string(valore) + "\"";
}

std::string Esadecimale(std::uint8_t v) {
    constexpr std::string_view cifre = "0123456789abcdef";
    return {cifre[v / 16U], cifre[v % 16U]};
}

std::string Colore(std::int16_t penna) {
    const ColoreRgb c = penna == pennaInchiostro ? ColoreRgb{} : ColoreTabella(penna);
    return "#" + Esadecimale(c.rosso) + Esadecimale(c.verde) + Esadecimale(c.blu);
}

/// A text as it may stand in a file of tags, XML 1.0 2.4. Control characters may not, 2.2.
std::string Protetto(std::string_view testo) {
    std::string protetto;
    for (const char c : testo)
        switch (c) {
        case '&':
            protetto += "&amp;";
            break;
        case '<':
            protetto += "&lt;";
            break;
        case '>':
            protetto += "&gt;";
            break;
        default:
            protetto += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
        }
    return protetto;
}

/// Dashes and gaps, in widths of the line: stroke-dasharray, SVG 1.1 11.4.
std::string Tratti(TipoLinea tipo, double spessore) {
    std::string tratti;
    for (const double t : TrattiDi(tipo))
        tratti += (tratti.empty() ? "" : " ") + Numero(t * spessore);
    return tratti;
}

/// Value of stroke-linecap, SVG 1.1 11.4.
std::string_view Nome(Estremi estremi) {
    constexpr std::array<std::string_view, 3> nomi{"round", "square", "butt"};
    return nomi[static_cast<std::size_t>(estremi)];
}

} // namespace

void SuperficieSvg::Comprende(double x, double y) {
    xMin_ = std::min(xMin_, x);
    xMax_ = std::max(xMax_, x);
    yMin_ = std::min(yMin_, y);
    yMax_ = std::max(yMax_, y);
}

void SuperficieSvg::Aggiunge(std::string nome, bool linea, std::string contenuto) {
    elementi_.push_back({std::move(nome), std::move(contenuto), linea ? DrawWidth : 0, DrawStyle, DrawCap});
}

void SuperficieSvg::Line(double x1, double y1, double x2, double y2) {
    const std::array<double, 2> x{x1, x2};
    const std::array<double, 2> y{y1, y2};
    Polyline(x, y, false);
}

void SuperficieSvg::Circle(double x, double y, double r) {
    const double raggio = Raggio(r);
    const double cx = X(x);
    const double cy = -Y(y);
    Comprende(cx - raggio, cy - raggio);
    Comprende(cx + raggio, cy + raggio);
    Aggiunge("circle" + Attributo("cx", cx) + Attributo("cy", cy) + Attributo("r", raggio) +
                 Attributo("stroke", Colore(ForeColor)),
             true);
}

std::string SuperficieSvg::Punti(std::span<const double> x, std::span<const double> y) {
    std::string punti;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double px = X(x[i]);
        const double py = -Y(y[i]);
        Comprende(px, py);
        punti += (punti.empty() ? "" : " ") + Numero(px) + "," + Numero(py);
    }
    return punti;
}

void SuperficieSvg::Polyline(std::span<const double> x, std::span<const double> y, bool chiusa) {
    Aggiunge((chiusa ? "polygon" : "polyline") + Attributo("points", Punti(x, y)) +
                 Attributo("stroke", Colore(ForeColor)),
             true);
}

void SuperficieSvg::Fill(std::span<const double> x, std::span<const double> y, Fondo fondo) {
    const std::string colore =
        fondo == Fondo::Sfondo ? "#ffffff" : Colore(fondo == Fondo::Tenue ? pennaInchiostro : ForeColor);
    Aggiunge("polygon" + Attributo("points", Punti(x, y)) + Attributo("fill", colore) +
                 (fondo == Fondo::Tenue ? Attributo("fill-opacity", chiaro) : std::string()),
             false);
}

void SuperficieSvg::Print(std::string_view testo) { PrintAligned(testo, Allinea::Sinistra); }

void SuperficieSvg::PrintAligned(std::string_view testo, Allinea allinea) {
    constexpr std::array<std::string_view, 3> ancore{"start", "middle", "end"};
    const double x = X(CurrentX);
    const double y = -Y(CurrentY);
    const double larghezza = LarghezzaStimata(FontSize, testo);
    const double sinistra = x - QuotaSinistra(allinea) * larghezza;
    Comprende(sinistra, y - FontSize);
    Comprende(sinistra + larghezza, y + discendenti * FontSize);
    testoMinimo_ = std::min(testoMinimo_, FontSize);
    Aggiunge("text" + Attributo("x", x) + Attributo("y", y) + Attributo("font-size", FontSize / maiuscole) +
                 Attributo("text-anchor", ancore[static_cast<std::size_t>(allinea)]) +
                 Attributo("fill", Colore(ForeColor)),
             false, Protetto(testo));
}

double SuperficieSvg::SpessoreUnita() const {
    return std::isfinite(testoMinimo_) ? testoMinimo_ / testiPerLinea
                                       : std::max(xMax_ - xMin_, yMax_ - yMin_) / lineePerLato;
}

std::string SuperficieSvg::Documento() const {
    const bool vuoto = !(xMax_ >= xMin_);
    const double unita = vuoto ? 0 : SpessoreUnita();
    const double bordo = spessoreContorno * unita;
    const double l = vuoto ? 1 : std::max(xMax_ - xMin_ + 2 * bordo, unita);
    const double h = vuoto ? 1 : std::max(yMax_ - yMin_ + 2 * bordo, unita);
    std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"";
    svg += Attributo("width", Numero(l) + "mm") + Attributo("height", Numero(h) + "mm");
    svg += Attributo("viewBox", Numero(vuoto ? 0 : xMin_ - bordo) + " " + Numero(vuoto ? 0 : yMin_ - bordo) +
                                    " " + Numero(l) + " " + Numero(h));
    svg += " fill=\"none\" font-family=\"sans-serif\">\n";
    for (const Elemento& e : elementi_) {
        svg += "<" + e.nome;
        if (e.spessore > 0) {
            const double spessore = e.spessore * unita;
            svg += Attributo("stroke-width", spessore) + Attributo("stroke-linecap", Nome(e.estremi));
            if (e.tipo != TipoLinea::Continua)
                svg += Attributo("stroke-dasharray", Tratti(e.tipo, spessore));
        }
        svg += e.contenuto.empty() ? "/>\n" : ">" + e.contenuto + "</text>\n";
    }
    return svg + "</svg>\n";
}

} // namespace sagomi
