#include "frame/Messaggi.h"

#include <utility>

namespace sagomi {

namespace {

PortaMessaggi& Porta() {
    static PortaMessaggi porta;
    return porta;
}

Risposta Manda(Messaggio m) {
    if (m.titolo.empty())
        m.titolo = nomeProgramma;
    if (m.icona == Icona::Nessuna && (m.testo.starts_with("ERRORE") || m.testo.starts_with("Errore")))
        m.icona = Icona::Avviso;
    return Inoltra(Porta(), m);
}

} // namespace

Risposta Inoltra(const PortaMessaggi& porta, const Messaggio& messaggio) {
    if (porta)
        return porta(messaggio);
    MessaggiRaccolti().push_back(messaggio.testo);
    return messaggio.bottoni == Bottoni::SiNo ? Risposta::No : Risposta::Ok;
}

PortaMessaggi CollegaMessaggi(PortaMessaggi porta) { return std::exchange(Porta(), std::move(porta)); }

void Avvisa(std::string_view testo, std::string_view titolo, Icona icona) {
    Manda({std::string(testo), icona, std::string(titolo), Bottoni::Ok});
}

bool AvvisaSaltabile(std::string_view testo, std::string_view titolo) {
    return Manda({std::string(testo), Icona::Nessuna, std::string(titolo), Bottoni::OkSalta}) ==
           Risposta::Salta;
}

bool Chiede(std::string_view testo, std::string_view titolo, Icona icona) {
    return Manda({std::string(testo), icona, std::string(titolo), Bottoni::SiNo}) == Risposta::Si;
}

MessaggiTaciuti::MessaggiTaciuti(bool attivo) : attivo_(attivo) {
    if (attivo_)
        precedente_ = CollegaMessaggi([this](const Messaggio& m) {
            trattenuti_ = true;
            return m.bottoni == Bottoni::SiNo ? Risposta::No : Risposta::Ok;
        });
}

MessaggiTaciuti::~MessaggiTaciuti() {
    if (attivo_)
        CollegaMessaggi(std::move(precedente_));
}

std::vector<std::string>& MessaggiRaccolti() {
    static std::vector<std::string> raccolti;
    return raccolti;
}

} // namespace sagomi
