#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "catalogue/ui/GrigliaCatalogo.h"
#include "catalogue/ui/LettoreDati.h"
#include "frame/ui/Campi.h"
#include "frame/ui/RegoleEntrate.h"
#include "frame/ui/Schermo.h"
#include "screens/ValoriScelti.h"
#include "sections/MostraVplRd.h"

class QAction;
class QLabel;

namespace sagomi {

class ImmagineDisegno;

/// A main screen: the catalogue table of a family of sections, what the user types, what the section answers.
/// The reactions below the class work on these members; a screen fills them by CollegaControlli and adds what
/// is its own.
class SchermoSezione : public Schermo, public MostraVplRd {
    Q_OBJECT
public:
    explicit SchermoSezione(const QString& nome);

    bool CaricaForm = false;           ///< from the load to the first activation: nothing recalculates
    bool AggiungeSagomoUtente = false; ///< a row of the user's workbook is being written: nor does it then
    bool TipoUtente = false;           ///< the table is a sheet of the user's workbook
    std::string TabellaOrdine; ///< the table that is sorted, as a query names it; empty: the families ticked
    std::string SQLstring;     ///< query of the load
    int WidthIni = 0;          ///< starting size [twips]
    int HeightIni = 0;

    LettoreDati* Data1;
    GrigliaCatalogo* DBGrid1 = nullptr;
    QList<QLineEdit*> TxtProf;
    QComboBox* ComboTipoAcciaio = nullptr;
    QLineEdit* Txt_fy = nullptr;
    QLineEdit* Txt_fu = nullptr;
    QList<QLineEdit*> Txt_L0;
    QLineEdit* TxtNsd = nullptr;
    QList<QCheckBox*> ChkTipo;
    QList<QRadioButton*> OptionOrdina;
    QPushButton* cmdSceltaSagomoGiunto = nullptr;
    ImmagineDisegno* Picture1 = nullptr;
    QAction* NormativaMain = nullptr;

    /// What a choice has given to the row in hand; another row has none.
    std::optional<ValoriScelti> valoriScelti;

    /// Shows the screen in the place of the one that the user comes from.
    void Apre(Schermo& da);

    /// Builds a new section from the row in hand and the entries; it becomes SezioneCorrente.
    virtual void Leggedati() = 0;
    /// Computes SezioneCorrente and shows its results.
    virtual void Risultati() = 0;
    /// Holds the row's values against its geometry.
    virtual void ControlloDati() = 0;
    /// Leggedati, then Risultati.
    void DatiRisultati();

    /// The reader has a row: there is something to compute.
    [[nodiscard]] bool RigaInMano() const;
    /// Whether the section in use is of this screen's kind: what is typed here is not for that of another
    /// one.
    [[nodiscard]] virtual bool SezioneMia() const = 0;
    /// The handlers of the screen do nothing.
    [[nodiscard]] bool Fermo() const { return CaricaForm || AggiungeSagomoUtente; }
    /// Reads the table anew, with the families that are ticked now.
    void Aggiorna() override;
    /// Empties every result, where there is no row.
    virtual void SvuotaRisultati();
    /// Empties the boxes of the results alone.
    virtual void SvuotaValori() {}
    /// The strength to compute with [N/mm2]: the entry's, or, where that is none, the section's, the grade's.
    [[nodiscard]] double FyInForza() const;
    /// The same of the ultimate strength.
    [[nodiscard]] double FuInForza() const;
    /// Puts the entry of a strength that is none back to the one in force.
    void RimetteFy();
    /// A buckling length [mm]; one that no number holds is as impossible as a negative one.
    [[nodiscard]] double Lunghezza(int index) const;
    /// A buckling length has been typed: index 0 about y-y, 1 about z-z, 2 about v-v where the section has
    /// it.
    virtual void LunghezzaCambiata(int index);
    /// The axial force has been typed.
    virtual void ForzaCambiata();

    void AllAttivazione() override;
    void lblVplRd(bool visibile) override;

    /// How many sections of how many families are listed, in the status bar.
    void AggiornaBarraDiStato();

    /// State of the resize: ratios to the starting size, 0 before the first maximise.
    struct StatoRidimensiona {
        double altezza = 0;
        double larghezza = 0;
        bool minimizzata = false; ///< the next restore changes nothing
        bool scalata = false;
    };
    StatoRidimensiona ridimensiona;

    /// Binds the display fields to the reader: from now on every new row is taken over, the first at once.
    void LegaRiga();
    /// A click on the steel list: fy and fu of the grade go into their boxes.
    void AcciaioScelto();

    /// Scales fonts and grid; 1, 1 puts everything back exactly.
    void ScalaControlli(double larghezza, double altezza);
    /// Maximised: fonts by the ratio of the heights, but no larger than the window shows all columns and all
    /// of its content; the screens opened from here follow.
    void ScalaMassimizzato();
    /// The place of an earlier run, inside the desktop; the size counts while it is not maximised.
    void RiprendeFinestra(QPoint posto, QSize misura, bool massima);

    /// Back to the fonts of the start.
    void RimetteScala();

    [[nodiscard]] QSize DimensioneContenuto() const override;

protected:
    /// Builds the form, finds the members above by their names and connects what all main screens have in
    /// common.
    void CollegaControlli();
    /// Marks the order of the table, and on its button which ticks are not in it yet.
    void MostraStatoTabella();
    /// To be called at the end of Risultati: marks entries that cannot stand, empties what hangs on them.
    void ApplicaRegole();
    /// The load, once the controls stand: workbook and first query of the screen's families, starting size,
    /// table, steel.
    void Carica();
    /// Buttons by name, and the detail screens that they open where there is a row to work on. A button that
    /// the form does not have throws std::out_of_range.
    void CollegaDettagli(std::initializer_list<std::pair<const char*, const char*>> dettagli);
    /// Command2 opens the check of lateral-torsional buckling: the screens of double-T sections.
    void CollegaSvergolamento();
    /// Hands a length, or the axial force, on to the section in use.
    /// @return whether there is a section that takes it; an axis that it does not have is told
    bool PassaLunghezza(int index);
    bool PassaForza();
    /// The section in use has another fu, on which no result of a main screen hangs.
    virtual void RotturaPassata() {}
    /// An entry has been concluded: what hangs on it is computed.
    virtual void Conclusa(QLineEdit* casella);
    /// What Enter does in the entry boxes: fy, lengths, axial force, then the first command. False leaves it
    /// to the tab order.
    virtual bool Invio(QLineEdit* casella);
    /// A control of that name: of buttons nullptr where there is none, of boxes std::out_of_range.
    [[nodiscard]] QPushButton* Pulsante(const char* nome) const;
    [[nodiscard]] QLineEdit* CasellaDi(const char* nome) const;

    void ScalaContenuto(double rapporto) override;

    RegoleEntrate regole_; ///< the conditions of the entries
    FiltroCampi* entrate_ = nullptr;

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// An arrow goes to the row before or behind.
    /// @return whether the key was one of those
    virtual bool FrecciaDiRiga(int key);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Compone();
    void TrovaControlli();
    void CollegaMenu();
    void CollegaDati();
    void CollegaRegole();
    /// A force that no section can hold is marked, and no result stands beside it.
    void RegolaForza();
    void RotturaCambiata();
    void CollegaTabella();
    void ApreDettaglio(const QString& nome);
    void SeguonoDettagli();
    void RigaNuova();
    bool RicercaDiRiga(const QKeyEvent& event);

    QLabel* barra_ = nullptr;
    double rapportoIniziale_ = 1; ///< of the fonts, below 1 on a desktop that has no room
    QSize misuraScalata_;         ///< that the fonts were last chosen for
    double scalaTabella_ = 1;     ///< width of the columns over size of the fonts
    int altezzaLista_ = 0;        ///< of the steel list at the start [px]
    bool attendeMisura_ = false;  ///< maximised, the new size has not arrived yet
};

// The reactions that all main screens have in common.

/// The common part of a main screen's load, once its workbook and SQLstring are set.
void CaricaFormComune(SchermoSezione& schermo);

/// A main screen has become the active one.
void AttivaForm(SchermoSezione& schermo);

/// Caption of the menu entry that names the code of rules in force.
void AggiornaCaptionNormativa(SchermoSezione& schermo);

/// Runs a query of the table; the first row of that name is in hand, where there is one. A failure is told
/// and changes nothing.
/// @return whether the table has been read
bool LeggeTabella(SchermoSezione& schermo, const std::string& query, const std::string& nome);

/// Rebuilds the query from the boxes, or over a sheet given as queries name it, and reads the table anew. The
/// section in hand stays in hand where it is still listed. The order is the option's that is set, else the
/// one in force.
/// @return whether the table has been read
bool CambioFamiglia(SchermoSezione& schermo, std::string_view foglio = {});

/// Sorts the table by one of its columns; the option of that column is set, where there is one.
void OrdinaPerColonna(SchermoSezione& schermo, int colonna);

/// Fills the display fields but the name from the row in hand.
void MostraValoriRiga(SchermoSezione& schermo);

/// The display field `indice` has changed; for 0, the name, the new row is taken over.
void RecordCambiato(SchermoSezione& schermo, int indice);

/// Whether a number is a strength [N/mm2]: above 0,001.
bool FyPossibile(double fy);

/// The text of Txt_fy has changed. A strength that is none is told and put back, but not while it is typed.
void AcciaioCambiato(SchermoSezione& schermo);

/// Puts a screen that has been loaded into the state of an earlier run, and keeps its state at its end.
void RiprendeStato(SchermoSezione& schermo);

/// The window has been maximised, minimised or restored.
void RidimensionaForm(SchermoSezione& schermo);

} // namespace sagomi
