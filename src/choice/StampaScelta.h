#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "choice/Scelta.h"

/// A choice on paper: what it was made for, its table, what was told.
namespace sagomi {

/// A shape of the moments in words.
/// @param pict  1 to 6
std::string_view NomeDiagramma(std::int16_t pict);

/// All that was asked for, with the filters, in lines that are not wider than the table.
std::vector<std::string> TestataScelta(const Richiesta& richiesta, const Filtri& filtri);

/// The lines to be printed: head, rows as the table shows them in columns as wide as they need, messages.
/// @param posti  the rows that are shown, in their order
std::vector<std::string> StampaScelta(const Richiesta& richiesta, const Filtri& filtri,
                                      std::span<const std::uint32_t> posti, std::span<const RigaScelta> righe,
                                      std::span<const SagomoInGara> sagomi,
                                      const std::vector<std::string>& messaggi);

} // namespace sagomi
