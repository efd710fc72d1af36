#pragma once

#include <iosfwd>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "choice/Opzioni.h"
#include "choice/Scelta.h"

/// What a command line answers, in kN, kNm, mm, cm2 and kg/m; numbers with a point, at most four
/// decimals, for programs utilisations and what was asked for with all of their figures.
/// What is no number is a dash in a text, empty in CSV, null in JSON.
namespace sagomi {

/// One section: its resistances and checks, with their clauses; as a text the report of RelazioneVerifica.
void ScriveVerifica(std::ostream& uscita, const Comando& comando, const SagomoInGara& sagomo,
                    const SagomoVerificato& esito, const std::vector<std::string>& messaggi);

/// The table of a choice.
void ScriveScelta(std::ostream& uscita, const Comando& comando, std::span<const SagomoInGara> sagomi,
                  const std::vector<RigaScelta>& righe, const std::vector<std::string>& messaggi);

/// What was told on the way, a line each; a table of CSV has no place for it.
void ScriveMessaggi(std::ostream& uscita, const std::vector<std::string>& messaggi);

/// The answer of a job that is none: {"errore": text}.
void ScriveErrore(std::ostream& uscita, std::string_view testo);

} // namespace sagomi
