#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Singolo.h"

namespace sagomi {

class CampiMaschera;
class MascheraTrave;
class Poligono;
class SezioneDoppioT;
class Superficie;

/// What the slab of a composite beam is cast on.
enum : std::int16_t { solettaPiena = 0, nervatureTrasversali = 1, nervatureParallele = 2 };

/// How a composite beam is checked: plastic ("S.L.U.") or elastic ("Metodo n"), sagging or hogging.
enum : std::int16_t { sluPositivo = 0, sluNegativo = 1, metodoNPositivo = 2, metodoNNegativo = 3 };

/// A moment as an entry in kNm that reads back to the same N mm, as short as it can be.
[[nodiscard]] std::string TestoMomento(Singolo Nmm);

/// A steel double-T that works with a concrete slab (EC4): slab, deck, reinforcement, studs, design moment
/// and results.
///
/// Units: mm, N, N mm, N/mm2 unless said. y is measured upwards from the lower fibre of the steel. Materials
/// are the global fck, fsk and CoeffOmogeneizzazione (n = Es/Ec); the steel has the fy of its section and
/// GammaM0.
///
/// A caller sets the data, makes the section the one in use, runs InizializzaTrave and InizializzaAcciaioCls
/// and then the operation of the check; VerificaTrave does it all.
class AcciaioCls {
public:
    // Slab, bars and deck
    Singolo ha;   ///< rib height of the deck
    Singolo hc;   ///< thickness of the slab, the deck included, from its underside or from the top flange;
                  ///< below 0, solid slab only: the slab lies between H + hc and H
    Singolo c;    ///< distance of the bars from the top of the slab
    Singolo beff; ///< effective width
    Singolo As;   ///< area of the bars [mm2]
    Singolo yArmatura;  ///< level of the bars, H + hc - c
    Singolo bb;         ///< width of the bottom of a rib
    Singolo bs;         ///< width of the crest of the deck between two ribs
    Singolo iNervature; ///< spacing of the ribs
    Singolo b0t;        ///< width of the concrete in contact with the beam, parallel ribs

    Singolo Msd; ///< design moment, below 0 when hogging [N mm]

    // Results of the elastic check
    Singolo Jid;     ///< second moment of the transformed section, in steel [mm4]
    Singolo Ss;      ///< first moment of slab and bars that react, in steel, without its sign [mm3]
    Singolo yNeutro; ///< level of the neutral axis, plastic or elastic
    Singolo Riservato1, Riservato2; ///< kept without a rule
    Singolo SigmaCls;               ///< top of the concrete, - compression [N/mm2]
    Singolo SigmaInf;               ///< bottom of the steel, + tension [N/mm2]
    Singolo SigmaSup;               ///< top of the steel, + tension [N/mm2]
    Singolo SigmaArm;               ///< bars, + tension [N/mm2]

    Singolo
        Vl; ///< longitudinal shear force for the studs, of half the beam [N]; elastic: per unit of Msd/Jid
    Singolo MplRd; ///< resistant moment, below 0 when hogging [N mm]

    std::shared_ptr<SezioneDoppioT> Sezione; ///< the steel
    std::int16_t TipoSoletta = solettaPiena;
    std::int16_t TipoVerifica = sluPositivo;
    std::shared_ptr<Poligono> Soletta; ///< slab; of transverse ribs what lies above them
    std::int16_t nVerticiSoletta = 0;
    Singolo yInfSoletta;                    ///< lowest level of the slab
    std::shared_ptr<Poligono> ClsCompresso; ///< parts of slab and steel; empty where there is none
    std::shared_ptr<Poligono> ClsTeso;
    std::shared_ptr<Poligono> AcciaioCompresso;
    std::shared_ptr<Poligono> AcciaioTeso;

    // Studs
    std::int16_t TipoConnettore = 0;  ///< kept in the file, without a rule
    double kRiduzione = 0;            ///< reduction factor for ribs [-], EC4 6.3.3
    double PRd1 = 0;                  ///< resistance of one stud, steel [N], EC4 6.3.2
    double PRd2 = 0;                  ///< the same, concrete [N]
    double PRd = 0;                   ///< design value, 0 where there is none [N]
    Singolo b0;                       ///< mean width of a rib
    Singolo fu;                       ///< ultimate strength of the stud [N/mm2]
    Singolo Luce;                     ///< length that carries the studs of nConnettori [m]
    Singolo dPiolo, hPiolo;           ///< diameter and height
    double AreaPiolo = 0;             ///< [mm2]
    Singolo GammaV;                   ///< partial factor [-]
    Singolo nConnCalc;                ///< studs of half the beam, not rounded
    std::int16_t nConnettori = 0;     ///< studs of the beam, full connection
    Singolo Passo;                    ///< spacing of studs or of pairs, 0 where there is none
    std::int16_t nParziale = 0;       ///< studs of the beam, partial connection
    std::int16_t Nr = 1;              ///< studs in a rib or in a row, 1 or 2
    std::string Unita;                ///< what Passo counts: "connettori" or "coppie conn."
    std::int16_t nNervaturePasso = 0; ///< ribs in a spacing

    bool SenzaPasso = false;    ///< no spacing is wanted: CalcolaPassoConnettori writes nothing
    std::string MessaggioPioli; ///< what the design of the studs has to say; lblHsuD shows it

    // Preparation --------------------------------------------------------------------------------------

    /// Has the section in use take its constants from its outline. Nothing where it is no double-T.
    static void InizializzaTrave();

    /// Checks and mends the data of the deck, takes over the section in use (the one that the beam has stays
    /// where that is no double-T) and builds the slab. Told: "hc < 0
    /// ammesso solo per soletta piena", the only one that stops; b0t below bb, which becomes bb; iNervature
    /// below the greater of bb and bs, which becomes that and 1 more.
    /// @return false when it has stopped, or where there is no double-T with its outline
    bool InizializzaAcciaioCls();

    /// The part of it that mends the data of a deck, each with its message, and takes b0.
    void CorreggeGrecata();

    /// Whether the data of the deck pass as they are.
    [[nodiscard]] bool DatiGrecataAccettabili() const;

    /// Builds Soletta, with its area and centroid, and the levels of bars and slab. Sezione is there.
    void SolettaOggettoCrea();

    /// Half of the outline of a deck with parallel ribs, from the axis of the beam to beff/2, y from 0.
    /// @param xs, ys  receive the points
    void CoordinateGrecata(std::vector<double>& xs, std::vector<double>& ys) const;

    /// One step of it, from (x, y) by (dx, dy); a step that reaches beff/2 is cut there.
    /// @param continua  becomes false with that step
    void CoordinataGrecataSuccessiva(double& x, double& y, double dx, double dy, std::vector<double>& xs,
                                     std::vector<double>& ys, bool& continua) const;

    /// Takes the text of a box into ha, bb, bs, iNervature or b0t, for indices 0 to 4; any other index does
    /// nothing.
    void DatoLamiera(std::string_view testo, int indice);

    // Resistance ---------------------------------------------------------------------------------------

    /// Plastic resistance in sagging: fills MplRd, Vl, yNeutro and the four parts. The bars count in
    /// compression. More force in them than in the whole steel is told, and MplRd and yNeutro alone are
    /// written.
    void MplRdPositivo();

    /// Plastic resistance in hogging, the bars in tension; the moment is negative.
    void MplRdNegativo();

    /// Either of them for hc below 0, as TipoVerifica says.
    void MplRdSolettaSotto();

    /// Level at which the plastic residual is 0; the parts are those of the last trial. A residual that keeps
    /// its sign is told by the solver, and the level is 0.
    double yNeutroPlasticoSezioneComposta();

    /// Level at which the first moment of what reacts elastically is 0, likewise.
    double yNeutroElasticoSezioneComposta();

    /// What the solver drives to zero: EquazionePlastica for hc below 0 and a plastic check, else
    /// EquazioneElastica.
    double yEquazione(double y);

    /// Force on the section with the axis at y, compression positive [N]; cuts the four parts there.
    double EquazionePlastica(double y);

    /// First moment about y of steel, bars and concrete that reacts, in steel [mm3].
    double EquazioneElastica(double y);

    /// Force of the bars with the plastic axis at y [N]: fsd As, of the sign of y less yArmatura, reversed
    /// for a hogging check; across yArmatura it changes along a line H/500 long.
    [[nodiscard]] double ForzaArmatura(double y) const;

    /// Second moment about the level y of steel, bars and ClsCompresso, in steel [mm4].
    [[nodiscard]] double MomInerziaSezioneComposta(double y) const;

    /// Elastic check: yNeutro, the parts, Jid, the four stresses, Ss and Vl. A ratio n that is not above 0 is
    /// told and ends it.
    void SigmaCalcola();

    /// Colour of a stress in the table of 16: 9 above 0, else 12.
    static std::int16_t ColoreSigma(double valore);

    /// Brings every result back to its start: 0 and no part.
    void AzzeraRisultati();

    // Studs --------------------------------------------------------------------------------------------

    /// Resistance of one stud, EC4 6.3: AreaPiolo, kRiduzione, PRd1, PRd2, PRd. A stud that does not fit is
    /// told in MessaggioPioli, which is empty otherwise; PRd is then 0, as without a diameter or, on a deck,
    /// without a height of ribs.
    void CalcolaPrd();

    /// Secant modulus of the concrete that CalcolaPrd took [N/mm2], ENV 1992-1-1 3.1.2.5.2.
    [[nodiscard]] double ModuloCalcestruzzo() const { return Ecm; }

    /// Studs for full connection: nConnCalc = Vl/PRd of half the beam, nConnettori of both halves, each
    /// rounded up; then the spacing, by Nr. More than 16 bits hold are told in MessaggioPioli, and there are
    /// 0.
    void CalcolaNumeroConnettori();

    /// Spacing of n studs along Luce: Passo, Unita and, on a deck, nNervaturePasso. Below 2 studs there is
    /// none.
    /// @param coppie  2: they stand in pairs
    void CalcolaPassoConnettori(int n, int coppie);

    /// Studs for partial connection, from nConnCalc: nParziale of both halves, then the spacing, by Nr. A Msd
    /// that the steel carries alone asks for none.
    /// @return false, with MessaggioPioli "Msd > MplRd", where no number of studs is enough
    bool ProgettaParzialeRipristino();

    // Screen and file ----------------------------------------------------------------------------------

    // Between the beam and the fields of its screen: "L" reads the screen, any other mode writes it.
    void DatiGrecataLeggeScrive(CampiMaschera& maschera, std::string_view modo); ///< TxtLam
    /// txtDati 1 to 5, Txt_fck, Txt_fsk and Txt_M (kNm); n, fck and fsk are the globals.
    void DatiSolettaLeggeScrive(CampiMaschera& maschera, std::string_view modo);
    /// txtTitolo; writing, also the options OptTipoSoletta and OpTipoVerifica, which say themselves when they
    /// change.
    void DatiProgettoLeggeScrive(MascheraTrave& maschera, std::string_view modo);

    /// The seven records of the beam in a data file, from its title to TipoConnettore. Reading takes over,
    /// with the globals n, fck and fsk, only what is whole: until then everything stays as it was; what is
    /// not in the file is then as of a new beam. A failure is told once.
    bool LeggeScrive(std::string_view modo, std::int16_t nFile);

    /// The whole of an "Sco" file: the short record of the section, then LeggeScrive. Reading gives the beam
    /// a new Sezione, with nothing computed, which the caller makes the one in use; all or nothing.
    bool FileLeggeScrive(std::string_view modo, std::int16_t nFile);

    /// Draws section and slab to scale, the compressed and the tensioned parts of steel and concrete each in
    /// their hatching, the neutral axis, and beside them the plastic blocks or the elastic stresses; what has
    /// not been computed is left out. Before InizializzaAcciaioCls nothing is drawn.
    /// @param oggetto      target of "VIDEO" and "STAMPANTE"; null for "DXF", "DWG" and "BLOCCO"
    /// @param maschera     name of the screen that asks
    /// @param dispositivo  device, put in force
    void PlottaAcciaioCls(Superficie* oggetto, std::string_view maschera, std::string_view dispositivo) const;

    [[nodiscard]] const std::string& TitoloFunz() const { return Titolo; }

    [[nodiscard]] double fyd() const;     ///< design strength of the steel [N/mm2]
    [[nodiscard]] static double fcd();    ///< of the concrete, 0.85 fck / 1.5 [N/mm2]
    [[nodiscard]] static double fsd();    ///< of the bars, fsk / 1.15 [N/mm2]
    [[nodiscard]] double Sommita() const; ///< top of the section: H + hc, H when hc is below 0

    /// Neutral axis from the top of the section.
    [[nodiscard]] double yNeutroDaSopra() const { return Sommita() - yNeutro; }

private:
    void DivideParti(); ///< at yNeutro, elastic
    [[nodiscard]] double Riduzione() const;
    bool RecordLeggeScrive(std::string_view modo, std::int16_t nFile, Singolo& n, Singolo& resistenzaCls,
                           Singolo& snervamentoBarre);
    [[nodiscard]] std::shared_ptr<Poligono> ContornoAcciaio() const;
    [[nodiscard]] double TolleranzaNeutro() const;
    void ToglieParti();
    // Branches of the plastic resistance
    struct Forze;
    void MplRdAssurdo(const Forze& f);
    void PositivoAsseInAcciaio(const Forze& f);
    void PositivoAsseInSoletta(const Forze& f);
    void NegativoAsseInAcciaio(const Forze& f);
    void NegativoAsseInSoletta(const Forze& f);
    void CompletaParti() const; ///< area and centroid of each part

    std::string Titolo;
    Singolo Ecm; ///< [N/mm2]
};

} // namespace sagomi
