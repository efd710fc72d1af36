#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <string_view>

class QWidget;

namespace sagomi {

/// A screen whose content goes to and from a data file.
class SchermoConFile {
public:
    virtual ~SchermoConFile() = default;
    /// Moves the content in the direction of the mode, "L" or "S".
    virtual void FileLeggeScrive(std::string_view modo, std::int16_t nFile) = 0;
    /// What stands before the file's title in the caption.
    [[nodiscard]] virtual QString PrefissoTitolo() const = 0;
    [[nodiscard]] virtual QWidget* Finestra() = 0;
    /// Whether the last FileLeggeScrive has moved everything; a reading that has not leaves the old content.
    [[nodiscard]] virtual bool FileRiuscito() const { return true; }
};

/// Asks the user for a file: the open dialog for "L", the save dialog (which asks before it overwrites) for
/// "S". Empty when the user gives up. The tests put their own in its place.
using SceltaFile = std::function<QString(QWidget* sopra, std::string_view modo, const QString& filtro,
                                         int indiceFiltro, const QString& proposto)>;
void ImpostaSceltaFile(SceltaFile scelta);

/// Asks with what is plugged in.
QString SceglieFile(QWidget* sopra, std::string_view modo, const QString& filtro, int indiceFiltro,
                    const QString& proposto);

/// Opens or saves a data file by the common dialog.
/// @param descrizione  of the kind of file, for the filter
/// @param estensione   without the dot; added to a name that is saved without one
/// @param file         proposed name, "*.extension" when empty; receives the chosen path
/// @return false when the user gave up, or the file could not be opened or moved whole: caption, file and
///         folder are as they were then
bool FileDialogo(SchermoConFile& schermo, std::string_view modo, std::string_view descrizione,
                 std::string_view estensione, QString& file);

/// The same with a file that is known, without the dialog.
bool FileSenzaDialogo(SchermoConFile& schermo, std::string_view modo, const QString& file);

} // namespace sagomi
