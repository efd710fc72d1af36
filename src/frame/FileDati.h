#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "frame/Singolo.h"

/// Data files: lines of comma separated fields, written and read by the same list of fields. On disk they are
/// Windows-1252 with CR LF; reading takes CR LF, LF and CR. The mode is "L" to read and "S" to write.
namespace sagomi {

/// A variable that takes part in a record.
using Campo = std::variant<double*, Singolo*, std::int16_t*, std::int32_t*, std::string*, bool*>;

/// No data file comes near this size; a larger one is none of ours.
inline constexpr std::size_t byteMassimiFileDati = std::size_t{16} << 20U;

/// Opens a file and gives its number, from 1 up; 0 when it cannot be opened: to read, it must be a regular
/// file of at most byteMassimiFileDati. What is written stays aside until ChiudeFile puts it in the place of
/// the old file.
std::int16_t ApreFile(const std::filesystem::path& percorso, std::string_view modo);

/// Closes a file. False with the message "Scrittura incompleta del file" when what was written did not reach
/// the disk: the old file is then as it was.
bool ChiudeFile(std::int16_t nFile);

/// Closes a file without saving: what was written is dropped and the old file stays as it was.
void AbbandonaFile(std::int16_t nFile);

/// Moves one record. In mode "S" it becomes one line; in mode "L" its fields are taken wherever the lines
/// break, and converted to the type of their variable: fractions to integers half to even, numbers out of
/// range and missing or malformed ones are errors. An error is told in a message ("L": a second one says
/// which), stops the record and gives false; the variables read so far stay filled. No field, nothing moves.
bool FileInOut(std::string_view modo, std::int16_t nFile, const std::vector<Campo>& campi);

/// Moves a list of texts as one line; line breaks inside them survive as CR LF. A line that does not begin
/// with a double quote is an empty list; an empty list writes nothing.
bool FileInOutStringColl(std::string_view modo, std::int16_t nFile, std::vector<std::string>& coll);

/// Moves two texts as one line. A line with one of them leaves `predefinito` in b, an empty one also leaves
/// a as it was.
bool FileInOutCoppia(std::string_view modo, std::int16_t nFile, std::string& a, std::string& b,
                     std::string_view predefinito);

/// Writes, or reads, a whole line of plain text, with the messages of FileInOut.
bool ScriveRiga(std::int16_t nFile, std::string_view riga);
bool LeggeRiga(std::int16_t nFile, std::string& riga);

/// Whether the next line to be read begins with a double quote.
bool SeguonoVirgolette(std::int16_t nFile);

/// While one lives, reading and writing fail without a message.
class PrimitiveSilenziose {
public:
    PrimitiveSilenziose();
    ~PrimitiveSilenziose();
    PrimitiveSilenziose(const PrimitiveSilenziose&) = delete;
    PrimitiveSilenziose& operator=(const PrimitiveSilenziose&) = delete;
};

/// A number as files hold it: the shortest text that reads back to the same value, with a point. Beyond
/// 1E-4..1E15 (singles 1E-4..1E7) with a power of ten.
std::string NumeroFile(double valore);
std::string NumeroFile(Singolo valore);

/// The filter of a file dialog: all files, then those of the extension, which is the one to start with.
std::string FiltroFileDialogo(std::string_view descrizione, std::string_view estensione);
inline constexpr int indiceFiltroFileDialogo = 2;

/// A file of the folder whatever the case of its letters; the path as given where there is none.
std::filesystem::path PercorsoSenzaMaiuscole(const std::filesystem::path& cartella, std::string_view nome);

} // namespace sagomi
