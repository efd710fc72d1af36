#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <vector>

namespace sagomi {

/// The designations of a table, small letters and no blanks, kept in one text to be searched at every letter.
class NomiPiegati {
public:
    void Svuota();
    void Aggiunge(const std::string& nome);

    [[nodiscard]] int Numero() const { return static_cast<int>(fini_.size()); }

    /// First name that begins with the text, capitals and blanks ignored; -1 if none does.
    [[nodiscard]] int CercaIniziale(const QString& testo) const;

private:
    std::string testo_;             ///< all names in UTF-8, one behind the other
    std::vector<std::size_t> fini_; ///< where each of them ends
};

} // namespace sagomi
