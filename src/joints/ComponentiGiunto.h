#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

class Giunto;

/// The parts of a joint that a picture shows and that a result belongs to.
enum class ComponenteGiunto : std::uint8_t {
    Nessuno,
    Pannello,                ///< panel of the column web in shear
    AnimaColonnaCompressa,   ///< column web, crushing
    InstabilitaAnimaColonna, ///< column web, buckling
    Bulloni,
    AnimaColonnaTesa, ///< column web in tension
    AlaColonna,       ///< column flange in bending
    Flangia,          ///< end plate in bending
    AnimaTrave,       ///< beam web in tension
    AlaTrave,         ///< beam flange
    Saldature,        ///< of the beam
    Irrigidimenti     ///< of the column
};

/// Row of bolts that a component is meant at; none for all of them.
enum class FilaGiunto : std::uint8_t { Nessuna, Interna, Esterna };

/// A component at one row of bolts, or at all of them.
struct ComponenteFila {
    ComponenteGiunto componente = ComponenteGiunto::Nessuno;
    FilaGiunto fila = FilaGiunto::Nessuna;

    bool operator==(const ComponenteFila&) const = default;
};

/// What a picture of a joint marks.
struct EvidenzaGiunto {
    std::vector<ComponenteFila> governano; ///< hatched
    std::string testo;                     ///< stands over the picture
    std::string parametro; ///< field whose limit is broken: "tf", "bf", "ef", "ex", "dX", "d2", "u", "L"
    std::string limite;    ///< stands behind its value, as "min 22"
};

/// Italian name of a component, in small letters: "anima della colonna compressa", "flangia, fila interna".
std::string NomeComponente(const ComponenteFila& quale);

/// What governs a joint that has been computed, with its name and force [kN] as text; nothing for one that is
/// not Acquisito.
EvidenzaGiunto Governa(const Giunto& giunto);

} // namespace sagomi
