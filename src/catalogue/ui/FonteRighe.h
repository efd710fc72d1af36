#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

namespace sagomi {

/// What a table of sections shows: rows as a model, and the one in hand. Rows and columns are counted from 0.
class FonteRighe {
public:
    FonteRighe() = default;
    virtual ~FonteRighe() = default;
    FonteRighe(const FonteRighe&) = delete;
    FonteRighe& operator=(const FonteRighe&) = delete;

    [[nodiscard]] virtual QAbstractTableModel* Modello() = 0;

    /// A field with all its figures, for other programs to read.
    [[nodiscard]] virtual QString TestoIntero(int riga, int colonna) const = 0;

    /// Texts among which the longest of each column stands.
    [[nodiscard]] virtual const std::vector<QStringList>& TestiLunghi() const = 0;

    /// First row whose designation begins with the text, blanks and case ignored; -1 if none does.
    [[nodiscard]] virtual int CercaIniziale(const QString& testo) const = 0;

    /// The row in hand; one that is none where there is none.
    [[nodiscard]] virtual int RigaInMano() const = 0;
    /// Takes a row in hand; one that is not there throws std::out_of_range.
    virtual void MoveTo(int riga) = 0;
};

} // namespace sagomi
