#pragma once

#include "choice/Scelta.h"
#include "report/Relazione.h"

namespace sagomi {

/// The section as the check of its resistance has it: with the largest moments of the diagrams, without that
/// of the shifted centroid.
SezioneDoppioT PerLaSezione(const SezioneDoppioT& sezione, const Richiesta& richiesta);

/// The report of a checked row: data, classes, resistances, then each check with its verdict.
/// @param richiesta  what it was checked for; its code and factors are in force
Relazione RelazioneVerifica(const SagomoInGara& sagomo, const SagomoVerificato& esito,
                            const Richiesta& richiesta);

} // namespace sagomi
