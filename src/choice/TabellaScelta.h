#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "choice/OrdineInCorso.h"
#include "choice/Scelta.h"

/// The rows of a choice as a table: columns in kN, kNm, mm, cm2 and kg/m.
namespace sagomi {

/// A column: its heading, the picture of its numbers, what it says; a text as wide as those that it shows.
struct ColonnaScelta {
    const char* titolo;
    const char* figura; ///< empty where there is a text
    const char* aiuto;
    const char* campione;
    double (*valore)(const RigaScelta&); ///< null where there is a text
};

/// Columns that others have to know by their place.
enum : int { colonnaNome = 0, colonnaFamiglia = 1, colonnaPeso = 2 };

const std::vector<ColonnaScelta>& ColonneScelta();

/// The last column: utilisation with the check that governs.
int ColonnaUtilizzo();

/// A field as it is shown; what is no number is empty.
std::string TestoScelta(const RigaScelta& riga, const SagomoInGara& sagomo, int colonna);

/// "OK  92 %  svergolamento"; without a verdict the reason why there is none in a few words, or a dash; so
/// too where the numbers of the others hold. Empty where nothing acts.
std::string TestoUtilizzo(const RigaScelta& riga);

/// The same field with all its figures, a reason in full.
std::string TestoInteroScelta(const RigaScelta& riga, const SagomoInGara& sagomo, int colonna);

/// How the rows are sorted.
struct OrdineScelta {
    int colonna = -1; ///< -1: those that hold first, the lighter before the heavier, then by utilisation
    bool discendente = false;
};

/// The comparison of that order; it looks at the rows while it lives. What is no number comes last, either
/// way.
PrimaDi PrimaNellaScelta(std::span<const RigaScelta> righe, std::span<const SagomoInGara> sagomi,
                         const OrdineScelta& ordine);

/// Brings places into the order of their rows. What is no number comes last, either way; equal rows keep
/// their order.
void OrdinaScelta(std::vector<std::uint32_t>& posti, std::span<const RigaScelta> righe,
                  std::span<const SagomoInGara> sagomi, const OrdineScelta& ordine);

/// The lightest row that holds of each family, of equally heavy ones the first: places among those given;
/// none where nothing acts.
std::vector<std::uint32_t> PiuLeggeriFra(std::span<const std::uint32_t> posti,
                                         std::span<const RigaScelta> righe,
                                         std::span<const SagomoInGara> sagomi);

} // namespace sagomi
