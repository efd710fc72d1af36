#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/FileDati.h"
#include "frame/Generale.h"
#include "frame/Singolo.h"
#include "joints/GeneraleGiunto.h"
#include "joints/ParametriSelezione.h"
#include "joints/PassoGiunto.h"
#include "joints/RigidezzaGiunto.h"
#include "joints/TrattoT.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

class OsservatoreProgetto;

/// A bolted end-plate connection of a beam to a column after EC3 annex J (ENV 1993-1-1, edition of 1992) with
/// the component method: geometry, bolts, resistances, stiffness, classes.
///
/// Units: mm, N/mm2, kN, kNm, kNm/rad. Of beam and column it reads dimensions and strengths [mm, N/mm2], NSd
/// [kN], Mysd [kNm], Vsd [kN], lunghezza [m], McyRd [N mm]. The partial factors are those in force when an
/// operation is called. A division by 0 throws ErroreAritmetico with the name of the quantity.
///
/// Values that a road of the calculation does not write keep what they had.
class Giunto : public std::enable_shared_from_this<Giunto> {
public:
    bool Acquisito = false;           ///< computed and accepted
    std::string Errore;               ///< carried with the file
    std::string TipiGiunto;           ///< side and kind of node, from Nodo::CaratterizzaGiunti
    bool Criterio1 = true;            ///< the analysis is a design
    bool Criterio2 = false;           ///< the analysis is a check
    bool Beta_Cautel = true;          ///< Beta by the conservative table, not analytically
    std::string Irrigidimenti = "No"; ///< column stiffeners: "No", "Si", "Cp" in compression only
    double NbSd = 0, VbSd = 0;        ///< actions of the beam [kN]
    double MbSd = 0;                  ///< the same [kNm]
    std::shared_ptr<SezioneDoppioT> Trave, Colonna; ///< the node's sections, no copies

    // Geometry
    double ec = 0;       ///< bolt to edge of the column flange, horizontal
    double mc = 0;       ///< bolt to root of the column web, horizontal
    double mxc = 0;      ///< outer row to stiffener, vertical
    double m2c = 0;      ///< inner row to stiffener, vertical
    double ef = 0;       ///< bolt to edge of the plate, horizontal
    double mf = 0;       ///< bolt to weld of the beam web, horizontal
    double w = 0;        ///< pitch of the bolts, horizontal
    double ex = 0;       ///< outer row to upper edge of the plate
    double mx = 0;       ///< outer row to weld of the beam flange; "m2" on the screen
    double dX = 0;       ///< outer row to face of the beam flange; "d2" on the screen
    double d2 = 0;       ///< inner row to face of the beam flange; "d1" on the screen
    double m2 = 0;       ///< inner row to weld of the beam flange; "m1" on the screen
    double p = 0;        ///< pitch between outer and inner row
    double pint = 0;     ///< pitch between inner row and the bolts at the other flange
    double tf = 0;       ///< thickness of the plate
    double tf_max = 0;   ///< its limit in a search
    double bf = 0;       ///< width of the plate
    double L = 0;        ///< height of the plate beyond the beam flange: ex + dX
    double L_max = 0;    ///< its limit in a search
    double u = 0;        ///< lower edge of the plate from the lower flange
    double u_max = 0;    ///< its limit
    double hf = 0;       ///< height of the plate
    double aw = 0;       ///< throat of the weld of the beam web
    double Af = 0;       ///< throat of the weld of the beam flanges
    std::int16_t nf = 1; ///< rows of bolts in tension: 1, or 2 with an extended plate

    // Bolts
    double Diam = 0;    ///< diameter
    double d0 = 0;      ///< hole
    double bul_k = 0;   ///< height of the head
    double bul_e = 0;   ///< head across corners
    double bul_s = 0;   ///< head across flats
    double bul_m = 0;   ///< height of the nut
    double rond_d2 = 0; ///< outside diameter of the washer
    double rond_s = 0;  ///< thickness of the washer
    double lb = 0;      ///< length over which the bolt elongates
    double Areares = 0; ///< area of the thread [mm2]
    std::string Classe = "8.8";
    double fubl = 800; ///< ultimate strength [N/mm2]

    // Stiffeners of the column
    std::int16_t Irr_Spessore = 0; ///< thickness
    std::int16_t Irr_B = 0;        ///< width
    std::int16_t Irr_L1 = 0;       ///< length of the lower one
    std::int16_t Irr_L2 = 0;       ///< length of the upper one
    std::int16_t Irr_a = 0;        ///< throat of their weld

    // Resistances [kN]
    Singolo FtRd_Individuale;       ///< column flange without stiffener, one row alone
    Singolo FtRd_Gruppo;            ///< the same, both rows as a group
    Singolo Ftrd_FilaInf_c;         ///< column flange, inner row
    Singolo Ftrd_FilaInfRid_c;      ///< the same, what the outer row leaves
    Singolo Ftrd_FilaSup_c;         ///< column flange, outer row
    Singolo Ftrd_FilaSupRid_c;      ///< the same, reduced
    Singolo NbRd_Anima_c;           ///< column web, buckling
    Singolo FcRd_Anima_c;           ///< column web, crushing
    Singolo FcRd_AnimaIrrigidita_c; ///< the same with stiffener
    Singolo FtRd_Anima_c;           ///< column web in tension
    Singolo VplRd_Pannello_c;       ///< panel of the column web in shear, over Beta
    Singolo FtRd_FilaSup_f;         ///< plate, outer row
    Singolo FtRd_FilaInf_f;         ///< plate, inner row
    Singolo FtRd_Anima_t;           ///< beam web in tension
    Singolo FtRd_EffSup;            ///< force that the outer row carries
    Singolo FtRd_EffInf;            ///< force that the inner row carries
    Singolo RDebole;                ///< least of what both rows pass through
    std::string ComponenteDeboleFilaSup, ComponenteDeboleFilaInf, ComponenteDebole; ///< what governs
    std::int16_t TipoMessaggio = 0; ///< 1 where the rows had to give way to RDebole or the beam web
    double Vrd0 = 0;                ///< shear resistance of the row in compression
    double Vrd1 = 0;                ///< the same with a row in tension
    double MplRdGIUNTO = 0;         ///< moment resistance [kNm]
    double M_elastico = 0;          ///< two thirds of it [kNm]
    std::string ResistenzaGiunto;   ///< class of strength, EC3 6.9.6.3
    std::string RotturaAlaCol, Rotturaflan_ext, Rotturaflan_int; ///< modes of failure, for the report
    double Kwc = 1;  ///< reduction of the column web by its stress [-]
    double Kfc = 1;  ///< reduction of the column flange by its stress [-]
    double Beta = 0; ///< share of the row forces that the panel carries [-]

    // Stiffness: coefficients of the components (over the web thickness) and their corrections [-]; of the
    // outer row, _Estesa
    double k1 = 0, mu1 = 0;                                ///< panel in shear
    double k2 = 0, mu2 = 0;                                ///< column web in tension
    double k3 = 0, mu3 = 0;                                ///< column web in compression
    double k4 = 0, mu4 = 0, mu4_Estesa = 0;                ///< column flange
    double k5 = 0, mu5 = 0, mu5_Estesa = 0;                ///< bolts
    double k6 = 0, k6_Estesa = 0, mu6 = 0, mu6_Estesa = 0; ///< plate
    double Sj_MjRd_ = 0, Sj_MjRd_Estesa = 0, Sj_MjRd = 0;  ///< secant, at Mj,Rd: rows and joint [kNm/rad]
    double Sj_Mela_ = 0, Sj_Mela_Estesa = 0, Sj_Mela = 0;  ///< the same at the elastic moment
    double Sj_MjSd_ = 0, Sj_MjSd_Estesa = 0, Sj_MjSd = 0;  ///< the same at the acting moment
    double LimiteRigido1 = 0, LimiteRigido2 = 0;           ///< rigid, frame unbraced and braced [kNm/rad]
    double LimiteCerniera = 0;                             ///< pinned [kNm/rad]
    std::string RigidezzaGiunto1, RigidezzaGiunto2;        ///< classes of stiffness, EC3 6.9.6.2

    std::int16_t TipoProgetto = 0;       ///< steps of a search: 0 fast, 1 accurate
    std::int16_t TipoUscitaProgetto = 0; ///< its goal: 0 1.2 Mb,Rd, 1 Mb,Rd, 2 Mj,Sd
    bool Cambia_af = false;              ///< the plate is too thin for the throat of the flanges
    double bfmax = 0, bfmin = 0, mxmin = 0, mcmin = 0, minecef = 0; ///< limits of entries
    double z = 0;                                                   ///< lever arm of the analytical Beta [m]
    double Sjini = 0, Sj_Es = 0, Sj_Secante = 0;                    ///< stiffness, for report and curve

    TracciaGiunto Traccia; ///< the values of the last check, in the order of the calculation

    // ---------------------------------------------------------------------------------------- operations

    /// Alpha of annex J; see AlfaDiagramma.
    static double Falfa(double lambda1, double lambda2);

    /// Sizes the welds of the beam, Af and aw; EC3 6.6.5.2 (2) asks for 3 mm. A throat of the flanges that
    /// cannot have them is told once, until it changes.
    /// @param azzera  other than 0 forgets what was told
    void saldature(std::int16_t azzera);

    /// Limits of the classes of stiffness; a span of 0 leaves them.
    void Limiti();

    void Kwc_Calcola(); ///< Kwc, from the stress in the column
    void Kfc_Calcola(); ///< Kfc, from the stress in the column

    /// Moves the joint between a data file and its members, 124 fields, one a line. Stops at the first that
    /// fails, which is told; false then.
    bool FileInOutGiunto(std::string_view modo, std::int16_t nFile);
    /// What follows from the sections and is not in the file, after reading: roots, z.
    void Letto();

    /// The largest throat that fits on the outer side of the flanges [mm].
    void CordoneAla(double& risultato) const;

    /// Moment that the welds of the flanges carry [kNm], with 2 decimals; empty where the ultimate strength
    /// of the beam is not 360, 430 or 510.
    [[nodiscard]] std::string M_Saldature() const;

    /// Takes the two references.
    void PuntatoreSezioni(std::shared_ptr<SezioneDoppioT> trave, std::shared_ptr<SezioneDoppioT> colonna);

    /// Hole of a bolt [mm]; none for a diameter between those of the table.
    static std::optional<double> DiametroForo(double d);

    /// Whether the column has stiffeners, in compression alone or in tension, too.
    [[nodiscard]] bool ConIrrigidimenti() const { return Irrigidimenti == "Si" || Irrigidimenti == "Cp"; }

    /// Position in the table of bolts, 1 to 22.
    [[nodiscard]] std::int16_t IndiceBullone() const { return indiceBullone_; }
    /// Takes the bolt, nut, washer and hole of a position; any other throws std::out_of_range.
    void IndiceBullone(std::int16_t i);

    /// The whole check: components, row forces, MplRdGIUNTO, class of strength, shear.
    void Mrd_Giunto_Calcola();

    /// Forces that the rows carry by column flange and plate.
    void FtRd_EfficaciFile_Calcola();

    [[nodiscard]] double Bt_Rd() const; ///< tension resistance of a bolt [kN]
    void FtRd_AnimaColonnaIrrigidita_Calcola();
    void FcRd_AnimaColonnaIrrigidita_Calcola();

    /// Stiffness at Mj,Rd, at the elastic and at the acting moment, and its class; after a check.
    void Sj_Giunto_Calcola();
    void CoefficentiRigidezza_Calcola();
    void CoefficientiCorrettivi_Calcola();

    /// Secant stiffness of both row paths and of the joint [kNm/rad].
    /// @param mu  resistance over load [-]; 1 is the joint at Mj,Rd
    void Rigidezza_Calcola(double mu, double& SInt, double& SEst, double& Sj);

    /// Forces of the rows after RDebole and the beam web, and the moment; after RDebole_Calcola.
    void Mrd_Giunto_CompletaCalcolo();

    /// Searches plate and bolts for the greatest moment up to the goal, on a copy of the joint and its
    /// sections, and puts the best into the joint.
    /// @return false where nothing was found, the user stopped before or the search failed, which is told:
    ///         the joint is then as it was, without rows of results and not Acquisito
    bool Mrd_Giunto_Ottimizza_M_MAX(OsservatoreProgetto* osservatore = nullptr);

    /// The improvements of the last search.
    [[nodiscard]] const TabellaSelezione& RisultatiIntermedi_Estrai() const { return parametriSelezione_; }

    /// Forgets them: they belong to other data.
    void AzzeraSelezione() { parametriSelezione_.Svuota(); }

    /// Puts a row of improvements into the joint. A row or a bolt that is not there throws std::out_of_range.
    void DatiSelezione_Completa(const TabellaSelezione& tabella, int riga);

    // ------------------------------------------------------------------------ room for the holes [mm]

    [[nodiscard]] double efmin_Ricerca() const;
    [[nodiscard]] double efMax_Calcola() const;
    [[nodiscard]] double exMin_Calcola() const;
    [[nodiscard]] double d2Min_Calcola() const;
    /// Least extension of the plate; none for a TipoProgetto other than 0 and 1.
    [[nodiscard]] std::optional<double> LMin_Calcola() const;
    /// Largest bolt that the plate has room for; 1 where it has room for every one of the table.
    [[nodiscard]] std::int16_t IndiceBulloneMaxGiunto_Calcola() const;

    // ------------------------------------------------------------------------ steps of the calculation

    void sTraveColonna_Calcola(); ///< root dimensions of beam and column
    void Braccio_Calcola();       ///< z of the beam
    void Derivati_Calcola();      ///< what follows from bolt, tf, bf, ef, d2 and, of two rows, ex, L, u
    void AzzeraFilaEsterna();     ///< 0 to all that belongs to the outer row
    void Beff_Calcola();          ///< effective lengths of the column flange
    void LeffFlangia_Calcola();   ///< effective lengths of the plate
    void RottureAlaColonna_Calcola();
    void RottureFlangia_Calcola();
    void FtRdAnimaColonna_Calcola(std::int16_t file);
    void FcRdAnimaColonna_Calcola();
    void NbRdAnimaColonna_Calcola();
    void VplRdPannello_Calcola(double beta); ///< not above 0: nothing
    void FtRdAnimaTrave_Calcola();
    void RDebole_Calcola();
    void BracciLeva_Calcola();
    void ClasseResistenza_Calcola();
    void ClasseRigidezza_Calcola();
    void Vrd_Calcola();
    [[nodiscard]] static double AreaTaglio_Calcola(const SezioneDoppioT& sezione); ///< [mm2]
    [[nodiscard]] double BeffCompressione_Calcola() const;
    [[nodiscard]] double nColonna_Calcola() const;
    [[nodiscard]] static double nFlangia_Calcola(double e, double m);
    [[nodiscard]] double TensioneColonna() const; ///< of the column by axial force and moment [N/mm2]

    // -------------------------------------------------------------------------------- what they leave

    /// Effective length of the column flange: one row (1), group (2), stiffened outer (3), inner row (4).
    [[nodiscard]] Singolo Beff(int i) const { return beff_.at(static_cast<std::size_t>(i - 1)); }
    [[nodiscard]] Singolo leffEsterna() const { return leffEsterna_; }
    [[nodiscard]] Singolo leffInterna() const { return leffInterna_; }
    [[nodiscard]] Singolo FtotFile() const { return FtotFile_; } ///< sum of the row forces
    [[nodiscard]] Singolo zInt() const { return zInt_; }         ///< lever arm of the inner row
    [[nodiscard]] Singolo zEst() const { return zEst_; }         ///< lever arm of the outer row
    [[nodiscard]] Singolo sTrave() const { return sTrave_; }
    [[nodiscard]] Singolo sColonna() const { return sColonna_; }
    [[nodiscard]] double Eq_Saldatura() const { return Eq_Saldatura_; } ///< throat last warned of

    /// Partial factors that the next operation computes with.
    [[nodiscard]] FattoriParziali Fattori() const;
    /// Coefficients of the holes that the next operation computes with.
    [[nodiscard]] CoefficientiForo Coefficienti() const;

    /// A copy with sections of its own, which keeps to the partial factors that are in force now.
    [[nodiscard]] std::shared_ptr<Giunto> CopiaDiLavoro() const;
    /// Takes everything from a copy but the sections.
    void Riprende(const Giunto& copia);
    /// Takes from a copy what a search leaves that found nothing: no rows of results, not Acquisito.
    void RiprendeEsito(const Giunto& copia);
    /// Root dimension of a section: throat of its fillet or radius [mm].
    [[nodiscard]] static Singolo Radice(const SezioneDoppioT& sezione);

private:
    friend class RicercaGiunto;
    friend class Tracciatore;

    [[nodiscard]] const SezioneDoppioT& t() const; ///< beam
    [[nodiscard]] const SezioneDoppioT& c() const; ///< column
    [[nodiscard]] bool Irrigidito() const { return Irrigidimenti == "Si"; }
    [[nodiscard]] bool SoloCompressione() const { return Irrigidimenti == "Cp"; }
    void Avviso(std::string_view testo) const;

    [[nodiscard]] double LunghezzaIrrigidita(double distanza, const char* nome) const;
    [[nodiscard]] ModiTrattoT ModiAla(double leff, int nb, double Bt) const;
    [[nodiscard]] ModiTrattoT ModiFlangiaInterna(double Bt) const;
    [[nodiscard]] ModiTrattoT ModiFlangiaEsterna(double Bt) const;
    void AlaColonna(double Bt);
    void Flangia(double Bt);
    void AnimaColonnaTesa(std::int16_t file);
    void AggiungeAlaTrave(Singolo& resistenza) const;
    void AnimaCompressa(double instabilita);
    [[nodiscard]] double TensioneInstabilita() const;
    [[nodiscard]] double LarghezzaInstabilita() const;
    [[nodiscard]] double AggiuntaFlangia() const;
    [[nodiscard]] double DistanzaBulloneAnima(double larghezza, double tw, double raccordo) const;
    [[nodiscard]] double RaccordoColonna() const;
    [[nodiscard]] double RaccordoTrave() const;
    void FilaInterna();
    void FileConIrrigidimenti();
    void FileInGruppo();
    void Ridistribuisce1Fila();
    void Ridistribuisce2File();
    void SoloFilaEsterna();
    [[nodiscard]] bool CedeAnimaTrave();
    void Momento();
    [[nodiscard]] double GolaResistente(double raccordo) const;
    void GolaMinima(double massima);
    [[nodiscard]] TerminiRigidezza Termini(double mu) const;
    [[nodiscard]] std::vector<Campo> Campi();
    void TracciaComponenti();
    void TracciaMomento();
    void TracciaRigidezza();
    void DatiSelezione_Imposta(const RecordMigliore& record);
    bool Cerca(double passo, double obiettivo, Giunto& originale);

    std::array<Singolo, 4> beff_{};
    Singolo leffEsterna_, leffInterna_, FtotFile_, zInt_, zEst_;
    TabellaSelezione parametriSelezione_;
    Singolo sTrave_, sColonna_;
    std::size_t passiResistenza_ = 0; ///< steps of Traccia before those of the stiffness
    double Eq_Saldatura_ = 0;
    std::int16_t indiceBullone_ = 0;

    std::optional<FattoriParziali> fattori_;       ///< of a copy; else those in force
    std::optional<CoefficientiForo> coefficienti_; ///< of a copy; else those in force
    OsservatoreProgetto* osservatore_ = nullptr;   ///< hears the notices of a search
};

/// Throats of the welds by the thickness and by the strength of a beam's flange, EC3 6.6.5.
/// @param raccordo  root of the beam [mm]
struct GoleAla {
    double a1 = 0; ///< half of the flange, a whole number of mm
    double a2 = 0; ///< as strong as the flange, a whole number; 0 where the steel is not foreseen

    GoleAla(const SezioneDoppioT& trave, double raccordo, const FattoriParziali& fattori);
};

} // namespace sagomi
