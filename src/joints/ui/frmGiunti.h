#pragma once

#include <QHash>
#include <QLineEdit>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "frame/ui/FileDialogo.h"
#include "frame/ui/Schermo.h"
#include "joints/ComponentiGiunto.h"
#include "joints/Nodo.h"
#include "joints/SagomiNodo.h"
#include "joints/ui/ServiziGiunto.h"

class QLabel;
class QRadioButton;

namespace Ui {
class frmGiunti;
}

namespace sagomi {

class DocumentoSchermo;
class FiltroCampi;
class VistaGiunto;
class ImmagineDisegno;
struct CampoGiunto;

/// The joints of a node, one at a time: sections and actions, design or check, parameters, geometry,
/// resistance and stiffness, with the drawing beside them. The node stays while the screen is hidden.
///
/// What a box holds goes into the node when it is left, by Enter, or when the program writes it; then the
/// limits speak. Every change empties the results that hang on it.
class frmGiunti : public Schermo, public SchermoConFile, public ServiziGiunto {
    Q_OBJECT
public:
    frmGiunti();
    ~frmGiunti() override;

    Nodo NodoCorrente;               ///< the node in hand
    bool InterrompiProgetto = false; ///< the running search is to stop
    bool CaricaForm = false;         ///< the screen fills itself: its handlers do nothing
    std::string Suggerimento;        ///< how the limit asked for last grows; empty where nothing helps

    /// Shows the screen in the place of the one that opens it, where closing goes back to.
    void Apre(Schermo& chiamante);
    /// Takes the section that was asked for, and what has changed outside.
    void AllAttivazione() override;
    [[nodiscard]] QString FileGuida() const override { return QStringLiteral("GiuntoFlangiato.hlp"); }

    // Results
    void ScriviDatiInForm();      ///< all boxes, from the node
    void AzzeraRisultati();       ///< the current joint has no results; neither have the boxes
    void AzzeraParametri();       ///< of the joints under design
    void EvidenziaRisultatoMio(); ///< verdict and what governs
    void ComponenteDebole_Grassetta();
    void ComponenteDebole_GrassettaInt(); ///< that of the inner row alone

    // Options
    void CriterioScelto(); ///< options and boxes follow the current joint
    void EseguiCriterio(); ///< design or check, as the option says
    void cmdCalcola();     ///< designs or checks the current joint
    void Azzera();         ///< parameters and results of the current joint

    // Limits of the entries: told, and replaced in joint and box.
    /// The largest bolt that fits, by its place in the table; Suggerimento tells how to make it larger.
    void IndiceBulloneMax_Calcola(std::int16_t& Risultato);
    void bf_controlla();
    void ef_controlla();
    void dx_Controlla();
    void d2_Controlla();
    void ex_controlla();
    void u_controlla();
    void L_Controlla();
    void u_max_controlla();
    void L_max_controlla();

    // Files, report, drawings
    void FileLeggeScrive(std::string_view modo, std::int16_t nFile) override;
    [[nodiscard]] bool FileRiuscito() const override { return fileRiuscito_; }
    [[nodiscard]] QString PrefissoTitolo() const override;
    [[nodiscard]] QWidget* Finestra() override { return this; }
    /// One line of the report: "STAMPANTE" keeps it for the printer, else it goes into the open file.
    bool SubStampa(std::string_view Uscita, std::int16_t nFile, std::string_view testo);
    /// The report: "STAMPANTE" prints it, "FILE" writes it into an open file.
    void StampaFile(std::string_view Uscita, std::int16_t nFile);
    /// Opens the formula of a quantity by its name.
    void FormulaGiunto_Leggi(const std::string& id);
    [[nodiscard]] const Nodo& NodoInMano() const override { return NodoCorrente; }
    [[nodiscard]] const TabellaSelezione& Selezioni() const override;
    [[nodiscard]] bool InRicerca() const override { return inRicerca_; }
    void PlottaSelezione(int riga) override;
    void InserisceSelezione(int riga) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    friend class OsservatoreSchermo;

    [[nodiscard]] std::string IdFormula(const QString& casella) const;
    // The form
    void PreparaForma();
    void CollegaEntrate();
    void CollegaOpzioni();
    void CollegaComandi();
    void CollegaFile();
    void PreparaDocumento();
    [[nodiscard]] Giunto& Corrente() const { return *NodoCorrente.ConnessioneCorrente; }
    [[nodiscard]] QLineEdit* Casella(const char* nome) const;
    [[nodiscard]] QLabel* Etichetta(const char* nome) const;
    [[nodiscard]] QRadioButton* Opzione(const char* nome, int i) const;
    void Sceglie(const char* nome, int i) const;

    // Entries
    void Conclusa(QLineEdit* casella, const QString& testo);
    void Digitata(QLineEdit* casella);
    void Accetta(const CampoGiunto& campo, QLineEdit* casella, const QString& testo);
    void Controlla(const CampoGiunto& campo);
    void ScriveEntrate();
    void ScriveSagomi();
    void Limite(const std::function<void(Giunto&)>& controllo);
    void BulloneScelto(int indice);
    void DescrizioneCambiata();
    void NodoScelto(std::int16_t tipo);
    void GiuntoScelto(int indice);
    void OpzioneScelta(const std::function<void(Giunto&)>& scrive);
    void IrrigidimentoScelto(int i);
    void AbilitaControlli();
    void MostraObiettivo();
    void MostraNotaTf();
    void DatiCambiati();
    void GiuntoCambiato(bool parametri);
    void MostraCampi();
    void SchedaScelta(int indice);

    // Picking of sections
    void SceglieSagomo(RuoloSagomo ruolo);
    void PrendeSagomo();
    void AbbandonaScelta();
    void RinnovaSeCambiato();
    void NuovoNodo();
    void NuovoDocumento();

    // Calculation
    [[nodiscard]] bool Calcola();
    [[nodiscard]] bool Progetta();
    void MostraRisultati();
    void MostraCandidato(const Giunto& giunto);
    void MostraUtilizzi();
    void AggiornaVisibili();
    void MostraConsiglio(int argomento);
    void MostraStato();
    void DalFile(bool letti);
    void DimenticaSelezioni();
    void Grassetta(std::string_view risultato);
    void ToglieGrassetto();
    void MostraDisegno(const Giunto* giunto = nullptr);
    void MostraDisegno(const Giunto* giunto, const EvidenzaGiunto& segni);
    void Plotta();
    void VaAlComponente(ComponenteGiunto componente);
    void FuocoPassato(const QWidget* controllo);
    void PremeDomanda();
    void ApreFormula();

    // Files
    bool Legge(std::int16_t nFile);
    void SceltaFileMenu(int indice);
    void StampaSuFile();

    std::unique_ptr<Ui::frmGiunti> ui_;
    FiltroCampi* entrate_ = nullptr;
    VistaGiunto* vista_ = nullptr;
    ImmagineDisegno* diagramma_ = nullptr;
    DocumentoSchermo* documento_ = nullptr;
    QHash<QLineEdit*, QString> digitati_;         ///< what is being typed, as it was typed
    RuoloSagomo inAttesa_ = RuoloSagomo::Nessuno; ///< section that is being picked
    std::string firma_;                           ///< of factors and strengths that the sections have
    std::vector<std::string> righeStampa_;
    bool fileRiuscito_ = true;
    std::array<bool, 2> dalFile_{}; ///< the results of the right and the left joint were read, not computed
    bool inRicerca_ = false;
    const TabellaSelezione* trovate_ = nullptr; ///< of the running search
};

} // namespace sagomi
