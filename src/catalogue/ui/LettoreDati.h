#pragma once

#include <QObject>

#include "catalogue/Lettore.h"
#include "catalogue/ui/FonteRighe.h"
#include "catalogue/ui/ModelloCatalogo.h"

namespace sagomi {

/// The reader of a screen (its Data1): the catalogue reader with the table model that the grid shows, and one
/// signal a new row.
class LettoreDati : public QObject, public FonteRighe {
    Q_OBJECT
public:
    explicit LettoreDati(QObject* parent = nullptr);

    /// Sets the workbook; nothing is read before Refresh.
    void DatabaseName(const std::filesystem::path& file) { lettore_.DatabaseName(file); }
    void RecordSource(const std::string& query) { lettore_.RecordSource(query); }
    [[nodiscard]] const std::string& RecordSource() const { return lettore_.RecordSource(); }

    /// Runs the query and goes to the first row. Throws ErroreCatalogo; then everything stays as it was.
    void Refresh() { Refresh({}); }
    /// The same, but the first row of that name is in hand, where there is one.
    void Refresh(const std::string& nome);

    /// Puts the row that is being written into the workbook, as Lettore does, and shows it.
    void Update();

    [[nodiscard]] bool BOF() const { return lettore_.BOF(); }
    [[nodiscard]] bool EOF_() const { return lettore_.EOF_(); }
    void MoveFirst() { lettore_.MoveFirst(); }
    void MovePrevious() { lettore_.MovePrevious(); }
    void MoveNext() { lettore_.MoveNext(); }
    void MoveLast() { lettore_.MoveLast(); }
    void MoveTo(int riga) override { lettore_.MoveTo(riga); }

    /// The rows and their fields by position.
    [[nodiscard]] const Lettore& Recordset() const { return lettore_; }
    [[nodiscard]] Lettore& Recordset() { return lettore_; }
    [[nodiscard]] ModelloCatalogo* Modello() override { return &modello_; }

    [[nodiscard]] QString TestoIntero(int riga, int colonna) const override {
        return modello_.TestoIntero(riga, colonna);
    }
    [[nodiscard]] const std::vector<QStringList>& TestiLunghi() const override {
        return modello_.TestiLunghi();
    }
    [[nodiscard]] int CercaIniziale(const QString& testo) const override {
        return modello_.CercaIniziale(testo);
    }
    [[nodiscard]] int RigaInMano() const override { return lettore_.RigaCorrente(); }

signals:
    /// A new row is in hand: after a refresh or a move, also when its name equals the last one's.
    void rigaCambiata();

private:
    Lettore lettore_;
    ModelloCatalogo modello_;
    bool inCambio_ = false;
    bool annuncio_ = false;
};

} // namespace sagomi
