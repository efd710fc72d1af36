#pragma once

#include "report/Relazione.h"

namespace sagomi {

class AcciaioCls;
struct EsitoTrave;

/// The report of a composite beam that VerificaTrave has checked; fck, fsk and n are those in force.
Relazione RelazioneTrave(const AcciaioCls& trave, const EsitoTrave& esito);

/// The same of a beam as its data are: checked on a copy, with a section of its own.
Relazione RelazioneTraveVerificata(const AcciaioCls& trave);

} // namespace sagomi
