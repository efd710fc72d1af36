#include "frame/FileAtomico.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <ctime>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "frame/Disco.h"

namespace sagomi {

namespace fs = std::filesystem;

namespace {

constexpr int legamiMassimi = 40; // as the system follows

/// Where a path leads, through symbolic links and from the current folder; also through a link to a file that
/// is not there, which the library takes for the end of the road.
fs::path Meta(fs::path percorso) {
    std::error_code errore;
    for (int i = 0; i < legamiMassimi && fs::is_symlink(percorso, errore); ++i)
        percorso = percorso.parent_path() / fs::read_symlink(percorso, errore);
    const fs::path meta = fs::weakly_canonical(percorso, errore);
    return errore ? percorso : meta;
}

constexpr std::string_view segnaposto = "XXXXXX"; // mkostemp puts six characters of its own here

std::string InizioTemporaneo(const fs::path& meta) { return "." + meta.filename().string() + "."; }

/// A name that mkostemp gave to a temporary file of this one.
bool NomeTemporaneo(std::string_view nome, std::string_view inizio) {
    return nome.size() == inizio.size() + segnaposto.size() && nome.starts_with(inizio) &&
           std::all_of(nome.begin() + static_cast<std::ptrdiff_t>(inizio.size()), nome.end(),
                       [](unsigned char c) { return std::isalnum(c) != 0; });
}

/// Whether it is a plain file that nobody has touched for an hour.
bool Abbandonato(const fs::path& file) {
    constexpr std::time_t ora = 3600;
    struct stat stato {};
    return lstat(file.c_str(), &stato) == 0 && S_ISREG(stato.st_mode) &&
           stato.st_mtime < std::time(nullptr) - ora;
}

void ToglieAbbandonati(const fs::path& meta) {
    const std::string inizio = InizioTemporaneo(meta);
    std::error_code errore;
    for (fs::directory_iterator voce(meta.parent_path(), errore), fine; !errore && voce != fine;
         voce.increment(errore))
        if (NomeTemporaneo(voce->path().filename().string(), inizio) && Abbandonato(voce->path()))
            unlink(voce->path().c_str());
}

/// A new file, or an old one of the ordinary kind that may be written.
bool Scrivibile(const fs::path& meta) {
    std::error_code errore;
    if (fs::is_symlink(meta, errore)) // a circle of links
        return false;
    const fs::file_status stato = fs::status(meta, errore);
    if (!fs::exists(stato))
        return !meta.filename().empty();
    return fs::is_regular_file(stato) && access(meta.c_str(), W_OK) == 0;
}

/// The rights that the file has, or that any new one would get.
mode_t Diritti(const fs::path& meta) {
    struct stat esistente {};
    if (stat(meta.c_str(), &esistente) == 0)
        return esistente.st_mode & 07777U;
    const mode_t maschera = umask(0);
    umask(maschera);
    return 0666U & ~maschera;
}

} // namespace

FileAtomico::~FileAtomico() { Abbandona(); }

FileAtomico::FileAtomico(FileAtomico&& altro) noexcept
    : meta_(std::move(altro.meta_)), temporaneo_(std::exchange(altro.temporaneo_, {})),
      fd_(std::exchange(altro.fd_, -1)) {}

FileAtomico& FileAtomico::operator=(FileAtomico&& altro) noexcept {
    if (this != &altro) {
        Abbandona();
        meta_ = std::move(altro.meta_);
        temporaneo_ = std::exchange(altro.temporaneo_, {});
        fd_ = std::exchange(altro.fd_, -1);
    }
    return *this;
}

bool FileAtomico::Apre(const fs::path& percorso) {
    Abbandona();
    meta_ = Meta(percorso);
    if (!Scrivibile(meta_))
        return false;
    ToglieAbbandonati(meta_);
    temporaneo_ = (meta_.parent_path() / (InizioTemporaneo(meta_).append(segnaposto))).string();
    fd_ = DiscoInUso().CreaTemporaneo(temporaneo_);
    if (fd_ < 0)
        temporaneo_.clear();
    return fd_ >= 0;
}

bool FileAtomico::Conferma(std::string_view byte, const std::function<bool()>& ancora) {
    if (fd_ < 0)
        return false;
    Disco& disco = DiscoInUso();
    disco.Permette(fd_, Diritti(meta_));
    bool riuscito = disco.Scrive(fd_, byte) && disco.Svuota(fd_);
    riuscito = disco.Chiude(std::exchange(fd_, -1)) && riuscito;
    riuscito = riuscito && (!ancora || ancora());
    riuscito = riuscito && disco.Rinomina(temporaneo_, meta_);
    if (!riuscito) {
        Abbandona();
        return false;
    }
    temporaneo_.clear();
    disco.SvuotaCartella(meta_.parent_path());
    return true;
}

void FileAtomico::Abbandona() {
    if (fd_ >= 0)
        DiscoInUso().Chiude(std::exchange(fd_, -1));
    if (!temporaneo_.empty())
        DiscoInUso().Toglie(std::exchange(temporaneo_, {}));
}

bool ScriveAtomico(const fs::path& percorso, std::string_view byte, const std::function<bool()>& ancora) {
    FileAtomico file;
    return file.Apre(percorso) && file.Conferma(byte, ancora);
}

} // namespace sagomi
