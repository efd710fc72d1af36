#pragma once

#include <memory>

#include "screens/SchermoDettaglio.h"

class QLabel;

namespace Ui {
class FrmVerifiche;
}

namespace sagomi {

struct TerminiInterazione;
struct Verdetto;

/// Resistance of the section to axial force and bending about both axes, EC3 6.2.9: the terms of the
/// interaction and its verdict, laid out by the class in compression with bending.
class FrmVerifiche : public SchermoDettaglio {
    Q_OBJECT
public:
    FrmVerifiche();
    ~FrmVerifiche() override;

protected:
    /// Writes the entries (kN, kNm) into the section, computes its class anew and shows the interaction.
    void Calcola() override;
    /// The actions of the section go into the entries.
    void RiempieDati() override;

private:
    void SceglieQuadro(int classe);
    void MostraPlastica(const TerminiInterazione& t, const Verdetto& verdetto);
    void MostraElastica(const TerminiInterazione& t, const Verdetto& verdetto);
    void MostraEfficace(const TerminiInterazione& t, const Verdetto& verdetto);

    std::unique_ptr<Ui::FrmVerifiche> ui_;
};

} // namespace sagomi
