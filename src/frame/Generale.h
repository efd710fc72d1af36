#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "frame/Osservatore.h"
#include "frame/Singolo.h"
#include "frame/Tabella1.h"

namespace sagomi {

/// The codes of rules; each sets the partial factors and nothing else.
enum : std::int16_t { normativaNTC = 0, normativaEC3 = 1, normativaAltro = 2 };

/// Partial factors of a code [-]: section resistance, buckling, connections.
struct FattoriParziali {
    double GammaM0, GammaM1, GammaM2;
};
inline constexpr FattoriParziali fattoriNTC{1.05, 1.05, 1.25}; ///< NTC 4.2.4.1.1
inline constexpr FattoriParziali fattoriEC3{1.0, 1.0, 1.25};   ///< EC3 6.1

/// What the settings file holds; the values here are those of a new installation.
struct Impostazioni {
    std::int16_t NumAcciai = 3; ///< number of steel grades
    Tabella1<std::string> NomeAcciaio{"S235 (Fe360)", "S275 (Fe430)", "S355 (Fe510)"}; ///< 1..NumAcciai
    Tabella1<Singolo> fyAcciaio{235, 275, 355}; ///< yield strength [N/mm2], 1..NumAcciai
    Tabella1<Singolo> fuAcciaio{360, 430, 510}; ///< ultimate strength [N/mm2], 1..NumAcciai
    std::int16_t IndiceAcciaio = 0;             ///< list index of the grade in use, from 0
    std::int16_t NumClassiBulloni = 7;          ///< number of bolt classes
    Tabella1<Singolo> ClasseBullone{4.6, 4.8, 5.6, 5.8, 6.8, 8.8, 10.9}; ///< 1..NumClassiBulloni
    std::int16_t IndiceClasseBullone = 0;  ///< list index of the bolt class in use, from 0
    Singolo fck = 25;                      ///< concrete strength of composite beams [N/mm2]
    Singolo fsk = 430;                     ///< reinforcement yield strength [N/mm2]
    Singolo CoeffOmogeneizzazione = 15;    ///< modular ratio steel to concrete [-]
    std::int16_t Normativa = normativaNTC; ///< 0 NTC, 1 EC3, 2 Altro
    Singolo GammaM0Altro;                  ///< the user's own factors [-], kept under every code
    Singolo GammaM1Altro;
    Singolo GammaM2Altro;

    bool operator==(const Impostazioni&) const = default;
};

/// The one block of global settings: a value. A test or a long job takes a copy and puts it back.
struct Generale : Impostazioni {
    std::filesystem::path PathProgramma;     ///< folder of settings and workbooks
    std::filesystem::path PathInstallazione; ///< folder of help and formulas; empty: PathProgramma
    std::filesystem::path PathLavoro;        ///< folder of the file last opened or saved
    Singolo GammaM0 = fattoriNTC.GammaM0;    ///< divides section resistances [-]
    Singolo GammaM1 = fattoriNTC.GammaM1;    ///< divides buckling and class 4 bending resistances [-]
    Singolo GammaM2 = fattoriNTC.GammaM2;    ///< divides resistances of connections [-]
    std::string Versione;                    ///< of the settings file that was read
    std::string ScreenAttivo;                ///< name of the screen last activated
    bool SuggerimentoBulloni = true;         ///< once in a run, advice on a bolt says how its box closes
    bool SceltaSagomoGiunto = false;         ///< a section screen was reached from the joint screen, to pick
    bool ServerAttivo = false;               ///< driven by an automation client
    RiferimentoOsservatore OggettoServer;    ///< that client
    bool ChiusuraInCorso = false;            ///< closing has begun
    bool AvvioInCorso = false;               ///< the start routine is showing the first screen

    std::vector<std::string> ImpostazioniCorrette; ///< names that the last reading put back to their default
    std::optional<Impostazioni>
        ImpostazioniScritte;        ///< as last read or written; empty before the first reading
    bool ScritturaAvvisata = false; ///< a change that could not be written has been told
};

} // namespace sagomi
