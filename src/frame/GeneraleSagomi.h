#pragma once

#include <string>

#include "frame/Generale.h"
#include "frame/VersioneProgramma.h"

/// The one block of global settings, alive for the whole run, and the names of its members.
namespace sagomi {

inline Generale generale;

inline constexpr auto& PathProgramma = generale.PathProgramma;
inline constexpr auto& PathInstallazione = generale.PathInstallazione;
inline constexpr auto& PathLavoro = generale.PathLavoro;
inline constexpr auto& NumAcciai = generale.NumAcciai;
inline constexpr auto& NomeAcciaio = generale.NomeAcciaio;
inline constexpr auto& fyAcciaio = generale.fyAcciaio;
inline constexpr auto& fuAcciaio = generale.fuAcciaio;
inline constexpr auto& IndiceAcciaio = generale.IndiceAcciaio;
inline constexpr auto& NumClassiBulloni = generale.NumClassiBulloni;
inline constexpr auto& ClasseBullone = generale.ClasseBullone;
inline constexpr auto& IndiceClasseBullone = generale.IndiceClasseBullone;
inline constexpr auto& fck = generale.fck;
inline constexpr auto& fsk = generale.fsk;
inline constexpr auto& CoeffOmogeneizzazione = generale.CoeffOmogeneizzazione;
inline constexpr auto& Normativa = generale.Normativa;
inline constexpr auto& GammaM0 = generale.GammaM0;
inline constexpr auto& GammaM1 = generale.GammaM1;
inline constexpr auto& GammaM2 = generale.GammaM2;
inline constexpr auto& GammaM0Altro = generale.GammaM0Altro;
inline constexpr auto& GammaM1Altro = generale.GammaM1Altro;
inline constexpr auto& GammaM2Altro = generale.GammaM2Altro;
inline constexpr auto& Versione = generale.Versione;
inline constexpr auto& ScreenAttivo = generale.ScreenAttivo;
inline constexpr auto& SuggerimentoBulloni = generale.SuggerimentoBulloni;
inline constexpr auto& SceltaSagomoGiunto = generale.SceltaSagomoGiunto;
inline constexpr auto& ServerAttivo = generale.ServerAttivo;
inline constexpr auto& OggettoServer = generale.OggettoServer;
inline constexpr auto& ChiusuraInCorso = generale.ChiusuraInCorso;
inline constexpr auto& AvvioInCorso = generale.AvvioInCorso;

/// Sets GammaM0, GammaM1 and GammaM2 from Normativa. A factor of the user's own that is 0 counts as 1.
void ImpostaGamma();

/// "NTC", "EC3" or "Altro".
std::string NomeNormativa();

/// Lays down the defaults of everything that the settings file holds.
void ImpostazioniPredefinite();

/// Brings the whole block back to its state before the start, and with it what AggiungeRipristino was given.
/// For tests.
void RipristinaGenerale();

} // namespace sagomi

// The section in use is part of the block for who reads it; it lives in its own layer.
#include "sections/SezioneCorrente.h" // IWYU pragma: export
