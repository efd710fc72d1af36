#include "frame/FileAtomico.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace sagomi {

namespace fs = std::filesystem;

namespace {

/// Where a path leads, through symbolic links and from the current folder.
fs::path Meta(const fs::path& percorso) {
    std::error_code errore;
    const fs::path meta = fs::weakly_canonical(percorso, errore);
    return errore ? percorso : meta;
}

/// A new file, or an old one of the ordinary kind that may be written.
bool Scrivibile(const fs::path& meta) {
    std::error_code errore;
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

bool ScriveTutto(int fd, std::string_view byte) {
    while (!byte.empty()) {
        const ssize_t scritti = write(fd, byte.data(), byte.size());
        if (scritti < 0 && errno == EINTR)
            continue;
        if (scritti <= 0)
            return false;
        byte.remove_prefix(static_cast<std::size_t>(scritti));
    }
    return true;
}

/// The name of a file lies in its folder: the folder goes to the disk too. Some systems refuse; the file is
/// whole all the same.
void SvuotaCartella(const fs::path& cartella) {
    const int fd = open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    fsync(fd);
    close(fd);
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
    temporaneo_ = (meta_.parent_path() / ("." + meta_.filename().string() + ".XXXXXX")).string();
    fd_ = mkostemp(temporaneo_.data(), O_CLOEXEC);
    if (fd_ < 0)
        temporaneo_.clear();
    return fd_ >= 0;
}

bool FileAtomico::Conferma(std::string_view byte) {
    if (fd_ < 0)
        return false;
    static_cast<void>(fchmod(fd_, Diritti(meta_))); // a disk without rights refuses; the text is what matters
    bool riuscito = ScriveTutto(fd_, byte) && fsync(fd_) == 0;
    riuscito = close(std::exchange(fd_, -1)) == 0 && riuscito;
    riuscito = riuscito && std::rename(temporaneo_.c_str(), meta_.c_str()) == 0;
    if (!riuscito) {
        Abbandona();
        return false;
    }
    temporaneo_.clear();
    SvuotaCartella(meta_.parent_path());
    return true;
}

void FileAtomico::Abbandona() {
    if (fd_ >= 0)
        close(std::exchange(fd_, -1));
    if (!temporaneo_.empty())
        unlink(std::exchange(temporaneo_, {}).c_str());
}

bool ScriveAtomico(const fs::path& percorso, std::string_view byte) {
    FileAtomico file;
    return file.Apre(percorso) && file.Conferma(byte);
}

} // namespace sagomi
