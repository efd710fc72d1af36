#pragma once

#include <QCheckBox>
#include <QTimer>

#include <array>
#include <memory>

#include "choice/SceltaInCorso.h"
#include "choice/TabellaScelta.h"
#include "choice/ui/PrendeSagomo.h"
#include "frame/ui/RegoleEntrate.h"
#include "frame/ui/Schermo.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace sagomi {

class Casella;
class FiltroCampi;
class GrigliaCatalogo;
class ModelloScelta;
class PannelloFamiglieScelta;
class PannelloForze;
class SchermoSezione;
class VistaGrafico;

/// Choice of the section: all rows of the catalogue checked for the forces, at every key. It works on
/// sections of its own, piece by piece where they are many, and hands the row that is taken to the main
/// screen of its kind.
class FrmScelta : public Schermo {
    Q_OBJECT
public:
    FrmScelta();
    ~FrmScelta() override;

    /// Opens it in front of a main screen, whose steel, lengths and axial force it takes.
    void Apre(Schermo& da);

    void AllAttivazione() override;
    /// The caller's entries have changed: those that did come along.
    void Aggiorna() override;

    /// What the entries ask for.
    [[nodiscard]] Richiesta RichiestaInForza() const;
    [[nodiscard]] Filtri FiltriInForza() const;

    /// The rows, and how far they are.
    [[nodiscard]] const SceltaInCorso& Scelta() const { return scelta_; }
    [[nodiscard]] ModelloScelta* Modello() const { return modello_; }

    /// Takes the row in hand into the main screen of its kind.
    void Prende();
    /// Shows the selected rows side by side, or the first ones where one alone is selected.
    void Confronta();

    [[nodiscard]] QSize DimensioneContenuto() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void ScalaContenuto(double rapporto) override;

private:
    void Compone();
    void PosaScelte(QBoxLayout& colonna);
    void PosaOpzioni(QBoxLayout& colonna);
    void PosaTabella(QBoxLayout& colonna);
    void PosaComandi(QBoxLayout& colonna);
    void CollegaEntrate();
    void CollegaRegole();
    void CollegaTabella();
    void CollegaComandi();
    QPushButton* Comando(const char* nome, const QString& testo, const QString& aiuto);
    [[nodiscard]] Casella* CasellaDi(const char* nome) const;
    [[nodiscard]] double Numero(const char* nome) const;

    void LeggeCatalogo();
    /// @return whether there was something new
    bool PrendeDalChiamante(bool soloCambiate);
    void SegueSegno();

    void Ricomincia();
    void Avanza();
    void MostraRighe();
    void AvanzaOrdine();
    void MostraParziale();
    void MostraSegnaposti();
    /// All rows are computed for the entries as they are, and sorted.
    [[nodiscard]] bool Fatta() const {
        return possibili_ && scelta_.Finita() && !lettura_ && !inOrdine_.InCorso();
    }
    void MostraRiassunto();
    void AggiornaGrafico();
    void Ordina(int colonna);
    bool FrecciaDiRiga(int tasto);
    [[nodiscard]] std::vector<std::uint32_t> InVista() const;
    [[nodiscard]] std::vector<std::uint32_t> Selezionate() const;
    void Riseleziona(const std::vector<std::uint32_t>& posti);
    void MostraConfronto();
    void AggiornaConfronto();

    void Copia();
    void Stampa();
    void Esporta();

    SceltaInCorso scelta_;
    std::unique_ptr<LetturaGara> lettura_; ///< while the catalogue is being read
    std::string lettoDa_;                  ///< the workbooks that were read, with their states
    std::vector<std::string> mancanti_;    ///< why sheets were not read
    OrdineScelta ordine_;
    OrdineInCorso inOrdine_; ///< the rows that the table will show
    RegoleEntrate regole_;
    FiltroCampi* entrate_ = nullptr;
    SchermoSezione* chiamante_ = nullptr;
    EntrateAcciaio acciaio_;
    std::array<double, 3> normativa_{};      ///< the code and its factors that were taken
    std::vector<std::uint32_t> confrontati_; ///< places of the rows that stand side by side
    std::size_t scelti_ = 0;                 ///< rows that the user wanted side by side
    std::string nomeAcciaio_;
    QList<QString> visti_; ///< the caller's entries that were taken
    bool inRiempimento_ = false;
    bool possibili_ = true; ///< the entries can be computed with
    QTimer passi_;          ///< the pieces behind the table
    QTimer disegno_;        ///< the chart, once the table has been painted

    PannelloForze* forze_ = nullptr;
    PannelloFamiglieScelta* famiglie_ = nullptr;
    QCheckBox *soloVerificati_ = nullptr, *doppi_ = nullptr, *accostati_ = nullptr;
    Casella *dDoppi_ = nullptr, *acciaioMostrato_ = nullptr, *fyMostrata_ = nullptr;
    VistaGrafico* grafico_ = nullptr;
    GrigliaCatalogo* tabella_ = nullptr;
    ModelloScelta* modello_ = nullptr;
    QProgressBar* avanzamento_ = nullptr;
    QLabel *riassunto_ = nullptr, *barra_ = nullptr;
    QPushButton *prendi_ = nullptr, *confronta_ = nullptr, *copia_ = nullptr, *stampa_ = nullptr,
                *esporta_ = nullptr;
};

} // namespace sagomi
