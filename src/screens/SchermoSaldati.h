#pragma once

#include "catalogue/RigaDoppioT.h"
#include "catalogue/SagomoUtente.h"
#include "screens/SchermoDi.h"

namespace sagomi {

/// A screen of welded double-T sections: the shipped families, or the sheet of the user's own workbook, where
/// the user types plates and the program keeps the values that follow from them.
class SchermoSaldati : public SchermoDi<SezioneDoppioT> {
    Q_OBJECT
public:
    /// @param righe  what the rows of its tables are: with equal or with different flanges
    SchermoSaldati(const QString& nome, RigheDoppioT righe);

    QCheckBox* ChkTipoUtente = nullptr;
    QWidget* Frame1 = nullptr; ///< the values of the row, in whose place frUtenteEdita is shown
    QWidget* frUtenteComandi = nullptr;
    QWidget* frUtenteEdita = nullptr;
    QList<QPushButton*> cmdUtente;
    QList<QPushButton*> cmdUtenteEdita;
    QList<QLineEdit*> TxtProfUtente;

    /// Puts the shipped sections or the user's own in force. The user's own are completed and shown.
    /// @param standard  true for the shipped ones; becomes true where the user's own cannot be read, which is
    ///                  told: then the table stays as it was
    void SettaTipoUtente(bool& standard);

    /// Makes a section of the plates that have been typed; it becomes SezioneCorrente.
    void DatiSagomoUtenteCalcola();
    /// Writes SezioneCorrente into the fields of the row that is being written.
    void DatiSagomoUtenteInserisce(const std::string& nome);

    void Aggiorna() override;
    void SvuotaRisultati() override;
    void Risultati() override;

protected:
    void LeggeSezione(const Lettore& riga, SezioneDoppioT& sezione) override;
    void ControllaSezione(const Lettore& riga, SezioneDoppioT& sezione) override;
    /// At the boxes of a section of the user an arrow goes from one to the other: the row would refill them.
    bool FrecciaDiRiga(int key) override;
    void Conclusa(QLineEdit* casella) override;

private:
    void TrovaUtente();
    void CollegaUtente();
    void CambiaTipo();
    [[nodiscard]] bool ApreUtente();
    bool LeggeInSilenzio(const std::function<bool()>& legge);
    void Completa();
    [[nodiscard]] std::string TabellaUtente() const;
    void TornaAiSagomiStandard();
    void MostraNote(const std::string& McyRd, const std::string& VplzRd);
    void MostraModifica(bool visibile);
    void Modifica(int azione);
    void RiempieDati();
    void MostraBozza();
    void Conferma(int azione);
    void ScriveRiga(int azione);
    void Rilegge();
    [[nodiscard]] PiattiSaldati PiattiScritti() const;
    [[nodiscard]] bool DatiAccettabili();
    [[nodiscard]] bool InModifica() const;

    RigheDoppioT righe_;
    bool rileggendo_ = false; ///< the row comes back from the file: what has been typed stays
};

} // namespace sagomi
