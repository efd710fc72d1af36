#pragma once

#include <cstdint>
#include <memory>
#include <numbers>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Singolo.h"
#include "sections/Interazione.h"
#include "sections/MostraVplRd.h"

namespace sagomi {

class CampiMaschera;
class SezioneGenerica;
class Superficie;

/// A double-T section: rolled, welded with equal flanges, welded with different flanges. Geometry, material,
/// actions, classes and resistances after Eurocode 3 (ENV 1993-1-1 where the clause is of the 1992 edition).
///
/// Units: mm, N, N/mm2 and their products; the screens convert at the border. Axis y-y is the strong one. The
/// upper flange (b, tf) lies at y = h and is the compressed one in bending about y-y; the lower flange
/// (bAlaInf, tAlaInf) lies at y = 0.
///
/// A caller sets name, dimensions, constants of the table and actions, runs InizializzaSezione and reads the
/// results from the members. Whatever changes fy, NSd, the lengths or the dimensions calls for a new run.
class SezioneDoppioT {
public:
    // Outlines, created at first use. A copy of the section keeps those it was copied with: computing either
    // of the two anew leaves the other's alone.
    std::shared_ptr<SezioneGenerica> SezioneGenericaCorrente; ///< the whole section
    std::shared_ptr<SezioneGenerica> SezioneComp4;            ///< effective in compression, class 4
    std::shared_ptr<SezioneGenerica> SezioneWy4;              ///< effective in bending about y-y, class 4
    std::shared_ptr<SezioneGenerica> SezioneWz4;              ///< effective in bending about z-z, class 4
    std::int16_t SezioneEfficaceDaPlottare = 0;               ///< which effective outline is to be drawn

    // Material and name
    Singolo fy;              ///< yield strength [N/mm2]
    Singolo fu;              ///< ultimate strength [N/mm2]
    std::string Designation; ///< name of the section
    std::string TipoAcciaio; ///< name of the grade

    // Dimensions
    Singolo h;       ///< overall height [mm]
    Singolo b;       ///< width of the upper flange [mm]
    Singolo tw;      ///< web thickness [mm]
    Singolo tf;      ///< thickness of the upper flange [mm]; of a tapered one at a quarter of the width
    Singolo r1;      ///< root radius of a rolled section [mm]
    Singolo r2;      ///< toe radius [mm]; above 0 marks a tapered flange
    Singolo r;       ///< leg of the straight web-to-flange fillet of a welded section [mm]
    Singolo bAlaInf; ///< width of the lower flange [mm]
    Singolo tAlaInf; ///< thickness of the lower flange [mm]

    // Constants
    Singolo Area;    ///< [mm2]
    Singolo iY;      ///< radius of gyration about y-y [mm]
    Singolo iZ;      ///< radius of gyration about z-z [mm]
    Singolo Jz;      ///< second moment about z-z [mm4]
    Singolo JT;      ///< torsion constant [mm4]
    Singolo Jw;      ///< warping constant [mm6]
    Singolo Jy;      ///< second moment about y-y [mm4]
    Singolo xG;      ///< centre of gravity of the outline [mm]
    Singolo yG;      ///< centre of gravity of the outline, above the lower fibre [mm]
    Singolo L0y;     ///< buckling length about y-y [mm]
    Singolo L0z;     ///< buckling length about z-z [mm]
    Singolo Wely;    ///< elastic modulus about y-y, upper fibre [mm3]
    Singolo Welz;    ///< elastic modulus about z-z [mm3]
    Singolo Wply;    ///< plastic modulus about y-y [mm3]
    Singolo Wplz;    ///< plastic modulus about z-z [mm3]
    Singolo WelyInf; ///< elastic modulus about y-y, lower fibre [mm3]

    // Actions
    Singolo NSd;           ///< design axial force, positive in compression [N]
    Singolo Mysd;          ///< design moment about y-y [N mm]
    Singolo Mzsd;          ///< design moment about z-z [N mm]
    Singolo g;             ///< weight [kg/m]
    double Riservato1 = 0; ///< kept in the file; a joint keeps the span of the beam in it
    Singolo Riservato2;    ///< kept in the file; a joint keeps the shear in it

    // The names by which a joint knows them. In a joint NSd and Mysd hold kN and kNm.
    Singolo& Nsd() { return NSd; }             ///< design axial force [kN in a joint]
    double& lunghezza() { return Riservato1; } ///< span of the beam [m]
    Singolo& Vsd() { return Riservato2; }      ///< design shear [kN]
    [[nodiscard]] Singolo Nsd() const { return NSd; }
    [[nodiscard]] double lunghezza() const { return Riservato1; }
    [[nodiscard]] Singolo Vsd() const { return Riservato2; }
    [[nodiscard]] Singolo a() const {
        return r / std::numbers::sqrt2;
    } ///< throat of the fillet of leg r [mm]

    // Classes, 1 to 4; 0 before the first run
    std::int16_t ClasseCompressione = 0;
    std::int16_t ClasseFlessioneY = 0;
    std::int16_t ClasseFlessioneZ = 0;
    std::int16_t ClassePressoFlessione = 0; ///< in compression with bending
    double Ntrascurabile = 0;               ///< axial force below which the class in bending holds [N]

    // Resistances
    double NbyRd = 0;  ///< buckling about y-y [N], ENV 1993-1-1 5.5.1
    double NbzRd = 0;  ///< buckling about z-z [N]
    double McyRd = 0;  ///< moment about y-y of the section in its class [N mm], ENV 1993-1-1 5.4.5
    double MczRd = 0;  ///< moment about z-z of the section in its class [N mm]
    double eNy = 0;    ///< shift of the centroid along the web, class 4 in bending about y-y [mm]
    double eNz = 0;    ///< shift of the centroid across the web, class 4 in bending about z-z [mm]
    double NplRd = 0;  ///< axial force [N]
    double MplyRd = 0; ///< plastic moment about y-y [N mm]
    double MplzRd = 0; ///< plastic moment about z-z [N mm]
    double MelyRd = 0; ///< elastic moment about y-y [N mm]
    double MelzRd = 0; ///< elastic moment about z-z [N mm]
    double VplyRd = 0; ///< shear carried by the web [N], ENV 1993-1-1 5.4.6
    double VplzRd = 0; ///< shear carried by the flanges [N]
    double WyEff = 0;  ///< effective modulus about y-y, class 4 [mm3]
    double WzEff = 0;  ///< effective modulus about z-z, class 4 [mm3]

    // Plates
    double c = 0;                ///< outstand of the upper flange, from the fillet [mm]
    double d = 0;                ///< clear height of the web, between the fillets [mm]
    double cAlaInf = 0;          ///< outstand of the lower flange [mm]
    bool Saldata = false;        ///< welded
    bool SaldataAsimm = false;   ///< the flanges differ
    std::int16_t ClasseWebF = 0; ///< web in bending
    std::int16_t ClasseWebC = 0; ///< web in compression
    std::string Limite0WebF, Limite1WebF, Limite0WebC, Limite1WebC; ///< limits of the class found, in epsilon
    std::int16_t ClasseAlaF = 0, ClasseAlaC = 0;       ///< upper flange in bending about z-z, in compression
    std::int16_t ClasseAlaInfF = 0, ClasseAlaInfC = 0; ///< lower flange, the same
    std::string Limite0AlaF, Limite1AlaF, Limite0AlaC, Limite1AlaC; ///< of the flange classified last

    // Member stability
    Singolo BetaMy;                  ///< equivalent uniform moment factor about y-y [-]
    Singolo BetaMz;                  ///< the same about z-z [-]
    Singolo BetaMLT;                 ///< the same for lateral-torsional buckling [-]
    Singolo Mcr;                     ///< elastic critical moment [N mm]
    Singolo MbRd;                    ///< lateral-torsional buckling resistance [N mm]
    Singolo k;                       ///< end restraint factor, rotation in plan [-]
    Singolo Kw;                      ///< end restraint factor, warping [-]
    Singolo C1, c2, c3;              ///< moment diagram factors, ENV 1993-1-1 annex F [-]
    Singolo za;                      ///< height of the load above mid-height [mm]
    Singolo LLT;                     ///< length between lateral restraints [mm]
    Singolo LamdaLT;                 ///< relative slenderness in lateral-torsional buckling [-]
    Singolo ChiLT;                   ///< reduction factor in lateral-torsional buckling [-]
    bool ErroreDatiDatabase = false; ///< the data of the row do not compute: a slenderness or betaA failed
    std::int16_t Stato1 = 0, Stato2 = 0; ///< kept by the caller
    Singolo Stato3;                      ///< kept by the caller

    /// Makes a welded section of plain dimensions [mm]: stores them, takes the constants from the outline and
    /// runs InizializzaSezione. With bAlaInf or tAlaInf the flanges differ; the one that is missing is as the
    /// upper flange's.
    /// @param schermo  handed on to InizializzaSezione; may be null
    void InizializzaSezioneUtente(MostraVplRd* schermo, double h_, double b_, double tw_, double tf_,
                                  double r_, std::optional<double> bAlaInf_ = {},
                                  std::optional<double> tAlaInf_ = {});

    /// Takes the constants from the outline of the stored dimensions, as the steel of a composite beam needs
    /// them, sets MplyRd and McyRd to the plastic moment, then runs InizializzaSezione without a screen.
    void InizializzaSezioneAcciaioCls();

    /// Computes everything that follows from the stored data. Without a screen it does no screen work at all.
    /// @param schermo  receives the visibility of lblVplRd; may be null
    void InizializzaSezione(MostraVplRd* schermo = nullptr);

    /// Writes Ntrascurabile, the smaller of half the web's plastic resistance and a quarter of the section's
    /// [N], after EC3 6.2.9.1 (4). Reads d and NplRd.
    double NtrascurabileFunz();

    /// Writes Mcr, ENV 1993-1-1 annex F.1.2; leaves it as it was when LLT is not above 0. Returns Mcr [N mm].
    double McrFunz();

    /// Height of the shear centre above the lower fibre [mm]; h/2 when the flanges are equal.
    [[nodiscard]] double zCentroTaglio() const;

    /// Writes LamdaLT, ChiLT and MbRd, ENV 1993-1-1 5.5.2. McrFunz must have run before.
    void MbRdSub();

    /// Warping constant [mm6]: of equal flanges from the outline's second moment, of different ones from Jz.
    Singolo JotaOmega();

    /// Torsion constant [mm4]; rolled sections with the junctions of web and flanges.
    [[nodiscard]] Singolo JotaT() const;

    /// Class in compression (EC3 table 5.2); writes classes and limits of web and flanges.
    std::int16_t ClasseCompressioneFunz();

    /// Class of an outstand in compression; writes Limite0AlaC and Limite1AlaC.
    /// @param s           slenderness over epsilon
    /// @param l1, l2, l3  upper limits of classes 1, 2 and 3
    std::int16_t ClasseAlaCompressione(double s, double l1, double l2, double l3);

    /// Aeff/A in compression: 1 up to class 3, of class 4 from SezioneComp4. A value above 1 is told and
    /// kept. A division that fails sets ErroreDatiDatabase and gives 0.
    double betaA();

    /// The same to be shown or used further: nothing is told, nothing is set.
    [[nodiscard]] double betaA() const;

    /// Writes ClassePressoFlessione: the class in compression once NSd reaches Ntrascurabile, compared in
    /// single precision; the class in bending about y-y below.
    void ClassePressoFlessioneCalcola();

    [[nodiscard]] double SnellWeb() const;    ///< d / tw / epsilon
    [[nodiscard]] double SnellAla() const;    ///< c / tf / epsilon
    [[nodiscard]] double SnellAlaInf() const; ///< cAlaInf / tAlaInf / epsilon; 0 when the flanges are equal

    /// Class in bending about y-y: web in bending, upper flange as classified in compression (so
    /// ClasseCompressioneFunz runs before). The lower flange plays no part.
    std::int16_t ClasseFlessioneYfunz();

    /// Class in bending about z-z: the flanges. The web plays no part.
    std::int16_t ClasseFlessioneZfunz();

    /// Class of an outstand in bending about z-z; writes Limite0AlaF and Limite1AlaF.
    /// @param s       slenderness over epsilon
    /// @param l1, l2  upper limits of classes 1 and 2
    /// @param a, kS   class 3 reaches to a times the root of kS
    /// @param bLim    the limit shown is bLim times the root of kS
    std::int16_t ClasseAlaFlessione(double s, double l1, double l2, double a, double kS, double bLim);

    /// Buckling curve, "a0" to "d", ENV 1993-1-1 table 5.5.3. The grade is the one of the current section; of
    /// this object while there is none.
    /// @param asse  "yy" or "zz"
    [[nodiscard]] std::string CurvaInstabilita(std::string_view asse) const;

    /// Closed outline in mm, counter-clockwise from the bottom right corner (b/2 + x0, y0): 44 vertices with
    /// parallel flanges, 76 with tapered ones, each arc a chord line of 8 equal steps. A welded section is
    /// handed over to CoordinateSaldata.
    /// @param x, y   receive the vertices, vertex 1 at [0]
    /// @param n      receives their number
    /// @param x0     abscissa of the web's axis
    /// @param y0     height of the lower fibre
    /// @param scala  divides the abscissas
    void Coordinate(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, double x0 = 0,
                    double y0 = 0, double scala = 1) const;

    /// The same for a welded section: 16 vertices, straight fillets of leg r, also when r is 0.
    void CoordinateSaldata(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, double x0 = 0,
                           double y0 = 0, double scala = 1) const;

    /// Builds SezioneComp4: class 4 flanges cut at both tips, of a class 4 web the middle strip removed.
    void CoordinateComp4();

    /// Cuts the outstands of one flange to rho c, EC3 table 5.3.3 (ENV). The number of vertices stays.
    /// @param x, y      outline of Coordinate with x0 = y0 = 0
    /// @param kS        buckling factor of the outstand [-]
    /// @param t, cAla   thickness and outstand of the flange [mm]
    /// @param quota     a height inside the flange, tells the upper from the lower one [mm]
    /// @param destra    cut the tip at x > 0
    /// @param sinistra  cut the tip at x < 0
    void AlaEfficace(std::vector<double>& x, std::vector<double>& y, double kS, double t, double cAla,
                     double quota, bool destra, bool sinistra) const;

    /// Builds SezioneWy4: class 4 upper flange cut at both tips; then, from the neutral axis of that outline,
    /// the ineffective strip of a class 4 web removed.
    void CoordinateWy4();

    /// Effective widths of a web under linear stress, EC3 table 5.3.2 (ENV). psi above 1 gives a message and
    /// leaves both at 0.
    /// @param psi   ratio of the end stresses, compression over compression positive [-]
    /// @param bp    height of the web [mm]
    /// @param be1   receives the strip at the compressed edge [mm]
    /// @param be2   receives the strip at the neutral axis, or at the other edge when psi is not below 0 [mm]
    void be1_be2Anima(double psi, double bp, double& be1, double& be2) const;

    /// The same with the stresses that bending about the outline's centroid gives at the web's ends.
    /// @param contorno  outline whose centroid is the neutral axis
    /// @param ySup      height of the compressed end of the web [mm]; the other end lies bp below
    /// @return psi
    double be1_be2Anima(const SezioneGenerica& contorno, double bp, double ySup, double& be1,
                        double& be2) const;

    /// Buckling factor of an internal plate, EC3 table 5.3.2 (ENV). psi out of -2..1 gives a message and 0.
    /// @param psi  ratio of the end stresses [-]; within 1e-9 of -1, 0 and 1 it counts as these
    [[nodiscard]] static double kSigma(double psi);

    /// Builds SezioneWz4: class 4 flanges cut at the right tip.
    void CoordinateWz4();

    /// Draws the section to scale with hatching, axes, dimensions and the lines of its data. Called from
    /// "FrmClasseDoppioTU", the effective outline that SezioneEfficaceDaPlottare names is drawn inside the
    /// thin line of the whole one: 0 compression, 1 bending about y-y, 2 about z-z; the whole section where
    /// that outline has not been built. Before InizializzaSezione nothing is drawn.
    /// @param oggetto      target of "VIDEO" and "STAMPANTE"; null for "DXF", "DWG" and "BLOCCO"
    /// @param maschera     name of the screen that asks
    /// @param dispositivo  device, put in force
    void PlottaSezione(Superficie* oggetto, std::string_view maschera, std::string_view dispositivo) const;

    [[nodiscard]] double tf1() const; ///< thickness of the flange at its sharp tip [mm]
    [[nodiscard]] double tf2() const; ///< thickness of the flange where the root fillet begins [mm]
    [[nodiscard]] double pf() const;  ///< slope of a tapered flange, 0.14, else 0 [-]

    /// Plastic moments reduced by the axial force, EC3 6.2.9.1, and the exponent of the biaxial check.
    void MNRd(double& MNy, double& MNz, double& beta) const;

    /// Axial resistance [N], ENV 1993-1-1 5.4.4, with the effective area of class 4 that the object has.
    [[nodiscard]] double NplRdFunz() const;

    /// The terms of the interaction on the section.
    [[nodiscard]] TerminiInterazione TerminiMNResistenza() const;

    /// Axial force and bending on the section by ClassePressoFlessione, EC3 6.2.9; passes when not above 1.
    [[nodiscard]] double InterazioneMNResistenza() const;

    /// Axial force and bending with flexural buckling, ENV 1993-1-1 5.5.4; passes when not above 1.
    /// @param Py, Pz  receive the terms of the two moments
    double InterazioneMNInstab(double& Py, double& Pz) const;

    /// Its terms. Class 4 is checked here with the elastic moments of the whole section.
    [[nodiscard]] TerminiInterazione TerminiMNInstab() const;

    /// Axial force and bending with lateral-torsional buckling, ENV 1993-1-1 5.5.4; passes when not above 1.
    /// McrFunz and MbRdSub must have run before, in this order. An MbRd of 0 is told.
    [[nodiscard]] double InterazioneFlessoTorsionale() const;

    /// Its terms.
    [[nodiscard]] TerminiInterazione TerminiFlessoTorsionale() const;

    double LamdaY(); ///< L0y / iY; a division that fails sets ErroreDatiDatabase and gives 0
    double LamdaZ(); ///< L0z / iZ; a division that fails sets ErroreDatiDatabase and gives 0
    [[nodiscard]] double LamdaY() const; ///< the same to be shown: 0 where it fails, and nothing is set
    [[nodiscard]] double LamdaZ() const; ///< the same to be shown: 0 where it fails, and nothing is set

    /// Relative slenderness in lateral-torsional buckling from McyRd and Mcr; 0 when LLT is not above 0.
    [[nodiscard]] double LamdaLTfunz() const;

    /// Writes LamdaLT; reduction factor in lateral-torsional buckling, 1 up to a relative slenderness of 0.4.
    double ChiLTfunz();

    // Slenderness 5.5.1.2 and factors of the interactions 5.5.4 of ENV 1993-1-1. What cannot be computed is
    // no number.
    [[nodiscard]] double LamdaSegnatoY() const; ///< relative slenderness about y-y [-]
    [[nodiscard]] double LamdaSegnatoZ() const; ///< relative slenderness about z-z [-]
    [[nodiscard]] double kLT() const;    ///< factor of My in the lateral-torsional interaction, at most 1 [-]
    [[nodiscard]] double muLT() const;   ///< at most 0.9 [-]
    [[nodiscard]] double muY() const;    ///< at most 0.9 [-]
    [[nodiscard]] double muZ() const;    ///< at most 0.9 [-]
    [[nodiscard]] double kY() const;     ///< factor of My in the interaction, at most 1.5 [-]
    [[nodiscard]] double kZ() const;     ///< factor of Mz in the interaction, at most 1.5 [-]
    [[nodiscard]] double kYfunz() const; ///< the same as kY
    [[nodiscard]] double kZfunz() const; ///< the same as kZ

    /// The full record in a data file: 65 fields, one a line, in the direction of the mode. Stops at the
    /// first field that fails, which is told; false then.
    bool FileSagomoInOut(std::string_view modo, std::int16_t nFile);

    /// The short record: name, grade and fy; the nine dimensions; the kind. As FileSagomoInOut.
    bool LeggeScrive(std::string_view modo, std::int16_t nFile);

    /// Moves name, grade, fy and the nine dimensions between the section and the fields of the composite
    /// screen: "L" reads the screen, any other mode writes it.
    void DatiAcciaioClsLeggeScrive(std::string_view modo, CampiMaschera& maschera);
};

} // namespace sagomi
