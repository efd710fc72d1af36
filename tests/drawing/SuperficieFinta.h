#pragma once

#include <cmath>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "drawing/Grafica.h"

namespace sagomi::prove {

/// A surface that writes down what is drawn on it. Its own unit is 1 (call it a pixel or a millimetre); a
/// capital of 1 point is 1 unit high, a character 0.6 of that wide.
class SuperficieFinta : public Superficie {
public:
    struct Linea {
        double x1, y1, x2, y2;
        std::int16_t colore;
        double spessore;
        TipoLinea tipo;
    };
    struct Cerchio {
        double x, y, r;
        std::int16_t colore;
    };
    struct Area {
        std::vector<std::pair<double, double>> punti;
        Fondo fondo;
    };
    struct Scritta {
        double x, y;    ///< user scale
        double altezza; ///< of the capitals [user scale]
        double corpo;   ///< points
        std::string testo, carattere;
        std::int16_t colore;
    };

    SuperficieFinta(double larghezza, double altezza) : larghezza_(larghezza), altezza_(altezza) {
        SuperficieFinta::Scale();
        SuperficieFinta::Predefiniti();
    }

    void Scale() override {
        ScaleMode = scalaPropria;
        ScaleLeft = ScaleTop = 0;
        ScaleWidth = larghezza_;
        ScaleHeight = altezza_;
    }
    void Predefiniti() override {
        ForeColor = pennaInchiostro;
        DrawWidth = spessoreFine;
        DrawStyle = TipoLinea::Continua;
        FontName.clear();
        FontSize = corpoProprio;
    }
    void Line(double x1, double y1, double x2, double y2) override {
        linee.push_back({x1, y1, x2, y2, ForeColor, DrawWidth, DrawStyle});
    }
    void Circle(double x, double y, double r) override { cerchi.push_back({x, y, r, ForeColor}); }
    void Fill(std::span<const double> x, std::span<const double> y, Fondo fondo) override {
        aree.push_back({{}, fondo});
        for (std::size_t i = 0; i < x.size(); ++i)
            aree.back().punti.emplace_back(x[i], y[i]);
    }
    void Print(std::string_view testo) override {
        scritte.push_back(
            {CurrentX, CurrentY, TextHeight(testo), FontSize, std::string(testo), FontName, ForeColor});
    }
    [[nodiscard]] double TextHeight(std::string_view /*testo*/) const override {
        return FontSize * std::abs(ScaleHeight) / altezza_;
    }
    [[nodiscard]] double TextWidth(std::string_view testo) const override {
        return 0.6 * FontSize * static_cast<double>(testo.size()) * std::abs(ScaleWidth) / larghezza_;
    }

    /// Where a point of the user scale lies on the surface.
    [[nodiscard]] double InX(double x) const { return (x - ScaleLeft) / ScaleWidth * larghezza_; }
    [[nodiscard]] double InY(double y) const { return (y - ScaleTop) / ScaleHeight * altezza_; }

    [[nodiscard]] std::vector<std::string> Testi() const {
        std::vector<std::string> testi;
        for (const Scritta& s : scritte)
            testi.push_back(s.testo);
        return testi;
    }

    static constexpr double corpoProprio = 10;
    std::vector<Linea> linee;
    std::vector<Cerchio> cerchi;
    std::vector<Area> aree;
    std::vector<Scritta> scritte;

private:
    double larghezza_, altezza_;
};

/// Draws on a fake surface as on the device of that name, and puts the output back at its end.
class SuUscita {
public:
    explicit SuUscita(Superficie* oggetto, std::string_view dispositivo = dispositivoVideo) {
        OggettoGrafico = oggetto;
        Dispositivo = dispositivo;
        ColorePenna = pennaInchiostro;
    }

private:
    StatoUscita prima_;
};

} // namespace sagomi::prove
