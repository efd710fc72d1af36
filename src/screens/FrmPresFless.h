#pragma once

#include <QList>

#include <array>
#include <cstdint>
#include <memory>

#include "screens/ConDiagramma.h"
#include "screens/SchermoDettaglio.h"
#include "sections/DiagrammaMomenti.h"

class QLineEdit;
class QRadioButton;

namespace Ui {
class FrmPresFless;
}

namespace sagomi {

class PulsanteDiagramma;

/// Member under axial force and bending about both axes, ENV 1993-1-1 5.5.4. The moment diagram is chosen
/// from a picture; its largest moment and its factors go into the section, and the interaction with buckling
/// is shown term by term.
class FrmPresFless : public SchermoDettaglio, public ConDiagramma {
    Q_OBJECT
public:
    FrmPresFless();
    ~FrmPresFless() override;

    std::int16_t TipoDiagramma = 0; ///< 0 end moments alone, 1 with a load in the span
    std::int16_t IndicePict = 1;    ///< shape of the diagram, 1 to 6

    /// Largest moment [N mm], equivalent uniform moment factor and C1 of an axis, 0 y-y, 1 z-z.
    void CompletaForm1(int asse, double& M, double& BetaM, double& C1);

    /// Shows which diagram is chosen and the entries that it has.
    void VisualizzaPict(int indice);
    /// Chooses a diagram, 1 to 6, and computes anew.
    void SelezionaPict(int indice);

    void ImpostaDiagramma(const MomentiMembratura& y, const MomentiMembratura& z, std::int16_t pict) override;

    /// The span moment of an axis [kNm]; a negative one is corrected, also in its box.
    void inputMQ(int asse, double& MQ);
    /// The end moments of an axis [kNm], corrected in the same way.
    void inputM1M2(int asse, double& M1, double& M2);

    /// Reads axial force and lengths; where they differ from the calling screen's, it gets them.
    void Leggedati();

protected:
    /// Reads the entries, derives moments and factors, shows the interaction.
    void Calcola() override;
    void RiempieDati() override;
    void Riporta() override {} // Leggedati does

private:
    void CollegaEventi();
    void CollegaRegole(int asse);
    void CollegaDiagrammi();
    MomentiMembratura Momenti(int asse);
    void PrendeMomento(int asse);
    double FattoreInForza(double C1);
    void MostraAsse(int asse);
    void MostraMomenti();
    void MostraInterazione();

    std::unique_ptr<Ui::FrmPresFless> ui_;
    QList<QLineEdit*> Txt_L0_, TxtM1_, TxtM2_, TxtMQ_;
    QList<QRadioButton*> OptMomento_;
    std::array<double, 2> scritti_{};    ///< moments that the section got last [N mm]
    double C1Proprio_ = 0;               ///< of the diagram, when it was computed last
    QList<PulsanteDiagramma*> Picture1_; ///< shape i at i - 1
};

} // namespace sagomi
