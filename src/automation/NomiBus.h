#pragma once

/// Under which names the object stands on the session bus.
namespace sagomi::bus {

inline constexpr auto servizio = "Sagomi_v6.SezioneSagomi"; ///< name of the service and of its interface
inline constexpr auto percorso = "/SezioneSagomi";          ///< path of the object

// Errors that a call is answered with.
inline constexpr auto oggettoEsistente = "Sagomi_v6.SezioneSagomi.Errore.OggettoEsistente";
inline constexpr auto oggettoMancante = "Sagomi_v6.SezioneSagomi.Errore.OggettoMancante";

} // namespace sagomi::bus
