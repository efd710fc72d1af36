#pragma once

#include <memory>

#include "frame/ui/Schermo.h"

namespace Ui {
class FrmRisultatiIntermedi;
}

namespace sagomi {

class ModelloSelezione;
class ServiziGiunto;

/// The improvements of the last search, of which one can be drawn or put into the joint. Left open, it grows
/// while a search runs.
class FrmRisultatiIntermedi : public Schermo {
    Q_OBJECT
public:
    FrmRisultatiIntermedi();
    ~FrmRisultatiIntermedi() override;

    void AllAttivazione() override;
    /// Lists what the opener has now; the selection stays, or follows the last row while a search runs.
    void Aggiorna() override;
    [[nodiscard]] QString FileGuida() const override { return QStringLiteral("GiuntoFlangiato.hlp"); }

private:
    [[nodiscard]] ServiziGiunto* Servizi() const;
    [[nodiscard]] int Riga() const;
    void Seleziona(int riga);
    void RigaScelta();
    void Inserisce();

    std::unique_ptr<Ui::FrmRisultatiIntermedi> ui_;
    ModelloSelezione* modello_;
};

} // namespace sagomi
