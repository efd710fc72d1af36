#pragma once

#include <chrono>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "choice/Scelta.h"

namespace sagomi {

/// A choice that is computed piece by piece, so that who shows it never waits. The rows lie at the places of
/// their sections.
class SceltaInCorso {
public:
    /// The sections to choose among; nothing is computed yet.
    void Sagomi(std::vector<SagomoInGara> sagomi);
    /// More of them, behind the others.
    void Aggiunge(std::vector<SagomoInGara> sagomi);
    [[nodiscard]] std::span<const SagomoInGara> Sagomi() const { return sagomi_; }

    /// From now on the rows are those of a request; all that was computed is no longer valid.
    void Comincia(const Richiesta& richiesta, const Filtri& filtri);
    /// No row is valid, and none will be.
    void Ferma();

    /// Computes for about so long, and not less than a piece.
    /// @param prima  places that are computed before all others: what is in sight
    /// @return whether all is done
    bool Avanza(std::chrono::microseconds tempo, std::span<const std::uint32_t> prima = {});

    [[nodiscard]] bool Finita() const { return fatti_ >= sagomi_.size(); }
    /// Done share, 0 to 1.
    [[nodiscard]] double Avanzamento() const;

    /// Whether the row of a place has been computed for this request.
    [[nodiscard]] bool Valida(std::uint32_t posto) const { return stato_[posto] == valida; }
    [[nodiscard]] const RigaScelta& Riga(std::uint32_t posto) const { return righe_[posto]; }
    [[nodiscard]] std::span<const RigaScelta> Righe() const { return righe_; }

    /// Places of the rows that the filters let through, as far as they are computed.
    [[nodiscard]] std::vector<std::uint32_t> Ammesse() const;

    /// What was told on the way, each text once.
    [[nodiscard]] const std::vector<std::string>& Messaggi() const { return messaggi_; }
    [[nodiscard]] const Richiesta& RichiestaInForza() const { return richiesta_; }

private:
    enum Stato : std::uint8_t { daFare, valida, esclusa };
    void Calcola(std::size_t da, std::size_t a);

    std::vector<SagomoInGara> sagomi_;
    std::vector<RigaScelta> righe_;
    std::vector<Stato> stato_;
    std::size_t fatti_ = 0;
    Richiesta richiesta_;
    Filtri filtri_;
    std::vector<std::string> messaggi_;
};

} // namespace sagomi
