#pragma once

#include <functional>

#include "frame/ui/Schermo.h"

class QLineEdit;

namespace sagomi {

class SchermoSezione;
class SezioneDoppioT;

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
    void ApriDa(SchermoSezione& chiamante, Schermo& da);

    /// The same from a main screen, or from another detail for the main screen that this one works for. A
    /// screen of another kind throws std::logic_error.
    void Apri(Schermo& da);

    /// Fills the screen from SezioneCorrente and the caller's controls.
    virtual void CompletaForm(SchermoSezione& chiamante) = 0;

    void AllAttivazione() override;

protected:
    /// To be called once the controls of the form stand: connects the step buttons, the entry boxes' manners
    /// (Enter goes on in tab order, or as `invio` says) and what all details have in common.
    void CollegaControlli(std::function<bool(QLineEdit*)> invio = {});

    /// Refills the entries that have a twin on the section or the caller; runs at each opening.
    virtual void RiempiDati() {}

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

    SchermoSezione* chiamante_ = nullptr;
    bool inCalcolo_ = false; ///< CompletaForm is writing: handlers of entries return at once
};

/// Steps the steel grade of a main screen, held inside its list, and runs the reaction to it; the name and
/// strength boxes then copy the main screen's.
void MuoviAcciaio(bool su, SchermoSezione& chiamante, QLineEdit* tipo, QLineEdit* fy);

} // namespace sagomi
