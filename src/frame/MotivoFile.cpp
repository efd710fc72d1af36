#include "frame/MotivoFile.h"

#include <system_error>
#include <unistd.h>

namespace sagomi {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t spazioMinimo = 4096; ///< a disk with less is full [byte]

fs::path CartellaDi(const fs::path& file) {
    const fs::path folder = file.parent_path();
    return folder.empty() ? fs::path(".") : folder;
}

bool Pieno(const fs::path& folder) {
    std::error_code error;
    const fs::space_info room = fs::space(folder, error);
    return !error && room.available < spazioMinimo;
}

/// What stands where the file should, empty where it is an ordinary one or none.
std::string NonFile(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (fs::is_directory(status))
        return "è una cartella";
    if (fs::exists(status) && !fs::is_regular_file(status))
        return "non è un file di dati";
    return {};
}

} // namespace

std::string MotivoNonScritto(const fs::path& file) {
    const fs::path folder = CartellaDi(file);
    std::error_code error;
    if (!fs::exists(folder, error))
        return "la cartella non esiste";
    if (!fs::is_directory(folder, error))
        return folder.string() + " non è una cartella";
    if (std::string other = NonFile(file); !other.empty())
        return other;
    if (fs::exists(file, error) && access(file.c_str(), W_OK) != 0)
        return "il file è di sola lettura";
    if (access(folder.c_str(), W_OK) != 0)
        return "nella cartella non è permesso scrivere";
    return Pieno(folder) ? "il disco è pieno" : "il disco non ha accettato i dati";
}

std::string MotivoNonLetto(const fs::path& file) {
    std::error_code error;
    if (!fs::exists(file, error))
        return "il file non esiste";
    if (std::string other = NonFile(file); !other.empty())
        return other;
    return access(file.c_str(), R_OK) != 0 ? "il file non è leggibile da questo utente"
                                           : "il file è troppo grande o non è un file di dati";
}

std::string AvvisoNonScritto(const fs::path& file) {
    return "Non è possibile scrivere il file " + file.string() + ":\r\n" + MotivoNonScritto(file);
}

std::string AvvisoNonLetto(const fs::path& file) {
    return "Non è possibile leggere il file " + file.string() + ":\r\n" + MotivoNonLetto(file);
}

} // namespace sagomi
