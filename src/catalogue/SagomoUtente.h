#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/FoglioDati.h"
#include "catalogue/RigaDoppioT.h"

namespace sagomi {

class Lettore;
class SezioneDoppioT;
struct MostraVplRd;

/// The workbook of the user's own welded sections.
inline constexpr std::string_view cartellaUtente = "SagomiUtente.xls";

/// Both of its sheets with their headings and no rows.
CartellaDati CartellaUtenteVuota();

/// Writes it so where there is no file yet; what the user has stays. Throws ErroreCatalogo.
void InstallaCartellaUtente(const std::filesystem::path& file);

/// The plates of a welded section [mm].
struct PiattiSaldati {
    double h = 0;                  ///< overall height
    double b = 0, tf = 0;          ///< upper flange
    double tw = 0;                 ///< web
    double r = 0;                  ///< leg of the fillets
    std::optional<double> b2, tf2; ///< lower flange, where it differs

    /// They can be welded to a section: sizes above 0, the fillet not below; the flanges leave a web between
    /// them and are not narrower than web and fillets.
    [[nodiscard]] bool Accettabili() const;
};

/// The plates of a section that has been read.
PiattiSaldati PiattiDi(const SezioneDoppioT& sezione);

/// Makes a welded section of plates, with its own effective area.
/// @param sezione  with steel and entries set
void InizializzaSaldata(SezioneDoppioT& sezione, const PiattiSaldati& piatti, MostraVplRd* schermo = nullptr);

/// A name as a row takes it: a quotation mark becomes two apostrophes.
std::string NomeUtente(std::string nome);

/// The fields of a row in hand that has its dimensions only, and no values that compute, with what follows
/// from the dimensions; none for a row with values and for one whose plates make no section. It may tell
/// messages.
/// @param prepara  gives a fresh section its steel and entries
std::vector<Valore> Completati(const Lettore& riga, RigheDoppioT righe,
                               const std::function<void(SezioneDoppioT&)>& prepara);

/// Gives the rows of a user's sheet that have their dimensions only, and no values that compute, what follows
/// from the dimensions; rows with values, and those whose plates make no section, stay. All are written at
/// once; nothing is written where there is nothing to complete. No message reaches anybody.
/// @param tabella  the sheet as a query names its table
/// @param prepara  gives a fresh section its steel and entries
/// @return how many rows have been completed
/// Throws ErroreCatalogo, CartellaCambiata among them.
int CompletaRighe(const std::filesystem::path& file, std::string_view tabella, RigheDoppioT righe,
                  const std::function<void(SezioneDoppioT&)>& prepara);

} // namespace sagomi
