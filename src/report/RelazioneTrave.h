#pragma once

#include "report/Relazione.h"

namespace sagomi {

class AcciaioCls;
struct EsitoTrave;

/// The report of a composite beam that VerificaTrave has checked; fck, fsk and n are those in force.
Relazione RelazioneTrave(const AcciaioCls& trave, const EsitoTrave& esito);

} // namespace sagomi
