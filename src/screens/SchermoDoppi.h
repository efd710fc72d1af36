#pragma once

#include <QScopedValueRollback>
#include <QStatusBar>

#include <utility>

#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/ui/Casella.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/Protetto.h"
#include "screens/SchermoDi.h"
#include "sections/SezioneDoppia.h"

namespace sagomi {

/// Which display fields a pair fills, by their position in the row; -1 where the table does not have it.
struct PosizioniDoppio {
    int g = 1, h = 2, b = 3;
    int A, Iy, Wy, iy, Iz, Wz, iz;
    int Wply = -1, Wplz = -1;
};

/// A main screen whose sections can be put together in pairs of two equal ones. Lengths and the axial force
/// that are typed wait for Enter: meanwhile the results that hang on them are tinted.
template <Sagomo S> class SchermoDoppi : public SchermoDi<S> {
public:
    using SchermoDi<S>::SchermoDi;

    QCheckBox* chkDoppi = nullptr;
    QWidget* fraDoppi = nullptr;
    QCheckBox* chkDoppiLato = nullptr; ///< which sides are put together
    QLineEdit* txtDoppi = nullptr;     ///< gap [mm]

    /// Keeps what one piece gives to a pair; the section itself becomes one with the results, so that who is
    /// told of the row sees a single piece and what is asked for.
    void Leggedati() override {
        SchermoDi<S>::Leggedati();
        S* section = this->RigaInMano() ? SezioneInUso<S>() : nullptr;
        if (section == nullptr)
            return;
        S piece = *section;
        piece.InizializzaSezione();
        singolo_ = SingoloDi(piece);
        pesoSingolo_ = this->Data1->Recordset().Numero(posizioni_.g);
        section->Doppi = daRaddoppiare_ = chkDoppi->isChecked();
        section->DoppiCorto = chkDoppiLato->isChecked();
        section->dDoppi = NumeroIn(txtDoppi);
    }

    void Risultati() override {
        if (S* section = SezioneInUso<S>(); daRaddoppiare_ && this->RigaInMano() && section != nullptr)
            Raddoppia(*section);
        SchermoDi<S>::Risultati();
        ToglieDaAggiornare();
    }

    void SvuotaRisultati() override {
        SchermoDi<S>::SvuotaRisultati();
        ToglieDaAggiornare();
    }

    // Until Enter nothing shown changes; a length that cannot be empties its own result at once.
    void LunghezzaCambiata(int index) override {
        if (!this->PassaLunghezza(index))
            return;
        this->regole_.Applica();
        if (auto* box = this->template findChild<QLineEdit*>(QStringLiteral("TxtNbRd_%1").arg(index))) {
            const bool some = this->Lunghezza(index) >= 0;
            daAggiornare_.removeAll(box);
            if (some)
                daAggiornare_ << box;
            else
                box->clear();
            SegnaDaAggiornare(box, some);
        }
    }

    // No result here hangs on it, but the class that a detail shows.
    void ForzaCambiata() override {
        if (!this->PassaForza())
            return;
        if constexpr (ConMomenti<S>)
            SezioneInUso<S>()->ClassePressoFlessioneCalcola();
        AggiornaVisibili(*this);
    }

protected:
    /// To be called once the form stands, before the load.
    /// @param lato       object name of the box that says which sides are put together
    /// @param posizioni  where the values of a pair are shown
    void CollegaDoppi(const char* lato, const PosizioniDoppio& posizioni) {
        posizioni_ = posizioni;
        chkDoppi = this->template findChild<QCheckBox*>(QStringLiteral("chkDoppi"));
        fraDoppi = this->template findChild<QWidget*>(QStringLiteral("fraDoppi"));
        chkDoppiLato = this->template findChild<QCheckBox*>(QString::fromLatin1(lato));
        txtDoppi = this->CasellaDi("txtDoppi");
        Collega(chkDoppi, &QCheckBox::toggled, this, [this](bool on) { DoppiScelti(on); });
        Collega(chkDoppiLato, &QCheckBox::toggled, this, [this] { CalcolaDoppi(); });
        Collega(txtDoppi, &QLineEdit::textChanged, this, [this] {
            const MessaggiTaciuti quiet(InDigitazione(txtDoppi));
            CalcolaDoppi();
        });
        this->regole_.Aggiunge(
            {.caselle = {txtDoppi},
             .motivo = [this] { return DistanzaPossibile() ? QString() : QObject::tr(motivoDistanza); },
             .risultati = this->CaselleRisultati()});
    }

    /// Makes the section in hand the pair, where pairs are asked for, and shows it.
    void CalcolaDoppi() {
        S* section = SezioneInUso<S>();
        if (this->CaricaForm || !chkDoppi->isChecked() || !this->RigaInMano() || section == nullptr)
            return;
        const QScopedValueRollback loading(this->CaricaForm, true);
        Raddoppia(*section);
        this->Risultati();
    }

    void Conclusa(QLineEdit* casella) override {
        if (!Attende(casella))
            SchermoDi<S>::Conclusa(casella);
    }

    bool Invio(QLineEdit* casella) override {
        const bool moved = SchermoDi<S>::Invio(casella);
        if (Attende(casella) && !this->CaricaForm && this->RigaInMano())
            this->Risultati();
        return moved;
    }

private:
    static constexpr const char* motivoDistanza = "La distanza non può essere negativa";
    static constexpr int cifre = 4;

    [[nodiscard]] bool DistanzaPossibile() const { return !chkDoppi->isChecked() || NumeroIn(txtDoppi) >= 0; }

    [[nodiscard]] bool Attende(QLineEdit* box) const {
        return this->Txt_L0.contains(box) || (box != nullptr && box == this->TxtNsd);
    }

    void DoppiScelti(bool on) {
        fraDoppi->setVisible(on);
        if (on) {
            CalcolaDoppi();
            return;
        }
        if (this->CaricaForm || !this->RigaInMano())
            return;
        MostraValoriRiga(*this);
        this->DatiRisultati();
    }

    void Raddoppia(S& section) {
        daRaddoppiare_ = false;
        RendeDoppia(section, singolo_, NumeroIn(txtDoppi), chkDoppiLato->isChecked());
        MostraDoppio(section);
    }

    void MostraDoppio(const S& s) {
        const PosizioniDoppio& p = posizioni_;
        Scrive(p.g, 2 * pesoSingolo_);
        Scrive(p.h, s.h);
        Scrive(p.b, s.b);
        Scrive(p.A, mm2_a_cm2(s.Area));
        Scrive(p.Iy, mm4_a_cm4(s.Jy));
        Scrive(p.Wy, mm3_a_cm3(s.Wely));
        Scrive(p.iy, mm_a_cm(s.iY));
        Scrive(p.Iz, mm4_a_cm4(s.Jz));
        Scrive(p.Wz, mm3_a_cm3(s.Welz));
        Scrive(p.iz, mm_a_cm(s.Iz));
        if constexpr (ConMomenti<S>) {
            Scrive(p.Wply, mm3_a_cm3(s.Wply));
            Scrive(p.Wplz, mm3_a_cm3(s.Wplz));
        }
    }

    void Scrive(int posizione, double valore) {
        this->TxtProf[posizione]->setText(QString::fromStdString(FormatoCifre(cifre, Singolo(valore))));
    }

    void ToglieDaAggiornare() {
        for (QLineEdit* box : std::exchange(daAggiornare_, {}))
            SegnaDaAggiornare(box, false);
    }

    void SegnaDaAggiornare(QLineEdit* box, bool on) {
        if (auto* result = qobject_cast<Casella*>(box))
            result->ImpostaSegno(on ? Casella::DaAggiornare : Casella::Nessuno);
        box->setAccessibleDescription(on ? QObject::tr("da aggiornare") : QString());
        if (!daAggiornare_.isEmpty())
            this->statusBar()->showMessage(QObject::tr("Risultati da aggiornare: premere Invio"));
        else
            this->statusBar()->clearMessage();
    }

    PosizioniDoppio posizioni_{};
    SagomoSingolo singolo_;      ///< one piece of the row in hand
    double pesoSingolo_ = 0;     ///< [kg/m]
    bool daRaddoppiare_ = false; ///< the section has been read and is still one piece
    QList<QLineEdit*> daAggiornare_;
};

} // namespace sagomi
