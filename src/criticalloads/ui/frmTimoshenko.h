#pragma once

#include <QList>

#include <array>
#include <memory>

#include "criticalloads/Timoshenko.h"
#include "frame/ui/Schermo.h"

class QLineEdit;
class QRadioButton;

namespace Ui {
class frmTimoshenko;
}

namespace sagomi {

/// Elastic critical moment of a doubly symmetric beam between lateral restraints, after Timoshenko. It starts
/// from the constants of the current section, which can be overtyped.
class frmTimoshenko : public Schermo, public Timoshenko {
    Q_OBJECT
public:
    frmTimoshenko();
    ~frmTimoshenko() override;

    /// Takes over the constants of the current section and shows the screen in front of the one that opens
    /// it.
    void Apre(Schermo& da);

    /// The length of the current section; the focus goes to it.
    void AllAttivazione() override;

    /// Reads the entries and shows the critical moment.
    void Calcolo();

    /// Which loads and heights a cantilever has: with warping only the load at its end and centroid.
    void OpzioniMensola();

    /// Takes over the constants of the current section where it is another one, and computes anew what it
    /// shows.
    void Aggiorna() override;

private:
    void Carica();
    void LasciaLunghezza();
    void CollegaOpzioni();
    void Disegna();
    [[nodiscard]] bool Mensola() const;
    [[nodiscard]] std::int16_t TipoCarico() const;
    [[nodiscard]] std::int16_t QuotaCarico() const;

    bool lunghezzaDetta_ = false; ///< what is wrong with L has just been told

    std::unique_ptr<Ui::frmTimoshenko> ui_;
    std::array<double, 3> prese_{}; ///< Iz, IT, Iw as the section had them
    QList<QRadioButton*> Option1_;
    QList<QRadioButton*> optTipoCarico_;
    QList<QRadioButton*> optQuotaCarico_;
};

} // namespace sagomi
