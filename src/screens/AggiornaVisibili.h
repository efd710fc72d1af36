#pragma once

#include "frame/ui/Schermo.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

class SchermoSezione;

/// A section of the same values as the one in use.
RiferimentoSezione CopiaSezione();

/// A main screen has shown its results: every visible screen that was opened from it computes anew with the
/// section in use, in silence. The active one comes last and works on the section itself, the others each on
/// a copy, so that what they enter stays out of the results of the main screen. While a screen is being
/// filled (AggiornamentoRinviato) this waits for its end.
void AggiornaVisibili(const SchermoSezione& schermo);

/// While one lives its screen, the one in use, is being filled, and no visible screen computes anew; at the
/// end of the last one the others do where there have been new results meanwhile.
class AggiornamentoRinviato {
public:
    explicit AggiornamentoRinviato(const Schermo& schermo);
    ~AggiornamentoRinviato();
    AggiornamentoRinviato(const AggiornamentoRinviato&) = delete;
    AggiornamentoRinviato& operator=(const AggiornamentoRinviato&) = delete;

private:
    const Schermo& schermo_;
};

} // namespace sagomi
