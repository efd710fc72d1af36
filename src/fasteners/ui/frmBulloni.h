#pragma once

#include <QList>

#include <memory>
#include <optional>

#include "fasteners/Bullone.h"
#include "frame/ui/RegoleEntrate.h"
#include "frame/ui/Schermo.h"

class QLineEdit;

namespace Ui {
class frmBulloni;
}

namespace sagomi {

/// One bolt in one plate: class, diameter, hole and distances, and its resistances as they are typed. Closing
/// drops the bolt; the next opening begins with a new one, of the class last chosen.
class frmBulloni : public Schermo {
    Q_OBJECT
public:
    frmBulloni();
    ~frmBulloni() override;

    /// Shows the screen in the place of the one that opens it, where closing goes back to.
    void Apre(Schermo& chiamante);

    void AllAttivazione() override;

    bool Caricamento = false; ///< the screen is loading: change handlers do nothing

protected:
    void closeEvent(QCloseEvent* event) override;
    /// Esc closes the advice first.
    void keyPressEvent(QKeyEvent* event) override;
    void ScalaContenuto(double rapporto) override;

private:
    void CollegaScelte();
    void CollegaCaselle();
    void CollegaRegole();
    void Conclusa(QLineEdit* casella);
    void RegolaSegno(QLineEdit* casella, const char* motivo, const QList<QWidget*>& risultati);
    void RegolaAttesa(QLineEdit* casella, const QList<QWidget*>& risultati);
    [[nodiscard]] QString MotivoForza(int i) const;
    bool Invio(QLineEdit* casella);

    void Carica();
    void SceglieClasse();
    void SceglieDiametro();
    void SceglieSezione();
    void ScriveFub();
    void ScriveRif(int i);

    void ClasseCambiata();
    void DiametroCambiato();
    void Aggiorna() override;
    void LeggePiastra();
    void RifollamentoAggiorna();
    void Messaggi();
    void Interazione();
    void MostraSomma();
    void MostraTaglioTrazione();
    void Disegna();

    void PreparaForma();
    void ApreChiudeOsservazioni();
    void ChiudeOsservazioni();
    void FaPosto();
    void MostraOsservazioni();

    std::unique_ptr<Ui::frmBulloni> ui_;
    QList<QLineEdit*> Txt_Rif_;
    QList<QLineEdit*> Txt_FSd_;
    QList<QWidget*> verdetto_; ///< what the check says
    RegoleEntrate regole_;
    std::optional<Bullone> bullone_;
    int altezzaPrima_ = 0;         ///< of the window, before it made room for the advice
    bool conSuggerimento_ = false; ///< the advice in view also tells how to close it
};

} // namespace sagomi
