#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "choice/Scelta.h"

/// The values of an answer, in kN, kNm, mm, cm2, kg/m; lengths of a member in m.
namespace sagomi {

/// How much of a number a program is told.
enum class Cifre : std::uint8_t {
    Quattro, ///< rounded to four decimals
    Date,    ///< as it was given, fifteen significant ones
    Tutte    ///< the very same number
};

/// What a program calls it, what a person does, its unit and clause.
struct Valore {
    std::string chiave, simbolo;
    std::variant<double, std::string, bool> valore; ///< no number where there is none
    std::string unita = {}, clausola = {};
    Cifre cifre = Cifre::Quattro;
};
using Valori = std::vector<Valore>;

/// What was asked for, by the names of the options; what was not given and has no value of its own is no
/// number. With code, partial factors and strengths in force.
/// @param genere  a section: what means nothing for its kind is no number either; null for all kinds
Valori ValoriRichiesta(const Richiesta& r, const SezioneQualsiasi* genere = nullptr);

/// One section from its dimensions to its verdict: each step of buckling, of the member's check and of
/// lateral-torsional buckling, with the terms of the sums.
Valori ValoriVerifica(const SagomoInGara& sagomo, const SagomoVerificato& esito, const Richiesta& richiesta);

/// A row of the table of a choice.
Valori ValoriRiga(const SagomoInGara& sagomo, const RigaScelta& riga);

} // namespace sagomi
