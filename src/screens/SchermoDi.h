#pragma once

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "drawing/ui/ImmagineDisegno.h"
#include "frame/Unita.h"
#include "frame/ui/ScriveTesto.h"
#include "screens/AggiornaVisibili.h"
#include "screens/RisultatiSezione.h"
#include "screens/SchermoSezione.h"
#include "sections/AreaEfficace.h"
#include "sections/DisegnoSagoma.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

/// A main screen whose rows are sections of kind S. One of these says how a row is read and held against its
/// outline and which boxes show the results; the rest it has from here.
template <Sagomo S> class SchermoDi : public SchermoSezione {
public:
    using SchermoSezione::SchermoSezione;

    [[nodiscard]] bool SezioneMia() const override { return SezioneInUso<S>() != nullptr; }

    /// Steel and entries after the row's own values: from m and kN to mm and N.
    void Leggedati() override {
        if (!RigaInMano())
            return;
        auto section = std::make_shared<S>();
        LeggeSezione(Data1->Recordset(), *section);
        LeggeEntrate(*section);
        if constexpr (std::is_same_v<S, SezioneDoppioT>)
            if (valoriScelti)
                valoriScelti->MetteIn(*section);
        SezioneCorrente = std::move(section);
    }

    void Risultati() override {
        S* section = SezioneInUso<S>();
        if (!RigaInMano() || section == nullptr) {
            SvuotaRisultati();
            AggiornaVisibili(*this);
            return;
        }
        InizializzaConAreaEfficace(*section, this);
        for (const auto& [box, text] : risultati_)
            ScriveTesto(box, text(*section));
        ApplicaRegole();
        MostraSagoma(section);
        AggiornaVisibili(*this);
    }

    void RotturaPassata() override { AggiornaVisibili(*this); }

    void ControlloDati() override {
        if (S* section = SezioneInUso<S>(); section != nullptr && RigaInMano())
            ControllaSezione(Data1->Recordset(), *section);
    }

    void SvuotaValori() override {
        for (const auto& [box, text] : risultati_)
            box->clear();
    }

    void SvuotaRisultati() override {
        SvuotaValori();
        SchermoSezione::SvuotaRisultati();
        MostraSagoma(nullptr);
    }

protected:
    /// Name, dimensions and constants of the row, and what the kind of rows says of the section.
    virtual void LeggeSezione(const Lettore& riga, S& sezione) = 0;
    /// Holds the row against the outline.
    virtual void ControllaSezione(const Lettore& riga, S& sezione) = 0;
    /// Draws the section, or nothing for nullptr.
    virtual void MostraSagoma(const S* sezione) {
        SagomaDisegnata shape = sezione == nullptr ? SagomaDisegnata{} : SagomaDi(*sezione);
        if (sagoma_ == shape)
            return;
        Picture1->Mostra(DisegnoSagoma(shape));
        sagoma_ = std::move(shape);
    }

    /// The boxes of the results. One that the form does not have throws std::out_of_range.
    void CollegaRisultati(const std::vector<VoceRisultato<S>>& voci) {
        for (const VoceRisultato<S>& voce : voci)
            risultati_.emplace_back(CasellaDi(voce.casella), voce.testo);
    }

    [[nodiscard]] QList<QWidget*> CaselleRisultati() const {
        QList<QWidget*> boxes;
        for (const auto& [box, text] : risultati_)
            boxes << box;
        return boxes;
    }

    /// Steel and entries: from m and kN to mm and N.
    void LeggeEntrate(S& section) const {
        section.TipoAcciaio = ComboTipoAcciaio->currentText().toStdString();
        section.fy = FyInForza();
        section.fu = FuInForza();
        if constexpr (ConLunghezze<S>) {
            section.L0y = Lunghezza(0);
            section.L0z = Lunghezza(1);
        }
        if constexpr (ConLunghezzaV<S>)
            section.L0v = Lunghezza(2);
        if constexpr (ConMomenti<S>)
            section.NSd = kN_a_N(NumeroIn(TxtNsd));
    }

private:
    std::vector<std::pair<QLineEdit*, std::string (*)(const S&)>> risultati_;
    std::optional<SagomaDisegnata> sagoma_; ///< in the picture
};

} // namespace sagomi
