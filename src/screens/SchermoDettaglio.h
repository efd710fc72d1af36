#pragma once

#include <QList>

#include <cstdint>
#include <functional>
#include <initializer_list>

#include "frame/Singolo.h"
#include "frame/ui/RegoleEntrate.h"
#include "frame/ui/Schermo.h"
#include "sections/SezioneCorrente.h"

class QLineEdit;

namespace sagomi {

class FiltroCampi;
class SchermoSezione;
struct ValoriScelti;

/// A detail screen: opened from a main screen, or from another detail, it works on SezioneCorrente and shows
/// the caller's section, steel and strength. It stays in front of its caller, which remains usable, and
/// computes anew whenever it becomes the active window. UpDown1 steps the caller's row, UpDown2 its steel.
class SchermoDettaglio : public Schermo {
    Q_OBJECT
public:
    explicit SchermoDettaglio(const QString& nome);

    /// Opens the screen: the entries that have a twin on the section are refilled, then it is activated.
    /// @param chiamante  the main screen whose section it is, also when another detail opens it
    /// @param da         the screen that the user comes from, where closing goes back to
    void ApreDa(SchermoSezione& chiamante, Schermo& da);

    /// The same from a main screen, or from another detail for the main screen that this one works for. A
    /// screen of another kind throws std::logic_error.
    void Apre(Schermo& da);

    /// Fills the screen from SezioneCorrente and the caller's controls: mends the entries, each with its
    /// message, computes, and empties what hangs on entries that cannot stand. While the user types it keeps
    /// quiet and mends nothing.
    void CompletaForm(SchermoSezione& chiamante);

    void AllAttivazione() override;

    /// The boxes that the caller has too follow it as long as they hold what it holds.
    void Aggiorna() override;

protected:
    /// To be called once the controls of the form stand: connects the step buttons, the entry boxes' manners
    /// (Enter goes on in tab order, or as `invio` says) and what all details have in common.
    void CollegaControlli(std::function<bool(QLineEdit*)> invio = {});

    /// Computes with the entries as they are and shows the results.
    virtual void Calcola() = 0;

    /// A change of one of these entries computes anew. A force or a moment among them that no section can
    /// hold is marked, and nothing is shown with it.
    void CalcolaA(const QList<QLineEdit*>& caselle);

    /// Controls by their object names, for the results of a rule; names that the form lacks are left out.
    [[nodiscard]] QList<QWidget*> Controlli(std::initializer_list<const char*> nomi) const;

    /// Refills the entries that have a twin on the section or the caller; runs at each opening.
    virtual void RiempieDati() {}

    /// The same when a choice has given the caller a row and values while the screen stands open.
    virtual void RiempieDaScelta(const ValoriScelti& /*scelti*/) { RiempieDati(); }

    /// Hands N and the buckling lengths to the boxes of the caller, which then reacts, where they differ.
    /// @return whether one did
    bool RiportaAlChiamante();
    /// What the caller hears before this screen computes.
    virtual void Riporta();

    /// From now on an entry and a value of the section go the same way: what another screen has given the
    /// section since this one computed last comes into the box, else the box counts.
    /// @param unita  of the box in one of the section
    void Lega(QLineEdit* casella, Singolo SezioneDoppioT::*valore, double unita);
    /// The section in use is the one that this screen computed with last, not one read anew.
    [[nodiscard]] bool StessaSezione() const;

    /// CompletaForm on the caller in force, guarded against what it changes itself.
    void Ricalcola();

    /// Steps the caller's row: its whole row change happens first. `riporta` carries values of the old
    /// section over to the new one before the screen is computed.
    void PassoDiRiga(bool su);
    void PassoDiAcciaio(bool su);
    virtual void RiportaValori(const SezioneDoppioT& vecchia, SezioneDoppioT& nuova);

    /// The section in use; nullptr when it is not a double-T.
    [[nodiscard]] static SezioneDoppioT* Sezione();

    /// Txt_Prof, Txt_TipoAcciaio and Txt_fy copy the caller's boxes.
    void CopiaIntestazione();

    RegoleEntrate regole_; ///< the conditions of the entries
    FiltroCampi* entrate_ = nullptr;

    SchermoSezione* chiamante_ = nullptr;
    bool inCalcolo_ = false; ///< CompletaForm is writing: handlers of entries return at once

private:
    /// An entry and its value on the section.
    struct Legame {
        QLineEdit* casella;
        Singolo SezioneDoppioT::*valore;
        double unita;
        double visto = 0; ///< as this screen left it
    };
    void PrendeDallaScelta();
    void PrendeDallaSezione();
    void RicordaSezione();
    [[nodiscard]] QList<QLineEdit*> CaselleDelChiamante() const;
    void RicordaChiamante();
    /// What Calcola shows, verdicts too.
    [[nodiscard]] QList<QWidget*> TuttiRisultati() const;
    /// Without a row, or a strength, of the caller there is nothing to show.
    void Svuota();
    void CollegaFy();
    void FyCambiato(QLineEdit* fy);
    void Conclusa(QLineEdit* casella);

    bool daRipetere_ = false; ///< messages were held back while the user typed
    QList<double> visti_;     ///< numbers of the caller's boxes that this screen has heard of
    QList<Legame> legami_;
    RiferimentoSezione sezioneVista_; ///< computed with last
    std::uint64_t presaVista_ = 0;    ///< the row of a choice whose values the entries began with
    bool suCopia_ = false;            ///< the section in use is a copy, for this computation alone
};

/// Steps the steel grade of a main screen, held inside its list, and runs the reaction to it; the name and
/// strength boxes then copy the main screen's.
void MuoviAcciaio(bool su, SchermoSezione& chiamante, QLineEdit* tipo, QLineEdit* fy);

} // namespace sagomi
