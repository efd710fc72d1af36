#pragma once

#include <string_view>

#include "choice/SagomiInGara.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

namespace sagomi {

/// The rows of the catalogue that the pictures of the help show: IPE, HEA, HEB, UPN and equal angles of the
/// installed workbook, read at the first need. Where it cannot be read there are none.
const Gara& GaraGuida();

/// One of them. Throws std::out_of_range, in Italian, for a name that is not among them.
const SagomoInGara& SagomoGuida(std::string_view nome);

/// Its section in a steel; fu is that of the grade. Throws std::out_of_range as above,
/// std::bad_variant_access for a section of another kind.
/// @param fy  235, 275 or 355 [N/mm2]
template <typename Sezione> Sezione SezioneGuida(std::string_view nome, double fy);

extern template SezioneDoppioT SezioneGuida<SezioneDoppioT>(std::string_view, double);
extern template SezioneSagomoU SezioneGuida<SezioneSagomoU>(std::string_view, double);
extern template SezioneSagomoL SezioneGuida<SezioneSagomoL>(std::string_view, double);

} // namespace sagomi
