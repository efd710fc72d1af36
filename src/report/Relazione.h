#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/Disegno.h"

/// A calculation report as data: what was entered, each step with its formula, the verdicts, the drawing. Who
/// shows it (text, PDF) computes nothing; figures are texts, rounded as the screens show them, with the
/// separators in force.
namespace sagomi {

/// One line: an entry, or a value with the formula that it follows from. Symbols, formulas and units are
/// marked up: a subscript stands in braces ("N{b,Rd}"), a superscript in braces behind a caret ("mm^{2}").
struct PassoRelazione {
    std::string descrizione{}; ///< in words
    std::string simbolo{};
    /// Empty for an entry; lines that tell their own left sides begin with a line feed.
    std::string formula{};
    std::string numeri{}; ///< the formula with its numbers put in; may be empty
    std::string valore{}; ///< empty where there is none
    std::string unita{};
    std::string norma{}; ///< clause
};

enum class EsitoRelazione : std::uint8_t { Assente, Passa, NonPassa };

/// What a check says.
struct VerdettoRelazione {
    std::string verifica{}; ///< what is checked
    EsitoRelazione esito = EsitoRelazione::Assente;
    double utilizzo = std::numeric_limits<double>::quiet_NaN(); ///< held against 1; no number for none
    std::string governa{};                                      ///< the term or component that governs
    std::string motivo{};                                       ///< why it fails, or why there is no verdict
    std::string norma{};

    /// A check that passes up to 1; what is no number has no verdict.
    static EsitoRelazione Da(double utilizzo);
};

struct CapitoloRelazione {
    std::string titolo{};
    std::vector<PassoRelazione> passi{};
    std::vector<std::string> note{}; ///< behind the steps, a paragraph each
    std::optional<VerdettoRelazione> verdetto{};
};

struct Relazione {
    std::string titolo{};   ///< what is reported, as "Verifica di un sagomo"
    std::string oggetto{};  ///< of what, as "IPE 300"
    std::string progetto{}; ///< in the user's words; may be empty
    std::string data{};     ///< as it is printed; may be empty
    Disegno disegno{};      ///< without a function where there is none
    std::string maschera{}; ///< name of the screen, handed on to the drawing
    std::vector<CapitoloRelazione> capitoli{};
    std::vector<std::string> avvisi{}; ///< what was told on the way

    /// Passes when every verdict does; without any, or with one that is missing, there is none, unless
    /// another one fails.
    [[nodiscard]] EsitoRelazione Esito() const;
};

/// Formulas are written with a comma between digits ("0,5"); puts the separator in force in its place.
void AdattaDecimali(CapitoloRelazione& capitolo);

/// "OK", "NO", or a dash for none.
std::string_view TestoEsito(EsitoRelazione esito);

/// The utilisation in per cent, "87.4 %"; empty for no number.
std::string TestoUtilizzo(double utilizzo);

/// Name and version of the program, as reports carry them.
std::string ProgrammaRelazione();

/// Today's date, "22/11/2026".
std::string DataRelazione();

} // namespace sagomi
