#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "frame/Singolo.h"
#include "frame/Tabella1.h"
#include "joints/AlPrimoUso.h"
#include "joints/Giunto.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

class FoglioNodo;
class OsservatoreProgetto;
class Superficie;
struct MascheraGiunti;

/// Kinds of node.
enum : std::int16_t { nodoCroce = 0, nodoCroceSenzaColonna = 1, nodoT = 2, nodoL = 3 };

/// Actions of one case: of the beams and of the column below [kNm, kN], shear of the column above [kN].
struct CasoAzioni {
    double MDx = 0, VDx = 0, NDx = 0;
    double MSx = 0, VSx = 0, NSx = 0;
    double MCol = 0, VCol = 0, NCol = 0;
    double VSup = 0;
};

/// A beam-to-column node of a structure: one column, one or two beams, a joint for each beam. Inside a node
/// the sections hold NSd and Vsd in kN and Mysd in kNm.
class Nodo {
public:
    std::int16_t Tipovie = nodoCroce;   ///< two beams with (0) or without (1) column above, one beam (2, 3)
    std::int16_t NumeroGiunti = 2;      ///< beams at the node, 1 or 2
    std::int16_t nGiunto = 1;           ///< current joint: 1 right, 2 left
    AlPrimoUso<SezioneDoppioT> TraveSx; ///< left beam
    AlPrimoUso<SezioneDoppioT> TraveDx; ///< right beam
    std::shared_ptr<SezioneDoppioT> Colonnainf;  ///< column below the node
    std::shared_ptr<Giunto> ConnessioneCorrente; ///< joint being worked on
    Singolo VColSup;                             ///< shear of the column above [kN]
    Tabella1<AlPrimoUso<Giunto>> Giunti{{}, {}}; ///< of TraveDx (1) and TraveSx (2)

    void Cambia();             ///< with two beams, makes the joint of nGiunto the current one
    void CaratterizzaGiunti(); ///< TipiGiunto of the joints, from Tipovie
    void LiberaOggetti();      ///< drops the current joint and what the joints refer to
    void CancellaMemoria();    ///< both joints and the three sections are no more

    void No_Acquisito();                     ///< no joint is accepted any more
    void NOT_Acquisito(std::int16_t indice); ///< the same of one joint
    /// True when every joint present is accepted.
    void AcquisizioneGiunti(bool& Risultato) const;

    /// True when the axial force of a beam exceeds a tenth of its resistance, ENV 1993-1-1 J.3.1.1 (6).
    void ControllaNTravi(bool& Risultato);

    /// Takes a section for a role and wires it; an object that has another role is copied first.
    void PuntatoreColonna(std::shared_ptr<SezioneDoppioT> colonna);
    void PuntatoreTraveDestra(std::shared_ptr<SezioneDoppioT> trave);
    void PuntatoreTraveSinistra(std::shared_ptr<SezioneDoppioT> trave);
    void PuntatoreColonna();       ///< gives the column to both joints
    void PuntatoreTraveDestra();   ///< gives right beam and column to joint 1
    void PuntatoreTraveSinistra(); ///< gives left beam and column to joint 2
    /// One object for each role, and the joints refer to these.
    void CollegaSezioni();
    /// Beam and column of the current joint.
    void PuntatoreSezioneCorrente(std::shared_ptr<SezioneDoppioT>& trave,
                                  std::shared_ptr<SezioneDoppioT>& colonna) const;

    /// Writes the actions into beams and column, those of a beam also into its joint.
    void Scrivi_Some_Load(const CasoAzioni& caso);
    void ImpostaNodo();                                   ///< defaults of the node and of both joints
    void AzzeraParametriConnessioni();                    ///< bolt 1 and no plate in each joint present
    void AzzeraParametriConnessione(std::int16_t indice); ///< the same in one joint
    void PreparaSalvataggio();                            ///< the current joint is the one of the node again

    /// Takes the text of a box into a number. A text that is no number, whole, becomes the number again.
    /// @return whether the number has changed
    static bool Controll_Dati(std::string& casella, double& valore);
    /// The same for a length, which is not below 0: that is told.
    static bool ControllaLunghezza(std::string& casella, double& valore);

    /// Moves the node between a data file and its members: kind, column, joints, beams, current joint, number
    /// of beams, shear above. Before reading, joints and sections are made anew. Stops at the first field
    /// that fails, which is told; false then, and what was read stays.
    bool Input_Output(std::string_view modo, std::int16_t nFile);
    /// Reads the node; the right joint is then the current one.
    bool AperturaFile(std::int16_t nFile);
    /// Asks whether to go on where two joints have different numbers of rows; true where nothing is to be
    /// asked.
    bool Controllafile();
    /// Asks whether to go on with a choice of stiffeners for the current joint that the other one, already
    /// accepted, does not have: both share the web of the column. True where nothing is to be asked.
    bool ControllaGiunti(std::string_view tipo);

    /// Beta of the current joint: by the signs of the moments, or from the shear of the panel.
    void Beta_Calcola();

    /// Stiffeners of the column at the current joint; without stiffeners nothing. What cannot be a 16-bit
    /// whole number throws ErroreAritmetico.
    void CalcolaIrrigidimenti();

    /// Checks or designs the current joint, in the one order that holds: sections, welds, stiffeners,
    /// geometry, Beta, the search of a design, resistance and stiffness. It runs on a copy of node, sections
    /// and factors; the joint gets the results at the end and is then Acquisito.
    /// @return false where a design found nothing or did not start: the joint is as it was
    bool EsegueCalcolo(OsservatoreProgetto* osservatore = nullptr);

    /// Puts a row of the last search's improvements, counted from 1, into the current joint and computes its
    /// resistance and stiffness, as they were when the search found it. A row that is not there throws
    /// std::out_of_range.
    void EsegueSelezione(int riga);

    // ---- drawing

    std::string Uscita = "VIDEO"; ///< device of the drawings: "VIDEO", "STAMPANTE", "DXF", "DWG", "SVG"

    /// Draws the current joint to scale: side view, front view of the plate, column of data.
    /// @param oggetto  target of "VIDEO" and "STAMPANTE"; null for files and CAD
    /// @param form     tells by Optvie whether the node has two beams
    void PlottaInOggetto(Superficie* oggetto, const MascheraGiunti& form);
    /// Puts `Uscita` and the target in force, with the font of printed sheets, and prepares the sheet. On the
    /// screen and on paper both directions have one scale; for files and CAD a unit is a millimetre.
    void PltInizializza(Superficie* oggetto, const MascheraGiunti& form);
    void PltInizializza(); ///< on the target in force, with as many beams as Tipovie says
    /// The side view: column, beams, plate, bolts, welds, stiffeners; beam at the right for "TDx", "LDx",
    /// "CroceDx", "Croce_Dx". Draws nothing before PltInizializza.
    void PlottaGiuntoFlangiato();
    /// The plate from the front, the beam behind it and the flange of the column. As above.
    void PlottaProspettoGiunto();
    /// The column of data, once a sheet; both views call for it.
    void ScriviDati();

private:
    [[nodiscard]] bool DueTravi() const { return NumeroGiunti == 2; }
    [[nodiscard]] std::shared_ptr<SezioneDoppioT>
    Propria(std::shared_ptr<SezioneDoppioT> sezione, const std::shared_ptr<SezioneDoppioT>& altra1,
            const std::shared_ptr<SezioneDoppioT>& altra2) const;
    void CopiaOggetti();
    [[nodiscard]] bool Valido();
    bool GiuntiInOut(std::string_view modo, std::int16_t nFile);
    bool SullaCopia(const std::function<bool(Nodo& copia)>& calcola);
    [[nodiscard]] bool Calcola(OsservatoreProgetto* osservatore);
    void Seleziona(int riga);
    void Risultati();
    static void PreparaProgetto(Giunto& g);
    [[nodiscard]] double BetaCautelativo();
    [[nodiscard]] double BetaAnalitico();
    [[nodiscard]] double BetaDueTravi(double Vm);
    [[nodiscard]] double LunghezzaInclinata();

    std::shared_ptr<FoglioNodo> foglio_; ///< that is being drawn
};

} // namespace sagomi
