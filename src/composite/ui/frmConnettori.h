#pragma once

#include <QList>
#include <QSet>

#include "composite/ProgettoConnettori.h"
#include "composite/ui/TraveInUso.h"
#include "frame/ui/RegoleEntrate.h"
#include "frame/ui/Schermo.h"

class QLabel;
class QLineEdit;

namespace sagomi {

class FiltroCampi;
struct Relazione;

/// Number and spacing of the studs of the beam in hand, by command, with its picture at every key. What is
/// entered belongs to the beam and goes into its file.
class frmConnettori : public Schermo, public ConsiglioPioli {
    Q_OBJECT
public:
    frmConnettori();

    /// Opens the screen in front of the one that asks for it, for its beam, or for the beam of the program.
    void Apre(Schermo& da);
    void AllAttivazione() override {
        if (!progettata_)
            Aggiorna();
    }
    /// The beam has changed.
    void Aggiorna() override;

    /// Whether height, strength, factor and length are positive; the moment may have either sign.
    [[nodiscard]] bool ValidaDati() const;
    /// The entries go to the beam.
    void Leggedati();
    /// Studs in pairs for partial connection, as the mechanics count them.
    [[nodiscard]] int ParzRipCoppie(int n, double MplRd, double Msd, double MaplRd) const;
    /// Shows the advice on pairs in the first n ribs.
    void SuggerimentoPerNervatura(int n);
    /// The design command.
    void Progetta();

    [[nodiscard]] int NervatureDoppie() const override { return nervatureDoppie_; }

    bool Caricamento = false; ///< the program is writing: change handlers do nothing

private:
    [[nodiscard]] QLineEdit* Campo(const char* nome) const;
    [[nodiscard]] QLabel* Scritta(const char* nome) const;
    [[nodiscard]] AcciaioCls& Trave() const { return trave_->Trave(); }
    [[nodiscard]] bool Parziale() const;
    void CollegaEntrate();
    void RegolaPositivo(QLineEdit* casella);
    void Cambiata();
    void Riempie();
    void RiempieMomento();
    void RiempieDiametro();
    void MostraTipo();
    void MostraMomento();
    void Mostra(const EsitoConnettori& esito);
    [[nodiscard]] Relazione DaRiportare();
    void MostraResistenze();
    void SvuotaUscite();
    void Disegna();

    TraveInUso* trave_ = nullptr;
    QList<QLineEdit*> txtInput_;
    FiltroCampi* entrate_ = nullptr;
    RegoleEntrate regole_;
    int nervatureDoppie_ = 0;
    QSet<QLineEdit*> svuotate_; ///< by the user, since the screen was opened
    bool progettata_ = false;   ///< the outputs are those of the entries
};

} // namespace sagomi
