#pragma once

#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

#include "drawing/Disegno.h"
#include "drawing/Grafica.h"

namespace sagomi {

/// A point of a picture, or a way from one to another [units of the picture, y downwards].
struct PuntoQuadro {
    double x = 0, y = 0;

    friend PuntoQuadro operator+(PuntoQuadro a, PuntoQuadro b) { return {a.x + b.x, a.y + b.y}; }
    friend PuntoQuadro operator-(PuntoQuadro a, PuntoQuadro b) { return {a.x - b.x, a.y - b.y}; }
    friend PuntoQuadro operator*(PuntoQuadro a, double f) { return {a.x * f, a.y * f}; }
};

/// A part of a picture.
struct CampoQuadro {
    double sinistra = 0, alto = 0, larghezza = 0, altezza = 0;

    [[nodiscard]] double Destra() const { return sinistra + larghezza; }
    [[nodiscard]] double Basso() const { return alto + altezza; }
    [[nodiscard]] PuntoQuadro Centro() const { return {sinistra + larghezza / 2, alto + altezza / 2}; }
    /// What is left when so much is taken from each side.
    [[nodiscard]] CampoQuadro Dentro(double sx, double su, double dx, double giu) const {
        return {sinistra + sx, alto + su, larghezza - sx - dx, altezza - su - giu};
    }
};

/// The sheet of a small picture that stands beside the figures of a screen. On the screen a unit is a pixel,
/// the sheet is the whole target and texts are in its font. Everywhere else the sheet has its own size, and
/// its texts are 3.5 mm high: on paper in the middle of the page, smaller where the page wants it; for files
/// and CAD from (0, 0) upwards, a unit of the file being a millimetre.
class Quadro {
public:
    /// Puts device and target in force and gives the surface its scale.
    Quadro(Superficie* oggetto, std::string_view dispositivo, const Misura& misura);
    /// A plane without an edge gets its own scale back.
    ~Quadro();
    Quadro(const Quadro&) = delete;
    Quadro& operator=(const Quadro&) = delete;

    /// For files and CAD: the picture shows a piece, and there it is as large as the piece.
    /// @param scala  units of the picture in one of the model
    void VeraGrandezza(double scala) const;

    [[nodiscard]] CampoQuadro Tutto() const { return {0, 0, larghezza_, altezza_}; }
    /// Height of a line of text.
    [[nodiscard]] double Riga() const { return riga_; }
    [[nodiscard]] double LarghezzaTesto(std::string_view testo) const;

    // Pens: ink for what is meant, light ink for what explains it.
    void Contorno(Estremi estremi = Estremi::Quadri) const;
    void Fine(TipoLinea tipo = TipoLinea::Continua, Estremi estremi = Estremi::Quadri) const;

    static void Linea(PuntoQuadro a, PuntoQuadro b) { LineaPlt(a.x, a.y, b.x, b.y); }
    static void Spezzata(std::span<const PuntoQuadro> punti, bool chiusa = false);
    static void Area(std::span<const PuntoQuadro> punti, Fondo fondo);
    static void Cerchio(PuntoQuadro centro, double r) { CerchioPlt(centro.x, centro.y, r); }
    static void Disco(PuntoQuadro centro, double r, Fondo fondo);
    /// Head of an arrow that points along `verso`, of length 1.
    static void Punta(PuntoQuadro dove, PuntoQuadro verso, double lunghezza, double mezza);
    /// Dimension line with oblique ticks, in light ink.
    void Quota(PuntoQuadro a, PuntoQuadro b) const;
    void Tacca(PuntoQuadro dove) const;

    /// In ink; which point of the text lies there is what the other two say.
    void Testo(PuntoQuadro dove, std::string_view testo, Allinea allinea, Posa posa) const;

private:
    void DisponeSuSchermo();
    void DisponeSuFoglio(const Misura& misura);

    Superficie* superficie_;
    double larghezza_, altezza_;
    double altezzaTesto_ = 0, riga_ = 0;
};

} // namespace sagomi
