#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "choice/FileRelazione.h"
#include "choice/Scelta.h"

/// What a command line asks for.
namespace sagomi {

/// The program was called wrongly; the text says in Italian what was expected.
class ErroreUso : public std::runtime_error {
public:
    using runtime_error::runtime_error;
};

enum class ModoComando : std::uint8_t { Finestre, Aiuto, Versione, Verifica, Scelta, Lavori, Relazione };
enum class FormatoUscita : std::uint8_t { Testo, Json, Csv };

struct Comando {
    ModoComando modo = ModoComando::Finestre;
    FormatoUscita formato = FormatoUscita::Testo;
    std::string sagomo; ///< name of the section to be checked, or to be reported
    std::string file;   ///< joint or composite beam to be reported; empty for a section
    UsciteComando uscite;
    std::string progetto;          ///< stands on the report
    std::string soloSagomi;        ///< first option taken that a file has no use for
    std::string soloSvergolamento; ///< first option of this very call that is of double-Ts alone
    std::string fattoreChiesto;    ///< first of those, but for --L, which means nothing without a length
    bool assiVChiesti = false;     ///< --L0v is of this very call
    bool coppiaChiesta = false;    ///< --doppi is of this very call, not of what holds for all
    std::string acciaio = "S235";
    double fy = 0, fu = 0; ///< other strengths than the grade's [N/mm2]; 0 for none
    std::string normativa = "NTC";
    double GammaM0 = 0, GammaM1 = 0; ///< partial factors of "Altro", or those of the code; 0 where not given
    Richiesta richiesta;             ///< L0v, where it is not given, the greater of L0y and L0z
    Filtri filtri;
};

/// Reads the arguments without the program's name, values behind their option or behind a "=". Numbers have a
/// point, whatever the locale. Without any of our options the windows are meant, with a file or options of
/// the toolkit; --json without a question means jobs. A name without dashes, a file's or a section's, asks
/// for what --relazione, --pdf and --dxf write. Throws ErroreUso, also for what would be ignored or stands
/// there twice.
/// @param comuni  hold where the arguments do not say otherwise, as far as they mean anything there
Comando LeggeOpzioni(const std::vector<std::string>& argomenti, const std::vector<std::string>& comuni = {});

/// Whether it is an option without a value.
bool EInterruttore(std::string_view nome);

/// A key of a job is an option without its dashes. Throws ErroreUso for another one, with that which was
/// probably meant.
void ControllaVoce(const std::string& chiave);

/// Takes --cartella with its folder out of the arguments; it holds for windows and answers alike.
/// @return the folder, where one is chosen; of several the last
/// Throws ErroreUso.
std::optional<std::filesystem::path> PrendeCartella(std::vector<std::string>& argomenti);

/// Puts code and steel of a command in force: the partial factors, and grade and strengths of the request.
/// Throws ErroreUso for names that are none.
void MetteInVigore(Comando& comando);

} // namespace sagomi
