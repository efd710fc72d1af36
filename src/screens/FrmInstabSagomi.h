#pragma once

#include "screens/SchermoDettaglio.h"

namespace sagomi {

class PannelloColonna;
class PannelloInstabilita;

/// How the buckling resistances of a channel or an angle come about, EC3 6.3.1: a column for each axis.
class FrmInstabSagomi : public SchermoDettaglio {
    Q_OBJECT
public:
    /// @param assi  axes of the columns, blanks between
    FrmInstabSagomi(const QString& nome, const QByteArray& assi);

    /// The column of one axis: 0 y-y, 1 z-z, 2 v-v.
    void CompletaForm1(int asse);

protected:
    void Calcola() override;
    /// Axial force and lengths of the section go into their entries.
    void RiempieDati() override;
    /// The caller's results wait for Enter in its own boxes, not for this screen.
    void Riporta() override;

private:
    void CollegaDati();

    PannelloColonna* azioni_;
    PannelloInstabilita* colonne_;
    int assi_;
};

/// Channels: y-y and z-z.
class FrmInstabSagomiU : public FrmInstabSagomi {
    Q_OBJECT
public:
    FrmInstabSagomiU() : FrmInstabSagomi(QStringLiteral("FrmInstabSagomiU"), "y-y z-z") {}
};

/// Angles: v-v too.
class FrmInstabSagomiL : public FrmInstabSagomi {
    Q_OBJECT
public:
    FrmInstabSagomiL() : FrmInstabSagomi(QStringLiteral("FrmInstabSagomiL"), "y-y z-z v-v") {}
};

} // namespace sagomi
