#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "choice/SagomiInGara.h"
#include "sections/DiagrammaMomenti.h"
#include "sections/SezioneQualsiasi.h"

/// The whole catalogue checked for a set of forces, with the checks of the screens. The sections are the
/// sweep's own, the section in use is the same before and after, and what would be told on the way is
/// collected.
namespace sagomi {

/// What a member has to bear, in N and mm.
struct Richiesta {
    std::string TipoAcciaio;          ///< name of the grade, for the buckling curves
    double fy = 0, fu = 0;            ///< [N/mm2]
    double NSd = 0;                   ///< axial force, compression positive
    double L0y = 0, L0z = 0, L0v = 0; ///< buckling lengths; L0v of angles

    MomentiMembratura y, z; ///< moments about y-y and z-z; M1 the larger one
    std::int16_t tipoDiagramma = diagrammaEstremita;
    std::int16_t pict = pictEstremitaConcordi;

    std::optional<double> LLT; ///< length between lateral restraints; else L0z, where it is above 0
    double k = 1, Kw = 1;      ///< end restraint factors
    std::optional<double> C1;  ///< else that of the diagram about y-y
    double c2 = 0, c3 = 0;
    double za = 0; ///< height of the load above mid-height

    bool doppi = false;     ///< channels and angles in pairs
    double dDoppi = 0;      ///< gap of a pair, not below 0
    bool accostati = false; ///< channels by their flange tips, angles by their short legs
};

/// Neither a force nor a moment acts: there is nothing to be checked.
bool SenzaAzioni(const Richiesta& richiesta);

/// Length of the check of lateral-torsional buckling; none where the check is not made.
std::optional<double> LunghezzaSvergolamento(const Richiesta& richiesta);

/// Which rows take part; a limit that is not given holds none back.
struct Filtri {
    std::optional<double> hMassima, bMassima; ///< outer measures [mm]
    std::optional<double> gMinimo, gMassimo;  ///< weight [kg/m]
    std::vector<std::string> famiglie;        ///< names of sheets; empty for all
    bool soloVerificati = false;
};

/// The checks of a row.
enum class VerificaScelta : std::uint8_t { Nessuna, Sezione, Membratura, Svergolamento };

/// "sezione", "membratura", "svergolamento"; for Nessuna empty.
std::string_view NomeVerifica(VerificaScelta verifica);

/// What a row says of bending that its kind is not checked for.
inline constexpr std::string_view motivoFlessione = "La flessione di canali e angolari non ha una verifica";

/// What a row says of a check without a number.
std::string MotivoSenzaVerdetto(VerificaScelta verifica);

/// A row with its resistances [N, N mm] and checks; what its kind does not have is no number.
struct RigaScelta {
    static constexpr double nessuno = std::numeric_limits<double>::quiet_NaN();

    std::size_t indice = 0; ///< of the row in what it was made of
    bool doppio = false;    ///< a pair
    double g = 0;           ///< [kg/m]
    double h = 0, b = 0;    ///< outer measures [mm]
    double A = 0;           ///< [mm2]
    int classe = 0;         ///< in compression with bending; of angles in compression
    double NplRd = nessuno, NbyRd = nessuno, NbzRd = nessuno, NbvRd = nessuno;
    double McyRd = nessuno, MbRd = nessuno;

    // Utilisations; no number where the check does not exist, was not asked for or gives no verdict.
    double sezione = nessuno;       ///< EC3 6.2.9
    double membratura = nessuno;    ///< flexural buckling, ENV 1993-1-1 5.5.4
    double svergolamento = nessuno; ///< lateral-torsional buckling, ENV 1993-1-1 5.5.4

    double massimo = nessuno; ///< the greatest of them
    VerificaScelta governa = VerificaScelta::Nessuna;
    bool verificato = false; ///< each check that was asked for has a verdict and passes; none was, so too
    std::string motivo = {}; ///< in Italian, why it fails or has no verdict where the numbers do not tell

    /// Nothing acts, so nothing was checked: resistances alone, no verdict. It counts as verified, for
    /// nothing fails.
    [[nodiscard]] bool SenzaVerdetto() const { return verificato && std::isnan(massimo); }
};

/// Checks some of the rows. A long catalogue is done piece by piece.
/// @param messaggi  receives each text that was told on the way, once
std::vector<RigaScelta> Valuta(std::span<const SagomoInGara> sagomi, const Richiesta& richiesta,
                               const Filtri& filtri, std::vector<std::string>& messaggi);

/// One row with the section that carries all of its results.
struct SagomoVerificato {
    RigaScelta riga;
    SezioneQualsiasi sezione;
    std::string CurvaY, CurvaZ; ///< buckling curves
};

/// Checks one row as Valuta does.
SagomoVerificato Verifica(const SagomoInGara& sagomo, const Richiesta& richiesta,
                          std::vector<std::string>& messaggi);

/// Tells which of two rows comes first: those that hold, the lighter before the heavier, then by utilisation.
std::tuple<bool, double, double> ChiavePeso(const RigaScelta& riga);

/// Brings rows into that order, equal ones into that of what they were made of.
void OrdinaPerPeso(std::vector<RigaScelta>& righe);

} // namespace sagomi
