#pragma once

#include <string>

namespace sagomi {

class Nodo;
class Schermo;
class TabellaSelezione;

/// What the screens that the joint screen opens ask of it; they find it by a dynamic_cast of their opener.
class ServiziGiunto {
public:
    virtual ~ServiziGiunto() = default;

    /// The node in hand; its current joint is the one that is shown.
    [[nodiscard]] virtual const Nodo& NodoInMano() const = 0;
    /// Opens the drawing of a row of the last search's improvements, counted from 1, on a copy of the joint.
    virtual void PlottaSelezione(int riga) = 0;
    /// Puts such a row into the joint, and computes resistance and stiffness with it.
    virtual void InserisceSelezione(int riga) = 0;

    /// The improvements to be listed: those of the last search, or of the running one as far as it is.
    [[nodiscard]] virtual const TabellaSelezione& Selezioni() const;
    /// A search runs: nothing but its stop is to react.
    [[nodiscard]] virtual bool InRicerca() const { return false; }
};

/// What the joint screen asks of "FrmInfoGiunti".
class SchermoInfoGiunti {
public:
    virtual ~SchermoInfoGiunti() = default;

    /// Opens in front of a screen with the formula of a quantity, by its name in the joint ("k1").
    virtual void MostraFormula(Schermo& da, const std::string& id) = 0;
    /// The same with the notes on the stiffeners of the column.
    virtual void MostraIrrigidimenti(Schermo& da) = 0;
};

} // namespace sagomi
