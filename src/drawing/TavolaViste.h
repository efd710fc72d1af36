#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/Plottaggio.h"

namespace sagomi {

class Superficie;

/// Room that something takes in one direction: of the model [its units], and heights of the text besides.
struct Ingombro {
    double modello = 0, testi = 0;
};

/// A way to lay out several views: all that must find room across and upright.
struct DisposizioneViste {
    std::vector<Ingombro> larghezze, altezze;
};

/// A sheet with several views and texts beside them: chooses layout, scale and height of the texts.
///  - On the screen the views are as large as the target lets them be, texts are those of the target; where
///    these would leave too little they become smaller.
///  - On paper the scale is one of the series 1, 2, 5, texts are 2.5 mm high, or 1.8 mm where the views can
///  then
///    be larger.
///  - For files and CAD a unit is one of the model, and texts are as high as they would be on paper.
/// The origin of the model is the lower left corner of what was laid out; y upwards.
class TavolaViste {
public:
    /// Puts device and target in force.
    /// @param carattere  family of the texts; empty for the target's own
    TavolaViste(Superficie* oggetto, std::string_view dispositivo, std::string_view carattere);
    ~TavolaViste();
    TavolaViste(const TavolaViste&) = delete;
    TavolaViste& operator=(const TavolaViste&) = delete;

    /// Width of a text in its heights; before `Dispone`.
    [[nodiscard]] double InAltezze(std::string_view testo) const;

    /// Gives the target its scale. Never empty.
    void Dispone(std::span<const DisposizioneViste> disposizioni);

    /// The layout that was taken, and its size [model].
    [[nodiscard]] std::size_t Scelta() const { return scelta_; }
    [[nodiscard]] double Larghezza() const { return larghezza_; }
    [[nodiscard]] double Altezza() const { return altezza_; }
    /// Height of the text that the room was counted in [model].
    [[nodiscard]] double Passo() const { return passo_; }
    /// Height of the texts [model]: smaller in a picture that has been enlarged.
    [[nodiscard]] double AltezzaTesto() const { return plottaggio_.AltezzaTesto; }
    /// "1:5" on paper; empty where the scale is none of those in use.
    [[nodiscard]] std::string Scala() const;

private:
    struct SceltaViste {
        std::size_t quale = 0;
        double testi = 1;    ///< part of their height that texts have
        double rapporto = 1; ///< units of the model in one of the target
        double merito = 0;
    };

    [[nodiscard]] SceltaViste SuSchermo(std::span<const DisposizioneViste> disposizioni, double corpo);
    [[nodiscard]] SceltaViste SuCarta(std::span<const DisposizioneViste> disposizioni, double corpo);
    [[nodiscard]] double Necessario(const DisposizioneViste& disposizione, double corpo) const;
    void SuBersaglio(std::span<const DisposizioneViste> disposizioni);
    void SenzaBersaglio(const DisposizioneViste& disposizione);
    void Misura(const DisposizioneViste& disposizione);

    Superficie* oggetto_;
    Plottaggio plottaggio_;
    std::size_t scelta_ = 0;
    double larghezza_ = 0, altezza_ = 0, passo_ = 0;
};

} // namespace sagomi
