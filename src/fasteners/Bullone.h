#pragma once

#include <cstdint>
#include <string>

#include "frame/Singolo.h"
#include "frame/Tabella1.h"

namespace sagomi {

/// A bolt of the table.
struct DimensioneBullone {
    std::int16_t d = 0; ///< nominal diameter [mm]
    Singolo Ares;       ///< resistant area of the thread [mm2]
    double k = 0;       ///< height of the head [mm], ISO 4014
    double e = 0;       ///< head across corners [mm], ISO 4014
    double s = 0;       ///< head across flats [mm], ISO 4014
    double m = 0;       ///< height of the nut [mm], ISO 4032
    double d2 = 0;      ///< outside diameter of the washer [mm], ISO 7089
    double sr = 0;      ///< thickness of the washer [mm], ISO 7089
};

/// The 22 bolts from 8 to 68 mm, by their position from 1.
const Tabella1<DimensioneBullone>& TabellaBulloni();

/// The terms of the check of a bolt under shear and tension.
struct TerminiTaglioTrazione {
    double taglio = 0;   ///< shear over its resistance [-]
    double trazione = 0; ///< tension over 1.4 times its own [-]

    [[nodiscard]] double Somma() const { return taglio + trazione; }
};

/// One bolt in one plate: class and diameter, hole, thickness and distances of the plate, and the design
/// resistances that follow, ENV 1993-1-1 6.5. Forces in N, lengths in mm, strengths in N/mm2, areas in mm2.
///
/// Setting a member, the class or the diameter computes no resistance: CalcolaResistenzaTaglio and
/// RifollamentoCalcola do, with the GammaM2 in force. Results stay until the next of these calls.
class Bullone {
public:
    Singolo fyb;           ///< yield strength of the bolt, from its class
    Singolo fub;           ///< ultimate strength of the bolt, from its class or overwritten
    Singolo fu;            ///< ultimate strength of the plate
    Singolo Ares;          ///< resistant area of the thread
    Singolo Alorda;        ///< gross area of the shank
    Singolo Ataglio;       ///< area that the shear resistance is taken on: Alorda or Ares
    Singolo FvRdFilettata; ///< shear resistance per plane through the thread
    Singolo FvRdGambo;     ///< shear resistance per plane through the shank
    Singolo FvRd;          ///< the one in force of the two
    Singolo FtRd;          ///< tension resistance
    Singolo FbRd;          ///< bearing resistance; 0 where a distance is too small
    Singolo FvSd;          ///< design shear force
    Singolo FtSd;          ///< design tension force
    bool Gambo = false;    ///< the shear plane crosses the shank, not the thread
    Singolo do_;           ///< diameter of the hole
    Singolo t;             ///< thickness of the plate
    Singolo e1;            ///< end distance, in the direction of the load
    Singolo p1;            ///< pitch in the direction of the load
    Singolo e2;            ///< edge distance, across the load
    Singolo p2;            ///< pitch across the load
    Singolo alfa;          ///< bearing coefficient [-]

    /// Shear over its resistance plus tension over 1.4 times its own [-], to be held against 1; ENV 1993-1-1
    /// 6.5.5 (5). Resistances as last computed; one of 0 throws ErroreAritmetico.
    [[nodiscard]] double InterazioneTaglioTrazione() const;

    /// Its terms. Throws as InterazioneTaglioTrazione.
    [[nodiscard]] TerminiTaglioTrazione TerminiInterazione() const;

    /// The class, as 8.8.
    [[nodiscard]] Singolo Classe() const { return Classe_; }
    /// Stores the class and derives fub and fyb from it.
    void Classe(Singolo classe);

    /// Nominal diameter [mm].
    [[nodiscard]] std::int16_t d() const { return d_; }
    /// Takes diameter and areas from the table, and the standard hole.
    /// @param posizione  in the table, 1 to 22; any other throws std::out_of_range
    void d(std::int16_t posizione);

    /// FtRd, FvRdGambo, FvRdFilettata, and the shear resistance and area in force; table 6.5.3. A class that
    /// the table does not hold is told in a message and leaves FvRdFilettata as it was.
    void CalcolaResistenzaTaglio();

    /// Share of fub that the sheared area bears [-], table 6.5.3: 0.6, on the thread of classes 4.8, 5.8, 6.8
    /// and 10.9 0.5.
    [[nodiscard]] double alfaV() const;
    /// Factor of FvRd for the play of the hole, 6.5.5 (8), and of FbRd for e2 and p2, 6.5.5 (10) [-]; 1 where
    /// nothing is reduced.
    [[nodiscard]] double FattoreGioco() const;
    [[nodiscard]] double FattoreBordo() const;
    [[nodiscard]] double FattorePasso() const;

    /// Hole of standard play for the diameter [mm], 7.5.2 (1).
    [[nodiscard]] Singolo DiametroForoStandard() const;

    /// alfa, table 6.5.3. A hole or a plate strength of 0 throws ErroreAritmetico.
    void AlfaCalcola();

    /// alfa, FbRd and the messages on distances below their least, 6.5.1 and 6.5.5 (10). Throws as
    /// AlfaCalcola.
    void RifollamentoCalcola();

    /// What is wrong with the hole (1), e1 (2), p1 (3), e2 (4), p2 (5) since the last RifollamentoCalcola;
    /// empty when nothing is. Any other slot throws std::out_of_range.
    [[nodiscard]] std::string Messaggio(std::int16_t i) const { return messaggi_[i]; }

    /// Advice on hole, distances and what lowers the bearing resistance, with alfa as last computed. Lines
    /// end in CR LF.
    void Osservazioni(std::string& testo) const;

private:
    /// The multiple of the hole's diameter that a distance is held against, in single precision.
    [[nodiscard]] Singolo MultiploForo(double n) const { return n * do_; }
    /// The hole of a bolt below M15 is larger than the standard one.
    [[nodiscard]] bool GrandeGioco() const;
    /// Reductions of the bearing resistance for a narrow edge (e2) and a narrow gauge (p2) [-].
    [[nodiscard]] double RiduzioneBordo() const;
    [[nodiscard]] double RiduzionePasso() const;
    /// Fills the messages; true when every distance is at least its least.
    bool DistanzeControlla();

    void OsservaForo(std::string& testo) const;
    void OsservaAlfa(std::string& testo) const;
    void OsservaBordi(std::string& testo) const;
    void OsservaPassi(std::string& testo) const;
    void OsservaRiduzioni(std::string& testo) const;

    Singolo Classe_;
    std::int16_t d_ = 0;
    Tabella1<std::string> messaggi_{"", "", "", "", ""};
};

} // namespace sagomi
