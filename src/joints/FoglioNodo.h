#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/TavolaViste.h"
#include "joints/ComponentiGiunto.h"
#include "joints/GeometriaNodo.h"
#include "joints/TracciaVista.h"

namespace sagomi {

class Superficie;

/// Where a component lies on a sheet.
struct ZonaNodo {
    ComponenteFila quale;
    ContornoNodo contorno; ///< [user scale]
};

/// Who a sheet is for: the workshop (numbers on the dimensions, all data as text) or the one at the screen
/// (dimensions with their names, what governs, the few data that matter).
enum class UsoFoglio : std::uint8_t { Officina, Schermo };

/// The sheet of a joint: side view, front view of the plate, column of texts, each drawn when it is asked
/// for. On paper the scale is one of those in use, on the screen as large as there is room; for files and CAD
/// a unit is a millimetre. Before `Dispone` nothing is drawn.
class FoglioNodo {
public:
    /// @param righe  column of texts
    FoglioNodo(GeometriaNodo geometria, UsoFoglio uso, EvidenzaGiunto evidenza,
               std::vector<std::string> righe);

    /// Puts device and target in force, chooses layout and scale.
    void Dispone(Superficie* oggetto, std::string_view dispositivo);

    /// Column, beams, plate, bolts, welds and stiffeners.
    void VistaLaterale() const;
    /// The plate from the column, with its holes, the beam behind it and the flange of the column.
    void Prospetto() const;
    /// The lines over the views and the column of texts, once.
    void Testi();

    /// "1:5" on paper.
    [[nodiscard]] std::string Scala() const { return tavola_ ? tavola_->Scala() : std::string(); }
    /// The components in sight, those in front first.
    [[nodiscard]] std::vector<ZonaNodo> Zone() const;

private:
    struct Riquadro {                           ///< of a view
        CampoNodo modello;                      ///< [mm]
        double sx = 0, su = 0, dx = 0, giu = 0; ///< room around it [heights of the text]
    };

    // Layout
    [[nodiscard]] bool Schermo() const { return uso_ == UsoFoglio::Schermo; }
    [[nodiscard]] double AltezzaColonna() const;
    [[nodiscard]] static Ingombro Largo(const Riquadro& r);
    [[nodiscard]] static Ingombro Alto(const Riquadro& r);
    [[nodiscard]] std::vector<DisposizioneViste> Disposizioni() const;
    void Riquadri();
    void Colloca();
    [[nodiscard]] TracciaVista Laterale() const;
    [[nodiscard]] TracciaVista Frontale() const;

    // Side view
    void Colonna(const TracciaVista& v) const;
    void Lato(const TracciaVista& v, const LatoNodo& lato) const;
    void Trave(const TracciaVista& v, const LatoNodo& lato) const;
    static void Bullone(const TracciaVista& v, const LatoNodo& lato, double y);
    static void Saldature(const TracciaVista& v, const LatoNodo& lato);
    void Irrigidimenti(const TracciaVista& v) const;
    void QuoteLaterali(const TracciaVista& v) const;
    [[nodiscard]] double Fine(const LatoNodo& lato) const; ///< end of a beam
    [[nodiscard]] double Larghezza(const std::string& testo) const;
    void NomeTrave(const TracciaVista& v, const LatoNodo& lato) const;
    [[nodiscard]] bool NomeDentro(const LatoNodo& lato, double a) const;
    [[nodiscard]] std::string NomeBulloni() const;
    [[nodiscard]] std::string NomeClasse() const;
    [[nodiscard]] std::string NomeSaldatura() const;
    [[nodiscard]] bool RichiamiDentro(double a) const; ///< whether the beam has room for them
    [[nodiscard]] double InizioRichiami(double a) const;
    [[nodiscard]] double LarghezzaRichiami() const;
    [[nodiscard]] double RigaSaldatura(double a) const;
    [[nodiscard]] double SottoTrave(int riga, double a) const; ///< a line of text under the beam
    [[nodiscard]] int RigheSotto(double a) const;
    void Richiami(const TracciaVista& v) const;
    void RichiamiIrrigidimenti(const TracciaVista& v) const;

    // Front view
    void AlaColonna(const TracciaVista& v) const;
    void Piastra(const TracciaVista& v) const;
    void SezioneTrave(const TracciaVista& v) const;
    void Fori(const TracciaVista& v) const;
    static void Aggiunge(std::vector<QuotaNodo>& catena, const QuotaNodo& quota);
    [[nodiscard]] std::vector<QuotaNodo> QuoteFori() const;
    [[nodiscard]] std::vector<QuotaNodo> QuoteDallaTrave() const;
    void QuoteFrontali(const TracciaVista& v) const;
    void QuoteOrizzontali(const TracciaVista& v) const;

    void Evidenzia(const TracciaVista& v, bool frontale) const;
    [[nodiscard]] QuotaNodo Quota(double da, double a, const char* campo, const char* nome) const;

    GeometriaNodo g_;
    UsoFoglio uso_;
    EvidenzaGiunto evidenza_;
    std::vector<std::string> righe_, titoli_;
    std::unique_ptr<TavolaViste> tavola_;
    Riquadro laterale_, prospetto_;
    std::array<PuntoNodo, 2> dove_;                   ///< where the origins of the views lie
    PuntoNodo testi_;                                 ///< upper left corner of the column of texts
    double larghezzaTesti_ = 0, larghezzaTitoli_ = 0; ///< [heights of the text]
    double piede_ = 0;                                ///< room for the scale [heights of the text]
    bool testiScritti_ = false;
};

} // namespace sagomi
