#include "screens/AggiornaVisibili.h"

#include <QPointer>
#include <QScopedValueRollback>

#include <memory>
#include <type_traits>
#include <utility>

#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "screens/SchermoSezione.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

struct Attesa {
    int riempimenti = 0;                         ///< screens that are being filled
    QPointer<const SchermoSezione> daAggiornare; ///< has told of new results meanwhile
};

Attesa& InAttesa() {
    static Attesa attesa;
    return attesa;
}

void AggiornaUno(Schermo& schermo) {
    Protetto("Errore", [&schermo] { schermo.Aggiorna(); });
}

Singolo ForzaAssiale() {
    Singolo force;
    SullaSezioneInUso([&force](const ConMomenti auto& section) { force = section.NSd; });
    return force;
}

/// What it enters goes onto the section, unless it works with an axial force of its own: the main screen has
/// not heard of that.
void AggiornaAttivo(Schermo& attivo) {
    const Singolo force = ForzaAssiale();
    RiferimentoSezione own = CopiaSezione();
    {
        const QScopedValueRollback inUse(SezioneCorrente, own);
        AggiornaUno(attivo);
        own = SezioneCorrente;
        if (ForzaAssiale() != force)
            return;
    }
    SullaSezioneInUso([&own](auto& section) {
        if (const auto* computed = SezioneInUso<std::decay_t<decltype(section)>>(own))
            section = *computed;
    });
}

/// All but the one in use, each on its copy.
void AggiornaGliAltri(const QList<Schermo*>& screens, const Schermo* inUso) {
    for (Schermo* screen : screens)
        if (screen != inUso) {
            const QScopedValueRollback own(SezioneCorrente, CopiaSezione());
            AggiornaUno(*screen);
        }
}

/// @param compilato  the screen that has just been filled; nullptr: the active one is still to be
void Aggiorna(const SchermoSezione& schermo, const Schermo* compilato) {
    const QScopedValueRollback guard(InAttesa().riempimenti, 1); // what they write starts nothing anew
    const MessaggiTaciuti quiet;
    const QList<Schermo*> screens = NavigaSchermi::Unico().VisibiliDa(schermo);
    Schermo* active = NavigaSchermi::Unico().Attivo();
    AggiornaGliAltri(screens, compilato != nullptr ? compilato : active);
    if (compilato == nullptr && screens.contains(active))
        AggiornaAttivo(*active);
    InAttesa().daAggiornare.clear();
}

} // namespace

RiferimentoSezione CopiaSezione() {
    RiferimentoSezione copy;
    SullaSezioneInUso(
        [&copy](const auto& section) { copy = std::make_shared<std::decay_t<decltype(section)>>(section); });
    return copy;
}

void AggiornaVisibili(const SchermoSezione& schermo) {
    if (ChiusuraInCorso)
        return;
    if (InAttesa().riempimenti > 0)
        InAttesa().daAggiornare = &schermo;
    else
        Aggiorna(schermo, nullptr);
}

AggiornamentoRinviato::AggiornamentoRinviato(const Schermo& schermo) : schermo_(schermo) {
    ++InAttesa().riempimenti;
}

AggiornamentoRinviato::~AggiornamentoRinviato() {
    if (--InAttesa().riempimenti > 0)
        return;
    if (const auto* told = InAttesa().daAggiornare.data(); told != nullptr && !ChiusuraInCorso)
        Aggiorna(*told, &schermo_);
}

} // namespace sagomi
