#include <string>

#include "frame/Messaggi.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace {

std::string TraVirgolette(const std::string& carattere) { return "\"" + carattere + "\""; }

void AvvisaSeparatoriUguali() {
    Avvisa("Errore nelle impostazioni internazionali del pannello di controllo.\n"
           "Il separatore decimale è stato impostato come " +
               TraVirgolette(Utf8DaCodice(CarDecimale)) +
               "\n"
               "E' stato impostato lo stesso carattere per il simbolo raggruppamento cifre.\n"
               "Cambiare il simbolo raggruppamento cifre e riavviare il programma.",
           "ERRORE", Icona::Stop);
}

void AvvisaNumeroNonRiletto() {
    Avvisa("Errore sconosciuto nelle impostazioni internazionali del pannello di controllo.\n"
           "Provare a cambiare i simboli del separatore decimale\n"
           "e del raggruppamento cifre e riavviare il programma.",
           "ERRORE", Icona::Stop);
}

void AvvisaPuntoEVirgola() {
    Avvisa("E' impostato come separatore decimale " + TraVirgolette(Utf8DaCodice(CarDecimale)) +
               " e come separatore delle migliaia " + TraVirgolette(Utf8DaCodice(CarMigliaia)) +
               "\n"
               "Se la lingua è Italiano è meglio usare la  \",\"\n"
               " come separatore decimale.\n"
               "Il programma funzionerà comunque correttamente se si usa \n"
               "come separatore delle migliaia lo spazio,\n"
               "impostazione consigliata perchè elimina qualunque ambiguità.\n"
               "Il tastierino numerico inserisce il separatore decimale scelto nelle impostazioni "
               "internazionali.",
           "ATTENZIONE ", Icona::Avviso);
}

/// Whether a number written into the box is read back as it was.
bool NumeroTornaUguale(CasellaTesto& casella) {
    constexpr double prova = 1234567.8;
    casella.Testo(Formato("#,#.#", prova));
    return ValoreNumerico(casella.Testo()) == prova;
}

} // namespace

void SeparatoriControlla(CasellaTesto& casella, const Separatori& sistema, bool silenzioso, bool* esito) {
    casella.Nasconde();
    SeparatoriOk = false;
    CarDecimale = sistema.decimale;
    CarMigliaia = sistema.migliaia;
    if (CarDecimale == CarMigliaia)
        AvvisaSeparatoriUguali();
    else if (NumeroTornaUguale(casella))
        SeparatoriOk = true;
    else
        AvvisaNumeroNonRiletto();
    if (CarMigliaia == ',' && CarDecimale == '.' && !silenzioso)
        AvvisaPuntoEVirgola();
    if (esito != nullptr)
        *esito = SeparatoriOk;
}

} // namespace sagomi
