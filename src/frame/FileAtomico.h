#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace sagomi {

/// A file that is replaced as a whole: what is written goes to a temporary file in the same folder, which
/// takes the place of the old one only when it lies safely on the disk. Until then the old file stays as it
/// is.
class FileAtomico {
public:
    FileAtomico() = default;
    ~FileAtomico();
    FileAtomico(const FileAtomico&) = delete;
    FileAtomico& operator=(const FileAtomico&) = delete;
    FileAtomico(FileAtomico&& altro) noexcept;
    FileAtomico& operator=(FileAtomico&& altro) noexcept;

    /// Makes the temporary file, and removes those that a run which ended in the middle of a save of this
    /// file left more than an hour ago. Links are followed, also one that leads to no file yet. False when
    /// the folder or the existing file cannot be written, or when the path names something that is no regular
    /// file.
    bool Apre(const std::filesystem::path& percorso);

    /// Writes the bytes and puts them in the place of the old file. False when the disk refuses; then the old
    /// file stays and the temporary one goes.
    /// @param ancora  asked when the bytes lie on the disk, before they take the old file's place: false, or
    /// a
    ///                throw, leaves everything as it was
    bool Conferma(std::string_view byte, const std::function<bool()>& ancora = {});

    /// Where the file goes, links followed.
    [[nodiscard]] const std::filesystem::path& Destinazione() const { return meta_; }

private:
    void Abbandona();

    std::filesystem::path meta_;
    std::string temporaneo_;
    int fd_ = -1;
};

/// The whole of a save in one step.
bool ScriveAtomico(const std::filesystem::path& percorso, std::string_view byte,
                   const std::function<bool()>& ancora = {});

} // namespace sagomi
