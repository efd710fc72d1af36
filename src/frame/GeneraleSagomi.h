#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "frame/Singolo.h"
#include "frame/Tabella1.h"

/// The one block of global settings, alive for the whole run.
namespace sagomi {

/// What an automation client is told of.
class OsservatoreSezione {
public:
    virtual ~OsservatoreSezione() = default;
    virtual void SagomoCambiato() = 0; ///< a new row has become the current section
    virtual void SagomiQuittato() = 0; ///< the program has closed
};

/// The codes of rules; each sets the partial factors and nothing else.
enum : std::int16_t { normativaNTC = 0, normativaEC3 = 1, normativaAltro = 2 };

inline constexpr const char* versioneProgramma = "7.8"; ///< written into the settings file

/// What a new installation starts with.
Tabella1<std::string> NomiAcciaiPredefiniti();
Tabella1<Singolo> fyPredefinite();
Tabella1<Singolo> fuPredefinite();
Tabella1<Singolo> ClassiBulloniPredefinite();

inline std::filesystem::path PathProgramma; ///< folder of the program and of its files
inline std::filesystem::path PathLavoro;    ///< folder of the file last opened or saved
inline std::int16_t NumAcciai = 3;          ///< number of steel grades
inline Tabella1<std::string> NomeAcciaio = NomiAcciaiPredefiniti(); ///< 1..NumAcciai
inline Tabella1<Singolo> fyAcciaio = fyPredefinite();               ///< yield strength [N/mm2], 1..NumAcciai
inline Tabella1<Singolo> fuAcciaio = fuPredefinite(); ///< ultimate strength [N/mm2], 1..NumAcciai
inline std::int16_t IndiceAcciaio = 0;                ///< list index of the grade in use, from 0
inline std::int16_t NumClassiBulloni = 7;             ///< number of bolt classes
inline Tabella1<Singolo> ClasseBullone = ClassiBulloniPredefinite(); ///< 4.6 to 10.9, 1..NumClassiBulloni
inline std::int16_t IndiceClasseBullone = 0;  ///< list index of the bolt class in use, from 0
inline Singolo fck = 25;                      ///< concrete strength of composite beams [N/mm2]
inline Singolo fsk = 430;                     ///< reinforcement yield strength [N/mm2]
inline Singolo CoeffOmogeneizzazione = 15;    ///< modular ratio steel to concrete [-]
inline std::int16_t Normativa = normativaNTC; ///< 0 NTC, 1 EC3, 2 Altro
inline Singolo GammaM0 = 1.05;                ///< divides section resistances [-]
inline Singolo GammaM1 = 1.05;                ///< divides buckling and class 4 bending resistances [-]
inline Singolo GammaM2 = 1.25;                ///< divides resistances of connections [-]
inline Singolo GammaM0Altro;                  ///< the user's own factors, kept under every code
inline Singolo GammaM1Altro;
inline Singolo GammaM2Altro;
inline std::string Versione;            ///< of the settings file that was read
inline std::string ScreenAttivo;        ///< name of the screen last activated
inline bool SuggerimentoBulloni = true; ///< once in a run, advice on a bolt says how its box closes
inline bool SceltaSagomoGiunto = false; ///< a section screen was reached from the joint screen, to pick
inline bool ServerAttivo = false;       ///< driven by an automation client
inline OsservatoreSezione* OggettoServer = nullptr;
inline bool ChiusuraInCorso = false; ///< closing has begun
inline bool AvvioInCorso = false;    ///< the start routine is showing the first screen

/// Sets GammaM0, GammaM1 and GammaM2 from Normativa. A factor of the user's own that is 0 counts as 1.
void ImpostaGamma();

/// "NTC", "EC3" or "Altro".
std::string NomeNormativa();

/// Lays down the defaults of everything that the settings file holds.
void ImpostazioniPredefinite();

/// Brings the whole block back to its state before the start, and with it what AggiungiRipristino was given.
/// For tests.
void RipristinaGenerale();

} // namespace sagomi

// The section in use is part of the block for who reads it; it lives in its own layer.
#include "sections/SezioneCorrente.h" // IWYU pragma: export
