#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace sagomi {

class Giunto;

/// What holds the entries of a joint inside the places where a hole fits and its weld: every value that does
/// not is told through the message port and replaced by the nearest one that does. A value at a bound stands.
/// The coefficients of the holes are those in force.
///
/// All of this wants beam and column; without them the operations throw ErroreNumerato.

/// A parameter of the plate that is typed.
enum class ParametroGiunto { bf, ef, d2, dX, ex, u, L };

/// Least and greatest value of a parameter [mm].
struct CampoAmmesso {
    double minimo = 0;
    std::optional<double> massimo{};
};

/// Roots of the sections and welds of the plate in hand, as the limits take them; tells nothing.
void PreparaLimiti(Giunto& g);

/// What a parameter may be with the others as they are.
[[nodiscard]] CampoAmmesso CampoDi(const Giunto& g, ParametroGiunto parametro);

/// Holds a parameter against its limits; writes the bounds that the joint keeps (bfmin, bfmax, minecef) and,
/// where it replaces a value, what follows from it.
/// @param suggerimento  how the greatest ef grows; empty where another bound governs
/// @return whether the value was replaced
bool bf_Controlla(Giunto& g);
bool ef_Controlla(Giunto& g, std::string& suggerimento);
bool d2_Controlla(Giunto& g);
bool dx_Controlla(Giunto& g);
bool ex_Controlla(Giunto& g);
bool u_Controlla(Giunto& g);
bool L_Controlla(Giunto& g);

/// All that are typed with these rows of bolts, in the order bf, ef, d2, dX, ex, u.
void ParametriControlla(Giunto& g);

/// The limits of a design: extension of the plate, and its lower edge.
/// @return whether the value was replaced
bool L_max_Controlla(Giunto& g);
bool u_max_Controlla(Giunto& g);

/// "Non rispetta i 3 mm (EC3)." where a plate of that thickness [mm] lets no throat of 3 mm, else empty; a
/// thickness of 0 is none yet.
[[nodiscard]] std::string NotaSpessore(const Giunto& g, double tf);

/// The largest bolt that the plate has room for.
struct BulloneMassimo {
    std::int16_t indice = 1;    ///< in the table; 1 also where every bolt of it fits
    bool tutti = false;         ///< every bolt of the table fits
    std::string suggerimento{}; ///< how to make room for a larger one; empty where only the sections can
};
[[nodiscard]] BulloneMassimo BulloneMax(const Giunto& g);

/// Refuses a bolt that the plate has no room for: the largest one takes its place.
/// @return whether it did
bool bullone_Controlla(Giunto& g);

/// The first entry without which the calculation cannot start, as its message; empty where all are there.
[[nodiscard]] std::string PrimoZero(const Giunto& g);

} // namespace sagomi
