#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"

namespace sagomi {

/// The reader behind a main screen (its Data1): a workbook, a query, all the rows that it gives and the row
/// in hand. Rows and fields are counted from 0.
///
/// The row in hand is one of the rows, or lies before the first (BOF) or behind the last (EOF); with no rows
/// both hold. There a field is empty and a move does what it can: nothing here stops the program.
/// (EOF_ is spelled so because the C library has a macro EOF.)
class Lettore {
public:
    /// Called once at the end of Refresh and of every move that ends at a row, with the row in hand set, also
    /// when its fields are those of the row before. Not called where there is no row.
    std::function<void()> rigaCambiata;

    /// The workbook to read; counts from the next Refresh.
    void DatabaseName(const std::filesystem::path& cartella) { chiesta_.cartella = cartella; }
    [[nodiscard]] const std::filesystem::path& DatabaseName() const { return chiesta_.cartella; }

    /// The query; counts from the next Refresh.
    void RecordSource(std::string_view query) { chiesta_.query = query; }
    [[nodiscard]] const std::string& RecordSource() const { return chiesta_.query; }

    /// The sheet whose rows Edit and AddNew may change, as a query names its table; counts from the next
    /// Refresh, the query of which must be over this sheet alone. Empty: the rows can only be read.
    void TabellaModificabile(std::string_view tabella) { chiesta_.tabella = tabella; }

    /// Fields that a row must have for its screen to work with it; a query that gives fewer fails.
    void CampiAttesi(int n) { campiAttesi_ = n; }

    /// Runs the query and goes to the first row. The workbook is read anew when its file has changed; rows
    /// that the last query gave in another order are only sorted. Throws ErroreCatalogo when the workbook or
    /// the query fails; the rows, the row in hand, the workbook and the query of the last Refresh that
    /// succeeded are then in force again.
    void Refresh();

    [[nodiscard]] bool BOF() const { return esito_.righe.empty() || riga_ < 0; }
    [[nodiscard]] bool EOF_() const { return esito_.righe.empty() || riga_ >= Righe(); }

    void MoveFirst();
    void MoveLast();
    void MoveNext();     ///< from the last row to EOF; stays there
    void MovePrevious(); ///< from the first row to BOF; stays there

    /// Goes to a row, 0 to Righe() - 1; another one throws std::out_of_range.
    void MoveTo(int riga);

    /// Goes to the first row whose field 0 equals the text, capitals and all. When there is none the last row
    /// is in hand. True when found. One call of rigaCambiata, whatever lies between.
    bool CercaRecord(std::string_view nome);

    /// Begins a change of the row in hand, or a new row, empty. A row that cannot be changed throws
    /// ErroreCatalogo.
    void Edit();
    void AddNew();
    /// A field of the row that is being written. Outside of it or of 0..Campi() - 1 throws std::out_of_range.
    void Campo(int campo, Valore valore);
    /// Puts the row into the workbook, and into the rows: a new one behind the last, whatever their order.
    /// The row in hand stays in hand, and nobody is called. Throws as ScriveRighe, and then nothing has
    /// changed and nothing is being written any more.
    void Update();

    /// The place in the sheet of a row that can be changed, counted from 0; any other one throws
    /// ErroreCatalogo.
    [[nodiscard]] std::size_t RigaDelFoglio(int riga) const;
    /// The state of the workbook when its rows were read, or written last.
    [[nodiscard]] const ImprontaFile& Impronta() const { return impronta_; }

    [[nodiscard]] int Righe() const { return static_cast<int>(esito_.righe.size()); }
    [[nodiscard]] int Campi() const { return static_cast<int>(esito_.campi.size()); }
    [[nodiscard]] int RigaCorrente() const { return riga_; } ///< -1 at BOF, Righe() at EOF

    /// Another number where the rows are others than before, or have others among them; in another order the
    /// same rows keep it.
    [[nodiscard]] int Lettura() const { return lettura_; }

    /// The heading of a column. Outside 0..Campi() - 1 throws std::out_of_range.
    [[nodiscard]] const std::string& NomeCampo(int campo) const;

    /// A field of any row. A row or field that is not there throws std::out_of_range.
    [[nodiscard]] const Valore& Cella(int riga, int campo) const;

    /// All fields of a row. One that is not there throws std::out_of_range.
    [[nodiscard]] const std::vector<Valore>& Riga(int riga) const;

    /// A field of the row in hand; empty at BOF and EOF. A field that is not there throws std::out_of_range.
    [[nodiscard]] const Valore& Campo(int campo) const;
    [[nodiscard]] double Numero(int campo) const;     ///< the field as a number; empty is 0
    [[nodiscard]] std::string Testo(int campo) const; ///< the field as plain text; empty is ""

private:
    struct Fonte {
        std::filesystem::path cartella;
        std::string query;
        std::string tabella; ///< that can be changed
    };

    /// The row that is being written.
    struct Modifica {
        int riga; ///< -1: a new one
        std::vector<Valore> campi;
    };

    [[nodiscard]] bool Riordina(const std::shared_ptr<const Catalogo>& catalogo);
    void Legge(const std::shared_ptr<const Catalogo>& catalogo);
    [[nodiscard]] EsitoQuery Esegue(const Catalogo& catalogo, std::string_view query) const;
    void Controlla(std::size_t campi) const;
    static std::vector<std::size_t> SeparaPosti(EsitoQuery& esito);
    [[nodiscard]] std::size_t Posto(int riga) const { return ordine_[static_cast<std::size_t>(riga)]; }
    void Accoglie(Modifica modifica, std::size_t posto);

    void Porta(int riga);

    Fonte chiesta_;
    Fonte inVigore_;
    int campiAttesi_ = 0;
    bool letto_ = false; ///< a Refresh has succeeded
    EsitoQuery esito_;
    std::vector<std::uint32_t> ordine_;          ///< the places in esito_ of the rows in their order
    std::weak_ptr<const Catalogo> riordinabili_; ///< what rows come from that can be sorted without it
    int lettura_ = 0;
    std::vector<std::size_t> posti_; ///< in their sheet, of the rows of esito_, where they can be changed
    ImprontaFile impronta_;
    std::optional<Modifica> modifica_;
    int riga_ = -1;
};

/// One step of the arrow keys and of the little move buttons: forward stays at the last row, back at the
/// first. The caller then shows field 0 and lets events through.
void MuoviRecord(Lettore& lettore, bool avanti);

} // namespace sagomi
