#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace sagomi {

/// What a save asks of the system, step by step. A test plugs in a disk of its own, which can fail or lose
/// its power. Of the members that can fail each tells whether it was done.
class Disco {
public:
    Disco() = default;
    virtual ~Disco() = default;
    Disco(const Disco&) = delete;
    Disco& operator=(const Disco&) = delete;

    /// Makes a new file of a name of its own and opens it to be written.
    /// @param modello  path that ends in XXXXXX, which become the characters of the name
    /// @return  its number; below 0 where it cannot be made
    virtual int CreaTemporaneo(std::string& modello);
    /// Gives a file its rights; a disk without rights refuses, and the text is what matters.
    virtual void Permette(int fd, mode_t diritti);
    virtual bool Scrive(int fd, std::string_view byte);
    /// Returns when all that was written lies on the disk.
    virtual bool Svuota(int fd);
    virtual bool Chiude(int fd);
    /// Puts a file in the place of another, at once.
    virtual bool Rinomina(const std::string& da, const std::filesystem::path& a);
    /// Returns when the names of a folder lie on the disk. Some systems refuse; the files are whole all the
    /// same.
    virtual void SvuotaCartella(const std::filesystem::path& cartella);
    virtual void Toglie(const std::string& file);
};

/// The disk that is saved to: the system's, until another one is plugged in.
Disco& DiscoInUso();

/// Plugs a disk in; nullptr for the system's.
void CollegaDisco(Disco* disco);

} // namespace sagomi
