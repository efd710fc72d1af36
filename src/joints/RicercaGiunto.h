#pragma once

#include "joints/Giunto.h"

namespace sagomi {

class OsservatoreProgetto;

/// The search of a design: nested loops over width of the plate, its extension (two rows), bolt, edge
/// distance and thickness, each with its own way out, that climb the moment resistance without trying
/// everything.
///
/// It works on the joint it is given, a copy with sections and factors of its own; nothing is allocated for a
/// candidate. What a loop does not change is computed outside of it.
class RicercaGiunto {
public:
    /// @param passo      step of the width (two rows) and of the extension [mm]
    /// @param obiettivo  moment that is enough [kNm]
    RicercaGiunto(Giunto& giunto, OsservatoreProgetto& osservatore, double passo, double obiettivo);

    /// Runs the search and puts the best into the joint.
    /// @return false where there is none; the joint then holds what was tried last
    bool Esegue();

    [[nodiscard]] bool Fermata() const { return fermata_; } ///< the user has stopped it

private:
    void Progetto1Fila();
    void Progetto2File();
    void GiroEstensioni();
    [[nodiscard]] double GiroBulloni();
    [[nodiscard]] double GiroBordi(std::int16_t bullone);
    [[nodiscard]] double GiroSpessori();
    [[nodiscard]] bool LasciaBordi(double MTf, double& MEf) const;
    void PreparaBullone(std::int16_t bullone);
    void PreparaBordo(double ef);
    void Candidato(double tf);
    void CompressioneSenzaIrrigidimenti();
    void Migliora();
    [[nodiscard]] bool Prosegue(bool migliora);
    [[nodiscard]] bool Ferma();
    [[nodiscard]] RigaSelezione Riga() const;
    [[nodiscard]] bool Raggiunto() const { return g_.MplRdGIUNTO > obiettivo_; }

    Giunto& g_;
    OsservatoreProgetto& osservatore_;
    double passo_, obiettivo_;
    bool dueFile_, compressioneIrrigidita_;
    double tfMax_;        ///< last thickness
    double instabilita_;  ///< buckling stress of the column web [N/mm2]
    double Bt_ = 0;       ///< tension resistance of the bolt [kN]
    double migliore_ = 0; ///< moment of the best [kNm]
    RecordMigliore record_;
    std::int16_t BulloneIniziale_ = 1;
    double LIniziale_ = 0;
    bool fermata_ = false;
    bool provato_ = false; ///< a candidate in this turn of the outer loops
};

} // namespace sagomi
