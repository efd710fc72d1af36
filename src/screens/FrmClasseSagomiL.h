#pragma once

#include "screens/SchermoDettaglio.h"

class QGroupBox;
class QLabel;
class QPushButton;

namespace sagomi {

/// How an angle was classified in compression, EC3 table 5.2: the governing width, its slenderness, the
/// limits of the class found. Of a class 4 section what the legs lose stands there, and the effective outline
/// can be looked at.
class FrmClasseSagomiL : public SchermoDettaglio {
    Q_OBJECT
public:
    FrmClasseSagomiL();

protected:
    void Calcola() override;

private:
    [[nodiscard]] QLabel* Valore(const char* nome) const;
    void MostraEfficaci(const SezioneSagomoL& s);

    QPushButton* pltAeff_;          ///< shown in class 4
    QGroupBox* efficace_ = nullptr; ///< the same
};

} // namespace sagomi
