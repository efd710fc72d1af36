#pragma once

#include <QList>

#include <memory>

#include "composite/AcciaioCls.h"
#include "composite/VerificaTrave.h"
#include "composite/ui/TraveInUso.h"
#include "frame/Impostazioni.h"
#include "frame/ui/FileDialogo.h"
#include "frame/ui/RegoleEntrate.h"
#include "frame/ui/Schermo.h"

class QLineEdit;

namespace sagomi {

class DocumentoSchermo;
class FiltroCampi;
class SchermoSezione;

/// The composite beam: a steel section, which becomes the one in use, slab or deck, bars, materials and
/// moment; its check by command, its picture at every key, its files. Any change empties what the check has
/// shown.
///
/// The section is that of the screen that it was opened from, taken over anew when another row is in hand
/// there. Closing drops the beam, after a question where it is not saved; going back to the sections keeps
/// it.
class frmAcciaioCls : public Schermo, public SchermoConFile, public TraveInUso {
    Q_OBJECT
public:
    frmAcciaioCls();

    /// Shows the screen in the place of the one that opens it.
    void Apre(Schermo& da);
    void AllAttivazione() override;

    /// Moves all fields: "L" from the screen into the beam and the globals fck, fsk and n, any other mode
    /// back.
    void DatiLeggeScrive(std::string_view modo);

    /// Reads the screen, checks the beam and shows the results; corrections are written back.
    void Calcola();

    // The file: reading takes over a whole one only, and makes its section the one in use.
    void FileLeggeScrive(std::string_view modo, std::int16_t nFile) override;
    [[nodiscard]] QString PrefissoTitolo() const override {
        return QStringLiteral("AcciaioCls/Flessione - File: ");
    }
    [[nodiscard]] QWidget* Finestra() override { return this; }
    [[nodiscard]] bool FileRiuscito() const override { return fileRiuscito_; }

    [[nodiscard]] AcciaioCls& Trave() override { return trave_; }
    bool AssicuraRisultati() override;
    void TraveModificata() override;

    bool Caricamento = false; ///< the program is writing: change handlers do nothing

protected:
    void closeEvent(QCloseEvent* event) override;
    void ScalaContenuto(double rapporto) override;

private:
    void CollegaMenu();
    void CollegaOpzioni();
    void CollegaCaselle();
    void CollegaComandi();
    void CollegaRegole();
    void RegolaSegno(QLineEdit* casella);
    void RegolaMateriale(const char* nome, const char* simbolo, const char* unita, Limiti limiti);
    [[nodiscard]] QLineEdit* Campo(const char* nome) const; ///< a box by its name

    void Nuova();
    void Ritorna();
    void PrendeSezione();
    void SezioneNuova();
    void MetteInUso();
    void ScriveTrave();
    void VuotaZeri();
    void MostraSezione();
    void MostraMisure();
    void MostraTipi();
    void MostraSegno();
    void MostraNormativa();
    void PassoDiRiga(bool su);
    void PassoDiAcciaio(bool su);
    void PrendeAcciaio();

    void Cambiata();
    void Conclusa(QLineEdit* casella);
    void CorreggeLamiera(const QLineEdit* casella);
    void ScriveCorrette();
    bool Invio(QLineEdit* casella);
    void AlleFinestre();

    void SvuotaUscite();
    void MostraUscite(const EsitoTrave& esito);
    void MostraPlastiche(const EsitoTrave& esito);
    void MostraElastiche();
    void MostraTensione(int indice, double valore);
    void SegnaValida(const char* nome, bool valida);
    void Disegna();

    AcciaioCls trave_;
    RegoleEntrate regole_;
    DocumentoSchermo* documento_ = nullptr;
    FiltroCampi* entrate_ = nullptr;
    SchermoSezione* chiamante_ = nullptr;         ///< main screen that it was opened from
    std::shared_ptr<const SezioneDoppioT> presa_; ///< as it was taken from there
    bool calcolata_ = false;                      ///< the outputs are those of the data
    bool fileRiuscito_ = true;
    double GammaM0Visto_ = 0;
    QString nota_; ///< why the last check gave nothing
};

} // namespace sagomi
