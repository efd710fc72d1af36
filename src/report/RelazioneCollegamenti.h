#pragma once

#include <string>

#include "report/Relazione.h"

namespace sagomi {

class Bullone;
class Saldatura;

/// The report of a bolt in a plate, by its resistances as last computed.
/// @param acciaio   name of the plate's steel
/// @param giudicato false where its forces are none that can be judged: there is no verdict then
Relazione RelazioneBullone(const Bullone& bullone, const std::string& acciaio, bool giudicato = true);

/// The report of a fillet weld. Without a correlation factor it has no resistance, and nothing is told.
/// @param acciaio  name of the steel joined
Relazione RelazioneSaldatura(const Saldatura& saldatura, const std::string& acciaio);

} // namespace sagomi
