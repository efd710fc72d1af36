#pragma once

#include <memory>

#include "screens/SchermoDettaglio.h"
#include "sections/SezioneCorrente.h"

namespace Ui {
class FrmMsverg;
}

namespace sagomi {

struct Verdetto;

/// Lateral-torsional buckling of a member, ENV 1993-1-1 5.5.2 and annex F: critical moment, reduction factor,
/// resistance, and the interaction with axial force and bending.
class FrmMsverg : public SchermoDettaglio {
    Q_OBJECT
public:
    FrmMsverg();
    ~FrmMsverg() override;

    /// Factors picked from a table; the activation that follows computes with them.
    void PrendeFattori(double k, double C1, double C2, double C3);

protected:
    /// Writes the entries into the section, computes and shows.
    void Calcola() override;
    void RiempieDati() override;
    void RiempieDaScelta(const ValoriScelti& scelti) override;
    /// The factors of the moment diagram have no box here: a new section takes them from the old one.
    void RiportaValori(const SezioneDoppioT& vecchia, SezioneDoppioT& nuova) override;

private:
    void CollegaEventi();
    /// Opens a table of factors that hands its row to PrendeFattori.
    void ApreTavola(const QString& nome);
    void ScriveDati();
    void MostraResistenza();
    void MostraInterazione();
    [[nodiscard]] Verdetto Giudizio(const SezioneDoppioT& s) const;

    std::unique_ptr<Ui::FrmMsverg> ui_;
    QList<QWidget*> risultati_;  ///< what hangs on the length
    RiferimentoSezione sezione_; ///< section that was computed last
};

} // namespace sagomi
