#pragma once

#include <memory>

#include "drawing/Disegno.h"
#include "frame/ui/Schermo.h"

namespace Ui {
class FrmPltSezione;
}

namespace sagomi {

/// The preview of a drawing, from where it goes to the printer, to a DXF file or to the CAD program. Created
/// once, with the first screen; every showing hands it the name of the caller and where its drawing comes
/// from.
class FrmPltSezione : public Schermo {
    Q_OBJECT
public:
    FrmPltSezione();
    ~FrmPltSezione() override;

    /// Shows the preview in front of the screen that asks for it.
    /// @param nomeChiamante  handed on to the drawing, which may depend on it
    /// @param sorgente       gives the drawing of the moment
    static void Mostra(Schermo& da, const QString& nomeChiamante, SorgenteDisegno sorgente);

    /// Draws anew what the source gives now.
    void AllAttivazione() override;
    void Aggiorna() override { AllAttivazione(); }

    [[nodiscard]] QString NomeChiamante() const { return nomeChiamante_; }

private:
    /// Makes the controls, at the first showing: the start of the program does not wait for them.
    void Compone();
    void Ridisegna();
    void SceltaMenu(int indice);
    void AnteprimaDiStampa();

    std::unique_ptr<Ui::FrmPltSezione> ui_;
    QString nomeChiamante_;
    SorgenteDisegno sorgente_;
    Disegno disegno_;
};

} // namespace sagomi
